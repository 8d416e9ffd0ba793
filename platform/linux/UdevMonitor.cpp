#include "platform/linux/UdevMonitor.h"

#include "platform/linux/SysfsEntry.h"

#include <fcntl.h>
#include <libudev.h>
#include <unistd.h>

#include <cerrno>

namespace zelto::linux_platform {

namespace {

constexpr auto Subsystem = "usb";
constexpr auto DeviceType = "usb_device";
constexpr auto SessionTag = "uaccess";

struct Release {
    void operator()(udev_device* device) const { udev_device_unref(device); }
    void operator()(udev_enumerate* enumerate) const { udev_enumerate_unref(enumerate); }
};
using DevicePointer = std::unique_ptr<udev_device, Release>;
using EnumeratePointer = std::unique_ptr<udev_enumerate, Release>;

std::string textOrEmpty(const char* text) {
    return text == nullptr ? std::string() : std::string(text);
}

AccessRule ruleOf(udev_device* device) {
    return udev_device_has_tag(device, SessionTag) == 1 ? AccessRule::Present : AccessRule::Missing;
}

UdevDevice describe(udev_device* device) {
    UdevDevice described;
    described.syspath = textOrEmpty(udev_device_get_syspath(device));
    described.node = textOrEmpty(udev_device_get_devnode(device));
    described.action = textOrEmpty(udev_device_get_action(device));
    described.accessRule = ruleOf(device);
    // Read from sysfs by ourselves: libudev remembers attributes, also those of a device that sat
    // in the same place before.
    const SysfsEntry sysfs(described.syspath);
    described.location = sysfs.usbLocation().value_or(0);
    described.idVendor = sysfs.hexadecimal("idVendor");
    described.idProduct = sysfs.hexadecimal("idProduct");
    described.bcdDevice = sysfs.hexadecimal("bcdDevice");
    return described;
}

} // namespace

UdevMonitor::UdevMonitor() : m_udev(udev_new()) {}

UdevMonitor::~UdevMonitor() {
    m_descriptor = -1;
    if (m_monitor != nullptr) {
        udev_monitor_unref(m_monitor);
    }
    if (m_udev != nullptr) {
        udev_unref(m_udev);
    }
    if (m_nothing >= 0) {
        ::close(m_nothing);
    }
}

bool UdevMonitor::listen() {
    if (m_monitor != nullptr || m_udev == nullptr) {
        return m_monitor != nullptr;
    }
    auto* monitor = udev_monitor_new_from_netlink(m_udev, "udev");
    if (monitor == nullptr) {
        return false;
    }
    // Unfiltered, a single hub full of devices overflows the socket's queue.
    if (udev_monitor_filter_add_match_subsystem_devtype(monitor, Subsystem, DeviceType) < 0 ||
        udev_monitor_enable_receiving(monitor) < 0) {
        udev_monitor_unref(monitor);
        return false;
    }
    m_nothing = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    m_monitor = monitor;
    m_descriptor = udev_monitor_get_fd(monitor);
    return true;
}

void UdevMonitor::silence() noexcept {
    m_silenced = true;
    const int descriptor = m_descriptor.exchange(-1);
    if (descriptor >= 0 && m_nothing >= 0) {
        const int error = errno;
        ::dup3(m_nothing, descriptor, O_CLOEXEC);
        errno = error;
    }
}

UdevMonitor::Batch UdevMonitor::drain() {
    Batch batch;
    if (m_monitor == nullptr || isSilenced()) {
        return batch;
    }
    while (true) {
        errno = 0;
        const DevicePointer device(udev_monitor_receive_device(m_monitor));
        if (!device) {
            batch.overflowed = errno == ENOBUFS;
            return batch;
        }
        batch.events.push_back(describe(device.get()));
    }
}

std::vector<UdevDevice> UdevMonitor::list() const {
    std::vector<UdevDevice> devices;
    const EnumeratePointer enumerate(m_udev == nullptr ? nullptr : udev_enumerate_new(m_udev));
    if (!enumerate || udev_enumerate_add_match_subsystem(enumerate.get(), Subsystem) < 0 ||
        udev_enumerate_scan_devices(enumerate.get()) < 0) {
        return devices;
    }
    for (auto* item = udev_enumerate_get_list_entry(enumerate.get()); item != nullptr;
         item = udev_list_entry_get_next(item)) {
        const DevicePointer device(
            udev_device_new_from_syspath(m_udev, udev_list_entry_get_name(item)));
        if (device && textOrEmpty(udev_device_get_devtype(device.get())) == DeviceType) {
            devices.push_back(describe(device.get()));
        }
    }
    return devices;
}

AccessRule UdevMonitor::accessRule(const std::string& syspath) const {
    const DevicePointer device(
        m_udev == nullptr ? nullptr : udev_device_new_from_syspath(m_udev, syspath.c_str()));
    return device ? ruleOf(device.get()) : AccessRule::Missing;
}

} // namespace zelto::linux_platform
