#include "simulator/computer/VirtualComputer.h"
#include "tests/support/ScriptedAlerts.h"

#include <gtest/gtest.h>

namespace zelto::test {
namespace {

using namespace simulator;
using std::chrono::hours;
using std::chrono::seconds;

class VirtualTimeTest : public testing::Test {
protected:
    VirtualComputer m_computer;
    int m_ticks = 0;
};

TEST_F(VirtualTimeTest, FiresATimerOnceInEachOfItsIntervals) {
    m_computer.application.scheduledTimer(seconds(1), [this] { ++m_ticks; });
    EXPECT_EQ(m_ticks, 0);
    m_computer.advance(seconds(5));
    EXPECT_EQ(m_ticks, 5);
}

TEST_F(VirtualTimeTest, MakesUpForALateTimerOnce) {
    m_computer.application.scheduledTimer(seconds(1), [this] { ++m_ticks; });
    const auto before = m_computer.clock.now();
    m_computer.clock.sleep(seconds(9));
    EXPECT_EQ(m_computer.clock.now(), before + seconds(9));
    EXPECT_EQ(m_ticks, 0);
    m_computer.advance(seconds(1));
    EXPECT_EQ(m_ticks, 1);
    m_computer.skip(hours(24));
    EXPECT_EQ(m_ticks, 2);
}

TEST_F(VirtualTimeTest, RunsTasksLaterAndWhatTheyLeaveBehind) {
    std::string order;
    m_computer.application.performLater([&] {
        order += "a";
        m_computer.application.performLater([&] { order += "c"; });
        order += "b";
    });
    EXPECT_EQ(order, "");
    m_computer.settle();
    EXPECT_EQ(order, "abc");
}

TEST_F(VirtualTimeTest, GivesUpOnTasksThatNeverEnd) {
    std::function<void()> again = [&] { m_computer.application.performLater(again); };
    again();
    EXPECT_FALSE(m_computer.application.runUntilIdle());
}

TEST_F(VirtualTimeTest, DeliversNothingAfterTheLoopWasStopped) {
    m_computer.application.scheduledTimer(seconds(1), [this] {
        ++m_ticks;
        m_computer.application.stop();
    });
    m_computer.application.performLater([] {});
    m_computer.advance(seconds(10));
    EXPECT_EQ(m_ticks, 1);
    EXPECT_EQ(m_computer.application.stops(), 1);
    m_computer.endProcess();
    EXPECT_FALSE(m_computer.application.isStopped());
    m_computer.advance(seconds(10));
    EXPECT_EQ(m_ticks, 1);
}

TEST_F(VirtualTimeTest, LetsPlannedHappeningsComeInOrderWhileTheProgramSleeps) {
    std::string order;
    m_computer.clock.after(seconds(3), [&] { order += "3"; });
    m_computer.clock.after(seconds(1), [&] {
        order += "1";
        m_computer.clock.after(seconds(1), [&] { order += "2"; });
    });
    m_computer.clock.sleep(seconds(2));
    EXPECT_EQ(order, "12");
    m_computer.clock.sleep(seconds(1));
    EXPECT_EQ(order, "123");
}

TEST_F(VirtualTimeTest, MovesPlansAlongWhenTheClockIsSet) {
    bool happened = false;
    m_computer.clock.after(seconds(5), [&] { happened = true; });
    m_computer.clock.set(m_computer.clock.now() + hours(1000));
    EXPECT_FALSE(happened);
    m_computer.advance(seconds(5));
    EXPECT_TRUE(happened);
}

TEST_F(VirtualTimeTest, GoesOnFiringTimersWhenTheClockIsSetBack) {
    m_computer.application.scheduledTimer(seconds(1), [this] { ++m_ticks; });
    m_computer.advance(seconds(2));
    const auto before = m_computer.clock.now();
    m_computer.clock.set(before - hours(1000));
    EXPECT_EQ(m_ticks, 2);
    m_computer.advance(seconds(3));
    EXPECT_EQ(m_ticks, 5);
    EXPECT_EQ(m_computer.clock.now(), before - hours(1000) + seconds(3));
}

TEST_F(VirtualTimeTest, FiresNoTimerEarlyWhenTheClockIsSetAhead) {
    m_computer.application.scheduledTimer(seconds(2), [this] { ++m_ticks; });
    m_computer.clock.set(m_computer.clock.now() + hours(1000));
    m_computer.advance(seconds(1));
    EXPECT_EQ(m_ticks, 0);
    m_computer.advance(seconds(1));
    EXPECT_EQ(m_ticks, 1);
}

TEST_F(VirtualTimeTest, KeepsPlansWhenTheClockIsSetBack) {
    bool happened = false;
    m_computer.clock.after(seconds(5), [&] { happened = true; });
    m_computer.clock.set(m_computer.clock.now() - hours(1000));
    m_computer.advance(seconds(4));
    EXPECT_FALSE(happened);
    m_computer.advance(seconds(1));
    EXPECT_TRUE(happened);
}

TEST_F(VirtualTimeTest, LeavesTheWorldsTimeAloneWhenTheClockIsSet) {
    const auto before = m_computer.clock.worldTime();
    m_computer.clock.set(m_computer.clock.now() - hours(1000));
    EXPECT_EQ(m_computer.clock.worldTime(), before);
    m_computer.skip(seconds(7));
    EXPECT_EQ(m_computer.clock.worldTime(), before + seconds(7));
}

TEST_F(VirtualTimeTest, KnowsTheZoneItWasGiven) {
    EXPECT_EQ(m_computer.clock.utcOffset(m_computer.clock.now()), seconds(0));
    m_computer.clock.setUtcOffset(hours(9));
    EXPECT_EQ(m_computer.clock.utcOffset(m_computer.clock.now()), hours(9));
}

TEST_F(VirtualTimeTest, LetsTheWorldGoOnInsideAnAlert) {
    ScriptedAlerts alerts(m_computer.log);
    m_computer.application.scheduledTimer(seconds(1), [this] { ++m_ticks; });
    alerts.answer(AlertButton::Alternate,
                  [this](const AlertPanel&) { m_computer.advance(seconds(2)); });
    AlertPanel panel;
    panel.message = QStringLiteral("message");
    EXPECT_EQ(alerts.NSRunAlertPanel(panel), AlertButton::Alternate);
    EXPECT_EQ(m_ticks, 2);
    EXPECT_EQ(alerts.NSRunAlertPanel(panel), AlertButton::Default);
    EXPECT_EQ(alerts.messages().size(), 2U);
    EXPECT_EQ(m_computer.log.count("alert: message"), 2U);
}

} // namespace
} // namespace zelto::test
