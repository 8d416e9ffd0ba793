#include "platform/linux/SpokenChanges.h"
#include "tests/accessibility/ScreenReader.h"
#include "tests/support/PrivateBus.h"
#include "ui/Resources.h"
#include "ui/Strings.h"

#include <QApplication>
#include <QDBusAbstractAdaptor>
#include <QDBusMessage>
#include <QEventLoop>
#include <QProcess>
#include <QProcessEnvironment>

#include <gtest/gtest.h>

#include <sys/prctl.h>

#include <csignal>
#include <iostream>
#include <stdexcept>
#include <utility>

// The ring's main plays two parts. Started by somebody it sets up what a screen reader needs, a
// display and an accessibility bus that nobody else knows, and starts itself there; the second one
// is the program that is tried.
namespace zelto::test {
namespace {

/// Nothing stays behind, however this one ends.
void endWithParent() {
    (void)::prctl(PR_SET_PDEATHSIG, SIGKILL);
}

/// A process that says in its first line that it is ready.
class Server {
public:
    Server(const QString& program, const QStringList& arguments,
           const QProcessEnvironment& environment) {
        m_process.setProcessEnvironment(environment);
        m_process.setChildProcessModifier(endWithParent);
        m_process.start(program, arguments);
        while (!m_firstLine.contains('\n')) {
            if (!m_process.waitForReadyRead(-1)) {
                throw std::runtime_error("cannot start " + program.toStdString() + ": " +
                                         m_process.readAllStandardError().toStdString());
            }
            m_firstLine += m_process.readAllStandardOutput();
        }
    }
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;
    ~Server() {
        m_process.terminate();
        m_process.waitForFinished();
    }
    [[nodiscard]] QString firstLine() const { return QString::fromUtf8(m_firstLine).trimmed(); }

private:
    QProcess m_process;
    QByteArray m_firstLine;
};

class Status : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.a11y.Status")
    Q_PROPERTY(bool IsEnabled READ isOn)
    Q_PROPERTY(bool ScreenReaderEnabled READ isOn)

public:
    explicit Status(QObject& service) : QDBusAbstractAdaptor(&service) {}
    [[nodiscard]] bool isOn() const { return true; }
};

/// What a desktop session tells programs about assistive technology: where its bus is, and that
/// somebody listens.
class SessionService : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.a11y.Bus")

public:
    SessionService(QDBusConnection bus, QString address) : m_address(std::move(address)) {
        new Status(*this);
        bus.registerObject(QStringLiteral("/org/a11y/bus"), this,
                           QDBusConnection::ExportAllSlots | QDBusConnection::ExportAdaptors);
        bus.registerService(QStringLiteral("org.a11y.Bus"));
    }

public Q_SLOTS:
    [[nodiscard]] QString GetAddress() const { return m_address; }

private:
    QString m_address;
};

/// As a screen reader does when it starts: without a listener the toolkit tells nothing.
void listenToEverything(const QDBusConnection& bus) {
    auto message = QDBusMessage::createMethodCall(
        QStringLiteral("org.a11y.atspi.Registry"), QStringLiteral("/org/a11y/atspi/registry"),
        QStringLiteral("org.a11y.atspi.Registry"), QStringLiteral("RegisterEvent"));
    for (const char* events : {"object:", "window:", "focus:"}) {
        message.setArguments({QString::fromLatin1(events), QStringList(), QString()});
        bus.call(message);
    }
}

int runOnPrivateBus(const QStringList& arguments) {
    PrivateBus bus;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(ScreenReader::BusVariable, bus.address());
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.remove(QStringLiteral("QT_QPA_PLATFORMTHEME"));
    // The session's bus is this one as well.
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus.address());
    const Server display(QStringLiteral("Xvfb"),
                         {"-displayfd", "1", "-screen", "0", "1600x1200x24", "-nolisten", "tcp"},
                         environment);
    environment.insert(QStringLiteral("DISPLAY"), QStringLiteral(":") + display.firstLine());
    auto registrysEnvironment = environment;
    registrysEnvironment.insert(QStringLiteral("AT_SPI_BUS_ADDRESS"), bus.address());
    const Server registry(QStringLiteral(ZELTO_ACCESSIBILITY_REGISTRY), {}, registrysEnvironment);
    const SessionService session(bus.connection(QStringLiteral("session")), bus.address());
    listenToEverything(bus.connection(QStringLiteral("listener")));

    QProcess program;
    program.setProcessEnvironment(environment);
    program.setChildProcessModifier(endWithParent);
    program.setProcessChannelMode(QProcess::ForwardedChannels);
    QEventLoop untilItEnds;
    QObject::connect(&program, &QProcess::finished, &untilItEnds, &QEventLoop::quit);
    program.start(QCoreApplication::applicationFilePath(), arguments);
    untilItEnds.exec();
    return program.exitStatus() == QProcess::NormalExit ? program.exitCode() : 1;
}

} // namespace
} // namespace zelto::test

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsSet(zelto::test::ScreenReader::BusVariable)) {
        testing::InitGoogleTest(&argc, argv);
        const QApplication application(argc, argv);
        zelto::linux_platform::tellChangesInWords();
        zelto::initResources();
        zelto::installStrings();
        return RUN_ALL_TESTS();
    }
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    testing::InitGoogleTest(&argc, argv);
    if (testing::GTEST_FLAG(list_tests)) {
        return RUN_ALL_TESTS();
    }
    try {
        return zelto::test::runOnPrivateBus(arguments);
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return 1;
    }
}

#include "Main.moc"
