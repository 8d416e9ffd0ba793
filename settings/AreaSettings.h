#pragma once

#include "ui/Window.h"

#include <QObject>

namespace zelto {

/// The area dialog as an object of its own. The controller keeps one, but runs its window itself.
class AreaSettings : public QObject {
public:
    /// Called once the window has been loaded; does nothing.
    void awakeFromNib() {}
    /// Runs the window as an application-modal dialog and blocks until it has ended. Always 0: how
    /// the dialog ended is read from its controls. Without a window it returns at once.
    int DoModal();

    /// Not owned.
    Window* AreaSettingsWindow = nullptr;
};

} // namespace zelto
