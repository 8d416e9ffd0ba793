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
        m_drive = m_bench.plugPreparedDrive(setup);
        m_bench.start();
        logInWith("first");
        ASSERT_EQ(m_bench.visibleWindow(), "UnlockingWindow");
        m_bench.computer.log.clear();
    }
    [[nodiscard]] SecurityState state() {
        return m_drive->drive().state(m_bench.computer.clock.worldTime());
    }
    /// The BSD name that is mounted there.
    [[nodiscard]] std::string mountedFrom(const std::string& mountPoint) {
        for (const auto& line : m_bench.computer.mounts.getmntinfo()) {
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
    m_bench.press("UnlockingLogOff");
    EXPECT_THAT(m_bench.computer.log.story(),
                ElementsAre("TKVR21_GetAreaInfos", StartsWith("diskutil eject"), "TKVR21_Logout",
                            "stop", "stop"));
    EXPECT_EQ(state(), SecurityState::StateLocked);
    EXPECT_TRUE(m_bench.hasQuit());
    EXPECT_TRUE(m_bench.computer.files.fileExistsAtPath("/media/user/PUBLIC"))
        << "the normal area stays mounted";
}

TEST_F(SessionLogOffTest, TheUnlockedWindowLogsOffTheSameWay) {
    beginUnlocked();
    m_bench.app().DisplayUnlockedWindow();
    m_bench.app().UnlockingWindow.orderOut();
    m_bench.press("UnlockedLogOff");
    EXPECT_THAT(m_bench.commands(), ElementsAre("TKVR21_GetAreaInfos", "TKVR21_Logout"));
    EXPECT_TRUE(m_bench.hasQuit());
}

TEST_F(SessionLogOffTest, ABusyVolumeIsSaidNotLockedAndEndsTheApplication) {
    beginUnlocked();
    m_bench.computer.mounts.setHolders(mountedFrom("/media/user/PRIVATE"), {"editor", "shell"});
    m_bench.press("UnlockingLogOff");
    EXPECT_THAT(alerts(), ElementsAre(localized("IDS_ERR_UNMOUNT")));
    EXPECT_THAT(m_bench.alerts.panels().front().detail.toStdString(),
                testing::AllOf(testing::HasSubstr("editor"), testing::HasSubstr("shell")));
    EXPECT_THAT(m_bench.commands(), Not(Contains("TKVR21_Logout")));
    EXPECT_EQ(state(), SecurityState::StateUnlocking);
    EXPECT_TRUE(m_bench.hasQuit());
}

TEST_F(SessionLogOffTest, WithoutASecureAreaAllVolumesAreUnmountedAndTheLogOutIsSentAllTheSame) {
    beginUnlocked();
    forge(AreasRequestCode, [](ForgedReplies::Reply& reply) {
        for (std::size_t entry = 12; entry + 20 <= reply.data.size(); entry += 20) {
            reply.data[entry] = 0;
        }
    });
    m_bench.press("UnlockingLogOff");
    EXPECT_FALSE(m_bench.computer.files.fileExistsAtPath("/media/user/PUBLIC"));
    EXPECT_FALSE(m_bench.computer.files.fileExistsAtPath("/media/user/PRIVATE"));
    EXPECT_THAT(m_bench.commands(), ElementsAre("TKVR21_GetAreaInfos", "TKVR21_Logout"));
    EXPECT_TRUE(m_bench.hasQuit());
}

TEST_F(SessionLogOffTest, AnUnreadableAreaTableIsReportedAndNothingIsTouched) {
    forgeResult(AreasRequestCode, kIOUSBPipeStalled);
    beginUnlocked();
    m_bench.press("UnlockingLogOff");
    EXPECT_EQ(alerts().size(), 1U);
    EXPECT_EQ(alerts().front(), localized("IDS_COMMAND_FAIL_WITH_SENSE_INFO", 0, 0, 0));
    EXPECT_THAT(m_bench.diskToolRuns(), IsEmpty());
    EXPECT_THAT(m_bench.commands(), Not(Contains("TKVR21_Logout")));
    EXPECT_EQ(state(), SecurityState::StateUnlocking);
    EXPECT_TRUE(m_bench.hasQuit());
}

TEST_F(SessionLogOffTest, AFailedReadLeavesTheAreaTableThatIsKnown) {
    beginUnlocked();
    std::uint32_t number = 0;
    ASSERT_TRUE(m_bench.app().GetSecureAreaDiskNumber(number));
    forgeResult(AreasRequestCode, kIOUSBPipeStalled);
    EXPECT_FALSE(m_bench.app().GetSecureAreaDiskNumber(number));
    EXPECT_EQ(number, 2U);
    EXPECT_EQ(m_bench.app().Settings.AreaInfos.entryCount(), 3U);
}

TEST_F(SessionLogOffTest, ARefusedLogOutGoesUnnoticed) {
    forgeResult(LogoutCode, kIOUSBPipeStalled);
    beginUnlocked();
    m_bench.press("UnlockingLogOff");
    EXPECT_THAT(alerts(), IsEmpty());
    EXPECT_TRUE(m_bench.hasQuit());
}

TEST_F(SessionLogOffTest, SetupClosesTheWindowAndOpensTheSettings) {
    beginUnlocked();
    m_bench.press("UnlockingSetup");
    EXPECT_EQ(m_bench.visibleWindow(), "MainSettingsWindow");
    EXPECT_FALSE(m_bench.hasQuit());
}

TEST_F(SessionLogOffTest, SetupFromTheUnlockedWindowOpensTheSettingsToo) {
    beginUnlocked();
    m_bench.app().UnlockingWindow.orderOut();
    m_bench.app().DisplayUnlockedWindow();
    m_bench.press("UnlockedSetup");
    EXPECT_EQ(m_bench.visibleWindow(), "MainSettingsWindow");
    EXPECT_FALSE(m_bench.hasQuit());
}

TEST_F(SessionLogOffTest, ClosingLeavesTheDriveUnlocked) {
    beginUnlocked();
    m_bench.press("UnlockingCancel");
    EXPECT_TRUE(m_bench.hasQuit());
    EXPECT_EQ(state(), SecurityState::StateUnlocking);
    EXPECT_THAT(m_bench.commands(), IsEmpty());
}

TEST_F(SessionLogOffTest, ClosingTheUnlockedWindowLeavesTheDriveUnlocked) {
    beginUnlocked();
    m_bench.app().UnlockingWindow.orderOut();
    m_bench.app().DisplayUnlockedWindow();
    m_bench.press("UnlockedOK");
    EXPECT_TRUE(m_bench.hasQuit());
    EXPECT_EQ(state(), SecurityState::StateUnlocking);
}

// --- The secure area's number ------------------------------------------------------------------

TEST_F(SessionLogOffTest, TheFirstSecureEntryIsCountedFromOne) {
    beginUnlocked();
    std::uint32_t number = 0;
    EXPECT_TRUE(m_bench.app().GetSecureAreaDiskNumber(number));
    EXPECT_EQ(number, 2U);
}

TEST_F(SessionLogOffTest, WithoutASecureEntryTheCallersNumberStays) {
    m_bench.plugNewDrive();
    m_bench.start();
    std::uint32_t number = 0;
    EXPECT_TRUE(m_bench.app().GetSecureAreaDiskNumber(number));
    EXPECT_EQ(number, 0U);
}

TEST_F(SessionLogOffTest, ATableThatClaimsMoreEntriesThanItHoldsIsReadToItsEndOnly) {
    forge(AreasRequestCode, [](ForgedReplies::Reply& reply) {
        std::ranges::fill(reply.data, 0);
        reply.data[0] = reply.data[1] = 0xFF;
    });
    m_bench.plugPreparedDrive();
    m_bench.start();
    std::uint32_t number = 7;
    EXPECT_TRUE(m_bench.app().GetSecureAreaDiskNumber(number));
    EXPECT_EQ(number, 7U);
}

// --- Volumes -----------------------------------------------------------------------------------

TEST_F(SessionLogOffTest, DiskNumberZeroListsEveryVolumeOfTheDrive) {
    beginUnlocked();
    m_bench.app().GetBsdNameList(0);
    EXPECT_GE(g_BsdNameList.size(), 6U) << "three disks and their partitions";
    m_bench.app().GetBsdNameList(2);
    EXPECT_EQ(g_BsdNameList.front() + "s1", mountedFrom("/media/user/PRIVATE"));
    m_bench.app().GetBsdNameList(4);
    EXPECT_THAT(g_BsdNameList, IsEmpty());
}

TEST_F(SessionLogOffTest, OnlyTheMountedNameIsUnmountedByItsBareName) {
    beginUnlocked();
    const std::string partition = mountedFrom("/media/user/PUBLIC");
    const std::string disk = partition.substr(0, partition.find('s', 4));
    EXPECT_TRUE(m_bench.app().UnmountVolume({disk, partition}, 0));
    EXPECT_THAT(m_bench.diskToolRuns(), ElementsAre("diskutil umount " + partition));
}

TEST_F(SessionLogOffTest, AWholeDiskThatIsMountedIsEjectedByItsName) {
    m_bench.computer.mounts.addForeign({"/media/user/WHOLE", "/dev/disk7"});
    beginUnlocked();
    (void)m_bench.app().UnmountVolume({"disk7"}, 1);
    EXPECT_THAT(m_bench.diskToolRuns(), ElementsAre("diskutil eject disk7"));
}

TEST_F(SessionLogOffTest, AVolumeMountedUnderAnotherPathFormCountsAsNotMounted) {
    m_bench.computer.mounts.addForeign({"/media/user/OTHER", "disk7"});
    beginUnlocked();
    EXPECT_TRUE(m_bench.app().UnmountVolume({"disk7"}, 0));
    EXPECT_THAT(m_bench.diskToolRuns(), IsEmpty());
}

TEST_F(SessionLogOffTest, AFailedRunDoesNotKeepTheOthersFromBeingTried) {
    beginUnlocked();
    const std::string busy = mountedFrom("/media/user/PUBLIC");
    const std::string free = mountedFrom("/media/user/PRIVATE");
    m_bench.computer.mounts.setHolders(busy, {"editor"});
    EXPECT_FALSE(m_bench.app().UnmountVolume({busy, free}, 0));
    EXPECT_EQ(m_bench.diskToolRuns().size(), 2U);
    EXPECT_EQ(mountedFrom("/media/user/PRIVATE"), "");
}

TEST_F(SessionLogOffTest, AnEmptyListIsUnmountedAtOnce) {
    beginUnlocked();
    EXPECT_TRUE(m_bench.app().UnmountVolume({}, 1));
    EXPECT_THAT(m_bench.diskToolRuns(), IsEmpty());
}

// --- Spin-up -----------------------------------------------------------------------------------

TEST_F(SessionLogOffTest, ADriveThatIsReadyIsNotWaitedFor) {
    beginUnlocked();
    EXPECT_TRUE(m_bench.app().SpinUpDrive());
    EXPECT_THAT(m_bench.computer.log.story(), ElementsAre("TKVR21_GetDeviceStatus"));
    EXPECT_EQ(m_bench.computer.log.latest("TKVR21_GetDeviceStatus")->setup.wValue, 1);
}

TEST_F(SessionLogOffTest, ADriveThatGetsReadyIsWaitedForSecondBySecond) {
    beginUnlocked();
    m_drive->drive().setNotReadyReads(3);
    EXPECT_TRUE(m_bench.app().SpinUpDrive());
    EXPECT_EQ(m_bench.computer.log.count("TKVR21_GetDeviceStatus"), 4U);
    EXPECT_EQ(m_bench.computer.log.count("sleep 1"), 3U);
}

TEST_F(SessionLogOffTest, ADriveThatNeverGetsReadyIsReadTenTimesThenSaidAndEndsTheApplication) {
    beginUnlocked();
    m_drive->drive().setNotReadyReads(1000);
    EXPECT_FALSE(m_bench.app().SpinUpDrive());
    EXPECT_EQ(m_bench.computer.log.count("TKVR21_GetDeviceStatus"), 10U);
    EXPECT_EQ(m_bench.computer.log.count("sleep 1"), 9U);
    EXPECT_THAT(alerts(), ElementsAre(localized("IDS_ERR_SPINUP")));
    EXPECT_TRUE(m_bench.hasQuit());
}

TEST_F(SessionLogOffTest, AFailedStatusReadDuringSpinUpIsReportedAndTheApplicationStays) {
    beginUnlocked();
    m_bench.unplug(m_drive);
    EXPECT_FALSE(m_bench.app().SpinUpDrive());
    EXPECT_THAT(alerts(), ElementsAre(localized("IDS_ERR_NOT_FOUND_ZELTO")));
    EXPECT_FALSE(m_bench.hasQuit());
}

} // namespace
} // namespace zelto::test
