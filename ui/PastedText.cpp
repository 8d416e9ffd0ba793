#include "ui/PastedText.h"

namespace zelto {

bool isLineBreak(QChar character) {
    switch (character.unicode()) {
    case u'\n':
    case u'\v':
    case u'\f':
    case u'\r':
    case u'\u0085':
    case u'\u2028':
    case u'\u2029':
        return true;
    default:
        return false;
    }
}

bool isDigitSeparator(QChar character) {
    return isLineBreak(character) || character.isSpace() || character == u':';
}

} // namespace zelto
