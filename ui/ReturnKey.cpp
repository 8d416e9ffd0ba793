#include "ui/ReturnKey.h"

#include <QDialog>
#include <QKeyEvent>
#include <QPushButton>

namespace zelto {
namespace {

bool isReturn(const QKeyEvent& event) {
    const bool isKey = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    return isKey && (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

} // namespace

ReturnKey::ReturnKey(QDialog& dialog, Presses presses) : m_dialog(dialog), m_presses(presses) {}

void ReturnKey::watchControls() {
    m_dialog.installEventFilter(this);
    for (QWidget* control : m_dialog.findChildren<QWidget*>()) {
        control->installEventFilter(this);
    }
}

bool ReturnKey::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !isReturn(static_cast<const QKeyEvent&>(*event))) {
        return QObject::eventFilter(watched, event);
    }
    // A key that is held down presses once.
    if (QPushButton* const pressed = button();
        pressed != nullptr && !static_cast<const QKeyEvent&>(*event).isAutoRepeat()) {
        pressed->click();
    }
    return true;
}

QPushButton* ReturnKey::button() const {
    if (m_presses == Presses::FocusedButton) {
        if (auto* const focused = qobject_cast<QPushButton*>(m_dialog.focusWidget())) {
            return focused;
        }
    }
    for (QPushButton* candidate : m_dialog.findChildren<QPushButton*>()) {
        if (candidate->isDefault()) {
            return candidate;
        }
    }
    return nullptr;
}

} // namespace zelto
