#pragma once

#include <QChar>

namespace zelto {

/// A line break of whatever kind. A line that is copied from a file or a mail often ends with one,
/// unseen.
[[nodiscard]] bool isLineBreak(QChar character);

/// What people write between the digits of a key: blanks, colons, line breaks.
[[nodiscard]] bool isDigitSeparator(QChar character);

} // namespace zelto
