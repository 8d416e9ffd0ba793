#pragma once

#include <chrono>

namespace zelto {

class Clock {
public:
    Clock() = default;
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;
    virtual ~Clock() = default;

    /// The computer's time, UTC.
    [[nodiscard]] virtual std::chrono::sys_seconds now() const = 0;
    /// How far the local zone is ahead of UTC at that moment (daylight saving included).
    [[nodiscard]] virtual std::chrono::seconds utcOffset(std::chrono::sys_seconds moment) const = 0;
    /// Waits. Windows go on repainting meanwhile, but take no input.
    virtual void sleep(std::chrono::seconds duration) = 0;
};

} // namespace zelto
