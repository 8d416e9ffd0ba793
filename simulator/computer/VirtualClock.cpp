#include "simulator/computer/VirtualClock.h"

namespace zelto::simulator {

std::chrono::seconds VirtualClock::utcOffset(std::chrono::sys_seconds moment) const {
    return m_zone ? m_zone(moment) : std::chrono::seconds(0);
}

void VirtualClock::sleep(std::chrono::seconds duration) {
    m_log.note(LogLine::Kind::Sleep, "sleep " + std::to_string(duration.count()));
    pass(duration);
}

void VirtualClock::setUtcOffset(std::chrono::seconds offset) {
    m_zone = [offset](std::chrono::sys_seconds) { return offset; };
}

void VirtualClock::setZone(std::function<std::chrono::seconds(std::chrono::sys_seconds)> zone) {
    m_zone = std::move(zone);
}

void VirtualClock::pass(std::chrono::seconds duration) {
    const std::chrono::sys_seconds end = m_worldTime + duration;
    while (!m_planned.empty() && m_planned.begin()->first <= end) {
        auto next = m_planned.extract(m_planned.begin());
        m_worldTime = std::max(m_worldTime, next.key());
        next.mapped()();
    }
    m_worldTime = std::max(m_worldTime, end);
    if (m_timePassed) {
        m_timePassed();
    }
}

void VirtualClock::after(std::chrono::seconds delay, std::function<void()> happening) {
    m_planned.emplace(m_worldTime + delay, std::move(happening));
}

} // namespace zelto::simulator
