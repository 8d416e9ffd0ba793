#pragma once

#include <cstdint>

namespace zelto {

/// The 32-bit result of a platform operation on a device: 0 is success. The values are those that
/// the system reports to its callers unchanged; only kIOReturnNoDevice has a meaning to them, all
/// the others say "the drive refused or failed" and differ so that a trace can be read.
using IOReturn = std::uint32_t;

inline constexpr IOReturn kIOReturnSuccess = 0;
/// The device is gone. Returned for that and for nothing else.
inline constexpr IOReturn kIOReturnNoDevice = 0xE00002C0;
/// Opening was refused: the system grants nobody on this computer access to the device (on Linux:
/// the udev rule is not installed).
inline constexpr IOReturn kIOReturnNotPrivileged = 0xE00002C1;
/// Opening was refused to this user: the device belongs to another seat or session.
inline constexpr IOReturn kIOReturnNotPermitted = 0xE00002E2;
/// Opening was refused: another program has the device open.
inline constexpr IOReturn kIOReturnExclusiveAccess = 0xE00002C5;
/// Protocol or CRC error, or any failure that has no code of its own.
inline constexpr IOReturn kIOReturnIOError = 0xE00002CA;
/// The request itself is malformed (a length that no transfer can carry).
inline constexpr IOReturn kIOReturnBadArgument = 0xE00002C2;
/// The device is not open.
inline constexpr IOReturn kIOReturnNotOpen = 0xE00002CD;
/// The time limit of a transfer ran out. The device may have obeyed all the same.
inline constexpr IOReturn kIOReturnTimeout = 0xE00002D6;
/// The device sent more than was asked for.
inline constexpr IOReturn kIOReturnOverrun = 0xE00002E8;
/// The device answered with a stall: it refuses the request.
inline constexpr IOReturn kIOUSBPipeStalled = 0xE000404F;

} // namespace zelto
