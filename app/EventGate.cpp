#include "app/EventGate.h"

#include "platform/Application.h"

#include <algorithm>

namespace zelto {

void EventGate::deliver(Event event, const std::function<void()>& handler) {
    if (m_closedForGood) {
        return;
    }
    if (m_closings > 0) {
        m_heldBack[static_cast<std::size_t>(event)] = handler;
        return;
    }
    const Closing closing(*this);
    handler();
}

void EventGate::reopen() {
    --m_closings;
    const auto waiting = [](const std::function<void()>& handler) { return bool(handler); };
    if (m_closings == 0 && std::ranges::any_of(m_heldBack, waiting)) {
        m_application.performLater([this] { deliverHeldBack(); });
    }
}

void EventGate::deliverHeldBack() {
    for (std::size_t kind = 0; kind < EventKinds; ++kind) {
        if (auto handler = std::exchange(m_heldBack[kind], nullptr)) {
            deliver(static_cast<Event>(kind), handler);
        }
    }
}

} // namespace zelto
