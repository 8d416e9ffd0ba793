#include "platform/linux/LinuxDesktop.h"
#include "tests/support/PrivateBus.h"

#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QDBusVirtualObject>
#include <QThread>

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
