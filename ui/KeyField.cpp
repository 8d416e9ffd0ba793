#include "ui/KeyField.h"

#include "ui/PastedText.h"

namespace zelto {

KeyField::KeyField(QWidget* parent) : QLineEdit(parent) {
    connect(this, &QLineEdit::textEdited, this, &KeyField::keepDigitsTogether);
}

void KeyField::keepDigitsTogether() {
    const QString entered = text();
    const QString kept = withoutDigitSeparators(entered);
    if (kept.size() != entered.size()) {
        const qsizetype cursor = withoutDigitSeparators(entered.left(cursorPosition())).size();
        setText(kept);
        setCursorPosition(static_cast<int>(cursor));
    }
}

} // namespace zelto
