#include "settings/AreaTexts.h"
#include "settings/AreaPacking.h"

#include <gtest/gtest.h>

#include <limits>

namespace zelto::test {
namespace {

QString keyItself(const char* key) {
    return QString::fromLatin1(key);
}

QString cell(const _tagAreaInfosViewData& rows, QStringView column, int row) {
    return areaCellText(rows, column, row, keyItself);
}

_tagAreaInfosViewData rowsOf(std::uint16_t count, _tagAreaInfoViewData every) {
    _tagAreaInfosViewData rows{.areaCount = count};
    rows.areaData.fill(every);
    return rows;
}

constexpr std::uint64_t AllSectors = std::numeric_limits<std::uint64_t>::max();

TEST(AreaCellText, ADriveNeverPartitionedShowsOneRow) {
    const auto rows = rowsOf(1, {.type = 0, .capacity = AllSectors});
    EXPECT_EQ(cell(rows, u"ColumnIDDisk", 0), QStringLiteral("Disk1"));
    EXPECT_EQ(cell(rows, u"ColumnIDType", 0), QStringLiteral("IDS_FREE_AREA"));
    EXPECT_EQ(cell(rows, u"ColumnIDCapacity", 0), QStringLiteral("IDS_ALL_SECTORS"));
    EXPECT_EQ(cell(rows, u"ColumnIDDisk", 1), QString());
}

TEST(AreaCellText, NamesTheKindsOfAreas) {
    EXPECT_EQ(cell(rowsOf(1, {.type = 0x00, .capacity = 5}), u"ColumnIDType", 0),
              QStringLiteral("IDS_NORMAL_AREA"));
    EXPECT_EQ(cell(rowsOf(1, {.type = 0x40, .capacity = 5}), u"ColumnIDType", 0),
              QStringLiteral("IDS_SECURE_AREA"));
}

TEST(AreaCellText, AnotherTypeIsShownAsItsHexadecimalCode) {
    EXPECT_EQ(cell(rowsOf(1, {.type = 0x0C, .capacity = 5}), u"ColumnIDType", 0),
              QStringLiteral("0Ch"));
    EXPECT_EQ(cell(rowsOf(1, {.type = 0xFF, .capacity = 5}), u"ColumnIDType", 0),
              QStringLiteral("FFh"));
}

TEST(AreaCellText, AnAreaThatSpansAllIsFreeWhateverItsType) {
    EXPECT_EQ(cell(rowsOf(1, {.type = 0x40, .capacity = AllSectors}), u"ColumnIDType", 0),
              QStringLiteral("IDS_FREE_AREA"));
}

TEST(AreaCellText, RowsAreLabelledByPosition) {
    AreaInfoTable table;
    rebuildUserAreas(table, {{500, 0, 100}, {}});
    const auto rows = buildAreaView(table, 2000000).rows;
    EXPECT_EQ(cell(rows, u"ColumnIDDisk", 1), QStringLiteral("Disk2"));
    EXPECT_EQ(cell(rows, u"ColumnIDCapacity", 1), QStringLiteral("100MB"));
}

TEST(AreaCellText, CapacitiesOfAnySizeAreWholeMegabytes) {
    EXPECT_EQ(cell(rowsOf(1, {.capacity = 1}), u"ColumnIDCapacity", 0), QStringLiteral("1MB"));
    EXPECT_EQ(cell(rowsOf(1, {.capacity = AllSectors >> 11}), u"ColumnIDCapacity", 0),
              QStringLiteral("9007199254740991MB"));
}

TEST(AreaCellText, ARowOfCapacityZeroIsEmptyInEveryColumn) {
    const auto rows = rowsOf(4, {.type = 0x40, .capacity = 0});
    for (const QStringView column : {u"ColumnIDDisk", u"ColumnIDType", u"ColumnIDCapacity"}) {
        EXPECT_EQ(cell(rows, column, 0), QString());
    }
}

TEST(AreaCellText, ATableWithoutRowsIsEmpty) {
    EXPECT_EQ(cell(rowsOf(0, {.capacity = 5}), u"ColumnIDDisk", 0), QString());
}

TEST(AreaCellText, ARowThatIsNotThereIsEmpty) {
    const auto rows = rowsOf(65535, {.capacity = 5});
    EXPECT_EQ(cell(rows, u"ColumnIDDisk", -1), QString());
    EXPECT_EQ(cell(rows, u"ColumnIDDisk", 3), QStringLiteral("Disk4"));
    EXPECT_EQ(cell(rows, u"ColumnIDDisk", 4), QString());
    EXPECT_EQ(cell(rows, u"ColumnIDDisk", std::numeric_limits<int>::max()), QString());
}

TEST(AreaCellText, AnUnknownColumnIsEmpty) {
    const auto rows = rowsOf(1, {.capacity = 5});
    EXPECT_EQ(cell(rows, u"", 0), QString());
    EXPECT_EQ(cell(rows, u"columniddisk", 0), QString());
    EXPECT_EQ(cell(rows, u"ColumnIDDisk ", 0), QString());
}

} // namespace
} // namespace zelto::test
