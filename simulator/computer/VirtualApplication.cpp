#include "simulator/computer/VirtualApplication.h"

namespace zelto::simulator {

namespace {

/// Nothing sane leaves so much behind; two tasks that keep calling each other would.
constexpr int MostTasksAtATime = 100000;

} // namespace

void VirtualApplication::scheduledTimer(std::chrono::seconds interval,
                                        std::function<void()> handler) {
    m_timers.push_back(std::make_shared<Timer>(
        Timer{interval, m_clock.worldTime() + interval, std::move(handler)}));
}

void VirtualApplication::performLater(std::function<void()> task) {
    m_tasks.push_back(std::move(task));
    if (m_taskAdded) {
        m_taskAdded();
    }
}

void VirtualApplication::stop() {
    ++m_stops;
    m_log.note(LogLine::Kind::Stop, "stop");
    if (m_stopped) {
        m_stopped();
    }
}

void VirtualApplication::fireDueTimers() {
    // A handler may start timers or end the process; the copies keep what runs alive.
    const std::vector<std::shared_ptr<Timer>> timers = m_timers;
    for (const std::shared_ptr<Timer>& timer : timers) {
        if (isStopped()) {
            return;
        }
        if (m_clock.worldTime() >= timer->due) {
            timer->due = m_clock.worldTime() + timer->interval;
            timer->handler();
        }
    }
}

bool VirtualApplication::runUntilIdle() {
    for (int done = 0; done < MostTasksAtATime; ++done) {
        if (m_tasks.empty() || isStopped()) {
            return true;
        }
        const std::function<void()> task = std::move(m_tasks.front());
        m_tasks.pop_front();
        task();
    }
    return false;
}

void VirtualApplication::endProcess() {
    m_timers.clear();
    m_tasks.clear();
    m_stops = 0;
}

} // namespace zelto::simulator
