#include "tests/controller/SessionBench.h"

namespace zelto::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class SessionTimerTest : public SessionTest {
protected:
    /// Makes the drive's time status read so.
    void forgeTime(const TimeStatus& status) {
        forge(TimeRequestCode, [status](ForgedReplies::Reply& reply) {
            std::ranges::copy(encodeTimeStatus(status), reply.data.begin());
        });
    }
    [[nodiscard]] QString driveTime() { return text("DeviceTimeText"); }
    [[nodiscard]] QString loginDriveTime() { return text("AuthenticateDeviceTimeText"); }
    [[nodiscard]] QString remaining() { return text("AuthenticateRemainingTimeText"); }
};

TEST_F(SessionTimerTest, TicksShowTheComputersLocalTimeEvenWithoutADrive) {
    m_bench.computer.clock.setUtcOffset(std::chrono::hours(-5));
    m_bench.start();
    m_bench.tick();
    EXPECT_EQ(text("PCTimeText"), QStringLiteral("2026/03/02 04:30:01"));
    EXPECT_THAT(m_bench.commands(), IsEmpty());
}

TEST_F(SessionTimerTest, TheDrivesUtcTimeIsShownInLocalTimeOnBothWindows) {
    forgeTime({.clock = {.year = 2026, .month = 1, .day = 1, .hour = 0, .minute = 30}});
    m_bench.computer.clock.setUtcOffset(std::chrono::hours(9));
    m_bench.plugPreparedDrive();
    m_bench.start();
    m_bench.tick();
    EXPECT_EQ(driveTime(), QStringLiteral("2026/01/01 09:30:00"));
    EXPECT_EQ(loginDriveTime(), QStringLiteral("2026/01/01 09:30:00"));
    EXPECT_FALSE(m_bench.app().TimeStatusInvalid);
}

TEST_F(SessionTimerTest, TheOffsetIsTheOneInForceAtTheDrivesTime) {
    forgeTime({.clock = {.year = 2026, .month = 7, .day = 1, .hour = 12}});
    m_bench.computer.clock.setZone([](std::chrono::sys_seconds moment) {
        using namespace std::chrono;
        return moment < sys_days{2026y / March / 29} ? hours(1) : hours(2);
    });
    m_bench.plugPreparedDrive();
    m_bench.start();
    m_bench.tick();
    EXPECT_EQ(driveTime(), QStringLiteral("2026/07/01 14:00:00"));
}

TEST_F(SessionTimerTest, AnInvalidClockIsSaidInPlaceOfItsDateAndRemembered) {
    forgeTime({.clockNotValid = true,
               .clock = {.year = 2026, .month = 1, .day = 1, .hour = 0, .minute = 30}});
    m_bench.plugPreparedDrive();
    m_bench.start();
    m_bench.tick();
    EXPECT_EQ(loginDriveTime(), localized("IDS_ERR_TIME_STATUS_INVALID"));
    EXPECT_TRUE(m_bench.app().TimeStatusInvalid);
    forgeTime({.clock = {.year = 2026, .month = 1, .day = 1}});
    m_bench.tick();
    EXPECT_TRUE(m_bench.app().TimeStatusInvalid) << "for the rest of the run";
}

TEST_F(SessionTimerTest, ADateThatDoesNotExistIsNotShown) {
    forgeTime({.clock = {.year = 65535, .month = 13, .day = 32, .hour = 25}});
    m_bench.plugPreparedDrive();
    m_bench.start();
    m_bench.tick();
    EXPECT_EQ(loginDriveTime(), localized("IDS_ERR_TIME_STATUS_INVALID"));
    EXPECT_FALSE(m_bench.app().TimeStatusInvalid);
}

TEST_F(SessionTimerTest, AnUnreadableTimeStatusLeavesTheLastTextsWithoutAWord) {
    const auto drive = m_bench.plugPreparedDrive();
    m_bench.start();
    m_bench.tick();
    const QString before = loginDriveTime();
    ASSERT_NE(before, QString());
    m_bench.unplug(drive);
    m_bench.tick(5);
    EXPECT_EQ(loginDriveTime(), before);
    EXPECT_THAT(alerts(), IsEmpty());
    EXPECT_FALSE(m_bench.hasQuit());
}

TEST_F(SessionTimerTest, TheRemainingTimeLeavesOutHoursThatAreNone) {
    forgeTime({.autoClearElapsed = 100, .autoClearPeriod = 90061});
    m_bench.plugPreparedDrive({.showsRemainingTime = true});
    m_bench.start();
    m_bench.tick();
    EXPECT_EQ(remaining(), QStringLiteral("1 ") + localized("IDS_DAYS") + QStringLiteral(" 59 ") +
                               localized("IDS_MIN"));
}

TEST_F(SessionTimerTest, TheRemainingTimeIsShownThoughTheClockIsInvalid) {
    forgeTime({.clockNotValid = true, .autoClearElapsed = 200, .autoClearPeriod = 100});
    m_bench.plugPreparedDrive({.showsRemainingTime = true});
    m_bench.start();
    m_bench.tick();
    EXPECT_EQ(remaining(), QStringLiteral("0 ") + localized("IDS_MIN"));
}

TEST_F(SessionTimerTest, AnExpiredPeriodIsSaidWhateverTheCountersSay) {
    forgeTime({.autoClearExpired = true, .autoClearElapsed = 1, .autoClearPeriod = 90061});
    m_bench.plugPreparedDrive({.showsRemainingTime = true});
    m_bench.start();
    m_bench.tick();
    EXPECT_EQ(remaining(), localized("IDS_EXPIRED"));
}

// --- Setting the drive's clock -----------------------------------------------------------------

class SetClockTest : public SessionTimerTest {
protected:
    void beginInSettings(const simulator::DriveSetup& setup) {
        m_bench.plugPreparedDrive(setup);
        m_bench.start();
        logInWith("first");
        m_bench.press("UnlockingSetup");
        m_bench.tick();
    }
};

TEST_F(SetClockTest, SetsUtcWhateverTheZone) {
    m_bench.computer.clock.setUtcOffset(std::chrono::hours(9));
    beginInSettings({});
    m_bench.press("MainSettingsSetTimeButton");
    EXPECT_EQ(m_bench.computer.log.latest("TKVR21_ZELTO_SetCurrentTime")->data,
              (std::vector<std::uint8_t>{0x07, 0xEA, 3, 2, 9, 30, 1}));
}

TEST_F(SetClockTest, AClockThatWasValidIsSetWithoutAWord) {
    beginInSettings({});
    m_bench.press("MainSettingsSetTimeButton");
    EXPECT_THAT(alerts(), IsEmpty());
    EXPECT_FALSE(m_bench.hasQuit());
}

TEST_F(SetClockTest, AClockThatWasInvalidIsConfirmedAndEndsTheApplication) {
    beginInSettings({.clockIsSet = false});
    m_bench.press("MainSettingsSetTimeButton");
    EXPECT_THAT(alerts(), ElementsAre(localized("IDS_TIME_SYNC_COMPLETE")));
    EXPECT_TRUE(m_bench.hasQuit());
}

TEST_F(SetClockTest, AFailureIsReportedAndTheApplicationStays) {
    forgeResult(SetClockCode, kIOReturnNoDevice);
    beginInSettings({.clockIsSet = false});
    m_bench.press("MainSettingsSetTimeButton");
    EXPECT_THAT(alerts(), ElementsAre(localized("IDS_ERR_NOT_FOUND_ZELTO")));
    EXPECT_FALSE(m_bench.hasQuit());
}

// --- The show-remaining-time choice ------------------------------------------------------------

TEST_F(SetClockTest, AHintByteWithOtherBitsIsShownAsCheckedAndWrittenBackAsOne) {
    forge(HintReadCode, [](ForgedReplies::Reply& reply) { reply.data[0] = 0x03; });
    beginInSettings({});
    EXPECT_TRUE(m_bench.person.isChecked("ShowRemainingTimeCheckBox"));
    m_bench.app().UpdateUserDefaultsShowRemainingTime();
    const auto* write = m_bench.computer.log.latest("TKVR21_ZELTO_WriteHintData");
    ASSERT_NE(write, nullptr);
    EXPECT_EQ(write->data, std::vector<std::uint8_t>{0x01});
    EXPECT_EQ(write->setup.wIndex, 0x0FFF);
    EXPECT_EQ(write->setup.wValue, 1);
}

TEST_F(SetClockTest, AHintByteThatCannotBeReadIsShownAsNotChecked) {
    forgeResult(HintReadCode, kIOUSBPipeStalled);
    beginInSettings({.showsRemainingTime = true});
    EXPECT_FALSE(m_bench.person.isChecked("ShowRemainingTimeCheckBox"));
    EXPECT_TRUE(m_bench.isEnabled("ShowRemainingTimeCheckBox"));
}

// --- Reporting ---------------------------------------------------------------------------------

TEST_F(SessionTimerTest, ADriveThatIsGoneIsReportedWithoutAStatusRead) {
    m_bench.plugPreparedDrive();
    m_bench.start();
    m_bench.computer.log.clear();
    m_bench.app().ErrorMessageBox(kIOReturnNoDevice);
    EXPECT_THAT(alerts(), ElementsAre(localized("IDS_ERR_NOT_FOUND_ZELTO")));
    EXPECT_THAT(m_bench.commands(), IsEmpty());
}

TEST_F(SessionTimerTest, AnyOtherFailureIsReportedWithTheDrivesSenseBytes) {
    forge(StatusRequestCode, [](ForgedReplies::Reply& reply) {
        reply.data[13] = 5;
        reply.data[14] = 0x24;
        reply.data[15] = 0;
    });
    m_bench.plugPreparedDrive();
    m_bench.start();
    m_bench.app().ErrorMessageBox(kIOReturnTimeout);
    EXPECT_THAT(alerts(), ElementsAre(localized("IDS_COMMAND_FAIL_WITH_SENSE_INFO", 5, 36, 0)));
    EXPECT_EQ(m_bench.alerts.panels().front().title, localized("IDS_APP_TITLE"));
    EXPECT_EQ(m_bench.alerts.panels().front().defaultButton, localized("OK"));
}

TEST_F(SessionTimerTest, AnUnreadableStatusIsReportedWithoutNumbers) {
    const auto drive = m_bench.plugPreparedDrive();
    m_bench.start();
    m_bench.unplug(drive);
    m_bench.app().ErrorMessageBox(kIOUSBPipeStalled);
    EXPECT_THAT(alerts(), ElementsAre(localized("IDS_COMMAND_FAIL")));
}

// --- Events while the program is busy ----------------------------------------------------------

TEST_F(SessionTimerTest, NoTickRunsInsideAnAlertAndOneFollowsIt) {
    m_bench.plugPreparedDrive();
    m_bench.start();
    std::size_t readsInside = 0;
    m_bench.alerts.answer(AlertButton::Default, [&](const AlertPanel&) {
        m_bench.computer.log.clear();
        m_bench.tick(5);
        readsInside = m_bench.computer.log.count("TKVR21_ZELTO_GetTimeStatus");
    });
    logInWith("wrong");
    EXPECT_EQ(readsInside, 0U);
    m_bench.computer.settle();
    EXPECT_EQ(m_bench.computer.log.count("TKVR21_ZELTO_GetTimeStatus"), 1U)
        << "made up for once, not five times";
}

TEST_F(SessionTimerTest, ADriveThatArrivesDuringAnAlertIsListedAfterIt) {
    m_bench.plugPreparedDrive({.serial = "ZD-A"});
    m_bench.start();
    int countInside = 0;
    m_bench.alerts.answer(AlertButton::Default, [&](const AlertPanel&) {
        m_bench.plugPreparedDrive({.serial = "ZD-B"});
        m_bench.computer.settle();
        countInside = m_bench.app().Drives.DevCnt;
    });
    logInWith("wrong");
    EXPECT_EQ(countInside, 1);
    m_bench.computer.settle();
    EXPECT_EQ(m_bench.app().Drives.DevCnt, 2);
}

TEST_F(SessionTimerTest, AnAlertNeverOpensOverAnother) {
    const auto drive = m_bench.plugPreparedDrive({.showsRemainingTime = true});
    m_bench.start();
    int most = 0;
    m_bench.alerts.setWhileOpen([&](const AlertPanel&) {
        m_bench.unplug(drive);
        m_bench.tick(3);
        most = std::max(most, m_bench.alerts.open());
    });
    logInWith("wrong");
    EXPECT_EQ(most, 1);
}

TEST_F(SessionTimerTest, NothingTicksOnceTheApplicationHasAgreedToQuit) {
    m_bench.plugPreparedDrive();
    m_bench.start();
    m_bench.press("AuthenticateCancel");
    m_bench.computer.log.clear();
    m_bench.tick(3);
    EXPECT_THAT(m_bench.computer.log.lines(), IsEmpty());
}

// --- Hot-plug ----------------------------------------------------------------------------------

TEST_F(SessionTimerTest, ADriveThatComesBackUnaskedIsListedAgainWhileTheOldHandleStaysChosen) {
    const auto drive = m_bench.plugPreparedDrive();
    m_bench.start();
    auto* chosen = m_bench.app().Drives.CurrentUsbIntf;
    m_bench.replug(drive);
    m_bench.computer.settle();
    EXPECT_EQ(m_bench.app().Drives.DevCnt, 2);
    EXPECT_EQ(m_bench.app().Drives.CurrentUsbIntf, chosen);
    logInWith("first");
    EXPECT_THAT(alerts(), ElementsAre(localized("IDS_ERR_NOT_FOUND_ZELTO")));
}

TEST_F(SessionTimerTest, AnAwaitedDriveIsRecognisedByItsSerialNumberEvenAsTheNinth) {
    for (int number = 1; number <= 7; ++number) {
        m_bench.plugPreparedDrive({.serial = "ZD-" + std::to_string(number)});
    }
    const auto awaited = m_bench.plugPreparedDrive({.serial = "ZD-AWAITED"});
    m_bench.start();
    auto& drives = m_bench.app().Drives;
    m_bench.person.choose("SelectZeltoComboBox", 7);
    m_bench.press("SelectZeltoOK");
    drives.WaitReconnectZelto = true;
    m_bench.plugPreparedDrive({.serial = "ZD-STRANGER"});
    m_bench.computer.settle();
    EXPECT_TRUE(drives.WaitReconnectZelto) << "another drive is only listed";
    auto* before = drives.CurrentUsbIntf;
    m_bench.replug(awaited);
    m_bench.computer.settle();
    EXPECT_FALSE(drives.WaitReconnectZelto);
    EXPECT_NE(drives.CurrentUsbIntf, before);
    EXPECT_EQ(drives.DevCnt, 8);
}

} // namespace
} // namespace zelto::test
