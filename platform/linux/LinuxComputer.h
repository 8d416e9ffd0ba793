#pragma once

#include "platform/Computer.h"
#include "platform/linux/BlockDevices.h"
#include "platform/linux/Waiting.h"

#include <functional>
#include <utility>

namespace zelto::linux_platform {

/// The computer that the program runs on. Modification dates are rounded down to even seconds; why
/// is said at modificationDate().
class LinuxComputer final : public Computer {
public:
    explicit LinuxComputer(const Waiting& waiting, std::filesystem::path proc = "/proc",
                           std::filesystem::path sysfs = "/sys");

    /// For a program that belongs to no bundle, the folder it lies in.
    [[nodiscard]] std::filesystem::path bundlePath() const override;
    [[nodiscard]] std::vector<std::filesystem::path>
    mountRoots(const UsbMatching& drives) const override;
    /// "Applications" in the user's home folder, links resolved as far as it exists: running
    /// programs are known by such paths.
    [[nodiscard]] std::filesystem::path applicationsFolder() const override;
    /// Only the user's own programs can be seen. A program of no bundle counts by its file.
    [[nodiscard]] std::vector<std::filesystem::path> launchedApplications() const override;

    /// "autorun.sh", which desktops offer to run (freedesktop.org's Desktop Application Autostart
    /// Specification), if the bundle has it.
    [[nodiscard]] std::vector<std::filesystem::path> filesBesideBundle() const override;

    [[nodiscard]] bool fileExistsAtPath(const std::filesystem::path& path) const override;
    [[nodiscard]] std::optional<FileTime>
    fileModificationDate(const std::filesystem::path& path) const override;
    [[nodiscard]] bool isWritableFileAtPath(const std::filesystem::path& path) const override;
    [[nodiscard]] bool removeItemAtPath(const std::filesystem::path& path) override;
    [[nodiscard]] bool copyItemAtPath(const std::filesystem::path& source,
                                      const std::filesystem::path& destination) override;

    /// Starts the file in the bundle that has the name of this program, through the shell if it is
    /// a script that the volume does not let anybody execute. The new process keeps nothing of this
    /// one: no working folder, descriptor, terminal or library path that would keep a volume busy.
    /// 0 once it runs, 1 when it could not be started.
    int open(const std::filesystem::path& bundle) override;
    /// 1 when something stays locked or the flag is not "nouchg".
    int chflags(const std::string& flag, const std::filesystem::path& path) override;

private:
    /// Does slow work in a thread of its own while the windows go on painting.
    [[nodiscard]] bool workAside(const std::function<bool()>& work) const;

    const Waiting& m_waiting;
    std::filesystem::path m_proc;
    BlockDevices m_devices;
    /// This program's file, found once: a moment later the bundle may have been moved.
    std::filesystem::path m_program;
};

} // namespace zelto::linux_platform
