#pragma once

#include <cstdint>

/// The drive's vendor requests on the wire (USB 2.0, 9.3), shared by the commands that send them
/// and the firmware model that answers them.
namespace zelto::VendorRequest {

/// bmRequestType: vendor, recipient device.
inline constexpr std::uint8_t ToDevice = 0x40;
inline constexpr std::uint8_t ToHost = 0xC0;

inline constexpr std::uint8_t SetEncryptionInfo = 0xB0;
/// The same code: the data stage tells the two apart.
inline constexpr std::uint8_t ClearEncryptionInfo = 0xB0;
inline constexpr std::uint8_t SetAuthInfo = 0xB1;
inline constexpr std::uint8_t Authenticate = 0xB3;
inline constexpr std::uint8_t Logout = 0xB4;
inline constexpr std::uint8_t ReadHintData = 0xB6;
inline constexpr std::uint8_t WriteHintData = 0xB7;
inline constexpr std::uint8_t GetTimeStatus = 0xBA;
inline constexpr std::uint8_t SetCurrentTime = 0xBB;
inline constexpr std::uint8_t SetErasePeriod = 0xBC;
inline constexpr std::uint8_t SetIdleLockPeriod = 0xBD;
inline constexpr std::uint8_t GetDeviceStatus = 0xC0;
inline constexpr std::uint8_t Reconnect = 0xC1;
inline constexpr std::uint8_t GetAreaInfos = 0xC2;
inline constexpr std::uint8_t SetAreaInfos = 0xC4;
inline constexpr std::uint8_t ResetAreaInfos = 0xC5;

} // namespace zelto::VendorRequest
