#pragma once

#include <QLabel>

namespace zelto {

/// A text that the focus can go to, so that it is heard. Not a text that the keyboard can select:
/// the toolkit lays such a one out as a document, each time that it is measured.
class FocusLabel : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
};

} // namespace zelto
