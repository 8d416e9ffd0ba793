#include "settings/AreaDialogRules.h"
#include "tests/support/TextCases.h"

#include <gtest/gtest.h>

#include <limits>

namespace zelto::test {
namespace {

/// 956 MiB beside the tool area.
constexpr std::uint64_t UsableSectors = 1959040;

AreaDialogVerdict judge(const QString& disk1, const QString& disk2, const QString& disk3,
                        std::uint64_t totalSectors = UsableSectors) {
    return judgeAreaDialog({disk1, disk2, disk3}, totalSectors);
}

QString text(const char* digits) {
    return QString::fromLatin1(digits);
}

TEST(AreaDialog, DisksThatFillTheDriveExactlyAreComplete) {
    const auto verdict = judge(text("900"), text("56"), text("0"));
    EXPECT_EQ(verdict.leftMebibytes, 0);
    EXPECT_TRUE(verdict.isComplete);
}

TEST(AreaDialog, OneMebibyteMoreIsTooMuch) {
    const auto verdict = judge(text("900"), text("57"), text("0"));
    EXPECT_LT(verdict.leftMebibytes, 0);
    EXPECT_FALSE(verdict.isComplete);
}

TEST(AreaDialog, AnEmptyTextCountsAsNone) {
    const auto verdict = judge(text("900"), text(""), text(""));
    EXPECT_EQ(verdict.leftMebibytes, 56);
    EXPECT_TRUE(verdict.isComplete);
}

TEST(AreaDialog, Disk1MustHaveASize) {
    EXPECT_FALSE(judge(text(""), text("1"), text("1")).isComplete);
    EXPECT_FALSE(judge(text("0"), text("1"), text("1")).isComplete);
    EXPECT_FALSE(judge(text("000"), text(""), text("")).isComplete);
}

TEST(AreaDialog, ATextThatIsNoNumberIsRefusedButItsDigitsAreKept) {
    const auto verdict = judge(text("500"), text("12a"), text("x7"));
    EXPECT_FALSE(verdict.isComplete);
    EXPECT_EQ(verdict.mebibytes, (std::array<std::uint64_t, 3>{500, 12, 0}));
    EXPECT_EQ(verdict.leftMebibytes, 956 - 512);
}

TEST(AreaDialog, StrangeTextsInAnyFieldAreRefused) {
    for (const QString& strange : strangeTexts()) {
        EXPECT_FALSE(judge(strange, text("1"), text("1")).isComplete);
        EXPECT_FALSE(judge(text("1"), strange, text("1")).isComplete);
        EXPECT_FALSE(judge(text("1"), text("1"), strange).isComplete);
    }
}

TEST(AreaDialog, NumbersBeyondSixtyFourBitsAreTooMuch) {
    const QString huge(100000, u'9');
    const auto verdict = judge(huge, huge, huge);
    EXPECT_LT(verdict.leftMebibytes, 0);
    EXPECT_FALSE(verdict.isComplete);
    EXPECT_FALSE(judge(text("1"), text("9223372036854775807"), text("9223372036854775807"),
                       std::numeric_limits<std::uint64_t>::max())
                     .isComplete);
}

TEST(AreaDialog, NothingFitsOnADriveWithoutRoom) {
    EXPECT_FALSE(judge(text("1"), text("0"), text("0"), 0).isComplete);
    EXPECT_EQ(judge(text("0"), text("0"), text("0"), 0).leftMebibytes, 0);
    EXPECT_FALSE(judge(text("1"), text("0"), text("0"), 2047).isComplete);
    EXPECT_TRUE(judge(text("1"), text("0"), text("0"), 2048).isComplete);
}

} // namespace
} // namespace zelto::test
