#include "platform/linux/LinuxDesktop.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusServiceWatcher>
#include <QDBusUnixFileDescriptor>
#include <QDesktopServices>
#include <QEventLoop>
#include <QGuiApplication>
#include <QSessionManager>
#include <QTimer>
#include <QUrl>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <utility>

namespace zelto::linux_platform {
namespace {

using namespace std::chrono_literals;

/// The session's one program has this name on the session bus.
const QString ProgramName = QStringLiteral("com.kestrin.zelto");

/// A computer whose login service does not answer is not kept awake, and nobody waits for it.
constexpr int InhibitMilliseconds = 2000;
/// What a copy that gives way needs at most to let its drive go.
constexpr auto GiveWayLimit = 3s;

} // namespace

LinuxDesktop::LinuxDesktop(Bus systemBus, Bus sessionBus, const Waiting& waiting)
    : m_systemBus(std::move(systemBus)), m_sessionBus(std::move(sessionBus)), m_waiting(waiting) {}

LinuxDesktop::~LinuxDesktop() {
    QObject::disconnect(m_nameLost);
    QObject::disconnect(m_sessionEnd);
}

Desktop::Hold LinuxDesktop::keepAwake(const std::string& why) {
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

void LinuxDesktop::takePlace(const std::function<void()>& giveWay) {
    QDBusConnectionInterface* const bus = m_sessionBus().interface();
    if (bus == nullptr) {
        return;
    }
    const QString earlier = bus->serviceOwner(ProgramName);
    const auto taken =
        bus->registerService(ProgramName, QDBusConnectionInterface::ReplaceExistingService,
                             QDBusConnectionInterface::DontAllowReplacement);
    if (taken.value() != QDBusConnectionInterface::ServiceRegistered) {
        return;
    }
    m_nameLost = QObject::connect(bus, &QDBusConnectionInterface::serviceUnregistered, bus,
                                  [giveWay](const QString& name) {
                                      if (name == ProgramName) {
                                          giveWay();
                                      }
                                  });
    if (!earlier.isEmpty() && earlier != m_sessionBus().baseService()) {
        waitForEndOf(earlier);
    }
}

void LinuxDesktop::waitForEndOf(const QString& connectionName) {
    QEventLoop loop;
    QDBusServiceWatcher watcher(connectionName, m_sessionBus(),
                                QDBusServiceWatcher::WatchForUnregistration);
    QObject::connect(&watcher, &QDBusServiceWatcher::serviceUnregistered, &loop, &QEventLoop::quit);
    QTimer::singleShot(GiveWayLimit, &loop, &QEventLoop::quit);
    if (m_sessionBus().interface()->isServiceRegistered(connectionName)) {
        m_waiting.run(loop);
    }
}

void LinuxDesktop::giveWayToNewStart() {
    if (QDBusConnectionInterface* const bus = m_sessionBus().interface()) {
        // Asking once more for a name that is ours only changes what others may do.
        (void)bus->registerService(ProgramName, QDBusConnectionInterface::DontQueueService,
                                   QDBusConnectionInterface::AllowReplacement);
    }
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
