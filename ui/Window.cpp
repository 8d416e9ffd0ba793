#include "ui/Window.h"

// Included for its own sake: a form that does not compile fails here and not in the controller.
#include "ui/Forms.h"
#include "ui/ProductIcon.h"

#include <QEvent>
#include <QLayout>
#include <QScreen>

#include <algorithm>

namespace zelto {
namespace {

constexpr auto StartsOn = "startsOn";

bool takesInput(const QWidget& widget) {
    const bool isField = qobject_cast<const QLineEdit*>(&widget) != nullptr ||
                         qobject_cast<const QComboBox*>(&widget) != nullptr;
    return isField && widget.isEnabled() && widget.focusPolicy() != Qt::NoFocus;
}

} // namespace

Window::Window() {
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setSizeGripEnabled(false);
    setWindowIcon(ProductIcon::icon());
}

void Window::centreAndMakeKeyAndOrderFront() {
    resizeToFit();
    const QRect available = availableScreen();
    const QPoint centred = available.center() - rect().center();
    // A window larger than its screen keeps its title bar on it.
    move(std::max(centred.x(), available.left()), std::max(centred.y(), available.top()));
    focusWhereTheUserStarts();
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
    resizeToFit();
    focusWhereTheUserStarts();
    m_modalRun = true;
    m_modalCode = ModalCancel;
    (void)exec();
    m_modalRun = false;
    setParent(nullptr, windowFlags());
    return m_modalCode;
}

void Window::stopModal(ModalCode code) {
    m_modalCode = code;
    done(code);
}

void Window::reject() {
    if (m_modalRun) {
        stopModal(ModalCancel);
        return;
    }
    Q_EMIT closeRequested();
}

bool Window::event(QEvent* event) {
    const bool handled = QDialog::event(event);
    if (event->type() == QEvent::LayoutRequest && isVisible()) {
        growToFit();
    }
    return handled;
}

QRect Window::availableScreen() const {
    return screen()->availableGeometry();
}

// Not adjustSize: that stops at two thirds of the screen and squeezes what doesn't fit.
void Window::resizeToFit() {
    ensurePolished();
    layout()->activate();
    resize(layout()->totalSizeHint().expandedTo(layout()->totalMinimumSize()));
}

// A text that appears in an open window may wrap into lines that a layout doesn't make room for.
void Window::growToFit() {
    const int needed = layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(width())
                                                     : layout()->totalMinimumSize().height();
    if (needed > height()) {
        resize(width(), std::min(needed, std::max(height(), availableScreen().height())));
    }
}

// A window is reused: without this, log-in for the second password would start on the button
// that ended the first step.
void Window::focusWhereTheUserStarts() {
    m_returnKey.watchControls();
    const QString named = property(StartsOn).toString();
    if (auto* const start = named.isEmpty() ? nullptr : findChild<QWidget*>(named)) {
        start->setFocus(Qt::OtherFocusReason);
        return;
    }
    for (QWidget* widget = nextInFocusChain(); widget != this;
         widget = widget->nextInFocusChain()) {
        if (takesInput(*widget)) {
            widget->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
    for (QPushButton* button : findChildren<QPushButton*>()) {
        if (button->isDefault() && button->isEnabled()) {
            button->setFocus(Qt::OtherFocusReason);
        }
    }
}

} // namespace zelto
