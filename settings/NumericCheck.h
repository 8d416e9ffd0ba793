#pragma once

#include <QStringView>

namespace zelto {

enum class HexDigits : bool { Refused, Allowed };

/// True when the text holds ASCII digits only; with hexadecimal digits allowed, also A to F of
/// either case. The empty text passes. Digits of other scripts do not.
[[nodiscard]] bool NumericCheck(QStringView text, HexDigits hexDigits = HexDigits::Refused);

} // namespace zelto
