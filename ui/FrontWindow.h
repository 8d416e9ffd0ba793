#pragma once

class QWidget;

namespace zelto {

/// The one of the program's windows that takes input: the open alert or dialog, else the window
/// that is on the screen. Null when there is none.
[[nodiscard]] QWidget* frontWindow();

/// Shows the front window before those of other programs and gives it the focus, as far as the
/// desktop lets it; also one that has been minimised.
void bringForward();

} // namespace zelto
