#pragma once

#include "ui/SecretField.h"

namespace zelto {

/// A line for the digits of a key, which it shows. Blanks, colons and line breaks between the
/// digits are left out, so the text is the digits alone.
class KeyField : public SecretField {
    Q_OBJECT

public:
    explicit KeyField(QWidget* parent = nullptr);
};

} // namespace zelto
