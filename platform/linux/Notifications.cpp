#include "platform/linux/Notifications.h"

#include "platform/linux/SessionPlace.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QFile>
#include <QGuiApplication>

#include <utility>

namespace zelto::linux_platform {
namespace {

constexpr uint None = 0;

bool lasts(const Desktop::Notice& notice) {
    return notice.weight == Desktop::Notice::Weight::Lasting;
}

} // namespace

QString Notifications::usualMemory() {
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return folder.isEmpty() ? QString() : folder + QStringLiteral("/zelto-notice");
}

Notifications::Notifications(Bus bus, std::chrono::milliseconds limit, QString memory)
    : m_bus(std::move(bus)), m_limit(limit), m_memory(std::move(memory)) {}

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
    constexpr int AsTheServiceLikes = -1;
    constexpr int Never = 0;
    constexpr uchar Normal = 1;
    constexpr uchar Critical = 2;
    const QString service = QStringLiteral("org.freedesktop.Notifications");
    auto call =
        QDBusMessage::createMethodCall(service, QStringLiteral("/org/freedesktop/Notifications"),
                                       service, QStringLiteral("Notify"));
    const QVariantMap hints{
        {QStringLiteral("urgency"), QVariant::fromValue(lasts(notice) ? Critical : Normal)}};
    const uint replaced = lastingOneOf(m_bus().interface()->serviceOwner(service));
    call.setArguments({QStringLiteral("ZELTO DISK"), replaced, QStringLiteral("zelto"),
                       QString::fromStdString(notice.title), QString::fromStdString(notice.text),
                       QStringList(), hints, lasts(notice) ? Never : AsTheServiceLikes});
    const QDBusMessage answer = m_bus().call(call, QDBus::Block, static_cast<int>(m_limit.count()));
    const QDBusReply<uint> number = answer;
    rememberLastingOne(number.isValid() && lasts(notice) ? number.value() : None, answer.service());
}

/// The number of a lasting notice that is left with this very service: a later one counts anew, and
/// the number would be another program's. None without one.
uint Notifications::lastingOneOf(const QString& service) const {
    constexpr qint64 LongestLine = 100;
    QFile file(m_memory);
    if (m_memory.isEmpty() || service.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        return None;
    }
    const QStringList words = QString::fromLatin1(file.read(LongestLine)).split(u' ');
    return words.size() == 2 && words.back() == service ? words.front().toUInt() : None;
}

void Notifications::rememberLastingOne(uint number, const QString& service) const {
    if (m_memory.isEmpty()) {
        return;
    }
    QFile file(m_memory);
    if (number == None) {
        (void)file.remove();
    } else if (file.open(QIODevice::WriteOnly)) {
        (void)file.write(QStringLiteral("%1 %2").arg(QString::number(number), service).toLatin1());
    }
}

} // namespace zelto::linux_platform
