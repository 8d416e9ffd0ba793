#include "session/ForeignText.h"

#include "tests/support/QtPrinting.h"

#include <gtest/gtest.h>

namespace zelto::test {
namespace {

TEST(ForeignText, StaysWhatItIsInAnyScript) {
    EXPECT_EQ(foreignText("tail", 40), u"tail");
    EXPECT_EQ(foreignText("größe 大きさ", 40), u"größe 大きさ");
    EXPECT_EQ(foreignText("", 40), u"");
}

TEST(ForeignText, StaysWhatItIsWhereItLooksLikeMarkup) {
    EXPECT_EQ(foreignText("<h1>Virus found</h1> &amp;", 40), u"<h1>Virus found</h1> &amp;");
}

TEST(ForeignText, ShowsCharactersThatNobodySeesByTheirNumber) {
    EXPECT_EQ(foreignText("a\nb", 40), u"a[U+000A]b");
    EXPECT_EQ(foreignText("\x1b[2J", 40), u"[U+001B][2J");
    EXPECT_EQ(foreignText("exe\u202Egnp", 40), u"exe[U+202E]gnp");
    EXPECT_EQ(foreignText("a\u200Bb", 40), u"a[U+200B]b");
    EXPECT_EQ(foreignText("a\u2028b", 40), u"a[U+2028]b");
    EXPECT_EQ(foreignText("\U000E0041", 40), u"[U+E0041]");
}

TEST(ForeignText, ShowsWhatIsNotUtf8AsReplaced) {
    EXPECT_EQ(foreignText("a\xFF", 40), u"a\uFFFD");
}

TEST(ForeignText, IsCutWhereItIsTooLong) {
    EXPECT_EQ(foreignText("abcde", 5), u"abcde");
    EXPECT_EQ(foreignText("abcdef", 5), u"abcde\u2026");
    EXPECT_EQ(foreignText(std::string(1'000'000, 'a'), 5), u"aaaaa\u2026");
}

TEST(ForeignText, CountsACharacterOfSeveralBytesOnce) {
    EXPECT_EQ(foreignText("\U0001F511\U0001F511", 2), u"\U0001F511\U0001F511");
    EXPECT_EQ(foreignText("\U0001F511\U0001F511\U0001F511", 2), u"\U0001F511\U0001F511\u2026");
}

const QString Comma = QStringLiteral(", ");

TEST(ForeignNames, StandBesideEachOther) {
    EXPECT_EQ(foreignNames({}, Comma), u"");
    EXPECT_EQ(foreignNames({"tail"}, Comma), u"tail");
    EXPECT_EQ(foreignNames({"bash", "tail\n"}, Comma), u"bash, tail[U+000A]");
}

TEST(ForeignNames, AreCutWhereTheyAreTooMany) {
    EXPECT_EQ(foreignNames({"1", "2", "3", "4", "5", "6", "7", "8"}, Comma),
              u"1, 2, 3, 4, 5, 6, 7, 8");
    EXPECT_EQ(foreignNames({"1", "2", "3", "4", "5", "6", "7", "8", "9"}, Comma),
              u"1, 2, 3, 4, 5, 6, 7, 8, \u2026");
    EXPECT_EQ(foreignNames({std::string(41, 'a')}, Comma), QString(40, u'a') + QChar(u'\u2026'));
}

} // namespace
} // namespace zelto::test
