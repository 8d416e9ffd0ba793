#pragma once

#include "platform/UsbDevice.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace zelto {

/// A handle of the notification service: a port, or an iterator. 0 stands for none. Plain numbers,
/// because the interrupt handler has to give them back from signal context.
using IOObject = std::uint32_t;

/// Which devices a notification is about, by the device descriptor's identifiers.
struct UsbMatching {
    std::uint32_t idVendor = 0;
    std::uint32_t idProduct = 0;
};

enum class UsbEvent {
    /// "IOServiceFirstMatch": a matching device has arrived.
    FirstMatch,
    /// "IOServiceTerminate": a matching device has left.
    Terminate,
};

/// One device as an iterator yields it.
class UsbService {
public:
    UsbService() = default;
    UsbService(const UsbService&) = delete;
    UsbService& operator=(const UsbService&) = delete;
    virtual ~UsbService() = default;

    /// As the interface's; known also of a device that has left.
    [[nodiscard]] virtual std::uint32_t GetLocationID() const = 0;

    /// The interface to the device, not yet open; null when the system has none for it (it has
    /// left again, say).
    [[nodiscard]] virtual std::unique_ptr<UsbDeviceInterface>
    IOCreatePlugInInterfaceForService() = 0;
};

/// Arrival and removal of USB devices, delivered on the main thread.
class UsbNotifications {
public:
    using Callback = std::function<void(IOObject iterator)>;

    UsbNotifications() = default;
    UsbNotifications(const UsbNotifications&) = delete;
    UsbNotifications& operator=(const UsbNotifications&) = delete;
    virtual ~UsbNotifications() = default;

    /// Connects to the system's USB service; false when the computer has none at all.
    [[nodiscard]] virtual bool IOMasterPort() = 0;

    /// Creates the port through which events reach the main loop; 0 when the system offers none.
    /// Without a port, registrations still yield the devices that are present now.
    [[nodiscard]] virtual IOObject IONotificationPortCreate() = 0;

    /// Stops the delivery of events. Safe to call from a signal handler.
    virtual void IONotificationPortDestroy(IOObject port) noexcept = 0;

    /// Registers for one kind of event. The iterator returned yields the devices present now
    /// (FirstMatch) or nothing (Terminate); it has to be drained once, at once, to arm the
    /// notification. From then on `callback` runs on the main thread, never inside another call of
    /// this interface, each time the iterator has something new. 0 on failure.
    [[nodiscard]] virtual IOObject IOServiceAddMatchingNotification(IOObject port, UsbEvent event,
                                                                    const UsbMatching& matching,
                                                                    Callback callback) = 0;

    /// The next device, null when there is none (more). Never blocks.
    [[nodiscard]] virtual std::unique_ptr<UsbService> IOIteratorNext(IOObject iterator) = 0;

    /// Gives an iterator back. Safe to call from a signal handler.
    virtual void IOObjectRelease(IOObject iterator) noexcept = 0;
};

} // namespace zelto
