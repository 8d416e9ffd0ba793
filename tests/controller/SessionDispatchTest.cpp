#include "tests/controller/SessionBench.h"

namespace zelto::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class SessionDispatchTest : public SessionTest {};

TEST_F(SessionDispatchTest, ExactlyOneDriveIsOpenedWithoutASelection) {
    m_bench.plugPreparedDrive();
    m_bench.start();
    EXPECT_EQ(m_bench.visibleWindow(), "AuthenticateWindow");
    EXPECT_EQ(m_bench.app().Drives.SelectedZeltoIndex, 0);
    EXPECT_EQ(m_bench.app().Drives.CurrentUsbIntf, m_bench.app().Drives.UsbIntf[0]);
}

TEST_F(SessionDispatchTest, NoDriveOpensASelectionThatSaysSo) {
    m_bench.start();
    EXPECT_EQ(m_bench.visibleWindow(), "SelectZeltoWindow");
    EXPECT_EQ(m_bench.text("SelectZeltoComboBox"), localized("IDS_ERR_NOT_FOUND_ZELTO"));
    EXPECT_FALSE(m_bench.isEnabled("SelectZeltoComboBox"));
    EXPECT_FALSE(m_bench.isEnabled("SelectZeltoOK"));
    EXPECT_TRUE(m_bench.isEnabled("SelectZeltoUpdate"));
    m_bench.press("SelectZeltoCancel");
    EXPECT_TRUE(m_bench.hasQuit());
}

TEST_F(SessionDispatchTest, TwoDrivesAreListedFromNumberZeroAndTheFirstIsChosen) {
    m_bench.plugPreparedDrive({.serial = "ZD-A"});
    m_bench.plugPreparedDrive({.serial = "ZD-B"});
    m_bench.start();
    ASSERT_EQ(m_bench.visibleWindow(), "SelectZeltoWindow");
    const auto* box = m_bench.control<QComboBox>("SelectZeltoComboBox");
    ASSERT_EQ(box->count(), 2);
    EXPECT_EQ(box->itemText(0), QStringLiteral("Device 0"));
    EXPECT_EQ(box->itemText(1), QStringLiteral("Device 1"));
    EXPECT_EQ(box->currentIndex(), 0);
    EXPECT_TRUE(m_bench.isEnabled("SelectZeltoOK"));
    EXPECT_FALSE(m_bench.isEnabled("SelectZeltoUpdate"));
}

TEST_F(SessionDispatchTest, TheChosenDriveIsTheOneThatIsTalkedTo) {
    m_bench.plugPreparedDrive({.serial = "ZD-A"});
    m_bench.plugPreparedDrive({.serial = "ZD-B"});
    m_bench.start();
    m_bench.computer.log.clear();
    m_bench.person.choose("SelectZeltoComboBox", 1);
    m_bench.press("SelectZeltoOK");
    EXPECT_EQ(m_bench.visibleWindow(), "AuthenticateWindow");
    logInWith("first");
    m_bench.press("UnlockingLogOff");
    for (const auto& line : m_bench.computer.log.lines()) {
        if (line.kind == simulator::LogLine::Kind::Command) {
            EXPECT_EQ(line.serial, "ZD-B") << line.text;
        }
    }
}

TEST_F(SessionDispatchTest, UpdateShowsDrivesThatHaveArrivedAndIsThenOff) {
    m_bench.start();
    m_bench.plugPreparedDrive();
    m_bench.computer.settle();
    m_bench.press("SelectZeltoUpdate");
    EXPECT_EQ(m_bench.text("SelectZeltoComboBox"), QStringLiteral("Device 0"));
    EXPECT_TRUE(m_bench.isEnabled("SelectZeltoOK"));
    EXPECT_FALSE(m_bench.isEnabled("SelectZeltoUpdate"));
    m_bench.press("SelectZeltoOK");
    EXPECT_EQ(m_bench.visibleWindow(), "AuthenticateWindow");
}

TEST_F(SessionDispatchTest, NineDrivesAreListedAsEight) {
    for (int number = 1; number <= 9; ++number) {
        m_bench.plugPreparedDrive({.serial = "ZD-" + std::to_string(number)});
    }
    m_bench.start();
    EXPECT_EQ(m_bench.control<QComboBox>("SelectZeltoComboBox")->count(), 8);
    EXPECT_EQ(m_bench.app().Drives.DevCnt, 8);
    EXPECT_EQ(m_bench.app().Drives.Opened.size(), 9U) << "the ninth stays open";
}

TEST_F(SessionDispatchTest, AComputerWithoutUsbShowsAnEmptySelection) {
    m_bench.computer.usb.setHasService(false);
    m_bench.start();
    EXPECT_EQ(m_bench.visibleWindow(), "SelectZeltoWindow");
    EXPECT_FALSE(m_bench.isEnabled("SelectZeltoOK"));
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
        m_bench.plugPreparedDrive();
        m_bench.start();
        EXPECT_EQ(m_bench.visibleWindow(), "");
        EXPECT_THAT(alerts(), IsEmpty());
        EXPECT_FALSE(m_bench.hasQuit());
        m_bench.computer.unplug(m_bench.computer.usb.attachments().front()->device);
    }
}

TEST_F(SessionDispatchTest, AnUnreadableStatusCountsAsNoPassword) {
    forge(StatusRequestCode, [](ForgedReplies::Reply& reply) {
        std::ranges::fill(reply.data, 0);
        reply.result = kIOReturnTimeout;
    });
    m_bench.plugPreparedDrive();
    m_bench.start();
    EXPECT_EQ(m_bench.visibleWindow(), "MainSettingsWindow");
}

// --- Full lock ---------------------------------------------------------------------------------

class FullLockTest : public SessionTest {
protected:
    /// A drive whose auto clear has run out: locked for good, its clock valid.
    void plugExpiredDrive() {
        m_bench.plugPreparedDrive({.autoClearSeconds = 60});
        m_bench.computer.skip(std::chrono::seconds(61));
    }
    /// A drive that has lost its clock while its auto clear was running.
    ControllerBench::Drive plugDriveWithLostClock() {
        auto drive = m_bench.plugPreparedDrive({.autoClearSeconds = 86400});
        drive->drive().loseClock(m_bench.computer.clock.worldTime());
        return drive;
    }
};

TEST_F(FullLockTest, WithAValidClockTheDriveIsLostAndTheSettingsOpen) {
    plugExpiredDrive();
    m_bench.start();
    EXPECT_THAT(alerts(), ElementsAre(localized("IDS_ERR_ZELTO_DRIVE_LOST")));
    EXPECT_EQ(m_bench.visibleWindow(), "MainSettingsWindow");
    EXPECT_FALSE(m_bench.hasQuit());
}

TEST_F(FullLockTest, WithAnInvalidClockTheUserIsAskedWithTheComputersLocalTime) {
    plugDriveWithLostClock();
    m_bench.computer.clock.setUtcOffset(std::chrono::hours(9));
    m_bench.alerts.answer(AlertButton::Alternate);
    m_bench.start();
    ASSERT_EQ(m_bench.alerts.panels().size(), 1U);
    const AlertPanel& panel = m_bench.alerts.panels().front();
    EXPECT_EQ(panel.title, localized("IDS_APP_TITLE"));
    EXPECT_EQ(panel.message,
              localized("IDS_FULLLOCK_TIME_STATUS_INVALID", QStringLiteral("2026/03/02 18:30")));
    EXPECT_EQ(panel.defaultButton, localized("OK"));
    EXPECT_EQ(panel.alternateButton, localized("IDS_CANCEL_BUTTON"));
    EXPECT_EQ(panel.onEscape, AlertButton::Alternate);
}

TEST_F(FullLockTest, CancellingEndsTheApplicationWithoutTouchingTheDrive) {
    plugDriveWithLostClock();
    m_bench.alerts.answer(AlertButton::Alternate);
    m_bench.start();
    EXPECT_TRUE(m_bench.hasQuit());
    EXPECT_THAT(m_bench.commands(), Not(Contains("TKVR21_ZELTO_SetCurrentTime")));
}

TEST_F(FullLockTest, SettingTheClockIsConfirmedAndEndsTheApplication) {
    const auto drive = plugDriveWithLostClock();
    m_bench.alerts.answer(AlertButton::Default);
    m_bench.start();
    EXPECT_EQ(alerts().back(), localized("IDS_SET_CURRENT_YIME"));
    EXPECT_TRUE(m_bench.hasQuit());
    EXPECT_EQ(drive->drive().state(m_bench.computer.clock.worldTime()), SecurityState::StateLocked);
    EXPECT_EQ(m_bench.computer.log.latest("TKVR21_ZELTO_SetCurrentTime")->data,
              (std::vector<std::uint8_t>{0x07, 0xEA, 3, 2, 9, 30, 0}))
        << "UTC, big-endian";
}

TEST_F(FullLockTest, AFailureToSetTheClockIsReportedAndEndsTheApplication) {
    plugDriveWithLostClock();
    forgeResult(SetClockCode, kIOReturnNoDevice);
    m_bench.start();
    EXPECT_EQ(alerts().back(), localized("IDS_ERR_NOT_FOUND_ZELTO"));
    EXPECT_TRUE(m_bench.hasQuit());
}

TEST_F(FullLockTest, AnUnreadableTimeStatusShowsNothing) {
    plugExpiredDrive();
    forgeResult(TimeRequestCode, kIOReturnTimeout);
    m_bench.start();
    EXPECT_THAT(alerts(), IsEmpty());
    EXPECT_EQ(m_bench.visibleWindow(), "");
    EXPECT_FALSE(m_bench.hasQuit());
}

} // namespace
} // namespace zelto::test
