#include "ui/Window.h"

#include "ui/Forms.h"

#include <QScreen>

// Every form is compiled here once, with the project's warnings, before anybody includes it.

namespace zelto {

Window::Window() {
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setSizeGripEnabled(false);
}

void Window::centreAndMakeKeyAndOrderFront() {
    adjustSize();
    const QRect available = screen()->availableGeometry();
    move(available.center() - rect().center());
    show();
    raise();
    activateWindow();
}

void Window::orderOut() {
    hide();
}

int Window::runModal(QWidget* parent) {
    setParent(parent, windowFlags());
    setWindowModality(Qt::ApplicationModal);
    m_modalRun = true;
    const int code = exec();
    m_modalRun = false;
    setParent(nullptr, windowFlags());
    return code;
}

void Window::reject() {
    if (m_modalRun) {
        done(ModalCancel);
        return;
    }
    Q_EMIT closeRequested();
}

} // namespace zelto
