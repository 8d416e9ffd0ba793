#pragma once

#include "platform/Result.h"

#include <cstdint>
#include <string>

namespace zelto {

/// One control transfer on endpoint 0: the setup packet of USB 2.0, 9.3, and its data stage.
struct IOUSBDevRequest {
    std::uint8_t bmRequestType = 0;
    std::uint8_t bRequest = 0;
    /// In host order, like wIndex and wLength; the platform puts them on the wire as little-endian.
    std::uint16_t wValue = 0;
    std::uint16_t wIndex = 0;
    /// Length of the data stage in bytes; pData holds at least that many.
    std::uint16_t wLength = 0;
    /// Data stage buffer of the caller; null without a data stage. A transfer towards the device
    /// only reads it.
    std::uint8_t* pData = nullptr;
    /// Filled by the platform: bytes moved in the data stage.
    std::uint32_t wLenDone = 0;
};

/// An interface to one USB device, obtained from a notification. Closed when destroyed.
class UsbDeviceInterface {
public:
    UsbDeviceInterface() = default;
    UsbDeviceInterface(const UsbDeviceInterface&) = delete;
    UsbDeviceInterface& operator=(const UsbDeviceInterface&) = delete;
    virtual ~UsbDeviceInterface() = default;

    /// idVendor, idProduct and bcdDevice of the device descriptor. Never block, never fail.
    [[nodiscard]] virtual std::uint16_t GetDeviceVendor() const = 0;
    [[nodiscard]] virtual std::uint16_t GetDeviceProduct() const = 0;
    [[nodiscard]] virtual std::uint16_t GetDeviceReleaseNumber() const = 0;

    /// The device's stay on the bus: no two devices that are attached have the same number, and a
    /// device gets another one each time it is plugged in. Never blocks, never fails.
    [[nodiscard]] virtual std::uint32_t GetLocationID() const = 0;

    /// The socket that it is plugged into, as people and the system's tools write it: "1-2" is the
    /// second port of the first bus, "1-2.4" the fourth of a hub there. Empty where that is not
    /// known. Never blocks, never fails.
    [[nodiscard]] virtual std::string GetPortName() const = 0;

    /// Opens the device for control transfers and for nobody else: kIOReturnExclusiveAccess tells
    /// that another program of this kind has it, and then it is not open here. No interface is
    /// claimed and no kernel driver is detached: the storage driver keeps the drive's units. May
    /// block for a fraction of a second while the system is still setting the device's permissions.
    /// kIOReturnNotPrivileged and kIOReturnNotPermitted tell why access was refused.
    [[nodiscard]] virtual IOReturn USBDeviceOpen() = 0;

    /// iSerialNumber of the device descriptor; 0 when the device has no serial number string.
    [[nodiscard]] virtual std::uint8_t USBGetSerialNumberStringIndex() const = 0;

    /// Performs one control transfer and blocks until it completes, fails, or the platform's
    /// default time limit (5 s) runs out. A device that answers with fewer bytes than wLength is
    /// a success; the rest of the buffer stays as it was.
    [[nodiscard]] virtual IOReturn DeviceRequest(IOUSBDevRequest& request) = 0;
};

} // namespace zelto
