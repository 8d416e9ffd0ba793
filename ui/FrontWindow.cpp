#include "ui/FrontWindow.h"

#include "ui/Window.h"

#include <QApplication>

namespace zelto {
namespace {

/// A dialog stands before the windows that it belongs to, and goes with them when they are
/// minimised.
void raiseWithParents(QWidget& window) {
    if (QWidget* const below = window.parentWidget()) {
        raiseWithParents(*below->window());
    }
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.raise();
}

} // namespace

QWidget* frontWindow() {
    QWidget* shown = QApplication::activeModalWidget();
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (shown == nullptr && window->isVisible() && qobject_cast<Window*>(window) != nullptr) {
            shown = window;
        }
    }
    return shown;
}

void bringForward() {
    if (QWidget* const front = frontWindow()) {
        raiseWithParents(*front);
        front->activateWindow();
    }
}

} // namespace zelto
