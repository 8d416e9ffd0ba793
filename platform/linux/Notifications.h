#pragma once

#include "platform/Desktop.h"

#include <QDBusConnection>

#include <chrono>
#include <functional>
#include <vector>

namespace zelto::linux_platform {

/// The notices that a program leaves on the desktop.
///
/// GNOME's shell, and what was made of it, takes a notice away when the program that asked for it
/// ends, if it knows the program by a window or by its name. So notices are shown last of all, when
/// the windows are gone, and under the program's name only where the desktop keeps such ones.
class Notifications {
public:
    using Bus = std::function<QDBusConnection()>;

    /// A service that does not answer is waited for as long as that.
    explicit Notifications(Bus bus, std::chrono::milliseconds limit = std::chrono::seconds(2));
    Notifications(const Notifications&) = delete;
    Notifications& operator=(const Notifications&) = delete;
    /// Shows what was left. Waits for the answers, as the bus forgets what it has for a service
    /// that is only just starting when the sender goes.
    ~Notifications();

    void leave(const Desktop::Notice& notice) { m_notices.push_back(notice); }

private:
    [[nodiscard]] bool showUnderOwnName(const Desktop::Notice& notice) const;
    void show(const Desktop::Notice& notice) const;

    Bus m_bus;
    std::chrono::milliseconds m_limit;
    std::vector<Desktop::Notice> m_notices;
};

} // namespace zelto::linux_platform
