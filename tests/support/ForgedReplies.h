#pragma once

#include "simulator/computer/ForwardingDevice.h"

#include <functional>
#include <map>
#include <memory>
#include <span>
#include <utility>

namespace zelto::test {

/// A drive that lies: what it answers to a vendor request is changed on the way to the program.
class ForgedReplies : public simulator::ForwardingDevice {
public:
    /// An answer on its way.
    struct Reply {
        const IOUSBDevRequest& request;
        std::span<std::uint8_t> data;
        IOReturn result = kIOReturnSuccess;
    };
    /// Changes an answer in place.
    using Forgery = std::function<void(Reply& reply)>;
    /// By request code.
    using Forgeries = std::map<std::uint8_t, Forgery>;

    ForgedReplies(std::unique_ptr<UsbDeviceInterface> device, std::shared_ptr<Forgeries> forgeries)
        : ForwardingDevice(std::move(device)), m_forgeries(std::move(forgeries)) {}

    [[nodiscard]] IOReturn DeviceRequest(IOUSBDevRequest& request) override {
        const IOReturn result = ForwardingDevice::DeviceRequest(request);
        constexpr std::uint8_t VendorType = 0x40;
        const auto forgery = m_forgeries->find(request.bRequest);
        if ((request.bmRequestType & VendorType) == 0 || forgery == m_forgeries->end()) {
            return result;
        }
        const std::size_t length = request.pData == nullptr ? 0U : request.wLength;
        Reply reply{.request = request, .data = {request.pData, length}, .result = result};
        forgery->second(reply);
        return reply.result;
    }

private:
    std::shared_ptr<Forgeries> m_forgeries;
};

} // namespace zelto::test
