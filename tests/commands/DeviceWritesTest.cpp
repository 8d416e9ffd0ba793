#include "device/DeviceWrites.h"

#include "tests/support/Bytes.h"
#include "tests/support/ScriptedDevice.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>

namespace zelto::test {
namespace {

using namespace std::chrono_literals;

/// 32 bytes of one value, as hexadecimal digits.
std::string digits(const char* byte) {
    std::string text;
    for (int index = 0; index < 32; ++index) {
        text += byte;
    }
    return text;
}

PasswordDigest digest(std::uint8_t byte) {
    PasswordDigest bytes{};
    bytes.fill(byte);
    return bytes;
}

std::string setup(const ScriptedDevice& device, std::size_t index) {
    return toHex(device.transfers.at(index).setupPacket());
}

std::string sent(const ScriptedDevice& device, std::size_t index) {
    return toHex(device.transfers.at(index).sent);
}

TEST(DeviceWrites, AStepOfALogInIsItsFlagAndADigest) {
    ScriptedDevice device;
    EXPECT_EQ(writeAuthPayload(device, {.firstStep = true, .digest = digest(0xA1)}),
              kIOReturnSuccess);
    EXPECT_EQ(writeAuthPayload(device, {.firstStep = false, .digest = digest(0xA1)}),
              kIOReturnSuccess);
    EXPECT_EQ(setup(device, 0), "40b3000000002200");
    EXPECT_EQ(sent(device, 0), "0100" + digits("a1"));
    EXPECT_EQ(sent(device, 1), "0000" + digits("a1"));
}

TEST(DeviceWrites, ADriveGetsItsOnlyPasswordInOneRecord) {
    ScriptedDevice device;
    EXPECT_EQ(writeFirstPassword(device, digest(0xA1)), kIOReturnSuccess);
    ASSERT_EQ(device.transfers.size(), 1U);
    EXPECT_EQ(setup(device, 0), "40b1020000004800");
    EXPECT_EQ(sent(device, 0), "0200010000000000" + digits("a1") + digits("00"));
}

TEST(DeviceWrites, TwoPasswordsTravelAsTheSecondThenBoth) {
    ScriptedDevice device;
    EXPECT_EQ(writeBothPasswords(device, digest(0xA1), digest(0xB2), 99), kIOReturnSuccess);
    ASSERT_EQ(device.transfers.size(), 2U);
    EXPECT_EQ(sent(device, 0), "0200010063000000" + digits("b2") + digits("00"));
    EXPECT_EQ(sent(device, 1), "0b00010000000000" + digits("a1") + digits("b2"));
}

TEST(DeviceWrites, ARefusedSecondPasswordIsFollowedByNothing) {
    ScriptedDevice device;
    device.script = {{.result = kIOUSBPipeStalled}};
    EXPECT_EQ(writeBothPasswords(device, digest(0xA1), digest(0xB2), 3), kIOUSBPipeStalled);
    EXPECT_EQ(device.transfers.size(), 1U);
}

TEST(DeviceWrites, AChangeIsMarkedInItsRecordAndItsRequest) {
    ScriptedDevice device;
    const AuthInfo change{.kind = AuthInfo::ChangeBoth,
                          .slot1 = digest(0xA1),
                          .slot2 = digest(0xC3),
                          .slot3 = digest(0xB2)};
    EXPECT_EQ(writeAuthInfo(device, change, AuthInfoUse::Change), kIOReturnSuccess);
    EXPECT_EQ(setup(device, 0), "40b1000000006800");
    EXPECT_EQ(sent(device, 0), "0f00010000000000" + digits("a1") + digits("c3") + digits("b2"));
}

TEST(DeviceWrites, AKeyOfTheDrivesOwnTravelsAsZeros) {
    ScriptedDevice device;
    EXPECT_EQ(writeEncryptionInfo(device, {.automaticKey = true}), kIOReturnSuccess);
    EXPECT_EQ(setup(device, 0), "40b0020000004800");
    EXPECT_EQ(sent(device, 0), "544b455203800000" + digits("00") + digits("00"));
}

TEST(DeviceWrites, AKeyEnteredByHandTravelsPadded) {
    ScriptedDevice device;
    EncryptionInfo info;
    info.key[0] = 0x12;
    info.key[63] = 0xEF;
    EXPECT_EQ(writeEncryptionInfo(device, info), kIOReturnSuccess);
    std::string key = digits("00") + digits("00");
    key.replace(0, 2, "12").replace(126, 2, "ef");
    EXPECT_EQ(sent(device, 0), "544b455203000000" + key);
}

TEST(DeviceWrites, AreasTravelWithoutTheirTablesHeader) {
    ScriptedDevice device;
    const auto entries = fromHex("80000000 0000000000000000 0000000000008000");
    EXPECT_EQ(writeAreaInfos(device, entries), kIOReturnSuccess);
    EXPECT_EQ(setup(device, 0), "40c4000000001400");
    EXPECT_EQ(sent(device, 0), "8000000000000000000000000000000000008000");
}

TEST(DeviceWrites, TheClockIsSetInUtc) {
    ScriptedDevice device;
    EXPECT_EQ(writeCurrentTime(device, std::chrono::sys_days(2025y / 12 / 31) + 23h + 59min + 58s),
              kIOReturnSuccess);
    EXPECT_EQ(setup(device, 0), "40bb000000000700");
    EXPECT_EQ(sent(device, 0), "07e90c1f173b3a");
}

TEST(DeviceWrites, AutoClearGoesBeforeTheIdleLock) {
    ScriptedDevice device;
    EXPECT_EQ(writePeriods(device, {.autoClearSeconds = 0x01020304, .idleLockSeconds = 0x0506}),
              kIOReturnSuccess);
    ASSERT_EQ(device.transfers.size(), 2U);
    EXPECT_EQ(setup(device, 0), "40bc040302010000");
    EXPECT_EQ(setup(device, 1), "40bd060500000000");
}

TEST(DeviceWrites, ARefusedAutoClearPeriodIsFollowedByNothing) {
    ScriptedDevice device;
    device.script = {{.result = kIOReturnTimeout}};
    EXPECT_EQ(writePeriods(device, {}), kIOReturnTimeout);
    EXPECT_EQ(device.transfers.size(), 1U);
}

TEST(DeviceWrites, TheRemainingTimeChoiceIsWrittenAsOneByte) {
    ScriptedDevice device;
    EXPECT_EQ(writeShowRemainingTime(device, true), kIOReturnSuccess);
    EXPECT_EQ(writeShowRemainingTime(device, false), kIOReturnSuccess);
    ASSERT_EQ(device.transfers.size(), 2U);
    EXPECT_EQ(setup(device, 0), "40b70100ff0f0100");
    EXPECT_EQ(sent(device, 0), "01");
    EXPECT_EQ(sent(device, 1), "00");
}

} // namespace
} // namespace zelto::test
