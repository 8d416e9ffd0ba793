#pragma once

#include "platform/Desktop.h"

#include <QDBusConnection>
#include <QString>

#include <chrono>
#include <functional>
#include <vector>

namespace zelto::linux_platform {

/// The notices that a program leaves on the desktop.
///
/// GNOME's shell, and what was made of it, takes a notice away when the program that asked for it
/// ends, if it knows the program by a window or by its name. So notices are shown last of all, when
/// the windows are gone, and under the program's name only where the desktop keeps such ones.
///
/// A lasting one says what the user has to do still. It is taken back by the next notice, also of a
/// later run: a drive that has been locked since is not unlocked any more.
class Notifications {
public:
    using Bus = std::function<QDBusConnection()>;

    /// A service that does not answer is waited for as long as that. What is shown is remembered in
    /// the file `memory`, by default in the session's folder; without a name, not at all.
    explicit Notifications(Bus bus, std::chrono::milliseconds limit = std::chrono::seconds(2),
                           QString memory = usualMemory());
    Notifications(const Notifications&) = delete;
    Notifications& operator=(const Notifications&) = delete;
    /// Shows what was left. Waits for the answers, as the bus forgets what it has for a service
    /// that is only just starting when the sender goes.
    ~Notifications();

    void leave(const Desktop::Notice& notice) { m_notices.push_back(notice); }

private:
    [[nodiscard]] static QString usualMemory();
    [[nodiscard]] bool showUnderOwnName(const Desktop::Notice& notice) const;
    void show(const Desktop::Notice& notice) const;
    [[nodiscard]] uint lastingOneOf(const QString& service) const;
    void rememberLastingOne(uint number, const QString& service) const;

    Bus m_bus;
    std::chrono::milliseconds m_limit;
    QString m_memory;
    std::vector<Desktop::Notice> m_notices;
};

} // namespace zelto::linux_platform
