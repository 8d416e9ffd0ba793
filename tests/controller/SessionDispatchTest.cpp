#include "tests/controller/SessionBench.h"

namespace zelto::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class SessionDispatchTest : public SessionTest {};

TEST_F(SessionDispatchTest, ExactlyOneDriveIsOpenedWithoutASelection) {
    plugPreparedDrive();
    start();
    EXPECT_EQ(visibleWindow(), "AuthenticateWindow");
    EXPECT_EQ(app().Drives.SelectedZeltoIndex, 0);
    EXPECT_EQ(app().Drives.CurrentUsbIntf, app().Drives.UsbIntf[0]);
}

TEST_F(SessionDispatchTest, NoDriveOpensASelectionThatSaysSo) {
    start();
    EXPECT_EQ(visibleWindow(), "SelectZeltoWindow");
    EXPECT_EQ(text("SelectZeltoComboBox"), localized("IDS_ERR_NOT_FOUND_ZELTO"));
    EXPECT_FALSE(isEnabled("SelectZeltoComboBox"));
    EXPECT_FALSE(isEnabled("SelectZeltoOK"));
    EXPECT_TRUE(isEnabled("SelectZeltoUpdate"));
    press("SelectZeltoCancel");
    EXPECT_TRUE(hasQuit());
}

TEST_F(SessionDispatchTest, WithoutADriveTheFocusIsOnTheTextThatSaysWhatToDo) {
    start();
    auto* const said = control<QLabel>("SelectZeltoNoDrive");
    EXPECT_TRUE(said->isVisible());
    EXPECT_EQ(said->text(), localized("IDS_ERR_NOT_FOUND_ZELTO"));
    EXPECT_EQ(app().SelectZeltoWindow->focusWidget(), said);
    plugPreparedDrive();
    computer.settle();
    press("SelectZeltoUpdate");
    EXPECT_FALSE(said->isVisible());
    EXPECT_EQ(said->focusPolicy(), Qt::NoFocus);
}

TEST_F(SessionDispatchTest, TwoDrivesAreListedFromNumberZeroAndTheFirstIsChosen) {
    plugPreparedDrive({.serial = "ZD-A"});
    plugPreparedDrive({.serial = "ZD-B"});
    start();
    ASSERT_EQ(visibleWindow(), "SelectZeltoWindow");
    const auto* box = control<QComboBox>("SelectZeltoComboBox");
    ASSERT_EQ(box->count(), 2);
    EXPECT_EQ(box->itemText(0), QStringLiteral("Device 0"));
    EXPECT_EQ(box->itemText(1), QStringLiteral("Device 1"));
    EXPECT_EQ(box->currentIndex(), 0);
    EXPECT_TRUE(isEnabled("SelectZeltoOK"));
    EXPECT_FALSE(isEnabled("SelectZeltoUpdate"));
}

TEST_F(SessionDispatchTest, BelowTheListStandsTheSerialNumberOfTheChosenDrive) {
    plugPreparedDrive({.serial = "ZD-A"});
    plugPreparedDrive({.serial = "ZD-B"});
    start();
    EXPECT_EQ(text("SelectZeltoSign"), localized("IDS_DRIVE_SERIAL", QStringLiteral("ZD-A")));
    person.choose("SelectZeltoComboBox", 1);
    EXPECT_EQ(text("SelectZeltoSign"), localized("IDS_DRIVE_SERIAL", QStringLiteral("ZD-B")));
    EXPECT_EQ(control("SelectZeltoComboBox")->accessibleDescription(), text("SelectZeltoSign"));
}

TEST_F(SessionDispatchTest, DrivesWithOneSerialNumberAreToldApartByTheirPorts) {
    plugPreparedDrive({.serial = "ZD-A"});
    plugPreparedDrive({.serial = "ZD-A"});
    start();
    const auto shown = [this](const char* port) {
        return text("SelectZeltoSign") == localized("IDS_DRIVE_SERIAL_AND_PORT",
                                                    QStringLiteral("ZD-A"),
                                                    QString::fromLatin1(port));
    };
    EXPECT_TRUE(shown("1-1")) << text("SelectZeltoSign").toStdString();
    person.choose("SelectZeltoComboBox", 1);
    EXPECT_TRUE(shown("1-2")) << text("SelectZeltoSign").toStdString();
}

TEST_F(SessionDispatchTest, ADriveWithoutASerialNumberIsKnownByItsPort) {
    plugPreparedDrive({.serial = ""});
    plugPreparedDrive({.serial = "ZD-B"});
    start();
    EXPECT_EQ(text("SelectZeltoSign"), localized("IDS_DRIVE_PORT", QStringLiteral("1-1")));
}

TEST_F(SessionDispatchTest, WithoutADriveNoSerialNumberIsShown) {
    start();
    EXPECT_FALSE(control<QLabel>("SelectZeltoSign")->isVisible());
}

TEST_F(SessionDispatchTest, TheChosenDriveIsTheOneThatIsTalkedTo) {
    plugPreparedDrive({.serial = "ZD-A"});
    plugPreparedDrive({.serial = "ZD-B"});
    start();
    computer.log.clear();
    person.choose("SelectZeltoComboBox", 1);
    press("SelectZeltoOK");
    EXPECT_EQ(visibleWindow(), "AuthenticateWindow");
    logInWith("first");
    press("UnlockingLogOff");
    for (const auto& line : computer.log.lines()) {
        if (line.kind == simulator::LogLine::Kind::Command) {
            EXPECT_EQ(line.serial, "ZD-B") << line.text;
        }
    }
}

TEST_F(SessionDispatchTest, UpdateShowsDrivesThatHaveArrivedAndIsThenOff) {
    start();
    plugPreparedDrive();
    computer.settle();
    press("SelectZeltoUpdate");
    EXPECT_EQ(text("SelectZeltoComboBox"), QStringLiteral("Device 0"));
    EXPECT_TRUE(isEnabled("SelectZeltoOK"));
    EXPECT_FALSE(isEnabled("SelectZeltoUpdate"));
    press("SelectZeltoOK");
    EXPECT_EQ(visibleWindow(), "AuthenticateWindow");
}

TEST_F(SessionDispatchTest, NineDrivesAreListedAsEight) {
    for (int number = 1; number <= 9; ++number) {
        plugPreparedDrive({.serial = "ZD-" + std::to_string(number)});
    }
    start();
    EXPECT_EQ(control<QComboBox>("SelectZeltoComboBox")->count(), 8);
    EXPECT_EQ(app().Drives.DevCnt, 8);
    EXPECT_EQ(app().Drives.Opened.size(), 9U) << "the ninth stays open";
}

TEST_F(SessionDispatchTest, AComputerWithoutUsbShowsAnEmptySelection) {
    computer.usb.setHasService(false);
    start();
    EXPECT_EQ(visibleWindow(), "SelectZeltoWindow");
    EXPECT_FALSE(isEnabled("SelectZeltoOK"));
}

/// Which window, which prompt and which step each security byte leads to.
TEST_F(SessionDispatchTest, TheSecurityByteDecidesWindowPromptAndStep) {
    struct Row {
        int line;
        std::uint8_t security;
        const char* window;
        const char* promptKey;
        int textInputMode;
    };
    const Row rows[] = {
        {__LINE__, 0x02, "AuthenticateWindow", "IDS_ENTER_1ST_PASSWORD", 2},
        {__LINE__, 0x42, "AuthenticateWindow", "IDS_ENTER_1ST_PASSWORD", 2},
        {__LINE__, 0x03, "AuthenticateWindow", "IDS_ENTER_1ST_PASSWORD", 1},
        {__LINE__, 0x43, "AuthenticateWindow", "IDS_ENTER_2ND_PASSWORD", 1},
        {__LINE__, 0xC3, "AuthenticateWindow", "IDS_ENTER_2ND_PASSWORD", 1},
        {__LINE__, 0x04, "UnlockingWindow", nullptr, 0},
        {__LINE__, 0xC4, "UnlockingWindow", nullptr, 0},
        {__LINE__, 0x00, "MainSettingsWindow", nullptr, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.line);
        ControllerBench bench;
        bench.forge(StatusRequestCode,
                    [&row](ForgedReplies::Reply& reply) { reply.data[33] = row.security; });
        bench.plugPreparedDrive();
        bench.start();
        EXPECT_EQ(bench.visibleWindow(), row.window);
        EXPECT_EQ(bench.app().TextInputMode, row.textInputMode);
        if (row.promptKey != nullptr) {
            EXPECT_EQ(bench.text("AuthenticateMessage"), localized(row.promptKey));
        }
    }
}

TEST_F(SessionDispatchTest, StatesOneSixAndSevenOpenNothingAndSayNothing) {
    for (const std::uint8_t state : {std::uint8_t{1}, std::uint8_t{6}, std::uint8_t{7}}) {
        SCOPED_TRACE(int(state));
        forgeSecurityByte(state);
        plugPreparedDrive();
        start();
        EXPECT_EQ(visibleWindow(), "");
        EXPECT_THAT(messages(), IsEmpty());
        EXPECT_FALSE(hasQuit());
        computer.unplug(computer.usb.attachments().front()->device);
    }
}

TEST_F(SessionDispatchTest, AnUnreadableStatusCountsAsNoPassword) {
    forge(StatusRequestCode, [](ForgedReplies::Reply& reply) {
        std::ranges::fill(reply.data, 0);
        reply.result = kIOReturnTimeout;
    });
    plugPreparedDrive();
    start();
    EXPECT_EQ(visibleWindow(), "MainSettingsWindow");
}

// --- Full lock ---------------------------------------------------------------------------------

class FullLockTest : public SessionTest {
protected:
    /// A drive whose auto clear has run out: locked for good, its clock valid.
    void plugExpiredDrive() {
        plugPreparedDrive({.autoClearSeconds = 60});
        computer.skip(std::chrono::seconds(61));
    }
    /// A drive that has lost its clock while its auto clear was running.
    ControllerBench::Drive plugDriveWithLostClock() {
        auto drive = plugPreparedDrive({.autoClearSeconds = 86400});
        drive->drive().loseClock(computer.clock.worldTime());
        return drive;
    }
};

TEST_F(FullLockTest, WithAValidClockTheDriveIsLostAndTheSettingsOpen) {
    plugExpiredDrive();
    start();
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_ZELTO_DRIVE_LOST")));
    EXPECT_EQ(visibleWindow(), "MainSettingsWindow");
    EXPECT_FALSE(hasQuit());
}

TEST_F(FullLockTest, WithAnInvalidClockTheUserIsAskedWithTheComputersLocalTime) {
    plugDriveWithLostClock();
    computer.clock.setUtcOffset(std::chrono::hours(9));
    alerts.answer(AlertButton::Alternate);
    start();
    ASSERT_EQ(alerts.panels().size(), 1U);
    const AlertPanel& panel = alerts.panels().front();
    EXPECT_EQ(panel.title, localized("IDS_APP_TITLE"));
    EXPECT_EQ(panel.message,
              localized("IDS_FULLLOCK_TIME_STATUS_INVALID", QStringLiteral("2026/03/02 18:30")));
    EXPECT_EQ(panel.defaultButton, localized("OK"));
    EXPECT_EQ(panel.alternateButton, localized("IDS_CANCEL_BUTTON"));
    EXPECT_EQ(panel.onEscape, AlertButton::Alternate);
}

TEST_F(FullLockTest, CancellingEndsTheApplicationWithoutTouchingTheDrive) {
    plugDriveWithLostClock();
    alerts.answer(AlertButton::Alternate);
    start();
    EXPECT_TRUE(hasQuit());
    EXPECT_THAT(commands(), Not(Contains("TKVR21_ZELTO_SetCurrentTime")));
}

TEST_F(FullLockTest, SettingTheClockIsConfirmedAndEndsTheApplication) {
    const auto drive = plugDriveWithLostClock();
    alerts.answer(AlertButton::Default);
    start();
    EXPECT_EQ(messages().back(), localized("IDS_SET_CURRENT_YIME"));
    EXPECT_TRUE(hasQuit());
    EXPECT_EQ(drive->drive().state(computer.clock.worldTime()), SecurityState::StateLocked);
    EXPECT_EQ(computer.log.latest("TKVR21_ZELTO_SetCurrentTime")->data,
              (std::vector<std::uint8_t>{0x07, 0xEA, 3, 2, 9, 30, 0}))
        << "UTC, big-endian";
}

TEST_F(FullLockTest, AFailureToSetTheClockIsReportedAndEndsTheApplication) {
    plugDriveWithLostClock();
    forgeResult(SetClockCode, kIOReturnNoDevice);
    start();
    EXPECT_EQ(messages().back(), localized("IDS_ERR_NOT_FOUND_ZELTO"));
    EXPECT_TRUE(hasQuit());
}

TEST_F(FullLockTest, AnUnreadableTimeStatusShowsNothingAndQuits) {
    plugExpiredDrive();
    forgeResult(TimeRequestCode, kIOReturnTimeout);
    start();
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ(visibleWindow(), "");
    EXPECT_TRUE(hasQuit());
}

} // namespace
} // namespace zelto::test
