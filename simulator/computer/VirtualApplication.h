#pragma once

#include "platform/Application.h"
#include "simulator/computer/VirtualClock.h"

#include <deque>
#include <memory>
#include <vector>

namespace zelto::simulator {

/// A run loop that runs only when it is told to. Timers follow the virtual clock.
class VirtualApplication : public Application {
public:
    VirtualApplication(VirtualClock& clock, EventLog& log) : m_clock(clock), m_log(log) {}

    void scheduledTimer(std::chrono::seconds interval, std::function<void()> handler) override;
    void performLater(std::function<void()> task) override;
    void stop() override;

    /// Fires every timer that is due, each once however late it is.
    void fireDueTimers();
    /// Runs what waits, and what that leaves behind, until nothing waits. May be called from
    /// inside a task, as an open dialog's own loop would. False when it never gets quiet.
    [[nodiscard]] bool runUntilIdle();

    [[nodiscard]] bool isStopped() const { return m_stops > 0; }
    /// How often the program asked for the end.
    [[nodiscard]] int stops() const { return m_stops; }
    /// The process has ended: nothing of it is left in the loop, and a new one may start.
    void endProcess();
    /// Called when something waits that was not there before; for a loop in real time.
    void setListener(std::function<void()> taskAdded) { m_taskAdded = std::move(taskAdded); }
    void setStopListener(std::function<void()> stopped) { m_stopped = std::move(stopped); }

private:
    struct Timer {
        std::chrono::seconds interval;
        std::chrono::sys_seconds due;
        std::function<void()> handler;
    };

    VirtualClock& m_clock;
    EventLog& m_log;
    std::vector<std::shared_ptr<Timer>> m_timers;
    std::deque<std::function<void()>> m_tasks;
    int m_stops = 0;
    std::function<void()> m_taskAdded;
    std::function<void()> m_stopped;
};

} // namespace zelto::simulator
