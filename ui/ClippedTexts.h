#pragma once

#include <QStringList>

class QWidget;

namespace zelto {

/// For the tests and the demonstration, which look at every window as a person would.

/// Lets a window that is on the screen come to rest: what its texts ask for is laid out, and the
/// size that it asked for has come back.
void settle(QWidget& window);

/// The controls of the window that have less room than their texts need, each with what it lacks.
/// Contents that scroll have room enough.
[[nodiscard]] QStringList clippedTexts(const QWidget& window);

} // namespace zelto
