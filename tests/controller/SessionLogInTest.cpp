#include "digest/SHA256.h"
#include "tests/controller/SessionBench.h"

namespace zelto::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SessionLogInTest : public SessionTest {
protected:
    void begin(const simulator::DriveSetup& setup = {}) {
        m_drive = plugPreparedDrive(setup);
        start();
        ASSERT_EQ(visibleWindow(), "AuthenticateWindow");
    }
    [[nodiscard]] std::vector<std::uint8_t> lastPayload() const {
        return computer.log.latest("TKVR21_Authenticate")->data;
    }

    ControllerBench::Drive m_drive;
};

TEST_F(SessionLogInTest, OpensEmptyWithSubmitOff) {
    begin();
    EXPECT_EQ(text("AuthenticateTextField"), QString());
    EXPECT_FALSE(isEnabled("AuthenticateSubmit"));
    EXPECT_EQ(text("AuthenticateMessage"), localized("IDS_ENTER_1ST_PASSWORD"));
}

TEST_F(SessionLogInTest, AcceptsOneToThirtyTwoSingleByteCharacters) {
    begin();
    struct Row {
        int line;
        QString text;
        bool accepted;
    };
    const Row rows[] = {
        {__LINE__, QString(), false},
        {__LINE__, QStringLiteral("a"), true},
        {__LINE__, QString(32, u'x'), true},
        {__LINE__, QString(33, u'x'), false},
        {__LINE__, QStringLiteral("with blanks and ~!@#"), true},
        {__LINE__, QStringLiteral("gr\u00fc\u00df"), false},
        {__LINE__, QStringLiteral("\u0645\u0631\u062d\u0628\u0627"), false},
        {__LINE__, QString::fromUcs4(U"\U0001F511"), false},
        {__LINE__, QString(100000, u'x'), false},
    };
    for (const Row& row : rows) {
        type("AuthenticateTextField", row.text);
        EXPECT_EQ(isEnabled("AuthenticateSubmit"), row.accepted) << "line " << row.line;
    }
}

TEST_F(SessionLogInTest, WhyLogInStaysOffIsShownAndHeardWhileAPasswordIsTyped) {
    begin();
    const auto* const line = control<QLabel>("AuthenticateObstacle");
    const auto* const field = control<QWidget>("AuthenticateTextField");
    EXPECT_FALSE(line->isVisible());
    // As on a keyboard of another layout.
    type("AuthenticateTextField", QStringLiteral("\u0441\u0435\u043a\u0440\u0435\u0442"));
    EXPECT_TRUE(line->isVisible());
    EXPECT_EQ(line->text(), localized("IDS_HINT_PASSWORD_SIGNS"));
    EXPECT_TRUE(field->accessibleDescription().contains(line->text()));
    type("AuthenticateTextField", QString(33, u'x'));
    EXPECT_EQ(line->text(), localized("IDS_HINT_PASSWORD_TOO_LONG"));
    type("AuthenticateTextField", QStringLiteral("secret"));
    EXPECT_FALSE(line->isVisible());
    EXPECT_EQ(field->accessibleDescription(), QString());
}

TEST_F(SessionLogInTest, ThePayloadIsTheStepFlagAZeroAndTheDigestOfTheCharactersAlone) {
    begin();
    logInWith("abc");
    // FIPS 180-4's digest of the three bytes 0x61 0x62 0x63.
    const std::vector<std::uint8_t> expected{0x01, 0x00, 0xBA, 0x78, 0x16, 0xBF, 0x8F, 0x01, 0xCF,
                                             0xEA, 0x41, 0x41, 0x40, 0xDE, 0x5D, 0xAE, 0x22, 0x23,
                                             0xB0, 0x03, 0x61, 0xA3, 0x96, 0x17, 0x7A, 0x9C, 0xB4,
                                             0x10, 0xFF, 0x61, 0xF2, 0x00, 0x15, 0xAD};
    EXPECT_EQ(lastPayload(), expected);
}

TEST_F(SessionLogInTest, OnePasswordLeadsToTheUnlockingWindow) {
    begin();
    logInWith("first");
    EXPECT_EQ(visibleWindow(), "UnlockingWindow");
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(SessionLogInTest, TwoPasswordsAskTwiceAndLeadToTheUnlockedWindow) {
    begin({.secondPassword = "second"});
    logInWith("first");
    EXPECT_EQ(lastPayload()[0], 1) << "first step";
    EXPECT_EQ(visibleWindow(), "AuthenticateWindow");
    EXPECT_EQ(text("AuthenticateMessage"), localized("IDS_ENTER_2ND_PASSWORD"));
    EXPECT_EQ(text("AuthenticateTextField"), QString());
    EXPECT_FALSE(isEnabled("AuthenticateSubmit"));
    logInWith("second");
    EXPECT_EQ(lastPayload()[0], 0) << "further step";
    EXPECT_EQ(lastPayload()[1], 0);
    EXPECT_EQ(visibleWindow(), "UnlockedWindow");
}

TEST_F(SessionLogInTest, AFurtherStepForTheFirstPasswordLeadsToTheUnlockedWindow) {
    forgeSecurityByte(0x03);
    begin();
    EXPECT_EQ(text("AuthenticateMessage"), localized("IDS_ENTER_1ST_PASSWORD"));
    forgeResult(AuthenticateCode, kIOReturnSuccess);
    logInWith("first");
    EXPECT_EQ(visibleWindow(), "UnlockedWindow");
}

TEST_F(SessionLogInTest, AWrongPasswordIsSaidBetweenTwoPausesAndTheTextStays) {
    begin();
    computer.log.clear();
    logInWith("wrong");
    EXPECT_THAT(computer.log.story(),
                ElementsAre("TKVR21_Authenticate", "sleep 1", "TKVR21_GetDeviceStatus",
                            testing::StartsWith("alert"), "sleep 1"));
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_AUTHENTICATE_FAILED")));
    EXPECT_EQ(visibleWindow(), "AuthenticateWindow");
    EXPECT_EQ(text("AuthenticateTextField"), QStringLiteral("wrong"));
    EXPECT_TRUE(isEnabled("AuthenticateSubmit"));
}

TEST_F(SessionLogInTest, SenseKeyTwoCountsAsAWrongPasswordToo) {
    begin();
    forge(StatusRequestCode, [](ForgedReplies::Reply& reply) { reply.data[13] = 2; });
    logInWith("wrong");
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_AUTHENTICATE_FAILED")));
}

TEST_F(SessionLogInTest, ARefusalForAnotherReasonIsSilent) {
    forge(StatusRequestCode, [](ForgedReplies::Reply& reply) {
        if (reply.data[13] != 0) {
            reply.data[14] = 0x24;
            reply.data[15] = 0x00;
        }
    });
    begin();
    logInWith("wrong");
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ(visibleWindow(), "AuthenticateWindow");
    EXPECT_FALSE(hasQuit());
}

TEST_F(SessionLogInTest, ARefusalByADriveThatHasLockedItselfForGoodEndsTheApplication) {
    forge(StatusRequestCode, [](ForgedReplies::Reply& reply) {
        if (reply.data[13] != 0) {
            reply.data[14] = 0x74;
            reply.data[15] = 0x00;
            reply.data[33] = 0x05;
        }
    });
    begin();
    logInWith("wrong");
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_ZELTO_DRIVE_LOST")));
    EXPECT_EQ(visibleWindow(), "");
    EXPECT_TRUE(hasQuit());
}

TEST_F(SessionLogInTest, TheLastWrongSecondPasswordLosesTheDrive) {
    begin({.secondPassword = "second", .trials = 2});
    logInWith("first");
    logInWith("wrong 1");
    logInWith("wrong 2");
    EXPECT_EQ(m_drive->drive().state(computer.clock.worldTime()), SecurityState::StateFullLock);
    EXPECT_EQ(messages().size(), 2U);
}

TEST_F(SessionLogInTest, AnUnreadableStatusAfterARefusalIsReported) {
    begin();
    forgeResult(StatusRequestCode, kIOReturnTimeout);
    logInWith("wrong");
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_COMMAND_FAIL")));
    EXPECT_EQ(visibleWindow(), "AuthenticateWindow");
}

TEST_F(SessionLogInTest, ADriveThatIsGoneIsSaidAndEndsTheApplication) {
    begin();
    unplug(m_drive);
    computer.log.clear();
    logInWith("first");
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_NOT_FOUND_ZELTO")));
    EXPECT_THAT(commands(), ElementsAre("TKVR21_Authenticate"));
    EXPECT_TRUE(hasQuit());
}

TEST_F(SessionLogInTest, CancelAndTheTitleBarEndTheApplication) {
    begin();
    press("AuthenticateCancel");
    EXPECT_TRUE(hasQuit());
    start();
    EXPECT_FALSE(hasQuit());
    app().AuthenticateWindow->close();
    EXPECT_TRUE(hasQuit());
}

// --- The remaining time on the log-in window ---------------------------------------------------

TEST_F(SessionLogInTest, ShowsTheRemainingTimeWhenTheUserChoseSoAndAPeriodRuns) {
    begin({.autoClearSeconds = 90061, .showsRemainingTime = true});
    EXPECT_NE(text("AuthenticateRemainingTimeTitleText"), QString());
    tick();
    EXPECT_TRUE(text("AuthenticateRemainingTimeText").startsWith(u"1 "));
}

TEST_F(SessionLogInTest, ShowsTheRemainingTimeOnItsSecondOpeningToo) {
    begin({.secondPassword = "second", .autoClearSeconds = 90061, .showsRemainingTime = true});
    const QString caption = text("AuthenticateRemainingTimeTitleText");
    tick();
    logInWith("first");
    ASSERT_EQ(text("AuthenticateMessage"), localized("IDS_ENTER_2ND_PASSWORD"));
    EXPECT_EQ(text("AuthenticateRemainingTimeTitleText"), caption);
    EXPECT_EQ(text("AuthenticateRemainingTimeText"), QString()) << "until the next tick";
    tick();
    EXPECT_TRUE(text("AuthenticateRemainingTimeText").startsWith(u"1 "));
}

TEST_F(SessionLogInTest, AnUnknownTextInputModeRoutesNowhere) {
    begin();
    app().TextInputMode = 7;
    type("AuthenticateTextField", "first");
    EXPECT_FALSE(isEnabled("AuthenticateSubmit"));
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(SessionLogInTest, ShowsNoRemainingTimeWithoutTheChoice) {
    begin({.autoClearSeconds = 90061, .showsRemainingTime = false});
    EXPECT_EQ(text("AuthenticateRemainingTimeTitleText"), QString());
    tick();
    EXPECT_EQ(text("AuthenticateRemainingTimeText"), QString());
}

TEST_F(SessionLogInTest, ShowsNoRemainingTimeWithoutAPeriod) {
    begin({.autoClearSeconds = 0, .showsRemainingTime = true});
    EXPECT_EQ(text("AuthenticateRemainingTimeTitleText"), QString());
}

TEST_F(SessionLogInTest, ShowsNoRemainingTimeWhenTheChoiceCannotBeRead) {
    forgeResult(HintReadCode, kIOReturnTimeout);
    begin({.autoClearSeconds = 90061, .showsRemainingTime = true});
    EXPECT_EQ(text("AuthenticateRemainingTimeTitleText"), QString());
}

TEST_F(SessionLogInTest, ShowsNoRemainingTimeWhenThePeriodCannotBeRead) {
    forgeResult(TimeRequestCode, kIOReturnTimeout);
    begin({.autoClearSeconds = 90061, .showsRemainingTime = true});
    EXPECT_EQ(text("AuthenticateRemainingTimeTitleText"), QString());
}

// --- The digest --------------------------------------------------------------------------------

using SessionLogInDeathTest = SessionLogInTest;

TEST_F(SessionLogInDeathTest, DigestingMoreThanThirtyTwoCharactersIsAProgrammingError) {
    begin();
    PasswordDigest digest{};
    EXPECT_DEATH(app().SetPasswordData(QString(33, u'x'), digest), "passwordString length.<=32");
}

TEST_F(SessionLogInTest, DigestsThirtyTwoCharacters) {
    begin();
    PasswordDigest digest{};
    app().SetPasswordData(QString(32, u'x'), digest);
    SHA256 sha;
    sha.Init();
    const std::string text(32, 'x');
    const std::vector<std::uint8_t> bytes(text.begin(), text.end());
    sha.Input(bytes.data(), 32);
    PasswordDigest expected{};
    sha.Get(expected.data());
    EXPECT_EQ(digest, expected);
}

} // namespace
} // namespace zelto::test
