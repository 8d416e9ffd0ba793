#pragma once

#include "device/DeviceStatus.h"

/// The sense data (SPC-4, 4.5) with which the drive refuses requests.
namespace zelto::simulator::SenseCode {

inline constexpr Sense None{};
/// Invalid command operation code: the drive doesn't know the request.
inline constexpr Sense InvalidCommand{5, 0x20, 0x00};
/// Invalid field in the setup packet: direction, value, index, or an address out of bounds.
inline constexpr Sense InvalidFieldInCommand{5, 0x24, 0x00};
/// Parameter list length error: no data stage of this length belongs to the request.
inline constexpr Sense WrongParameterLength{5, 0x1A, 0x00};
/// Invalid field in the parameter list: the data stage holds nonsense.
inline constexpr Sense InvalidFieldInParameters{5, 0x26, 0x00};
/// Command sequence error: something that has to come first is missing.
inline constexpr Sense WrongSequence{5, 0x2C, 0x00};
/// Security error: the drive's security state forbids the request.
inline constexpr Sense StateForbids{5, 0x74, 0x00};
/// Authentication failed: a wrong password.
inline constexpr Sense AuthenticationFailed{5, 0x74, 0x40};
/// Hardware error, peripheral device write fault: the drive's memory could not be written.
inline constexpr Sense WriteFault{4, 0x03, 0x00};

} // namespace zelto::simulator::SenseCode
