#pragma once

#include "platform/linux/FileDescriptor.h"

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>

namespace zelto::simulator {

using linux_platform::FileDescriptor;

/// Waits for sockets and for time to pass, and calls whoever asked. Everything runs on the one
/// thread that runs the loop, which is why nothing behind it needs a lock.
class EventLoop {
public:
    using Handler = std::function<void()>;
    using Milliseconds = std::chrono::milliseconds;
    using Clock = std::chrono::steady_clock;
    using Now = std::function<Clock::time_point()>;
    enum class Interest : std::uint8_t { Read, Write, ReadAndWrite };

    /// `now` tells the time that timers go by; tests bring their own.
    explicit EventLoop(Now now = &Clock::now);

    /// Calls `handler` whenever the descriptor is ready, or its other end is gone. The handler must
    /// not block, and may forget the descriptor. False for what cannot be waited for (a plain
    /// file: it is always ready).
    bool watch(int descriptor, Interest interest, Handler handler);
    void setInterest(int descriptor, Interest interest);
    /// Before the descriptor is closed.
    void forget(int descriptor);

    /// Calls `handler` once, when the time has passed.
    void callAfter(Milliseconds delay, Handler handler);

    /// For so long after something has happened the loop stays awake and looks for more: an answer
    /// often has the next request on its heels, and waking up takes longer than serving it.
    void stayAwakeFor(Milliseconds span) { m_awakeSpan = span; }

    /// Runs until stop.
    void run();
    void stop() { m_isStopping = true; }
    /// One round: waits until something happens, but no longer than `longest`.
    void runOnce(Milliseconds longest);

private:
    [[nodiscard]] Clock::time_point endOfWait(Milliseconds longest) const;
    void callDueTimers();

    Now m_now;
    FileDescriptor m_poll;
    std::map<int, std::shared_ptr<Handler>> m_handlers;
    std::multimap<Clock::time_point, Handler> m_timers;
    Milliseconds m_awakeSpan{0};
    bool m_hasJustServed = false;
    bool m_isStopping = false;
};

} // namespace zelto::simulator
