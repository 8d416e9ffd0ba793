#pragma once

#include "platform/UsbDevice.h"

#include <functional>
#include <map>
#include <memory>
#include <span>
#include <utility>

namespace zelto {

/// A drive that lies: what it answers to a request is changed on the way to the program.
class ForgedReplies : public UsbDeviceInterface {
public:
    /// Changes an answer in place: the data stage, and the result to be returned.
    using Forgery = std::function<void(std::span<std::uint8_t> data, IOReturn& result)>;
    /// By request code.
    using Forgeries = std::map<std::uint8_t, Forgery>;

    ForgedReplies(std::unique_ptr<UsbDeviceInterface> device, std::shared_ptr<Forgeries> forgeries)
        : m_device(std::move(device)), m_forgeries(std::move(forgeries)) {}

    [[nodiscard]] std::uint16_t GetDeviceVendor() const override {
        return m_device->GetDeviceVendor();
    }
    [[nodiscard]] std::uint16_t GetDeviceProduct() const override {
        return m_device->GetDeviceProduct();
    }
    [[nodiscard]] std::uint16_t GetDeviceReleaseNumber() const override {
        return m_device->GetDeviceReleaseNumber();
    }
    [[nodiscard]] IOReturn USBDeviceOpen() override { return m_device->USBDeviceOpen(); }
    [[nodiscard]] std::uint8_t USBGetSerialNumberStringIndex() const override {
        return m_device->USBGetSerialNumberStringIndex();
    }
    [[nodiscard]] IOReturn DeviceRequest(IOUSBDevRequest& request) override {
        IOReturn result = m_device->DeviceRequest(request);
        constexpr std::uint8_t VendorType = 0x40;
        const auto forgery = m_forgeries->find(request.bRequest);
        if ((request.bmRequestType & VendorType) != 0 && forgery != m_forgeries->end()) {
            forgery->second({request.pData, request.pData == nullptr ? 0U : request.wLength},
                            result);
        }
        return result;
    }

private:
    std::unique_ptr<UsbDeviceInterface> m_device;
    std::shared_ptr<Forgeries> m_forgeries;
};

} // namespace zelto
