#include "settings/KeyDigits.h"
#include "tests/support/TextCases.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zelto::test {
namespace {

struct KeyCase {
    int line;
    const char16_t* text;
    bool valid;
};

constexpr KeyCase KeyCases[] = {
    {__LINE__, u"", false},    {__LINE__, u"0", false},   {__LINE__, u"0A", true},
    {__LINE__, u"0a", true},   {__LINE__, u"0G", false},  {__LINE__, u"0A1", false},
    {__LINE__, u"0A1B", true}, {__LINE__, u" 0A", false}, {__LINE__, u"0x0A", false},
};

TEST(KeyText, IsAnEvenNumberOfHexadecimalDigits) {
    for (const KeyCase& row : KeyCases) {
        EXPECT_EQ(isValidKeyText(row.text), row.valid) << "line " << row.line;
    }
}

TEST(KeyText, HasAtMost128Digits) {
    EXPECT_TRUE(isValidKeyText(QString(126, u'F')));
    EXPECT_FALSE(isValidKeyText(QString(127, u'F')));
    EXPECT_TRUE(isValidKeyText(QString(128, u'F')));
    EXPECT_FALSE(isValidKeyText(QString(129, u'F')));
    EXPECT_FALSE(isValidKeyText(QString(130, u'F')));
    EXPECT_FALSE(isValidKeyText(QString(100000, u'F')));
}

TEST(KeyText, StrangeTextsAreInvalid) {
    for (const QString& text : strangeTexts()) {
        EXPECT_FALSE(isValidKeyText(text)) << text.left(20).toStdString();
    }
}

TEST(KeyOfDigits, TakesTwoDigitsPerByteInTheOrderTyped) {
    const auto key = keyOfDigits(u"0A1B");
    EXPECT_EQ(key[0], 0x0A);
    EXPECT_EQ(key[1], 0x1B);
    EXPECT_TRUE(std::all_of(key.begin() + 2, key.end(), [](auto byte) { return byte == 0; }));
}

TEST(KeyOfDigits, TakesDigitsOfEitherCase) {
    EXPECT_EQ(keyOfDigits(u"abcdefABCDEF0123456789"), keyOfDigits(u"ABCDEFabcdef0123456789"));
    EXPECT_EQ(keyOfDigits(u"fF")[0], 0xFF);
    EXPECT_EQ(keyOfDigits(u"90")[0], 0x90);
}

TEST(KeyOfDigits, OneSixtyThreeAndSixtyFourBytes) {
    const auto nonZero = [](qsizetype bytes) {
        const auto key = keyOfDigits(QString(bytes * 2, u'1'));
        return std::ranges::count(key, 0x11);
    };
    EXPECT_EQ(nonZero(1), 1);
    EXPECT_EQ(nonZero(63), 63);
    EXPECT_EQ(nonZero(64), 64);
}

TEST(KeyOfDigits, LeavesOutWhatHasNoRoom) {
    EXPECT_EQ(keyOfDigits(QString(100000, u'1')), keyOfDigits(QString(128, u'1')));
}

TEST(KeyOfDigits, AnyTextIsSafe) {
    for (const QString& text : strangeTexts()) {
        static_cast<void>(keyOfDigits(text));
    }
    EXPECT_EQ(keyOfDigits(u"")[0], 0);
    EXPECT_EQ(keyOfDigits(u"A")[0], 0x0A);
    EXPECT_EQ(keyOfDigits(u"1G22")[0], 0x01);
    EXPECT_EQ(keyOfDigits(u"1G22")[1], 0x22);
    EXPECT_EQ(keyOfDigits(u"G1")[0], 0x00);
}

} // namespace
} // namespace zelto::test
