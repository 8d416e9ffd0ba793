#include "tests/controller/SessionBench.h"

namespace zelto::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SessionTimerTest : public SessionTest {
protected:
    /// Makes the drive's time status read so.
    void forgeTime(const TimeStatus& status) {
        forge(TimeRequestCode, [status](ForgedReplies::Reply& reply) {
            std::ranges::copy(encodeTimeStatus(status), reply.data.begin());
        });
    }
    [[nodiscard]] QString driveTime() { return app().MainSettingsWindow->DeviceTimeText->text(); }
    [[nodiscard]] QString loginDriveTime() { return text("AuthenticateDeviceTimeText"); }
    [[nodiscard]] QString remaining() { return text("AuthenticateRemainingTimeText"); }
};

TEST_F(SessionTimerTest, TicksShowTheComputersLocalTimeEvenWithoutADrive) {
    computer.clock.setUtcOffset(std::chrono::hours(-5));
    start();
    tick();
    EXPECT_EQ(app().MainSettingsWindow->PCTimeText->text(), QStringLiteral("2026/03/02 04:30:01"));
    EXPECT_THAT(commands(), IsEmpty());
}

TEST_F(SessionTimerTest, TheDrivesUtcTimeIsShownInLocalTimeOnBothWindows) {
    forgeTime({.clock = {.year = 2026, .month = 1, .day = 1, .hour = 0, .minute = 30}});
    computer.clock.setUtcOffset(std::chrono::hours(9));
    plugPreparedDrive();
    start();
    tick();
    EXPECT_EQ(driveTime(), QStringLiteral("2026/01/01 09:30:00"));
    EXPECT_EQ(loginDriveTime(), QStringLiteral("2026/01/01 09:30:00"));
    EXPECT_FALSE(app().TimeStatusInvalid);
}

TEST_F(SessionTimerTest, TheOffsetIsTheOneInForceAtTheDrivesTime) {
    forgeTime({.clock = {.year = 2026, .month = 7, .day = 1, .hour = 12}});
    computer.clock.setZone([](std::chrono::sys_seconds moment) {
        using namespace std::chrono;
        return moment < sys_days{2026y / March / 29} ? hours(1) : hours(2);
    });
    plugPreparedDrive();
    start();
    tick();
    EXPECT_EQ(driveTime(), QStringLiteral("2026/07/01 14:00:00"));
}

TEST_F(SessionTimerTest, AnInvalidClockIsSaidInPlaceOfItsDateAndRemembered) {
    forgeTime({.clockNotValid = true,
               .clock = {.year = 2026, .month = 1, .day = 1, .hour = 0, .minute = 30}});
    plugPreparedDrive();
    start();
    tick();
    EXPECT_EQ(loginDriveTime(), localized("IDS_ERR_TIME_STATUS_INVALID"));
    EXPECT_TRUE(app().TimeStatusInvalid);
    forgeTime({.clock = {.year = 2026, .month = 1, .day = 1}});
    tick();
    EXPECT_TRUE(app().TimeStatusInvalid) << "for the rest of the run";
}

TEST_F(SessionTimerTest, ADateThatDoesNotExistIsNotShown) {
    forgeTime({.clock = {.year = 65535, .month = 13, .day = 32, .hour = 25}});
    plugPreparedDrive();
    start();
    tick();
    EXPECT_EQ(loginDriveTime(), localized("IDS_ERR_TIME_STATUS_INVALID"));
    EXPECT_FALSE(app().TimeStatusInvalid);
}

TEST_F(SessionTimerTest, AnUnreadableTimeStatusLeavesTheLastTextsWithoutAWord) {
    const auto drive = plugPreparedDrive();
    start();
    tick();
    const QString before = loginDriveTime();
    ASSERT_NE(before, QString());
    unplug(drive);
    tick(5);
    EXPECT_EQ(loginDriveTime(), before);
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_FALSE(hasQuit());
}

TEST_F(SessionTimerTest, TheRemainingTimeLeavesOutHoursThatAreNone) {
    forgeTime({.autoClearElapsed = 100, .autoClearPeriod = 90061});
    plugPreparedDrive({.showsRemainingTime = true});
    start();
    tick();
    EXPECT_EQ(remaining(), QStringLiteral("1 ") + localized("IDS_DAYS") + QStringLiteral(" 59 ") +
                               localized("IDS_MIN"));
}

TEST_F(SessionTimerTest, TheRemainingTimeIsShownThoughTheClockIsInvalid) {
    forgeTime({.clockNotValid = true, .autoClearElapsed = 200, .autoClearPeriod = 100});
    plugPreparedDrive({.showsRemainingTime = true});
    start();
    tick();
    EXPECT_EQ(remaining(), QStringLiteral("0 ") + localized("IDS_MIN"));
}

TEST_F(SessionTimerTest, AnExpiredPeriodIsSaidWhateverTheCountersSay) {
    forgeTime({.autoClearExpired = true, .autoClearElapsed = 1, .autoClearPeriod = 90061});
    plugPreparedDrive({.showsRemainingTime = true});
    start();
    tick();
    EXPECT_EQ(remaining(), localized("IDS_EXPIRED"));
}

// --- Setting the drive's clock -----------------------------------------------------------------

class SetClockTest : public SessionTimerTest {
protected:
    void beginInSettings(const simulator::DriveSetup& setup) {
        plugPreparedDrive(setup);
        start();
        logInWith("first");
        press("UnlockingSetup");
        tick();
    }
};

TEST_F(SetClockTest, SetsUtcWhateverTheZone) {
    computer.clock.setUtcOffset(std::chrono::hours(9));
    beginInSettings({});
    press("MainSettingsSetTimeButton");
    EXPECT_EQ(computer.log.latest("TKVR21_ZELTO_SetCurrentTime")->data,
              (std::vector<std::uint8_t>{0x07, 0xEA, 3, 2, 9, 30, 1}));
}

TEST_F(SetClockTest, AClockThatWasValidIsSetWithoutAWord) {
    beginInSettings({});
    press("MainSettingsSetTimeButton");
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_FALSE(hasQuit());
}

TEST_F(SetClockTest, AClockThatWasInvalidIsConfirmedAndEndsTheApplication) {
    beginInSettings({.clockIsSet = false});
    press("MainSettingsSetTimeButton");
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_TIME_SYNC_COMPLETE")));
    EXPECT_TRUE(hasQuit());
}

TEST_F(SetClockTest, AFailureIsReportedAndTheApplicationStays) {
    forgeResult(SetClockCode, kIOReturnNoDevice);
    beginInSettings({.clockIsSet = false});
    press("MainSettingsSetTimeButton");
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_NOT_FOUND_ZELTO")));
    EXPECT_FALSE(hasQuit());
}

// --- The show-remaining-time choice ------------------------------------------------------------

TEST_F(SetClockTest, AHintByteWithOtherBitsIsShownAsCheckedAndWrittenBackAsOne) {
    forge(HintReadCode, [](ForgedReplies::Reply& reply) { reply.data[0] = 0x03; });
    beginInSettings({});
    EXPECT_TRUE(isChecked("ShowRemainingTimeCheckBox"));
    EXPECT_EQ(app().UpdateUserDefaultsShowRemainingTime(), kIOReturnSuccess);
    const auto* write = computer.log.latest("TKVR21_ZELTO_WriteHintData");
    ASSERT_NE(write, nullptr);
    EXPECT_EQ(write->data, std::vector<std::uint8_t>{0x01});
    EXPECT_EQ(write->setup.wIndex, 0x0FFF);
    EXPECT_EQ(write->setup.wValue, 1);
}

TEST_F(SetClockTest, AHintByteThatCannotBeReadIsShownAsNotChecked) {
    forgeResult(HintReadCode, kIOUSBPipeStalled);
    beginInSettings({.showsRemainingTime = true});
    EXPECT_FALSE(isChecked("ShowRemainingTimeCheckBox"));
    EXPECT_TRUE(isEnabled("ShowRemainingTimeCheckBox"));
}

// --- Reporting ---------------------------------------------------------------------------------

TEST_F(SessionTimerTest, ADriveThatIsGoneIsReportedWithoutAStatusRead) {
    plugPreparedDrive();
    start();
    computer.log.clear();
    app().ErrorMessageBox(kIOReturnNoDevice);
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_NOT_FOUND_ZELTO")));
    EXPECT_THAT(commands(), IsEmpty());
}

TEST_F(SessionTimerTest, AnyOtherFailureIsReportedWithTheDrivesSenseBytes) {
    forge(StatusRequestCode, [](ForgedReplies::Reply& reply) {
        reply.data[13] = 5;
        reply.data[14] = 0x24;
        reply.data[15] = 0;
    });
    plugPreparedDrive();
    start();
    app().ErrorMessageBox(kIOReturnTimeout);
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_COMMAND_FAIL_WITH_SENSE_INFO", 5, 36, 0)));
    EXPECT_EQ(alerts.panels().front().title, localized("IDS_APP_TITLE"));
    EXPECT_EQ(alerts.panels().front().defaultButton, localized("OK"));
}

TEST_F(SessionTimerTest, AnUnreadableStatusIsReportedWithoutNumbers) {
    const auto drive = plugPreparedDrive();
    start();
    unplug(drive);
    app().ErrorMessageBox(kIOUSBPipeStalled);
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_COMMAND_FAIL")));
}

// --- Events while the program is busy ----------------------------------------------------------

TEST_F(SessionTimerTest, NoTickRunsInsideAnAlertAndOneFollowsIt) {
    plugPreparedDrive();
    start();
    std::size_t readsInside = 0;
    alerts.answer(AlertButton::Default, [&](const AlertPanel&) {
        computer.log.clear();
        tick(5);
        readsInside = computer.log.count("TKVR21_ZELTO_GetTimeStatus");
    });
    logInWith("wrong");
    EXPECT_EQ(readsInside, 0U);
    computer.settle();
    EXPECT_EQ(computer.log.count("TKVR21_ZELTO_GetTimeStatus"), 1U)
        << "made up for once, not five times";
}

TEST_F(SessionTimerTest, ADriveThatArrivesDuringAnAlertIsListedAfterIt) {
    plugPreparedDrive({.serial = "ZD-A"});
    start();
    int countInside = 0;
    alerts.answer(AlertButton::Default, [&](const AlertPanel&) {
        plugPreparedDrive({.serial = "ZD-B"});
        computer.settle();
        countInside = app().Drives.DevCnt;
    });
    logInWith("wrong");
    EXPECT_EQ(countInside, 1);
    computer.settle();
    EXPECT_EQ(app().Drives.DevCnt, 2);
}

TEST_F(SessionTimerTest, AnAlertNeverOpensOverAnother) {
    const auto drive = plugPreparedDrive({.showsRemainingTime = true});
    start();
    int most = 0;
    alerts.setWhileOpen([&](const AlertPanel&) {
        unplug(drive);
        tick(3);
        most = std::max(most, alerts.open());
    });
    logInWith("wrong");
    EXPECT_EQ(most, 1);
}

TEST_F(SessionTimerTest, NothingTicksOnceTheApplicationHasAgreedToQuit) {
    plugPreparedDrive();
    start();
    press("AuthenticateCancel");
    computer.log.clear();
    tick(3);
    EXPECT_THAT(computer.log.lines(), IsEmpty());
}

// --- Hot-plug ----------------------------------------------------------------------------------

TEST_F(SessionTimerTest, ADriveThatComesBackUnaskedIsListedAgainWhileTheOldHandleStaysChosen) {
    const auto drive = plugPreparedDrive();
    start();
    auto* chosen = app().Drives.CurrentUsbIntf;
    replug(drive);
    computer.settle();
    EXPECT_EQ(app().Drives.DevCnt, 2);
    EXPECT_EQ(app().Drives.CurrentUsbIntf, chosen);
    logInWith("first");
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_NOT_FOUND_ZELTO")));
}

TEST_F(SessionTimerTest, AnAwaitedDriveIsRecognisedByItsSerialNumberEvenAsTheNinth) {
    for (int number = 1; number <= 7; ++number) {
        plugPreparedDrive({.serial = "ZD-" + std::to_string(number)});
    }
    const auto awaited = plugPreparedDrive({.serial = "ZD-AWAITED"});
    start();
    auto& drives = app().Drives;
    person.choose("SelectZeltoComboBox", 7);
    press("SelectZeltoOK");
    drives.WaitReconnectZelto = true;
    plugPreparedDrive({.serial = "ZD-STRANGER"});
    computer.settle();
    EXPECT_TRUE(drives.WaitReconnectZelto) << "another drive is only listed";
    auto* before = drives.CurrentUsbIntf;
    replug(awaited);
    computer.settle();
    EXPECT_FALSE(drives.WaitReconnectZelto);
    EXPECT_NE(drives.CurrentUsbIntf, before);
    EXPECT_EQ(drives.DevCnt, 8);
}

} // namespace
} // namespace zelto::test
