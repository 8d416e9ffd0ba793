#pragma once

#include "platform/UsbNotifications.h"

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace zelto {

/// The computer around the program: where its bundle lies, what runs, and its files. File
/// operations say by their result whether they have failed, but not why.
class Computer {
public:
    using FileTime = std::chrono::sys_seconds;

    Computer() = default;
    Computer(const Computer&) = delete;
    Computer& operator=(const Computer&) = delete;
    virtual ~Computer() = default;

    /// The folder of the running program's bundle, absolute, without a slash at its end.
    [[nodiscard]] virtual std::filesystem::path bundlePath() const = 0;
    /// The folders below which the system mounts volumes, such as "/media", and the folders that
    /// volumes of these USB devices are mounted on, wherever they are.
    [[nodiscard]] virtual std::vector<std::filesystem::path>
    mountRoots(const UsbMatching& drives) const = 0;
    /// The folder that installed copies go to. It need not exist yet.
    [[nodiscard]] virtual std::filesystem::path applicationsFolder() const = 0;
    /// The bundle paths ("NSApplicationPath") of the running applications, this one among them.
    [[nodiscard]] virtual std::vector<std::filesystem::path> launchedApplications() const = 0;

    /// The files of this program's bundle that belong beside it, at the root of a volume that
    /// carries it: with them, computers offer to start it. There may be none.
    [[nodiscard]] virtual std::vector<std::filesystem::path> filesBesideBundle() const = 0;

    [[nodiscard]] virtual bool fileExistsAtPath(const std::filesystem::path& path) const = 0;
    /// Modification date in whole seconds (FAT keeps no finer one); nothing when it cannot be read.
    [[nodiscard]] virtual std::optional<FileTime>
    fileModificationDate(const std::filesystem::path& path) const = 0;
    [[nodiscard]] virtual bool isWritableFileAtPath(const std::filesystem::path& path) const = 0;
    /// Removes a file, or a folder with all that is in it.
    [[nodiscard]] virtual bool removeItemAtPath(const std::filesystem::path& path) = 0;
    /// Copies a file, or a folder with all that is in it, keeping modification dates. The
    /// destination appears complete or not at all, and is replaced if it exists. It has been
    /// read back from its medium when this succeeds. Blocks for as long as all that takes; windows
    /// go on repainting meanwhile.
    [[nodiscard]] virtual bool copyItemAtPath(const std::filesystem::path& source,
                                              const std::filesystem::path& destination) = 0;

    /// Runs the opener ("/usr/bin/open") on a bundle and waits until the opener has exited, not
    /// until the program that it started ends. The result is the opener's exit status.
    virtual int open(const std::filesystem::path& bundle) = 0;
    /// Runs the flag tool ("/usr/bin/chflags") with one flag and a path and waits until it exits.
    /// The flag "nouchg" clears the user-immutable flag. The result is its exit status.
    virtual int chflags(const std::string& flag, const std::filesystem::path& path) = 0;
};

} // namespace zelto
