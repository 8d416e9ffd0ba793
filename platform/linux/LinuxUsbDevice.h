#pragma once

#include "platform/UsbDevice.h"
#include "platform/linux/FileDescriptor.h"
#include "platform/linux/UsbContext.h"
#include "platform/linux/UsbResult.h"
#include "platform/linux/Waiting.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <thread>

struct libusb_device_handle;

namespace zelto::linux_platform {

/// The four fields of a device descriptor (USB 2.0, 9.6.1) that the utility asks for.
struct UsbIdentity {
    std::uint16_t idVendor = 0;
    std::uint16_t idProduct = 0;
    std::uint16_t bcdDevice = 0;
    std::uint8_t iSerialNumber = 0;
};

/// A device as udev announced it.
struct UsbAnnouncement {
    std::string syspath;
    /// Path of the usbfs node, "/dev/bus/usb/001/002" say.
    std::string node;
    std::uint32_t location = 0;
    UsbIdentity identity;
    /// Asked when an open is refused; the system may have learned more since the arrival.
    std::function<AccessRule()> accessRule;
    /// Says so while somebody has the device open or is opening it.
    std::shared_ptr<bool> isTaken = std::make_shared<bool>(false);
};

/// How long an open waits for permissions that follow the node by a moment.
struct OpenPatience {
    unsigned attempts = 6;
    std::chrono::milliseconds pause{50};
};

/// How long a drive that broke a transfer is given to turn out to be gone: the hub tells of a
/// pulled plug up to a quarter of a second after the first transfer has failed.
struct DeparturePatience {
    std::chrono::milliseconds limit{500};
    std::chrono::milliseconds pause{20};
    /// Blocks the thread, as the transfer itself does.
    std::function<void(std::chrono::milliseconds)> sleep = [](std::chrono::milliseconds duration) {
        std::this_thread::sleep_for(duration);
    };
};

/// One USB device through usbfs. The node is opened here and only then given to libusb, so that
/// the reason of a refused open is known and no discovery runs. Only endpoint 0 is used: no
/// interface is claimed and no driver detached, so the storage driver keeps the drive's units.
class LinuxUsbDevice final : public UsbDeviceInterface {
public:
    LinuxUsbDevice(UsbAnnouncement announcement, std::shared_ptr<const UsbContext> context,
                   const Waiting& waiting, OpenPatience patience,
                   DeparturePatience departurePatience);
    ~LinuxUsbDevice() override;

    [[nodiscard]] std::uint16_t GetDeviceVendor() const override { return identity().idVendor; }
    [[nodiscard]] std::uint16_t GetDeviceProduct() const override { return identity().idProduct; }
    [[nodiscard]] std::uint16_t GetDeviceReleaseNumber() const override {
        return identity().bcdDevice;
    }
    [[nodiscard]] std::uint8_t USBGetSerialNumberStringIndex() const override {
        return identity().iSerialNumber;
    }

    [[nodiscard]] std::uint32_t GetLocationID() const override { return m_announcement.location; }
    /// sysfs calls the device so.
    [[nodiscard]] std::string GetPortName() const override {
        return m_announcement.syspath.substr(m_announcement.syspath.rfind('/') + 1);
    }

    /// Opening an open device changes nothing and succeeds.
    [[nodiscard]] IOReturn USBDeviceOpen() override;

    /// Lengths over 4096 are refused as kIOReturnBadArgument: usbfs carries no more.
    [[nodiscard]] IOReturn DeviceRequest(IOUSBDevRequest& request) override;

private:
    [[nodiscard]] const UsbIdentity& identity() const { return m_announcement.identity; }
    [[nodiscard]] IOReturn openNode();
    [[nodiscard]] IOReturn lockNode();
    [[nodiscard]] IOReturn wrapNode();
    [[nodiscard]] bool hasLeft() const;
    [[nodiscard]] bool leavesSoon() const;

    UsbAnnouncement m_announcement;
    std::shared_ptr<const UsbContext> m_context;
    const Waiting& m_waiting;
    OpenPatience m_patience;
    DeparturePatience m_departurePatience;
    FileDescriptor m_node;
    libusb_device_handle* m_handle = nullptr;
};

} // namespace zelto::linux_platform
