#include "platform/linux/ProcessList.h"
#include "platform/linux/DiskHolders.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <unistd.h>

namespace zelto::test {
namespace {

using namespace linux_platform;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A /proc that the tests write themselves.
class Holders : public ::testing::Test {
protected:
    void addProcess(const std::string& number, const std::string& name,
                    const std::string& program) const {
        proc.write(number + "/comm", name + "\n");
        proc.makeFolder(number + "/fd");
        proc.link(number + "/cwd", "/");
        proc.link(number + "/root", "/");
        proc.link(number + "/exe", program);
        proc.write(number + "/maps", "");
    }

    [[nodiscard]] std::vector<std::string> holders(uid_t user = ::getuid()) const {
        return programsHolding({"/dev/sdb", "/dev/sdb1"}, mounted, proc.path(), user);
    }

    TemporaryFolder proc;
    std::vector<MountedFileSystem> mounted{
        {"/", "/dev/sda1"}, {"/media/a/My Disk", "/dev/sdb1"}, {"/media/a/My Disk 2", "/dev/sdc1"}};
};

TEST_F(Holders, AreFoundByWorkingFolderRootProgramOpenFileMappedFileAndDevice) {
    addProcess("10", "bash", "/usr/bin/bash");
    std::filesystem::remove(proc / "10/cwd");
    proc.link("10/cwd", "/media/a/My Disk");
    addProcess("11", "chrooted", "/usr/bin/x");
    std::filesystem::remove(proc / "11/root");
    proc.link("11/root", "/media/a/My Disk/root");
    addProcess("12", "tool", "/media/a/My Disk/tool");
    addProcess("13", "editor", "/usr/bin/editor");
    proc.link("13/fd/7", "/media/a/My Disk/letter.odt (deleted)");
    addProcess("14", "player", "/usr/bin/player");
    proc.write("14/maps", "7f0000000000-7f0000001000 r--p 00000000 08:11 12       "
                          "          /media/a/My Disk/film.mkv\n");
    addProcess("15", "dd", "/usr/bin/dd");
    proc.link("15/fd/3", "/dev/sdb");
    EXPECT_THAT(holders(), ElementsAre("bash", "chrooted", "dd", "editor", "player", "tool"));
}

TEST_F(Holders, AreNotTheProgramsBesideTheVolume) {
    addProcess("10", "bash", "/usr/bin/bash");
    proc.link("10/fd/3", "/media/a/My Disk 2/file");
    proc.link("10/fd/4", "/media/a/My Disky");
    proc.link("10/fd/5", "/dev/sdb10");
    proc.link("10/fd/6", "socket:[123]");
    EXPECT_THAT(holders(), IsEmpty());
}

TEST_F(Holders, AreNamedOnceHoweverManyProcessesHold) {
    for (const auto* number : {"10", "11"}) {
        addProcess(number, "bash", "/usr/bin/bash");
        proc.link(std::string(number) + "/fd/3", "/media/a/My Disk/file");
    }
    EXPECT_THAT(holders(), ElementsAre("bash"));
}

TEST_F(Holders, AreNamedInFullWhereTheKernelCutsTheNameShort) {
    addProcess("10", "gnome-text-edit", "/usr/bin/gnome-text-editor");
    proc.link("10/fd/3", "/media/a/My Disk/file");
    EXPECT_THAT(holders(), ElementsAre("gnome-text-editor"));
}

TEST_F(Holders, OfOtherUsersAreLeftOut) {
    addProcess("10", "bash", "/usr/bin/bash");
    proc.link("10/fd/3", "/media/a/My Disk/file");
    EXPECT_THAT(holders(::getuid() + 1), IsEmpty());
}

TEST_F(Holders, AreNoneWhereProcHoldsNonsense) {
    proc.write("self/comm", "x\n");
    proc.write("12", "a file\n");
    proc.makeFolder("13");
    proc.makeFolder("99999999999999999999");
    proc.write("14/maps", "garbage\n-\n1-\n1-2\n\n7f-80 r--p 0 0:0 0 relative\n7f0 r--p\n");
    EXPECT_THAT(holders(), IsEmpty());
}

TEST(FileMappings, HaveAddressesAndPathsWithBlanks) {
    const auto mappings =
        parseFileMappings("55d0-55e0 r-xp 00000000 08:01 123    /a b/c (deleted)\n"
                          "7f00-7f10 rw-p 00000000 00:00 0 \n"
                          "7f20-7f30 rw-p 00000000 00:00 0    [heap]\n");
    ASSERT_EQ(mappings.size(), 1U);
    EXPECT_EQ(mappings[0].begin, 0x55d0U);
    EXPECT_EQ(mappings[0].end, 0x55e0U);
    EXPECT_EQ(withoutDeletedRemark(mappings[0].path), "/a b/c");
}

TEST(FileMappings, TellWhatIsMappedToAnAddress) {
    const std::string text = "55d0-55e0 r-xp 00000000 08:01 123    /a\n"
                             "55e0-55f0 rw-p 00000000 08:01 124    /b\n"
                             "7f20-7f30 rw-p 00000000 00:00 0    [heap]\n";
    EXPECT_EQ(fileMappedAt(0x55cf, text), std::nullopt);
    EXPECT_EQ(fileMappedAt(0x55d0, text), "/a");
    EXPECT_EQ(fileMappedAt(0x55df, text), "/a");
    EXPECT_EQ(fileMappedAt(0x55e0, text), "/b");
    EXPECT_EQ(fileMappedAt(0x7f20, text), std::nullopt);
}

TEST(Processes, AreListedByNumberThisOneAmongThem) {
    const Process self("/proc/" + std::to_string(::getpid()));
    EXPECT_TRUE(self.belongsTo(::getuid()));
    EXPECT_EQ(self.name(), "platform_tests");
    EXPECT_FALSE(processes("/proc").empty());
}

/// A process that keeps its memory, and with it the file of its program, to itself.
class HiddenProgram : public ::testing::Test {
protected:
    [[nodiscard]] std::optional<std::string> startedBy(const std::string& user,
                                                       const std::string& commandLine) const {
        proc.write("10/status", "Name:\tzelto\nUmask:\t0022\nUid:\t" + user + "\t" + user + "\n");
        proc.write("10/cmdline", commandLine);
        return Process(proc / "10").executable();
    }

    const std::string self = std::to_string(::getuid());
    TemporaryFolder proc;
};

TEST_F(HiddenProgram, OfThisUserIsKnownByHowItWasStarted) {
    EXPECT_EQ(startedBy(self, std::string("/home/a/at/zelto\0--help\0", 24)), "/home/a/at/zelto");
    EXPECT_EQ(startedBy(self, "/home/a/at/zelto"), "/home/a/at/zelto");
}

TEST_F(HiddenProgram, OfAnotherUserIsNotBelieved) {
    EXPECT_EQ(startedBy(std::to_string(::getuid() + 1), "/home/a/at/zelto"), std::nullopt);
}

TEST_F(HiddenProgram, StartedWithoutAPathIsNotKnown) {
    EXPECT_EQ(startedBy(self, "zelto"), std::nullopt);
    EXPECT_EQ(startedBy(self, ""), std::nullopt);
}

TEST_F(HiddenProgram, WithoutAUserIsNotKnown) {
    EXPECT_EQ(startedBy("", "/home/a/at/zelto"), std::nullopt);
    EXPECT_EQ(startedBy("x", "/home/a/at/zelto"), std::nullopt);
    EXPECT_EQ(Process(proc / "11").executable(), std::nullopt);
}

} // namespace
} // namespace zelto::test
