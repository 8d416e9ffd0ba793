#include "platform/linux/UDisks.h"

#include "platform/linux/UDisksNames.h"

#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QLoggingCategory>
#include <QTimer>

#include <algorithm>
#include <limits>
#include <utility>

namespace zelto::linux_platform {

namespace {

/// Flushing a slow drive or waiting for the user at a prompt takes longer than any limit.
constexpr int WithoutLimit = std::numeric_limits<int>::max();
/// A change is normally announced; this is for the announcement that got lost.
constexpr std::chrono::milliseconds AskAgainAfter{1000};

/// What the service refuses and why: a window has no words for it. Nothing of it is a secret, yet
/// it stays unsaid until somebody asks, with QT_LOGGING_RULES="zelto.disks=true".
Q_LOGGING_CATEGORY(diagnostics, "zelto.disks", QtCriticalMsg)

} // namespace

UDisks::UDisks(QDBusConnection bus, const Waiting& waiting)
    : m_bus(std::move(bus)),
      m_waiting(waiting),
      m_watcher(udisks::Service, m_bus, QDBusServiceWatcher::WatchForOwnerChange) {
    qDBusRegisterMetaType<ManagedInterfaces>();
    qDBusRegisterMetaType<ManagedObjects>();
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &UDisks::noteChange);
    m_bus.connect(udisks::Service, {}, udisks::properties::Interface,
                  udisks::properties::PropertiesChanged, this, SLOT(noteChange()));
    m_bus.connect(udisks::Service, {}, udisks::object_manager::Interface,
                  udisks::object_manager::InterfacesAdded, this, SLOT(noteChange()));
    m_bus.connect(udisks::Service, {}, udisks::object_manager::Interface,
                  udisks::object_manager::InterfacesRemoved, this, SLOT(noteChange()));
}

void UDisks::noteChange() {
    m_hasChanged = true;
    Q_EMIT changed();
}

QDBusMessage UDisks::call(const QString& object, const QString& interface, const QString& method,
                          const QVariantList& arguments) {
    auto message = QDBusMessage::createMethodCall(udisks::Service, object, interface, method);
    message.setArguments(arguments);
    QDBusPendingCallWatcher pending(m_bus.asyncCall(message, WithoutLimit));
    if (!pending.isFinished()) {
        QEventLoop loop;
        connect(&pending, &QDBusPendingCallWatcher::finished, &loop, &QEventLoop::quit);
        m_waiting.run(loop);
    }
    // The application may be ending; what has been asked for still has to come to its end.
    pending.waitForFinished();
    auto reply = pending.reply();
    if (reply.type() == QDBusMessage::ErrorMessage) {
        qCWarning(diagnostics, "%ls of %ls: %ls: %ls", qUtf16Printable(method),
                  qUtf16Printable(object), qUtf16Printable(reply.errorName()),
                  qUtf16Printable(reply.errorMessage()));
    }
    return reply;
}

std::optional<UDisksState> UDisks::state() {
    const auto reply = call(udisks::ManagerObject, udisks::object_manager::Interface,
                            udisks::object_manager::GetManagedObjects, {});
    if (reply.type() != QDBusMessage::ReplyMessage ||
        reply.signature() != udisks::object_manager::ReplySignature) {
        return std::nullopt;
    }
    return UDisksState::decode(qdbus_cast<ManagedObjects>(reply.arguments().constFirst()));
}

bool UDisks::waitFor(const Predicate& wanted, std::chrono::milliseconds limit) {
    const QDeadlineTimer end(limit);
    while (true) {
        m_hasChanged = false;
        const auto now = state();
        if (!now) {
            return false;
        }
        if (wanted(*now)) {
            return true;
        }
        if (end.hasExpired()) {
            return false;
        }
        bool timeUp = false;
        if (!m_hasChanged) {
            QEventLoop loop;
            connect(this, &UDisks::changed, &loop, &QEventLoop::quit);
            QTimer::singleShot(
                std::min(AskAgainAfter, std::chrono::milliseconds(end.remainingTime())), &loop,
                [&] {
                    timeUp = true;
                    loop.quit();
                });
            m_waiting.run(loop);
        }
        if (!m_hasChanged && !timeUp) {
            return false; // the application is ending
        }
    }
}

} // namespace zelto::linux_platform
