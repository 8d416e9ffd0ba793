#pragma once

#include "platform/UsbNotifications.h"
#include "platform/linux/LinuxUsbDevice.h"
#include "platform/linux/UdevMonitor.h"
#include "platform/linux/Waiting.h"

#include <QObject>

#include <array>
#include <atomic>
#include <deque>
#include <map>
#include <memory>
#include <string>

class QSocketNotifier;

namespace zelto::linux_platform {

/// Arrival and removal of USB devices from one libudev monitor. A computer without USB, and a
/// container without events, simply has no devices. Interfaces and services handed out may outlive
/// nothing but this object's `waiting`.
class LinuxUsb final : public QObject, public UsbNotifications {
    Q_OBJECT

public:
    explicit LinuxUsb(const Waiting& waiting, OpenPatience patience = {},
                      DeparturePatience departurePatience = {});
    ~LinuxUsb() override;

    [[nodiscard]] bool IOMasterPort() override { return m_monitor->isAvailable(); }
    [[nodiscard]] IOObject IONotificationPortCreate() override;
    void IONotificationPortDestroy(IOObject port) noexcept override;
    [[nodiscard]] IOObject IOServiceAddMatchingNotification(IOObject port, UsbEvent event,
                                                            const UsbMatching& matching,
                                                            Callback callback) override;
    [[nodiscard]] std::unique_ptr<UsbService> IOIteratorNext(IOObject iterator) override;
    void IOObjectRelease(IOObject iterator) noexcept override;

private:
    /// One stay of a device, from its arrival to its removal.
    struct Stay {
        /// What udev said of it when it was there; all there is to know of it when it leaves.
        UdevDevice device;
        /// Somebody has opened it or is about to.
        std::shared_ptr<bool> isTaken = std::make_shared<bool>(false);
    };
    /// By place in sysfs.
    using Present = std::map<std::string, Stay>;

    struct Iterator {
        /// Cleared from signal context; the rest is then left for the main thread.
        std::atomic<bool> inUse{false};
        UsbEvent event = UsbEvent::FirstMatch;
        UsbMatching matching;
        Callback callback;
        std::deque<Stay> waiting;
        /// Drained since it last called back: the next device calls back again.
        bool armed = false;
    };

    [[nodiscard]] Iterator* find(IOObject iterator);
    void readMonitor();
    void apply(const UdevDevice& device);
    void resynchronise();
    void arrive(const UdevDevice& device);
    void leave(const UdevDevice& device);
    void deliver(UsbEvent event, const Stay& stay);
    void callBack();

    const Waiting& m_waiting;
    OpenPatience m_patience;
    DeparturePatience m_departurePatience;
    /// Shared with the devices, which ask it once more when an open is refused.
    std::shared_ptr<UdevMonitor> m_monitor;
    std::shared_ptr<const UsbContext> m_context;
    std::unique_ptr<QSocketNotifier> m_notifier;
    Present m_present;
    /// A fixed number of slots: a signal handler must not meet a vector that is being moved.
    std::array<Iterator, 8> m_iterators;
};

} // namespace zelto::linux_platform
