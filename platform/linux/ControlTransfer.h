#pragma once

#include "platform/UsbDevice.h"

struct libusb_context;
struct libusb_device_handle;

namespace zelto::linux_platform {

/// The longest data stage that usbfs carries on endpoint 0, in bytes.
inline constexpr std::uint16_t LongestDataStage = 4096;

/// One control transfer (USB 2.0, 8.5.3); blocks until it has ended, for the time limit at most,
/// in milliseconds and never 0. Returns the number of bytes of the data stage, or libusb's error.
/// Nothing of the data stays in this process but in the request itself: libusb's own call gives
/// the memory back as it is.
[[nodiscard]] int controlTransfer(libusb_context* context, libusb_device_handle* handle,
                                  const IOUSBDevRequest& request, unsigned timeLimitMilliseconds);

} // namespace zelto::linux_platform
