#pragma once

#include <QTemporaryFile>

class QPalette;

namespace zelto {

/// For the tests and the demonstration: a screen that nobody sees, of a usual laptop's size. It has
/// to be there before the application is.
class VirtualScreen {
public:
    /// `scale`: the screen's pixels for one of the toolkit's units, 2 for 200 %.
    explicit VirtualScreen(double scale = 1);

private:
    QTemporaryFile m_description;
};

/// As desktops have it at night.
[[nodiscard]] QPalette darkPalette();
/// For people who need the strongest contrast: white on black.
[[nodiscard]] QPalette highContrastPalette();

} // namespace zelto
