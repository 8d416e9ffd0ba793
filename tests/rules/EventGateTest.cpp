#include "app/EventGate.h"

#include "platform/Application.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zelto::test {
namespace {

/// Keeps what was put off until the test runs it.
class IdleQueue : public Application {
public:
    void scheduledTimer(std::chrono::seconds, std::function<void()>) override {}
    void performLater(std::function<void()> task) override { m_tasks.push_back(std::move(task)); }
    void stop() override {}

    void becomeIdle() {
        while (!m_tasks.empty()) {
            const auto task = std::move(m_tasks.front());
            m_tasks.erase(m_tasks.begin());
            task();
        }
    }

private:
    std::vector<std::function<void()>> m_tasks;
};

class EventGateTest : public ::testing::Test {
protected:
    void deliver(EventGate::Event event, const std::string& name) {
        m_gate.deliver(event, [this, name] { m_log.push_back(name); });
    }

    IdleQueue m_application;
    EventGate m_gate{m_application};
    std::vector<std::string> m_log;
};

using Log = std::vector<std::string>;

TEST_F(EventGateTest, AnOpenGateLetsAnEventThroughAtOnce) {
    deliver(EventGate::Event::Tick, "tick");
    EXPECT_EQ(m_log, Log{"tick"});
}

TEST_F(EventGateTest, AnEventDuringAClosingHappensOnceAfterIt) {
    {
        const EventGate::Closing alert(m_gate);
        deliver(EventGate::Event::Tick, "tick");
        deliver(EventGate::Event::Tick, "tick");
        deliver(EventGate::Event::Tick, "tick");
    }
    EXPECT_EQ(m_log, Log{}) << "not inside the operation that closed the gate";
    m_application.becomeIdle();
    EXPECT_EQ(m_log, Log{"tick"});
}

TEST_F(EventGateTest, ATickNeverRunsInsideATick) {
    m_gate.deliver(EventGate::Event::Tick, [this] {
        m_log.push_back("begin");
        deliver(EventGate::Event::Tick, "inner");
        m_application.becomeIdle();
        m_log.push_back("end");
    });
    EXPECT_EQ(m_log, (Log{"begin", "end"}));
    m_application.becomeIdle();
    EXPECT_EQ(m_log, (Log{"begin", "end", "inner"}));
}

TEST_F(EventGateTest, KindsOfEventsDoNotDisplaceEachOther) {
    {
        const EventGate::Closing alert(m_gate);
        deliver(EventGate::Event::Removal, "removal");
        deliver(EventGate::Event::Arrival, "arrival");
        deliver(EventGate::Event::Tick, "tick");
    }
    m_application.becomeIdle();
    EXPECT_EQ(m_log, (Log{"tick", "arrival", "removal"}));
}

TEST_F(EventGateTest, OnlyTheOutermostClosingOpensTheGate) {
    {
        const EventGate::Closing outer(m_gate);
        {
            const EventGate::Closing inner(m_gate);
            deliver(EventGate::Event::Tick, "tick");
        }
        m_application.becomeIdle();
        EXPECT_EQ(m_log, Log{});
    }
    m_application.becomeIdle();
    EXPECT_EQ(m_log, Log{"tick"});
}

TEST_F(EventGateTest, AnEventHeldBackByOneClosingWaitsForTheNextOneToo) {
    {
        const EventGate::Closing alert(m_gate);
        deliver(EventGate::Event::Tick, "tick");
    }
    {
        const EventGate::Closing pause(m_gate);
        m_application.becomeIdle();
        EXPECT_EQ(m_log, Log{});
    }
    m_application.becomeIdle();
    EXPECT_EQ(m_log, Log{"tick"});
}

TEST_F(EventGateTest, NothingPassesOnceClosedForGood) {
    {
        const EventGate::Closing alert(m_gate);
        deliver(EventGate::Event::Tick, "held back");
        m_gate.closeForGood();
    }
    deliver(EventGate::Event::Arrival, "late");
    m_application.becomeIdle();
    EXPECT_EQ(m_log, Log{});
}

} // namespace
} // namespace zelto::test
