#include "digest/SHA256.h"

#include "tests/support/Bytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <new>
#include <string>
#include <string_view>
#include <vector>

namespace zelto::test {
namespace {

constexpr std::string_view EmptyDigest =
    "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855";
constexpr std::string_view AbcDigest =
    "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad";

void input(SHA256& digest, std::string_view text) {
    const std::vector<std::uint8_t> bytes(text.begin(), text.end());
    digest.Input(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
}

std::string get(SHA256& digest) {
    std::array<std::uint8_t, 32> out{};
    digest.Get(out.data());
    return toHex(out);
}

std::string digestOf(std::string_view text) {
    SHA256 digest;
    digest.Init();
    input(digest, text);
    return get(digest);
}

/// A message without repetition within a block: byte i is 7 i + 1.
std::string patternOf(std::size_t size) {
    std::string text;
    for (std::size_t index = 0; index < size; ++index) {
        text += static_cast<char>((index * 7 + 1) & 0xFF);
    }
    return text;
}

TEST(SHA256, DigestsTheEmptyMessage) {
    EXPECT_EQ(digestOf(""), EmptyDigest);
}

TEST(SHA256, DigestsTheEmptyMessageWithoutAnyInput) {
    SHA256 digest;
    digest.Init();
    EXPECT_EQ(get(digest), EmptyDigest);
}

TEST(SHA256, TakesANullPointerForNoBytes) {
    SHA256 digest;
    digest.Init();
    digest.Input(nullptr, 0);
    EXPECT_EQ(get(digest), EmptyDigest);
}

TEST(SHA256, DigestsTheStandardsShortMessage) {
    EXPECT_EQ(digestOf("abc"), AbcDigest);
}

TEST(SHA256, DigestsTheStandardsTwoBlockMessage) {
    EXPECT_EQ(digestOf("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
              "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
}

TEST(SHA256, DigestsTheStandardsMessageOf112Bytes) {
    EXPECT_EQ(digestOf("abcdefghbcdefghicdefghijdefghijkefghijklfghijklmghijklmnhijklmno"
                       "ijklmnopjklmnopqklmnopqrlmnopqrsmnopqrstnopqrstu"),
              "cf5b16a778af8380036ce59e7b0492370b249b11e8f07a51afac45037afee9d1");
}

TEST(SHA256, DigestsTheStandardsMessageOfAMillionBytes) {
    EXPECT_EQ(digestOf(std::string(1'000'000, 'a')),
              "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

struct Length {
    std::size_t bytes;
    std::string_view digest;
};

// Computed with another implementation over byte i = 7 i + 1.
constexpr std::array Lengths{
    Length{55, "16fa57a0a3423a715d594516339f36189d6b5f93754a9714fef202616a9fabfe"},
    Length{56, "c37b44e5f1b18554b36966f4f8e08bfbf3164c4b6c10374d12d89850892073c5"},
    Length{63, "bbba992d2c85af960fb2987a1fd05e0aa82a3db3c740dd8982a9e273b75e36a3"},
    Length{64, "66bd4633ed6f71c4ecfa4763bf7ba1c8ec7612de9aa6c0578a7b675207c71e0b"},
    Length{65, "9f7dc47107b750a1f3d35db5d9547f24ef40da5b731b9540d4f43710a154f6c9"},
    Length{119, "a3ed307b730fa77c07531300c6e4a282330011d4d4caf6bb7b63ae05950f4b66"},
    Length{120, "8e3b15d9fea7472655aa069620b7f8c2e55ee1499f763200a7515fe826e99d20"},
    Length{128, "e462c130fef8c97e34f7dc3ff3ad2f8b3533ab849af21c10531552a2852387a4"},
};

TEST(SHA256, PadsRightAroundTheEndOfABlock) {
    for (const Length& length : Lengths) {
        EXPECT_EQ(digestOf(patternOf(length.bytes)), length.digest) << length.bytes << " bytes";
    }
}

TEST(SHA256, TakesMoreThanABlockInOneCall) {
    EXPECT_EQ(digestOf(patternOf(128)), Lengths.back().digest);
}

TEST(SHA256, PiecesOfAnyLengthGiveTheDigestOfTheWhole) {
    const std::string message = patternOf(128);
    for (std::size_t piece = 1; piece <= message.size(); ++piece) {
        SHA256 digest;
        digest.Init();
        for (std::size_t at = 0; at < message.size(); at += piece) {
            input(digest, std::string_view(message).substr(at, piece));
        }
        EXPECT_EQ(get(digest), Lengths.back().digest) << "pieces of " << piece;
    }
}

TEST(SHA256, PiecesOfUnevenLengthsGiveTheDigestOfTheWhole) {
    const std::string message = patternOf(120);
    SHA256 digest;
    digest.Init();
    std::size_t at = 0;
    for (const std::size_t piece : {1U, 2U, 0U, 3U, 5U, 7U, 61U, 13U, 28U}) {
        input(digest, std::string_view(message).substr(at, piece));
        at += piece;
    }
    ASSERT_EQ(at, message.size());
    EXPECT_EQ(get(digest), Lengths[6].digest);
}

TEST(SHA256, GivesTheSameDigestTwice) {
    SHA256 digest;
    digest.Init();
    input(digest, "abc");
    EXPECT_EQ(get(digest), AbcDigest);
    EXPECT_EQ(get(digest), AbcDigest);
}

TEST(SHA256, FinishingTwiceDoesNotPadAgain) {
    SHA256 digest;
    digest.Init();
    input(digest, "abc");
    digest.Final();
    digest.Final();
    EXPECT_EQ(get(digest), AbcDigest);
}

TEST(SHA256, StartsAnotherMessageWithInit) {
    SHA256 digest;
    digest.Init();
    input(digest, patternOf(100));
    static_cast<void>(get(digest));
    digest.Init();
    input(digest, "abc");
    EXPECT_EQ(get(digest), AbcDigest);
}

TEST(SHA256, ForgetsAnUnfinishedMessageWithInit) {
    SHA256 digest;
    digest.Init();
    input(digest, "a message broken off");
    digest.Init();
    EXPECT_EQ(get(digest), EmptyDigest);
}

TEST(SHA256, LeavesNothingBehindWhenItGoes) {
    alignas(SHA256) std::array<unsigned char, sizeof(SHA256)> memory{};
    auto* const digest = new (memory.data()) SHA256;
    digest->Init();
    input(*digest, "password");
    ASSERT_EQ(get(*digest), "5e884898da28047151d0e56f8dc6292773603d0d6aabbdd62a11ef721d1542d8");
    input(*digest, "more");
    digest->~SHA256();
    const auto rest = std::ranges::count_if(memory, [](unsigned char byte) { return byte != 0; });
    EXPECT_EQ(rest, 0);
}

TEST(SHA256, DigestsAWholeMessageAtOnce) {
    const std::array<std::uint8_t, 3> abc{'a', 'b', 'c'};
    EXPECT_EQ(toHex(zelto::digestOf(abc)), AbcDigest);
    EXPECT_EQ(toHex(zelto::digestOf({})), EmptyDigest);
}

} // namespace
} // namespace zelto::test
