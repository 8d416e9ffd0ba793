#include "platform/linux/Notifications.h"

#include "platform/linux/SessionPlace.h"

#include <QDBusMessage>
#include <QGuiApplication>

#include <utility>

namespace zelto::linux_platform {
namespace {

bool lasts(const Desktop::Notice& notice) {
    return notice.weight == Desktop::Notice::Weight::Lasting;
}

} // namespace

Notifications::Notifications(Bus bus, std::chrono::milliseconds limit)
    : m_bus(std::move(bus)), m_limit(limit) {}

Notifications::~Notifications() {
    if (m_notices.empty() || !m_bus().isConnected()) {
        return;
    }
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr) {
        QGuiApplication::sync(); // The desktop knows then, too, that the windows are gone.
    }
    for (const Desktop::Notice& notice : m_notices) {
        if (!showUnderOwnName(notice)) {
            show(notice);
        }
    }
}

/// As GNOME's own programs do, whose notices are kept; false elsewhere, and where the desktop does
/// not know the program.
bool Notifications::showUnderOwnName(const Desktop::Notice& notice) const {
    auto call = QDBusMessage::createMethodCall(
        QStringLiteral("org.gtk.Notifications"), QStringLiteral("/org/gtk/Notifications"),
        QStringLiteral("org.gtk.Notifications"), QStringLiteral("AddNotification"));
    call.setAutoStartService(false);
    const QVariantMap content{{QStringLiteral("title"), QString::fromStdString(notice.title)},
                              {QStringLiteral("body"), QString::fromStdString(notice.text)},
                              {QStringLiteral("priority"), lasts(notice)
                                                               ? QStringLiteral("urgent")
                                                               : QStringLiteral("normal")}};
    // One takes the place of an earlier one of its name, which is not true any more.
    call.setArguments({QString::fromLatin1(SessionPlace::Name), QStringLiteral("end"), content});
    return m_bus().call(call, QDBus::Block, static_cast<int>(m_limit.count())).type() ==
           QDBusMessage::ReplyMessage;
}

void Notifications::show(const Desktop::Notice& notice) const {
    constexpr uint ReplacesNone = 0;
    constexpr int AsTheServiceLikes = -1;
    constexpr int Never = 0;
    constexpr uchar Normal = 1;
    constexpr uchar Critical = 2;
    auto call = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.Notifications"),
                                               QStringLiteral("/org/freedesktop/Notifications"),
                                               QStringLiteral("org.freedesktop.Notifications"),
                                               QStringLiteral("Notify"));
    const QVariantMap hints{
        {QStringLiteral("urgency"), QVariant::fromValue(lasts(notice) ? Critical : Normal)}};
    call.setArguments({QStringLiteral("ZELTO DISK"), ReplacesNone, QStringLiteral("zelto"),
                       QString::fromStdString(notice.title), QString::fromStdString(notice.text),
                       QStringList(), hints, lasts(notice) ? Never : AsTheServiceLikes});
    (void)m_bus().call(call, QDBus::Block, static_cast<int>(m_limit.count()));
}

} // namespace zelto::linux_platform
