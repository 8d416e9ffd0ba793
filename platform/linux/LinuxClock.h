#pragma once

#include "platform/Clock.h"
#include "platform/linux/Waiting.h"

namespace zelto::linux_platform {

/// The system clock and the local zone as the C library knows it.
class LinuxClock final : public Clock {
public:
    explicit LinuxClock(const Waiting& waiting) : m_waiting(waiting) {}

    [[nodiscard]] std::chrono::sys_seconds now() const override;
    [[nodiscard]] std::chrono::seconds utcOffset(std::chrono::sys_seconds moment) const override;
    void sleep(std::chrono::seconds duration) override;

private:
    const Waiting& m_waiting;
};

} // namespace zelto::linux_platform
