#pragma once

#include "simulator/computer/ForwardingDevice.h"
#include "simulator/usb/FaultKind.h"

#include <functional>
#include <memory>

namespace zelto::test {

/// What goes wrong with one transfer.
struct Fault {
    using Kind = simulator::FaultKind;

    Kind kind = Kind::FailsBefore;
    /// The result of a transfer that fails: kIOUSBPipeStalled, kIOReturnIOError, ...
    IOReturn result = kIOUSBPipeStalled;
    /// The bytes of a short answer.
    std::uint32_t length = 0;
};

/// What fails when, shared by the handles of one drive, so that a count goes on across a
/// reconnect.
class FaultPlan {
public:
    /// Transfer `number`, counted from 0, goes wrong. One plan holds one fault.
    void failTransfer(std::size_t number, Fault fault);
    /// Every transfer for which the condition holds goes wrong.
    void failWhen(std::function<bool(const IOUSBDevRequest&)> condition, Fault fault);
    void clear();

    /// Transfers seen so far. A run without a fault tells a sweep how many there are.
    [[nodiscard]] std::size_t transfers() const { return m_transfers; }
    [[nodiscard]] bool hasStruck() const { return m_hasStruck; }
    void restartCount() { m_transfers = 0; }

    /// The fault that strikes this transfer, if any. Called once for each, by the device.
    [[nodiscard]] const Fault* next(const IOUSBDevRequest& request);

private:
    std::size_t m_transfers = 0;
    std::function<bool(std::size_t, const IOUSBDevRequest&)> m_strikes;
    Fault m_fault;
    bool m_hasStruck = false;
};

/// A bad cable: passes everything on, apart from the transfer that the plan has chosen.
class FaultyDevice : public simulator::ForwardingDevice {
public:
    FaultyDevice(std::unique_ptr<UsbDeviceInterface> device, std::shared_ptr<FaultPlan> plan)
        : simulator::ForwardingDevice(std::move(device)), m_plan(std::move(plan)) {}

    [[nodiscard]] IOReturn USBDeviceOpen() override;
    [[nodiscard]] IOReturn DeviceRequest(IOUSBDevRequest& request) override;

private:
    [[nodiscard]] IOReturn performShort(IOUSBDevRequest& request, std::uint32_t length);
    /// Lets the device obey while the caller's buffer stays as it was.
    void performUnanswered(const IOUSBDevRequest& request);

    std::shared_ptr<FaultPlan> m_plan;
    bool m_isGone = false;
};

} // namespace zelto::test
