#include "device/DeviceReads.h"

#include "tests/support/Bytes.h"
#include "tests/support/ScriptedDevice.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace zelto::test {
namespace {

/// The one transfer that the device has seen.
std::vector<std::uint8_t> onlyPacket(const ScriptedDevice& device) {
    return device.transfers.size() == 1 ? device.transfers[0].setupPacket()
                                        : std::vector<std::uint8_t>{};
}

TEST(DeviceReads, TheStatusIsReadPlainOrWithReadiness) {
    ScriptedDevice plain;
    ScriptedDevice withReadiness;
    EXPECT_FALSE(readDeviceStatus(plain, StatusRequest::Plain).failed());
    EXPECT_FALSE(readDeviceStatus(withReadiness, StatusRequest::WithReadiness).failed());
    EXPECT_EQ(toHex(onlyPacket(plain)), "c0c0000000002400");
    EXPECT_EQ(toHex(onlyPacket(withReadiness)), "c0c0010000002400");
}

TEST(DeviceReads, AShortStatusIsZeroWhereNothingArrived) {
    ScriptedDevice device;
    device.script.push_back({.data = std::vector<std::uint8_t>(14, 0x05)});
    const auto read = readDeviceStatus(device, StatusRequest::Plain);
    EXPECT_EQ(read.record.sense, (Sense{5, 0, 0}));
    EXPECT_EQ(read.record.security, 0);
}

TEST(DeviceReads, AFailureKeepsItsResult) {
    ScriptedDevice device;
    device.script = {
        {.result = kIOReturnNoDevice}, {.result = kIOUSBPipeStalled}, {.result = kIOReturnTimeout}};
    EXPECT_EQ(readDeviceStatus(device, StatusRequest::Plain).result, kIOReturnNoDevice);
    EXPECT_EQ(readTimeStatus(device).result, kIOUSBPipeStalled);
    EXPECT_EQ(readAreaInfos(device).result, kIOReturnTimeout);
}

TEST(DeviceReads, TheAreaTableIsReadWhole) {
    ScriptedDevice device;
    device.script.push_back({.data = fromHex("001e0001 0000000003a98000")});
    const auto read = readAreaInfos(device);
    EXPECT_EQ(toHex(onlyPacket(device)), "c0c2000000000001");
    EXPECT_EQ(read.record.totalSectorCount(), 61440000U);
    EXPECT_EQ(read.record.entryCount(), 1U);
}

TEST(DeviceReads, TheRemainingTimeChoiceIsBitZeroOfItsHintByte) {
    ScriptedDevice device;
    device.script = {{.data = {0x01}}, {.data = {0xFE}}, {.data = {0xFF}}};
    EXPECT_TRUE(readShowRemainingTime(device));
    EXPECT_FALSE(readShowRemainingTime(device));
    EXPECT_TRUE(readShowRemainingTime(device));
    EXPECT_EQ(toHex(device.transfers[0].setupPacket()), "c0b60000ff0f0100");
}

TEST(DeviceReads, AChoiceThatCannotBeReadIsOff) {
    ScriptedDevice device;
    device.script.push_back({.result = kIOReturnIOError, .data = {0x01}});
    EXPECT_FALSE(readShowRemainingTime(device));
}

} // namespace
} // namespace zelto::test
