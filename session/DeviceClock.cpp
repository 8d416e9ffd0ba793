#include "session/DeviceClock.h"

namespace zelto {

using namespace std::chrono;

std::optional<sys_seconds> momentOf(const CurrentTime& clock) {
    const year_month_day date{year{clock.year}, month{clock.month}, day{clock.day}};
    if (!date.ok() || clock.hour > 23 || clock.minute > 59 || clock.second > 59) {
        return std::nullopt;
    }
    return sys_days{date} + hours{clock.hour} + minutes{clock.minute} + seconds{clock.second};
}

CurrentTime clockAt(sys_seconds moment) {
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

QString dateMinuteText(const CurrentTime& clock) {
    return QString::asprintf("%4d/%02d/%02d %02d:%02d", clock.year, clock.month, clock.day,
                             clock.hour, clock.minute);
}

QString dateTimeText(const CurrentTime& clock) {
    return dateMinuteText(clock) + QString::asprintf(":%02d", clock.second);
}

} // namespace zelto
