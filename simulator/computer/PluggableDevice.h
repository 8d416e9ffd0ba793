#pragma once

#include "platform/UsbDevice.h"
#include "simulator/drive/DriveModel.h"
#include "simulator/drive/UnitStorage.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace zelto::simulator {

/// What a USB device says about itself while it is being enumerated.
struct UsbDescription {
    std::uint16_t idVendor = 0;
    std::uint16_t idProduct = 0;
    std::uint16_t bcdDevice = 0x0100;
    /// 0: there is no serial number string.
    std::uint8_t iSerialNumber = 3;
    std::string product;
    std::string serial;
    /// How an attempt to open the device ends.
    IOReturn openResult = kIOReturnSuccess;
};

/// Something with a USB plug.
class PluggableDevice {
public:
    PluggableDevice() = default;
    PluggableDevice(const PluggableDevice&) = delete;
    PluggableDevice& operator=(const PluggableDevice&) = delete;
    virtual ~PluggableDevice() = default;

    [[nodiscard]] virtual const UsbDescription& description() const = 0;
    virtual void powerUp(Moment now) = 0;
    virtual void powerOff(Moment now) = 0;

    /// A vendor request; standard requests are answered from the description.
    [[nodiscard]] virtual IOReturn control(IOUSBDevRequest& request, Moment now) = 0;
    /// True once after the device was asked to leave the bus and come back.
    [[nodiscard]] virtual bool takeReconnect() { return false; }

    [[nodiscard]] virtual std::size_t unitCount() const { return 0; }
    /// VENDOR, blank, MODEL.
    [[nodiscard]] virtual std::string unitName(std::size_t /*unit*/) const { return {}; }
    /// Its storage units as a computer with that clock sees them; null when it has none.
    [[nodiscard]] virtual std::unique_ptr<UnitStorage>
    makeUnits(const std::function<Moment()>& /*clock*/) {
        return nullptr;
    }
};

} // namespace zelto::simulator
