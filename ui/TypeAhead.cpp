#include "ui/TypeAhead.h"

#include "ui/TypedText.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

namespace zelto {
namespace {

TypeAhead* living = nullptr;

bool isForText(const QKeyEvent& press) {
    return press.key() == Qt::Key_Backspace || press.key() == Qt::Key_Delete || isTypedText(press);
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
