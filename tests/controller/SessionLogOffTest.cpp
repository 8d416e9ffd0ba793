#include "device/IORegistry.h"
#include "tests/controller/SessionBench.h"

#include <algorithm>

namespace zelto::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class SessionLogOffTest : public SessionTest {
protected:
    void beginUnlocked(const simulator::DriveSetup& setup = {}) {
        m_drive = plugPreparedDrive(setup);
        start();
        logInWith("first");
        ASSERT_EQ(visibleWindow(), "UnlockingWindow");
        computer.log.clear();
    }
    [[nodiscard]] SecurityState state() {
        return m_drive->drive().state(computer.clock.worldTime());
    }
    /// The BSD name that is mounted there.
    [[nodiscard]] std::string mountedFrom(const std::string& mountPoint) {
        for (const auto& line : computer.mounts.getmntinfo()) {
            if (line.f_mntonname == mountPoint) {
                return line.f_mntfromname.substr(std::string("/dev/").size());
            }
        }
        return {};
    }

    ControllerBench::Drive m_drive;
};

TEST_F(SessionLogOffTest, EjectsTheSecureVolumeThenLocksThenEnds) {
    beginUnlocked();
    press("UnlockingLogOff");
    EXPECT_THAT(computer.log.story(),
                ElementsAre("TKVR21_GetAreaInfos", StartsWith("diskutil eject"), "TKVR21_Logout",
                            "stop", "stop"));
    EXPECT_EQ(state(), SecurityState::StateLocked);
    EXPECT_TRUE(hasQuit());
    EXPECT_TRUE(computer.files.fileExistsAtPath("/media/user/PUBLIC"))
        << "the normal area stays mounted";
}

TEST_F(SessionLogOffTest, TheUnlockedWindowLogsOffTheSameWay) {
    beginUnlocked();
    app().DisplayUnlockedWindow();
    app().UnlockingWindow->orderOut();
    press("UnlockedLogOff");
    EXPECT_THAT(commands(), ElementsAre("TKVR21_GetAreaInfos", "TKVR21_Logout"));
    EXPECT_TRUE(hasQuit());
}

TEST_F(SessionLogOffTest, ABusyVolumeIsSaidNotLockedAndEndsTheApplication) {
    beginUnlocked();
    computer.mounts.setHolders(mountedFrom("/media/user/PRIVATE"), {"editor", "shell"});
    press("UnlockingLogOff");
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_UNMOUNT")));
    EXPECT_THAT(alerts.panels().front().detail.toStdString(),
                testing::AllOf(testing::HasSubstr("editor"), testing::HasSubstr("shell")));
    EXPECT_THAT(commands(), Not(Contains("TKVR21_Logout")));
    EXPECT_EQ(state(), SecurityState::StateUnlocking);
    EXPECT_TRUE(hasQuit());
}

TEST_F(SessionLogOffTest, WithoutASecureAreaAllVolumesAreUnmountedAndTheLogOutIsSentAllTheSame) {
    beginUnlocked();
    forge(AreasRequestCode, [](ForgedReplies::Reply& reply) {
        for (std::size_t entry = 12; entry + 20 <= reply.data.size(); entry += 20) {
            reply.data[entry] = 0;
        }
    });
    press("UnlockingLogOff");
    EXPECT_FALSE(computer.files.fileExistsAtPath("/media/user/PUBLIC"));
    EXPECT_FALSE(computer.files.fileExistsAtPath("/media/user/PRIVATE"));
    EXPECT_THAT(commands(), ElementsAre("TKVR21_GetAreaInfos", "TKVR21_Logout"));
    EXPECT_TRUE(hasQuit());
}

TEST_F(SessionLogOffTest, AnUnreadableAreaTableIsReportedAndNothingIsTouched) {
    forgeResult(AreasRequestCode, kIOUSBPipeStalled);
    beginUnlocked();
    press("UnlockingLogOff");
    EXPECT_EQ(messages().size(), 1U);
    EXPECT_EQ(messages().front(), localized("IDS_COMMAND_FAIL_WITH_SENSE_INFO", 0, 0, 0));
    EXPECT_THAT(diskToolRuns(), IsEmpty());
    EXPECT_THAT(commands(), Not(Contains("TKVR21_Logout")));
    EXPECT_EQ(state(), SecurityState::StateUnlocking);
    EXPECT_TRUE(hasQuit());
}

TEST_F(SessionLogOffTest, AFailedReadLeavesTheAreaTableThatIsKnown) {
    beginUnlocked();
    std::uint32_t number = 0;
    ASSERT_TRUE(app().GetSecureAreaDiskNumber(number));
    forgeResult(AreasRequestCode, kIOUSBPipeStalled);
    EXPECT_FALSE(app().GetSecureAreaDiskNumber(number));
    EXPECT_EQ(number, 2U);
    EXPECT_EQ(app().Settings.AreaInfos.entryCount(), 3U);
}

TEST_F(SessionLogOffTest, ARefusedLogOutGoesUnnoticed) {
    forgeResult(LogoutCode, kIOUSBPipeStalled);
    beginUnlocked();
    press("UnlockingLogOff");
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_TRUE(hasQuit());
}

TEST_F(SessionLogOffTest, SetupClosesTheWindowAndOpensTheSettings) {
    beginUnlocked();
    press("UnlockingSetup");
    EXPECT_EQ(visibleWindow(), "MainSettingsWindow");
    EXPECT_FALSE(hasQuit());
}

TEST_F(SessionLogOffTest, SetupFromTheUnlockedWindowOpensTheSettingsToo) {
    beginUnlocked();
    app().UnlockingWindow->orderOut();
    app().DisplayUnlockedWindow();
    press("UnlockedSetup");
    EXPECT_EQ(visibleWindow(), "MainSettingsWindow");
    EXPECT_FALSE(hasQuit());
}

TEST_F(SessionLogOffTest, ClosingLeavesTheDriveUnlocked) {
    beginUnlocked();
    press("UnlockingCancel");
    EXPECT_TRUE(hasQuit());
    EXPECT_EQ(state(), SecurityState::StateUnlocking);
    EXPECT_THAT(commands(), IsEmpty());
}

TEST_F(SessionLogOffTest, ClosingTheUnlockedWindowLeavesTheDriveUnlocked) {
    beginUnlocked();
    app().UnlockingWindow->orderOut();
    app().DisplayUnlockedWindow();
    press("UnlockedOK");
    EXPECT_TRUE(hasQuit());
    EXPECT_EQ(state(), SecurityState::StateUnlocking);
}

TEST_F(SessionLogOffTest, ADriveWithoutVolumesHasAnEmptyList) {
    beginUnlocked();
    g_BsdNameList = {"left from before"};
    unplug(m_drive);
    computer.settle();
    app().GetBsdNameList(0);
    EXPECT_THAT(g_BsdNameList, IsEmpty());
}

// --- Volumes that stand on the drive's ---------------------------------------------------------

TEST_F(SessionLogOffTest, AnEncryptedVolumeInTheSecureAreaIsClosedBeforeTheDriveLocks) {
    for (const char* mountPoint : {"/media/user/SECRET", ""}) {
        beginUnlocked();
        auto& disks = computer.disks;
        disks.stack({.bsdName = "dm0",
                     .below = mountedFrom("/media/user/PRIVATE"),
                     .mountPoint = mountPoint});
        plan->failWhen(
            [&](const IOUSBDevRequest& request) {
                EXPECT_TRUE(request.bRequest != LogoutCode || disks.stacked().empty())
                    << mountPoint;
                return false;
            },
            {});
        press("UnlockingLogOff");
        EXPECT_TRUE(disks.stacked().empty()) << mountPoint;
        EXPECT_EQ(state(), SecurityState::StateLocked) << mountPoint;
        EXPECT_THAT(messages(), IsEmpty()) << mountPoint;
        unplug(m_drive);
    }
}

TEST_F(SessionLogOffTest, AVolumeThatCannotBeClosedIsSaidAndKeepsTheDriveUnlocked) {
    beginUnlocked();
    computer.disks.stack(
        {.bsdName = "vg-data", .below = mountedFrom("/media/user/PRIVATE"), .canBeClosed = false});
    press("UnlockingLogOff");
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_UNMOUNT")));
    EXPECT_THAT(alerts.panels().front().detail.toStdString(), testing::HasSubstr("vg-data"));
    EXPECT_THAT(commands(), Not(Contains("TKVR21_Logout")));
    EXPECT_EQ(state(), SecurityState::StateUnlocking);
}

TEST_F(SessionLogOffTest, AVolumeThatStandsOnAnotherDiskIsLeftAlone) {
    beginUnlocked();
    computer.disks.stack({.bsdName = "dm7", .below = "disk0", .mountPoint = "/home"});
    press("UnlockingLogOff");
    EXPECT_EQ(computer.disks.stacked().size(), 1U);
    EXPECT_EQ(state(), SecurityState::StateLocked);
}

// --- The secure area's number ------------------------------------------------------------------

TEST_F(SessionLogOffTest, TheFirstSecureEntryIsCountedFromOne) {
    beginUnlocked();
    std::uint32_t number = 0;
    EXPECT_TRUE(app().GetSecureAreaDiskNumber(number));
    EXPECT_EQ(number, 2U);
}

TEST_F(SessionLogOffTest, WithoutASecureEntryTheCallersNumberStays) {
    plugNewDrive();
    start();
    std::uint32_t number = 0;
    EXPECT_TRUE(app().GetSecureAreaDiskNumber(number));
    EXPECT_EQ(number, 0U);
}

TEST_F(SessionLogOffTest, ATableThatClaimsMoreEntriesThanItHoldsIsReadToItsEndOnly) {
    forge(AreasRequestCode, [](ForgedReplies::Reply& reply) {
        std::ranges::fill(reply.data, 0);
        reply.data[0] = reply.data[1] = 0xFF;
    });
    plugPreparedDrive();
    start();
    std::uint32_t number = 7;
    EXPECT_TRUE(app().GetSecureAreaDiskNumber(number));
    EXPECT_EQ(number, 7U);
}

// --- Volumes -----------------------------------------------------------------------------------

TEST_F(SessionLogOffTest, DiskNumberZeroListsEveryVolumeOfTheDrive) {
    beginUnlocked();
    app().GetBsdNameList(0);
    EXPECT_GE(g_BsdNameList.size(), 6U) << "three disks and their partitions";
    app().GetBsdNameList(2);
    EXPECT_EQ(g_BsdNameList.front() + "s1", mountedFrom("/media/user/PRIVATE"));
    app().GetBsdNameList(4);
    EXPECT_THAT(g_BsdNameList, IsEmpty());
}

TEST_F(SessionLogOffTest, OnlyTheMountedNameIsUnmountedByItsBareName) {
    beginUnlocked();
    const std::string partition = mountedFrom("/media/user/PUBLIC");
    const std::string disk = partition.substr(0, partition.find('s', 4));
    EXPECT_TRUE(app().UnmountVolume({disk, partition}, 0));
    EXPECT_THAT(diskToolRuns(), ElementsAre("diskutil umount " + partition));
}

TEST_F(SessionLogOffTest, AWholeDiskThatIsMountedIsEjectedByItsName) {
    computer.mounts.addForeign({"/media/user/WHOLE", "/dev/disk7"});
    beginUnlocked();
    (void)app().UnmountVolume({"disk7"}, 1);
    EXPECT_THAT(diskToolRuns(), ElementsAre("diskutil eject disk7"));
}

TEST_F(SessionLogOffTest, AVolumeMountedUnderAnotherPathFormCountsAsNotMounted) {
    computer.mounts.addForeign({"/media/user/OTHER", "disk7"});
    beginUnlocked();
    EXPECT_TRUE(app().UnmountVolume({"disk7"}, 0));
    EXPECT_THAT(diskToolRuns(), IsEmpty());
}

TEST_F(SessionLogOffTest, AFailedRunDoesNotKeepTheOthersFromBeingTried) {
    beginUnlocked();
    const std::string busy = mountedFrom("/media/user/PUBLIC");
    const std::string free = mountedFrom("/media/user/PRIVATE");
    computer.mounts.setHolders(busy, {"editor"});
    EXPECT_FALSE(app().UnmountVolume({busy, free}, 0));
    EXPECT_EQ(diskToolRuns().size(), 2U);
    EXPECT_EQ(mountedFrom("/media/user/PRIVATE"), "");
}

TEST_F(SessionLogOffTest, AnEmptyListIsUnmountedAtOnce) {
    beginUnlocked();
    EXPECT_TRUE(app().UnmountVolume({}, 1));
    EXPECT_THAT(diskToolRuns(), IsEmpty());
}

// --- Spin-up -----------------------------------------------------------------------------------

TEST_F(SessionLogOffTest, ADriveThatIsReadyIsNotWaitedFor) {
    beginUnlocked();
    EXPECT_TRUE(app().SpinUpDrive());
    EXPECT_THAT(computer.log.story(), ElementsAre("TKVR21_GetDeviceStatus"));
    EXPECT_EQ(computer.log.latest("TKVR21_GetDeviceStatus")->setup.wValue, 1);
}

TEST_F(SessionLogOffTest, ADriveThatGetsReadyIsWaitedForSecondBySecond) {
    beginUnlocked();
    m_drive->drive().setNotReadyReads(3);
    EXPECT_TRUE(app().SpinUpDrive());
    EXPECT_EQ(computer.log.count("TKVR21_GetDeviceStatus"), 4U);
    EXPECT_EQ(computer.log.count("sleep 1"), 3U);
}

TEST_F(SessionLogOffTest, ADriveThatNeverGetsReadyIsReadTenTimesThenSaidAndEndsTheApplication) {
    beginUnlocked();
    m_drive->drive().setNotReadyReads(1000);
    EXPECT_FALSE(app().SpinUpDrive());
    EXPECT_EQ(computer.log.count("TKVR21_GetDeviceStatus"), 10U);
    EXPECT_EQ(computer.log.count("sleep 1"), 9U);
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_SPINUP")));
    EXPECT_TRUE(hasQuit());
}

TEST_F(SessionLogOffTest, AFailedStatusReadDuringSpinUpIsReportedAndTheApplicationStays) {
    beginUnlocked();
    unplug(m_drive);
    EXPECT_FALSE(app().SpinUpDrive());
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_NOT_FOUND_ZELTO")));
    EXPECT_FALSE(hasQuit());
}

} // namespace
} // namespace zelto::test
