#include "platform/linux/FileCopy.h"

#include "platform/linux/FileDescriptor.h"
#include "platform/linux/ReadBack.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace zelto::linux_platform {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t CopyPieceSize = 1U << 18U;
constexpr mode_t ProgramMode = 0755;
constexpr mode_t DataMode = 0644;
constexpr mode_t FolderMode = 0755;
/// Deeper than any bundle; a tree of links and mounts could go on for ever.
constexpr int DeepestFolder = 64;

std::optional<struct stat> statusOf(int descriptor) {
    struct stat status {};
    return ::fstat(descriptor, &status) == 0 ? std::optional(status) : std::nullopt;
}

bool keepDates(int descriptor, const struct stat& source) {
    const std::array<timespec, 2> dates{source.st_atim, source.st_mtim};
    return ::futimens(descriptor, dates.data()) == 0;
}

/// FAT cannot keep every mode and refuses those; there it does not matter.
void setMode(int descriptor, mode_t mode) {
    if (::fchmod(descriptor, mode) != 0) {
        errno = 0;
    }
}

bool flush(int descriptor) {
    // A file system that cannot flush a folder says EINVAL and has nothing to flush.
    return ::fsync(descriptor) == 0 || errno == EINVAL;
}

bool flushFolder(const fs::path& folder) {
    const FileDescriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return opened.isOpen() && flush(opened.get());
}

std::optional<std::size_t> readPiece(int descriptor, std::vector<char>& piece) {
    while (true) {
        const auto count = ::read(descriptor, piece.data(), piece.size());
        if (count >= 0) {
            return static_cast<std::size_t>(count);
        }
        if (errno != EINTR) {
            return std::nullopt;
        }
    }
}

bool writeAll(int descriptor, std::string_view data) {
    while (!data.empty()) {
        const auto count = ::write(descriptor, data.data(), data.size());
        if (count < 0 && errno != EINTR) {
            return false;
        }
        data.remove_prefix(count > 0 ? static_cast<std::size_t>(count) : 0);
    }
    return true;
}

bool isProgram(std::string_view beginning) {
    return beginning.starts_with("\x7f"
                                 "ELF") ||
           beginning.starts_with("#!");
}

/// Copies the bytes and says whether they are a program's; nothing on failure.
std::optional<bool> copyContents(int from, int to) {
    std::vector<char> piece(CopyPieceSize);
    bool program = false;
    for (bool first = true;; first = false) {
        const auto count = readPiece(from, piece);
        if (!count) {
            return std::nullopt;
        }
        if (*count == 0) {
            return program;
        }
        const std::string_view data(piece.data(), *count);
        program = first ? isProgram(data) : program;
        if (!writeAll(to, data)) {
            return std::nullopt;
        }
    }
}

bool copyFile(const fs::path& source, const fs::path& destination) {
    // O_NONBLOCK: a fifo would otherwise wait for its other end before it can be told from a file.
    const FileDescriptor from(
        ::open(source.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK));
    const auto status = from.isOpen() ? statusOf(from.get()) : std::nullopt;
    if (!status || !S_ISREG(status->st_mode)) {
        return false;
    }
    const FileDescriptor to(
        ::open(destination.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, DataMode));
    if (!to.isOpen()) {
        return false;
    }
    const auto program = copyContents(from.get(), to.get());
    if (!program) {
        return false;
    }
    constexpr mode_t AnybodyExecutes = S_IXUSR | S_IXGRP | S_IXOTH;
    setMode(to.get(),
            *program || (status->st_mode & AnybodyExecutes) != 0 ? ProgramMode : DataMode);
    return keepDates(to.get(), *status) && flush(to.get()) && readsBackAs(to.get(), from.get());
}

bool copyFolder(const fs::path& source, const fs::path& destination, int depth);

/// A link is neither: a volume's maker could have laid one to anything of the user's.
bool copyFileOrFolder(const fs::path& source, const fs::path& destination, int depth) {
    std::error_code error;
    return fs::symlink_status(source, error).type() == fs::file_type::directory
               ? copyFolder(source, destination, depth)
               : copyFile(source, destination);
}

bool copyFolder(const fs::path& source, const fs::path& destination, int depth) {
    if (depth > DeepestFolder || ::mkdir(destination.c_str(), FolderMode) != 0) {
        return false;
    }
    std::error_code error;
    fs::directory_iterator at(source, error);
    for (const fs::directory_iterator end; !error && at != end; at.increment(error)) {
        if (!copyFileOrFolder(at->path(), destination / at->path().filename(), depth + 1)) {
            return false;
        }
    }
    struct stat status {};
    const FileDescriptor to(::open(destination.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // The date comes last: every file put into the folder has changed it.
    return !error && to.isOpen() && ::stat(source.c_str(), &status) == 0 &&
           keepDates(to.get(), status) && flush(to.get());
}

constexpr auto WrittenName = "new";
constexpr auto ReplacedName = "old";
constexpr std::string_view RandomPart = "XXXXXX";

std::string workplacePrefix(const fs::path& destination) {
    return "." + destination.filename().string() + "-";
}

/// A copy keeps its workplace locked, and the kernel gives the lock back however its program ends.
/// A file system that cannot lock says so to everybody, and then nothing is cleaned.
bool lock(const FileDescriptor& folder) {
    return ::flock(folder.get(), LOCK_EX | LOCK_NB) == 0;
}

FileDescriptor openFolder(const fs::path& folder) {
    return FileDescriptor(
        ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK));
}

bool holdsNothingButCopies(const fs::path& folder) {
    std::error_code error;
    fs::directory_iterator at(folder, error);
    for (const fs::directory_iterator end; !error && at != end; at.increment(error)) {
        const auto name = at->path().filename();
        if (name != WrittenName && name != ReplacedName) {
            return false;
        }
    }
    return !error;
}

bool isLeftover(const fs::path& folder, const std::string& prefix) {
    const auto name = folder.filename().string();
    if (!name.starts_with(prefix) || name.size() != prefix.size() + RandomPart.size()) {
        return false;
    }
    const auto opened = openFolder(folder);
    const auto status = opened.isOpen() ? statusOf(opened.get()) : std::nullopt;
    return status && status->st_uid == ::geteuid() && holdsNothingButCopies(folder) && lock(opened);
}

/// What a copy has left that was broken off with its program or its computer.
void removeLeftovers(const fs::path& destination) {
    const auto prefix = workplacePrefix(destination);
    std::vector<fs::path> leftovers;
    std::error_code error;
    fs::directory_iterator at(destination.parent_path(), error);
    for (const fs::directory_iterator end; !error && at != end; at.increment(error)) {
        if (isLeftover(at->path(), prefix)) {
            leftovers.push_back(at->path());
        }
    }
    for (const auto& leftover : leftovers) {
        std::error_code ignored;
        fs::remove_all(leftover, ignored);
    }
}

/// A folder beside the destination that is gone, with all that is still in it, when this is.
class Workplace {
public:
    explicit Workplace(const fs::path& destination) {
        removeLeftovers(destination);
        auto pattern = (destination.parent_path() / workplacePrefix(destination)).string();
        pattern += RandomPart;
        if (::mkdtemp(pattern.data()) != nullptr) {
            m_folder = pattern;
            m_lock = openFolder(m_folder);
            (void)lock(m_lock);
        }
    }
    Workplace(const Workplace&) = delete;
    Workplace& operator=(const Workplace&) = delete;
    ~Workplace() {
        if (isThere()) {
            std::error_code ignored;
            fs::remove_all(m_folder, ignored);
        }
    }

    [[nodiscard]] bool isThere() const { return !m_folder.empty(); }
    [[nodiscard]] fs::path written() const { return m_folder / WrittenName; }
    [[nodiscard]] fs::path replaced() const { return m_folder / ReplacedName; }

private:
    fs::path m_folder;
    FileDescriptor m_lock;
};

bool moveTo(const fs::path& from, const fs::path& to) {
    return std::rename(from.c_str(), to.c_str()) == 0;
}

/// Puts the finished copy in its place. What was there goes into the workplace first, because a
/// folder cannot be renamed over another; it comes back if the copy cannot take its place.
bool takePlace(const Workplace& workplace, const fs::path& destination) {
    struct stat status {};
    const bool replaces = ::lstat(destination.c_str(), &status) == 0;
    if (replaces && !moveTo(destination, workplace.replaced())) {
        return false;
    }
    if (moveTo(workplace.written(), destination)) {
        return true;
    }
    if (replaces && !moveTo(workplace.replaced(), destination)) {
        errno = 0; // both renames in one folder failed: the medium has gone
    }
    return false;
}

bool unlockOne(const fs::path& path) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0) {
        return false;
    }
    if (!S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode)) {
        return true;
    }
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    int flags = 0;
    // A file system without such flags has none to clear.
    if (file.isOpen() && ::ioctl(file.get(), FS_IOC_GETFLAGS, &flags) == 0 &&
        (flags & FS_IMMUTABLE_FL) != 0) {
        flags &= ~FS_IMMUTABLE_FL;
        if (::ioctl(file.get(), FS_IOC_SETFLAGS, &flags) != 0) {
            return false;
        }
    }
    const mode_t searchable = S_ISDIR(status.st_mode) ? S_IRUSR | S_IXUSR : 0U;
    const mode_t wanted = (status.st_mode & 07777U) | S_IWUSR | searchable;
    return wanted == (status.st_mode & 07777U) || ::chmod(path.c_str(), wanted) == 0;
}

bool unlockTree(const fs::path& path, int depth) {
    if (!unlockOne(path)) {
        return false;
    }
    std::error_code error;
    if (fs::symlink_status(path, error).type() != fs::file_type::directory) {
        return !error;
    }
    if (depth > DeepestFolder) {
        return false;
    }
    bool unlocked = true;
    fs::directory_iterator at(path, error);
    for (const fs::directory_iterator end; !error && at != end; at.increment(error)) {
        unlocked = unlockTree(at->path(), depth + 1) && unlocked;
    }
    return unlocked && !error;
}

} // namespace

bool copyItem(const fs::path& source, const fs::path& destination) {
    const auto folder = destination.parent_path();
    if (!destination.has_filename() ||
        (::mkdir(folder.c_str(), FolderMode) != 0 && errno != EEXIST)) {
        return false;
    }
    const Workplace workplace(destination);
    if (!workplace.isThere()) {
        return false;
    }
    return copyFileOrFolder(source, workplace.written(), 0) && takePlace(workplace, destination) &&
           flushFolder(folder);
}

std::optional<std::chrono::sys_seconds> modificationDate(const fs::path& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) {
        return std::nullopt;
    }
    using FatSeconds = std::chrono::duration<std::chrono::seconds::rep, std::ratio<2, 1>>;
    return std::chrono::floor<FatSeconds>(
        std::chrono::sys_seconds(std::chrono::seconds(status.st_mtim.tv_sec)));
}

bool unlockItem(const fs::path& path) {
    return unlockTree(path, 0);
}

} // namespace zelto::linux_platform
