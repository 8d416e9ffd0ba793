#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <utility>

namespace zelto {

class Application;

/// Holds the world's events back while the controller is in the middle of something. An alert, a
/// pause or a run of the disk tool keeps windows repainting through an event loop of its own, and
/// in that loop the timer and the device monitor would call into a controller that is half-way
/// through an operation. So every such wait closes the gate, every event comes through it, and an
/// event that finds it closed happens once it has opened again, from the run loop.
class EventGate {
public:
    enum class Event : std::size_t { Tick, Arrival, Removal };

    explicit EventGate(Application& application) : m_application(application) {}
    EventGate(const EventGate&) = delete;
    EventGate& operator=(const EventGate&) = delete;
    ~EventGate() = default;

    /// Keeps the gate closed while it lives. Closings nest.
    class Closing {
    public:
        explicit Closing(EventGate& gate) : m_gate(gate) { ++gate.m_closings; }
        ~Closing() { m_gate.reopen(); }
        Closing(const Closing&) = delete;
        Closing& operator=(const Closing&) = delete;

    private:
        EventGate& m_gate;
    };

    /// Runs the handler now, with the gate closed behind it; or, when the gate is closed, once
    /// after it has opened, however often the same kind of event was delivered meanwhile.
    void deliver(Event event, const std::function<void()>& handler);

    /// Nothing passes any more: the application is ending.
    void closeForGood() { m_closedForGood = true; }
    [[nodiscard]] bool isClosedForGood() const { return m_closedForGood; }

private:
    static constexpr std::size_t EventKinds = 3;

    void reopen();
    void deliverHeldBack();

    Application& m_application;
    int m_closings = 0;
    bool m_closedForGood = false;
    std::array<std::function<void()>, EventKinds> m_heldBack;
};

} // namespace zelto
