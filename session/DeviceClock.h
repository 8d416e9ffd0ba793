#pragma once

#include "device/TimeStatus.h"

#include <QString>

#include <chrono>
#include <optional>

/// Dates as the drive keeps them (UTC) and as people read them (local time).
namespace zelto {

/// The moment that a drive's clock shows; nothing for a date or time that does not exist.
[[nodiscard]] std::optional<std::chrono::sys_seconds> momentOf(const CurrentTime& clock);

/// A moment in the parts of a drive's clock; years that the record cannot carry are cut to 16 bits.
[[nodiscard]] CurrentTime clockAt(std::chrono::sys_seconds moment);

/// "yyyy/MM/dd HH:mm:ss".
[[nodiscard]] QString dateTimeText(const CurrentTime& clock);
/// "yyyy/MM/dd HH:mm".
[[nodiscard]] QString dateMinuteText(const CurrentTime& clock);

} // namespace zelto
