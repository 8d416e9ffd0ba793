#include "platform/linux/LinuxRegistry.h"

#include "platform/linux/SysfsEntry.h"

#include <cstdint>
#include <functional>

namespace zelto::linux_platform {

namespace {

namespace fs = std::filesystem;

using Entries = std::vector<std::unique_ptr<RegistryEntry>>;

class EntryList final : public RegistryIterator {
public:
    explicit EntryList(Entries entries) : m_entries(std::move(entries)) {}

    std::unique_ptr<RegistryEntry> IOIteratorNext() override {
        return m_next < m_entries.size() ? std::move(m_entries[m_next++]) : nullptr;
    }

private:
    Entries m_entries;
    std::size_t m_next = 0;
};

/// An entry that stands for no device: the root and the closing entry.
class PlainEntry final : public RegistryEntry {
public:
    PlainEntry(std::string name, std::string className, std::function<Entries()> listChildren)
        : m_name(std::move(name)),
          m_className(std::move(className)),
          m_listChildren(std::move(listChildren)) {}

    std::optional<std::string> IORegistryEntryGetNameInPlane(const std::string&) const override {
        return m_name;
    }
    std::optional<std::string> IOObjectGetClass() const override { return m_className; }
    bool IOObjectConformsTo(const std::string& className) const override {
        return className == m_className;
    }
    std::optional<RegistryProperties> IORegistryEntryCreateCFProperties() const override {
        return RegistryProperties{};
    }
    std::unique_ptr<RegistryIterator>
    IORegistryEntryGetChildIterator(const std::string&) const override {
        return std::make_unique<EntryList>(m_listChildren());
    }

private:
    std::string m_name;
    std::string m_className;
    std::function<Entries()> m_listChildren;
};

std::string className(SysfsEntry::Kind kind) {
    switch (kind) {
    case SysfsEntry::Kind::UsbDevice:
        return "IOUSBDevice";
    case SysfsEntry::Kind::Disk:
    case SysfsEntry::Kind::Partition:
        return "IOMedia";
    case SysfsEntry::Kind::Other:
        break;
    }
    return "IOService";
}

/// What a device's entry tells.
enum class Shown : std::uint8_t {
    /// All that the system has read from the device.
    AsRead,
    /// The same, with what its opener has read from it.
    AsOpened,
    /// That it is there.
    Outline,
};

class DeviceEntry final : public RegistryEntry {
public:
    explicit DeviceEntry(SysfsEntry device, Shown shown = Shown::AsRead, OpenedDevice opened = {})
        : m_device(std::move(device)), m_shown(shown), m_opened(std::move(opened)) {}

    std::optional<std::string> IORegistryEntryGetNameInPlane(const std::string&) const override {
        return m_device.kind() == SysfsEntry::Kind::Disk ? mediaName(m_device)
                                                         : m_device.kernelName();
    }

    std::optional<std::string> IOObjectGetClass() const override {
        return className(m_device.kind());
    }

    bool IOObjectConformsTo(const std::string& name) const override {
        return name == "IOService" || name == className(m_device.kind());
    }

    std::optional<RegistryProperties> IORegistryEntryCreateCFProperties() const override;

    std::unique_ptr<RegistryIterator>
    IORegistryEntryGetChildIterator(const std::string&) const override {
        Entries entries;
        if (m_shown != Shown::Outline) {
            for (auto& child : m_device.children()) {
                entries.push_back(std::make_unique<DeviceEntry>(std::move(child)));
            }
        }
        return std::make_unique<EntryList>(std::move(entries));
    }

private:
    void addNumber(RegistryProperties& properties, const char* key) const {
        if (const auto number = m_device.hexadecimal(key)) {
            properties.emplace_back(key, std::int64_t{*number});
        }
    }

    void addIdentity(RegistryProperties& properties) const;

    SysfsEntry m_device;
    Shown m_shown;
    OpenedDevice m_opened;
};

void DeviceEntry::addIdentity(RegistryProperties& properties) const {
    const bool isOpened = m_shown == Shown::AsOpened;
    // Asked for again: another device may have its place since it was listed.
    if (m_shown == Shown::Outline || (isOpened && m_device.usbLocation() != m_opened.location)) {
        return;
    }
    addNumber(properties, "idVendor");
    addNumber(properties, "idProduct");
    if (auto serial = isOpened ? m_opened.serial : m_device.attribute("serial")) {
        properties.emplace_back("USB Serial Number", std::move(*serial));
    }
}

std::optional<RegistryProperties> DeviceEntry::IORegistryEntryCreateCFProperties() const {
    RegistryProperties properties;
    switch (m_device.kind()) {
    case SysfsEntry::Kind::UsbDevice:
        addIdentity(properties);
        break;
    case SysfsEntry::Kind::Disk:
    case SysfsEntry::Kind::Partition:
        // Asked for again: the device may have left since it was listed.
        if (m_device.attribute("dev")) {
            properties.emplace_back("BSD Name", m_device.kernelName());
        }
        break;
    case SysfsEntry::Kind::Other:
        break;
    }
    return properties;
}

Entries listUsbDevices(const fs::path& sysfs, const OpenedDevice& opened) {
    Entries entries;
    for (auto& [location, device] : usbDevices(sysfs)) {
        if (opened.location == 0) {
            entries.push_back(std::make_unique<DeviceEntry>(std::move(device)));
        } else if (opened.location == location) {
            entries.push_back(
                std::make_unique<DeviceEntry>(std::move(device), Shown::AsOpened, opened));
        } else {
            entries.push_back(std::make_unique<DeviceEntry>(std::move(device), Shown::Outline));
        }
    }
    entries.push_back(std::make_unique<PlainEntry>("End", "IOService", [] { return Entries{}; }));
    return entries;
}

} // namespace

std::unique_ptr<RegistryEntry> LinuxRegistry::IORegistryGetRootEntry(const OpenedDevice& opened) {
    return std::make_unique<PlainEntry>("Root", "IORegistryEntry", [sysfs = m_sysfs, opened] {
        return listUsbDevices(sysfs, opened);
    });
}

} // namespace zelto::linux_platform
