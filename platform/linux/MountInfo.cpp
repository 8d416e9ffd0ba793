#include "platform/linux/MountInfo.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace zelto::linux_platform {

namespace {

std::vector<std::string_view> splitAt(std::string_view text, char separator) {
    std::vector<std::string_view> pieces;
    while (true) {
        const auto end = text.find(separator);
        pieces.push_back(text.substr(0, end));
        if (end == std::string_view::npos) {
            return pieces;
        }
        text.remove_prefix(end + 1);
    }
}

bool isOctalDigit(char character) {
    return character >= '0' && character <= '7';
}

/// A line reads: ID PARENT MAJOR:MINOR ROOT MOUNTPOINT OPTIONS [TAG...] - TYPE SOURCE SUPEROPTIONS
std::optional<MountInfoLine> parseLine(std::string_view line) {
    constexpr std::size_t DeviceNumberField = 2;
    constexpr std::size_t MountPointField = 4;
    constexpr std::ptrdiff_t FirstTagField = 6;
    constexpr std::ptrdiff_t SourceAfterSeparator = 2;
    const auto fields = splitAt(line, ' ');
    if (fields.size() <= static_cast<std::size_t>(FirstTagField)) {
        return std::nullopt;
    }
    const auto separator = std::find(fields.begin() + FirstTagField, fields.end(), "-");
    if (fields.end() - separator <= SourceAfterSeparator) {
        return std::nullopt;
    }
    return MountInfoLine{{decodeOctalEscapes(fields[MountPointField]),
                          decodeOctalEscapes(separator[SourceAfterSeparator])},
                         std::string(fields[DeviceNumberField])};
}

} // namespace

std::string decodeOctalEscapes(std::string_view text) {
    if (text.find('\\') == std::string_view::npos) {
        return std::string(text);
    }
    std::string decoded;
    decoded.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto digits = text.substr(at + 1, 3);
        // More than 0377 would not fit a byte, so such digits are no escape.
        if (text[at] == '\\' && digits.size() == 3 && std::ranges::all_of(digits, isOctalDigit) &&
            digits[0] <= '3') {
            decoded += static_cast<char>((digits[0] - '0') * 64 + (digits[1] - '0') * 8 +
                                         (digits[2] - '0'));
            at += 3;
        } else {
            decoded += text[at];
        }
    }
    return decoded;
}

std::vector<MountInfoLine> parseMountInfo(std::string_view text) {
    std::vector<MountInfoLine> mounted;
    for (const auto line : splitAt(text, '\n')) {
        if (auto fileSystem = parseLine(line)) {
            mounted.push_back(std::move(*fileSystem));
        }
    }
    return mounted;
}

} // namespace zelto::linux_platform
