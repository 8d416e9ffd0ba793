#include "ui/KeyField.h"

#include "ui/PastedText.h"

namespace zelto {

KeyField::KeyField(QWidget* parent) : SecretField(isDigitSeparator, parent) {
    setShown(Shown::Text);
}

} // namespace zelto
