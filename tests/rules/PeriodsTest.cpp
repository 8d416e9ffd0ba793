#include "settings/Periods.h"
#include "tests/support/TextCases.h"

#include <gtest/gtest.h>

namespace zelto::test {
namespace {

AutoClearEntry days(const QString& text) {
    return {true, PeriodUnit::Days, text};
}

AutoClearEntry minutes(const QString& text) {
    return {true, PeriodUnit::Minutes, text};
}

AutoLogOffEntry logOff(const QString& text) {
    return {true, text};
}

TEST(PeriodUnit, EveryTagButZeroMeansMinutes) {
    EXPECT_EQ(periodUnitOfTag(0), PeriodUnit::Days);
    EXPECT_EQ(periodUnitOfTag(1), PeriodUnit::Minutes);
    EXPECT_EQ(periodUnitOfTag(2), PeriodUnit::Minutes);
    EXPECT_EQ(periodUnitOfTag(-1), PeriodUnit::Minutes);
}

struct ValidityCase {
    int line;
    const char16_t* text;
    bool asDays;
    bool asMinutes;
};

constexpr ValidityCase ValidityCases[] = {
    {__LINE__, u"", false, false},
    {__LINE__, u"0", false, false},
    {__LINE__, u"00", false, false},
    {__LINE__, u"1", true, true},
    {__LINE__, u"01", true, true},
    {__LINE__, u"999", true, true},
    {__LINE__, u"1000", true, false},
    {__LINE__, u"9999", true, false},
    {__LINE__, u"10000", false, false},
    {__LINE__, u"4294967297", false, false},
    {__LINE__, u"18446744073709551617", false, false},
    {__LINE__, u"-1", false, false},
    {__LINE__, u"1a", false, false},
    {__LINE__, u" 1", false, false},
};

TEST(AutoClearEntry, IsValidUpToTheLimitOfItsUnit) {
    for (const ValidityCase& row : ValidityCases) {
        const QString text = QString::fromUtf16(row.text);
        EXPECT_EQ(isValid(days(text)), row.asDays) << "line " << row.line;
        EXPECT_EQ(isValid(minutes(text)), row.asMinutes) << "line " << row.line;
        EXPECT_EQ(isValid(logOff(text)), row.asMinutes) << "line " << row.line;
    }
}

TEST(PeriodEntries, AreValidWithAnyTextWhenSwitchedOff) {
    for (const QString& text : strangeTexts()) {
        EXPECT_TRUE(isValid(AutoClearEntry{false, PeriodUnit::Days, text}));
        EXPECT_TRUE(isValid(AutoLogOffEntry{false, text}));
    }
}

TEST(PeriodEntries, StrangeTextsAreInvalidWhenSwitchedOn) {
    for (const QString& text : strangeTexts()) {
        EXPECT_FALSE(isValid(days(text))) << text.left(20).toStdString();
        EXPECT_FALSE(isValid(logOff(text))) << text.left(20).toStdString();
    }
    EXPECT_FALSE(isValid(days(QString(100000, u'1'))));
    EXPECT_TRUE(isValid(days(QString(100000, u'0') + u'7')));
}

TEST(AutoClearSeconds, TwoDaysAndThirtyMinutes) {
    EXPECT_EQ(autoClearSeconds(days(QStringLiteral("2"))), 172800u);
    EXPECT_EQ(autoClearSeconds(minutes(QStringLiteral("30"))), 1800u);
    EXPECT_EQ(autoClearSeconds(days(QStringLiteral("9999"))), 863913600u);
}

TEST(AutoClearSeconds, AreNoneWhenSwitchedOffWhateverTheTextSays) {
    EXPECT_EQ(autoClearSeconds({false, PeriodUnit::Days, QStringLiteral("2")}), 0u);
    EXPECT_EQ(autoLogOffSeconds({false, QStringLiteral("2")}), 0u);
}

TEST(AutoClearSeconds, AreCutToThirtyTwoBits) {
    EXPECT_EQ(autoClearSeconds(days(QStringLiteral("49711"))), 4295030400u % 4294967296u);
    EXPECT_EQ(autoClearSeconds(minutes(QStringLiteral("99999999999"))),
              (std::uint64_t{2147483647} * 60) % 4294967296u);
}

TEST(AutoLogOffSeconds, WrapAroundFrom1093MinutesOn) {
    EXPECT_EQ(autoLogOffSeconds(logOff(QStringLiteral("1"))), 60u);
    EXPECT_EQ(autoLogOffSeconds(logOff(QStringLiteral("1092"))), 65520u);
    EXPECT_EQ(autoLogOffSeconds(logOff(QStringLiteral("1093"))), 44u);
    EXPECT_EQ(autoLogOffSeconds(logOff(QStringLiteral("2147483647"))), 65476u);
}

struct ShownCase {
    int line;
    std::uint32_t seconds;
    bool enabled;
    PeriodUnit unit;
    const char* text;
};

constexpr ShownCase ShownCases[] = {
    {__LINE__, 0, false, PeriodUnit::Days, ""},
    {__LINE__, 1, true, PeriodUnit::Minutes, "0"},
    {__LINE__, 60, true, PeriodUnit::Minutes, "1"},
    {__LINE__, 119, true, PeriodUnit::Minutes, "1"},
    {__LINE__, 59940, true, PeriodUnit::Minutes, "999"},
    {__LINE__, 59941, true, PeriodUnit::Days, "0"},
    {__LINE__, 86399, true, PeriodUnit::Days, "0"},
    {__LINE__, 86400, true, PeriodUnit::Days, "1"},
    {__LINE__, 90000, true, PeriodUnit::Days, "1"},
    {__LINE__, 863913600, true, PeriodUnit::Days, "9999"},
    {__LINE__, 4294967295, true, PeriodUnit::Days, "49710"},
};

TEST(ShownAutoClear, CountsMinutesUpTo999AndDaysBeyond) {
    for (const ShownCase& row : ShownCases) {
        const AutoClearEntry shown = shownAutoClear(row.seconds);
        EXPECT_EQ(shown.enabled, row.enabled) << "line " << row.line;
        EXPECT_EQ(shown.unit, row.unit) << "line " << row.line;
        EXPECT_EQ(shown.text, QString::fromLatin1(row.text)) << "line " << row.line;
    }
}

TEST(ShownAutoLogOff, RoundsMinutesDown) {
    EXPECT_FALSE(shownAutoLogOff(0).enabled);
    EXPECT_EQ(shownAutoLogOff(0).text, QString());
    EXPECT_TRUE(shownAutoLogOff(1).enabled);
    EXPECT_EQ(shownAutoLogOff(1).text, QStringLiteral("0"));
    EXPECT_EQ(shownAutoLogOff(90).text, QStringLiteral("1"));
    EXPECT_EQ(shownAutoLogOff(65535).text, QStringLiteral("1092"));
}

TEST(ShownPeriods, GoBackToTheDriveAsTheyCame) {
    for (const std::uint32_t seconds : {0u, 60u, 59940u, 86400u, 172800u, 863913600u}) {
        EXPECT_EQ(autoClearSeconds(shownAutoClear(seconds)), seconds);
    }
    for (const std::uint16_t seconds :
         {std::uint16_t{0}, std::uint16_t{60}, std::uint16_t{59940}}) {
        EXPECT_EQ(autoLogOffSeconds(shownAutoLogOff(seconds)), seconds);
    }
}

} // namespace
} // namespace zelto::test
