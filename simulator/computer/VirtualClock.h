#pragma once

#include "platform/Clock.h"
#include "simulator/computer/EventLog.h"

#include <functional>
#include <map>

namespace zelto::simulator {

/// The virtual computer's time. It stands still until somebody lets it pass; what the world has
/// planned for a moment (a drive coming back, a desktop mounting late) happens as it goes by.
///
/// There are two readings. The world's time only ever goes on: timers, plans and drives follow it.
/// What the computer's clock shows is that time as somebody has set it, to the past as well.
class VirtualClock : public Clock {
public:
    /// Some Monday, for those to whom the day is the same.
    static constexpr std::chrono::sys_seconds SomeMorning =
        std::chrono::sys_days(std::chrono::year(2026) / std::chrono::March / 2) +
        std::chrono::hours(9) + std::chrono::minutes(30);

    VirtualClock(EventLog& log, std::chrono::sys_seconds start) : m_log(log), m_worldTime(start) {}

    [[nodiscard]] std::chrono::sys_seconds now() const override { return m_worldTime + m_setAhead; }
    /// What has passed for the world, whatever the computer's clock shows.
    [[nodiscard]] std::chrono::sys_seconds worldTime() const { return m_worldTime; }
    [[nodiscard]] std::chrono::seconds utcOffset(std::chrono::sys_seconds moment) const override;
    /// Lets time pass. The program is blocked meanwhile: its timers come late.
    void sleep(std::chrono::seconds duration) override;

    /// Sets the computer's clock, as its user would. No time passes.
    void set(std::chrono::sys_seconds now) { m_setAhead = now - m_worldTime; }
    void setUtcOffset(std::chrono::seconds offset);
    /// A zone with daylight saving, say.
    void setZone(std::function<std::chrono::seconds(std::chrono::sys_seconds)> zone);

    /// Lets time pass for the world alone: no timer fires here.
    void pass(std::chrono::seconds duration);
    /// Plans something that will happen to the world.
    void after(std::chrono::seconds delay, std::function<void()> happening);
    /// Called whenever time has passed.
    void setListener(std::function<void()> timePassed) { m_timePassed = std::move(timePassed); }

private:
    EventLog& m_log;
    std::chrono::sys_seconds m_worldTime;
    /// How far the computer's clock is ahead of the world's time.
    std::chrono::seconds m_setAhead{0};
    std::function<std::chrono::seconds(std::chrono::sys_seconds)> m_zone;
    std::multimap<std::chrono::sys_seconds, std::function<void()>> m_planned;
    std::function<void()> m_timePassed;
};

} // namespace zelto::simulator
