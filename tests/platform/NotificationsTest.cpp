#include "platform/linux/Notifications.h"
#include "platform/linux/LinuxDesktop.h"
#include "platform/linux/SessionPlace.h"
#include "tests/support/PrivateBus.h"
#include "tests/support/TemporaryFolder.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QMutex>
#include <QThread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <vector>

namespace zelto::test {
namespace {

using namespace linux_platform;
using Weight = Desktop::Notice::Weight;

/// A notification service. It lives in a thread of its own, as the program's end waits for its
/// answer.
class FakeNotificationService : public QDBusVirtualObject {
public:
    FakeNotificationService(const QDBusConnection& bus, const QString& name)
        : m_bus(bus), m_path(QStringLiteral("/") + QString(name).replace('.', '/')) {
        moveToThread(&m_thread);
        m_bus.registerVirtualObject(m_path, this);
        m_bus.registerService(name);
        m_thread.start();
    }
    FakeNotificationService(const FakeNotificationService&) = delete;
    FakeNotificationService& operator=(const FakeNotificationService&) = delete;
    ~FakeNotificationService() override {
        m_bus.unregisterObject(m_path);
        m_thread.quit();
        m_thread.wait();
    }

    enum class Manner { Obeys, Refuses, IsSilent };
    void be(Manner manner) { m_manner = manner; }

    /// Run when a call arrives, in the service's thread.
    std::function<void()> look = [] {};

    [[nodiscard]] QList<QDBusMessage> calls() const {
        const QMutexLocker lock(&m_mutex);
        return m_calls;
    }

    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        look();
        const QMutexLocker lock(&m_mutex);
        m_calls.append(message);
        switch (m_manner) {
        case Manner::Obeys:
            return connection.send(message.createReply(uint{1}));
        case Manner::Refuses:
            return connection.send(
                message.createErrorReply("org.gtk.Notifications.InvalidApp", ""));
        case Manner::IsSilent:
            return true;
        }
        return false;
    }

private:
    QDBusConnection m_bus;
    QString m_path;
    QThread m_thread;
    mutable QMutex m_mutex;
    QList<QDBusMessage> m_calls;
    std::atomic<Manner> m_manner = Manner::Obeys;
};

class NotificationsTest : public ::testing::Test {
protected:
    void SetUp() override { qputenv(Session, folder.path().c_str()); }
    void TearDown() override { qputenv(Session, m_session); }

    /// A program that leaves a notice and ends.
    void leave(Weight weight, std::chrono::milliseconds limit = std::chrono::seconds(30)) {
        Notifications notifications([this] { return bus.connection("program"); }, limit,
                                    QString::fromStdString((folder / "zelto-notice").native()));
        notifications.leave({.weight = weight, .title = "ZELTO DISK", .text = "It is locked."});
    }

    /// The number of the notice that each one takes the place of; 0 of none.
    [[nodiscard]] std::vector<uint> replaced() const {
        std::vector<uint> numbers;
        for (const QDBusMessage& call : service.calls()) {
            numbers.push_back(call.arguments().at(1).toUInt());
        }
        return numbers;
    }

    PrivateBus bus;
    FakeNotificationService service{bus.connection("service"), "org.freedesktop.Notifications"};
    TemporaryFolder folder;

private:
    static constexpr auto Session = "XDG_RUNTIME_DIR";
    const QByteArray m_session = qgetenv(Session);
};

TEST_F(NotificationsTest, TheServiceHasGotItWhenTheProgramEnds) {
    leave(Weight::Passing);
    ASSERT_EQ(service.calls().size(), 1);
    const QDBusMessage call = service.calls().front();
    EXPECT_EQ(call.interface(), "org.freedesktop.Notifications");
    EXPECT_EQ(call.member(), "Notify");
    EXPECT_EQ(call.signature(), "susssasa{sv}i");
    EXPECT_EQ(call.arguments().at(0), "ZELTO DISK");
    EXPECT_EQ(call.arguments().at(1), 0U);
    EXPECT_EQ(call.arguments().at(3), "ZELTO DISK");
    EXPECT_EQ(call.arguments().at(4), "It is locked.");
    EXPECT_TRUE(call.arguments().at(5).toStringList().isEmpty());
    const auto hints = qdbus_cast<QVariantMap>(call.arguments().at(6));
    EXPECT_EQ(hints.value("urgency").value<uchar>(), 1);
    EXPECT_EQ(call.arguments().at(7), -1);
}

TEST_F(NotificationsTest, ALastingOneStaysUntilTheUserCloses) {
    leave(Weight::Lasting);
    ASSERT_EQ(service.calls().size(), 1);
    const auto arguments = service.calls().front().arguments();
    EXPECT_EQ(qdbus_cast<QVariantMap>(arguments.at(6)).value("urgency").value<uchar>(), 2);
    EXPECT_EQ(arguments.at(7), 0);
}

TEST_F(NotificationsTest, ALastingOneIsTakenBackByTheNextAlsoOfALaterRun) {
    leave(Weight::Passing);
    leave(Weight::Lasting);
    leave(Weight::Passing);
    leave(Weight::Passing);
    EXPECT_THAT(replaced(), ::testing::ElementsAre(0, 0, 1, 0));
}

TEST_F(NotificationsTest, WhatAnotherServiceHasShownIsNotTakenBack) {
    for (const char* const left : {"1 :1.9999", "1", "", "one two three", "1  "}) {
        folder.write("zelto-notice", left);
        leave(Weight::Passing);
    }
    EXPECT_THAT(replaced(), ::testing::ElementsAre(0, 0, 0, 0, 0));
}

TEST_F(NotificationsTest, NothingIsShownWhileTheProgramRuns) {
    Notifications notifications([this] { return bus.connection("program"); });
    notifications.leave({});
    EXPECT_TRUE(service.calls().isEmpty());
}

TEST_F(NotificationsTest, ItComesWhenANewProgramCanTakeThePlace) {
    const QDBusConnection witness = bus.connection("witness");
    std::vector<bool> placeIsTaken;
    const auto look = [&] {
        placeIsTaken.push_back(witness.interface()->isServiceRegistered(SessionPlace::Name));
    };
    service.look = look;
    {
        const auto session = [this] { return bus.connection("program"); };
        const Waiting waiting;
        LinuxDesktop desktop(session, session, waiting);
        ASSERT_TRUE(
            desktop.takePlace({.comeForward = [] {}, .showManual = [] {}, .giveWay = [] {}}));
        desktop.leaveNotice({});
        look();
    }
    EXPECT_THAT(placeIsTaken, ::testing::ElementsAre(true, false));
}

TEST_F(NotificationsTest, WhereTheDesktopKeepsNoticesUnderTheProgramsNameItGetsThem) {
    const FakeNotificationService shell(bus.connection("shell"), "org.gtk.Notifications");
    leave(Weight::Passing);
    leave(Weight::Lasting);
    EXPECT_TRUE(service.calls().isEmpty());
    ASSERT_EQ(shell.calls().size(), 2);
    const QDBusMessage call = shell.calls().front();
    EXPECT_EQ(call.member(), "AddNotification");
    EXPECT_EQ(call.signature(), "ssa{sv}");
    EXPECT_EQ(call.arguments().at(0), "com.kestrin.zelto");
    const auto content = qdbus_cast<QVariantMap>(call.arguments().at(2));
    EXPECT_EQ(content.value("title"), "ZELTO DISK");
    EXPECT_EQ(content.value("body"), "It is locked.");
    EXPECT_EQ(content.value("priority"), "normal");
    const auto lasting = qdbus_cast<QVariantMap>(shell.calls().back().arguments().at(2));
    EXPECT_EQ(lasting.value("priority"), "urgent");
}

TEST_F(NotificationsTest, WhereTheDesktopDoesNotKnowTheProgramTheNoticeIsNobodys) {
    FakeNotificationService shell(bus.connection("shell"), "org.gtk.Notifications");
    shell.be(FakeNotificationService::Manner::Refuses);
    leave(Weight::Passing);
    EXPECT_EQ(shell.calls().size(), 1);
    ASSERT_EQ(service.calls().size(), 1);
    const auto hints = qdbus_cast<QVariantMap>(service.calls().front().arguments().at(6));
    EXPECT_EQ(hints.keys(), QStringList{"urgency"}) << "a name would have it taken away";
}

TEST_F(NotificationsTest, WithoutAServiceTheProgramEnds) {
    bus.connection("service").unregisterService("org.freedesktop.Notifications");
    leave(Weight::Lasting);
    EXPECT_TRUE(service.calls().isEmpty());
}

TEST_F(NotificationsTest, WithoutABusTheProgramEnds) {
    Notifications notifications([] { return QDBusConnection("nowhere"); });
    notifications.leave({});
}

TEST_F(NotificationsTest, AServiceThatNeverAnswersKeepsTheProgramNoLongerThanItsLimit) {
    service.be(FakeNotificationService::Manner::IsSilent);
    leave(Weight::Lasting, std::chrono::milliseconds(1));
}

} // namespace
} // namespace zelto::test
