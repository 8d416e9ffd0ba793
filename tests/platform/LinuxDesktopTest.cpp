#include "platform/linux/LinuxDesktop.h"
#include "tests/support/PrivateBus.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QDBusVirtualObject>
#include <QThread>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <fcntl.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace zelto::test {
namespace {

using namespace linux_platform;
using ::testing::ElementsAre;

/// The login service as far as it hands out inhibitors. Each is the writing end of a pipe, as the
/// real one's is; it lives in a thread of its own, as its callers wait for the answer.
class FakeLoginService : public QDBusVirtualObject {
public:
    explicit FakeLoginService(const QDBusConnection& bus) : m_bus(bus) {
        moveToThread(&m_thread);
        m_bus.registerVirtualObject("/org/freedesktop/login1", this);
        m_bus.registerService("org.freedesktop.login1");
        m_thread.start();
    }
    FakeLoginService(const FakeLoginService&) = delete;
    FakeLoginService& operator=(const FakeLoginService&) = delete;
    ~FakeLoginService() override {
        m_bus.unregisterObject("/org/freedesktop/login1");
        m_thread.quit();
        m_thread.wait();
        ::close(m_watched);
    }

    /// Waits until nobody holds the inhibitor any more.
    void waitForGivenBack() const {
        char none = 0;
        EXPECT_EQ(::read(m_watched, &none, 1), 0);
    }
    [[nodiscard]] bool isHeld() const {
        char none = 0;
        ::fcntl(m_watched, F_SETFL, O_NONBLOCK);
        const bool held = ::read(m_watched, &none, 1) < 0;
        ::fcntl(m_watched, F_SETFL, 0);
        return held;
    }

    /// What the next caller gets instead of an inhibitor; empty for none.
    QString refusal;
    std::vector<std::string> asked;

    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        asked.push_back(message.interface().toStdString() + "." + message.member().toStdString());
        const auto arguments = message.arguments();
        for (const QVariant& argument : arguments) {
            asked.push_back(argument.toString().toStdString());
        }
        if (!refusal.isEmpty()) {
            return connection.send(message.createErrorReply(refusal, "refused"));
        }
        std::array<int, 2> pipe{};
        if (::pipe2(pipe.data(), O_CLOEXEC) != 0) {
            return false;
        }
        m_watched = pipe[0];
        const bool sent = connection.send(
            message.createReply(QVariant::fromValue(QDBusUnixFileDescriptor(pipe[1]))));
        ::close(pipe[1]);
        return sent;
    }

private:
    QDBusConnection m_bus;
    QThread m_thread;
    int m_watched = -1;
};

/// One start of the program, with its own connection to the session's bus.
class Start {
public:
    Start(PrivateBus& bus, const QString& name)
        : m_name(name),
          m_connection(bus.connection(name)),
          m_desktop([] { return QDBusConnection("nowhere"); }, [this] { return m_connection; },
                    m_waiting) {}

    /// As the program does it: who gives way, ends.
    void takePlace() {
        m_desktop.takePlace([this] {
            ++timesGivenWay;
            // Not from within what the connection itself is telling.
            QTimer::singleShot(0, [this] { end(); });
        });
    }
    void giveWayToNewStart() { m_desktop.giveWayToNewStart(); }
    void end() {
        m_connection = QDBusConnection("nowhere");
        QDBusConnection::disconnectFromBus(m_name);
    }
    [[nodiscard]] bool isRunning() const { return m_connection.isConnected(); }
    [[nodiscard]] bool hasName() const {
        return m_connection.interface()->serviceOwner("com.kestrin.zelto").value() ==
               m_connection.baseService();
    }

    int timesGivenWay = 0;

private:
    QString m_name;
    QDBusConnection m_connection;
    Waiting m_waiting;
    LinuxDesktop m_desktop;
};

class LinuxDesktopTest : public ::testing::Test {
protected:
    PrivateBus bus;
    Waiting waiting;
    LinuxDesktop desktop{[this] { return bus.connection("program"); },
                         [] { return QDBusConnection("nowhere"); }, waiting};
};

class OneProgramInASession : public ::testing::Test {
protected:
    PrivateBus bus;
    Start first{bus, "first"};
    Start second{bus, "second"};
};

TEST_F(LinuxDesktopTest, KeepsTheComputerAwakeUntilTheHoldIsGone) {
    FakeLoginService login(bus.connection("login"));
    auto hold = desktop.keepAwake("The drive is being set up");
    ASSERT_NE(hold, nullptr);
    EXPECT_THAT(login.asked, ElementsAre("org.freedesktop.login1.Manager.Inhibit", "shutdown:sleep",
                                         "ZELTO DISK", "The drive is being set up", "block"));
    EXPECT_TRUE(login.isHeld());
    hold.reset();
    login.waitForGivenBack();
}

TEST_F(LinuxDesktopTest, IsNotKeptAwakeWhereTheLoginServiceRefuses) {
    FakeLoginService login(bus.connection("login"));
    login.refusal = "org.freedesktop.DBus.Error.AccessDenied";
    EXPECT_EQ(desktop.keepAwake("The drive is being set up"), nullptr);
}

TEST_F(LinuxDesktopTest, IsNotKeptAwakeWithoutALoginService) {
    EXPECT_EQ(desktop.keepAwake("The drive is being set up"), nullptr);
}

TEST_F(LinuxDesktopTest, IsNotKeptAwakeByABusThatHasBrokenDown) {
    (void)bus.connection("program");
    bus.breakDown();
    EXPECT_EQ(desktop.keepAwake("The drive is being set up"), nullptr);
}

TEST_F(LinuxDesktopTest, StartsAlikeWithoutASessionBus) {
    bool gaveWay = false;
    desktop.takePlace([&] { gaveWay = true; });
    desktop.giveWayToNewStart();
    EXPECT_FALSE(gaveWay);
}

TEST_F(OneProgramInASession, ANewStartTakesThePlaceOfACopyThatGivesWayAndWaitsForItsEnd) {
    first.takePlace();
    first.giveWayToNewStart();
    second.takePlace();
    EXPECT_EQ(first.timesGivenWay, 1);
    EXPECT_FALSE(first.isRunning());
    EXPECT_TRUE(second.hasName());
}

TEST_F(OneProgramInASession, ACopyWithAWindowKeepsItsPlace) {
    first.takePlace();
    second.takePlace();
    EXPECT_EQ(first.timesGivenWay, 0);
    EXPECT_TRUE(first.isRunning());
    EXPECT_TRUE(first.hasName());
}

TEST_F(OneProgramInASession, AStartBesideACopyWithAWindowTakesNoPlaceLaterEither) {
    first.takePlace();
    second.takePlace();
    first.end();
    EXPECT_FALSE(second.hasName());
}

TEST_F(OneProgramInASession, APlaceLeftByAnEndIsFree) {
    first.takePlace();
    first.end();
    second.takePlace();
    EXPECT_TRUE(second.hasName());
}

} // namespace
} // namespace zelto::test
