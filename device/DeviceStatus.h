#pragma once

#include "device/Record.h"

namespace zelto {

/// What the drive is prepared to do, bits 0 to 2 of its security byte. Values 6 and 7 have no name
/// and are not expected from a drive.
enum class SecurityState : std::uint8_t {
    StateNoPassword = 0,
    StateIdle = 1,
    StateLocked = 2,
    StatePasswordPending = 3,
    /// The drive is unlocked.
    StateUnlocking = 4,
    StateFullLock = 5,
};

/// SCSI sense data (SPC-4, 4.5): why the drive's last command ended as it did.
struct Sense {
    std::uint8_t key = 0;
    std::uint8_t additionalCode = 0;
    std::uint8_t qualifier = 0;

    friend bool operator==(const Sense&, const Sense&) = default;
};

/// A refused password: illegal request (5) or not ready (2), authentication failed (0x74, 0x40).
[[nodiscard]] constexpr bool saysAuthenticationFailed(const Sense& sense) {
    return (sense.key == 5 || sense.key == 2) && sense.additionalCode == 0x74 &&
           sense.qualifier == 0x40;
}

/// A command refused because of the drive's security state: any key with (0x74, 0x00).
[[nodiscard]] constexpr bool saysSecurityStateForbids(const Sense& sense) {
    return sense.additionalCode == 0x74 && sense.qualifier == 0x00;
}

/// The drive's status record, read with TKVR21_GetDeviceStatus.
struct DeviceStatus {
    static constexpr std::size_t Size = 36;
    using Bytes = std::array<std::uint8_t, Size>;

    /// Meaningful only when the status was asked for with value 1 (spin-up).
    std::uint8_t readiness = 0;
    /// Sense data of the drive's last command.
    Sense sense{};
    /// State in bits 0 to 2, two passwords in bit 6, automatic key in bit 7.
    std::uint8_t security = 0;

    [[nodiscard]] constexpr SecurityState state() const {
        return static_cast<SecurityState>(security & 0x07);
    }
    [[nodiscard]] constexpr bool usesSecondPassword() const { return (security & 0x40) != 0; }
    [[nodiscard]] constexpr bool hasAutomaticKey() const { return (security & 0x80) != 0; }
    [[nodiscard]] constexpr bool isReady() const { return readiness == 0x80 || readiness == 0xFF; }
};

[[nodiscard]] DeviceStatus decodeDeviceStatus(std::span<const std::uint8_t, DeviceStatus::Size>);
[[nodiscard]] DeviceStatus::Bytes encodeDeviceStatus(const DeviceStatus&);

} // namespace zelto
