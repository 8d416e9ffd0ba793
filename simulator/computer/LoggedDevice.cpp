#include "simulator/computer/LoggedDevice.h"

namespace zelto::simulator {

namespace {

constexpr std::uint8_t ToHost = 0x80;
constexpr std::uint8_t Vendor = 0x40;

} // namespace

IOReturn LoggedDevice::DeviceRequest(IOUSBDevRequest& request) {
    const bool isVendor = (request.bmRequestType & Vendor) != 0;
    const bool isToHost = (request.bmRequestType & ToHost) != 0;
    LogLine line{.kind = isVendor ? LogLine::Kind::Command : LogLine::Kind::StandardRequest,
                 .text = isVendor ? commandName(request) : "standard request",
                 .serial = m_serial};
    if (!isToHost && request.pData != nullptr) {
        line.data.assign(request.pData, request.pData + request.wLength);
    }
    line.result = ForwardingDevice::DeviceRequest(request);
    if (isToHost && line.result == kIOReturnSuccess && request.pData != nullptr) {
        line.data.assign(request.pData, request.pData + request.wLenDone);
    }
    line.setup = request;
    line.setup.pData = nullptr;
    const IOReturn result = line.result;
    m_log.note(std::move(line));
    return result;
}

} // namespace zelto::simulator
