#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace zelto::test {

/// Bytes as tests write and print them: hexadecimal, blanks wherever they help the eye.
[[nodiscard]] inline std::vector<std::uint8_t> fromHex(std::string_view text) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string plain;
    for (const char letter : text) {
        if (letter == ' ' || letter == '\n') {
            continue;
        }
        const char lower = letter >= 'A' && letter <= 'F' ? static_cast<char>(letter + 32) : letter;
        if (digits.find(lower) == std::string_view::npos) {
            throw std::invalid_argument("not hexadecimal: " + std::string(text));
        }
        plain += lower;
    }
    if (plain.size() % 2 != 0) {
        throw std::invalid_argument("half a byte: " + std::string(text));
    }
    std::vector<std::uint8_t> bytes;
    for (std::size_t index = 0; index < plain.size(); index += 2) {
        const auto high = digits.find(plain[index]);
        const auto low = digits.find(plain[index + 1]);
        bytes.push_back(static_cast<std::uint8_t>(high << 4 | low));
    }
    return bytes;
}

/// The same as an array, for records of a fixed size; `text` has exactly that many bytes.
template <std::size_t Size>
[[nodiscard]] std::array<std::uint8_t, Size> arrayFromHex(std::string_view text) {
    const auto bytes = fromHex(text);
    if (bytes.size() != Size) {
        throw std::invalid_argument("another number of bytes: " + std::string(text));
    }
    std::array<std::uint8_t, Size> record{};
    std::ranges::copy(bytes, record.begin());
    return record;
}

[[nodiscard]] inline std::string toHex(std::span<const std::uint8_t> bytes) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (const std::uint8_t byte : bytes) {
        text += digits[byte >> 4];
        text += digits[byte & 0x0F];
    }
    return text;
}

} // namespace zelto::test
