#pragma once

#include "platform/Registry.h"

#include <filesystem>
#include <utility>

namespace zelto::linux_platform {

/// The kernel's device tree as sysfs shows it, cut down to what hangs on USB: the root; every USB
/// device in the order of bus and device number, with its own descendants (a device behind a hub is
/// listed beside the hub, not below it); one closing entry. Who has opened a device sees nothing
/// below the others, so that a walk takes no longer where much hangs on them.
///
/// Classes: "IOUSBDevice", "IOMedia" (disks and partitions), "IOService" (everything else that
/// the kernel calls a device). A disk is named from its SCSI strings and takes part only while it
/// has a medium; "BSD Name" is the kernel's block name, "sdb" or "sdb1" say. Entries are read when
/// they are asked for; one that has left meanwhile has no properties and no children.
class LinuxRegistry final : public Registry {
public:
    explicit LinuxRegistry(std::filesystem::path sysfs = "/sys") : m_sysfs(std::move(sysfs)) {}

    /// Never null: a computer without USB has a root with nothing but the closing entry below.
    [[nodiscard]] std::unique_ptr<RegistryEntry>
    IORegistryGetRootEntry(const OpenedDevice& opened) override;

private:
    std::filesystem::path m_sysfs;
};

} // namespace zelto::linux_platform
