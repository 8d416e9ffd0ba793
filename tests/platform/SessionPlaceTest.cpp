#include "platform/linux/SessionPlace.h"
#include "tests/support/PrivateBus.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVirtualObject>
#include <QEventLoop>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <optional>

namespace zelto::test {
namespace {

using namespace linux_platform;

const QString PlaceName = QStringLiteral("com.kestrin.zelto");
constexpr auto Token = "XDG_ACTIVATION_TOKEN";

QDBusMessage placeCall(const QString& method, const QVariantList& arguments) {
    auto call =
        QDBusMessage::createMethodCall(PlaceName, QStringLiteral("/com/kestrin/zelto"),
                                       QStringLiteral("org.freedesktop.Application"), method);
    call.setArguments(arguments);
    return call;
}

/// One start of the program, with its own connection to the session's bus.
class Start {
public:
    Start(PrivateBus& bus, const QString& name,
          std::chrono::milliseconds limit = std::chrono::seconds(30))
        : m_name(name),
          m_connection(bus.connection(name)),
          m_place(
              std::in_place, [this] { return m_connection; }, m_waiting, limit) {}

    /// As the program does it: who gives way, ends. True when it goes on.
    bool takePlace() {
        return m_place->take({.comeForward =
                                  [this] {
                                      ++timesForward;
                                      tokenSeen = qEnvironmentVariable(Token);
                                  },
                              .showManual =
                                  [this] {
                                      ++timesManualShown;
                                      tokenSeen = qEnvironmentVariable(Token);
                                  },
                              .giveWay =
                                  [this] {
                                      ++timesGivenWay;
                                      // Not from within what the connection itself is telling.
                                      QTimer::singleShot(0, [this] { end(); });
                                  }});
    }
    void giveWayToNewStart() { m_place->giveWayToNewStart(); }
    bool bringOtherForward() { return m_place->bringOtherForward(); }
    void end() {
        m_place.reset();
        m_connection = QDBusConnection("nowhere");
        QDBusConnection::disconnectFromBus(m_name);
    }
    [[nodiscard]] bool isRunning() const { return m_connection.isConnected(); }
    [[nodiscard]] bool hasName() const {
        return m_connection.interface()->serviceOwner(PlaceName).value() ==
               m_connection.baseService();
    }

    int timesForward = 0;
    int timesManualShown = 0;
    int timesGivenWay = 0;
    /// The leave to take the focus that the toolkit found when the window came forward, or the
    /// manual was shown.
    QString tokenSeen;

private:
    QString m_name;
    QDBusConnection m_connection;
    Waiting m_waiting;
    std::optional<SessionPlace> m_place;
};

class OneProgramInASession : public ::testing::Test {
protected:
    void SetUp() override { qunsetenv(Token); }
    void TearDown() override { qunsetenv(Token); }

    /// The answer to a call of anybody on the bus.
    [[nodiscard]] QDBusMessage answerTo(const QDBusMessage& call) {
        const QDBusPendingCallWatcher pending(bus.connection("anybody").asyncCall(call));
        QEventLoop loop;
        QObject::connect(&pending, &QDBusPendingCallWatcher::finished, &loop, &QEventLoop::quit);
        loop.exec();
        return pending.reply();
    }
    [[nodiscard]] bool isObeyed(const QString& method, const QVariantList& arguments) {
        return answerTo(placeCall(method, arguments)).type() == QDBusMessage::ReplyMessage;
    }

    PrivateBus bus;
    Start first{bus, "first"};
    Start second{bus, "second"};
};

TEST_F(OneProgramInASession, ANewStartTakesThePlaceOfACopyThatGivesWayAndWaitsForItsEnd) {
    EXPECT_TRUE(first.takePlace());
    first.giveWayToNewStart();
    EXPECT_TRUE(second.takePlace());
    EXPECT_EQ(first.timesGivenWay, 1);
    EXPECT_EQ(first.timesForward, 0);
    EXPECT_FALSE(first.isRunning());
    EXPECT_TRUE(second.hasName());
}

TEST_F(OneProgramInASession, ACopyThatGivesWayIsNotWhatADesktopFindsUnderTheName) {
    EXPECT_TRUE(first.takePlace());
    first.giveWayToNewStart();
    EXPECT_FALSE(first.hasName());
    EXPECT_TRUE(first.isRunning());
    EXPECT_FALSE(isObeyed("Activate", {QVariantMap()}));
}

TEST_F(OneProgramInASession, OneCopyAfterAnotherGivesWay) {
    EXPECT_TRUE(first.takePlace());
    first.giveWayToNewStart();
    EXPECT_TRUE(second.takePlace());
    second.giveWayToNewStart();
    Start third(bus, "third");
    EXPECT_TRUE(third.takePlace());
    EXPECT_EQ(second.timesGivenWay, 1);
    EXPECT_FALSE(second.isRunning());
    EXPECT_TRUE(third.hasName());
}

TEST_F(OneProgramInASession, ACopyWithAWindowKeepsItsPlaceAndComesForward) {
    EXPECT_TRUE(first.takePlace());
    EXPECT_FALSE(second.takePlace());
    EXPECT_EQ(first.timesForward, 1);
    EXPECT_EQ(first.timesGivenWay, 0);
    EXPECT_TRUE(first.isRunning());
    EXPECT_TRUE(first.hasName());
    EXPECT_EQ(second.timesForward, 0);
}

TEST_F(OneProgramInASession, AStartBesideACopyWithAWindowTakesNoPlaceLaterEither) {
    EXPECT_TRUE(first.takePlace());
    EXPECT_FALSE(second.takePlace());
    first.end();
    EXPECT_FALSE(second.hasName());
}

TEST_F(OneProgramInASession, APlaceLeftByAnEndIsFree) {
    EXPECT_TRUE(first.takePlace());
    first.end();
    EXPECT_TRUE(second.takePlace());
    EXPECT_TRUE(second.hasName());
    EXPECT_EQ(first.timesForward, 0);
}

TEST_F(OneProgramInASession, WhoTakesNoPlaceBringsTheOtherForwardAllTheSame) {
    EXPECT_FALSE(second.bringOtherForward()) << "there is none yet";
    EXPECT_TRUE(first.takePlace());
    EXPECT_TRUE(second.bringOtherForward());
    EXPECT_EQ(first.timesForward, 1);
    EXPECT_TRUE(first.hasName());
}

TEST_F(OneProgramInASession, TheLeaveToTakeTheFocusIsHandedOnOnce) {
    EXPECT_TRUE(first.takePlace());
    qputenv(Token, "of-the-second-start");
    EXPECT_FALSE(second.takePlace());
    EXPECT_EQ(first.tokenSeen, "of-the-second-start");
    EXPECT_FALSE(qEnvironmentVariableIsSet(Token));
    EXPECT_FALSE(second.takePlace());
    EXPECT_EQ(first.tokenSeen, "");
}

TEST_F(OneProgramInASession, ADesktopBringsTheProgramForwardInEachOfItsThreeWays) {
    EXPECT_TRUE(first.takePlace());
    const QVariantMap leave{{"activation-token", "of-the-desktop"}};
    EXPECT_TRUE(isObeyed("Activate", {leave}));
    EXPECT_TRUE(isObeyed("Open", {QStringList{"file:///etc/passwd"}, leave}));
    EXPECT_TRUE(isObeyed("ActivateAction", {QString("clear-all"), QVariantList(), leave}));
    EXPECT_EQ(first.timesForward, 3);
    EXPECT_EQ(first.timesManualShown, 0);
    EXPECT_EQ(first.tokenSeen, "of-the-desktop");
    EXPECT_FALSE(qEnvironmentVariableIsSet(Token)) << "programs started later must not use it";
}

TEST_F(OneProgramInASession, ADesktopHasItShowTheManual) {
    EXPECT_TRUE(first.takePlace());
    EXPECT_TRUE(isObeyed("ActivateAction", {QString("manual"), QVariantList(),
                                            QVariantMap{{"activation-token", "of-the-desktop"}}}));
    EXPECT_EQ(first.timesManualShown, 1);
    EXPECT_EQ(first.timesForward, 0);
    EXPECT_EQ(first.tokenSeen, "of-the-desktop");
    EXPECT_FALSE(qEnvironmentVariableIsSet(Token)) << "programs started later must not use it";
}

TEST_F(OneProgramInASession, WhatIsNoTokenDoesNotGetIntoTheEnvironment) {
    EXPECT_TRUE(first.takePlace());
    const QVariantList notTokens{
        QString(),        QString(2000, 'x'),    QString("two words"),
        QString("Größe"), QStringList{"a", "b"}, QVariantMap{{"activation-token", "nested"}}};
    for (const QVariant& notToken : notTokens) {
        EXPECT_TRUE(isObeyed("Activate", {QVariantMap{{"activation-token", notToken}}}));
        EXPECT_EQ(first.tokenSeen, "");
    }
    EXPECT_EQ(first.timesForward, notTokens.size());
}

TEST_F(OneProgramInASession, TheBusCanCallNothingElse) {
    EXPECT_TRUE(first.takePlace());
    for (const char* const method :
         {"giveWayToNewStart", "bringOtherForward", "take", "deleteLater", "Quit"}) {
        EXPECT_FALSE(isObeyed(method, {})) << method;
    }
    EXPECT_TRUE(first.hasName());
    EXPECT_EQ(first.timesForward + first.timesManualShown + first.timesGivenWay, 0);
}

TEST_F(OneProgramInASession, ANameHeldByWhoHasNoWindowToShowStopsNobody) {
    ASSERT_TRUE(bus.connection("squatter").registerService(PlaceName));
    EXPECT_TRUE(first.takePlace());
    EXPECT_FALSE(first.hasName());
}

/// Takes every call and answers none.
class Silent : public QDBusVirtualObject {
public:
    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& /*message*/, const QDBusConnection& /*bus*/) override {
        return true;
    }
};

TEST_F(OneProgramInASession, ANameHeldByWhoNeverAnswersStopsNobody) {
    Silent silent;
    auto holder = bus.connection("squatter");
    ASSERT_TRUE(holder.registerVirtualObject("/com/kestrin/zelto", &silent));
    ASSERT_TRUE(holder.registerService(PlaceName));
    Start impatient(bus, "impatient", std::chrono::milliseconds(1));
    EXPECT_TRUE(impatient.takePlace());
}

TEST_F(OneProgramInASession, ABusThatHasBrokenDownStopsNobody) {
    EXPECT_TRUE(first.takePlace());
    bus.breakDown();
    EXPECT_TRUE(second.takePlace());
    second.giveWayToNewStart();
    EXPECT_FALSE(second.bringOtherForward());
}

} // namespace
} // namespace zelto::test
