#include "device/Discovery.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <utility>

namespace zelto {

std::atomic<IOObject> gNotifyPort{0};
std::atomic<IOObject> gUsbAddedIter{0};
std::atomic<IOObject> gUsbRemovedIter{0};
std::atomic<IOObject> gRawAddedIter{0};
std::atomic<IOObject> gRawRemovedIter{0};

namespace {

/// The service that the handles above belong to, for the signal handler.
std::atomic<UsbNotifications*> gUsbNotifications{nullptr};

// A lock taken in signal context may already be held by the thread that was interrupted.
static_assert(std::atomic<IOObject>::is_always_lock_free);
static_assert(std::atomic<UsbNotifications*>::is_always_lock_free);

/// A standard request of the device to the host (USB 2.0, 9.3 and 9.4).
constexpr std::uint8_t StandardToHost = 0x80;
constexpr std::uint8_t GetDescriptor = 6;
constexpr std::uint16_t StringDescriptorType = 0x0300;
constexpr std::uint16_t EnglishUnitedStates = 0x0409;

/// Where a string descriptor's text begins: behind bLength and bDescriptorType.
constexpr std::size_t StringDescriptorHeader = 2;

/// A serial number as text takes a buffer of 64 bytes, its end included.
constexpr std::size_t SerialNumberCapacity = 64;

std::string readSerialNumber(UsbDeviceInterface& device) {
    // A refused or short read leaves zeros: an empty or a cut serial number, never old memory.
    StringDescriptor descriptor{};
    const std::uint8_t index = device.USBGetSerialNumberStringIndex();
    static_cast<void>(
        USB_GetSerialNumberString(device, index, descriptor.data(), descriptor.size()));
    return decodeSerialNumber(descriptor);
}

AttachedDrives::Access accessAfter(IOReturn opened) {
    switch (opened) {
    case kIOReturnNotPrivileged:
        return AttachedDrives::Access::RuleMissing;
    case kIOReturnNotPermitted:
        return AttachedDrives::Access::OtherSession;
    case kIOReturnExclusiveAccess:
        return AttachedDrives::Access::InUse;
    default:
        return AttachedDrives::Access::Granted;
    }
}

void forgetRefusal(AttachedDrives& drives, std::uint32_t location) {
    std::erase_if(drives.Refused, [&](const AttachedDrives::Refusal& refusal) {
        return refusal.device->GetLocationID() == location;
    });
}

/// A drive that is gone, or broken, is no matter of permission and is not kept.
void noteRefusal(AttachedDrives& drives, std::unique_ptr<UsbDeviceInterface> device,
                 IOReturn opened) {
    const auto reason = accessAfter(opened);
    if (reason != AttachedDrives::Access::Granted) {
        drives.Refused.push_back({std::move(device), reason});
    }
}

void listDrive(AttachedDrives& drives, UsbDeviceInterface& device, const std::string& serial) {
    if (drives.DevCnt + 1 > AttachedDrives::Capacity) {
        return;
    }
    drives.UsbSerial[drives.DevCnt] = serial;
    drives.UsbIntf[drives.DevCnt] = &device;
    drives.FoundPid[drives.DevCnt] = device.GetDeviceProduct();
    ++drives.DevCnt;
}

void recogniseReturn(AttachedDrives& drives, UsbDeviceInterface& device,
                     const std::string& serial) {
    if (drives.WaitReconnectZelto && serial == drives.UsbSerial[drives.SelectedZeltoIndex]) {
        drives.CurrentUsbIntf = &device;
        drives.WaitReconnectZelto = false;
    }
}

void takeDrive(AttachedDrives& drives, std::unique_ptr<UsbDeviceInterface> device) {
    const IOReturn opened = device->USBDeviceOpen();
    forgetRefusal(drives, device->GetLocationID());
    if (opened != kIOReturnSuccess) {
        noteRefusal(drives, std::move(device), opened);
        return;
    }
    UsbDeviceInterface& drive = *drives.Opened.emplace_back(std::move(device));
    const std::string serial = readSerialNumber(drive);
    listDrive(drives, drive, serial);
    recogniseReturn(drives, drive, serial);
}

using EventHandler = void (*)(DiscoveryContext& context, IOObject iterator);

IOObject watch(DiscoveryContext& context, UsbEvent event, const UsbMatching& matching,
               EventHandler handler) {
    return context.usb.IOServiceAddMatchingNotification(
        gNotifyPort, event, matching, [&context, event, handler](IOObject iterator) {
            context.deliver(event, [&context, handler, iterator] { handler(context, iterator); });
        });
}

} // namespace

int SetupMatchingNotification(std::uint32_t vendor, std::uint32_t product,
                              DiscoveryContext& context) {
    gUsbNotifications = &context.usb;
    static_cast<void>(std::signal(SIGINT, SignalHandler));
    if (!context.usb.IOMasterPort()) {
        return -1;
    }
    const UsbMatching matching{.idVendor = vendor, .idProduct = product};
    gNotifyPort = context.usb.IONotificationPortCreate();
    // Draining an iterator takes the drives that are there and arms the notification.
    gUsbAddedIter = watch(context, UsbEvent::FirstMatch, matching, UsbDeviceAdded);
    UsbDeviceAdded(context, gUsbAddedIter);
    gUsbRemovedIter = watch(context, UsbEvent::Terminate, matching, UsbDeviceRemoved);
    UsbDeviceRemoved(context, gUsbRemovedIter);
    return 0;
}

void UsbDeviceAdded(DiscoveryContext& context, IOObject iterator) {
    while (const auto service = context.usb.IOIteratorNext(iterator)) {
        if (auto device = service->IOCreatePlugInInterfaceForService()) {
            takeDrive(context.drives, std::move(device));
        }
    }
}

void UsbDeviceRemoved(DiscoveryContext& context, IOObject iterator) {
    while (const auto service = context.usb.IOIteratorNext(iterator)) {
        forgetRefusal(context.drives, service->GetLocationID());
    }
}

void TryRefusedDrivesAgain(AttachedDrives& drives) {
    for (auto& refusal : std::exchange(drives.Refused, {})) {
        takeDrive(drives, std::move(refusal.device));
    }
}

IOReturn USB_GetSerialNumberString(UsbDeviceInterface& device, std::uint8_t index,
                                   std::uint8_t* buffer, std::uint16_t length) {
    IOUSBDevRequest request{.bmRequestType = StandardToHost,
                            .bRequest = GetDescriptor,
                            .wValue = static_cast<std::uint16_t>(StringDescriptorType | index),
                            .wIndex = EnglishUnitedStates,
                            .wLength = length,
                            .pData = buffer};
    return device.DeviceRequest(request);
}

std::string decodeSerialNumber(const StringDescriptor& descriptor) {
    // bLength is the drive's claim: it may reach beyond the descriptor, or not even over its own
    // header. The loop's second bound keeps one byte of the text's buffer zero.
    const std::size_t claimedEnd = descriptor[0];
    std::array<char, SerialNumberCapacity> text{};
    for (std::size_t position = 0; position + 1 < text.size(); ++position) {
        const std::size_t unit = StringDescriptorHeader + 2 * position;
        if (unit >= claimedEnd) {
            break;
        }
        text[position] = static_cast<char>(descriptor[unit]);
    }
    return text.data();
}

void releaseNotifications() noexcept {
    UsbNotifications* const usb = gUsbNotifications;
    if (usb == nullptr) {
        return;
    }
    if (const IOObject port = gNotifyPort.exchange(0); port != 0) {
        usb->IONotificationPortDestroy(port);
    }
    for (auto* slot : {&gRawAddedIter, &gRawRemovedIter, &gUsbAddedIter, &gUsbRemovedIter}) {
        if (const IOObject iterator = slot->exchange(0); iterator != 0) {
            usb->IOObjectRelease(iterator);
        }
    }
    gUsbNotifications = nullptr;
}

void SignalHandler(int /*signalNumber*/) {
    releaseNotifications();
    std::_Exit(0);
}

} // namespace zelto
