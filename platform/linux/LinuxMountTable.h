#pragma once

#include "platform/Disks.h"

#include <filesystem>
#include <utility>

namespace zelto::linux_platform {

/// The kernel's mount table as this process sees it.
class LinuxMountTable final : public MountTable {
public:
    explicit LinuxMountTable(std::filesystem::path mountInfo = "/proc/self/mountinfo")
        : m_mountInfo(std::move(mountInfo)) {}

    [[nodiscard]] std::vector<MountedFileSystem> getmntinfo() override;

private:
    std::filesystem::path m_mountInfo;
};

} // namespace zelto::linux_platform
