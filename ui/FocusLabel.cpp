#include "ui/FocusLabel.h"

#include "ui/FocusFrame.h"

#include <QPainter>

namespace zelto {

void FocusLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    QPainter painter(this);
    paintFocusFrame(painter, *this);
}

/// A label's own makes a document of its text.
void FocusLabel::focusInEvent(QFocusEvent*) {
    update();
}

} // namespace zelto
