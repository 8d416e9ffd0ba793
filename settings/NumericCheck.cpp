#include "settings/NumericCheck.h"

#include <algorithm>

namespace zelto {

bool NumericCheck(QStringView text, HexDigits hexDigits) {
    const QStringView allowed =
        hexDigits == HexDigits::Allowed ? u"1234567890ABCDEFabcdef" : u"1234567890";
    return std::ranges::all_of(text, [allowed](QChar unit) { return allowed.contains(unit); });
}

} // namespace zelto
