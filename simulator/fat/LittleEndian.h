#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

/// Numbers as disks keep them. The caller has checked that the offset lies inside.
namespace zelto::simulator {

template <typename Number>
[[nodiscard]] Number getLittleEndian(std::span<const std::uint8_t> bytes, std::size_t offset) {
    std::uint64_t value = 0;
    for (std::size_t i = sizeof(Number); i > 0; --i) {
        value = value << 8U | bytes[offset + i - 1];
    }
    return static_cast<Number>(value);
}

template <typename Number>
void putLittleEndian(std::span<std::uint8_t> bytes, std::size_t offset, Number number) {
    auto rest = static_cast<std::uint64_t>(number);
    for (std::size_t i = 0; i < sizeof(Number); ++i) {
        bytes[offset + i] = static_cast<std::uint8_t>(rest & 0xFFU);
        rest >>= 8U;
    }
}

} // namespace zelto::simulator
