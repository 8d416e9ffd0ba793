#include "tests/usb/ScsiTest.h"

#include <ostream>

namespace zelto::test {
namespace {

using namespace simulator;

constexpr std::size_t Sector = 512;

/// The forms of a command that names sectors: 6, 10, 12 and 16 bytes.
struct Form {
    const char* name;
    std::uint8_t read;
    std::uint8_t write;
    std::size_t size;

    friend void PrintTo(const Form& form, std::ostream* out) { *out << form.name; }

    [[nodiscard]] Bytes command(std::uint8_t operation, std::uint64_t first,
                                std::uint32_t count) const {
        Bytes bytes(size);
        bytes[0] = operation;
        const std::size_t addressEnd = size == 6 ? 4 : size == 16 ? 10 : 6;
        const std::size_t addressBytes = size == 6 ? 3 : size == 16 ? 8 : 4;
        put(bytes, addressEnd, addressBytes, first);
        const std::size_t countEnd = size == 6 ? 5 : size == 10 ? 9 : size == 12 ? 10 : 14;
        put(bytes, countEnd, size == 6 ? 1 : size == 10 ? 2 : 4, count);
        return bytes;
    }

private:
    static void put(Bytes& bytes, std::size_t end, std::size_t width, std::uint64_t value) {
        for (std::size_t index = 0; index < width; ++index) {
            bytes[end - 1 - index] = static_cast<std::uint8_t>(value >> (8 * index) & 0xFF);
        }
    }
};

class ReadAndWrite : public ScsiTest, public ::testing::WithParamInterface<Form> {
protected:
    Bytes read(std::uint64_t first, std::uint32_t count) {
        return GetParam().command(GetParam().read, first, count);
    }
    Bytes write(std::uint64_t first, std::uint32_t count) {
        return GetParam().command(GetParam().write, first, count);
    }
};

TEST_P(ReadAndWrite, MoveTheSectorsNamed) {
    const Bytes data = pattern(3 * Sector, 5);
    EXPECT_TRUE(run(write(7, 3), data).isGood);
    EXPECT_EQ(run(read(7, 3)).data, data);
    EXPECT_TRUE(
        std::equal(data.begin(), data.end(), storage.contents(UnitNumber).begin() + 7 * Sector));
    EXPECT_EQ(storage.contents(UnitNumber)[7 * Sector - 1], 0);
    EXPECT_EQ(storage.contents(UnitNumber)[10 * Sector], 0);
}

TEST_P(ReadAndWrite, ReachTheLastSector) {
    EXPECT_TRUE(run(write(63, 1), pattern(Sector, 1)).isGood);
    EXPECT_EQ(run(read(63, 1)).data, pattern(Sector, 1));
}

TEST_P(ReadAndWrite, AreRefusedBeyondTheLastSector) {
    expectRefused(read(64, 1), OutOfRange);
    expectRefused(write(64, 1), OutOfRange);
    expectRefused(read(63, 2), OutOfRange);
    expectRefused(write(63, 2), OutOfRange);
    expectRefused(read(0, 65), OutOfRange);
    expectRefused(read(0x1FFFFF, 255), OutOfRange);
}

TEST_P(ReadAndWrite, AreRefusedWhereAddressPlusCountWouldOverflow) {
    if (GetParam().size == 16) {
        expectRefused(read(0xFFFFFFFFFFFFFFFF, 2), OutOfRange);
        expectRefused(write(0xFFFFFFFFFFFFFFFF, 0xFFFFFFFF), OutOfRange);
    }
}

TEST_P(ReadAndWrite, OfNoSectorsMoveNothing) {
    if (GetParam().size == 6) {
        return; // 0 means 256 there
    }
    expectGood(read(0, 0));
    expectGood(write(64, 0));
    expectRefused(read(65, 0), OutOfRange);
}

TEST_P(ReadAndWrite, WithProtectionInformationAreRefused) {
    if (GetParam().size == 6) {
        return; // those bits belong to the address there
    }
    for (Bytes command : {read(0, 1), write(0, 1)}) {
        command[1] = 0x20;
        expectRefused(command, InvalidField);
    }
}

TEST_P(ReadAndWrite, PastTheCacheAreFlushed) {
    if (GetParam().size == 6) {
        return; // those bits belong to the address there
    }
    const auto pastTheCache = [](Bytes command) {
        command[1] = 0x08;
        return command;
    };
    storage.flushes = 0;
    EXPECT_TRUE(run(write(0, 1), pattern(Sector, 0)).isGood);
    EXPECT_EQ(storage.flushes, 0);
    EXPECT_TRUE(run(pastTheCache(write(0, 1)), pattern(Sector, 0)).isGood);
    EXPECT_EQ(storage.flushes, 1);
    EXPECT_TRUE(run(pastTheCache(read(0, 1))).isGood);
    EXPECT_EQ(storage.flushes, 2);
    EXPECT_TRUE(run(read(0, 1)).isGood);
    EXPECT_EQ(storage.flushes, 2);
}

INSTANTIATE_TEST_SUITE_P(Forms, ReadAndWrite,
                         ::testing::Values(Form{"Six", 0x08, 0x0A, 6}, Form{"Ten", 0x28, 0x2A, 10},
                                           Form{"Twelve", 0xA8, 0xAA, 12},
                                           Form{"Sixteen", 0x88, 0x8A, 16}),
                         [](const auto& form) { return form.param.name; });

using ScsiTransfers = ScsiTest;

TEST_F(ScsiTransfers, ShortestReadOfCountZeroMeans256Sectors) {
    storage.insert(UnitNumber, 256);
    (void)run(TestUnitReady);
    EXPECT_EQ(run({0x08, 0, 0, 0, 0, 0}).data.size(), 256 * Sector);
}

TEST_F(ScsiTransfers, WriteTakesItsDataInPiecesOfAnySize) {
    const Bytes data = pattern(4 * Sector, 9);
    ASSERT_EQ(unit.begin(Bytes{0x2A, 0, 0, 0, 0, 2, 0, 0, 4, 0}).length, data.size());
    std::span<const std::uint8_t> rest = data;
    for (const std::size_t size : {1U, 510U, 2U, 1000U, 0U, 23U, 512U}) {
        EXPECT_TRUE(unit.write(rest.first(size)));
        rest = rest.subspan(size);
    }
    EXPECT_EQ(rest.size(), 0U);
    EXPECT_TRUE(unit.end());
    EXPECT_TRUE(
        std::equal(data.begin(), data.end(), storage.contents(UnitNumber).begin() + 2 * Sector));
}

TEST_F(ScsiTransfers, WritePastTheCacheIsFlushedBehindItsLastSector) {
    storage.flushes = 0;
    const Bytes data = pattern(2 * Sector, 1);
    ASSERT_EQ(unit.begin(Bytes{0x2A, 0x08, 0, 0, 0, 0, 0, 0, 2, 0}).length, data.size());
    ASSERT_TRUE(unit.write(data));
    // All of it lies with the drive; the flush comes before the status, which tells of a failure.
    EXPECT_EQ(storage.flushes, 0);
    storage.failsFlush = true;
    EXPECT_FALSE(unit.end());
    EXPECT_EQ(storage.flushes, 1);
    EXPECT_EQ(unit.sense().sense, (Sense{0x03, 0x0C, 0x00}));
}

TEST_F(ScsiTransfers, ReadPastTheCacheFailsWhenTheMediumCanNotBeBroughtUpToDate) {
    storage.failsFlush = true;
    expectRefused({0x28, 0x08, 0, 0, 0, 0, 0, 0, 1, 0}, {0x03, 0x0C, 0x00});
}

TEST_F(ScsiTransfers, ReadThatFailsNamesItsSector) {
    storage.failsReads = true;
    const Outcome outcome = run({0x28, 0, 0, 0, 0, 9, 0, 0, 1, 0});
    EXPECT_FALSE(outcome.isGood);
    EXPECT_EQ(outcome.sense, (SenseData{{0x03, 0x11, 0x00}, 9}));
}

TEST_F(ScsiTransfers, WriteThatFailsNamesItsSector) {
    storage.failsWrites = true;
    const Outcome outcome = run({0x2A, 0, 0, 0, 0, 9, 0, 0, 1, 0}, pattern(Sector, 0));
    EXPECT_FALSE(outcome.isGood);
    EXPECT_EQ(outcome.sense, (SenseData{{0x03, 0x0C, 0x00}, 9}));
}

TEST_F(ScsiTransfers, FlushThatFailsFailsTheCommand) {
    storage.failsFlush = true;
    expectRefused({0x35, 0, 0, 0, 0, 0, 0, 0, 0, 0}, {0x03, 0x0C, 0x00});
    EXPECT_FALSE(run({0x2A, 0x08, 0, 0, 0, 0, 0, 0, 1, 0}, pattern(Sector, 0)).isGood);
}

TEST_F(ScsiTransfers, MediumThatVanishesInTheMiddleOfAReadEndsIt) {
    Bytes buffer(Sector);
    ASSERT_EQ(unit.begin(Bytes{0x28, 0, 0, 0, 0, 0, 0, 0, 2, 0}).length, 2 * Sector);
    ASSERT_EQ(unit.read(buffer), Sector);
    storage.remove(UnitNumber);
    EXPECT_EQ(unit.read(buffer), 0U);
    EXPECT_FALSE(unit.end());
    EXPECT_EQ(unit.sense().sense, NoMedium);
}

TEST_F(ScsiTransfers, MediumExchangedInTheMiddleOfAWriteIsNotWritten) {
    const Bytes data = pattern(Sector, 3);
    ASSERT_EQ(unit.begin(Bytes{0x2A, 0, 0, 0, 0, 0, 0, 0, 2, 0}).length, 2 * Sector);
    ASSERT_TRUE(unit.write(data));
    storage.insert(UnitNumber, Sectors);
    unit.noticeMedium();
    EXPECT_FALSE(unit.write(data));
    EXPECT_FALSE(unit.end());
    EXPECT_EQ(storage.contents(UnitNumber), Bytes(Sectors * Sector));
    expectRefused(TestUnitReady, MediumChanged);
}

TEST_F(ScsiTransfers, VerifyChecksTheRange) {
    for (const Bytes& command :
         {Bytes{0x2F, 0, 0, 0, 0, 60, 0, 0, 4, 0}, Bytes{0xAF, 0, 0, 0, 0, 60, 0, 0, 0, 4, 0, 0},
          Bytes{0x8F, 0, 0, 0, 0, 0, 0, 0, 0, 60, 0, 0, 0, 4, 0, 0}}) {
        expectGood(command);
    }
    expectRefused({0x2F, 0, 0, 0, 0, 60, 0, 0, 5, 0}, OutOfRange);
}

TEST_F(ScsiTransfers, VerifyComparesWithTheHostsData) {
    const Bytes data = pattern(2 * Sector, 4);
    EXPECT_TRUE(run({0x2A, 0, 0, 0, 0, 8, 0, 0, 2, 0}, data).isGood);
    EXPECT_TRUE(run({0x2F, 0x02, 0, 0, 0, 8, 0, 0, 2, 0}, data).isGood);
    Bytes other = data;
    other[Sector] ^= 1;
    const Outcome outcome = run({0x2F, 0x02, 0, 0, 0, 8, 0, 0, 2, 0}, other);
    EXPECT_FALSE(outcome.isGood);
    EXPECT_EQ(outcome.sense.sense, (Sense{0x0E, 0x1D, 0x00}));
}

TEST_F(ScsiTransfers, OtherKindsOfVerifyAreRefused) {
    expectRefused({0x2F, 0x04, 0, 0, 0, 0, 0, 0, 1, 0}, InvalidField);
    expectRefused({0x2F, 0x06, 0, 0, 0, 0, 0, 0, 1, 0}, InvalidField);
    expectRefused({0x2F, 0x20, 0, 0, 0, 0, 0, 0, 1, 0}, InvalidField);
}

TEST_F(ScsiTransfers, SynchronizeCacheFlushesAndChecksTheRange) {
    storage.flushes = 0;
    expectGood({0x35, 0, 0, 0, 0, 0, 0, 0, 0, 0});
    expectGood({0x91, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 64, 0, 0});
    EXPECT_EQ(storage.flushes, 2);
    expectRefused({0x35, 0, 0, 0, 0, 64, 0, 0, 1, 0}, OutOfRange);
    expectRefused({0x91, 0, 0, 0, 0, 0, 0, 0, 0, 65, 0, 0, 0, 0, 0, 0}, OutOfRange);
}

} // namespace
} // namespace zelto::test
