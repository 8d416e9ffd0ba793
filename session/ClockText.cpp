#include "session/ClockText.h"

namespace zelto {

QString dateMinuteText(const CurrentTime& clock) {
    return QString::asprintf("%4d/%02d/%02d %02d:%02d", clock.year, clock.month, clock.day,
                             clock.hour, clock.minute);
}

QString dateTimeText(const CurrentTime& clock) {
    return dateMinuteText(clock) + QString::asprintf(":%02d", clock.second);
}

} // namespace zelto
