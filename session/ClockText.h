#pragma once

#include "device/TimeStatus.h"

#include <QString>

/// Dates as people read them.
namespace zelto {

/// "yyyy/MM/dd HH:mm:ss".
[[nodiscard]] QString dateTimeText(const CurrentTime& clock);
/// "yyyy/MM/dd HH:mm".
[[nodiscard]] QString dateMinuteText(const CurrentTime& clock);

} // namespace zelto
