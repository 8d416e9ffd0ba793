#include "digest/Wipe.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace zelto {
namespace {

TEST(Wipe, ZeroesASpanOfBytesAndNothingBesideIt) {
    std::array<std::uint8_t, 6> bytes{1, 2, 3, 4, 5, 6};
    wipe(std::span<std::uint8_t>(bytes).subspan(1, 4));
    EXPECT_EQ(bytes, (std::array<std::uint8_t, 6>{1, 0, 0, 0, 0, 6}));
}

TEST(Wipe, ZeroesEveryByteOfWiderElements) {
    std::u16string text = u"p\u00E4ssword";
    const std::size_t size = text.size();
    wipe(std::span<char16_t>(text));
    EXPECT_EQ(text, std::u16string(size, u'\0'));
}

TEST(Wipe, ZeroesTextsAndVectorsInPlace) {
    std::string text = "secret";
    std::vector<std::uint32_t> words{0xFFFFFFFF, 0x80000001};
    wipe(text);
    wipe(words);
    EXPECT_EQ(text, std::string(6, '\0'));
    EXPECT_EQ(words, (std::vector<std::uint32_t>{0, 0}));
}

TEST(Wipe, TakesAnEmptyRange) {
    std::string text;
    wipe(text);
    wipe(std::span<std::uint8_t>());
    EXPECT_TRUE(text.empty());
}

TEST(Wipe, ZeroesAWholeRecord) {
    struct Record {
        std::uint8_t kind = 7;
        std::array<std::uint8_t, 3> digest{1, 2, 3};
    } record;
    wipeObject(record);
    EXPECT_EQ(record.kind, 0);
    EXPECT_TRUE(std::ranges::all_of(record.digest, [](auto byte) { return byte == 0; }));
}

} // namespace
} // namespace zelto
