#pragma once

#include <QString>
#include <QStringList>

namespace zelto {

/// The languages that the program has texts in, as "de", "pt_BR".
[[nodiscard]] QStringList textLanguages();

/// What a reader of `wanted`, best first, reads of what there is. A language counts whatever its
/// country, but not in another script. English ends every list.
[[nodiscard]] QString languageFor(const QStringList& wanted, const QStringList& available);

/// What the desktop's user reads, best first.
[[nodiscard]] QStringList desktopLanguages();

} // namespace zelto
