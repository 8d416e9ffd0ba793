#pragma once

#include "device/AreaInfo.h"
#include "device/DeviceStatus.h"
#include "device/TimeStatus.h"
#include "platform/UsbDevice.h"

#include <cstdint>

/// The input commands with their records decoded. A failed or short read leaves what did not
/// arrive at zero, never at what an earlier read left behind.
namespace zelto {

template <typename Record>
struct DeviceRead {
    /// As the command returned it.
    IOReturn result = kIOReturnSuccess;
    Record record{};

    [[nodiscard]] bool failed() const { return result != kIOReturnSuccess; }
};

enum class StatusRequest : std::uint16_t { Plain = 0, WithReadiness = 1 };

[[nodiscard]] DeviceRead<DeviceStatus> readDeviceStatus(UsbDeviceInterface& device,
                                                        StatusRequest request);
[[nodiscard]] DeviceRead<TimeStatus> readTimeStatus(UsbDeviceInterface& device);
[[nodiscard]] DeviceRead<AreaInfoTable> readAreaInfos(UsbDeviceInterface& device);

/// The choice, kept in the drive's hint data, to show the remaining time at log-in; false when it
/// cannot be read.
[[nodiscard]] bool readShowRemainingTime(UsbDeviceInterface& device);
} // namespace zelto
