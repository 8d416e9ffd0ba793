#include "simulator/drive/DriveState.h"
#include "tests/model/DriveBench.h"

#include <gtest/gtest.h>
#include <random>
#include <set>

/// A drive under hundreds of thousands of requests, sound and mangled, with time and plugs thrown
/// in. The seeds are fixed: a failure comes back.
namespace zelto::test {
namespace {

using namespace simulator;
using enum SecurityState;

class Player {
public:
    explicit Player(unsigned seed) : m_random(seed) {}

    void step() {
        switch (number(40)) {
        case 0:
            m_bench.replug();
            break;
        case 1:
            m_bench.unplug();
            m_bench.pass(std::chrono::seconds{number(1000)});
            m_bench.drive.powerUp(m_bench.now);
            break;
        case 2:
            m_bench.drive.loseClock();
            break;
        case 3:
            m_bench.now -= std::chrono::seconds{number(100)};
            break;
        case 4:
            m_bench.pass(std::chrono::seconds{number(100)});
            break;
        default:
            send();
        }
        checkInvariants();
    }

    const std::set<SecurityState>& visited() const { return m_visited; }
    SavedDrive saved() const { return {m_bench.drive.manufactured(), m_bench.drive.remembered()}; }

private:
    unsigned number(unsigned below) { return static_cast<unsigned>(m_random() % below); }
    std::uint8_t password() { return number(4) == 0 ? Wrong : number(2) == 0 ? First : Second; }

    Sent soundRequest() {
        switch (number(24)) {
        case 0:
            return setSecureAreas();
        case 1:
            return setNormalAreas();
        case 2:
            return setAutomaticKey();
        case 3:
            return setKeyByHand({1, 2, 3});
        case 4:
            return setFirst(First);
        case 5:
            return setSecond(Second, static_cast<std::uint8_t>(1 + number(5)));
        case 6:
            return setBoth(First, Second);
        case 7:
            return changeFirst(First, password());
        case 8:
            return changeSecond(Second, password(), 3);
        case 9:
            return changeBoth(First, password(), Second);
        case 10:
            return setErasePeriod(number(3) == 0 ? 0 : 1 + number(2000));
        case 11:
            return setIdleLock(static_cast<std::uint16_t>(number(50)));
        case 12:
            return setClock();
        case 13:
            return readHint(static_cast<std::uint16_t>(number(4200)), 5);
        case 14:
            return writeHint(static_cast<std::uint16_t>(number(4200)), {1, 2});
        case 15:
            return getAreas();
        case 16:
            return getTime();
        case 17:
            return number(4) == 0 ? clearEncryption() : getStatus();
        case 18:
            return number(4) == 0 ? resetAreas() : logout();
        case 19:
            return reconnect();
        case 20:
            return authenticate(0, Second);
        default:
            return authenticate(static_cast<std::uint8_t>(number(2)), password());
        }
    }

    void mangle(Sent& sent) {
        switch (number(6)) {
        case 0:
            sent.setup.bRequest = static_cast<std::uint8_t>(m_random());
            break;
        case 1:
            sent.setup.bmRequestType = static_cast<std::uint8_t>(m_random());
            break;
        case 2:
            sent.setup.wValue = static_cast<std::uint16_t>(m_random());
            break;
        case 3:
            sent.setup.wIndex = static_cast<std::uint16_t>(m_random());
            break;
        case 4:
            sent.setup.wLength = static_cast<std::uint16_t>(m_random());
            break;
        default:
            sent.data.resize(number(120));
            break;
        }
        if (!sent.data.empty()) {
            sent.data[number(static_cast<unsigned>(sent.data.size()))] =
                static_cast<std::uint8_t>(m_random());
        }
    }

    void send() {
        Sent sent = soundRequest();
        if (number(5) == 0) {
            mangle(sent);
        }
        const auto reply = m_bench.drive.control(sent.setup, sent.data, m_bench.now);
        ASSERT_LE(reply.data.size(), sent.setup.wLength);
        if (reply.stalled) {
            ASSERT_TRUE(reply.data.empty());
            ASSERT_EQ(m_bench.sense().key, 5);
        }
        if (m_bench.drive.takeReconnect()) {
            m_bench.replug();
        }
    }

    void checkInvariants() {
        const SecurityState state = m_bench.drive.state(m_bench.now);
        m_visited.insert(state);
        const Remembered& kept = m_bench.drive.remembered();
        const bool hasSecureArea =
            std::ranges::any_of(kept.areas, [](const auto& entry) { return entry.type == 0x40; });
        ASSERT_EQ(state == StateNoPassword, !hasSecureArea);
        ASSERT_TRUE(!kept.key || (hasSecureArea && kept.firstPassword));
        ASSERT_TRUE(kept.key || state == StateNoPassword || state == StateFullLock);
        ASSERT_TRUE(!kept.autoClearExpired || !kept.key);
        std::uint64_t next = 0;
        for (std::size_t unit = 0; unit < DriveModel::UnitCount; ++unit) {
            const auto medium = m_bench.drive.medium(unit, m_bench.now);
            if (!medium) {
                continue;
            }
            ASSERT_GE(medium->firstSector, next);
            next = medium->firstSector + medium->sectorCount;
            ASSERT_LE(next, SmallDrive);
            ASSERT_EQ(medium->secure, medium->key.has_value());
            ASSERT_TRUE(!medium->secure || state == StateUnlocking);
        }
    }

    std::mt19937 m_random;
    Bench m_bench;
    std::set<SecurityState> m_visited;
};

class RandomRequests : public testing::TestWithParam<unsigned> {};

TEST_P(RandomRequests, NeverBreakTheDrive) {
    Player player(GetParam());
    for (int step = 0; step < 50'000; ++step) {
        player.step();
        if (testing::Test::HasFatalFailure()) {
            FAIL() << "step " << step;
        }
        if (step % 500 == 0) {
            SavedDrive drive;
            std::string error;
            ASSERT_TRUE(decodeDriveState(encodeDriveState(player.saved()), drive, error)) << error;
            ASSERT_EQ(drive, player.saved());
        }
    }
    EXPECT_EQ(player.visited(), (std::set{StateNoPassword, StateLocked, StatePasswordPending,
                                          StateUnlocking, StateFullLock}));
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomRequests, testing::Values(1U, 2U, 3U, 4U, 5U, 6U));

} // namespace
} // namespace zelto::test
