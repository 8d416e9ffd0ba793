#include "platform/linux/LinuxDesktop.h"

#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusUnixFileDescriptor>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QSessionManager>
#include <QUrl>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <utility>

namespace zelto::linux_platform {
namespace {

/// A computer whose login service does not answer is not kept awake, and nobody waits for it. Nor
/// for a session manager.
constexpr int InhibitMilliseconds = 2000;

QDBusMessage sessionManagerCall(const QString& method, const QVariantList& arguments) {
    const QString manager = QStringLiteral("org.gnome.SessionManager");
    auto call = QDBusMessage::createMethodCall(manager, QStringLiteral("/org/gnome/SessionManager"),
                                               manager, method);
    call.setAutoStartService(false); // One that does not lead the session could not hold it.
    call.setArguments(arguments);
    return call;
}

/// A session manager's promise not to log the user out, until this goes.
class LogOutInhibitor {
public:
    LogOutInhibitor(QDBusConnection bus, uint cookie) : m_bus(std::move(bus)), m_cookie(cookie) {}
    LogOutInhibitor(const LogOutInhibitor&) = delete;
    LogOutInhibitor& operator=(const LogOutInhibitor&) = delete;
    ~LogOutInhibitor() {
        (void)m_bus.send(sessionManagerCall(QStringLiteral("Uninhibit"), {m_cookie}));
    }

private:
    QDBusConnection m_bus;
    uint m_cookie;
};

} // namespace

LinuxDesktop::LinuxDesktop(Bus systemBus, const Bus& sessionBus, const Waiting& waiting)
    : m_systemBus(std::move(systemBus)),
      m_sessionBus(sessionBus),
      m_notifications(sessionBus),
      m_place(sessionBus, waiting) {}

LinuxDesktop::~LinuxDesktop() {
    QObject::disconnect(m_sessionEnd);
}

Desktop::Hold LinuxDesktop::keepAwake(const std::string& why) {
    using Both = std::pair<Hold, Hold>;
    const Both both{holdOffShutdown(why), holdOffLogOut(why)};
    return both.first || both.second ? std::make_shared<Both>(both) : nullptr;
}

Desktop::Hold LinuxDesktop::holdOffShutdown(const std::string& why) const {
    auto call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
        QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("Inhibit"));
    call.setArguments({QStringLiteral("shutdown:sleep"), QStringLiteral("ZELTO DISK"),
                       QString::fromStdString(why), QStringLiteral("block")});
    const QDBusReply<QDBusUnixFileDescriptor> reply =
        m_systemBus().call(call, QDBus::Block, InhibitMilliseconds);
    if (!reply.isValid() || !reply.value().isValid()) {
        return nullptr;
    }
    // The inhibitor is given back when the last copy of the descriptor is closed.
    return std::make_shared<QDBusUnixFileDescriptor>(reply.value());
}

/// A log-out is no shutdown: it is the session manager's, and logind lets it happen.
Desktop::Hold LinuxDesktop::holdOffLogOut(const std::string& why) const {
    constexpr uint NoWindow = 0;
    constexpr uint LogOut = 1;
    constexpr uint Suspend = 4;
    const QDBusConnection bus = m_sessionBus();
    const QDBusReply<uint> cookie =
        bus.call(sessionManagerCall(QStringLiteral("Inhibit"),
                                    {QString::fromLatin1(SessionPlace::Name), NoWindow,
                                     QString::fromStdString(why), LogOut | Suspend}),
                 QDBus::Block, InhibitMilliseconds);
    return cookie.isValid() ? std::make_shared<LogOutInhibitor>(bus, cookie.value()) : nullptr;
}

bool LinuxDesktop::takePlace(const LaterStart& later) {
    return m_place.take(later);
}

void LinuxDesktop::giveWayToNewStart() {
    m_place.giveWayToNewStart();
}

void LinuxDesktop::bringOtherForward() {
    (void)m_place.bringOtherForward();
}

void LinuxDesktop::leaveNotice(const Notice& notice) {
    m_notifications.leave(notice);
}

bool LinuxDesktop::openDocument(const std::filesystem::path& file) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(file.native())));
}

std::optional<bool> LinuxDesktop::isCapsLockOn() const {
    using Display = QNativeInterface::QX11Application;
    auto* const display = qGuiApp == nullptr ? nullptr : qGuiApp->nativeInterface<Display>();
    if (display == nullptr) {
        return {};
    }
    xcb_connection_t* const connection = display->connection();
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    // The pointer's state names the keyboard's locks as well; no extension is needed for it.
    const std::unique_ptr<xcb_query_pointer_reply_t, decltype(&std::free)> pointer(
        xcb_query_pointer_reply(connection, xcb_query_pointer(connection, root), nullptr),
        &std::free);
    if (pointer == nullptr) {
        return {};
    }
    return (pointer->mask & XCB_MOD_MASK_LOCK) != 0;
}

void LinuxDesktop::setSessionEndHandler(const std::function<bool()>& mayEnd) {
    auto* const application = qobject_cast<QGuiApplication*>(QCoreApplication::instance());
    if (application == nullptr) {
        return;
    }
    m_sessionEnd = QObject::connect(
        application, &QGuiApplication::commitDataRequest, application,
        [mayEnd](QSessionManager& session) {
            if (!mayEnd()) {
                session.cancel();
            }
        },
        Qt::DirectConnection);
}

} // namespace zelto::linux_platform
