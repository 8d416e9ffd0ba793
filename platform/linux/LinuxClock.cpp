#include "platform/linux/LinuxClock.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

#include <ctime>
#include <thread>

namespace zelto::linux_platform {

std::chrono::sys_seconds LinuxClock::now() const {
    return std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
}

std::chrono::seconds LinuxClock::utcOffset(std::chrono::sys_seconds moment) const {
    const auto seconds = static_cast<std::time_t>(moment.time_since_epoch().count());
    std::tm local{};
    // localtime_r need not look at TZ again by itself; a zone changed meanwhile would be missed.
    ::tzset();
    if (::localtime_r(&seconds, &local) == nullptr) {
        return std::chrono::seconds(0); // a year that does not fit its field
    }
    return std::chrono::seconds(local.tm_gmtoff);
}

void LinuxClock::sleep(std::chrono::seconds duration) {
    const QDeadlineTimer end(duration, Qt::PreciseTimer);
    QEventLoop loop;
    QTimer::singleShot(duration, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    m_waiting.run(loop);
    // An application that is ending runs no event loop any more; the pause still has to last.
    if (!end.hasExpired()) {
        std::this_thread::sleep_for(std::chrono::nanoseconds(end.remainingTimeNSecs()));
    }
}

} // namespace zelto::linux_platform
