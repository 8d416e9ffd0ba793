#pragma once

#include "ui/Window.h"

namespace zelto {

/// The area dialog as an object of its own. The controller keeps one and runs its window directly.
class AreaSettings {
public:
    /// Called once the window has been loaded; does nothing.
    void awakeFromNib() {}
    /// Runs the window as an application-modal dialog. Blocks until it has ended; always 0. Without
    /// a window it returns at once.
    int DoModal();

    /// Not owned.
    Window* AreaSettingsWindow = nullptr;
};

} // namespace zelto
