#pragma once

#include <QLineEdit>

namespace zelto {

/// A line for the digits of a key. Blanks, colons and line breaks between pasted digits are left
/// out, so the text is the digits alone.
class KeyField : public QLineEdit {
    Q_OBJECT

public:
    explicit KeyField(QWidget* parent = nullptr);

private:
    void keepDigitsTogether();
};

} // namespace zelto
