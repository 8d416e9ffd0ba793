#pragma once

#include "device/DeviceStatus.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// What the drive and its requests are called, wherever they are named.
namespace zelto::simulator {

namespace DriveName {
inline constexpr std::string_view Vendor = "KESTRIN";
/// As a USB device; a unit's is that and its number, counted from 1.
inline constexpr std::string_view Product = "ZELTO DISK";
} // namespace DriveName

[[nodiscard]] inline std::string unitProduct(std::size_t unit) {
    return std::string(DriveName::Product) + std::to_string(unit + 1);
}

/// The command that sends a vendor request: "TKVR21_ZELTO_ReadHintData"; empty for a request that
/// there is not. What stands behind the last "_" is the request's own name.
[[nodiscard]] std::string_view commandOf(std::uint8_t bmRequestType, std::uint8_t bRequest);

/// "StateLocked".
[[nodiscard]] std::string_view nameOf(SecurityState state);

} // namespace zelto::simulator
