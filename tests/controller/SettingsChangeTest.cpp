#include "tests/support/SettingsBench.h"

namespace zelto::test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

using Commands = std::vector<std::string>;

class ChangeSettings : public SettingsBench {
protected:
    struct Passwords {
        const char* current1 = "first";
        const char* new1 = "newFirst";
        const char* current2 = "second";
        const char* new2 = "newSecond";
    };

    void changePasswords(const Passwords& passwords, bool two = false) {
        inDialog("PasswordSettingsButton", "PasswordChangeWindow", [&] {
            type("PC_Current1stPasswordText", passwords.current1);
            type("PC_New1stPasswordText", passwords.new1);
            type("PC_AgainNew1stPasswordText", passwords.new1);
            if (two) {
                type("PC_Current2ndPasswordText", passwords.current2);
                type("PC_New2ndPasswordText", passwords.new2);
                type("PC_AgainNew2ndPasswordText", passwords.new2);
                type("PC_2ndPasswordNumberOfTrials", "5");
            }
            press("PC_OKButton");
        });
    }
};

TEST_F(ChangeSettings, ADriveThatWasSetUpShowsItsSettings) {
    const Wishes wishes{.autoClearDays = "2", .autoLogOffMinutes = "30"};
    begin();
    ASSERT_NO_FATAL_FAILURE(setUpAndStartAgain(wishes));
    openSettingsAfterLogIn(wishes);
    EXPECT_FALSE(app().Settings.InitialSetting);
    EXPECT_TRUE(app().Settings.SecureAreaAlreadyExist);
    EXPECT_FALSE(isEnabled("AreaSettingsButton"));
    EXPECT_EQ(text("TotalCapacityText"), localized("IDS_TOTAL_CAPACITY", 128));
    EXPECT_EQ(text("FreeCapacityText"), localized("IDS_FREE_CAPACITY", 48));
    EXPECT_TRUE(isEnabled("PasswordSettingsButton"));
    EXPECT_FALSE(isEnabled("EncryptionKeyAutoManualSelectRadioButton"));
    EXPECT_FALSE(isEnabled("EncryptionKeyButton"));
    EXPECT_EQ(control<RadioMatrix>("EncryptionKeyAutoManualSelectRadioButton")->selectedTag(), 0);
    EXPECT_TRUE(isEnabled("EraseEncryptionKeyButton"));
    EXPECT_TRUE(isChecked("AutoClearEnabledCheckBox"));
    EXPECT_EQ(control<RadioMatrix>("AutoClearDaysOrMinutesRadioButton")->selectedTag(), 0);
    EXPECT_EQ(text("AutoClearText"), QStringLiteral("2"));
    EXPECT_TRUE(isChecked("AutoLogOffEnabledCheckBox"));
    EXPECT_EQ(text("AutoLogOffText"), QStringLiteral("30"));
    EXPECT_FALSE(okIsEnabled());
    EXPECT_EQ(app().numberOfRowsInTableView(), 2);
}

TEST_F(ChangeSettings, PeriodsThatAreOffLeaveTheirControlsDisabled) {
    const Wishes wishes{.key = QStringLiteral("0A")};
    begin();
    ASSERT_NO_FATAL_FAILURE(setUpAndStartAgain(wishes));
    openSettingsAfterLogIn(wishes);
    EXPECT_TRUE(isEnabled("AutoClearEnabledCheckBox"));
    EXPECT_FALSE(isChecked("AutoClearEnabledCheckBox"));
    EXPECT_FALSE(isEnabled("AutoClearText"));
    EXPECT_FALSE(isEnabled("AutoClearDaysOrMinutesRadioButton"));
    EXPECT_FALSE(isEnabled("AutoLogOffText"));
    EXPECT_EQ(control<RadioMatrix>("EncryptionKeyAutoManualSelectRadioButton")->selectedTag(), 1);
}

TEST_F(ChangeSettings, TheRemainingTimeBoxAloneIsCommittedWithBothPeriodsAndQuits) {
    beginWithSettingsOf({.autoClearDays = "2", .autoLogOffMinutes = "30"});
    press("ShowRemainingTimeCheckBox");
    ASSERT_TRUE(okIsEnabled());
    commit();
    EXPECT_EQ(commands(), (Commands{"TKVR21_ZELTO_SetErasePeriod", "TKVR21_ZELTO_SetIdleLockPeriod",
                                    "TKVR21_ZELTO_WriteHintData"}));
    EXPECT_EQ(latest("TKVR21_ZELTO_SetErasePeriod").setup.wValue, 172800 & 0xFFFF);
    EXPECT_EQ(latest("TKVR21_ZELTO_SetIdleLockPeriod").setup.wValue, 1800);
    EXPECT_THAT(latest("TKVR21_ZELTO_WriteHintData").data, ElementsAre(1));
    EXPECT_TRUE(hasQuit());
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(ChangeSettings, AnUncheckedAutoClearIsSentAsZero) {
    beginWithSettingsOf({.autoClearDays = "2"});
    press("AutoClearEnabledCheckBox");
    // Whatever the text holds.
    control<QLineEdit>("AutoClearText")->setText(QStringLiteral("7"));
    commit();
    EXPECT_EQ(latest("TKVR21_ZELTO_SetErasePeriod").setup.wValue, 0);
    EXPECT_EQ(latest("TKVR21_ZELTO_SetErasePeriod").setup.wIndex, 0);
}

TEST_F(ChangeSettings, CancelQuitsWithoutACommand) {
    beginWithSettingsOf({});
    press("MainSettingsCancelButton");
    EXPECT_TRUE(hasQuit());
    EXPECT_THAT(commands(), IsEmpty());
}

TEST_F(ChangeSettings, ClosingTheWindowIsCancelling) {
    beginWithSettingsOf({});
    app().MainSettingsWindow->reject();
    EXPECT_TRUE(hasQuit());
    EXPECT_THAT(commands(), IsEmpty());
}

TEST_F(ChangeSettings, OnePasswordIsChangedByOneRecord) {
    beginWithSettingsOf({});
    changePasswords({});
    ASSERT_TRUE(okIsEnabled());
    commit();
    const auto records = all("TKVR21_SetAuthInfo");
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].data.size(), 72u);
    EXPECT_EQ(records[0].data[0], 0x06);
    EXPECT_EQ(records[0].data[4], 0);
    EXPECT_EQ(records[0].setup.wValue, 0);
    EXPECT_TRUE(hasQuit());
    EXPECT_TRUE(app().Settings.PasswordSettingsParameters.strNew1stPassword.isEmpty());
    EXPECT_TRUE(app().Settings.PasswordSettingsParameters.strCurrent1stPassword.isEmpty());

    computer.replug(drive);
    startAgain();
    logIn(QStringLiteral("newFirst"));
    EXPECT_EQ(driveState(), SecurityState::StateUnlocking);
}

TEST_F(ChangeSettings, TwoPasswordsAreChangedByTwoRecords) {
    beginWithSettingsOf({.twoPasswords = true});
    EXPECT_TRUE(app().Settings.PasswordSettingsParameters.Use1stAnd2ndPassword);
    changePasswords({}, true);
    commit();
    const auto records = all("TKVR21_SetAuthInfo");
    ASSERT_EQ(records.size(), 2u);
    EXPECT_EQ(records[0].data.size(), 72u);
    EXPECT_EQ(records[0].data[0], 0x06);
    EXPECT_EQ(records[0].data[4], 5);
    EXPECT_EQ(records[1].data.size(), 104u);
    EXPECT_EQ(records[1].data[0], 0x0F);
    EXPECT_EQ(records[1].data[4], 0);
    EXPECT_THAT(messages(), IsEmpty());

    computer.replug(drive);
    startAgain();
    logIn(QStringLiteral("newFirst"));
    logIn(QStringLiteral("newSecond"));
    EXPECT_EQ(driveState(), SecurityState::StateUnlocking);
}

TEST_F(ChangeSettings, AWrongCurrentFirstPasswordIsToldAfterAPauseAndTheWindowStays) {
    beginWithSettingsOf({});
    changePasswords({.current1 = "wrong"});
    commit();
    EXPECT_EQ(commands(), (Commands{"TKVR21_SetAuthInfo", "TKVR21_GetDeviceStatus"}));
    EXPECT_EQ(computer.log.count("sleep 1"), 1u);
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_CURRENT_1ST_PASSWORD_INVALID")));
    EXPECT_FALSE(hasQuit());
    EXPECT_TRUE(okIsEnabled());
    EXPECT_TRUE(app().MainSettingsWindow->isVisible());

    // What was typed is still there; the user corrects one field and tries again.
    alerts.clear();
    inDialog("PasswordSettingsButton", "PasswordChangeWindow", [&] {
        EXPECT_EQ(text("PC_New1stPasswordText"), QStringLiteral("newFirst"));
        type("PC_Current1stPasswordText", "first");
        press("PC_OKButton");
    });
    commit();
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_TRUE(hasQuit());
}

TEST_F(ChangeSettings, AWrongCurrentSecondPasswordChangesNothing) {
    beginWithSettingsOf({.twoPasswords = true});
    changePasswords({.current2 = "wrong"}, true);
    commit();
    EXPECT_EQ(commands(), (Commands{"TKVR21_SetAuthInfo", "TKVR21_GetDeviceStatus"}));
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_CURRENT_2ND_PASSWORD_INVALID")));
}

TEST_F(ChangeSettings, AWrongFirstPasswordLeavesTheSecondOneChanged) {
    beginWithSettingsOf({.twoPasswords = true});
    const auto before = drive->drive().model().remembered();
    changePasswords({.current1 = "wrong"}, true);
    commit();
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_CURRENT_1ST_PASSWORD_INVALID")));
    const auto& after = drive->drive().model().remembered();
    EXPECT_TRUE(after.secondPassword != before.secondPassword);
    EXPECT_TRUE(after.firstPassword == before.firstPassword);
}

TEST_F(ChangeSettings, ARecordRefusedForAnotherReasonIsReportedWithItsSense) {
    beginWithSettingsOf({});
    changePasswords({});
    failCommand("TKVR21_SetAuthInfo",
                {.kind = Fault::Kind::FailsBefore, .result = kIOReturnTimeout});
    commit();
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_COMMAND_FAIL_WITH_SENSE_INFO", 0, 0, 0)));
    EXPECT_TRUE(okIsEnabled());
}

TEST_F(ChangeSettings, ADriveThatIsGoneIsReportedByTheStatusReadAfterTheRefusal) {
    beginWithSettingsOf({});
    changePasswords({});
    failCommand("TKVR21_SetAuthInfo", {.kind = Fault::Kind::VanishesBefore});
    commit();
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_NOT_FOUND_ZELTO")));
    EXPECT_FALSE(hasQuit());
}

TEST_F(ChangeSettings, ARefusedPeriodKeepsTheWindowOpen) {
    for (const char* command : {"TKVR21_ZELTO_SetErasePeriod", "TKVR21_ZELTO_SetIdleLockPeriod"}) {
        beginWithSettingsOf({});
        press("ShowRemainingTimeCheckBox");
        failCommand(command, {});
        commit();
        EXPECT_EQ(messages().size(), 1u);
        EXPECT_TRUE(okIsEnabled());
        EXPECT_EQ(computer.log.count("TKVR21_ZELTO_WriteHintData"), 0u);
        putAway();
    }
}

TEST_F(ChangeSettings, TextThatIsNotAPeriodKeepsOkDisabled) {
    beginWithSettingsOf({});
    press("AutoClearEnabledCheckBox");
    EXPECT_FALSE(okIsEnabled());
    for (const QString& text :
         {QStringLiteral("0"), QStringLiteral("10000"), QStringLiteral("-1"), QStringLiteral(" 1"),
          QStringLiteral("\U0001F511"), QStringLiteral("\u0661"), QString(100000, u'9')}) {
        type("AutoClearText", text);
        EXPECT_FALSE(okIsEnabled()) << text.left(20).toStdString();
    }
    type("AutoClearText", "9999");
    EXPECT_TRUE(okIsEnabled());
    press("AutoClearMinutesCell");
    EXPECT_TRUE(text("AutoClearText").isEmpty());
    EXPECT_FALSE(okIsEnabled());
    type("AutoClearText", "1000");
    EXPECT_FALSE(okIsEnabled());
    type("AutoClearText", "999");
    EXPECT_TRUE(okIsEnabled());
}

TEST_F(ChangeSettings, SwitchingAutoLogOffOffEmptiesItsTextAndOnKeepsIt) {
    beginWithSettingsOf({.autoLogOffMinutes = "30"});
    press("AutoLogOffEnabledCheckBox");
    EXPECT_TRUE(text("AutoLogOffText").isEmpty());
    EXPECT_FALSE(isEnabled("AutoLogOffText"));
    EXPECT_TRUE(okIsEnabled());
    press("AutoLogOffEnabledCheckBox");
    EXPECT_TRUE(isEnabled("AutoLogOffText"));
    EXPECT_FALSE(okIsEnabled());
}

TEST_F(ChangeSettings, OpeningTwiceInOneRunLeavesTwoItemsAndShowsTheFirst) {
    beginWithSettingsOf({});
    app().DisplayMainSettingsWindow(false);
    EXPECT_EQ(control<QComboBox>("ZeltoDriveComboBox")->count(), 2);
    EXPECT_EQ(control<QComboBox>("ZeltoDriveComboBox")->currentIndex(), 0);
}

TEST_F(ChangeSettings, AnAreaListThatCannotBeReadOpensNothing) {
    beginWithSettingsOf({});
    app().MainSettingsWindow->orderOut();
    failCommand("TKVR21_GetAreaInfos", {.kind = Fault::Kind::VanishesBefore});
    app().DisplayMainSettingsWindow(false);
    EXPECT_FALSE(app().MainSettingsWindow->isVisible());
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_NOT_FOUND_ZELTO")));
}

TEST_F(ChangeSettings, AnAreaTableShorterThanItsHeaderShowsNoRows) {
    for (std::uint8_t length = 0; length < 10; ++length) {
        drive = plugPreparedDrive({.areas = {{.mebibytes = 16}}});
        constexpr std::uint8_t AreasRequestCode = 0xC2;
        forge(AreasRequestCode, [length](ForgedReplies::Reply& reply) {
            reply.data[0] = 0;
            reply.data[1] = length;
        });
        startWithDrive();
        EXPECT_TRUE(app().MainSettingsWindow->isVisible()) << int{length};
        EXPECT_EQ(app().numberOfRowsInTableView(), 0) << int{length};
        putAway();
    }
}

TEST_F(ChangeSettings, ATimeStatusThatCannotBeReadOpensNothing) {
    beginWithSettingsOf({});
    app().MainSettingsWindow->orderOut();
    failCommand("TKVR21_ZELTO_GetTimeStatus", {});
    app().DisplayMainSettingsWindow(false);
    EXPECT_FALSE(app().MainSettingsWindow->isVisible());
    EXPECT_EQ(messages().size(), 1u);
}

TEST_F(ChangeSettings, AStatusThatCannotBeReadIsNotReported) {
    beginWithSettingsOf({});
    failCommand("TKVR21_GetDeviceStatus", {});
    app().DisplayMainSettingsWindow(false);
    EXPECT_TRUE(app().MainSettingsWindow->isVisible());
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(ChangeSettings, ADriveWithoutSecureAreaHasNothingToChangeButNothingBreaks) {
    beginWithSettingsOf({.secureDisk = 0});
    auto& main = *app().MainSettingsWindow;
    EXPECT_TRUE(main.isVisible());
    EXPECT_FALSE(app().Settings.InitialSetting);
    EXPECT_FALSE(isEnabled("PasswordSettingsButton"));
    EXPECT_FALSE(isEnabled("AutoClearEnabledCheckBox"));
    EXPECT_FALSE(isEnabled("EraseEncryptionKeyButton"));
    EXPECT_FALSE(okIsEnabled());
}

} // namespace
} // namespace zelto::test
