#include "settings/KeyDigits.h"

#include "settings/NumericCheck.h"

#include <algorithm>

namespace zelto {
namespace {

constexpr qsizetype DigitsPerByte = 2;
constexpr auto MostDigits = static_cast<qsizetype>(EncryptionInfo::KeySize) * DigitsPerByte;

std::uint8_t digitValue(QChar digit) {
    if (digit <= u'9') {
        return static_cast<std::uint8_t>(digit.unicode() - u'0');
    }
    return static_cast<std::uint8_t>((digit.unicode() | 0x20) - u'a' + 10);
}

std::uint8_t byteOfPair(QStringView pair) {
    std::uint8_t value = 0;
    for (const QChar digit : pair) {
        if (!NumericCheck(QStringView(&digit, 1), HexDigits::Allowed)) {
            break;
        }
        value = static_cast<std::uint8_t>(value << 4 | digitValue(digit));
    }
    return value;
}

} // namespace

bool isValidKeyText(QStringView text) {
    return !text.isEmpty() && text.size() <= MostDigits && text.size() % DigitsPerByte == 0 &&
           NumericCheck(text, HexDigits::Allowed);
}

std::array<std::uint8_t, EncryptionInfo::KeySize> keyOfDigits(QStringView digits) {
    std::array<std::uint8_t, EncryptionInfo::KeySize> key{};
    const qsizetype end = std::min(digits.size(), MostDigits);
    for (qsizetype digit = 0; digit < end; digit += DigitsPerByte) {
        const QStringView pair = digits.mid(digit, std::min(DigitsPerByte, end - digit));
        key[static_cast<std::size_t>(digit / DigitsPerByte)] = byteOfPair(pair);
    }
    return key;
}

} // namespace zelto
