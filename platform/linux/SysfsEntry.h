#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace zelto::linux_platform {

/// One device's folder in sysfs. Reading costs a few small file reads; whatever has left meanwhile
/// reads as nothing.
class SysfsEntry {
public:
    enum class Kind { UsbDevice, Disk, Partition, Other };

    /// `folder` is the device's own or one of sysfs's links of the same name to it.
    explicit SysfsEntry(std::filesystem::path folder, unsigned depth = 0);

    [[nodiscard]] Kind kind() const { return m_kind; }
    [[nodiscard]] const std::filesystem::path& folder() const { return m_folder; }
    /// The kernel's name of the device: "1-1.2", "sdb1".
    [[nodiscard]] std::string kernelName() const;
    /// A text attribute without its line end.
    [[nodiscard]] std::optional<std::string> attribute(const std::string& name) const;
    /// An attribute of exactly four hexadecimal digits, as USB's are.
    [[nodiscard]] std::optional<std::uint16_t> hexadecimal(const std::string& name) const;
    /// An attribute of decimal digits.
    [[nodiscard]] std::optional<std::uint64_t> decimal(const std::string& name) const;

    /// A USB device's bus and its number there, in one number: the stay on the bus, as no two
    /// devices have it at one time.
    [[nodiscard]] std::optional<std::uint32_t> usbLocation() const;

    /// The devices below this one in kernel order (names compared with their numbers as numbers),
    /// without other USB devices and without disks that have no medium; after them, what is stacked
    /// on a disk or a partition.
    [[nodiscard]] std::vector<SysfsEntry> children() const;

private:
    void addChildren(const std::filesystem::path& folder, unsigned depth,
                     std::vector<SysfsEntry>& found) const;
    void addHolders(std::vector<SysfsEntry>& found) const;

    std::filesystem::path m_folder;
    unsigned m_depth = 0;
    Kind m_kind = Kind::Other;
};

/// Every USB device, hubs too, by its location, that is in the order of bus and device number.
[[nodiscard]] std::multimap<std::uint32_t, SysfsEntry>
usbDevices(const std::filesystem::path& sysfs);

/// The kernel's name of the device that a folder in sysfs, or a link to it, stands for.
[[nodiscard]] std::string blockName(const std::filesystem::path& folder);

/// VENDOR, blank, MODEL, blank, "Media", from a disk's SCSI strings without their padding.
[[nodiscard]] std::string mediaName(const SysfsEntry& disk);

/// Orders names as a reader would: runs of digits count as numbers, so "0:0:0:2" comes before
/// "0:0:0:10".
[[nodiscard]] bool precedesInKernelOrder(const std::string& left, const std::string& right);

} // namespace zelto::linux_platform
