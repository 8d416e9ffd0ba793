#include "platform/linux/LinuxApplication.h"
#include "platform/linux/LinuxClock.h"
#include "platform/linux/Waiting.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

namespace zelto::test {
namespace {

using namespace linux_platform;
using std::chrono::seconds;
using std::chrono::sys_seconds;

TEST(LinuxApplication, RunsTasksLaterAndInOrder) {
    LinuxApplication application;
    std::vector<int> done;
    application.performLater([&] { done.push_back(1); });
    application.performLater([&] { done.push_back(2); });
    EXPECT_TRUE(done.empty());
    QCoreApplication::processEvents();
    EXPECT_EQ(done, (std::vector<int>{1, 2}));
}

TEST(LinuxApplication, StopsALoopThatHasNotEvenStarted) {
    LinuxApplication application;
    application.stop();
    EXPECT_EQ(QCoreApplication::exec(), 0);
}

TEST(LinuxApplication, StopsOnlyAfterControlHasReturnedToTheLoop) {
    LinuxApplication application;
    bool wentOn = false;
    application.performLater([&] {
        application.stop();
        application.stop();
        wentOn = true;
    });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_TRUE(wentOn);
}

TEST(LinuxApplication, RepeatsATimerUntilItEnds) {
    int ticks = 0;
    {
        LinuxApplication application;
        application.scheduledTimer(seconds(0), [&] {
            if (++ticks == 3) {
                application.stop();
            }
        });
        QCoreApplication::exec();
        EXPECT_GE(ticks, 3);
    }
    const int ticksInItsLife = ticks;
    QCoreApplication::processEvents();
    EXPECT_EQ(ticks, ticksInItsLife);
}

TEST(Waiting, ShowsOneIndicationForNestedWaits) {
    int shown = 0;
    const Waiting waiting([&] {
        ++shown;
        return std::make_shared<int>();
    });
    {
        const auto outer = waiting.showWork();
        QEventLoop loop;
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
        waiting.run(loop);
    }
    EXPECT_EQ(shown, 1);
    const auto again = waiting.showWork();
    EXPECT_EQ(shown, 2);
}

TEST(LinuxClock, TellsTheSystemsTime) {
    const Waiting waiting;
    const LinuxClock clock(waiting);
    const auto before = std::chrono::floor<seconds>(std::chrono::system_clock::now());
    const auto now = clock.now();
    EXPECT_GE(now, before);
    EXPECT_LE(now, std::chrono::system_clock::now());
}

/// The zone is the process's; each test gives back the one that it found.
class Zone : public ::testing::Test {
public:
    Zone() {
        if (const char* zone = std::getenv("TZ")) {
            m_before = zone;
        }
    }
    Zone(const Zone&) = delete;
    Zone& operator=(const Zone&) = delete;
    ~Zone() override { ::setenv("TZ", m_before.c_str(), 1); }

protected:
    [[nodiscard]] seconds offsetIn(const char* zone, sys_seconds moment) const {
        ::setenv("TZ", zone, 1);
        return LinuxClock(m_waiting).utcOffset(moment);
    }

private:
    std::string m_before = "UTC";
    Waiting m_waiting;
};

TEST_F(Zone, IsFollowedWithDaylightSaving) {
    using namespace std::chrono;
    const sys_seconds winter = sys_days(2026y / January / 15);
    const sys_seconds summer = sys_days(2026y / July / 15);
    EXPECT_EQ(offsetIn("JST-9", winter), hours(9));
    EXPECT_EQ(offsetIn("CET-1CEST,M3.5.0,M10.5.0/3", winter), hours(1));
    EXPECT_EQ(offsetIn("CET-1CEST,M3.5.0,M10.5.0/3", summer), hours(2));
    EXPECT_EQ(offsetIn("XXX3:30", winter), -minutes(210));
}

TEST_F(Zone, OfAMomentBeyondAllCalendarsIsUtc) {
    EXPECT_EQ(offsetIn("JST-9", sys_seconds(seconds::max())), seconds(0));
}

TEST_F(Zone, SleepsNotAtAllForNoTime) {
    const Waiting waiting;
    LinuxClock(waiting).sleep(seconds(0));
}

} // namespace
} // namespace zelto::test
