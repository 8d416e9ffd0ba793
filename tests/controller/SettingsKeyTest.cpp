#include "tests/support/SettingsBench.h"

namespace zelto::test {
namespace {

using simulator::DiskVerb;
using simulator::ToolBehaviour;
using testing::ElementsAre;
using testing::IsEmpty;

using Commands = std::vector<std::string>;

class EraseKey : public SettingsBench {
protected:
    void eraseAnsweringYes() {
        alerts.answer(AlertButton::Alternate);
        press("EraseEncryptionKeyButton");
    }
};

TEST_F(EraseKey, TheDefaultAnswerSendsNothing) {
    beginWithSettingsOf({});
    press("EraseEncryptionKeyButton");
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERASE_ENCRYPTION_KEY_CONFIRM")));
    EXPECT_EQ(alerts.panels()[0].defaultButton, localized("IDS_CANCEL_BUTTON"));
    EXPECT_EQ(alerts.panels()[0].alternateButton, localized("OK"));
    EXPECT_THAT(commands(), IsEmpty());
}

TEST_F(EraseKey, SetsAPeriodOfOneSecondLogsOutAndQuits) {
    beginWithSettingsOf({});
    eraseAnsweringYes();
    EXPECT_EQ(commands(), (Commands{"TKVR21_GetDeviceStatus", "TKVR21_ZELTO_SetErasePeriod",
                                    "TKVR21_GetAreaInfos", "TKVR21_Logout"}));
    EXPECT_EQ(latest("TKVR21_ZELTO_SetErasePeriod").setup.wValue, 1);
    EXPECT_TRUE(hasQuit());
    computer.clock.pass(std::chrono::seconds(2));
    EXPECT_EQ(driveState(), SecurityState::StateFullLock);
}

TEST_F(EraseKey, ALockedDriveIsRefusedAfterTheStatusRead) {
    beginWithSettingsOf({});
    computer.replug(drive);
    computer.settle();
    app().Drives.CurrentUsbIntf = app().Drives.UsbIntf[app().Drives.DevCnt - 1];
    ASSERT_EQ(driveState(), SecurityState::StateLocked);
    computer.log.clear();
    eraseAnsweringYes();
    EXPECT_EQ(commands(), (Commands{"TKVR21_GetDeviceStatus"}));
    EXPECT_EQ(messages().back(), localized("IDS_ERR_ZELTO_NOT_UNLOCKING"));
    EXPECT_FALSE(hasQuit());
}

TEST_F(EraseKey, ABusyVolumeIsSaidAndTheProgramEndsWithTheDriveUnlocked) {
    drive = plugPreparedDrive();
    start();
    logIn(QStringLiteral("first"));
    openSettingsOfUnlockedDrive();
    computer.diskTool.setBehaviour(DiskVerb::Eject, ToolBehaviour::Fails);
    eraseAnsweringYes();
    EXPECT_EQ(messages().back(), localized("IDS_ERR_UNMOUNT"));
    EXPECT_EQ(computer.log.count("TKVR21_Logout"), 0U);
    EXPECT_EQ(latest("TKVR21_ZELTO_SetErasePeriod").setup.wValue, 1);
    EXPECT_EQ(driveState(), SecurityState::StateUnlocking);
    EXPECT_TRUE(hasQuit());
}

TEST_F(EraseKey, EachFailedCommandIsReportedOnceAndStopsIt) {
    for (const char* command : {"TKVR21_GetDeviceStatus", "TKVR21_ZELTO_SetErasePeriod"}) {
        beginWithSettingsOf({});
        failCommand(command, {});
        eraseAnsweringYes();
        EXPECT_EQ(messages().size(), 2u) << command;
        EXPECT_FALSE(hasQuit());
        EXPECT_EQ(computer.log.count("TKVR21_Logout"), 0u);
        putAway();
    }
}

class ClearAll : public SettingsBench {
protected:
    void clearAnsweringYes() {
        computer.log.clear();
        alerts.answer(AlertButton::Alternate);
        press("MainSettingsClearAllButton");
    }
    /// The drive out and in again, behind the open settings window.
    void lockDrive() {
        computer.replug(drive);
        computer.settle();
        app().Drives.CurrentUsbIntf = app().Drives.UsbIntf[app().Drives.DevCnt - 1];
    }
};

TEST_F(ClearAll, TheDefaultAnswerSendsNothing) {
    beginWithSettingsOf({});
    press("MainSettingsClearAllButton");
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_CLEAR_ALL_CONFIRM")));
    EXPECT_THAT(commands(), IsEmpty());
}

TEST_F(ClearAll, AnUnlockedDriveRefusesTheResetIsLoggedOutClearedAndReset) {
    beginWithSettingsOf({});
    clearAnsweringYes();
    EXPECT_EQ(commands(), (Commands{"TKVR21_GetDeviceStatus", "TKVR21_GetDeviceStatus",
                                    "TKVR21_ZELTO_SetErasePeriod", "TKVR21_ZELTO_SetIdleLockPeriod",
                                    "TKVR21_ZELTO_WriteHintData", "TKVR21_ResetAreaInfos",
                                    "TKVR21_GetDeviceStatus", "TKVR21_Logout",
                                    "TKVR21_ClearEncryptionInfo", "TKVR21_ResetAreaInfos"}));
    EXPECT_EQ(all("TKVR21_GetDeviceStatus")[0].setup.wValue, 1);
    EXPECT_EQ(all("TKVR21_GetDeviceStatus")[1].setup.wValue, 0);
    EXPECT_EQ(latest("TKVR21_ZELTO_SetErasePeriod").setup.wValue, 0);
    EXPECT_EQ(latest("TKVR21_ZELTO_WriteHintData").setup.wIndex, 4095);
    EXPECT_THAT(latest("TKVR21_ZELTO_WriteHintData").data, ElementsAre(1));
    EXPECT_EQ(latest("TKVR21_ResetAreaInfos").setup.wValue, 3);
    EXPECT_EQ(latest("TKVR21_ClearEncryptionInfo").setup.wValue, 2);
    EXPECT_TRUE(hasQuit());
    EXPECT_EQ(messages().size(), 1u);
}

TEST_F(ClearAll, ASecondRefusalOfTheResetIsReportedAndTheProgramStays) {
    beginWithSettingsOf({});
    int resets = 0;
    plan->failWhen(
        [&resets](const IOUSBDevRequest& request) {
            return simulator::commandName(request) == "TKVR21_ResetAreaInfos" && ++resets == 2;
        },
        {});
    clearAnsweringYes();
    EXPECT_EQ(computer.log.count("TKVR21_ResetAreaInfos"), 2U);
    EXPECT_EQ(commands().back(), "TKVR21_GetDeviceStatus") << "for the sense bytes";
    EXPECT_EQ(messages().size(), 2U);
    EXPECT_FALSE(hasQuit());
}

TEST_F(ClearAll, ADriveWithoutSecureAreaIsResetAtOnce) {
    beginWithSettingsOf({.secureDisk = 0});
    clearAnsweringYes();
    EXPECT_EQ(commands(), (Commands{"TKVR21_GetDeviceStatus", "TKVR21_GetDeviceStatus",
                                    "TKVR21_ZELTO_SetErasePeriod", "TKVR21_ZELTO_SetIdleLockPeriod",
                                    "TKVR21_ZELTO_WriteHintData", "TKVR21_ResetAreaInfos"}));
    EXPECT_TRUE(hasQuit());
}

TEST_F(ClearAll, UnmountsAllVolumesFirst) {
    beginWithSettingsOf({.secureDisk = 0});
    clearAnsweringYes();
    const auto runs = computer.log.texts(simulator::LogLine::Kind::DiskTool);
    ASSERT_FALSE(runs.empty());
    for (const auto& run : runs) {
        EXPECT_THAT(run, testing::HasSubstr("umount"));
    }
    for (const auto& mounted : computer.mounts.getmntinfo()) {
        EXPECT_THAT(mounted.f_mntonname, testing::Not(testing::StartsWith("/media/")));
    }
}

TEST_F(ClearAll, ClosesWhatStandsOnTheDrivesVolumesFirst) {
    beginWithSettingsOf({});
    const std::string disk = computer.disks.all().front()->bsdName;
    computer.disks.stack({.bsdName = "dm0", .below = disk});
    clearAnsweringYes();
    EXPECT_TRUE(computer.disks.stacked().empty());
    const auto story = computer.log.story();
    const auto closed = std::ranges::find(story, "diskutil umount dm0");
    const auto command = std::ranges::find_if(
        story, [](const std::string& line) { return line.starts_with("TKVR21_"); });
    EXPECT_LT(closed, command);
}

TEST_F(ClearAll, AVolumeThatDoesNotUnmountStopsItBeforeAnyCommand) {
    beginWithSettingsOf({.secureDisk = 0});
    computer.diskTool.setBehaviour(DiskVerb::Umount, ToolBehaviour::Fails);
    clearAnsweringYes();
    EXPECT_THAT(commands(), IsEmpty());
    EXPECT_EQ(messages().back(), localized("IDS_ERR_UNMOUNT"));
    EXPECT_FALSE(hasQuit());
}

TEST_F(ClearAll, ALockedDriveWithASecureAreaIsRefused) {
    beginWithSettingsOf({});
    lockDrive();
    clearAnsweringYes();
    EXPECT_EQ(commands(), (Commands{"TKVR21_GetDeviceStatus", "TKVR21_GetDeviceStatus"}));
    EXPECT_EQ(messages().back(), localized("IDS_ERR_ZELTO_NOT_UNLOCKING"));
    EXPECT_FALSE(hasQuit());
}

TEST_F(ClearAll, ADriveNotKnownToHaveASecureAreaIsClearedWhileItIsLocked) {
    beginWithSettingsOf({});
    lockDrive();
    app().Settings.SecureAreaAlreadyExist = false;
    clearAnsweringYes();
    for (const QString& message : messages()) {
        EXPECT_NE(message, localized("IDS_ERR_ZELTO_NOT_UNLOCKING"));
    }
    EXPECT_EQ(computer.log.count("TKVR21_ZELTO_SetErasePeriod"), 1u);
}

TEST_F(ClearAll, AFullyLockedDriveGetsNoPeriods) {
    beginWithSettingsOf({});
    alerts.answer(AlertButton::Alternate);
    press("EraseEncryptionKeyButton");
    computer.clock.pass(std::chrono::seconds(2));
    ASSERT_EQ(driveState(), SecurityState::StateFullLock);
    // Its clock is set, so that the settings open.
    startAgain();
    if (!app().MainSettingsWindow->isVisible()) {
        alerts.answer(AlertButton::Default);
        startAgain();
    }
    app().DisplayMainSettingsWindow(false);
    alerts.clear();
    EXPECT_FALSE(isEnabled("PasswordSettingsButton"));
    clearAnsweringYes();
    EXPECT_EQ(computer.log.count("TKVR21_ZELTO_SetErasePeriod"), 0u);
    EXPECT_EQ(computer.log.count("TKVR21_ZELTO_SetIdleLockPeriod"), 0u);
    EXPECT_EQ(computer.log.count("TKVR21_ZELTO_WriteHintData"), 1u);
    EXPECT_GE(computer.log.count("TKVR21_ResetAreaInfos"), 1u);
    EXPECT_TRUE(hasQuit());
}

TEST_F(ClearAll, AResetRefusedForAnotherReasonIsReportedAndNotRepeated) {
    beginWithSettingsOf({.secureDisk = 0});
    failCommand("TKVR21_ResetAreaInfos",
                {.kind = Fault::Kind::FailsBefore, .result = kIOReturnTimeout});
    clearAnsweringYes();
    EXPECT_EQ(commands().back(), "TKVR21_GetDeviceStatus");
    EXPECT_EQ(messages().back(), localized("IDS_COMMAND_FAIL_WITH_SENSE_INFO", 0, 0, 0));
    EXPECT_FALSE(hasQuit());
    EXPECT_TRUE(app().MainSettingsWindow->isVisible());
}

TEST_F(ClearAll, EachFailedCommandIsReportedOnceAndStopsIt) {
    const std::vector<const char*> all{"TKVR21_GetDeviceStatus",
                                       "TKVR21_ZELTO_SetErasePeriod",
                                       "TKVR21_ZELTO_SetIdleLockPeriod",
                                       "TKVR21_ZELTO_WriteHintData",
                                       "TKVR21_Logout",
                                       "TKVR21_ClearEncryptionInfo"};
    for (const char* command : all) {
        beginWithSettingsOf({});
        failCommand(command, {});
        clearAnsweringYes();
        EXPECT_EQ(messages().size(), 2u) << command;
        EXPECT_FALSE(hasQuit()) << command;
        EXPECT_TRUE(app().MainSettingsWindow->isVisible());
        putAway();
    }
}

} // namespace
} // namespace zelto::test
