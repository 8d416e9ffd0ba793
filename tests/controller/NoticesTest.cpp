#include "device/IORegistry.h"
#include "tests/support/ScriptedDesktop.h"
#include "tests/support/SettingsBench.h"

#include <gmock/gmock.h>

#include <string_view>

namespace zelto::test {
namespace {

using simulator::DiskVerb;
using simulator::ToolBehaviour;
using testing::ElementsAre;
using testing::IsEmpty;
using Weight = Desktop::Notice::Weight;

/// What the program leaves on the desktop when it ends.
class Notices : public SettingsBench {
protected:
    Notices() { computer.desktop = desktop; }

    void unlock() {
        drive = plugPreparedDrive();
        start();
        logIn(QStringLiteral("first"));
    }
    /// As a person does it in the file manager: all of the drive's volumes but the secure one.
    void ejectOtherVolumes() {
        for (const auto& line : computer.mounts.getmntinfo()) {
            if (line.f_mntonname == "/media/user/PUBLIC" ||
                line.f_mntonname == "/media/user/ZELTO TOOL") {
                EXPECT_TRUE(computer.mounts.unmount(line.f_mntfromname.substr(DevFolder.size())));
            }
        }
    }
    void confirm(const char* button) {
        alerts.answer(AlertButton::Alternate);
        press(button);
    }
    /// The program has ended and has left this notice and no other.
    void expectLeft(Weight weight, const char* key) {
        EXPECT_TRUE(hasQuit());
        ASSERT_EQ(desktop->notices().size(), 1U);
        const Desktop::Notice& notice = desktop->notices().front();
        EXPECT_EQ(notice.weight, weight);
        EXPECT_EQ(notice.title, "ZELTO DISK");
        EXPECT_EQ(notice.text, localized(key).toStdString());
    }
    void expectNoneLeft() {
        EXPECT_TRUE(hasQuit());
        EXPECT_THAT(desktop->notices(), IsEmpty());
    }

    /// Of plugPreparedDrive's drive.
    static constexpr std::uint8_t NormalArea = 1;
    static constexpr std::string_view DevFolder = "/dev/";
    std::shared_ptr<ScriptedDesktop> desktop = std::make_shared<ScriptedDesktop>();
};

TEST_F(Notices, AfterLogOffADriveOfWhichNothingIsMountedMayBeUnplugged) {
    unlock();
    ejectOtherVolumes();
    press("UnlockingLogOff");
    expectLeft(Weight::Passing, "IDS_NOTICE_LOCKED");
    EXPECT_EQ(desktop->notices().front().text, "The drive is locked. It can be unplugged.");
}

TEST_F(Notices, AfterLogOffTheVolumesThatStayMountedAreToBeEjectedFirst) {
    unlock();
    press("UnlockingLogOff");
    expectLeft(Weight::Passing, "IDS_NOTICE_LOCKED_IN_USE");
    EXPECT_EQ(desktop->notices().front().text,
              "The drive is locked. Eject its other volumes before you unplug it.");
}

TEST_F(Notices, AnEncryptedVolumeThatStaysOpenInANormalAreaIsToBeEjectedFirst) {
    unlock();
    ejectOtherVolumes();
    app().GetBsdNameList(NormalArea);
    computer.disks.stack({.bsdName = "dm0", .below = g_BsdNameList.front()});
    press("UnlockingLogOff");
    expectLeft(Weight::Passing, "IDS_NOTICE_LOCKED_IN_USE");
}

TEST_F(Notices, WhatIsMountedOfOtherDisksKeepsNoDriveFromBeingUnplugged) {
    unlock();
    ejectOtherVolumes();
    computer.mounts.addForeign({"/media/user/OTHER", "/dev/disk7s1"});
    press("UnlockingLogOff");
    expectLeft(Weight::Passing, "IDS_NOTICE_LOCKED");
}

TEST_F(Notices, NothingIsSaidBeforeTheDriveHasLocked) {
    unlock();
    plan->failWhen(
        [&](const IOUSBDevRequest& request) {
            EXPECT_THAT(desktop->notices(), IsEmpty()) << simulator::commandName(request);
            return false;
        },
        {});
    press("UnlockingLogOff");
    expectLeft(Weight::Passing, "IDS_NOTICE_LOCKED_IN_USE");
}

TEST_F(Notices, ABusyVolumeLeavesThatTheDriveIsStillUnlocked) {
    unlock();
    computer.diskTool.setBehaviour(DiskVerb::Eject, ToolBehaviour::Fails);
    press("UnlockingLogOff");
    expectLeft(Weight::Lasting, "IDS_NOTICE_STILL_UNLOCKED");
    EXPECT_EQ(driveState(), SecurityState::StateUnlocking);
}

TEST_F(Notices, ARefusedLogOffLeavesThatTheDriveIsStillUnlocked) {
    for (const char* command : {"TKVR21_GetAreaInfos", "TKVR21_Logout"}) {
        desktop = std::make_shared<ScriptedDesktop>();
        computer.desktop = desktop;
        unlock();
        failCommand(command, {.result = kIOUSBPipeStalled});
        press("UnlockingLogOff");
        expectLeft(Weight::Lasting, "IDS_NOTICE_STILL_UNLOCKED");
        EXPECT_EQ(driveState(), SecurityState::StateUnlocking) << command;
        putAway();
    }
}

TEST_F(Notices, ADriveThatWasPulledIsNotCalledUnlocked) {
    unlock();
    unplug(drive);
    press("UnlockingLogOff");
    expectNoneLeft();
}

TEST_F(Notices, ADriveThatIsPulledWhileItLocksIsCalledNothing) {
    unlock();
    failCommand("TKVR21_Logout", {.result = kIOReturnNoDevice});
    press("UnlockingLogOff");
    expectNoneLeft();
}

TEST_F(Notices, ClosingAnUnlockedDrivesWindowLeavesNothing) {
    unlock();
    press("UnlockingCancel");
    expectNoneLeft();
}

TEST_F(Notices, ChangedSettingsAreSaid) {
    beginWithSettingsOf({});
    check("ShowRemainingTimeCheckBox", !isChecked("ShowRemainingTimeCheckBox"));
    commit();
    expectLeft(Weight::Passing, "IDS_NOTICE_SETTINGS_CHANGED");
}

TEST_F(Notices, SettingsThatWereRefusedAreNotCalledChanged) {
    beginWithSettingsOf({});
    check("ShowRemainingTimeCheckBox", !isChecked("ShowRemainingTimeCheckBox"));
    failCommand("TKVR21_ZELTO_SetErasePeriod", {.result = kIOUSBPipeStalled});
    commit();
    EXPECT_THAT(desktop->notices(), IsEmpty());
    press("MainSettingsCancelButton");
    expectNoneLeft();
}

TEST_F(Notices, ASettingThatWasNotWrittenIsNotCalledChanged) {
    beginWithSettingsOf({});
    check("ShowRemainingTimeCheckBox", !isChecked("ShowRemainingTimeCheckBox"));
    failCommand("TKVR21_ZELTO_WriteHintData", {.result = kIOUSBPipeStalled});
    commit();
    EXPECT_EQ(all("TKVR21_ZELTO_WriteHintData").size(), 1U);
    EXPECT_THAT(messages(), IsEmpty());
    expectNoneLeft();
}

TEST_F(Notices, AClearedDriveIsSaid) {
    beginWithSettingsOf({});
    confirm("MainSettingsClearAllButton");
    expectLeft(Weight::Passing, "IDS_NOTICE_CLEARED");
}

TEST_F(Notices, ADriveThatWasNotClearedIsNotCalledSo) {
    beginWithSettingsOf({});
    failCommand("TKVR21_ResetAreaInfos", {.result = kIOUSBPipeStalled});
    confirm("MainSettingsClearAllButton");
    EXPECT_THAT(desktop->notices(), IsEmpty());
}

TEST_F(Notices, AnErasedKeyLeavesWhatTheLogOffDoes) {
    beginWithSettingsOf({});
    confirm("EraseEncryptionKeyButton");
    expectLeft(Weight::Passing, "IDS_NOTICE_LOCKED_IN_USE");
}

TEST_F(Notices, AFinishedSetUpIsSaid) {
    begin();
    fill({});
    commit();
    tick(10);
    press("ZeltoSettingOKButton");
    expectLeft(Weight::Passing, "IDS_NOTICE_SET_UP");
}

TEST_F(Notices, ASetUpThatFailedIsNotCalledFinished) {
    begin();
    fill({});
    computer.diskTool.setBehaviour(DiskVerb::EraseDisk, ToolBehaviour::Fails);
    commit();
    tick(10);
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_FORMAT")));
    expectNoneLeft();
}

TEST_F(Notices, ASetUpThatEndsWithoutAWordForWantOfAToolVolumeIsSaid) {
    begin();
    fill({});
    computer.diskTool.setBehaviour(DiskVerb::EraseDisk, ToolBehaviour::OnlyPretends);
    commit();
    tick(10);
    EXPECT_THAT(messages(), IsEmpty());
    expectLeft(Weight::Lasting, "IDS_NOTICE_SET_UP_WITHOUT_TOOL");
}

} // namespace
} // namespace zelto::test
