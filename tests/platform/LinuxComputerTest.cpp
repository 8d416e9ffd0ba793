#include "platform/linux/LinuxComputer.h"
#include "platform/linux/DetachedStart.h"
#include "tests/support/SysfsTree.h"
#include "tests/support/TemporaryFolder.h"

#include <QEventLoop>
#include <QFileSystemWatcher>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <fcntl.h>
#include <pwd.h>
#include <unistd.h>

namespace zelto::test {
namespace {

using namespace linux_platform;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
namespace fs = std::filesystem;

class ComputerTest : public ::testing::Test {
public:
    ComputerTest() {
        if (const char* home = std::getenv("HOME")) {
            m_home = home;
        }
    }
    ComputerTest(const ComputerTest&) = delete;
    ComputerTest& operator=(const ComputerTest&) = delete;
    ~ComputerTest() override { ::setenv("HOME", m_home.c_str(), 1); }

protected:
    Waiting waiting;
    LinuxComputer computer{waiting};
    TemporaryFolder folder;

private:
    std::string m_home = "/";
};

TEST_F(ComputerTest, KnowsTheFolderOfAProgramThatLiesInNoBundle) {
    EXPECT_EQ(computer.bundlePath(), fs::read_symlink("/proc/self/exe").parent_path());
}

TEST_F(ComputerTest, KnowsItsBundleAlsoWhenTheLoaderWasStartedInItsPlace) {
    // What the kernel shows for a program that was handed to the dynamic loader.
    folder.link("self/exe", "/lib64/ld-linux-x86-64.so.2");
    folder.write("self/maps", "0-ffffffffffffffff r-xp 00000000 08:11 7    "
                              "/media/ä/ZELTO TOOL/ZeltoAppMac.app/zelto\n");
    EXPECT_EQ(LinuxComputer(waiting, folder.path()).bundlePath(),
              "/media/ä/ZELTO TOOL/ZeltoAppMac.app");
}

TEST_F(ComputerTest, FallsBackOnTheProgramsLinkWithoutMappings) {
    folder.link("self/exe", "/media/a/ZELTO TOOL/ZeltoAppMac.app/zelto (deleted)");
    EXPECT_EQ(LinuxComputer(waiting, folder.path()).bundlePath(),
              "/media/a/ZELTO TOOL/ZeltoAppMac.app");
}

TEST_F(ComputerTest, OffersWhatItsBundleHasForTheVolumesRoot) {
    const auto program = folder / "ZeltoAppMac.app/zelto";
    folder.link("proc/self/exe", program.string());
    const LinuxComputer inBundle(waiting, folder / "proc");
    EXPECT_THAT(inBundle.filesBesideBundle(), IsEmpty());
    folder.write("ZeltoAppMac.app/autorun.sh", "");
    EXPECT_THAT(inBundle.filesBesideBundle(), ElementsAre(folder / "ZeltoAppMac.app/autorun.sh"));
}

TEST_F(ComputerTest, ListsRunningApplicationsByBundleOrProgram) {
    folder.link("7/exe", "/home/a/Applications/ZeltoAppMac.app/zelto");
    folder.link("12/exe", "/usr/bin/bash");
    folder.link("13/exe", "/home/a/Applications/Old.app/zelto (deleted)");
    folder.makeFolder("14");
    folder.link("self/exe", "/usr/bin/bash");
    EXPECT_THAT(LinuxComputer(waiting, folder.path()).launchedApplications(),
                ElementsAre("/home/a/Applications/ZeltoAppMac.app", "/usr/bin/bash",
                            "/home/a/Applications/Old.app"));
}

TEST_F(ComputerTest, RunsItself) {
    EXPECT_THAT(computer.launchedApplications(), Contains(fs::read_symlink("/proc/self/exe")));
}

TEST_F(ComputerTest, InstallsIntoTheHomeFolderWithItsLinksResolved) {
    folder.makeFolder("real home");
    folder.link("home", (folder / "real home").string());
    ::setenv("HOME", (folder / "home").c_str(), 1);
    EXPECT_EQ(computer.applicationsFolder(), fs::canonical(folder / "real home") / "Applications");
}

TEST_F(ComputerTest, TakesTheHomeFolderOfThePasswordDatabaseWhenNoneIsSet) {
    const auto* entry = ::getpwuid(::getuid());
    if (entry == nullptr) {
        GTEST_SKIP() << "this user is not in the password database";
    }
    const auto expected = fs::weakly_canonical(fs::path(entry->pw_dir) / "Applications");
    ::unsetenv("HOME");
    EXPECT_EQ(computer.applicationsFolder(), expected);
    ::setenv("HOME", "not absolute", 1);
    EXPECT_EQ(computer.applicationsFolder(), expected);
}

TEST_F(ComputerTest, CopiesAndRemovesWhileTheEventLoopRuns) {
    folder.write("bundle/file", "data");
    bool loopRan = false;
    QTimer::singleShot(0, [&] { loopRan = true; });
    EXPECT_TRUE(computer.copyItemAtPath(folder / "bundle", folder / "copy"));
    EXPECT_TRUE(loopRan);
    EXPECT_EQ(folder.read("copy/file"), "data");
    EXPECT_EQ(computer.fileModificationDate(folder / "bundle"),
              computer.fileModificationDate(folder / "copy"));
    EXPECT_TRUE(computer.removeItemAtPath(folder / "copy"));
    EXPECT_FALSE(computer.fileExistsAtPath(folder / "copy"));
    EXPECT_FALSE(computer.removeItemAtPath(folder / "copy"));
}

TEST_F(ComputerTest, TellsWhatExistsAndWhatCanBeWritten) {
    folder.write("file", "");
    EXPECT_TRUE(computer.fileExistsAtPath(folder / "file"));
    EXPECT_TRUE(computer.isWritableFileAtPath(folder / "file"));
    EXPECT_FALSE(computer.fileExistsAtPath(folder / "nothing"));
    EXPECT_FALSE(computer.isWritableFileAtPath(folder / "nothing"));
    EXPECT_EQ(computer.fileModificationDate(folder / "nothing"), std::nullopt);
}

TEST_F(ComputerTest, UnlocksForTheOneFlagThatItKnows) {
    folder.write("file", "");
    fs::permissions(folder / "file", fs::perms(0444));
    EXPECT_EQ(computer.chflags("uchg", folder / "file"), 1);
    EXPECT_EQ(computer.chflags("nouchg", folder / "file"), 0);
    EXPECT_EQ(computer.chflags("nouchg", folder / "nothing"), 1);
    EXPECT_NE(fs::status(folder / "file").permissions() & fs::perms::owner_write, fs::perms::none);
}

TEST_F(ComputerTest, SaysWhenTheBundleCannotBeStarted) {
    EXPECT_EQ(computer.open(folder / "Nothing.app"), 1);
    folder.write("Broken.app/platform_tests", "no program");
    EXPECT_EQ(computer.open(folder / "Broken.app"), 1);
}

/// Waits, on the event loop, until a file has come into a folder by renaming.
void waitForFile(const fs::path& file) {
    QFileSystemWatcher watcher({QString::fromStdString(file.parent_path().string())});
    QEventLoop loop;
    QObject::connect(&watcher, &QFileSystemWatcher::directoryChanged, &loop, [&] {
        if (fs::exists(file)) {
            loop.quit();
        }
    });
    QTimer::singleShot(std::chrono::seconds(60), &loop, &QEventLoop::quit);
    if (!fs::exists(file)) {
        loop.exec();
    }
}

TEST_F(ComputerTest, StartsAScriptByTheShellWhereNothingMayBeExecuted) {
    const auto report = (folder / "report").string();
    folder.write("home/Zelto Ü.app/platform_tests", "#!/bin/sh\necho \"$0\" > '" + report +
                                                        ".part'\nmv '" + report + ".part' '" +
                                                        report + "'\n");
    // A file without the permission is refused as one on a volume mounted "noexec" is.
    const auto program = folder / "home/Zelto Ü.app/platform_tests";
    fs::permissions(program, fs::perms(0644));
    EXPECT_EQ(computer.open(program.parent_path()), 0);
    waitForFile(report);
    EXPECT_EQ(folder.read("report"), program.string() + "\n");
}

/// A computer whose drive's partition and the mapping that it holds are mounted somewhere.
TEST_F(ComputerTest, CountsTheDrivesOwnMountPointsAsMountRoots) {
    const SysfsTree tree;
    tree.addUsbDevice("pci/usb1/1-1", 1, 5, "07f7", "0135", "ZD");
    tree.addUsbDevice("pci/usb1/1-2", 1, 6, "0951", "1666", "OTHER");
    const auto disk = tree.addDisk("pci/usb1/1-1", 0, "sdb", "ZELTO DISK1     ", 2048);
    tree.addPartition(disk, "sdb1", 1);
    tree.addPartition(disk, "sdb2", 2, "8:18");
    tree.addMapping("dm-0", "253:0", "luks-1", {disk + "/sdb2"});
    tree.addDisk("pci/usb1/1-2", 0, "sdc", "STICK           ", 2048, "8:32");
    folder.write("self/mountinfo", "22 1 8:2 / / rw - ext4 /dev/sda2 rw\n"
                                   "90 22 8:17 / /mnt/my\\040stick rw - vfat /dev/sdb1 rw\n"
                                   "91 22 253:0 / /srv/secret rw - ext4 /dev/mapper/luks-1 rw\n"
                                   "92 22 0:45 / /srv/btrfs rw - btrfs /dev/mapper/luks-1 rw\n"
                                   "93 22 8:32 / /mnt/other rw - vfat /dev/sdc rw\n"
                                   "94 22 8:17 / / rw - vfat /dev/sdb1 rw\n"
                                   "95 22 0:21 / /proc rw - proc proc rw\n");
    const LinuxComputer mounting(waiting, folder.path(), tree.path());
    EXPECT_THAT(mounting.mountRoots({0x07f7, 0x0135}),
                ElementsAre("/media", "/run/media", "/mnt/my stick", "/srv/secret", "/srv/btrfs"));
    EXPECT_THAT(mounting.mountRoots({0x07f7, 0x0136}), ElementsAre("/media", "/run/media"));
}

TEST_F(ComputerTest, StartsTheProgramFreeOfEverythingThatWouldKeepAVolumeBusy) {
    const auto report = (folder / "report").string();
    folder.write("volume/Zelto Ü.app/platform_tests",
                 "#!/bin/sh\n"
                 "{ pwd; ls -l /proc/$$/fd | grep -c volume; echo \"[$LD_LIBRARY_PATH]\"; "
                 "echo \"$0\"; } > '" +
                     report + ".part' 2>&1\nmv '" + report + ".part' '" + report + "'\n");
    const auto bundle = folder / "volume/Zelto Ü.app";
    fs::permissions(bundle / "platform_tests", fs::perms(0755));
    folder.write("volume/open file", "");
    // Deliberately without O_CLOEXEC: it would be inherited.
    const int leaked = ::open((folder / "volume/open file").c_str(), O_RDONLY);
    ASSERT_GE(leaked, 0);
    ::setenv("LD_LIBRARY_PATH", (folder / "volume").c_str(), 1);

    EXPECT_EQ(computer.open(bundle), 0);
    waitForFile(report);

    ::unsetenv("LD_LIBRARY_PATH");
    ::close(leaked);
    // One descriptor does lead there: the script that the shell is reading.
    EXPECT_EQ(folder.read("report"), "/\n1\n[]\n" + (bundle / "platform_tests").string() + "\n");
}

} // namespace
} // namespace zelto::test
