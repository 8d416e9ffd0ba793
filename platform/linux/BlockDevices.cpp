#include "platform/linux/BlockDevices.h"

#include <algorithm>
#include <string_view>

namespace zelto::linux_platform {

namespace {

namespace fs = std::filesystem;

std::optional<SysfsEntry> entryOf(const fs::path& link) {
    std::error_code error;
    const auto folder = fs::canonical(link, error);
    if (error) {
        return std::nullopt;
    }
    SysfsEntry entry(folder);
    const bool isBlockDevice =
        entry.kind() == SysfsEntry::Kind::Disk || entry.kind() == SysfsEntry::Kind::Partition;
    return isBlockDevice ? std::optional(std::move(entry)) : std::nullopt;
}

std::set<std::string> namesIn(const fs::path& folder) {
    std::set<std::string> names;
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
        names.insert(blockName(at->path()));
    }
    return names;
}

void addStacked(const SysfsEntry& entry, std::set<std::string>& seen,
                std::vector<std::string>& found) {
    for (const auto& child : entry.children()) {
        const auto name = child.kernelName();
        if (!seen.insert(name).second) {
            continue; // a volume that spans two of the devices
        }
        addStacked(child, seen, found);
        if (child.kind() == SysfsEntry::Kind::Disk) {
            found.push_back(name);
        }
    }
}

} // namespace

std::optional<SysfsEntry> BlockDevices::find(const std::string& name) const {
    auto file = name;
    std::ranges::replace(file, '/', '!');
    return file.empty() || file.starts_with('.') ? std::nullopt
                                                 : entryOf(m_sysfs / "class/block" / file);
}

std::optional<std::string> BlockDevices::nameOfMounted(const std::string& number,
                                                       const std::string& source) const {
    constexpr std::string_view Devices = "/dev/";
    constexpr std::string_view Mappings = "/dev/mapper/";
    // No device has a number that begins so: a file system has it from the kernel for itself.
    const bool isOfFileSystem = number.starts_with("0:");
    if (const auto entry =
            isOfFileSystem ? std::nullopt : entryOf(m_sysfs / "dev/block" / number)) {
        return entry->kernelName();
    }
    if (source.starts_with(Mappings)) {
        return nameOfMapping(source.substr(Mappings.size()));
    }
    if (!source.starts_with(Devices)) {
        return std::nullopt;
    }
    const auto entry = find(source.substr(Devices.size()));
    return entry ? std::optional(entry->kernelName()) : std::nullopt;
}

std::optional<std::string> BlockDevices::nameOfMapping(const std::string& mapping) const {
    for (const auto& name : namesIn(m_sysfs / "class/block")) {
        const auto entry = find(name);
        if (entry && entry->attribute("dm/name") == mapping) {
            return name;
        }
    }
    return std::nullopt;
}

bool BlockDevices::isStacked(const std::string& name) const {
    const auto entry = find(name);
    return entry && !namesIn(entry->folder() / "slaves").empty();
}

std::vector<std::string> BlockDevices::stackedOn(const std::string& name) const {
    std::vector<std::string> found;
    std::set<std::string> seen{name};
    if (const auto entry = find(name)) {
        addStacked(*entry, seen, found);
    }
    return found;
}

std::string BlockDevices::baseOf(const std::string& name) const {
    auto base = name;
    for (Names seen; seen.insert(base).second;) {
        const auto entry = find(base);
        const auto below = entry ? namesIn(entry->folder() / "slaves") : Names{};
        if (!below.empty()) {
            base = *below.begin();
        }
    }
    return base;
}

std::optional<SysfsEntry> BlockDevices::usbDeviceOf(const std::string& name) const {
    Names seen;
    return usbDeviceOf(name, seen);
}

std::optional<SysfsEntry> BlockDevices::usbDeviceOf(const std::string& name, Names& seen) const {
    const auto entry = find(name);
    if (!entry || !seen.insert(name).second) {
        return std::nullopt;
    }
    for (auto folder = entry->folder(); folder.has_relative_path(); folder = folder.parent_path()) {
        if (SysfsEntry device(folder); device.kind() == SysfsEntry::Kind::UsbDevice) {
            return device;
        }
    }
    for (const auto& below : namesIn(entry->folder() / "slaves")) {
        if (auto device = usbDeviceOf(below, seen)) {
            return device;
        }
    }
    return std::nullopt;
}

bool BlockDevices::isDisk(const std::string& name, const DiskIdentity& meant) const {
    const auto disk = find(name);
    const auto device = usbDeviceOf(name);
    if (!disk || !device || disk->kind() != SysfsEntry::Kind::Disk || isStacked(name)) {
        return false;
    }
    return meant == DiskIdentity{device->usbLocation().value_or(0), mediaName(*disk),
                                 disk->decimal("size").value_or(0)};
}

bool BlockDevices::isPartitionOf(const std::string& name, const std::string& disk) const {
    const auto partition = find(name);
    return partition && partition->kind() == SysfsEntry::Kind::Partition &&
           blockName(partition->folder().parent_path()) == disk;
}

} // namespace zelto::linux_platform
