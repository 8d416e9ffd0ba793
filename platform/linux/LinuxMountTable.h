#pragma once

#include "platform/Disks.h"
#include "platform/linux/BlockDevices.h"

#include <filesystem>
#include <utility>

namespace zelto::linux_platform {

/// The kernel's mount table as this process sees it. A block device counts by the kernel's name of
/// it, whatever it was called when it was mounted: "/dev/dm-0" for "/dev/mapper/luks-1f3a".
class LinuxMountTable final : public MountTable {
public:
    explicit LinuxMountTable(std::filesystem::path mountInfo = "/proc/self/mountinfo",
                             std::filesystem::path sysfs = "/sys")
        : m_mountInfo(std::move(mountInfo)), m_devices(std::move(sysfs)) {}

    [[nodiscard]] std::vector<MountedFileSystem> getmntinfo() override;

private:
    std::filesystem::path m_mountInfo;
    BlockDevices m_devices;
};

} // namespace zelto::linux_platform
