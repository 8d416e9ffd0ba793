#include "ui/TypeAhead.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

namespace zelto {
namespace {

TypeAhead* living = nullptr;

bool isForText(const QKeyEvent& press) {
    switch (press.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return false;
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
        return true;
    default:
        return !press.text().isEmpty() && press.text().front().isPrint() &&
               !press.modifiers().testFlag(Qt::AltModifier) &&
               !press.modifiers().testFlag(Qt::ControlModifier);
    }
}

} // namespace

TypeAhead::TypeAhead(QWidget& control) : m_control(&control) {
    living = this;
}

TypeAhead::~TypeAhead() {
    living = nullptr;
    if (m_control == nullptr || m_presses.empty()) {
        return;
    }
    m_control->setFocus(Qt::OtherFocusReason);
    for (auto& press : m_presses) {
        QCoreApplication::postEvent(m_control, press.release());
    }
}

void TypeAhead::offer(const QKeyEvent& press) {
    if (living != nullptr && isForText(press)) {
        living->m_presses.emplace_back(press.clone());
    }
}

} // namespace zelto
