#pragma once

#include "platform/Desktop.h"

#include <QDBusConnection>
#include <QDBusPendingCall>

#include <chrono>
#include <functional>
#include <optional>

namespace zelto::linux_platform {

/// The notices that a program leaves on the desktop, shown by its org.freedesktop.Notifications
/// where there is one.
class Notifications {
public:
    using Bus = std::function<QDBusConnection()>;

    explicit Notifications(Bus bus,
                           std::chrono::milliseconds answerLimit = std::chrono::seconds(2));
    Notifications(const Notifications&) = delete;
    Notifications& operator=(const Notifications&) = delete;
    /// Gives the service that moment to take what was left: the bus forgets what it has for a
    /// service that is only just starting when the sender goes.
    ~Notifications();

    /// Does not wait.
    void notify(const Desktop::Notice& notice);

private:
    Bus m_bus;
    std::chrono::milliseconds m_answerLimit;
    std::optional<QDBusPendingCall> m_latest;
};

} // namespace zelto::linux_platform
