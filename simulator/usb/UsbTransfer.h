#pragma once

#include <cstddef>
#include <cstdint>

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

} // namespace zelto::simulator
