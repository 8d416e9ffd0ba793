#pragma once

#include "device/AttachedDrives.h"
#include "platform/UsbNotifications.h"

#include <array>
#include <atomic>
#include <cstdint>
#include <functional>
#include <string>

/// Finding the drives: which are attached, which arrive, and which one has come back. Everything
/// runs on the main thread except SignalHandler, which runs in signal context.
namespace zelto {

/// What discovery works on. It has to outlive the notifications, that is the process or
/// `releaseNotifications`, whichever comes first.
struct DiscoveryContext {
    UsbNotifications& usb;
    AttachedDrives& drives;
    /// Runs the handler of an event, now or later: whoever owns the context decides when an event
    /// may happen. The drives already there at set-up do not come this way.
    std::function<void(UsbEvent event, std::function<void()> handler)> deliver;
};

/// Handles of the notification service, 0 for none. Atomic because SignalHandler takes them at any
/// moment.
extern std::atomic<IOObject> gNotifyPort;
extern std::atomic<IOObject> gUsbAddedIter;
extern std::atomic<IOObject> gUsbRemovedIter;
/// Slots for raw-device notifications. Nothing arms them; they are only released with the others.
extern std::atomic<IOObject> gRawAddedIter;
extern std::atomic<IOObject> gRawRemovedIter;

/// Lists the drives that are attached and watches for more; also installs SignalHandler for the
/// interrupt signal. 0, or -1 when the computer has no USB service at all: the application then
/// runs without drives. Blocks while the drives that are there are opened and read.
[[nodiscard]] int SetupMatchingNotification(std::uint32_t vendor, std::uint32_t product,
                                            DiscoveryContext& context);

/// Opens every drive that the iterator yields and lists it; the ninth and later ones stay open
/// without being listed. A drive that cannot be opened is passed over, and kept with the reason
/// when it is a matter of permission. The drive that was told to reconnect becomes the current one.
void UsbDeviceAdded(DiscoveryContext& context, IOObject iterator);

/// Drains the iterator, which arms the notification again. The list of drives stays as it is: one
/// that is gone is noticed by its commands. One that was never open is refused no more.
void UsbDeviceRemoved(DiscoveryContext& context, IOObject iterator);

/// Opens what could not be opened before and can be now: no event tells that another program has
/// let a drive go.
void TryRefusedDrivesAgain(AttachedDrives& drives);

/// Reads a string descriptor in English, United States (USB 2.0, 9.4.3 and 9.6.7). `buffer` holds
/// at least `length` bytes; a shorter answer leaves the rest as it was.
[[nodiscard]] IOReturn USB_GetSerialNumberString(UsbDeviceInterface& device, std::uint8_t index,
                                                 std::uint8_t* buffer, std::uint16_t length);

/// Room for a string descriptor, as discovery reads it.
using StringDescriptor = std::array<std::uint8_t, 128>;

/// The serial number in a string descriptor: the low byte of each UTF-16 code unit up to the first
/// zero, at most 63 of them whatever length the descriptor claims.
[[nodiscard]] std::string decodeSerialNumber(const StringDescriptor& descriptor);

/// Gives the port and the iterators back, each once however often this is called. Safe in signal
/// context. For whoever ends the USB service while the process lives on.
void releaseNotifications() noexcept;

/// Gives the notification objects back and ends the process at once with exit status 0.
extern "C" void SignalHandler(int signalNumber);

} // namespace zelto
