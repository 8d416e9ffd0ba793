#pragma once

#include "device/DeviceStatus.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

/// Sense data of the storage units (SPC-4, 4.5).
namespace zelto::simulator {

namespace ScsiSense {
inline constexpr Sense MediumNotPresent{0x02, 0x3A, 0x00};
inline constexpr Sense WriteError{0x03, 0x0C, 0x00};
inline constexpr Sense UnrecoveredReadError{0x03, 0x11, 0x00};
inline constexpr Sense InvalidOperationCode{0x05, 0x20, 0x00};
inline constexpr Sense BlockAddressOutOfRange{0x05, 0x21, 0x00};
inline constexpr Sense InvalidFieldInCommand{0x05, 0x24, 0x00};
inline constexpr Sense UnitNotSupported{0x05, 0x25, 0x00};
inline constexpr Sense SavingNotSupported{0x05, 0x39, 0x00};
inline constexpr Sense MediumRemovalPrevented{0x05, 0x53, 0x02};
/// Not ready to ready: a medium appeared, or another one.
inline constexpr Sense MediumMayHaveChanged{0x06, 0x28, 0x00};
inline constexpr Sense PowerOnOccurred{0x06, 0x29, 0x00};
inline constexpr Sense MiscompareDuringVerify{0x0E, 0x1D, 0x00};
} // namespace ScsiSense

/// Why a command ended as it did, and where.
struct SenseData {
    Sense sense;
    /// INFORMATION: the sector at which the command failed.
    std::optional<std::uint64_t> information;

    friend bool operator==(const SenseData&, const SenseData&) = default;
};

/// Fixed format, 18 bytes, response code 70h. A sector that does not fit 32 bits is left out.
[[nodiscard]] std::vector<std::uint8_t> encodeFixedSense(const SenseData& data);
/// Descriptor format, response code 72h: 8 bytes, and the information descriptor when there is one.
[[nodiscard]] std::vector<std::uint8_t> encodeDescriptorSense(const SenseData& data);

} // namespace zelto::simulator
