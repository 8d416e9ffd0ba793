#include "device/TimeStatus.h"

#include <algorithm>

namespace zelto {
namespace {

using record::Field;
using record::get;
using record::put;

constexpr Field Year{0, 2};
constexpr Field Month{2, 1};
constexpr Field Day{3, 1};
constexpr Field Hour{4, 1};
constexpr Field Minute{5, 1};
constexpr Field Second{6, 1};

static_assert(record::covers(std::array{Year, Month, Day, Hour, Minute, Second},
                             CurrentTime::Size));

constexpr Field StatusFlags{0, 1};
constexpr Field AfterFlags{1, 1};
constexpr Field Clock{2, CurrentTime::Size};
constexpr Field AfterClock{9, 9};
constexpr Field AutoClearElapsed{18, 4};
constexpr Field AutoClearPeriod{22, 4};
constexpr Field IdleLockPeriod{26, 2};

static_assert(record::covers(std::array{StatusFlags, AfterFlags, Clock, AfterClock,
                                        AutoClearElapsed, AutoClearPeriod, IdleLockPeriod},
                             TimeStatus::Size));

constexpr std::uint8_t ClockNotValid = 0x40;
constexpr std::uint8_t AutoClearExpired = 0x80;

} // namespace

CurrentTime decodeCurrentTime(std::span<const std::uint8_t, CurrentTime::Size> bytes) {
    return {
        .year = get<std::uint16_t>(bytes, Year),
        .month = get<std::uint8_t>(bytes, Month),
        .day = get<std::uint8_t>(bytes, Day),
        .hour = get<std::uint8_t>(bytes, Hour),
        .minute = get<std::uint8_t>(bytes, Minute),
        .second = get<std::uint8_t>(bytes, Second),
    };
}

CurrentTime::Bytes encodeCurrentTime(const CurrentTime& time) {
    CurrentTime::Bytes bytes{};
    put(bytes, Year, time.year);
    put(bytes, Month, time.month);
    put(bytes, Day, time.day);
    put(bytes, Hour, time.hour);
    put(bytes, Minute, time.minute);
    put(bytes, Second, time.second);
    return bytes;
}

std::optional<std::chrono::sys_seconds> momentOf(const CurrentTime& clock) {
    using namespace std::chrono;
    const year_month_day date{year{clock.year}, month{clock.month}, day{clock.day}};
    if (!date.ok() || clock.hour > 23 || clock.minute > 59 || clock.second > 59) {
        return std::nullopt;
    }
    return sys_days{date} + hours{clock.hour} + minutes{clock.minute} + seconds{clock.second};
}

CurrentTime clockAt(std::chrono::sys_seconds moment) {
    using namespace std::chrono;
    const auto midnight = floor<days>(moment);
    const year_month_day date{midnight};
    const hh_mm_ss time{moment - midnight};
    return {
        .year = static_cast<std::uint16_t>(static_cast<int>(date.year())),
        .month = static_cast<std::uint8_t>(static_cast<unsigned>(date.month())),
        .day = static_cast<std::uint8_t>(static_cast<unsigned>(date.day())),
        .hour = static_cast<std::uint8_t>(time.hours().count()),
        .minute = static_cast<std::uint8_t>(time.minutes().count()),
        .second = static_cast<std::uint8_t>(time.seconds().count()),
    };
}

TimeStatus decodeTimeStatus(std::span<const std::uint8_t, TimeStatus::Size> bytes) {
    const auto flags = get<std::uint8_t>(bytes, StatusFlags);
    return {
        .clockNotValid = (flags & ClockNotValid) != 0,
        .autoClearExpired = (flags & AutoClearExpired) != 0,
        .clock = decodeCurrentTime(bytes.subspan<Clock.offset, Clock.width>()),
        .autoClearElapsed = get<std::uint32_t>(bytes, AutoClearElapsed),
        .autoClearPeriod = get<std::uint32_t>(bytes, AutoClearPeriod),
        .idleLockPeriod = get<std::uint16_t>(bytes, IdleLockPeriod),
    };
}

TimeStatus::Bytes encodeTimeStatus(const TimeStatus& status) {
    TimeStatus::Bytes bytes{};
    put(bytes, StatusFlags,
        (status.clockNotValid ? ClockNotValid : 0U) |
            (status.autoClearExpired ? AutoClearExpired : 0U));
    std::ranges::copy(encodeCurrentTime(status.clock),
                      record::bytes(std::span<std::uint8_t>(bytes), Clock).begin());
    put(bytes, AutoClearElapsed, status.autoClearElapsed);
    put(bytes, AutoClearPeriod, status.autoClearPeriod);
    put(bytes, IdleLockPeriod, status.idleLockPeriod);
    return bytes;
}

} // namespace zelto
