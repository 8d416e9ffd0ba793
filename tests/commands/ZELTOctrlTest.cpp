#include "device/ZELTOctrl.h"

#include "tests/support/Bytes.h"
#include "tests/support/ScriptedDevice.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <numeric>
#include <ostream>
#include <string>
#include <type_traits>
#include <vector>

namespace zelto::test {
namespace {

/// A buffer larger than any command's data; byte i is i.
std::array<std::uint8_t, 256> countingBuffer() {
    std::array<std::uint8_t, 256> buffer{};
    std::iota(buffer.begin(), buffer.end(), std::uint8_t{0});
    return buffer;
}

enum class DataStage { None, ToHost, ToDevice };

struct Row {
    int line;
    DataStage dataStage;
    const char* name;
    IOReturn (*send)(UsbDeviceInterface& device, std::uint8_t* buffer);
    /// bmRequestType, bRequest, wValue, wIndex, wLength; the last three little-endian.
    const char* setupPacket;
};

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.name << ", line " << row.line;
}

// clang-format off
const Row Commands[] = {
    {__LINE__, DataStage::ToHost, "GetDeviceStatus",
     [](UsbDeviceInterface& device, std::uint8_t* buffer) { return TKVR21_GetDeviceStatus(device, buffer, 36, 0); },
     "C0 C0 0000 0000 2400"},
    {__LINE__, DataStage::ToHost, "GetDeviceStatusForReadiness",
     [](UsbDeviceInterface& device, std::uint8_t* buffer) { return TKVR21_GetDeviceStatus(device, buffer, 36, 1); },
     "C0 C0 0100 0000 2400"},
    {__LINE__, DataStage::ToHost, "GetDeviceStatusWithAWideValue",
     [](UsbDeviceInterface& device, std::uint8_t* buffer) { return TKVR21_GetDeviceStatus(device, buffer, 255, 0x1234); },
     "C0 C0 3412 0000 FF00"},
    {__LINE__, DataStage::ToDevice, "Authenticate",
     [](UsbDeviceInterface& device, std::uint8_t* buffer) { return TKVR21_Authenticate(device, buffer, 0); },
     "40 B3 0000 0000 2200"},
    {__LINE__, DataStage::ToDevice, "AuthenticateWithAValue",
     [](UsbDeviceInterface& device, std::uint8_t* buffer) { return TKVR21_Authenticate(device, buffer, 0xFE); },
     "40 B3 FE00 0000 2200"},
    {__LINE__, DataStage::ToHost, "GetAreaInfos",
     [](UsbDeviceInterface& device, std::uint8_t* buffer) { return TKVR21_GetAreaInfos(device, buffer, 256); },
     "C0 C2 0000 0000 0001"},
    {__LINE__, DataStage::ToHost, "GetAreaInfosUsesTheLowHalfOfTheLength",
     [](UsbDeviceInterface& device, std::uint8_t* buffer) { return TKVR21_GetAreaInfos(device, buffer, 0xABCD0010); },
     "C0 C2 0000 0000 1000"},
    {__LINE__, DataStage::ToDevice, "SetAreaInfos",
     [](UsbDeviceInterface& device, std::uint8_t* buffer) { return TKVR21_SetAreaInfos(device, buffer, 80, false); },
     "40 C4 0000 0000 5000"},
    {__LINE__, DataStage::ToDevice, "SetAreaInfosWithTheFlag",
     [](UsbDeviceInterface& device, std::uint8_t* buffer) { return TKVR21_SetAreaInfos(device, buffer, 20, true); },
     "40 C4 0100 0000 1400"},
    {__LINE__, DataStage::ToDevice, "SetAreaInfosUsesTheLowHalfOfTheLength",
     [](UsbDeviceInterface& device, std::uint8_t* buffer) { return TKVR21_SetAreaInfos(device, buffer, 0x00010014, false); },
     "40 C4 0000 0000 1400"},
    {__LINE__, DataStage::None, "Reconnect",
     [](UsbDeviceInterface& device, std::uint8_t*) { return TKVR21_Reconnect(device, 1, 1); },
     "40 C1 0100 0100 0000"},
    {__LINE__, DataStage::None, "ReconnectWithAWideIndex",
     [](UsbDeviceInterface& device, std::uint8_t*) { return TKVR21_Reconnect(device, 0xFE, 0x1234); },
     "40 C1 FE00 3412 0000"},
    {__LINE__, DataStage::None, "ResetAreaInfos",
     [](UsbDeviceInterface& device, std::uint8_t*) { return TKVR21_ResetAreaInfos(device, true, true); },
     "40 C5 0300 0000 0000"},
    {__LINE__, DataStage::None, "ResetAreaInfosWithoutFlags",
     [](UsbDeviceInterface& device, std::uint8_t*) { return TKVR21_ResetAreaInfos(device, false, false); },
     "40 C5 0000 0000 0000"},
    {__LINE__, DataStage::None, "ResetAreaInfosWithTheFirstFlag",
     [](UsbDeviceInterface& device, std::uint8_t*) { return TKVR21_ResetAreaInfos(device, true, false); },
     "40 C5 0200 0000 0000"},
    {__LINE__, DataStage::ToDevice, "SetEncryptionInfo",
     [](UsbDeviceInterface& device, std::uint8_t* buffer) { return TKVR21_SetEncryptionInfo(device, buffer, 72, true, false); },
     "40 B0 0200 0000 4800"},
    {__LINE__, DataStage::ToDevice, "SetEncryptionInfoWithTheSecondFlag",
     [](UsbDeviceInterface& device, std::uint8_t* buffer) { return TKVR21_SetEncryptionInfo(device, buffer, 72, false, true); },
     "40 B0 0100 0000 4800"},
    {__LINE__, DataStage::ToDevice, "SetAuthInfoAtSetup",
     [](UsbDeviceInterface& device, std::uint8_t* buffer) { return TKVR21_SetAuthInfo(device, 72, buffer, true, false); },
     "40 B1 0200 0000 4800"},
    {__LINE__, DataStage::ToDevice, "SetAuthInfoWithTheSecondFlag",
     [](UsbDeviceInterface& device, std::uint8_t* buffer) { return TKVR21_SetAuthInfo(device, 72, buffer, false, true); },
     "40 B1 0100 0000 4800"},
    {__LINE__, DataStage::ToDevice, "SetAuthInfoAtChangeOfBothPasswords",
     [](UsbDeviceInterface& device, std::uint8_t* buffer) { return TKVR21_SetAuthInfo(device, 104, buffer, false, false); },
     "40 B1 0000 0000 6800"},
    {__LINE__, DataStage::None, "Logout",
     [](UsbDeviceInterface& device, std::uint8_t*) { return TKVR21_Logout(device, 0); },
     "40 B4 0000 0000 0000"},
    {__LINE__, DataStage::None, "LogoutWithAValue",
     [](UsbDeviceInterface& device, std::uint8_t*) { return TKVR21_Logout(device, 0x80); },
     "40 B4 8000 0000 0000"},
    {__LINE__, DataStage::None, "SetErasePeriodOff",
     [](UsbDeviceInterface& device, std::uint8_t*) { return TKVR21_ZELTO_SetErasePeriod(device, 0); },
     "40 BC 0000 0000 0000"},
    {__LINE__, DataStage::None, "SetErasePeriodOfASecond",
     [](UsbDeviceInterface& device, std::uint8_t*) { return TKVR21_ZELTO_SetErasePeriod(device, 1); },
     "40 BC 0100 0000 0000"},
    {__LINE__, DataStage::None, "SetErasePeriodOfADay",
     [](UsbDeviceInterface& device, std::uint8_t*) { return TKVR21_ZELTO_SetErasePeriod(device, 86400); },
     "40 BC 8051 0100 0000"},
    {__LINE__, DataStage::None, "SetErasePeriodSplitsThePeriod",
     [](UsbDeviceInterface& device, std::uint8_t*) { return TKVR21_ZELTO_SetErasePeriod(device, 0x00012345); },
     "40 BC 4523 0100 0000"},
    {__LINE__, DataStage::None, "SetErasePeriodOfAllBits",
     [](UsbDeviceInterface& device, std::uint8_t*) { return TKVR21_ZELTO_SetErasePeriod(device, 0xFEDCBA98); },
     "40 BC 98BA DCFE 0000"},
    {__LINE__, DataStage::None, "SetIdleLockPeriod",
     [](UsbDeviceInterface& device, std::uint8_t*) { return TKVR21_ZELTO_SetIdleLockPeriod(device, 600); },
     "40 BD 5802 0000 0000"},
    {__LINE__, DataStage::ToHost, "GetTimeStatus",
     [](UsbDeviceInterface& device, std::uint8_t* buffer) { return TKVR21_ZELTO_GetTimeStatus(device, buffer, 28, false); },
     "C0 BA 0000 0000 1C00"},
    {__LINE__, DataStage::ToHost, "GetTimeStatusWithTheFlag",
     [](UsbDeviceInterface& device, std::uint8_t* buffer) { return TKVR21_ZELTO_GetTimeStatus(device, buffer, 28, true); },
     "C0 BA 0100 0000 1C00"},
    {__LINE__, DataStage::ToDevice, "SetCurrentTime",
     [](UsbDeviceInterface& device, std::uint8_t* buffer) { return TKVR21_ZELTO_SetCurrentTime(device, buffer, 7); },
     "40 BB 0000 0000 0700"},
    {__LINE__, DataStage::ToHost, "ReadHintData",
     [](UsbDeviceInterface& device, std::uint8_t* buffer) { return TKVR21_ZELTO_ReadHintData(device, 4095, buffer, 1, 0); },
     "C0 B6 0000 FF0F 0100"},
    {__LINE__, DataStage::ToHost, "ReadHintDataPassesItsValueThrough",
     [](UsbDeviceInterface& device, std::uint8_t* buffer) { return TKVR21_ZELTO_ReadHintData(device, 0x1234, buffer, 16, 5); },
     "C0 B6 0500 3412 1000"},
    {__LINE__, DataStage::ToDevice, "WriteHintData",
     [](UsbDeviceInterface& device, std::uint8_t* buffer) { return TKVR21_ZELTO_WriteHintData(device, 4095, buffer, 1, true); },
     "40 B7 0100 FF0F 0100"},
    {__LINE__, DataStage::ToDevice, "WriteHintDataWithoutTheFlag",
     [](UsbDeviceInterface& device, std::uint8_t* buffer) { return TKVR21_ZELTO_WriteHintData(device, 4095, buffer, 1, false); },
     "40 B7 0000 FF0F 0100"},
    {__LINE__, DataStage::ToDevice, "WriteHintDataReducesItsFlag",
     [](UsbDeviceInterface& device, std::uint8_t* buffer) { return TKVR21_ZELTO_WriteHintData(device, 4095, buffer, 1, 5); },
     "40 B7 0100 FF0F 0100"},
};
// clang-format on

class Command : public testing::TestWithParam<Row> {
protected:
    IOReturn send() { return GetParam().send(device, buffer.data()); }

    ScriptedDevice device;
    std::array<std::uint8_t, 256> buffer = countingBuffer();
};

INSTANTIATE_TEST_SUITE_P(Table, Command, testing::ValuesIn(Commands),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_P(Command, SendsItsSetupPacketOnce) {
    EXPECT_EQ(send(), kIOReturnSuccess);
    ASSERT_EQ(device.transfers.size(), 1U);
    EXPECT_EQ(toHex(device.transfers[0].setupPacket()), toHex(fromHex(GetParam().setupPacket)));
}

TEST_P(Command, SendsTheCallersBytesAndLeavesThemAlone) {
    static_cast<void>(send());
    ASSERT_EQ(device.transfers.size(), 1U);
    const auto& transfer = device.transfers[0];
    EXPECT_EQ(transfer.hasBuffer, GetParam().dataStage != DataStage::None);
    if (GetParam().dataStage == DataStage::ToDevice) {
        EXPECT_EQ(transfer.sent,
                  std::vector<std::uint8_t>(buffer.begin(), buffer.begin() + transfer.wLength));
    }
    EXPECT_EQ(buffer, countingBuffer());
}

TEST_P(Command, ReturnsEveryResultUnchangedWithoutTryingAgain) {
    const std::vector<IOReturn> results{kIOReturnNoDevice,
                                        kIOUSBPipeStalled,
                                        kIOReturnTimeout,
                                        kIOReturnOverrun,
                                        kIOReturnIOError,
                                        kIOReturnNotOpen,
                                        1U,
                                        0xFFFFFFFFU};
    for (const IOReturn result : results) {
        device.script.push_back({.result = result, .data = {}});
        EXPECT_EQ(send(), result);
    }
    EXPECT_EQ(device.transfers.size(), results.size());
}

std::vector<Row> inputCommands() {
    std::vector<Row> rows;
    std::ranges::copy_if(Commands, std::back_inserter(rows),
                         [](const Row& row) { return row.dataStage == DataStage::ToHost; });
    return rows;
}

class InputCommand : public Command {};

INSTANTIATE_TEST_SUITE_P(Table, InputCommand, testing::ValuesIn(inputCommands()),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_P(InputCommand, AShortAnswerLeavesTheRestOfTheBuffer) {
    device.script.push_back({.result = kIOReturnSuccess, .data = {0xEE}});
    EXPECT_EQ(send(), kIOReturnSuccess);
    auto expected = countingBuffer();
    expected[0] = 0xEE;
    EXPECT_EQ(buffer, expected);
}

TEST_P(InputCommand, AnEmptyAnswerLeavesTheWholeBuffer) {
    EXPECT_EQ(send(), kIOReturnSuccess);
    EXPECT_EQ(buffer, countingBuffer());
}

TEST(ClearEncryptionInfo, SendsFourLettersWithTheEncryptionRequest) {
    ScriptedDevice device;
    EXPECT_EQ(TKVR21_ClearEncryptionInfo(device, true, false), kIOReturnSuccess);
    ASSERT_EQ(device.transfers.size(), 1U);
    EXPECT_EQ(toHex(device.transfers[0].setupPacket()), "40b0020000000400");
    EXPECT_EQ(toHex(device.transfers[0].sent), "544b434c");
}

TEST(ClearEncryptionInfo, FormsAFlagPair) {
    ScriptedDevice device;
    static_cast<void>(TKVR21_ClearEncryptionInfo(device, false, true));
    static_cast<void>(TKVR21_ClearEncryptionInfo(device, true, true));
    ASSERT_EQ(device.transfers.size(), 2U);
    EXPECT_EQ(device.transfers[0].wValue, 1);
    EXPECT_EQ(device.transfers[1].wValue, 3);
}

TEST(ClearEncryptionInfo, ReturnsTheResultUnchanged) {
    ScriptedDevice device;
    device.script.push_back({.result = kIOUSBPipeStalled, .data = {}});
    EXPECT_EQ(TKVR21_ClearEncryptionInfo(device, true, false), kIOUSBPipeStalled);
    EXPECT_EQ(device.transfers.size(), 1U);
}

TEST(GetDeviceStatus, TakesItsLengthAsAByte) {
    static_assert(std::is_same_v<decltype(&TKVR21_GetDeviceStatus),
                                 IOReturn (*)(UsbDeviceInterface&, std::uint8_t*, std::uint8_t,
                                              std::uint16_t)>,
                  "a length above 255 must not be expressible");
    SUCCEED();
}

TEST(Commands, ADriveUnpluggedMeanwhileIsReportedAsGone) {
    ScriptedDevice device;
    device.script.push_back({.result = 0xE00002C0, .data = {}});
    std::array<std::uint8_t, 36> status{};
    EXPECT_EQ(TKVR21_GetDeviceStatus(device, status.data(), status.size(), 0), 0xE00002C0U);
}

} // namespace
} // namespace zelto::test
