#include "settings/AreaPacking.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <limits>
#include <vector>

namespace zelto::test {
namespace {

constexpr std::uint64_t AllOnes = std::numeric_limits<std::uint64_t>::max();
constexpr std::uint64_t LargestTyped = std::numeric_limits<std::int64_t>::max();

AreaInfoTable neverPartitioned(std::uint64_t totalSectors) {
    return encodeAreaInfoTable(totalSectors, std::array{AreaInfoEntry{.sectorCount = AllOnes}});
}

AreaInfoEntry normalArea(std::uint64_t first, std::uint64_t count) {
    return {.flags = 0x41, .firstSector = first, .sectorCount = count};
}

AreaInfoEntry secureArea(std::uint64_t first, std::uint64_t count) {
    return {.type = 0x40, .flags = 0xC1, .firstSector = first, .sectorCount = count};
}

/// A table whose length field says something else than its entries.
AreaInfoTable tableOfLength(std::uint16_t length) {
    AreaInfoTable table;
    table.bytes()[0] = static_cast<std::uint8_t>(length >> 8);
    table.bytes()[1] = static_cast<std::uint8_t>(length & 0xFF);
    return table;
}

TEST(SectorsBesideToolArea, Are40960Less) {
    EXPECT_EQ(sectorsBesideToolArea(2000000), 1959040u);
    EXPECT_EQ(mebibytesOfSectors(sectorsBesideToolArea(2000000)), 956u);
}

TEST(SectorsBesideToolArea, AreNoneOnADriveThatHasNoRoomForIt) {
    EXPECT_EQ(sectorsBesideToolArea(40960), 0u);
    EXPECT_EQ(sectorsBesideToolArea(40959), 0u);
    EXPECT_EQ(sectorsBesideToolArea(0), 0u);
    EXPECT_EQ(sectorsBesideToolArea(AllOnes), AllOnes - 40960);
}

TEST(IsNeverPartitioned, LooksAtTheFirstEntryOnly) {
    EXPECT_TRUE(isNeverPartitioned(neverPartitioned(1000)));
    EXPECT_FALSE(isNeverPartitioned(
        encodeAreaInfoTable(1000, std::array{normalArea(0, 10), normalArea(10, AllOnes)})));
    EXPECT_FALSE(isNeverPartitioned(AreaInfoTable()));
}

TEST(AreaView, OfADriveNeverPartitionedIsOneRowThatSpansAllAndTakesNothing) {
    const AreaView view = buildAreaView(neverPartitioned(2000000), 1959040);
    EXPECT_EQ(view.rows.areaCount, 1);
    EXPECT_EQ(view.rows.areaData[0].type, 0);
    EXPECT_EQ(view.rows.areaData[0].capacity, AllOnes);
    EXPECT_EQ(view.freeSectors, 1959040u);
    EXPECT_FALSE(view.hasSecureArea);
}

TEST(AreaView, ShowsMebibytesRoundedDownAndWhatIsFree) {
    const AreaView view = buildAreaView(
        encodeAreaInfoTable(10000, std::array{normalArea(0, 4095), secureArea(4095, 2048)}), 10000);
    EXPECT_EQ(view.rows.areaCount, 2);
    EXPECT_EQ(view.rows.areaData[0].capacity, 1u);
    EXPECT_EQ(view.rows.areaData[1].type, 0x40);
    EXPECT_EQ(view.rows.areaData[1].capacity, 1u);
    EXPECT_EQ(view.rows.areaData[2].capacity, 0u);
    EXPECT_EQ(view.freeSectors, 10000u - 4095 - 2048);
    EXPECT_TRUE(view.hasSecureArea);
}

TEST(AreaView, KeepsFourRowsOfADriveThatReportsMore) {
    std::vector<AreaInfoEntry> entries;
    for (std::uint64_t index = 0; index < 12; ++index) {
        entries.push_back(normalArea(index * 2048, 2048));
    }
    const AreaView view = buildAreaView(encodeAreaInfoTable(100000, entries), 100000);
    EXPECT_EQ(view.rows.areaCount, 4);
    EXPECT_EQ(view.freeSectors, 100000u - 12 * 2048);
}

TEST(AreaView, FindsASecureAreaBeyondTheRowsShown) {
    const AreaView view = buildAreaView(
        encodeAreaInfoTable(100000, std::array{normalArea(0, 1), normalArea(1, 1), normalArea(2, 1),
                                               normalArea(3, 1), secureArea(4, 1)}),
        100000);
    EXPECT_EQ(view.rows.areaCount, 4);
    EXPECT_TRUE(view.hasSecureArea);
}

TEST(AreaView, NeverCountsBeyondTheBufferWhateverTheLengthFieldSays) {
    for (unsigned length = 0; length <= 0xFFFF; ++length) {
        const AreaView view =
            buildAreaView(tableOfLength(static_cast<std::uint16_t>(length)), 1000);
        ASSERT_LE(view.rows.areaCount, 4) << length;
        ASSERT_EQ(view.freeSectors, 1000u) << length;
    }
}

TEST(AreaView, AreasThatClaimMoreThanTheDriveLeaveNothingFree) {
    const auto table = encodeAreaInfoTable(
        1000, std::array{normalArea(0, AllOnes - 1), normalArea(5, AllOnes - 1)});
    EXPECT_EQ(buildAreaView(table, 1000).freeSectors, 0u);
    EXPECT_EQ(buildAreaView(table, 0).freeSectors, 0u);
    EXPECT_EQ(buildAreaView(table, AllOnes).freeSectors, 0u);
    EXPECT_EQ(buildAreaView(table, AllOnes).rows.areaData[0].capacity, (AllOnes - 1) >> 11);
}

TEST(AreaView, AnAreaBelowOneMebibyteHasCapacityZero) {
    const AreaView view =
        buildAreaView(encodeAreaInfoTable(5000, std::array{normalArea(0, 2047)}), 5000);
    EXPECT_EQ(view.rows.areaCount, 1);
    EXPECT_EQ(view.rows.areaData[0].capacity, 0u);
}

TEST(LeftMebibytes, IsWhatTheDisksLeave) {
    EXPECT_EQ(leftMebibytes(1959040, {900, 56, 0}), 0);
    EXPECT_EQ(leftMebibytes(1959040, {900, 0, 0}), 56);
    EXPECT_EQ(leftMebibytes(1959040, {0, 0, 0}), 956);
}

TEST(LeftMebibytes, IsNegativeOnceTheDisksExceedTheDrive) {
    EXPECT_LT(leftMebibytes(1959040, {900, 57, 0}), 0);
    EXPECT_LT(leftMebibytes(0, {1, 0, 0}), 0);
    EXPECT_EQ(leftMebibytes(0, {0, 0, 0}), 0);
}

TEST(LeftMebibytes, SumsBeyondSixtyFourBitsAreStillTooMuch) {
    EXPECT_LT(leftMebibytes(1959040, {LargestTyped, LargestTyped, LargestTyped}), 0);
    EXPECT_LT(leftMebibytes(1959040, {LargestTyped, LargestTyped, 2}), 0);
    EXPECT_LT(leftMebibytes(AllOnes, {AllOnes, 1, 0}), 0);
    EXPECT_EQ(leftMebibytes(AllOnes, {AllOnes >> 11, 0, 0}), 0);
}

TEST(RebuildUserAreas, PacksDisk1AndDisk3WhenDisk2IsEmpty) {
    AreaInfoTable table = neverPartitioned(2000000);
    rebuildUserAreas(table, {{500, 0, 100}, {true, false, false}});
    EXPECT_EQ(
        table.entry(0),
        (AreaInfoEntry{.type = 0x40, .flags = 0x81, .firstSector = 0, .sectorCount = 1024000}));
    EXPECT_EQ(
        table.entry(1),
        (AreaInfoEntry{.type = 0, .flags = 0x01, .firstSector = 1024000, .sectorCount = 204800}));
    EXPECT_EQ(table.bytes()[1], 50);
    EXPECT_EQ(table.bytes()[3], 2);
    EXPECT_EQ(table.totalSectorCount(), 2000000u);
}

TEST(RebuildUserAreas, WritesTheBytesOfAnEntry) {
    AreaInfoTable table = neverPartitioned(2000000);
    rebuildUserAreas(table, {{500, 0, 100}, {false, false, true}});
    const std::array<std::uint8_t, 40> expected{
        0x00, 0x01, 0, 0, 0, 0, 0, 0, 0, 0x00, 0x00, 0x00, 0, 0, 0, 0, 0, 0x0F, 0xA0, 0x00,
        0x40, 0x81, 0, 0, 0, 0, 0, 0, 0, 0x0F, 0xA0, 0x00, 0, 0, 0, 0, 0, 0x03, 0x20, 0x00};
    EXPECT_TRUE(std::ranges::equal(table.bytes().subspan(12, 40), expected));
}

TEST(RebuildUserAreas, LeavesHeaderBytesThatNobodySetsAsTheDriveSentThem) {
    AreaInfoTable table = neverPartitioned(2000000);
    table.bytes()[0] = 0x01;
    table.bytes()[2] = 0xEE;
    rebuildUserAreas(table, {{1, 1, 1}, {}});
    EXPECT_EQ(table.bytes()[0], 0x01);
    EXPECT_EQ(table.bytes()[1], 70);
    EXPECT_EQ(table.bytes()[2], 0xEE);
    EXPECT_EQ(table.bytes()[3], 3);
}

TEST(RebuildUserAreas, IsTheSameHoweverOftenItIsRepeated) {
    AreaInfoTable once = neverPartitioned(2000000);
    rebuildUserAreas(once, {{100, 200, 0}, {false, true, false}});
    AreaInfoTable twice = once;
    rebuildUserAreas(twice, {{100, 200, 0}, {false, true, false}});
    EXPECT_TRUE(std::ranges::equal(once.bytes(), twice.bytes()));
}

TEST(RebuildUserAreas, AnEarlierLongerLayoutLeavesNoAreaBehind) {
    AreaInfoTable table = neverPartitioned(2000000);
    rebuildUserAreas(table, {{100, 200, 300}, {true, false, false}});
    rebuildUserAreas(table, {{50, 0, 0}, {}});
    EXPECT_EQ(table.entryCount(), 1u);
    EXPECT_EQ(storedEntries(table).size(), 20u);
    const AreaView view = buildAreaView(table, 1959040);
    EXPECT_FALSE(view.hasSecureArea);
    EXPECT_EQ(view.freeSectors, 1959040u - 50 * 2048);
}

TEST(RebuildUserAreas, ASecureBoxOfAnEmptyDiskDoesNothing) {
    AreaInfoTable table = neverPartitioned(2000000);
    rebuildUserAreas(table, {{100, 0, 0}, {false, true, false}});
    EXPECT_EQ(table.entryCount(), 1u);
    EXPECT_FALSE(buildAreaView(table, 1959040).hasSecureArea);
}

TEST(AppendToolArea, FollowsTwoNormalAreas) {
    AreaInfoTable table = neverPartitioned(2000000);
    rebuildUserAreas(table, {{500, 0, 100}, {}});
    EXPECT_EQ(appendToolArea(table), 3);
    EXPECT_EQ(storedEntries(table).size(), 60u);
    EXPECT_EQ(table.entry(0).flags, 0x41);
    EXPECT_EQ(table.entry(1).flags, 0x41);
    EXPECT_EQ(
        table.entry(2),
        (AreaInfoEntry{.type = 0, .flags = 0x41, .firstSector = 1228800, .sectorCount = 40960}));
    EXPECT_EQ(table.bytes()[3], 3);
}

TEST(AppendToolArea, LeavesTheLengthFieldSoThatTheScreenShowsTheUsersAreas) {
    AreaInfoTable table = neverPartitioned(2000000);
    rebuildUserAreas(table, {{500, 0, 100}, {}});
    ASSERT_TRUE(appendToolArea(table).has_value());
    EXPECT_EQ(table.bytes()[1], 50);
    EXPECT_EQ(buildAreaView(table, 1959040).rows.areaCount, 2);
}

TEST(AppendToolArea, MarksASecureAreaToo) {
    AreaInfoTable table = neverPartitioned(2000000);
    rebuildUserAreas(table, {{500, 100, 0}, {false, true, false}});
    EXPECT_EQ(appendToolArea(table), 3);
    EXPECT_EQ(table.entry(1).flags, 0xC1);
    EXPECT_EQ(table.entry(1).type, 0x40);
}

TEST(AppendToolArea, ARetryAppendsAnotherOneBehindTheFirst) {
    AreaInfoTable table = neverPartitioned(2000000);
    rebuildUserAreas(table, {{500, 0, 0}, {}});
    EXPECT_EQ(appendToolArea(table), 2);
    EXPECT_EQ(appendToolArea(table), 3);
    EXPECT_EQ(table.entry(1), normalArea(1024000, 40960));
    EXPECT_EQ(table.entry(2), normalArea(1024000 + 40960, 40960));
    EXPECT_EQ(storedEntries(table).size(), 60u);
}

TEST(AppendToolArea, RefusesAFullBufferAndLeavesItUnchanged) {
    AreaInfoTable table = neverPartitioned(2000000);
    rebuildUserAreas(table, {{500, 1, 1}, {}});
    for (int number = 4; number <= 12; ++number) {
        ASSERT_EQ(appendToolArea(table), number);
    }
    const AreaInfoTable full = table;
    EXPECT_EQ(appendToolArea(table), std::nullopt);
    EXPECT_TRUE(std::ranges::equal(table.bytes(), full.bytes()));
    EXPECT_EQ(storedEntries(table).size(), 240u);
}

TEST(AppendToolArea, RefusesEveryStoredCountThatDoesNotFit) {
    for (unsigned count = 12; count <= 255; ++count) {
        AreaInfoTable table;
        table.setStoredCount(static_cast<std::uint8_t>(count));
        EXPECT_EQ(appendToolArea(table), std::nullopt) << count;
        EXPECT_EQ(storedEntries(table).size(), 240u) << count;
    }
}

TEST(AppendToolArea, AnEntryNotInUseIsNotMarked) {
    AreaInfoTable table = encodeAreaInfoTable(
        1000, std::array{AreaInfoEntry{.flags = 0x80, .firstSector = 0, .sectorCount = 10}});
    EXPECT_EQ(appendToolArea(table), 2);
    EXPECT_EQ(table.entry(0).flags, 0x80);
    EXPECT_EQ(table.entry(1).firstSector, 10u);
}

} // namespace
} // namespace zelto::test
