#include "platform/linux/MountInfo.h"
#include "platform/linux/LinuxMountTable.h"
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

} // namespace
} // namespace zelto::test
