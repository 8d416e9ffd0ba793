#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace zelto {

/// A property's value: a text, a number, or a value of another kind, which is not read.
using RegistryValue = std::variant<std::monostate, std::string, std::int64_t>;
/// Properties in the order in which the system lists them. Names in use: "idVendor", "idProduct"
/// (numbers), "USB Serial Number", "BSD Name" (texts).
using RegistryProperties = std::vector<std::pair<std::string, RegistryValue>>;

class RegistryIterator;

/// One entry of the system's tree of devices. Reading may block for the time of a few small file
/// reads. Every read can fail; a failure means that the registry itself is broken, not that a
/// device has left (an entry that has left reads as an entry without properties and children).
class RegistryEntry {
public:
    RegistryEntry() = default;
    RegistryEntry(const RegistryEntry&) = delete;
    RegistryEntry& operator=(const RegistryEntry&) = delete;
    virtual ~RegistryEntry() = default;

    /// The entry's name in the plane; a disk's is VENDOR, blank, MODEL, blank, "Media".
    [[nodiscard]] virtual std::optional<std::string>
    IORegistryEntryGetNameInPlane(const std::string& plane) const = 0;
    /// The entry's class name, "IOUSBDevice" or "IOMedia" say.
    [[nodiscard]] virtual std::optional<std::string> IOObjectGetClass() const = 0;
    /// Whether the entry is of the class or derived from it. Every device is an "IOService".
    [[nodiscard]] virtual bool IOObjectConformsTo(const std::string& className) const = 0;
    /// The entry's properties; nothing when they cannot be read.
    [[nodiscard]] virtual std::optional<RegistryProperties>
    IORegistryEntryCreateCFProperties() const = 0;
    /// The entry's children in registry order; null when they cannot be listed.
    [[nodiscard]] virtual std::unique_ptr<RegistryIterator>
    IORegistryEntryGetChildIterator(const std::string& plane) const = 0;
};

class RegistryIterator {
public:
    RegistryIterator() = default;
    RegistryIterator(const RegistryIterator&) = delete;
    RegistryIterator& operator=(const RegistryIterator&) = delete;
    virtual ~RegistryIterator() = default;

    /// The next entry, null at the end.
    [[nodiscard]] virtual std::unique_ptr<RegistryEntry> IOIteratorNext() = 0;
};

/// A device that this program has open, and what it read from it.
struct OpenedDevice {
    /// UsbDeviceInterface::GetLocationID; 0 for none.
    std::uint32_t location = 0;
    std::string serial;
};

/// The tree: the root, below it every USB device with its descendants down to disks and
/// partitions, in the system's order, and after the last device one more entry, so that a walk
/// always sees the end of the last device's subtree.
class Registry {
public:
    Registry() = default;
    Registry(const Registry&) = delete;
    Registry& operator=(const Registry&) = delete;
    virtual ~Registry() = default;

    /// The tree as somebody sees it who has opened a device: that device alone shows what it is,
    /// and with the serial number that was read from it. Another one that says the same of itself
    /// is still another one, and the system may have read a serial number differently, or not at
    /// all. What hangs on another one may be left out. With nothing opened, each shows what the
    /// system has read. Null when the system has no registry.
    [[nodiscard]] virtual std::unique_ptr<RegistryEntry>
    IORegistryGetRootEntry(const OpenedDevice& opened) = 0;
};

} // namespace zelto
