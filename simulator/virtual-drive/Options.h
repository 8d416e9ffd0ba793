#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace zelto::simulator {

/// What zelto-virtual-drive was asked for on its command line.
struct Options {
    static constexpr std::uint64_t DefaultSectors = std::uint64_t{1} << 21; // 1 GiB
    static constexpr std::string_view DefaultSerial = "ZD0123456789ABCD";
    static constexpr std::string_view DefaultAddress = "127.0.0.1:3240";

    bool wantsHelp = false;
    bool wantsVersion = false;
    /// The folder of the drive; none for one that is gone with the program.
    std::optional<std::filesystem::path> drive;
    /// Sectors and serial number of a drive that is made anew; of one that is there, they are
    /// checked.
    std::optional<std::uint64_t> sectors;
    std::optional<std::string> serial;
    /// Where other computers find the drive; none when it is only attached.
    std::optional<std::string> address;
    bool attaches = false;
    bool isUnplugged = false;
    std::optional<std::filesystem::path> log;
};

/// The arguments behind the program's name. Nothing, and why in `error`, when they make no sense.
[[nodiscard]] std::optional<Options> parseOptions(std::span<const std::string_view> arguments,
                                                  std::string& error);

/// "512", "64M", "2G" (K, M, G, T are powers of 1024) as sectors; nothing for a size that is no
/// whole number of sectors, is 0, or is too large to be one of a drive.
[[nodiscard]] std::optional<std::uint64_t> parseSize(std::string_view text);

/// What --help prints.
[[nodiscard]] std::string_view helpText();

} // namespace zelto::simulator
