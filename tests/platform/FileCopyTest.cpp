#include "platform/linux/FileCopy.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <functional>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zelto::test {
namespace {

using namespace linux_platform;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
namespace fs = std::filesystem;

void setDate(const fs::path& path, std::time_t date) {
    const timespec times[2] = {{date, 0}, {date, 999'999'999}};
    ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), times, AT_SYMLINK_NOFOLLOW), 0);
}

std::time_t dateOf(const fs::path& path) {
    struct stat status {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0) << path;
    return status.st_mtim.tv_sec;
}

mode_t modeOf(const fs::path& path) {
    struct stat status {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0) << path;
    return status.st_mode & 07777U;
}

std::vector<std::string> namesIn(const fs::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) {
        names.push_back(entry.path().filename().string());
    }
    std::ranges::sort(names);
    return names;
}

/// Does something as a user without privileges, in a process of its own when this one is root, for
/// whom nothing is read-only. The result is what `work` returned.
bool asOrdinaryUser(const std::function<bool()>& work) {
    constexpr uid_t Nobody = 65534;
    if (::getuid() != 0) {
        return work();
    }
    const auto child = ::fork();
    if (child == 0) {
        const bool changed = ::setgid(Nobody) == 0 && ::setuid(Nobody) == 0;
        ::_exit(!changed ? 2 : work() ? 0 : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_NE(WEXITSTATUS(status), 2) << "could not become an ordinary user";
    return WEXITSTATUS(status) == 0;
}

class FileCopy : public ::testing::Test {
protected:
    FileCopy() {
        folder.write("from/Zelto Ü.app/zelto", std::string("\x7f"
                                                           "ELF") +
                                                   std::string(1'000'000, 'x'));
        folder.write("from/Zelto Ü.app/lib/data.bin", "data");
        folder.write("from/Zelto Ü.app/empty", "");
        setDate(source / "lib", 1'700'000'004);
        setDate(source / "lib/data.bin", 1'700'000'005);
        setDate(source, 1'700'000'007);
        folder.makeFolder("to");
    }

    TemporaryFolder folder;
    const fs::path source = folder / "from/Zelto Ü.app";
    const fs::path destination = folder / "to/Zelto Ü.app";
};

TEST_F(FileCopy, BringsAFolderWithAllThatIsInItAndItsDates) {
    ASSERT_TRUE(copyItem(source, destination));
    EXPECT_THAT(namesIn(destination), ElementsAre("empty", "lib", "zelto"));
    EXPECT_EQ(folder.read("to/Zelto Ü.app/zelto"), folder.read("from/Zelto Ü.app/zelto"));
    EXPECT_EQ(folder.read("to/Zelto Ü.app/lib/data.bin"), "data");
    EXPECT_EQ(dateOf(destination), 1'700'000'007);
    EXPECT_EQ(dateOf(destination / "lib"), 1'700'000'004);
    EXPECT_EQ(dateOf(destination / "lib/data.bin"), 1'700'000'005);
    EXPECT_THAT(namesIn(folder / "to"), ElementsAre("Zelto Ü.app"));
}

TEST_F(FileCopy, MakesProgramsExecutableThatCameFromAVolumeWithoutPermissions) {
    fs::permissions(source / "zelto", fs::perms(0600));
    folder.write("from/Zelto Ü.app/autorun.sh", "#!/bin/sh\n");
    fs::permissions(source / "lib/data.bin", fs::perms(0400));
    ASSERT_TRUE(copyItem(source, destination));
    EXPECT_EQ(modeOf(destination / "zelto"), 0755U);
    EXPECT_EQ(modeOf(destination / "autorun.sh"), 0755U);
    EXPECT_EQ(modeOf(destination / "lib/data.bin"), 0644U);
    EXPECT_EQ(modeOf(destination), 0755U);
}

TEST_F(FileCopy, CopiesASingleFile) {
    ASSERT_TRUE(copyItem(source / "lib/data.bin", folder / "to/data.bin"));
    EXPECT_EQ(folder.read("to/data.bin"), "data");
    EXPECT_EQ(dateOf(folder / "to/data.bin"), 1'700'000'005);
}

TEST_F(FileCopy, ReplacesWhatIsThereWithoutMixingTheTwo) {
    folder.write("to/Zelto Ü.app/old file", "old");
    ASSERT_TRUE(copyItem(source, destination));
    EXPECT_THAT(namesIn(destination), ElementsAre("empty", "lib", "zelto"));
    EXPECT_THAT(namesIn(folder / "to"), ElementsAre("Zelto Ü.app"));
}

TEST_F(FileCopy, ReplacesAFileThatStandsInTheFoldersPlace) {
    folder.write("to/Zelto Ü.app", "a file");
    ASSERT_TRUE(copyItem(source, destination));
    EXPECT_TRUE(fs::is_directory(destination));
}

TEST_F(FileCopy, MakesTheDestinationsFolderButNoMoreThanThatOne) {
    EXPECT_TRUE(copyItem(source, folder / "Applications/Zelto.app"));
    EXPECT_FALSE(copyItem(source, folder / "gone/volume/Zelto.app"));
    EXPECT_FALSE(fs::exists(folder / "gone"));
}

TEST_F(FileCopy, FailsWhereTheDestinationsFolderIsAFile) {
    folder.write("Applications", "a file");
    EXPECT_FALSE(copyItem(source, folder / "Applications/Zelto.app"));
    EXPECT_EQ(folder.read("Applications"), "a file");
}

TEST_F(FileCopy, FailsWithoutASource) {
    EXPECT_FALSE(copyItem(folder / "nothing", destination));
    EXPECT_FALSE(copyItem(source, {}));
    EXPECT_THAT(namesIn(folder / "to"), IsEmpty());
}

TEST_F(FileCopy, FailsOnALinkInsteadOfBringingWhatItLeadsTo) {
    folder.write("elsewhere/precious", "mine");
    folder.link("from/Zelto Ü.app/lib/licence.txt", (folder / "elsewhere/precious").string());
    EXPECT_FALSE(copyItem(source, destination));
    folder.link("from/Linked.app", source.string());
    EXPECT_FALSE(copyItem(folder / "from/Linked.app", destination));
    EXPECT_THAT(namesIn(folder / "to"), IsEmpty());
}

TEST_F(FileCopy, FailsOnLinksThatWouldGoRoundInCircles) {
    folder.link("from/Zelto Ü.app/lib/again", "..");
    EXPECT_FALSE(copyItem(source, destination));
    EXPECT_THAT(namesIn(folder / "to"), IsEmpty());
}

TEST_F(FileCopy, FailsOnAFifoInsteadOfWaitingForItsOtherEnd) {
    ASSERT_EQ(::mkfifo((source / "fifo").c_str(), 0600), 0);
    EXPECT_FALSE(copyItem(source, destination));
    EXPECT_THAT(namesIn(folder / "to"), IsEmpty());
}

TEST_F(FileCopy, FailsOnAReadOnlyDestinationAndLeavesItAsItWas) {
    fs::permissions(folder.path(), fs::perms(0755));
    fs::permissions(folder / "to", fs::perms(0555));
    EXPECT_FALSE(asOrdinaryUser([&] { return copyItem(source, destination); }));
    fs::permissions(folder / "to", fs::perms(0755));
    EXPECT_THAT(namesIn(folder / "to"), IsEmpty());
}

TEST_F(FileCopy, LeavesNothingBehindOnAFullDiskAndKeepsTheOldCopy) {
    folder.write("to/Zelto Ü.app/old file", "old");
    // A limit on the size of files fails a write half-way, as a full disk does.
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit small{300'000, before.rlim_max};
    auto* const handler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const bool copied = copyItem(source, destination);
    ::setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);

    EXPECT_FALSE(copied);
    EXPECT_THAT(namesIn(folder / "to"), ElementsAre("Zelto Ü.app"));
    EXPECT_THAT(namesIn(destination), ElementsAre("old file"));
}

TEST_F(FileCopy, CleansWhatAKilledCopyHasLeft) {
    const auto child = ::fork();
    if (child == 0) {
        // The signal of a file that grows too large ends the program in the middle of the copy.
        const rlimit small{300'000, 300'000};
        const rlimit noCore{0, 0};
        ::setrlimit(RLIMIT_CORE, &noCore);
        ::setrlimit(RLIMIT_FSIZE, &small);
        ::_exit(copyItem(source, destination) ? 0 : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status));
    ASSERT_EQ(namesIn(folder / "to").size(), 1U) << "it had no time to clean up";

    ASSERT_TRUE(copyItem(source, destination));
    EXPECT_THAT(namesIn(folder / "to"), ElementsAre("Zelto Ü.app"));
}

TEST_F(FileCopy, CleansWhatIsLeftAlsoWhenItFailsItself) {
    folder.write("to/.Zelto Ü.app-aB3dE6/new/zelto", "half");
    folder.write("to/.Zelto Ü.app-aB3dE6/old/zelto", "whole");
    folder.makeFolder("to/.Zelto Ü.app-000000");
    EXPECT_FALSE(copyItem(folder / "nothing", destination));
    EXPECT_THAT(namesIn(folder / "to"), IsEmpty());
}

TEST_F(FileCopy, LeavesACopyAloneThatIsStillBeingWritten) {
    folder.write("to/.Zelto Ü.app-aB3dE6/new/zelto", "half");
    const int writer =
        ::open((folder / "to/.Zelto Ü.app-aB3dE6").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    ASSERT_EQ(::flock(writer, LOCK_EX | LOCK_NB), 0);
    ASSERT_TRUE(copyItem(source, destination));
    EXPECT_THAT(namesIn(folder / "to"), ElementsAre(".Zelto Ü.app-aB3dE6", "Zelto Ü.app"));
    EXPECT_EQ(folder.read("to/.Zelto Ü.app-aB3dE6/new/zelto"), "half");
    ::close(writer);
}

TEST_F(FileCopy, LeavesAloneWhatOnlyLooksLikeALeftover) {
    folder.write("elsewhere/new/precious", "mine");
    folder.link("to/.Zelto Ü.app-aLink1", (folder / "elsewhere").string());
    folder.write("to/.Zelto Ü.app-backup/notes", "mine");
    folder.write("to/.Zelto Ü.app-toolong/new", "mine");
    folder.write("to/.Zelto Ü.app-aFile1", "mine");
    folder.write("to/.Other.app-aB3dE6/new", "another's");
    const auto before = namesIn(folder / "to");
    EXPECT_FALSE(copyItem(folder / "nothing", destination));
    EXPECT_EQ(namesIn(folder / "to"), before);
    EXPECT_EQ(folder.read("elsewhere/new/precious"), "mine");
}

TEST_F(FileCopy, DoesNotFollowLinksOutOfALeftover) {
    folder.write("elsewhere/precious", "mine");
    folder.makeFolder("to/.Zelto Ü.app-aB3dE6");
    folder.link("to/.Zelto Ü.app-aB3dE6/new", (folder / "elsewhere").string());
    EXPECT_FALSE(copyItem(folder / "nothing", destination));
    EXPECT_THAT(namesIn(folder / "to"), IsEmpty());
    EXPECT_EQ(folder.read("elsewhere/precious"), "mine");
}

TEST_F(FileCopy, HasTheDateOfItsSourceEvenWhereOddSecondsAreDropped) {
    EXPECT_EQ(modificationDate(source)->time_since_epoch().count(), 1'700'000'006);
    setDate(source, 1'700'000'006);
    EXPECT_EQ(modificationDate(source)->time_since_epoch().count(), 1'700'000'006);
    setDate(source, 1'700'000'008);
    EXPECT_EQ(modificationDate(source)->time_since_epoch().count(), 1'700'000'008);
    EXPECT_EQ(modificationDate(folder / "nothing"), std::nullopt);
}

TEST_F(FileCopy, IsUnlockedWithAllThatIsInIt) {
    fs::permissions(source / "lib/data.bin", fs::perms(0444));
    fs::permissions(source / "lib", fs::perms(0555));
    fs::permissions(source, fs::perms(0555));
    EXPECT_TRUE(unlockItem(source));
    EXPECT_EQ(modeOf(source), 0755U);
    EXPECT_EQ(modeOf(source / "lib"), 0755U);
    EXPECT_EQ(modeOf(source / "lib/data.bin"), 0644U);
}

TEST_F(FileCopy, IsUnlockedWithoutFollowingLinks) {
    folder.write("elsewhere", "");
    fs::permissions(folder / "elsewhere", fs::perms(0444));
    folder.link("from/Zelto Ü.app/link", (folder / "elsewhere").string());
    EXPECT_TRUE(unlockItem(source));
    EXPECT_EQ(modeOf(folder / "elsewhere"), 0444U);
    EXPECT_FALSE(unlockItem(folder / "nothing"));
}

} // namespace
} // namespace zelto::test
