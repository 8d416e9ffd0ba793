#include "settings/IntegerValue.h"

#include <limits>

namespace zelto {
namespace {

template <typename Integer>
Integer leadingDigits(QStringView text) {
    constexpr Integer Largest = std::numeric_limits<Integer>::max();
    Integer value = 0;
    for (const QChar unit : text) {
        if (unit < u'0' || unit > u'9') {
            break;
        }
        const auto digit = static_cast<Integer>(unit.unicode() - u'0');
        if (value > (Largest - digit) / 10) {
            return Largest;
        }
        value = static_cast<Integer>(value * 10 + digit);
    }
    return value;
}

} // namespace

std::int32_t integerValue32(QStringView text) {
    return leadingDigits<std::int32_t>(text);
}

std::int64_t integerValue64(QStringView text) {
    return leadingDigits<std::int64_t>(text);
}

} // namespace zelto
