#include "platform/linux/Notifications.h"

#include <QDBusMessage>
#include <QGuiApplication>

#include <utility>

namespace zelto::linux_platform {
namespace {

QVariantMap hintsOf(Desktop::Notice::Weight weight) {
    constexpr uchar Normal = 1;
    constexpr uchar Critical = 2;
    const bool lasts = weight == Desktop::Notice::Weight::Lasting;
    return {{QStringLiteral("urgency"), QVariant::fromValue(lasts ? Critical : Normal)},
            {QStringLiteral("desktop-entry"), QGuiApplication::desktopFileName()}};
}

} // namespace

Notifications::Notifications(Bus bus, std::chrono::milliseconds answerLimit)
    : m_bus(std::move(bus)), m_answerLimit(answerLimit) {}

Notifications::~Notifications() {
    if (m_latest) {
        m_latest->waitForFinished();
    }
}

void Notifications::notify(const Desktop::Notice& notice) {
    const QDBusConnection connection = m_bus();
    if (!connection.isConnected()) {
        return;
    }
    constexpr uint ReplacesNone = 0;
    constexpr int AsTheServiceLikes = -1;
    constexpr int Never = 0;
    auto call = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.Notifications"),
                                               QStringLiteral("/org/freedesktop/Notifications"),
                                               QStringLiteral("org.freedesktop.Notifications"),
                                               QStringLiteral("Notify"));
    call.setArguments(
        {QStringLiteral("ZELTO DISK"), ReplacesNone, QStringLiteral("zelto"),
         QString::fromStdString(notice.title), QString::fromStdString(notice.text), QStringList(),
         hintsOf(notice.weight),
         notice.weight == Desktop::Notice::Weight::Lasting ? Never : AsTheServiceLikes});
    m_latest = connection.asyncCall(call, static_cast<int>(m_answerLimit.count()));
}

} // namespace zelto::linux_platform
