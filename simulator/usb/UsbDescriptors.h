#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

/// What the drive says about itself as a USB device (USB 2.0, 9.6): a high-speed mass-storage
/// device with one configuration, one interface and two bulk endpoints. Pure.
namespace zelto::simulator {

namespace UsbDescriptor {
inline constexpr std::uint16_t Release = 0x0100;
inline constexpr std::uint8_t ConfigurationValue = 1;
inline constexpr std::uint8_t MassStorageClass = 0x08;
inline constexpr std::uint8_t TransparentScsi = 0x06;
inline constexpr std::uint8_t BulkOnly = 0x50;
inline constexpr std::uint8_t BulkInAddress = 0x81;
inline constexpr std::uint8_t BulkOutAddress = 0x02;
} // namespace UsbDescriptor

/// The answer to GET_DESCRIPTOR: `value` is its wValue (type and index), `language` its wIndex.
/// Nothing for a descriptor that there is not. Not cut to the length that the host asked for.
[[nodiscard]] std::optional<std::vector<std::uint8_t>>
usbDescriptor(std::uint16_t value, std::uint16_t language, std::string_view serial);

/// A text of ASCII characters as a string descriptor. Its length is one byte, so what does not fit
/// is left out.
[[nodiscard]] std::vector<std::uint8_t> usbStringDescriptor(std::string_view text);

} // namespace zelto::simulator
