#pragma once

#include <functional>
#include <memory>

class QEventLoop;

namespace zelto::linux_platform {

/// Shows that work is under way, and keeps input away from the windows, for as long as the object
/// that it returns lives.
using WorkInProgress = std::function<std::shared_ptr<void>()>;

/// Waits without freezing the picture: windows go on repainting but take no input. The timer and
/// the device monitor do run inside such a wait; holding their events back is the controller's
/// part (its event gate).
class Waiting {
public:
    /// Without `showWork`, input is left in the queue until the wait is over.
    explicit Waiting(WorkInProgress showWork = {});

    /// Runs the loop until somebody quits it. Returns at once when the application is ending: the
    /// caller has to be ready to find that what it waits for has not happened.
    void run(QEventLoop& loop) const;

    /// The indication for work made of several waits: it stays while the object returned lives, so
    /// the windows do not flicker in between.
    [[nodiscard]] std::shared_ptr<void> showWork() const;

private:
    WorkInProgress m_showWork;
    mutable std::weak_ptr<void> m_shown;
};

} // namespace zelto::linux_platform
