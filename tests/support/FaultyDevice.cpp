#include "tests/support/FaultyDevice.h"

#include <algorithm>
#include <vector>

namespace zelto::test {

void FaultPlan::failTransfer(std::size_t number, Fault fault) {
    m_fault = fault;
    m_strikes = [number](std::size_t transfer, const IOUSBDevRequest&) {
        return transfer == number;
    };
}

void FaultPlan::failWhen(std::function<bool(const IOUSBDevRequest&)> condition, Fault fault) {
    m_fault = fault;
    m_strikes = [holds = std::move(condition)](std::size_t, const IOUSBDevRequest& request) {
        return holds(request);
    };
}

void FaultPlan::clear() {
    m_strikes = nullptr;
    m_hasStruck = false;
    m_transfers = 0;
}

const Fault* FaultPlan::next(const IOUSBDevRequest& request) {
    const std::size_t transfer = m_transfers++;
    if (!m_strikes || !m_strikes(transfer, request)) {
        return nullptr;
    }
    m_hasStruck = true;
    return &m_fault;
}

IOReturn FaultyDevice::USBDeviceOpen() {
    return m_isGone ? kIOReturnNoDevice : ForwardingDevice::USBDeviceOpen();
}

void FaultyDevice::performUnanswered(const IOUSBDevRequest& request) {
    std::vector<std::uint8_t> buffer(request.wLength);
    IOUSBDevRequest copy = request;
    if (request.pData != nullptr) {
        std::copy_n(request.pData, request.wLength, buffer.begin());
        copy.pData = buffer.data();
    }
    static_cast<void>(ForwardingDevice::DeviceRequest(copy));
}

IOReturn FaultyDevice::performShort(IOUSBDevRequest& request, std::uint32_t length) {
    const bool toHost = (request.bmRequestType & 0x80U) != 0;
    if (!toHost || request.pData == nullptr) {
        return ForwardingDevice::DeviceRequest(request);
    }
    std::vector<std::uint8_t> buffer(request.wLength);
    IOUSBDevRequest copy = request;
    copy.pData = buffer.data();
    const IOReturn result = ForwardingDevice::DeviceRequest(copy);
    request.wLenDone = std::min(copy.wLenDone, length);
    std::copy_n(buffer.begin(), request.wLenDone, request.pData);
    return result;
}

IOReturn FaultyDevice::DeviceRequest(IOUSBDevRequest& request) {
    if (m_isGone) {
        return kIOReturnNoDevice;
    }
    const Fault* const fault = m_plan->next(request);
    if (fault == nullptr) {
        return ForwardingDevice::DeviceRequest(request);
    }
    switch (fault->kind) {
    case Fault::Kind::FailsBefore:
        return fault->result;
    case Fault::Kind::FailsAfter:
        performUnanswered(request);
        return fault->result;
    case Fault::Kind::SilentBefore:
        return kIOReturnTimeout;
    case Fault::Kind::SilentAfter:
        performUnanswered(request);
        return kIOReturnTimeout;
    case Fault::Kind::AnswersShort:
        return performShort(request, fault->length);
    case Fault::Kind::VanishesBefore:
        m_isGone = true;
        return kIOReturnNoDevice;
    case Fault::Kind::VanishesAfter:
        performUnanswered(request);
        m_isGone = true;
        return kIOReturnNoDevice;
    }
    return kIOReturnIOError;
}

} // namespace zelto::test
