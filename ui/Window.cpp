#include "ui/Window.h"

#include "digest/Wipe.h"
#include "ui/FittingArea.h"
// Included for its own sake: a form that does not compile fails here and not in the controller.
#include "ui/Forms.h"
#include "ui/ProductIcon.h"

#include <QEvent>
#include <QLayout>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace zelto {
namespace {

constexpr auto StartsOn = "startsOn";
/// Of the screen's height: the window's title bar, which is not there before the window is, and
/// panels, of which Wayland tells nothing.
constexpr int TitleBarAndPanels = 60;

bool takesInput(const QWidget& widget) {
    const bool isField = qobject_cast<const QLineEdit*>(&widget) != nullptr ||
                         qobject_cast<const QComboBox*>(&widget) != nullptr;
    return isField && widget.isEnabled() && widget.focusPolicy() != Qt::NoFocus;
}

/// While a window is hidden no layout tells the one around it what has changed in it.
void forgetSizes(QWidget& window) {
    for (QLayout* const layout : window.findChildren<QLayout*>()) {
        layout->invalidate();
        layout->parentWidget()->updateGeometry();
    }
}

} // namespace

Window::Window() {
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setSizeGripEnabled(false);
    setWindowIcon(ProductIcon::icon());
}

void Window::makeContentsFit() {
    m_contents = new FittingArea(*qobject_cast<QBoxLayout*>(layout()));
}

void Window::centreAndMakeKeyAndOrderFront() {
    const bool staysWhereItIs = isVisible() && std::exchange(m_givesWay, false);
    resizeToFit(roomOnScreen());
    if (!staysWhereItIs) {
        const QRect available = screen()->availableGeometry();
        const QPoint centred = available.center() - rect().center();
        move(std::max(centred.x(), available.left()), std::max(centred.y(), available.top()));
    }
    focusWhereTheUserStarts();
    show();
    raise();
    activateWindow();
    // Before the run loop hands on what is typed and pasted into the window.
    startWipingHeap();
}

void Window::orderOut() {
    hide();
}

void Window::giveWayTo(const std::function<void()>& showNext) {
    m_givesWay = true;
    showNext();
    if (std::exchange(m_givesWay, false)) {
        orderOut();
    }
}

int Window::runModal(QWidget* parent) {
    setParent(parent, windowFlags());
    setWindowModality(Qt::ApplicationModal);
    resizeToFit(roomOnScreen());
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

QSize Window::roomOnScreen() const {
    return screen()->availableGeometry().size() - QSize(0, TitleBarAndPanels);
}

// Not adjustSize: that stops at two thirds of the screen and squeezes what doesn't fit.
void Window::resizeToFit(const QSize& available) {
    m_available = available;
    ensurePolished();
    forgetSizes(*this);
    m_contents->foldInto(roomForContents(available.width()));
    m_contents->setRoom(
        roomForContents(std::min(layout()->totalSizeHint().width(), available.width())));
    layout()->activate();
    resize(layout()->totalSizeHint().expandedTo(layout()->totalMinimumSize()).boundedTo(available));
}

/// What the buttons and the margins of a window so wide leave.
QSize Window::roomForContents(int width) const {
    const QMargins margins = layout()->contentsMargins();
    const int sides = margins.left() + margins.right();
    const QLayoutItem& buttons = *layout()->itemAt(layout()->count() - 1);
    const int height = buttons.hasHeightForWidth() ? buttons.heightForWidth(width - sides)
                                                   : buttons.sizeHint().height();
    const int others = margins.top() + layout()->spacing() + height + margins.bottom();
    return {m_available.width() - sides, m_available.height() - others};
}

// A text that appears in an open window may wrap into lines that a layout doesn't make room for.
void Window::growToFit() {
    m_contents->setRoom(roomForContents(width()));
    const int needed = layout()->totalHeightForWidth(width());
    if (needed > height()) {
        resize(width(), std::min(needed, std::max(height(), m_available.height())));
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
    QWidget* start = nullptr;
    for (QPushButton* button : findChildren<QPushButton*>()) {
        if (button->isDefault() && button->isEnabled()) {
            start = button;
        }
    }
    // Without a focus nothing of the window would be heard.
    for (QWidget* widget = nextInFocusChain(); start == nullptr && widget != this;
         widget = widget->nextInFocusChain()) {
        if (widget->isEnabled() && !widget->isHidden() &&
            (widget->focusPolicy() & Qt::TabFocus) != 0) {
            start = widget;
        }
    }
    if (start != nullptr) {
        start->setFocus(Qt::OtherFocusReason);
    }
}

} // namespace zelto
