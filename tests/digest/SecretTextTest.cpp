#include "digest/SecretText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>

namespace zelto::test {
namespace {

/// Whether `count` units behind the end of the text are zero; they are its own memory.
bool isWipedBehind(const SecretText& text, std::size_t count) {
    const char16_t* const end = text.view().data() + text.size();
    return std::all_of(end, end + count, [](char16_t unit) { return unit == 0; });
}

TEST(SecretText, IsEmptyAtFirst) {
    const SecretText text;
    EXPECT_TRUE(text.isEmpty());
    EXPECT_EQ(text.view(), u"");
}

TEST(SecretText, KeepsEveryCharacter) {
    const std::u16string withNul(u"a\0b", 3);
    EXPECT_EQ(SecretText(withNul).view(), withNul);
}

TEST(SecretText, TakesTextAnywhere) {
    SecretText text(u"ad");
    EXPECT_EQ(text.insert(1, u"bc"), 2U);
    EXPECT_EQ(text.insert(0, u">"), 1U);
    EXPECT_EQ(text.insert(100, u"<"), 1U);
    EXPECT_EQ(text.view(), u">abcd<");
}

TEST(SecretText, OverwritesWhatIsTakenOut) {
    SecretText text(u"secret");
    text.erase(2, 3);
    EXPECT_EQ(text.view(), u"set");
    EXPECT_TRUE(isWipedBehind(text, 3));
    text.erase(1, 100);
    EXPECT_EQ(text.view(), u"s");
    EXPECT_TRUE(isWipedBehind(text, 5));
    text.erase(5, 1);
    EXPECT_EQ(text.view(), u"s");
}

TEST(SecretText, OverwritesAllOfItWhenItIsClearedOrReplaced) {
    SecretText text(u"secret");
    text.assign(u"new");
    EXPECT_EQ(text.view(), u"new");
    EXPECT_TRUE(isWipedBehind(text, 3));
    text.clear();
    EXPECT_TRUE(text.isEmpty());
    EXPECT_TRUE(isWipedBehind(text, 6));
}

TEST(SecretText, IsNotMovedWhileItGrows) {
    SecretText text(u"s");
    const char16_t* const place = text.view().data();
    for (std::size_t size = 1; size < SecretText::Capacity; ++size) {
        EXPECT_EQ(text.insert(0, u"x"), 1U);
    }
    EXPECT_EQ(text.view().data(), place);
}

TEST(SecretText, LeavesOutWhatHasNoRoom) {
    SecretText text(std::u16string(SecretText::Capacity + 1, u'x'));
    EXPECT_EQ(text.size(), SecretText::Capacity);
    EXPECT_EQ(text.insert(0, u"y"), 0U);
    EXPECT_EQ(text.view().front(), u'x');
}

TEST(SecretText, ACopyIsNotSharedWithItsOriginal) {
    SecretText original(u"secret");
    const SecretText copy = original;
    original.clear();
    EXPECT_EQ(copy.view(), u"secret");
}

TEST(SecretText, ACopyReplacesWhatWasThere) {
    SecretText text(u"something longer");
    const SecretText other(u"secret");
    text = other;
    EXPECT_EQ(text, other);
    const SecretText& itself = text;
    text = itself;
    EXPECT_EQ(text.view(), u"secret");
}

TEST(SecretText, MovesWithItsMemory) {
    SecretText text(u"secret");
    const char16_t* const place = text.view().data();
    SecretText moved = std::move(text);
    EXPECT_EQ(moved.view().data(), place);
    SecretText assigned(u"before");
    assigned = std::move(moved);
    EXPECT_EQ(assigned.view(), u"secret");
    EXPECT_EQ(assigned.view().data(), place);
}

} // namespace
} // namespace zelto::test
