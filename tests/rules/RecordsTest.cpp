#include "device/AreaInfo.h"
#include "device/DeviceStatus.h"
#include "device/PasswordRecords.h"
#include "device/Record.h"
#include "device/TimeStatus.h"

#include "tests/support/Bytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace zelto::test {
namespace {

using record::covers;
using record::Field;

// --- Tables ------------------------------------------------------------------------------------

static_assert(covers(std::array{Field{0, 2}, Field{2, 1}, Field{3, 5}}, 8));
static_assert(!covers(std::array{Field{0, 2}, Field{3, 5}}, 8), "a gap");
static_assert(!covers(std::array{Field{0, 2}, Field{1, 7}}, 8), "an overlap");
static_assert(!covers(std::array{Field{1, 7}}, 8), "a gap at the start");
static_assert(!covers(std::array{Field{0, 7}}, 8), "a gap at the end");
static_assert(!covers(std::array{Field{0, 9}}, 8), "a field beyond the end");
static_assert(!covers(std::array{Field{2, 6}, Field{0, 2}}, 8), "fields out of order");
static_assert(!covers(std::array{Field{0, 0}, Field{0, 8}}, 8), "a field of no width");

TEST(Record, IntegersAreBigEndian) {
    std::array<std::uint8_t, 8> bytes{};
    record::put(bytes, Field{1, 4}, 0x11223344);
    EXPECT_EQ(toHex(bytes), "0011223344000000");
    EXPECT_EQ(record::get<std::uint32_t>(bytes, Field{1, 4}), 0x11223344U);
}

TEST(Record, AnIntegerWiderThanItsFieldLosesItsHighBytes) {
    std::array<std::uint8_t, 4> bytes{};
    record::put(bytes, Field{1, 2}, 0xAABBCCDD);
    EXPECT_EQ(toHex(bytes), "00ccdd00");
}

TEST(Record, EightBytesAreTheWidestInteger) {
    std::array<std::uint8_t, 8> bytes{};
    record::put(bytes, Field{0, 8}, 0xFEDCBA9876543210);
    EXPECT_EQ(toHex(bytes), "fedcba9876543210");
    EXPECT_EQ(record::get(bytes, Field{0, 8}), 0xFEDCBA9876543210U);
}

PasswordDigest digestOf(std::uint8_t byte) {
    PasswordDigest digest;
    digest.fill(byte);
    return digest;
}

// 32 bytes of one value, for typing digests.
const std::string A32 = "a1a1a1a1a1a1a1a1a1a1a1a1a1a1a1a1a1a1a1a1a1a1a1a1a1a1a1a1a1a1a1a1";
const std::string B32 = "b2b2b2b2b2b2b2b2b2b2b2b2b2b2b2b2b2b2b2b2b2b2b2b2b2b2b2b2b2b2b2b2";
const std::string C32 = "c3c3c3c3c3c3c3c3c3c3c3c3c3c3c3c3c3c3c3c3c3c3c3c3c3c3c3c3c3c3c3c3";
const std::string Zero32 = "0000000000000000000000000000000000000000000000000000000000000000";

// --- DeviceStatus ------------------------------------------------------------------------------

TEST(DeviceStatus, ReadsItsFieldsAmongBytesThatAreNotInterpreted) {
    const auto status = decodeDeviceStatus(arrayFromHex<36>("f0f1f2f3f4f5f6 80 f8f9fafbfc 05 74 40"
                                                            "e0e1e2e3e4e5e6e7e8e9eaebecedeeefd0"
                                                            "c4 d2d3"));
    EXPECT_EQ(status.readiness, 0x80);
    EXPECT_EQ(status.sense, (Sense{.key = 5, .additionalCode = 0x74, .qualifier = 0x40}));
    EXPECT_EQ(status.security, 0xC4);
    EXPECT_EQ(status.state(), SecurityState::StateUnlocking);
    EXPECT_TRUE(status.usesSecondPassword());
    EXPECT_TRUE(status.hasAutomaticKey());
}

TEST(DeviceStatus, WritesZeroWhereNothingIsNamed) {
    const DeviceStatus status{.readiness = 0xFF,
                              .sense = {.key = 2, .additionalCode = 0x3A, .qualifier = 0x01},
                              .security = 0x43};
    EXPECT_EQ(toHex(encodeDeviceStatus(status)), "00000000000000ff0000000000023a01"
                                                 "00000000000000000000000000000000"
                                                 "00430000");
}

TEST(DeviceStatus, TheStateIsTheLowThreeBitsOfTheSecurityByte) {
    for (unsigned security = 0; security < 256; ++security) {
        const DeviceStatus status{.security = static_cast<std::uint8_t>(security)};
        EXPECT_EQ(static_cast<unsigned>(status.state()), security % 8);
        EXPECT_EQ(status.usesSecondPassword(), (security & 64) != 0);
        EXPECT_EQ(status.hasAutomaticKey(), (security & 128) != 0);
    }
}

TEST(DeviceStatus, OnlyTwoReadinessCodesMeanReady) {
    for (unsigned code = 0; code < 256; ++code) {
        const DeviceStatus status{.readiness = static_cast<std::uint8_t>(code)};
        EXPECT_EQ(status.isReady(), code == 128 || code == 255) << code;
    }
}

TEST(Sense, TellsARefusedPassword) {
    EXPECT_TRUE(saysAuthenticationFailed({5, 0x74, 0x40}));
    EXPECT_TRUE(saysAuthenticationFailed({2, 0x74, 0x40}));
    EXPECT_FALSE(saysAuthenticationFailed({3, 0x74, 0x40}));
    EXPECT_FALSE(saysAuthenticationFailed({5, 0x74, 0x00}));
    EXPECT_FALSE(saysAuthenticationFailed({5, 0x24, 0x40}));
}

TEST(Sense, TellsARefusalForTheSecurityStateWithAnyKey) {
    EXPECT_TRUE(saysSecurityStateForbids({0, 0x74, 0x00}));
    EXPECT_TRUE(saysSecurityStateForbids({5, 0x74, 0x00}));
    EXPECT_TRUE(saysSecurityStateForbids({15, 0x74, 0x00}));
    EXPECT_FALSE(saysSecurityStateForbids({5, 0x74, 0x40}));
    EXPECT_FALSE(saysSecurityStateForbids({5, 0x24, 0x00}));
}

// --- TimeStatus --------------------------------------------------------------------------------

TEST(TimeStatus, ReadsItsFieldsAmongBytesThatAreNotInterpreted) {
    const auto status = decodeTimeStatus(arrayFromHex<28>("80 f1 07e8 02 1d 17 3b 3a"
                                                          "e0e1e2e3e4e5e6e7e8"
                                                          "00015180 00278d00 0258"));
    EXPECT_FALSE(status.clockNotValid);
    EXPECT_TRUE(status.autoClearExpired);
    EXPECT_EQ(
        status.clock,
        (CurrentTime{.year = 2024, .month = 2, .day = 29, .hour = 23, .minute = 59, .second = 58}));
    EXPECT_EQ(status.autoClearElapsed, 86400U);
    EXPECT_EQ(status.autoClearPeriod, 2592000U);
    EXPECT_EQ(status.idleLockPeriod, 600);
}

TEST(TimeStatus, BitSixMeansThatTheClockIsNotToBeShown) {
    auto bytes = std::array<std::uint8_t, 28>{};
    bytes[0] = 0x40;
    EXPECT_TRUE(decodeTimeStatus(bytes).clockNotValid);
    EXPECT_FALSE(decodeTimeStatus(bytes).autoClearExpired);
    bytes[0] = 0x3F;
    EXPECT_FALSE(decodeTimeStatus(bytes).clockNotValid);
    EXPECT_FALSE(decodeTimeStatus(bytes).autoClearExpired);
}

TEST(TimeStatus, KeepsADateThatDoesNotExistAsItCame) {
    const auto status = decodeTimeStatus(arrayFromHex<28>("00 00 ffff ff ff ff ff ff"
                                                          "ffffffffffffffffff"
                                                          "ffffffff ffffffff ffff"));
    EXPECT_EQ(status.clock, (CurrentTime{65535, 255, 255, 255, 255, 255}));
    EXPECT_EQ(status.autoClearElapsed, 0xFFFFFFFFU);
    EXPECT_EQ(status.autoClearPeriod, 0xFFFFFFFFU);
    EXPECT_EQ(status.idleLockPeriod, 0xFFFF);
}

TEST(TimeStatus, WritesZeroWhereNothingIsNamed) {
    const TimeStatus status{.clockNotValid = true,
                            .autoClearExpired = true,
                            .clock = {1999, 12, 31, 1, 2, 3},
                            .autoClearElapsed = 0x11223344,
                            .autoClearPeriod = 0x55667788,
                            .idleLockPeriod = 0x99AA};
    EXPECT_EQ(toHex(encodeTimeStatus(status)), "c000"
                                               "07cf0c1f010203"
                                               "000000000000000000"
                                               "11223344"
                                               "55667788"
                                               "99aa");
}

TEST(CurrentTime, IsSevenBytesWithTheYearInFront) {
    const CurrentTime time{2024, 2, 29, 23, 59, 58};
    EXPECT_EQ(toHex(encodeCurrentTime(time)), "07e8021d173b3a");
    EXPECT_EQ(decodeCurrentTime(arrayFromHex<7>("07e8021d173b3a")), time);
}

// --- AreaInfoTable -----------------------------------------------------------------------------

AreaInfoTable tableOf(std::string_view hex) {
    AreaInfoTable table;
    std::ranges::copy(fromHex(hex), table.bytes().begin());
    return table;
}

/// Three areas and the header before them: 2048, 4096 and 8192 sectors, the second one secure.
constexpr std::string_view ThreeAreas = "0046 ee 03 0000000003a98000"
                                        "00 01 0000 0000000000000000 0000000000000800"
                                        "40 c1 0000 0000000000000800 0000000000001000"
                                        "00 41 0000 0000000000001800 0000000000002000";

TEST(AreaInfoEntry, IsTwentyBytes) {
    const AreaInfoEntry entry{.type = AreaInfoEntry::SecureArea,
                              .flags = AreaInfoEntry::InUse | AreaInfoEntry::SentBySetup |
                                       AreaInfoEntry::Secure,
                              .firstSector = 0x0102030405060708,
                              .sectorCount = 0x1112131415161718};
    EXPECT_EQ(toHex(encodeAreaInfoEntry(entry)), "40c1000001020304050607081112131415161718");
    EXPECT_EQ(decodeAreaInfoEntry(arrayFromHex<20>("40c1 ffff 0102030405060708 1112131415161718")),
              entry);
}

TEST(AreaInfoTable, ALengthOfSeventyHoldsThreeEntries) {
    const AreaInfoTable table = tableOf(ThreeAreas);
    EXPECT_EQ(table.claimedEntryCount(), 3);
    EXPECT_EQ(table.entryCount(), 3U);
    EXPECT_EQ(table.storedCount(), 3);
    EXPECT_EQ(table.totalSectorCount(), 61440000U);
    EXPECT_EQ(table.entry(0), (AreaInfoEntry{0x00, 0x01, 0, 2048}));
    EXPECT_EQ(table.entry(1), (AreaInfoEntry{0x40, 0xC1, 2048, 4096}));
    EXPECT_EQ(table.entry(2), (AreaInfoEntry{0x00, 0x41, 6144, 8192}));
    EXPECT_EQ(table.firstSecureDiskNumber(), 2U);
}

TEST(AreaInfoTable, ADriveWithoutASecureAreaHasNoDiskNumber) {
    auto table = tableOf(ThreeAreas);
    table.setEntry(1, {.type = 0x41});
    EXPECT_EQ(table.firstSecureDiskNumber(), 0U);
}

TEST(AreaInfoTable, AllOnesMarkADriveWhoseAreasWereNeverSet) {
    const AreaInfoTable table = tableOf("001e 00 01 0000000003a98000"
                                        "00 00 0000 0000000000000000 ffffffffffffffff");
    EXPECT_EQ(table.entryCount(), 1U);
    EXPECT_EQ(table.entry(0).sectorCount, AreaInfoEntry::AllSectors);
}

struct LyingLength {
    std::uint16_t length;
    std::uint16_t claimed;
    std::size_t entries;
};

TEST(AreaInfoTable, NoLengthReachesBeyondTheBuffer) {
    // Below 10 the unsigned 16-bit difference wraps around.
    constexpr std::array lengths{
        LyingLength{0, 3276, 12},      LyingLength{9, 3276, 12}, LyingLength{10, 0, 0},
        LyingLength{29, 0, 0},         LyingLength{30, 1, 1},    LyingLength{70, 3, 3},
        LyingLength{250, 12, 12},      LyingLength{270, 13, 12}, LyingLength{0x0100, 12, 12},
        LyingLength{0xFFFF, 3276, 12},
    };
    for (const LyingLength& lying : lengths) {
        AreaInfoTable table;
        table.bytes()[0] = static_cast<std::uint8_t>(lying.length >> 8);
        table.bytes()[1] = static_cast<std::uint8_t>(lying.length);
        EXPECT_EQ(table.claimedEntryCount(), lying.claimed) << lying.length;
        EXPECT_EQ(table.entryCount(), lying.entries) << lying.length;
        EXPECT_EQ(table.firstSecureDiskNumber(), 0U) << lying.length;
    }
}

TEST(AreaInfoTable, TheLastEntryThatFitsEndsFourBytesBeforeTheBuffer) {
    static_assert(AreaInfoTable::Capacity == 12);
    AreaInfoTable table;
    std::ranges::fill(table.bytes(), std::uint8_t{0xEE});
    table.setEntry(11, {});
    EXPECT_EQ(toHex(table.bytes().subspan(231)), "ee"
                                                 "0000000000000000000000000000000000000000"
                                                 "eeeeeeee");
}

TEST(AreaInfoTable, SettingCountAndLengthLeavesTheOtherHeaderBytes) {
    AreaInfoTable table = tableOf("1246 ee 03 0000000003a98000");
    table.setStoredCount(4);
    table.setLengthForCount(4);
    EXPECT_EQ(toHex(table.bytes().first<12>()), "125aee040000000003a98000");
}

TEST(AreaInfoTable, ADriveAnswersWithItsEntriesBehindTheHeader) {
    const std::vector<AreaInfoEntry> entries{{0x00, 0x01, 0, 2048}, {0x40, 0xC1, 2048, 4096}};
    const AreaInfoTable table = encodeAreaInfoTable(61440000, entries);
    EXPECT_EQ(toHex(table.bytes().first<52>()), "003200020000000003a98000"
                                                "0001000000000000000000000000000000000800"
                                                "40c1000000000000000008000000000000001000");
    EXPECT_TRUE(
        std::ranges::all_of(table.bytes().subspan(52), [](auto byte) { return byte == 0; }));
}

TEST(AreaInfoTable, ADriveAnswersWithNoMoreEntriesThanFit) {
    const std::vector<AreaInfoEntry> entries(40, AreaInfoEntry{.sectorCount = 1});
    const AreaInfoTable table = encodeAreaInfoTable(40, entries);
    EXPECT_EQ(table.entryCount(), 12U);
    EXPECT_EQ(table.storedCount(), 12);
}

// --- Password and encryption records -----------------------------------------------------------

TEST(AuthPayload, CarriesTheStepFlagAndTheDigest) {
    const AuthPayload first{.firstStep = true, .digest = digestOf(0xA1)};
    const AuthPayload second{.firstStep = false, .digest = digestOf(0xB2)};
    EXPECT_EQ(toHex(encodeAuthPayload(first)), "0100" + A32);
    EXPECT_EQ(toHex(encodeAuthPayload(second)), "0000" + B32);
}

TEST(AuthPayload, ReadsBackWhatWasSent) {
    const auto payload = decodeAuthPayload(arrayFromHex<34>("01 ff" + A32));
    EXPECT_TRUE(payload.firstStep);
    EXPECT_EQ(payload.digest, digestOf(0xA1));
    EXPECT_FALSE(decodeAuthPayload(arrayFromHex<34>("00 00" + A32)).firstStep);
}

std::string recordOf(const AuthInfo& info) {
    const auto bytes = encodeAuthInfo(info);
    return toHex(std::span(bytes).first(info.size()));
}

TEST(AuthInfo, OneNewPassword) {
    EXPECT_EQ(recordOf({.kind = AuthInfo::Set, .slot1 = digestOf(0xA1)}),
              "0200010000000000" + A32 + Zero32);
}

TEST(AuthInfo, TheSecondPasswordAsTheFirstOfTwoRecordsCarriesTheTrials) {
    EXPECT_EQ(recordOf({.kind = AuthInfo::Set, .numberOfTrials = 10, .slot1 = digestOf(0xB2)}),
              "020001000a000000" + B32 + Zero32);
}

TEST(AuthInfo, BothNewPasswords) {
    EXPECT_EQ(
        recordOf({.kind = AuthInfo::SetBoth, .slot1 = digestOf(0xA1), .slot2 = digestOf(0xB2)}),
        "0b00010000000000" + A32 + B32);
}

TEST(AuthInfo, AChangedPasswordIsFollowedByTheCurrentOne) {
    EXPECT_EQ(recordOf({.kind = AuthInfo::Change,
                        .numberOfTrials = 255,
                        .slot1 = digestOf(0xA1),
                        .slot2 = digestOf(0xC3)}),
              "06000100ff000000" + A32 + C32);
}

TEST(AuthInfo, AChangeOfBothPasswordsTakesTheLongForm) {
    EXPECT_EQ(recordOf({.kind = AuthInfo::ChangeBoth,
                        .slot1 = digestOf(0xA1),
                        .slot2 = digestOf(0xC3),
                        .slot3 = digestOf(0xB2)}),
              "0f00010000000000" + A32 + C32 + B32);
}

TEST(AuthInfo, TheShortFormsCarryNoThirdDigest) {
    const AuthInfo info{.kind = AuthInfo::Change,
                        .slot1 = digestOf(0xA1),
                        .slot2 = digestOf(0xC3),
                        .slot3 = digestOf(0xB2)};
    EXPECT_EQ(info.size(), 72U);
    EXPECT_EQ(toHex(encodeAuthInfo(info)), "0600010000000000" + A32 + C32 + Zero32);
}

TEST(EncryptionInfo, AnAutomaticKeyTravelsWithoutBytes) {
    EncryptionInfo info{.automaticKey = true};
    info.key.fill(0xA1);
    EXPECT_EQ(toHex(encodeEncryptionInfo(info)), "544b455203800000" + Zero32 + Zero32);
}

TEST(EncryptionInfo, AKeyEnteredByHandIsPaddedWithZeros) {
    EncryptionInfo info;
    info.key[0] = 0x01;
    info.key[1] = 0x23;
    info.key[2] = 0xEF;
    EXPECT_EQ(toHex(encodeEncryptionInfo(info)),
              "544b455203000000"
              "0123ef0000000000000000000000000000000000000000000000000000000000" +
                  Zero32);
}

TEST(EncryptionInfo, AKeyOfFullLengthEndsTheRecord) {
    EncryptionInfo info;
    std::fill_n(info.key.begin(), 32, std::uint8_t{0xA1});
    std::fill_n(info.key.begin() + 32, 32, std::uint8_t{0xB2});
    EXPECT_EQ(toHex(encodeEncryptionInfo(info)), "544b455203000000" + A32 + B32);
}

} // namespace
} // namespace zelto::test
