#include "ui/DigitCountHint.h"

#include "ui/Description.h"
#include "ui/SecretField.h"
#include "ui/Strings.h"

#include <QEvent>

namespace zelto {

DigitCountHint::DigitCountHint(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

bool DigitCountHint::event(QEvent* event) {
    // By the time a form is polished all its fields exist.
    if (event->type() == QEvent::Polish) {
        findField();
    }
    return QLabel::event(event);
}

void DigitCountHint::findField() {
    m_field = window()->findChild<SecretField*>(m_fieldName);
    if (m_field != nullptr) {
        connect(m_field, &SecretField::secretChanged, this, &DigitCountHint::refresh,
                Qt::UniqueConnection);
        refresh();
    }
}

void DigitCountHint::refresh() {
    const qsizetype digits = m_field->secret().size();
    setText(localized(digits % 2 == 0 ? "IDS_FIELD_DIGITS" : "IDS_FIELD_DIGITS_ODD", digits));
    describe(*m_field, *this, text());
}

} // namespace zelto
