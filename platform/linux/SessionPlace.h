#pragma once

#include "platform/Desktop.h"
#include "platform/linux/Waiting.h"

#include <QDBusConnection>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <chrono>
#include <functional>
#include <memory>

class QDBusServiceWatcher;

namespace zelto::linux_platform {

/// The place of the session's one program: its name on the session bus, where desktops and later
/// starts find it as an org.freedesktop.Application. Whoever calls it can make it come forward, or
/// show its manual, and nothing else. Its operations are those of Desktop. Without a bus every
/// start has the place.
class SessionPlace final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    using Bus = std::function<QDBusConnection()>;

    /// The program's name on the bus, and that of its desktop file.
    static constexpr auto Name = "com.kestrin.zelto";
    /// The action of its desktop file that shows the manual.
    static constexpr auto ManualAction = "manual";

    /// The other copy may be in the middle of a command, which may take 5 s.
    SessionPlace(Bus bus, const Waiting& waiting,
                 std::chrono::milliseconds comeForwardLimit = std::chrono::seconds(7));
    /// Gives the place up: what is asked of the program from then on is asked of a new one.
    ~SessionPlace() override;

    [[nodiscard]] bool take(const Desktop::LaterStart& later);
    void giveWayToNewStart();
    /// True when there is another and it has come forward.
    bool bringOtherForward();

public Q_SLOTS:
    // What the bus may call.
    Q_SCRIPTABLE void Activate(const QVariantMap& platformData);
    Q_SCRIPTABLE void Open(const QStringList& uris, const QVariantMap& platformData);
    Q_SCRIPTABLE void ActivateAction(const QString& action, const QVariantList& parameter,
                                     const QVariantMap& platformData);

private:
    /// Runs it with the caller's leave to take the focus, if that came along.
    static void obey(const std::function<void()>& wish, const QVariantMap& platformData);
    [[nodiscard]] bool takeName();
    void giveUp();
    void waitForEndOf(const QString& connectionName);

    Bus m_bus;
    const Waiting& m_waiting;
    std::chrono::milliseconds m_comeForwardLimit;
    Desktop::LaterStart m_later;
    std::unique_ptr<QDBusServiceWatcher> m_newStart;
};

} // namespace zelto::linux_platform
