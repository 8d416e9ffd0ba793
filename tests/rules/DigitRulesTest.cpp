#include "settings/IntegerValue.h"
#include "settings/NumericCheck.h"
#include "tests/support/TextCases.h"

#include <gtest/gtest.h>

namespace zelto::test {
namespace {

TEST(NumericCheck, TheEmptyTextPasses) {
    EXPECT_TRUE(NumericCheck(u""));
    EXPECT_TRUE(NumericCheck(QStringView()));
    EXPECT_TRUE(NumericCheck(u"", HexDigits::Allowed));
}

TEST(NumericCheck, HexadecimalDigitsPassOnlyWhenAllowed) {
    EXPECT_FALSE(NumericCheck(u"12a"));
    EXPECT_TRUE(NumericCheck(u"12a", HexDigits::Allowed));
}

TEST(NumericCheck, ASignIsNoDigit) {
    EXPECT_FALSE(NumericCheck(u"-1"));
    EXPECT_FALSE(NumericCheck(u"+1"));
    EXPECT_FALSE(NumericCheck(u"-1", HexDigits::Allowed));
}

TEST(NumericCheck, ExactlyTheDigitsOfEitherSetPass) {
    const QStringView decimal = u"1234567890";
    const QStringView hexadecimal = u"1234567890ABCDEFabcdef";
    for (unsigned code = 0; code <= 0xFFFF; ++code) {
        const QChar unit(static_cast<char16_t>(code));
        const QStringView text(&unit, 1);
        EXPECT_EQ(NumericCheck(text), decimal.contains(unit)) << code;
        EXPECT_EQ(NumericCheck(text, HexDigits::Allowed), hexadecimal.contains(unit)) << code;
    }
}

TEST(NumericCheck, StrangeTextsFail) {
    for (const QString& text : strangeTexts()) {
        EXPECT_FALSE(NumericCheck(text)) << text.left(20).toStdString();
    }
}

TEST(NumericCheck, ALongNumberPassesAndOneWrongCharacterAtItsEndFails) {
    const QString digits(100000, u'7');
    EXPECT_TRUE(NumericCheck(digits));
    EXPECT_FALSE(NumericCheck(digits + u'x'));
}

struct IntegerCase {
    int line;
    const char16_t* text;
    std::int32_t value32;
    std::int64_t value64;
};

constexpr IntegerCase IntegerCases[] = {
    {__LINE__, u"", 0, 0},
    {__LINE__, u"0", 0, 0},
    {__LINE__, u"000", 0, 0},
    {__LINE__, u"007", 7, 7},
    {__LINE__, u"42", 42, 42},
    {__LINE__, u"12a", 12, 12},
    {__LINE__, u"12 34", 12, 12},
    {__LINE__, u"a12", 0, 0},
    {__LINE__, u"-1", 0, 0},
    {__LINE__, u"+1", 0, 0},
    {__LINE__, u" 1", 0, 0},
    {__LINE__, u"1.9", 1, 1},
    {__LINE__, u"\u0661", 0, 0},
    {__LINE__, u"2147483646", 2147483646, 2147483646},
    {__LINE__, u"2147483647", 2147483647, 2147483647},
    {__LINE__, u"2147483648", 2147483647, 2147483648},
    {__LINE__, u"4294967296", 2147483647, 4294967296},
    {__LINE__, u"9223372036854775807", 2147483647, 9223372036854775807},
    {__LINE__, u"9223372036854775808", 2147483647, 9223372036854775807},
    {__LINE__, u"18446744073709551616", 2147483647, 9223372036854775807},
    {__LINE__, u"99999999999999999999999999999999999x", 2147483647, 9223372036854775807},
    {__LINE__, u"00000000000000000000000000000000000012", 12, 12},
};

TEST(IntegerValue, IsTheNumberThatTheLeadingDigitsMake) {
    for (const IntegerCase& row : IntegerCases) {
        EXPECT_EQ(integerValue32(row.text), row.value32) << "line " << row.line;
        EXPECT_EQ(integerValue64(row.text), row.value64) << "line " << row.line;
    }
}

TEST(IntegerValue, AHundredThousandDigitsAreTheLargestNumber) {
    const QString digits(100000, u'9');
    EXPECT_EQ(integerValue32(digits), 2147483647);
    EXPECT_EQ(integerValue64(digits), 9223372036854775807);
}

TEST(IntegerValue, StopsAtACharacterOfAnyScript) {
    EXPECT_EQ(integerValue32(QStringLiteral("7\U0001F511")), 7);
    EXPECT_EQ(integerValue32(QStringLiteral("7") + QChar(u'\0') + u'8'), 7);
}

} // namespace
} // namespace zelto::test
