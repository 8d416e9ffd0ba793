#include "simulator/computer/VirtualComputer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zelto::test {
namespace {

using namespace simulator;
using testing::Contains;
using testing::ElementsAre;

const std::filesystem::path Bundle = "/home/user/Applications/ZeltoAppMac.app";
const std::filesystem::path OnTool = "/media/user/ZELTO TOOL/ZeltoAppMac.app";

class VirtualFilesTest : public testing::Test {
protected:
    void plugWithToolVolume(std::uint64_t sectors = 40960) {
        m_drive = makeDrive("ZD0000000000A1", sectors);
        m_computer.plug(m_drive);
        ASSERT_TRUE(m_computer.diskTool.eraseDisk(
            "disk2", m_computer.disks.find("disk2")->identity(), "ZELTO TOOL"));
    }

    VirtualComputer m_computer;
    VirtualFiles& m_files = m_computer.files;
    std::shared_ptr<DriveOnBus> m_drive;
};

TEST_F(VirtualFilesTest, HoldTheProgramsOwnBundle) {
    EXPECT_EQ(m_files.bundlePath(), Bundle);
    EXPECT_TRUE(m_files.fileExistsAtPath(Bundle / "bin/zelto"));
    EXPECT_THAT(m_files.launchedApplications(), Contains(Bundle));
}

TEST_F(VirtualFilesTest, CopyABundleOntoTheDrivesMediumByteForByte) {
    plugWithToolVolume();
    EXPECT_TRUE(m_files.copyItemAtPath(Bundle, OnTool));
    EXPECT_TRUE(m_files.areEqual(Bundle, OnTool));
    m_computer.replug(m_drive);
    EXPECT_TRUE(m_files.areEqual(Bundle, OnTool));
    m_computer.unplug(m_drive);
    EXPECT_FALSE(m_files.fileExistsAtPath(OnTool));
}

TEST_F(VirtualFilesTest, KeepTheDatesOfWhatIsCopied) {
    plugWithToolVolume();
    ASSERT_TRUE(m_files.copyItemAtPath(Bundle, OnTool));
    EXPECT_EQ(m_files.fileModificationDate(OnTool), m_files.fileModificationDate(Bundle));
    EXPECT_FALSE(m_files.fileModificationDate("/nowhere"));
}

TEST_F(VirtualFilesTest, LeaveNothingOfACopyThatDoesNotFitOnTheVolume) {
    plugWithToolVolume(512);
    EXPECT_FALSE(m_files.copyItemAtPath(Bundle, OnTool));
    EXPECT_FALSE(m_files.fileExistsAtPath(OnTool));
}

TEST_F(VirtualFilesTest, KeepWhatAFailedCopyWasToReplace) {
    plugWithToolVolume(512);
    const std::filesystem::path source = "/home/user/small";
    const std::filesystem::path target = "/media/user/ZELTO TOOL/file";
    ASSERT_TRUE(
        m_files.ownDisk().writeFile(VirtualFiles::onOwnDisk(source), FileTree::Bytes(1000, 2), {}));
    ASSERT_TRUE(m_files.copyItemAtPath(source, target));
    EXPECT_FALSE(m_files.copyItemAtPath(Bundle, target));
    EXPECT_TRUE(m_files.areEqual(source, target));
}

TEST_F(VirtualFilesTest, CopyNothingIntoAFolderThatIsReadOnly) {
    m_files.ownDisk().setWritable("home/user", false);
    EXPECT_FALSE(m_files.copyItemAtPath(Bundle, "/home/user/Copy.app"));
    EXPECT_FALSE(m_files.fileExistsAtPath("/home/user/Copy.app"));
}

TEST_F(VirtualFilesTest, CopyNeitherWhatIsMissingNorAFolderIntoItself) {
    EXPECT_FALSE(m_files.copyItemAtPath("/nowhere", "/home/user/Copy.app"));
    EXPECT_FALSE(m_files.copyItemAtPath(Bundle, Bundle / "inside"));
    EXPECT_FALSE(m_files.copyItemAtPath(Bundle, Bundle));
    EXPECT_TRUE(m_files.fileExistsAtPath(Bundle / "bin/zelto"));
}

TEST_F(VirtualFilesTest, CopyOverAFileThatStandsWhereTheFolderGoes) {
    ASSERT_TRUE(m_files.ownDisk().writeFile("home/user/Copy.app", FileTree::Bytes(3), {}));
    EXPECT_TRUE(m_files.copyItemAtPath(Bundle, "/home/user/Copy.app"));
    EXPECT_TRUE(m_files.areEqual(Bundle, "/home/user/Copy.app"));
}

TEST_F(VirtualFilesTest, MakeTheFolderThatACopyGoesTo) {
    EXPECT_TRUE(m_files.copyItemAtPath(Bundle, "/srv/new/folder/Copy.app"));
    EXPECT_TRUE(m_files.areEqual(Bundle, "/srv/new/folder/Copy.app"));
}

TEST_F(VirtualFilesTest, ClearTheImmutableFlagWithTheFlagTool) {
    m_files.ownDisk().setWritable(VirtualFiles::onOwnDisk(Bundle), false);
    EXPECT_FALSE(m_files.isWritableFileAtPath(Bundle));
    EXPECT_FALSE(m_files.removeItemAtPath(Bundle));
    EXPECT_NE(m_files.chflags("uchg", Bundle), 0);
    EXPECT_EQ(m_files.chflags("nouchg", Bundle), 0);
    EXPECT_TRUE(m_files.isWritableFileAtPath(Bundle));
    EXPECT_TRUE(m_files.removeItemAtPath(Bundle));
    EXPECT_FALSE(m_files.fileExistsAtPath(Bundle));
}

TEST_F(VirtualFilesTest, RecordWhatWasOpened) {
    EXPECT_EQ(m_files.open(Bundle), 0);
    EXPECT_NE(m_files.open("/nowhere.app"), 0);
    EXPECT_THAT(m_files.opened(), ElementsAre(Bundle, "/nowhere.app"));
}

} // namespace
} // namespace zelto::test
