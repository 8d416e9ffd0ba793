#pragma once

#include "simulator/drive/DriveModel.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>

namespace zelto::simulator {

/// How a transfer stands when a device has looked at it (USB 2.0, 8.5 and 8.7).
enum class TransferStatus : std::uint8_t {
    /// Done; less data than asked for is a short packet.
    Complete,
    /// The endpoint is halted, or the control request refused.
    Stalled,
    /// The device holds the transfer off (NAK): to be offered again later.
    Waiting,
    /// The device had more to send than the transfer takes (babble).
    Overflow,
    /// Nothing answers: there is no such endpoint.
    NoResponse,
};

struct TransferResult {
    TransferStatus status = TransferStatus::Complete;
    /// Bytes moved, also by a transfer that was stalled in the middle.
    std::size_t length = 0;

    friend bool operator==(const TransferResult&, const TransferResult&) = default;
};

/// Where the device's vendor requests go: the firmware, or something that stands before it. The
/// second argument is the whole data stage towards the device (wLength bytes; empty for the other
/// direction); nothing in either was looked at. Nothing means that no answer comes: the transfer
/// hangs until the host gives up.
using VendorControl =
    std::function<std::optional<ControlReply>(const SetupPacket&, std::span<const std::uint8_t>)>;

} // namespace zelto::simulator
