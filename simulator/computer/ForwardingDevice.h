#pragma once

#include "platform/UsbDevice.h"

#include <memory>
#include <utility>

namespace zelto::simulator {

/// A layer around a device handle that passes everything on. What stands on it changes one thing
/// and sees each request on its way; any number of layers may lie around one handle.
class ForwardingDevice : public UsbDeviceInterface {
public:
    explicit ForwardingDevice(std::unique_ptr<UsbDeviceInterface> device)
        : m_device(std::move(device)) {}

    [[nodiscard]] std::uint16_t GetDeviceVendor() const override {
        return m_device->GetDeviceVendor();
    }
    [[nodiscard]] std::uint16_t GetDeviceProduct() const override {
        return m_device->GetDeviceProduct();
    }
    [[nodiscard]] std::uint32_t GetLocationID() const override { return m_device->GetLocationID(); }
    [[nodiscard]] std::string GetPortName() const override { return m_device->GetPortName(); }
    [[nodiscard]] std::uint16_t GetDeviceReleaseNumber() const override {
        return m_device->GetDeviceReleaseNumber();
    }
    [[nodiscard]] IOReturn USBDeviceOpen() override { return m_device->USBDeviceOpen(); }
    [[nodiscard]] std::uint8_t USBGetSerialNumberStringIndex() const override {
        return m_device->USBGetSerialNumberStringIndex();
    }
    [[nodiscard]] IOReturn DeviceRequest(IOUSBDevRequest& request) override {
        return m_device->DeviceRequest(request);
    }

private:
    std::unique_ptr<UsbDeviceInterface> m_device;
};

} // namespace zelto::simulator
