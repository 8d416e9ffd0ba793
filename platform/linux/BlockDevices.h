#pragma once

#include "platform/Disks.h"
#include "platform/linux/SysfsEntry.h"

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace zelto::linux_platform {

/// The kernel's block devices by name ("sdb1", "dm-0"): what they hang on, and what is stacked on
/// them. Everything is read when it is asked for; a device that has left is stacked on nothing.
class BlockDevices {
public:
    explicit BlockDevices(std::filesystem::path sysfs = "/sys") : m_sysfs(std::move(sysfs)) {}

    [[nodiscard]] std::optional<SysfsEntry> find(const std::string& name) const;

    /// The name of the device that a file system is mounted from, by the device's number ("253:0")
    /// or, where a file system has a number of its own, by the path that mount(8) was given.
    [[nodiscard]] std::optional<std::string> nameOfMounted(const std::string& number,
                                                           const std::string& source) const;

    /// Whether the device stands on others: a decrypted volume, a logical volume, an array. It
    /// keeps what it stands on busy as long as it is there, mounted or not.
    [[nodiscard]] bool isStacked(const std::string& name) const;
    /// What stands on the device and its partitions; whatever stands on another comes before it.
    [[nodiscard]] std::vector<std::string> stackedOn(const std::string& name) const;

    /// What the device stands on at the very bottom; itself when it stands on nothing.
    [[nodiscard]] std::string baseOf(const std::string& name) const;

    /// The USB device that the device hangs on, be it through others that it stands on.
    [[nodiscard]] std::optional<SysfsEntry> usbDeviceOf(const std::string& name) const;

    /// Whether the name is that disk's at this moment.
    [[nodiscard]] bool isDisk(const std::string& name, const DiskIdentity& meant) const;
    /// Whether the name is that of a partition of the disk.
    [[nodiscard]] bool isPartitionOf(const std::string& name, const std::string& disk) const;

private:
    using Names = std::set<std::string>;

    [[nodiscard]] std::optional<std::string> nameOfMapping(const std::string& mapping) const;
    [[nodiscard]] std::optional<SysfsEntry> usbDeviceOf(const std::string& name, Names& seen) const;

    std::filesystem::path m_sysfs;
};

} // namespace zelto::linux_platform
