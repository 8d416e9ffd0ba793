#include "platform/linux/SessionPlace.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace zelto::linux_platform {
namespace {

using namespace std::chrono_literals;

const QString PlaceName = QString::fromLatin1(SessionPlace::Name);
const QString PlacePath = QStringLiteral("/com/kestrin/zelto");
/// Who gives way has this name instead: a desktop that wants to show the program then starts it.
const QString GivesWayName = QStringLiteral("com.kestrin.zelto.GivesWay");

/// What a copy that gives way needs at most to let its drive go.
constexpr auto GiveWayLimit = 3s;

constexpr auto TokenVariable = "XDG_ACTIVATION_TOKEN";
const QString TokenKey = QStringLiteral("activation-token");
/// Longer than any desktop's token.
constexpr qsizetype LongestToken = 1024;

bool isToken(const QString& text) {
    return !text.isEmpty() && text.size() <= LongestToken &&
           std::ranges::all_of(text, [](QChar c) { return c > u' ' && c < u'\x7F'; });
}

/// The desktop's leave to come forward, for whom the user has just started: it is good for one
/// window, so that it is taken out of the environment.
QVariantMap takePlatformData() {
    QVariantMap data;
    if (const QString token = qEnvironmentVariable(TokenVariable); isToken(token)) {
        data.insert(TokenKey, token);
    }
    qunsetenv(TokenVariable);
    return data;
}

} // namespace

SessionPlace::SessionPlace(Bus bus, const Waiting& waiting,
                           std::chrono::milliseconds comeForwardLimit)
    : m_bus(std::move(bus)), m_waiting(waiting), m_comeForwardLimit(comeForwardLimit) {}

SessionPlace::~SessionPlace() {
    // A bus that was never needed is not connected to now.
    if (m_later.comeForward != nullptr && m_bus().isConnected()) {
        giveUp();
    }
}

bool SessionPlace::take(const Desktop::LaterStart& later) {
    QDBusConnection connection = m_bus();
    if (!connection.isConnected()) {
        return true;
    }
    m_later = later;
    // Before the name: who waits for the name calls at once.
    connection.registerObject(PlacePath, this, QDBusConnection::ExportScriptableSlots);
    if (!takeName()) {
        if (bringOtherForward()) {
            connection.unregisterObject(PlacePath);
            return false;
        }
        // The other one has ended meanwhile, or is nobody that a user could see: then it is in
        // nobody's way.
        (void)takeName();
    }
    const QString earlier = connection.interface()->serviceOwner(GivesWayName);
    if (!earlier.isEmpty()) {
        waitForEndOf(earlier);
    }
    return true;
}

void SessionPlace::giveUp() {
    QDBusConnection connection = m_bus();
    (void)connection.interface()->unregisterService(PlaceName);
    connection.unregisterObject(PlacePath);
}

bool SessionPlace::takeName() {
    const auto taken =
        m_bus().interface()->registerService(PlaceName, QDBusConnectionInterface::DontQueueService,
                                             QDBusConnectionInterface::DontAllowReplacement);
    return taken.value() == QDBusConnectionInterface::ServiceRegistered;
}

void SessionPlace::waitForEndOf(const QString& connectionName) {
    QEventLoop loop;
    const QDBusServiceWatcher watcher(connectionName, m_bus(),
                                      QDBusServiceWatcher::WatchForUnregistration);
    QObject::connect(&watcher, &QDBusServiceWatcher::serviceUnregistered, &loop, &QEventLoop::quit);
    QTimer::singleShot(GiveWayLimit, &loop, &QEventLoop::quit);
    if (m_bus().interface()->isServiceRegistered(connectionName)) {
        m_waiting.run(loop);
    }
}

void SessionPlace::giveWayToNewStart() {
    QDBusConnection connection = m_bus();
    if (!connection.isConnected()) {
        return;
    }
    m_newStart = std::make_unique<QDBusServiceWatcher>(PlaceName, connection,
                                                       QDBusServiceWatcher::WatchForRegistration);
    QObject::connect(m_newStart.get(), &QDBusServiceWatcher::serviceRegistered, this,
                     [this] { m_later.giveWay(); });
    (void)connection.interface()->registerService(GivesWayName,
                                                  QDBusConnectionInterface::DontQueueService,
                                                  QDBusConnectionInterface::DontAllowReplacement);
    giveUp();
}

bool SessionPlace::bringOtherForward() {
    const QDBusConnection connection = m_bus();
    if (!connection.isConnected()) {
        return false;
    }
    const QString other = connection.interface()->serviceOwner(PlaceName);
    if (other.isEmpty()) {
        return false;
    }
    // To the connection, not to the name: one that is about to end is not to be started again.
    auto call = QDBusMessage::createMethodCall(other, PlacePath,
                                               QStringLiteral("org.freedesktop.Application"),
                                               QStringLiteral("Activate"));
    call.setArguments({takePlatformData()});
    const QDBusPendingCallWatcher answer(
        connection.asyncCall(call, static_cast<int>(m_comeForwardLimit.count())));
    QEventLoop loop;
    QObject::connect(&answer, &QDBusPendingCallWatcher::finished, &loop, &QEventLoop::quit);
    m_waiting.run(loop);
    return answer.isFinished() && !answer.isError();
}

void SessionPlace::obey(const std::function<void()>& wish, const QVariantMap& platformData) {
    const QString token = platformData.value(TokenKey).toString();
    if (isToken(token)) {
        // Where the toolkit looks for it when the window asks for the focus, and what it starts.
        qputenv(TokenVariable, token.toLatin1());
    }
    wish();
    qunsetenv(TokenVariable);
}

void SessionPlace::Activate(const QVariantMap& platformData) {
    obey(m_later.comeForward, platformData);
}

void SessionPlace::Open(const QStringList& /*uris*/, const QVariantMap& platformData) {
    Activate(platformData);
}

void SessionPlace::ActivateAction(const QString& action, const QVariantList& /*parameter*/,
                                  const QVariantMap& platformData) {
    obey(action == QLatin1String(ManualAction) ? m_later.showManual : m_later.comeForward,
         platformData);
}

} // namespace zelto::linux_platform
