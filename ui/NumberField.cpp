#include "ui/NumberField.h"

#include <QFontMetrics>

namespace zelto {

NumberField::NumberField(QWidget* parent) : QLineEdit(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    setInputMethodHints(Qt::ImhDigitsOnly);
}

void NumberField::setDigits(int digits) {
    m_digits = digits;
    updateGeometry();
}

QSize NumberField::sizeHint() const {
    // The line's own hint is 17 characters wide; what is beyond them is its frame and margins.
    constexpr int CharactersOfHint = 17;
    const QFontMetrics metrics = fontMetrics();
    const QSize hint = QLineEdit::sizeHint();
    const int around = hint.width() - CharactersOfHint * metrics.horizontalAdvance(u'x');
    return {around + (m_digits + 1) * metrics.horizontalAdvance(u'0'), hint.height()};
}

} // namespace zelto
