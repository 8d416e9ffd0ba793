#pragma once

#include "device/TimeStatus.h"

#include <QString>

namespace zelto {

/// Seconds left until auto clear; 0 once the period has been used up.
[[nodiscard]] std::uint32_t remainingSeconds(std::uint32_t elapsed, std::uint32_t period);

/// The localised words that a remaining time is told in.
struct RemainingTimeWords {
    QString expired;
    QString days;
    QString hours;
    QString minutes;
};

/// "2 days 3 hours 0 minutes": days and hours only when there are any, minutes always, seconds
/// dropped; or the word for an expired period.
[[nodiscard]] QString remainingTimeText(const TimeStatus& status, const RemainingTimeWords& words);

} // namespace zelto
