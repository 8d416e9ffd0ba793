#include "platform/linux/MountInfo.h"
#include "platform/linux/LinuxMountTable.h"
#include "tests/support/SysfsTree.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zelto::test {
namespace {

using namespace linux_platform;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::Field;
using ::testing::IsEmpty;

auto mountedFrom(const char* device, const char* folder) {
    return AllOf(Field(&MountedFileSystem::f_mntfromname, device),
                 Field(&MountedFileSystem::f_mntonname, folder));
}

TEST(MountInfo, ListsFileSystemsInTheKernelsOrder) {
    EXPECT_THAT(parseMountInfo(
                    "22 1 8:2 / / rw,relatime shared:1 - ext4 /dev/sda2 rw\n"
                    "90 22 8:17 / /media/alice/TOOL rw,nosuid shared:45 - vfat /dev/sdb1 rw,flush\n"
                    "23 22 0:21 / /proc rw - proc proc rw\n"),
                ElementsAre(mountedFrom("/dev/sda2", "/"),
                            mountedFrom("/dev/sdb1", "/media/alice/TOOL"),
                            mountedFrom("proc", "/proc")));
}

TEST(MountInfo, DecodesBlanksTabsLineEndsAndBackslashes) {
    EXPECT_THAT(
        parseMountInfo("90 22 8:17 / /media/a/ZELTO\\040TOOL\\011x\\012y\\134z rw shared:45 "
                       "- vfat /dev/my\\040disk rw\n"),
        ElementsAre(mountedFrom("/dev/my disk", "/media/a/ZELTO TOOL\tx\ny\\z")));
}

TEST(MountInfo, KeepsNonAsciiNames) {
    EXPECT_THAT(parseMountInfo("90 22 8:17 / /media/jörg/Schlüssel rw - vfat /dev/sdb1 rw"),
                ElementsAre(mountedFrom("/dev/sdb1", "/media/jörg/Schlüssel")));
}

TEST(MountInfo, AcceptsNoTagsAndManyTags) {
    EXPECT_THAT(parseMountInfo("1 2 8:1 / /a rw - vfat /dev/a rw\n"
                               "1 2 8:2 / /b rw shared:1 master:2 propagate_from:3 - vfat /dev/b "
                               "rw\n"),
                ElementsAre(mountedFrom("/dev/a", "/a"), mountedFrom("/dev/b", "/b")));
}

TEST(MountInfo, PassesOverTruncatedAndSenselessLines) {
    EXPECT_THAT(parseMountInfo("\n"
                               " \n"
                               "36\n"
                               "36 35 98:0 / /mnt rw\n"
                               "36 35 98:0 / /mnt rw noatime - ext3\n"
                               "36 35 98:0 / /mnt rw noatime ext3 /dev/x rw\n"
                               "1 2 8:1 / /a rw - vfat /dev/a rw\n"
                               "36 35 98:0 / /mn"),
                ElementsAre(mountedFrom("/dev/a", "/a")));
}

TEST(MountInfo, SurvivesVeryLongLines) {
    const std::string folder(200'000, 'x');
    const auto mounted = parseMountInfo("1 2 8:1 / /" + folder + " rw - vfat /dev/a rw\n" +
                                        std::string(100'000, ' '));
    ASSERT_EQ(mounted.size(), 1U);
    EXPECT_EQ(mounted[0].f_mntonname, "/" + folder);
}

TEST(MountInfo, LeavesWhatIsNoEscapeAlone) {
    EXPECT_EQ(decodeOctalEscapes("\\"), "\\");
    EXPECT_EQ(decodeOctalEscapes("a\\04"), "a\\04");
    EXPECT_EQ(decodeOctalEscapes("\\089"), "\\089");
    EXPECT_EQ(decodeOctalEscapes("\\777"), "\\777");
    EXPECT_EQ(decodeOctalEscapes("\\134040"), "\\040");
    EXPECT_EQ(decodeOctalEscapes("\\377"), "\xff");
}

TEST(LinuxMountTable, ReadsTheTableAfreshEachTime) {
    const TemporaryFolder folder;
    LinuxMountTable table(folder / "mountinfo");
    EXPECT_THAT(table.getmntinfo(), IsEmpty());
    folder.write("mountinfo", "1 2 8:1 / /a rw - vfat /dev/a rw\n");
    EXPECT_THAT(table.getmntinfo(), ElementsAre(mountedFrom("/dev/a", "/a")));
    folder.write("mountinfo", "");
    EXPECT_THAT(table.getmntinfo(), IsEmpty());
}

// Not the root: it is missing from the table of a process that lives in a changed root.
TEST(LinuxMountTable, HasTheFileSystemThatTheTableItselfIsReadFrom) {
    EXPECT_THAT(LinuxMountTable().getmntinfo(),
                ::testing::Contains(Field(&MountedFileSystem::f_mntonname, "/proc")));
}

TEST(MountTable, NamesDevicesAsTheKernelDoes) {
    const SysfsTree tree;
    tree.addUsbDevice("pci/usb1/1-1", 1, 5, "07f7", "0135", "ZD");
    const auto disk = tree.addDisk("pci/usb1/1-1", 0, "sdb", "ZELTO DISK1     ", 2048);
    tree.addPartition(disk, "sdb1", 1);
    tree.addMapping("dm-0", "253:0", "luks-1", {disk + "/sdb1"});
    const TemporaryFolder folder;
    folder.write("mountinfo", "90 22 8:17 / /media/a/TOOL rw - vfat /dev/disk/by-label/TOOL rw\n"
                              "91 22 253:0 / /media/a/SECRET rw - ext4 /dev/mapper/luks-1 rw\n"
                              "92 22 0:45 / /srv/a rw - btrfs /dev/mapper/luks-1 rw\n"
                              "93 22 0:46 / /srv/b rw - btrfs /dev/sdb1 rw\n"
                              "94 22 0:47 / /srv/c rw - btrfs /dev/mapper/unknown rw\n"
                              "95 22 8:17 / /srv/d rw - vfat sdb1 rw\n"
                              "96 22 0:21 / /proc rw - proc proc rw\n");
    EXPECT_THAT(LinuxMountTable(folder / "mountinfo", tree.path()).getmntinfo(),
                ElementsAre(mountedFrom("/dev/sdb1", "/media/a/TOOL"),
                            mountedFrom("/dev/dm-0", "/media/a/SECRET"),
                            mountedFrom("/dev/dm-0", "/srv/a"), mountedFrom("/dev/sdb1", "/srv/b"),
                            mountedFrom("/dev/mapper/unknown", "/srv/c"),
                            mountedFrom("sdb1", "/srv/d"), mountedFrom("proc", "/proc")));
}

} // namespace
} // namespace zelto::test
