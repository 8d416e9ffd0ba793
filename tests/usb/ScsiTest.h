#pragma once

#include "simulator/scsi/ScsiUnit.h"
#include "tests/usb/FakeDrive.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <initializer_list>

namespace zelto::test {

using namespace simulator;

/// How a command ended.
struct Outcome {
    bool isGood = false;
    Bytes data;
    SenseData sense;
};

/// The second unit of a drive of four, with a medium of 64 sectors whose arrival was announced.
class ScsiTest : public ::testing::Test {
protected:
    static constexpr std::size_t UnitNumber = 1;
    static constexpr std::uint64_t Sectors = 64;

    void SetUp() override {
        storage.insert(UnitNumber, Sectors);
        unit.powerUp();
        (void)run({0x00, 0, 0, 0, 0, 0}); // told of the power-up
        (void)run({0x00, 0, 0, 0, 0, 0}); // which is then forgotten
    }

    /// Runs a command, giving it as much data as it asks for.
    Outcome run(const Bytes& command, const Bytes& sent = {}) {
        const DataPlan plan = unit.begin(command);
        Outcome outcome;
        if (plan.direction == DataDirection::ToHost) {
            outcome.data.resize(plan.length);
            outcome.data.resize(unit.read(outcome.data));
        } else if (plan.direction == DataDirection::FromHost) {
            EXPECT_EQ(plan.length, sent.size());
            (void)unit.write(sent);
        }
        outcome.isGood = unit.end();
        outcome.sense = unit.sense();
        return outcome;
    }

    void expectGood(const Bytes& command) {
        const Outcome outcome = run(command);
        EXPECT_TRUE(outcome.isGood);
        EXPECT_EQ(outcome.sense.sense, Sense{});
    }

    void expectRefused(const Bytes& command, const Sense& sense) {
        const Outcome outcome = run(command);
        EXPECT_FALSE(outcome.isGood);
        EXPECT_TRUE(outcome.data.empty());
        EXPECT_EQ(outcome.sense.sense, sense);
    }

    FakeStorage storage;
    ScsiUnit unit{ScsiUnit::Kind::Disk, {UnitNumber, "ZD0123456789ABCD"}, 4, storage};
};

inline const Bytes TestUnitReady{0x00, 0, 0, 0, 0, 0};
inline const Bytes RequestSense{0x03, 0, 0, 0, 18, 0};
inline const Bytes ReadCapacity10{0x25, 0, 0, 0, 0, 0, 0, 0, 0, 0};
inline const Bytes Eject{0x1B, 0, 0, 0, 0x02, 0};
inline const Bytes Load{0x1B, 0, 0, 0, 0x03, 0};

inline constexpr Sense NoMedium{0x02, 0x3A, 0x00};
inline constexpr Sense InvalidCommand{0x05, 0x20, 0x00};
inline constexpr Sense OutOfRange{0x05, 0x21, 0x00};
inline constexpr Sense InvalidField{0x05, 0x24, 0x00};
inline constexpr Sense MediumChanged{0x06, 0x28, 0x00};
inline constexpr Sense PowerOn{0x06, 0x29, 0x00};

} // namespace zelto::test
