#pragma once

#include "simulator/computer/EventLog.h"
#include "simulator/computer/ForwardingDevice.h"

#include <string>

namespace zelto::simulator {

/// The outermost layer of every handle that the program gets: notes each request and how it ended
/// for the program, whether or not a drive has heard it.
class LoggedDevice : public ForwardingDevice {
public:
    LoggedDevice(std::unique_ptr<UsbDeviceInterface> device, EventLog& log, std::string serial)
        : ForwardingDevice(std::move(device)), m_log(log), m_serial(std::move(serial)) {}

    [[nodiscard]] IOReturn DeviceRequest(IOUSBDevRequest& request) override;

private:
    EventLog& m_log;
    std::string m_serial;
};

} // namespace zelto::simulator
