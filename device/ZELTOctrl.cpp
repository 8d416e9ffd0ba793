#include "device/ZELTOctrl.h"

#include "device/PasswordRecords.h"
#include "device/VendorRequest.h"

#include <array>

namespace zelto {
namespace {

/// "TKCL", ASCII.
constexpr std::array<std::uint8_t, 4> ClearEncryptionPayload{0x54, 0x4B, 0x43, 0x4C};

constexpr std::uint16_t flag(bool set) {
    return set ? 1 : 0;
}

constexpr std::uint16_t flagPair(bool first, bool second) {
    return static_cast<std::uint16_t>((first ? 0x0002 : 0) | (second ? 0x0001 : 0));
}

IOReturn receive(UsbDeviceInterface& device, std::uint8_t code, std::uint16_t value,
                 std::uint16_t index, std::uint8_t* buffer, std::uint16_t length) {
    IOUSBDevRequest request{.bmRequestType = VendorRequest::ToHost,
                            .bRequest = code,
                            .wValue = value,
                            .wIndex = index,
                            .wLength = length,
                            .pData = buffer};
    return device.DeviceRequest(request);
}

IOReturn send(UsbDeviceInterface& device, std::uint8_t code, std::uint16_t value,
              std::uint16_t index = 0, const std::uint8_t* buffer = nullptr,
              std::uint16_t length = 0) {
    // One data pointer serves both directions; a transfer towards the device only reads it.
    IOUSBDevRequest request{.bmRequestType = VendorRequest::ToDevice,
                            .bRequest = code,
                            .wValue = value,
                            .wIndex = index,
                            .wLength = length,
                            .pData = const_cast<std::uint8_t*>(buffer)};
    return device.DeviceRequest(request);
}

} // namespace

IOReturn TKVR21_GetDeviceStatus(UsbDeviceInterface& device, std::uint8_t* buffer,
                                std::uint8_t length, std::uint16_t value) {
    return receive(device, VendorRequest::GetDeviceStatus, value, 0, buffer, length);
}

IOReturn TKVR21_Authenticate(UsbDeviceInterface& device, const std::uint8_t* buffer,
                             std::uint8_t value) {
    return send(device, VendorRequest::Authenticate, value, 0, buffer, AuthPayload::Size);
}

IOReturn TKVR21_GetAreaInfos(UsbDeviceInterface& device, std::uint8_t* buffer,
                             std::uint32_t length) {
    return receive(device, VendorRequest::GetAreaInfos, 0, 0, buffer,
                   static_cast<std::uint16_t>(length));
}

IOReturn TKVR21_SetAreaInfos(UsbDeviceInterface& device, const std::uint8_t* buffer,
                             std::uint32_t length, bool setFlag) {
    return send(device, VendorRequest::SetAreaInfos, flag(setFlag), 0, buffer,
                static_cast<std::uint16_t>(length));
}

IOReturn TKVR21_Reconnect(UsbDeviceInterface& device, std::uint8_t value, std::uint16_t index) {
    return send(device, VendorRequest::Reconnect, value, index);
}

IOReturn TKVR21_ResetAreaInfos(UsbDeviceInterface& device, bool firstFlag, bool secondFlag) {
    return send(device, VendorRequest::ResetAreaInfos, flagPair(firstFlag, secondFlag));
}

IOReturn TKVR21_SetEncryptionInfo(UsbDeviceInterface& device, const std::uint8_t* buffer,
                                  std::uint16_t length, bool firstFlag, bool secondFlag) {
    return send(device, VendorRequest::SetEncryptionInfo, flagPair(firstFlag, secondFlag), 0,
                buffer, length);
}

IOReturn TKVR21_SetAuthInfo(UsbDeviceInterface& device, std::uint16_t length,
                            const std::uint8_t* buffer, bool firstFlag, bool secondFlag) {
    return send(device, VendorRequest::SetAuthInfo, flagPair(firstFlag, secondFlag), 0, buffer,
                length);
}

IOReturn TKVR21_Logout(UsbDeviceInterface& device, std::uint8_t value) {
    return send(device, VendorRequest::Logout, value);
}

IOReturn TKVR21_ClearEncryptionInfo(UsbDeviceInterface& device, bool firstFlag, bool secondFlag) {
    return send(device, VendorRequest::ClearEncryptionInfo, flagPair(firstFlag, secondFlag), 0,
                ClearEncryptionPayload.data(), ClearEncryptionPayload.size());
}

IOReturn TKVR21_ZELTO_SetErasePeriod(UsbDeviceInterface& device, std::uint32_t seconds) {
    return send(device, VendorRequest::SetErasePeriod,
                static_cast<std::uint16_t>(seconds & 0x0000FFFF),
                static_cast<std::uint16_t>((seconds & 0xFFFF0000) >> 16));
}

IOReturn TKVR21_ZELTO_SetIdleLockPeriod(UsbDeviceInterface& device, std::uint16_t seconds) {
    return send(device, VendorRequest::SetIdleLockPeriod, seconds);
}

IOReturn TKVR21_ZELTO_GetTimeStatus(UsbDeviceInterface& device, std::uint8_t* buffer,
                                    std::uint16_t length, bool getFlag) {
    return receive(device, VendorRequest::GetTimeStatus, flag(getFlag), 0, buffer, length);
}

IOReturn TKVR21_ZELTO_SetCurrentTime(UsbDeviceInterface& device, const std::uint8_t* buffer,
                                     std::uint16_t length) {
    return send(device, VendorRequest::SetCurrentTime, 0, 0, buffer, length);
}

IOReturn TKVR21_ZELTO_ReadHintData(UsbDeviceInterface& device, std::uint16_t address,
                                   std::uint8_t* buffer, std::uint16_t length, std::uint8_t value) {
    return receive(device, VendorRequest::ReadHintData, value, address, buffer, length);
}

IOReturn TKVR21_ZELTO_WriteHintData(UsbDeviceInterface& device, std::uint16_t address,
                                    const std::uint8_t* buffer, std::uint16_t length,
                                    bool writeFlag) {
    return send(device, VendorRequest::WriteHintData, flag(writeFlag), address, buffer, length);
}

} // namespace zelto
