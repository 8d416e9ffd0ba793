#include "settings/OkButtonRules.h"

#include <gtest/gtest.h>

namespace zelto::test {
namespace {

const AutoClearEntry ValidClear{true, PeriodUnit::Days, QStringLiteral("9999")};
const AutoClearEntry InvalidClear{true, PeriodUnit::Minutes, QStringLiteral("1000")};
const AutoLogOffEntry ValidLogOff{true, QStringLiteral("999")};
const AutoLogOffEntry InvalidLogOff{true, QStringLiteral("1000")};

TEST(OkAtInitialization, NeedsTheAreasOnlyWhenThereIsNoSecureOne) {
    EXPECT_FALSE(canCommitAtInitialization({}));
    EXPECT_TRUE(canCommitAtInitialization({.changed = {.AreaSettingsPerformed = true}}));
}

TEST(OkAtInitialization, NeedsPasswordsForASecureArea) {
    MainSettingsEntries entries{.secureAreaExists = true,
                                .changed = {.AreaSettingsPerformed = true}};
    EXPECT_FALSE(canCommitAtInitialization(entries));
    entries.changed.ChangePassword = true;
    EXPECT_TRUE(canCommitAtInitialization(entries));
    entries.changed.AreaSettingsPerformed = false;
    EXPECT_FALSE(canCommitAtInitialization(entries));
}

TEST(OkAtInitialization, IsTheSameForEveryCombination) {
    for (unsigned bits = 0; bits < 64; ++bits) {
        const auto bit = [bits](unsigned number) { return (bits >> number & 1) != 0; };
        const MainSettingsEntries entries{
            .secureAreaExists = bit(0),
            .changed = {.ChangePassword = bit(1),
                        .AreaSettingsPerformed = bit(2),
                        .AutoClearSettingsChanged = bit(5)},
            .autoClear = bit(3) ? ValidClear : InvalidClear,
            .autoLogOff = bit(4) ? ValidLogOff : InvalidLogOff,
        };
        const bool expected = bit(2) && (!bit(0) || bit(1)) && bit(3) && bit(4);
        EXPECT_EQ(canCommitAtInitialization(entries), expected) << bits;
    }
}

struct PeriodCase {
    int line;
    PeriodUnit unit;
    const char* text;
    bool valid;
};

constexpr PeriodCase PeriodCases[] = {
    {__LINE__, PeriodUnit::Minutes, "1000", false}, {__LINE__, PeriodUnit::Minutes, "999", true},
    {__LINE__, PeriodUnit::Days, "9999", true},     {__LINE__, PeriodUnit::Days, "10000", false},
    {__LINE__, PeriodUnit::Days, "0", false},       {__LINE__, PeriodUnit::Days, "", false},
};

TEST(OkAtInitialization, JudgesTheAutoClearPeriodByItsUnit) {
    for (const PeriodCase& row : PeriodCases) {
        const MainSettingsEntries entries{
            .changed = {.AreaSettingsPerformed = true},
            .autoClear = {true, row.unit, QString::fromLatin1(row.text)}};
        EXPECT_EQ(canCommitAtInitialization(entries), row.valid) << "line " << row.line;
    }
}

TEST(OkAtChanging, IsDisabledWhileNothingIsTouched) {
    EXPECT_FALSE(canCommitAtChanging({}));
    EXPECT_FALSE(canCommitAtChanging({.secureAreaExists = true, .autoClear = ValidClear}));
}

TEST(OkAtChanging, TheRemainingTimeBoxAloneIsEnough) {
    EXPECT_TRUE(canCommitAtChanging({.changed = {.ChangeRemainingTimeSetting = true}}));
}

TEST(OkAtChanging, TheAreaSettingsAloneAreNot) {
    EXPECT_FALSE(canCommitAtChanging({.changed = {.AreaSettingsPerformed = true}}));
}

TEST(OkAtChanging, APeriodThatWasNotTouchedIsNotJudged) {
    MainSettingsEntries entries{.changed = {.ChangePassword = true},
                                .autoClear = InvalidClear,
                                .autoLogOff = InvalidLogOff};
    EXPECT_TRUE(canCommitAtChanging(entries));
    entries.changed.AutoClearSettingsChanged = true;
    EXPECT_FALSE(canCommitAtChanging(entries));
}

TEST(OkAtChanging, IsTheSameForEveryCombination) {
    for (unsigned bits = 0; bits < 64; ++bits) {
        const auto bit = [bits](unsigned number) { return (bits >> number & 1) != 0; };
        const MainSettingsEntries entries{
            .changed = {.ChangePassword = bit(0),
                        .AutoClearSettingsChanged = bit(1),
                        .AutoLogOffSettingsChanged = bit(2),
                        .ChangeRemainingTimeSetting = bit(3)},
            .autoClear = bit(4) ? ValidClear : InvalidClear,
            .autoLogOff = bit(5) ? ValidLogOff : InvalidLogOff,
        };
        const bool touched = bit(0) || bit(1) || bit(2) || bit(3);
        const bool refused = (bit(1) && !bit(4)) || (bit(2) && !bit(5));
        EXPECT_EQ(canCommitAtChanging(entries), touched && !refused) << bits;
    }
}

} // namespace
} // namespace zelto::test
