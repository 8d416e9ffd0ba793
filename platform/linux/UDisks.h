#pragma once

#include "platform/linux/UDisksState.h"
#include "platform/linux/Waiting.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>

#include <chrono>
#include <functional>
#include <optional>

namespace zelto::linux_platform {

/// The disk service on a bus. Every call waits as long as the service takes, with the windows
/// painting; a service that vanishes meanwhile ends the call with an error.
class UDisks final : public QObject {
    Q_OBJECT

public:
    UDisks(QDBusConnection bus, const Waiting& waiting);

    /// Calls a method of one of the service's objects and returns the reply or the error.
    [[nodiscard]] QDBusMessage call(const QString& object, const QString& interface,
                                    const QString& method, const QVariantList& arguments);

    /// Everything that the service knows; nothing when it does not answer.
    [[nodiscard]] std::optional<UDisksState> state();

    using Predicate = std::function<bool(const UDisksState&)>;
    /// Waits until the service's own picture shows what is wanted: its properties may follow a
    /// method's return by seconds. False when it has not come after `limit`, or the
    /// service is gone; asks at least once.
    [[nodiscard]] bool waitFor(const Predicate& wanted, std::chrono::milliseconds limit);

Q_SIGNALS:
    /// Something about the service's objects may be different now.
    void changed();

private Q_SLOTS:
    void noteChange();

private:
    QDBusConnection m_bus;
    const Waiting& m_waiting;
    QDBusServiceWatcher m_watcher;
    bool m_hasChanged = false;
};

} // namespace zelto::linux_platform
