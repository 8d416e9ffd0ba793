#include "session/RemainingTime.h"

namespace zelto {

std::uint32_t remainingSeconds(std::uint32_t elapsed, std::uint32_t period) {
    return elapsed <= period ? period - elapsed : 0;
}

QString remainingTimeText(const TimeStatus& status, const RemainingTimeWords& words) {
    constexpr std::uint32_t SecondsPerMinute = 60;
    constexpr std::uint32_t SecondsPerHour = 60 * SecondsPerMinute;
    constexpr std::uint32_t SecondsPerDay = 24 * SecondsPerHour;

    if (status.autoClearExpired) {
        return words.expired;
    }
    const std::uint32_t remaining =
        remainingSeconds(status.autoClearElapsed, status.autoClearPeriod);
    const std::uint32_t days = remaining / SecondsPerDay;
    const std::uint32_t hours = remaining % SecondsPerDay / SecondsPerHour;
    const std::uint32_t minutes = remaining % SecondsPerHour / SecondsPerMinute;

    QString text;
    if (days != 0) {
        text += QString::number(days) + u' ' + words.days + u' ';
    }
    if (hours != 0) {
        text += QString::number(hours) + u' ' + words.hours + u' ';
    }
    return text + QString::number(minutes) + u' ' + words.minutes;
}

} // namespace zelto
