#include "settings/Periods.h"

#include "settings/IntegerValue.h"
#include "settings/NumericCheck.h"

namespace zelto {
namespace {

constexpr std::uint32_t SecondsPerMinute = 60;
constexpr std::uint32_t SecondsPerDay = 86400;
constexpr std::int32_t MostDays = 9999;
constexpr std::int32_t MostMinutes = 999;

bool isNumberUpTo(std::int32_t most, const QString& text) {
    const std::int32_t value = integerValue32(text);
    return NumericCheck(text) && value >= 1 && value <= most;
}

} // namespace

bool isValid(const AutoClearEntry& entry) {
    return !entry.enabled ||
           isNumberUpTo(entry.unit == PeriodUnit::Days ? MostDays : MostMinutes, entry.text);
}

bool isValid(const AutoLogOffEntry& entry) {
    return !entry.enabled || isNumberUpTo(MostMinutes, entry.text);
}

std::uint32_t autoClearSeconds(const AutoClearEntry& entry) {
    if (!entry.enabled) {
        return 0;
    }
    const auto count = static_cast<std::uint32_t>(integerValue32(entry.text));
    return count * (entry.unit == PeriodUnit::Days ? SecondsPerDay : SecondsPerMinute);
}

std::uint16_t autoLogOffSeconds(const AutoLogOffEntry& entry) {
    if (!entry.enabled) {
        return 0;
    }
    const auto minutes = static_cast<std::uint32_t>(integerValue32(entry.text));
    return static_cast<std::uint16_t>(minutes * SecondsPerMinute);
}

AutoClearEntry shownAutoClear(std::uint32_t seconds) {
    if (seconds == 0) {
        return {};
    }
    if (seconds > MostMinutes * SecondsPerMinute) {
        return {true, PeriodUnit::Days, QString::number(seconds / SecondsPerDay)};
    }
    return {true, PeriodUnit::Minutes, QString::number(seconds / SecondsPerMinute)};
}

AutoLogOffEntry shownAutoLogOff(std::uint16_t seconds) {
    if (seconds == 0) {
        return {};
    }
    return {true, QString::number(seconds / SecondsPerMinute)};
}

} // namespace zelto
