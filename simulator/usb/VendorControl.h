#pragma once

#include "simulator/drive/DriveModel.h"

#include <cstdint>
#include <optional>
#include <span>

namespace zelto::simulator {

/// Where the device's vendor requests go: the firmware, or something that stands before it.
class VendorControl {
public:
    VendorControl() = default;
    VendorControl(const VendorControl&) = delete;
    VendorControl& operator=(const VendorControl&) = delete;
    virtual ~VendorControl() = default;

    /// One vendor request. `sent` is the whole data stage towards the device (wLength bytes; empty
    /// for the other direction); nothing in either was looked at. Nothing means that no answer
    /// comes: the transfer hangs until the host gives up.
    [[nodiscard]] virtual std::optional<ControlReply>
    request(const SetupPacket& setup, std::span<const std::uint8_t> sent) = 0;
};

} // namespace zelto::simulator
