#pragma once

#include "platform/linux/UsbResult.h"

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

struct udev;
struct udev_device;
struct udev_monitor;

namespace zelto::linux_platform {

/// One USB device as udev shows it at one moment.
struct UdevDevice {
    /// Its folder in sysfs: the only thing that a device that has left still tells.
    std::string syspath;
    /// Path of its usbfs node; changes when the device leaves and comes back.
    std::string node;
    /// Its bus and its number there, as SysfsEntry gives them.
    std::uint32_t location = 0;
    /// Empty for a listed device; "add", "remove", ... for an event.
    std::string action;
    std::optional<std::uint16_t> idVendor;
    std::optional<std::uint16_t> idProduct;
    std::optional<std::uint16_t> bcdDevice;
    AccessRule accessRule = AccessRule::Missing;
};

/// libudev: which USB devices are there, and what happens to them. Only what udev itself has
/// finished with is reported, so the permissions of a device are set by then.
class UdevMonitor {
public:
    UdevMonitor();
    UdevMonitor(const UdevMonitor&) = delete;
    UdevMonitor& operator=(const UdevMonitor&) = delete;
    ~UdevMonitor();

    [[nodiscard]] bool isAvailable() const { return m_udev != nullptr; }

    /// Starts listening. False where the system offers no events (no netlink).
    [[nodiscard]] bool listen();
    /// The descriptor that turns readable with events; -1 while not listening.
    [[nodiscard]] int descriptor() const { return m_descriptor.load(); }
    /// Stops the events for good. Safe to call from a signal handler.
    void silence() noexcept;
    [[nodiscard]] bool isSilenced() const { return m_silenced.load(); }

    struct Batch {
        std::vector<UdevDevice> events;
        /// Events were lost: only a fresh listing tells what is there.
        bool overflowed = false;
    };
    /// Everything that waits, without blocking.
    [[nodiscard]] Batch drain();

    /// The USB devices that are there now, sorted by place.
    [[nodiscard]] std::vector<UdevDevice> list() const;
    /// Whether a rule gives this device to the session's user, asked afresh.
    [[nodiscard]] AccessRule accessRule(const std::string& syspath) const;

private:
    udev* m_udev = nullptr;
    udev_monitor* m_monitor = nullptr;
    /// What takes the place of the socket once silenced. If the socket were closed, libudev would
    /// close its number again later, when that may belong to another file.
    int m_nothing = -1;
    std::atomic<int> m_descriptor{-1};
    std::atomic<bool> m_silenced{false};
    static_assert(std::atomic<int>::is_always_lock_free && std::atomic<bool>::is_always_lock_free,
                  "silence() runs in signal handlers");
};

} // namespace zelto::linux_platform
