#include "digest/Wipe.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <new>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace zelto::test {
namespace {

struct Secret {
    std::uint8_t kind = 7;
    std::array<std::uint8_t, 3> digest{1, 2, 3};
};

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
    Secret record;
    wipeObject(record);
    EXPECT_EQ(record.kind, 0);
    EXPECT_TRUE(std::ranges::all_of(record.digest, [](auto byte) { return byte == 0; }));
}

TEST(Wipe, AWipedRecordIsZeroOnceItHasGone) {
    alignas(Wiped<Secret>) std::array<std::uint8_t, sizeof(Wiped<Secret>)> storage{};
    auto* const secret = new (storage.data()) Wiped<Secret>{{.kind = 9}};
    EXPECT_EQ((*secret)->kind, 9);
    EXPECT_EQ((*secret)->digest[2], 3);
    secret->~Wiped();
    EXPECT_EQ(storage, decltype(storage){});
}

TEST(Wipe, ARecordIsWipedWhenAnExceptionEndsItsScope) {
    alignas(Wiped<Secret>) std::array<std::uint8_t, sizeof(Wiped<Secret>)> storage{};
    const auto destroy = [](Wiped<Secret>* secret) { secret->~Wiped(); };
    try {
        const std::unique_ptr<Wiped<Secret>, decltype(destroy)> secret(
            new (storage.data()) Wiped<Secret>{}, destroy);
        throw std::runtime_error("refused");
    } catch (const std::runtime_error&) {
        EXPECT_EQ(storage, decltype(storage){});
    }
}

} // namespace
} // namespace zelto::test
