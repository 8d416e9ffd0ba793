#include "settings/PasswordRules.h"
#include "tests/support/TextCases.h"

#include <gtest/gtest.h>

namespace zelto::test {
namespace {

const QString LongestPassword(32, u'p');
const QString TooLongPassword(33, u'p');

TEST(ValidPassword, HasOneToThirtyTwoCharacters) {
    EXPECT_FALSE(isValidPassword(u""));
    EXPECT_FALSE(isValidPassword(QStringView()));
    EXPECT_TRUE(isValidPassword(u"a"));
    EXPECT_TRUE(isValidPassword(LongestPassword));
    EXPECT_FALSE(isValidPassword(TooLongPassword));
    EXPECT_FALSE(isValidPassword(QString(100000, u'p')));
}

TEST(ValidPassword, EveryCharacterTakesOneByte) {
    for (unsigned code = 0; code <= 0xFFFF; ++code) {
        const QChar unit(static_cast<char16_t>(code));
        EXPECT_EQ(isValidPassword(QStringView(&unit, 1)), code < 0x80) << code;
    }
}

TEST(ValidPassword, TextsOfOtherScriptsFail) {
    EXPECT_FALSE(isValidPassword(u"pass\u00E9"));
    EXPECT_FALSE(isValidPassword(QStringLiteral("\U0001F511")));
    EXPECT_FALSE(isValidPassword(u"\u05D0\u05D1"));
    EXPECT_FALSE(isValidPassword(u"\u202Eabc"));
}

TEST(ValidPassword, BlanksAndControlCharactersAreCharactersLikeOthers) {
    EXPECT_TRUE(isValidPassword(u" "));
    EXPECT_TRUE(isValidPassword(u" a "));
    EXPECT_TRUE(isValidPassword(QStringView(u"a\0b", 3)));
}

TEST(ValidPair, AbcTwiceIsValid) {
    EXPECT_TRUE(isValidPasswordPair(u"abc", u"abc"));
}

TEST(ValidPair, AbcAndAbdAreNot) {
    EXPECT_FALSE(isValidPasswordPair(u"abc", u"abd"));
}

TEST(ValidPair, DifferencesInLengthCaseOrBlanksCount) {
    EXPECT_FALSE(isValidPasswordPair(u"abc", u"abcd"));
    EXPECT_FALSE(isValidPasswordPair(u"abc", u""));
    EXPECT_FALSE(isValidPasswordPair(u"abc", u"ABC"));
    EXPECT_FALSE(isValidPasswordPair(u"abc", u"abc "));
    EXPECT_FALSE(isValidPasswordPair(QStringView(u"a\0b", 3), QStringView(u"a\0c", 3)));
}

TEST(ValidPair, AnInvalidPasswordIsNoPairEvenWhenRepeated) {
    EXPECT_FALSE(isValidPasswordPair(u"", u""));
    EXPECT_FALSE(isValidPasswordPair(TooLongPassword, TooLongPassword));
    EXPECT_FALSE(isValidPasswordPair(u"\u00E9", u"\u00E9"));
    EXPECT_FALSE(isValidPasswordPair(u"e\u0301", u"\u00E9"));
}

struct TrialCase {
    int line;
    const char16_t* text;
    std::int32_t count;
    bool valid;
};

constexpr TrialCase TrialCases[] = {
    {__LINE__, u"", 0, false},
    {__LINE__, u"0", 0, false},
    {__LINE__, u"1", 1, true},
    {__LINE__, u"01", 1, true},
    {__LINE__, u"99", 99, true},
    {__LINE__, u"100", 100, false},
    {__LINE__, u"257", 257, false},
    {__LINE__, u"1a", 0, false},
    {__LINE__, u"a", 0, false},
    {__LINE__, u"-1", 0, false},
    {__LINE__, u" 1", 0, false},
    {__LINE__, u"4294967297", 2147483647, false},
    {__LINE__, u"18446744073709551617", 2147483647, false},
    {__LINE__, u"\u0661", 0, false},
};

TEST(TrialCount, IsOneToNinetyNineInPlainDigits) {
    for (const TrialCase& row : TrialCases) {
        EXPECT_EQ(trialCount(row.text), row.count) << "line " << row.line;
        EXPECT_EQ(isValidTrialCount(row.text), row.valid) << "line " << row.line;
    }
}

TEST(TrialCount, StrangeTextsCountAsNone) {
    for (const QString& text : strangeTexts()) {
        EXPECT_EQ(trialCount(text), 0) << text.left(20).toStdString();
        EXPECT_FALSE(isValidTrialCount(text));
    }
    EXPECT_FALSE(isValidTrialCount(QString(100000, u'1')));
}

PasswordSettingsEntries twoPasswords() {
    return {.firstAndSecond = true,
            .first = {u"first", u"first"},
            .second = {u"second", u"second"},
            .trials = u"5"};
}

TEST(PasswordSettings, OneValidPairIsEnoughForOnePassword) {
    EXPECT_TRUE(passwordSettingsAreComplete({.first = {u"abc", u"abc"}}));
    EXPECT_FALSE(passwordSettingsAreComplete({.first = {u"abc", u"abd"}}));
    EXPECT_FALSE(passwordSettingsAreComplete({.first = {TooLongPassword, TooLongPassword}}));
    EXPECT_FALSE(passwordSettingsAreComplete({.first = {u"\u00E9", u"\u00E9"}}));
}

TEST(PasswordSettings, WithOnePasswordTheSecondPairAndTheTrialsAreIgnored) {
    PasswordSettingsEntries entries = twoPasswords();
    entries.firstAndSecond = false;
    entries.second = {u"x", u"y"};
    entries.trials = u"1a";
    EXPECT_TRUE(passwordSettingsAreComplete(entries));
}

TEST(PasswordSettings, WithTwoPasswordsBothPairsAndTheTrialsCount) {
    EXPECT_TRUE(passwordSettingsAreComplete(twoPasswords()));
    PasswordSettingsEntries entries = twoPasswords();
    entries.first.again = u"other";
    EXPECT_FALSE(passwordSettingsAreComplete(entries));
    entries = twoPasswords();
    entries.second.again = u"other";
    EXPECT_FALSE(passwordSettingsAreComplete(entries));
    for (const QStringView trials : {u"", u"0", u"100", u"1a"}) {
        entries = twoPasswords();
        entries.trials = trials;
        EXPECT_FALSE(passwordSettingsAreComplete(entries)) << trials.toString().toStdString();
    }
    entries = twoPasswords();
    entries.trials = u"99";
    EXPECT_TRUE(passwordSettingsAreComplete(entries));
}

TEST(PasswordSettings, BothPasswordsMayBeTheSame) {
    PasswordSettingsEntries entries = twoPasswords();
    entries.second = entries.first;
    EXPECT_TRUE(passwordSettingsAreComplete(entries));
}

TEST(PasswordChange, AsksForTheCurrentPasswordOnce) {
    const PasswordSettingsEntries one{.first = {u"new", u"new"}};
    EXPECT_TRUE(passwordChangeIsComplete({u"old", u"", one}));
    EXPECT_FALSE(passwordChangeIsComplete({u"", u"", one}));
    EXPECT_FALSE(passwordChangeIsComplete({TooLongPassword, u"", one}));
    EXPECT_FALSE(passwordChangeIsComplete({u"\u00E9", u"", one}));
}

TEST(PasswordChange, WithOnePasswordTheSecondFieldsAndTheTrialsAreIgnored) {
    PasswordSettingsEntries renewed = twoPasswords();
    renewed.firstAndSecond = false;
    renewed.second = {u"x", u"y"};
    renewed.trials = u"1a";
    EXPECT_TRUE(passwordChangeIsComplete({u"old", TooLongPassword, renewed}));
}

TEST(PasswordChange, WithTwoPasswordsTheCurrentSecondIsNeededToo) {
    EXPECT_TRUE(passwordChangeIsComplete({u"old", u"old2", twoPasswords()}));
    EXPECT_FALSE(passwordChangeIsComplete({u"old", u"", twoPasswords()}));
    EXPECT_FALSE(passwordChangeIsComplete({u"", u"old2", twoPasswords()}));
    PasswordSettingsEntries renewed = twoPasswords();
    renewed.trials = u"0";
    EXPECT_FALSE(passwordChangeIsComplete({u"old", u"old2", renewed}));
}

TEST(PasswordChange, TheNewPasswordsMayEqualTheCurrentOnes) {
    EXPECT_TRUE(passwordChangeIsComplete({u"first", u"second", twoPasswords()}));
}

} // namespace
} // namespace zelto::test
