#pragma once

#include <chrono>
#include <functional>

namespace zelto {

/// The application object of the desktop's framework and its run loop.
class Application {
public:
    Application() = default;
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;
    virtual ~Application() = default;

    /// Calls `handler` on the main thread every `interval` until the application ends. A firing
    /// that comes late is made up for once, not once for every interval missed.
    virtual void scheduledTimer(std::chrono::seconds interval, std::function<void()> handler) = 0;

    /// Runs `task` on the main thread once the run loop is idle again, never inside this call.
    virtual void performLater(std::function<void()> task) = 0;

    /// Ends the run loop as soon as control returns to it. Called only once the controller has
    /// agreed to quit.
    virtual void stop() = 0;
};

} // namespace zelto
