#pragma once

#include <QString>

namespace zelto {

/// What pasted text brings along unseen, taken out: line breaks of every kind. A line that is
/// copied from a file or a mail often ends with one.
[[nodiscard]] QString withoutLineBreaks(QString text);

/// The same, and the blanks and colons that people write between the digits of a key.
[[nodiscard]] QString withoutDigitSeparators(QString text);

} // namespace zelto
