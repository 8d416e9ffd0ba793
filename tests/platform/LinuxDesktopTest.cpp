#include "platform/linux/LinuxDesktop.h"
#include "tests/support/PrivateBus.h"

#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QDBusVirtualObject>
#include <QGuiApplication>
#include <QMutex>
#include <QSessionManager>
#include <QThread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <fcntl.h>
#include <optional>
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

/// The session manager of GNOME's kind. It lives in a thread of its own, as its callers wait.
class FakeSessionManager : public QDBusVirtualObject {
public:
    static constexpr uint Cookie = 4711;

    explicit FakeSessionManager(const QDBusConnection& bus) : m_bus(bus) {
        moveToThread(&m_thread);
        m_bus.registerVirtualObject("/org/gnome/SessionManager", this);
        m_bus.registerService("org.gnome.SessionManager");
        m_thread.start();
    }
    FakeSessionManager(const FakeSessionManager&) = delete;
    FakeSessionManager& operator=(const FakeSessionManager&) = delete;
    ~FakeSessionManager() override {
        m_bus.unregisterObject("/org/gnome/SessionManager");
        m_thread.quit();
        m_thread.wait();
    }

    void refuse() { m_refuses = true; }
    /// What it has been asked so far by whoever has this connection, and by no later call.
    [[nodiscard]] QList<QDBusMessage> calls(const QDBusConnection& caller) const {
        // What one sends arrives in order, so all before has arrived when this is answered.
        (void)caller.call(QDBusMessage::createMethodCall("org.gnome.SessionManager",
                                                         "/org/gnome/SessionManager",
                                                         "org.gnome.SessionManager", "Settle"));
        const QMutexLocker lock(&m_mutex);
        return m_calls;
    }

    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        if (message.member() == "Settle") {
            return connection.send(message.createReply());
        }
        {
            const QMutexLocker lock(&m_mutex);
            m_calls.append(message);
        }
        return connection.send(m_refuses ? message.createErrorReply(QDBusError::AccessDenied, "")
                                         : message.createReply(Cookie));
    }

private:
    QDBusConnection m_bus;
    QThread m_thread;
    std::atomic<bool> m_refuses = false;
    mutable QMutex m_mutex;
    QList<QDBusMessage> m_calls;
};

class LinuxDesktopTest : public ::testing::Test {
protected:
    PrivateBus bus;
    Waiting waiting;
    LinuxDesktop desktop{[this] { return bus.connection("program"); },
                         [] { return QDBusConnection("nowhere"); }, waiting};
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

/// As in a session that has a bus.
class LinuxDesktopLogOutTest : public ::testing::Test {
protected:
    PrivateBus bus;
    Waiting waiting;
    LinuxDesktop desktop{[this] { return bus.connection("system"); },
                         [this] { return bus.connection("session"); }, waiting};
};

TEST_F(LinuxDesktopLogOutTest, IsHeldOffByTheSessionManagerUntilTheHoldIsGone) {
    const FakeSessionManager manager(bus.connection("manager"));
    auto hold = desktop.keepAwake("The drive is being set up");
    ASSERT_NE(hold, nullptr);
    auto calls = manager.calls(bus.connection("session"));
    ASSERT_EQ(calls.size(), 1);
    EXPECT_EQ(calls[0].interface(), "org.gnome.SessionManager");
    EXPECT_EQ(calls[0].member(), "Inhibit");
    EXPECT_EQ(calls[0].signature(), "susu");
    EXPECT_EQ(calls[0].arguments(),
              QVariantList({"com.kestrin.zelto", 0U, "The drive is being set up", 5U}));

    hold.reset();
    calls = manager.calls(bus.connection("session"));
    ASSERT_EQ(calls.size(), 2);
    EXPECT_EQ(calls[1].member(), "Uninhibit");
    EXPECT_EQ(calls[1].signature(), "u");
    EXPECT_EQ(calls[1].arguments(), QVariantList() << FakeSessionManager::Cookie);
}

TEST_F(LinuxDesktopLogOutTest, IsHeldOffTogetherWithShutdownAndSleep) {
    const FakeLoginService login(bus.connection("login"));
    const FakeSessionManager manager(bus.connection("manager"));
    auto hold = desktop.keepAwake("The drive is being set up");
    ASSERT_NE(hold, nullptr);
    EXPECT_TRUE(login.isHeld());
    hold.reset();
    login.waitForGivenBack();
    EXPECT_EQ(manager.calls(bus.connection("session")).size(), 2);
}

TEST_F(LinuxDesktopLogOutTest, ThatCannotBeHeldOffLeavesTheComputerAwake) {
    for (const bool thereIsAManager : {false, true}) {
        const FakeLoginService login(bus.connection("login"));
        std::optional<FakeSessionManager> manager;
        if (thereIsAManager) {
            manager.emplace(bus.connection("manager"));
            manager->refuse();
        }
        auto hold = desktop.keepAwake("The drive is being set up");
        ASSERT_NE(hold, nullptr);
        EXPECT_TRUE(login.isHeld());
        hold.reset();
        login.waitForGivenBack();
        if (manager) {
            EXPECT_EQ(manager->calls(bus.connection("session")).size(), 1)
                << "there is nothing to give back";
        }
    }
}

/// The toolkit says that the session is about to end, as it does when X11's session manager asks.
/// What it makes of a refusal shows in a real session only.
void tellThatTheSessionEnds() {
    auto* const session = qGuiApp->findChild<QSessionManager*>();
    ASSERT_NE(session, nullptr);
    Q_EMIT qGuiApp->commitDataRequest(*session);
}

TEST_F(LinuxDesktopTest, AsksBeforeTheSessionEndsAsLongAsItIsThere) {
    int asked = 0;
    {
        LinuxDesktop ofAProgram([] { return QDBusConnection("nowhere"); },
                                [] { return QDBusConnection("nowhere"); }, waiting);
        tellThatTheSessionEnds();
        EXPECT_EQ(asked, 0);
        ofAProgram.setSessionEndHandler([&] { return ++asked > 1; });
        tellThatTheSessionEnds();
        EXPECT_EQ(asked, 1);
        tellThatTheSessionEnds();
        EXPECT_EQ(asked, 2);
    }
    tellThatTheSessionEnds();
    EXPECT_EQ(asked, 2);
}

TEST_F(LinuxDesktopTest, StartsAlikeWithoutASessionBus) {
    int calls = 0;
    const auto called = [&] { ++calls; };
    EXPECT_TRUE(
        desktop.takePlace({.comeForward = called, .showManual = called, .giveWay = called}));
    desktop.giveWayToNewStart();
    desktop.bringOtherForward();
    EXPECT_EQ(calls, 0);
}

} // namespace
} // namespace zelto::test
