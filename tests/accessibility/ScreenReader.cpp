#include "tests/accessibility/ScreenReader.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QEvent>
#include <QEventLoop>

#include <stdexcept>

namespace zelto::test {
namespace {

const QString Root = QStringLiteral("/org/a11y/atspi/accessible/root");
const QString Accessible = QStringLiteral("org.a11y.atspi.Accessible");
const QString ObjectEvents = QStringLiteral("org.a11y.atspi.Event.Object");
const QString Registry = QStringLiteral("org.a11y.atspi.Registry");
const QString KeysPath = QStringLiteral("/org/a11y/atspi/registry/deviceeventcontroller");
const QString KeysInterface = QStringLiteral("org.a11y.atspi.DeviceEventController");
const QString MarkInterface = QStringLiteral("com.kestrin.zelto.test");

/// The toolkit's own connection: what is sent there comes after all that it has sent.
QDBusConnection toolkitsConnection() {
    return QDBusConnection(QStringLiteral("a11y"));
}

QString busAddress() {
    return qEnvironmentVariable(ScreenReader::BusVariable);
}

void sendMark(const QString& name) {
    toolkitsConnection().send(QDBusMessage::createSignal(QStringLiteral("/mark"), MarkInterface,
                                                         QStringLiteral("Mark") + name));
}

// The numbers of AT-SPI's state set.
enum State { Checked = 4, Enabled = 8, Focusable = 11, Focused = 12, Showing = 25 };

QList<uint> wordsOf(const QDBusMessage& reply) {
    QList<uint> words;
    if (reply.type() != QDBusMessage::ReplyMessage) {
        return words; // It is gone.
    }
    reply.arguments().constFirst().value<QDBusArgument>() >> words;
    return words;
}

bool has(const QList<uint>& words, State state) {
    const int bit = state;
    return words.size() > bit / 32 && ((words[bit / 32] >> (bit % 32)) & 1U) != 0;
}

/// A key that comes up, from now on, at a control. What the toolkit still asks the registry about
/// has not got there, and is lost when the program ends.
class ReleasedKey : public QObject {
public:
    ReleasedKey() { QCoreApplication::instance()->installEventFilter(this); }
    [[nodiscard]] bool hasArrived() const { return m_hasArrived; }
    bool eventFilter(QObject* receiver, QEvent* event) override {
        m_hasArrived |= event->type() == QEvent::KeyRelease && receiver->isWidgetType();
        return false;
    }

private:
    bool m_hasArrived = false;
};

} // namespace

QString Heard::spoken() const {
    QStringList parts{name.isEmpty() ? QStringLiteral("(no name)") : name, role};
    if (role == QStringLiteral("check box") || role == QStringLiteral("radio button")) {
        parts += isChecked ? QStringLiteral("checked") : QStringLiteral("not checked");
    }
    if (!isEnabled) {
        parts += QStringLiteral("not available");
    }
    for (const QString& part : {value, description}) {
        if (!part.isEmpty() && part != name) {
            parts += QString(part).replace(u'\n', u' ');
        }
    }
    return parts.join(QStringLiteral(", "));
}

ScreenReader::ScreenReader()
    : m_bus(QDBusConnection::connectToBus(busAddress(), QStringLiteral("reader"))) {
    if (!m_bus.isConnected()) {
        throw std::runtime_error("no accessibility bus");
    }
    // Without a window yet, this is what makes the toolkit look for the bus.
    QAccessible::setRootObject(QCoreApplication::instance());
    waitUntil([] { return QAccessible::isActive() && toolkitsConnection().isConnected(); });
    m_program = toolkitsConnection().baseService();
    m_bus.connect(m_program, {}, ObjectEvents, QStringLiteral("PropertyChange"), this,
                  SLOT(hearChange(QDBusMessage)));
    m_bus.connect(m_program, {}, ObjectEvents, QStringLiteral("StateChanged"), this,
                  SLOT(hearState(QDBusMessage)));
    m_bus.connect(m_program, QStringLiteral("/mark"), MarkInterface, QStringLiteral("MarkReader"),
                  this, SLOT(hearMark(QDBusMessage)));
}

void ScreenReader::waitUntil(const std::function<bool()>& isSo) {
    while (!isSo()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

void ScreenReader::letKeysArrive() {
    // The toolkit asks the registry about each key first, and hands it on when that has answered:
    // what is answered after it comes after it, as an event of its own. The registry keeps what is
    // asked about keys in a row of its own, so this has to stand in the same one.
    QDBusPendingCallWatcher answered(toolkitsConnection().asyncCall(QDBusMessage::createMethodCall(
        Registry, KeysPath, KeysInterface, QStringLiteral("GetKeystrokeListeners"))));
    bool isAnswered = false;
    QObject::connect(&answered, &QDBusPendingCallWatcher::finished, [&] { isAnswered = true; });
    waitUntil([&] { return isAnswered; });
    QCoreApplication::processEvents();
}

void ScreenReader::catchUp() {
    letKeysArrive();
    sendMark(QStringLiteral("Reader"));
    ++m_marksSent;
    waitUntil([this] { return m_marksHeard == m_marksSent; });
}

void ScreenReader::hearMark(const QDBusMessage& /*signal*/) {
    ++m_marksHeard;
}

void ScreenReader::hearState(const QDBusMessage& signal) {
    const auto arguments = signal.arguments();
    const bool isOn = arguments.at(1).toInt() == 1;
    if (arguments.at(0).toString() == QStringLiteral("focused") && isOn) {
        m_focus = signal.path();
        m_said += QStringLiteral("focus ") + m_focus;
    } else if (arguments.at(0).toString() == QStringLiteral("checked") &&
               signal.path() == m_focus) {
        m_said += isOn ? QStringLiteral("checked") : QStringLiteral("not checked");
    }
}

void ScreenReader::hearChange(const QDBusMessage& signal) {
    if (signal.path() != m_focus) {
        return;
    }
    const auto arguments = signal.arguments();
    const QString what = arguments.at(0).toString();
    const QString text = arguments.at(3).value<QDBusVariant>().variant().toString();
    if (what == QStringLiteral("accessible-description") ||
        what == QStringLiteral("accessible-name")) {
        m_said += text;
    }
}

QStringList ScreenReader::said() {
    catchUp();
    QStringList said;
    for (const QString& one : std::exchange(m_said, {})) {
        const QString focus = QStringLiteral("focus ");
        said += one.startsWith(focus) ? hear(one.mid(focus.size())).spoken() : one;
    }
    return said;
}

QDBusMessage ScreenReader::ask(const QString& path, const QString& interface, const QString& method,
                               const QVariantList& arguments) {
    auto message = QDBusMessage::createMethodCall(m_program, path, interface, method);
    message.setArguments(arguments);
    // The program that answers is this one: its event loop has to run.
    QDBusPendingCallWatcher pending(m_bus.asyncCall(message));
    waitUntil([&] { return pending.isFinished(); });
    return pending.reply();
}

QVariant ScreenReader::property(const QString& path, const QString& interface,
                                const QString& name) {
    const auto reply = ask(path, QStringLiteral("org.freedesktop.DBus.Properties"),
                           QStringLiteral("Get"), {interface, name});
    if (reply.type() != QDBusMessage::ReplyMessage) {
        return {};
    }
    return reply.arguments().constFirst().value<QDBusVariant>().variant();
}

QStringList ScreenReader::childrenOf(const QString& path) {
    const auto reply = ask(path, Accessible, QStringLiteral("GetChildren"));
    QStringList children;
    if (reply.type() != QDBusMessage::ReplyMessage) {
        return children;
    }
    const auto list = reply.arguments().constFirst().value<QDBusArgument>();
    for (list.beginArray(); !list.atEnd();) {
        QString service;
        QDBusObjectPath child;
        list.beginStructure();
        list >> service >> child;
        list.endStructure();
        children += child.path();
    }
    list.endArray();
    return children;
}

Heard ScreenReader::hear(const QString& path) {
    const auto states = wordsOf(ask(path, Accessible, QStringLiteral("GetState")));
    Heard heard{
        .name = property(path, Accessible, QStringLiteral("Name")).toString(),
        .role =
            ask(path, Accessible, QStringLiteral("GetRoleName")).arguments().value(0).toString(),
        .description = property(path, Accessible, QStringLiteral("Description")).toString(),
        .value = {},
        .isFocusable = has(states, Focusable),
        .isFocused = has(states, Focused),
        .isEnabled = has(states, Enabled),
        .isChecked = has(states, Checked),
        .within = {}};
    const QString valueInterface = QStringLiteral("org.a11y.atspi.Value");
    const QVariant value = property(path, valueInterface, QStringLiteral("CurrentValue"));
    if (value.isValid()) {
        heard.value =
            QStringLiteral("%1 of %2")
                .arg(value.toString(),
                     property(path, valueInterface, QStringLiteral("MaximumValue")).toString());
    }
    const QString textInterface = QStringLiteral("org.a11y.atspi.Text");
    const QVariant length = property(path, textInterface, QStringLiteral("CharacterCount"));
    if (length.isValid()) {
        heard.value = ask(path, textInterface, QStringLiteral("GetText"), {0, length.toInt()})
                          .arguments()
                          .value(0)
                          .toString();
    }
    return heard;
}

void ScreenReader::readBelow(const QString& path, const QStringList& within,
                             std::vector<Heard>& heard) {
    for (const QString& child : childrenOf(path)) {
        if (!has(wordsOf(ask(child, Accessible, QStringLiteral("GetState"))), Showing)) {
            continue;
        }
        Heard one = hear(child);
        one.within = within;
        heard.push_back(one);
        readBelow(child, within + QStringList{one.name + QStringLiteral(" ") + one.role}, heard);
    }
}

std::vector<Heard> ScreenReader::read(const QString& windowTitle) {
    catchUp();
    std::vector<Heard> heard;
    for (const QString& window : childrenOf(Root)) {
        Heard top = hear(window);
        if (top.name == windowTitle) {
            heard.push_back(top);
            readBelow(window, {top.name}, heard);
            break;
        }
    }
    return heard;
}

void ScreenReader::pressKey(int keyCode) {
    ReleasedKey released;
    constexpr uint PressAndRelease = 2;
    auto message = QDBusMessage::createMethodCall(Registry, KeysPath, KeysInterface,
                                                  QStringLiteral("GenerateKeyboardEvent"));
    message.setArguments({keyCode, QString(), PressAndRelease});
    QDBusPendingCallWatcher pending(m_bus.asyncCall(message));
    waitUntil([&] { return pending.isFinished() && released.hasArrived(); });
}

BusMonitor::BusMonitor() {
    m_monitor.start(QStringLiteral("dbus-monitor"), {QStringLiteral("--address"), busAddress()});
    // The bus takes the monitor's own name away when it begins to listen.
    readUntil("member=NameLost");
}

BusMonitor::~BusMonitor() {
    m_monitor.kill();
    m_monitor.waitForFinished();
}

void BusMonitor::readUntil(const QByteArray& mark) {
    while (!m_heard.contains(mark)) {
        if (!m_monitor.waitForReadyRead(-1)) {
            throw std::runtime_error("no dbus-monitor");
        }
        m_heard += m_monitor.readAllStandardOutput();
    }
}

QString BusMonitor::heard() {
    const QByteArray mark = "Monitor" + QByteArray::number(++m_marks) + "End";
    sendMark(QString::fromLatin1(mark));
    readUntil("member=Mark" + mark);
    return QString::fromUtf8(m_heard);
}

} // namespace zelto::test
