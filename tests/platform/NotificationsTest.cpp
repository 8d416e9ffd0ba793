#include "platform/linux/Notifications.h"
#include "tests/support/PrivateBus.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QMutex>
#include <QThread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>

namespace zelto::test {
namespace {

using namespace linux_platform;
using Weight = Desktop::Notice::Weight;

/// The desktop's notification service. It lives in a thread of its own, as the program's end waits
/// for its answer.
class FakeNotificationService : public QDBusVirtualObject {
public:
    explicit FakeNotificationService(const QDBusConnection& bus) : m_bus(bus) {
        moveToThread(&m_thread);
        m_bus.registerVirtualObject("/org/freedesktop/Notifications", this);
        m_bus.registerService("org.freedesktop.Notifications");
        m_thread.start();
    }
    FakeNotificationService(const FakeNotificationService&) = delete;
    FakeNotificationService& operator=(const FakeNotificationService&) = delete;
    ~FakeNotificationService() override {
        m_bus.unregisterObject("/org/freedesktop/Notifications");
        m_thread.quit();
        m_thread.wait();
    }

    [[nodiscard]] QList<QDBusMessage> calls() const {
        const QMutexLocker lock(&m_mutex);
        return m_calls;
    }
    /// From now on nobody gets an answer.
    void fallSilent() { m_isSilent = true; }

    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        const QMutexLocker lock(&m_mutex);
        m_calls.append(message);
        return m_isSilent || connection.send(message.createReply(uint{1}));
    }

private:
    QDBusConnection m_bus;
    QThread m_thread;
    mutable QMutex m_mutex;
    QList<QDBusMessage> m_calls;
    std::atomic<bool> m_isSilent = false;
};

class NotificationsTest : public ::testing::Test {
protected:
    /// A program that leaves a notice and ends.
    void leave(Weight weight, std::chrono::milliseconds limit = std::chrono::seconds(30)) {
        Notifications notifications([this] { return bus.connection("program"); }, limit);
        notifications.notify({.weight = weight, .title = "ZELTO DISK", .text = "It is locked."});
    }

    PrivateBus bus;
};

TEST_F(NotificationsTest, TheServiceHasGotItWhenTheProgramEnds) {
    const FakeNotificationService service(bus.connection("service"));
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
    const FakeNotificationService service(bus.connection("service"));
    leave(Weight::Lasting);
    ASSERT_EQ(service.calls().size(), 1);
    const auto arguments = service.calls().front().arguments();
    EXPECT_EQ(qdbus_cast<QVariantMap>(arguments.at(6)).value("urgency").value<uchar>(), 2);
    EXPECT_EQ(arguments.at(7), 0);
}

TEST_F(NotificationsTest, WithoutAServiceTheProgramEnds) {
    leave(Weight::Lasting);
}

TEST_F(NotificationsTest, WithoutABusTheProgramEnds) {
    Notifications notifications([] { return QDBusConnection("nowhere"); });
    notifications.notify({});
}

TEST_F(NotificationsTest, AServiceThatNeverAnswersKeepsTheProgramNoLongerThanItsLimit) {
    FakeNotificationService service(bus.connection("service"));
    service.fallSilent();
    leave(Weight::Lasting, std::chrono::milliseconds(1));
}

} // namespace
} // namespace zelto::test
