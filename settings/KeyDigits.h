#pragma once

#include "device/PasswordRecords.h"

#include <QStringView>

#include <array>
#include <cstdint>

namespace zelto {

/// A key as it is typed: 2 to 128 hexadecimal digits of either case, an even number.
[[nodiscard]] bool isValidKeyText(QStringView text);

/// The bytes of a typed key, two digits each in the order typed, padded with zeros. Digits beyond
/// the key's room are left out, and a character that is no digit ends its pair.
[[nodiscard]] std::array<std::uint8_t, EncryptionInfo::KeySize> keyOfDigits(QStringView digits);

} // namespace zelto
