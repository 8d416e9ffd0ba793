#pragma once

#include <QStringView>

#include <cstdint>

namespace zelto {

/// The number that a text's leading ASCII digits make; 0 when it begins with anything else, a sign
/// or a blank included. A number too large for the type is the type's largest.
[[nodiscard]] std::int32_t integerValue32(QStringView text);
[[nodiscard]] std::int64_t integerValue64(QStringView text);

} // namespace zelto
