#pragma once

#include "device/Record.h"

#include <chrono>
#include <optional>

namespace zelto {

/// The drive's clock as it is written with TKVR21_ZELTO_SetCurrentTime and reported inside the
/// time status: UTC, each part as the drive gives it, whether or not such a date exists.
struct CurrentTime {
    static constexpr std::size_t Size = 7;
    using Bytes = std::array<std::uint8_t, Size>;

    std::uint16_t year = 0;
    std::uint8_t month = 0;
    std::uint8_t day = 0;
    std::uint8_t hour = 0;
    std::uint8_t minute = 0;
    std::uint8_t second = 0;

    friend bool operator==(const CurrentTime&, const CurrentTime&) = default;
};

[[nodiscard]] CurrentTime decodeCurrentTime(std::span<const std::uint8_t, CurrentTime::Size>);
[[nodiscard]] CurrentTime::Bytes encodeCurrentTime(const CurrentTime&);

/// The moment that a drive's clock shows; nothing for a date or time that does not exist.
[[nodiscard]] std::optional<std::chrono::sys_seconds> momentOf(const CurrentTime& clock);

/// A moment in the parts of a drive's clock; years that the record cannot carry are cut to 16 bits.
[[nodiscard]] CurrentTime clockAt(std::chrono::sys_seconds moment);

/// The drive's time status record, read with TKVR21_ZELTO_GetTimeStatus.
struct TimeStatus {
    static constexpr std::size_t Size = 28;
    using Bytes = std::array<std::uint8_t, Size>;

    /// The clock was never set, or was lost: `clock` is not to be shown.
    bool clockNotValid = false;
    /// The auto-clear period has run out.
    bool autoClearExpired = false;
    CurrentTime clock{};
    /// Seconds; a period of 0 means off.
    std::uint32_t autoClearElapsed = 0;
    std::uint32_t autoClearPeriod = 0;
    std::uint16_t idleLockPeriod = 0;
};

[[nodiscard]] TimeStatus decodeTimeStatus(std::span<const std::uint8_t, TimeStatus::Size>);
[[nodiscard]] TimeStatus::Bytes encodeTimeStatus(const TimeStatus&);

} // namespace zelto
