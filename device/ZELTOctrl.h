#pragma once

#include "platform/UsbDevice.h"

#include <cstdint>

/// The drive's vendor commands. Each is one control transfer on endpoint 0, a vendor request to the
/// device (USB 2.0, 9.3), sent synchronously: it blocks until the transfer ends or the platform's
/// time limit runs out, and returns the platform's result unchanged. No command keeps state,
/// retries, logs or shows anything.
///
/// Buffers belong to the caller and hold at least `length` bytes. A device that answers an input
/// command with fewer bytes leaves the rest of the buffer as it was.
///
/// The order of the arguments differs between commands; it is the order of the drive's own
/// documentation of them.
namespace zelto {

namespace UsbIdentity {
inline constexpr std::uint16_t Vendor = 0x07F7;
inline constexpr std::uint16_t Product = 0x0135;
} // namespace UsbIdentity

namespace HintAddress {
/// The byte of the hint data that this system uses.
inline constexpr std::uint16_t ShowRemainingTime = 0x0FFF;
} // namespace HintAddress

namespace HintBits {
/// Of that byte: show the remaining time on the log-in window.
inline constexpr std::uint8_t ShowRemainingTime = 0x01;
} // namespace HintBits

/// Reads a DeviceStatus. `value` 1 asks for the readiness code, 0 does not.
[[nodiscard]] IOReturn TKVR21_GetDeviceStatus(UsbDeviceInterface& device, std::uint8_t* buffer,
                                              std::uint8_t length, std::uint16_t value);

/// Sends an AuthPayload, always 34 bytes.
[[nodiscard]] IOReturn TKVR21_Authenticate(UsbDeviceInterface& device, const std::uint8_t* buffer,
                                           std::uint8_t value);

/// Reads an AreaInfoTable. Only the low 16 bits of `length` are used.
[[nodiscard]] IOReturn TKVR21_GetAreaInfos(UsbDeviceInterface& device, std::uint8_t* buffer,
                                           std::uint32_t length);

/// Sends AreaInfoEntry items, without the table's header. Only the low 16 bits of `length` are
/// used.
[[nodiscard]] IOReturn TKVR21_SetAreaInfos(UsbDeviceInterface& device, const std::uint8_t* buffer,
                                           std::uint32_t length, bool flag);

/// Has the drive leave the bus and come back.
[[nodiscard]] IOReturn TKVR21_Reconnect(UsbDeviceInterface& device, std::uint8_t value,
                                        std::uint16_t index);

/// Makes the drive forget its areas.
[[nodiscard]] IOReturn TKVR21_ResetAreaInfos(UsbDeviceInterface& device, bool firstFlag,
                                             bool secondFlag);

/// Sends an EncryptionInfo.
[[nodiscard]] IOReturn TKVR21_SetEncryptionInfo(UsbDeviceInterface& device,
                                                const std::uint8_t* buffer, std::uint16_t length,
                                                bool firstFlag, bool secondFlag);

/// Sends an AuthInfo.
[[nodiscard]] IOReturn TKVR21_SetAuthInfo(UsbDeviceInterface& device, std::uint16_t length,
                                          const std::uint8_t* buffer, bool firstFlag,
                                          bool secondFlag);

/// Locks the drive.
[[nodiscard]] IOReturn TKVR21_Logout(UsbDeviceInterface& device, std::uint8_t value);

/// Makes the drive forget its key and passwords. Shares its request code with
/// TKVR21_SetEncryptionInfo; the four bytes "TKCL" tell the drive which is meant.
[[nodiscard]] IOReturn TKVR21_ClearEncryptionInfo(UsbDeviceInterface& device, bool firstFlag,
                                                  bool secondFlag);

/// Sets the auto-clear period; 0 switches it off.
[[nodiscard]] IOReturn TKVR21_ZELTO_SetErasePeriod(UsbDeviceInterface& device,
                                                   std::uint32_t seconds);

/// Sets the idle-lock period; 0 switches it off.
[[nodiscard]] IOReturn TKVR21_ZELTO_SetIdleLockPeriod(UsbDeviceInterface& device,
                                                      std::uint16_t seconds);

/// Reads a TimeStatus.
[[nodiscard]] IOReturn TKVR21_ZELTO_GetTimeStatus(UsbDeviceInterface& device, std::uint8_t* buffer,
                                                  std::uint16_t length, bool flag);

/// Sends a CurrentTime.
[[nodiscard]] IOReturn TKVR21_ZELTO_SetCurrentTime(UsbDeviceInterface& device,
                                                   const std::uint8_t* buffer,
                                                   std::uint16_t length);

/// Reads hint bytes. `value` travels as it is, unlike the flag of the write.
[[nodiscard]] IOReturn TKVR21_ZELTO_ReadHintData(UsbDeviceInterface& device, std::uint16_t address,
                                                 std::uint8_t* buffer, std::uint16_t length,
                                                 std::uint8_t value);

/// Writes hint bytes.
[[nodiscard]] IOReturn TKVR21_ZELTO_WriteHintData(UsbDeviceInterface& device, std::uint16_t address,
                                                  const std::uint8_t* buffer, std::uint16_t length,
                                                  bool flag);

} // namespace zelto
