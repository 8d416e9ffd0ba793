#include "ui/TypedText.h"

#include <QKeyEvent>

namespace zelto {

bool isTypedText(const QKeyEvent& press) {
    const QString text = press.text();
    if (text.isEmpty()) {
        return false;
    }
    const QChar first = text.front();
    if (first.category() == QChar::Other_Format || first.isSurrogate() ||
        first.category() == QChar::Other_PrivateUse) {
        return true;
    }
    const Qt::KeyboardModifiers shortcut = press.modifiers() & ~Qt::ShiftModifier;
    return first.isPrint() && shortcut != Qt::ControlModifier && shortcut != Qt::AltModifier &&
           shortcut != Qt::MetaModifier;
}

} // namespace zelto
