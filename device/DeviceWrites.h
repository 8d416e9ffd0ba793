#pragma once

#include "device/PasswordRecords.h"
#include "platform/UsbDevice.h"

#include <chrono>
#include <cstdint>
#include <span>

/// The output commands that carry a record, encoded: whatever of a record is secret is wiped here
/// once it has been sent. Each blocks as its command does, returns its result unchanged, and
/// reports nothing; a sequence stops at the first command that fails, and nothing is undone.
namespace zelto {

/// One step of a log-in.
[[nodiscard]] IOReturn writeAuthPayload(UsbDeviceInterface& device, const AuthPayload& payload);

enum class AuthInfoUse : bool { Change, FirstSetup };

/// One password record.
[[nodiscard]] IOReturn writeAuthInfo(UsbDeviceInterface& device, const AuthInfo& info,
                                     AuthInfoUse use);

/// Gives a drive that has no passwords its only one.
[[nodiscard]] IOReturn writeFirstPassword(UsbDeviceInterface& device, const PasswordDigest& first);
/// Gives a drive that has no passwords two: the second with its number of trials, then both.
[[nodiscard]] IOReturn writeBothPasswords(UsbDeviceInterface& device, const PasswordDigest& first,
                                          const PasswordDigest& second,
                                          std::uint8_t numberOfTrials);

/// The key of a drive that has none.
[[nodiscard]] IOReturn writeEncryptionInfo(UsbDeviceInterface& device, const EncryptionInfo& info);

/// The area table's entries, 20 bytes each, without its header.
[[nodiscard]] IOReturn writeAreaInfos(UsbDeviceInterface& device,
                                      std::span<const std::uint8_t> entries);

/// Sets the drive's clock, which runs in UTC.
[[nodiscard]] IOReturn writeCurrentTime(UsbDeviceInterface& device, std::chrono::sys_seconds now);

/// The periods in seconds; 0 switches one off.
struct Periods {
    std::uint32_t autoClearSeconds = 0;
    std::uint16_t idleLockSeconds = 0;
};

/// Both periods, auto clear first.
[[nodiscard]] IOReturn writePeriods(UsbDeviceInterface& device, const Periods& periods);

/// The choice to show the remaining time at log-in. Writes the whole hint byte; its other bits are
/// cleared.
[[nodiscard]] IOReturn writeShowRemainingTime(UsbDeviceInterface& device, bool show);

} // namespace zelto
