#include "simulator/usbip/EventLoop.h"

#include <algorithm>
#include <array>
#include <sched.h>
#include <sys/epoll.h>
#include <utility>

namespace zelto::simulator {

namespace {

epoll_event eventFor(int descriptor, EventLoop::Interest interest) {
    epoll_event event{};
    event.data.fd = descriptor;
    if (interest != EventLoop::Interest::Write) {
        event.events |= EPOLLIN;
    }
    if (interest != EventLoop::Interest::Read) {
        event.events |= EPOLLOUT;
    }
    return event;
}

} // namespace

EventLoop::EventLoop(Now now) : m_now(std::move(now)), m_poll(::epoll_create1(EPOLL_CLOEXEC)) {}

bool EventLoop::watch(int descriptor, Interest interest, Handler handler) {
    epoll_event event = eventFor(descriptor, interest);
    if (::epoll_ctl(m_poll.get(), EPOLL_CTL_ADD, descriptor, &event) != 0) {
        return false;
    }
    m_handlers[descriptor] = std::make_shared<Handler>(std::move(handler));
    return true;
}

void EventLoop::setInterest(int descriptor, Interest interest) {
    epoll_event event = eventFor(descriptor, interest);
    ::epoll_ctl(m_poll.get(), EPOLL_CTL_MOD, descriptor, &event);
}

void EventLoop::forget(int descriptor) {
    if (m_handlers.erase(descriptor) > 0) {
        ::epoll_ctl(m_poll.get(), EPOLL_CTL_DEL, descriptor, nullptr);
    }
}

void EventLoop::callAfter(Milliseconds delay, Handler handler) {
    m_timers.emplace(m_now() + delay, std::move(handler));
}

void EventLoop::run() {
    constexpr Milliseconds LongTime{60'000};
    while (!m_isStopping) {
        runOnce(LongTime);
    }
}

EventLoop::Clock::time_point EventLoop::endOfWait(Milliseconds longest) const {
    const Clock::time_point end = m_now() + longest;
    return m_timers.empty() ? end : std::min(end, m_timers.begin()->first);
}

void EventLoop::runOnce(Milliseconds longest) {
    std::array<epoll_event, 16> events{};
    const auto wait = [&](Milliseconds time) {
        return ::epoll_wait(m_poll.get(), events.data(), static_cast<int>(events.size()),
                            static_cast<int>(time.count()));
    };
    int count = wait(Milliseconds{0});
    if (count == 0) {
        const Clock::time_point end = endOfWait(longest);
        const Clock::time_point endOfAwakeness =
            m_hasJustServed ? std::min(end, m_now() + m_awakeSpan) : Clock::time_point::min();
        while (count == 0 && m_now() < endOfAwakeness) {
            ::sched_yield(); // to whoever makes the next request
            count = wait(Milliseconds{0});
        }
        if (count == 0) {
            const auto left = std::chrono::ceil<Milliseconds>(end - m_now());
            count = wait(std::max(left, Milliseconds{0}));
        }
    }
    m_hasJustServed = count > 0;
    for (int index = 0; index < count; ++index) {
        const auto entry = m_handlers.find(events.at(static_cast<std::size_t>(index)).data.fd);
        if (entry != m_handlers.end()) {
            // Kept for the length of the call: the handler may forget itself.
            const std::shared_ptr<Handler> handler = entry->second;
            (*handler)();
        }
    }
    callDueTimers();
}

void EventLoop::callDueTimers() {
    if (m_timers.empty()) {
        return; // nor is the time asked for, on the way of every transfer
    }
    const Clock::time_point now = m_now();
    while (!m_timers.empty() && m_timers.begin()->first <= now) {
        const Handler handler = std::move(m_timers.begin()->second);
        m_timers.erase(m_timers.begin());
        handler();
    }
}

} // namespace zelto::simulator
