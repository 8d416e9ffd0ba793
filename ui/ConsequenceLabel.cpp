#include "ui/ConsequenceLabel.h"

#include "ui/Description.h"
#include "ui/Glyph.h"

#include <QEvent>
#include <QPainter>

namespace zelto {

ConsequenceLabel::ConsequenceLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    makeRoomForSign();
}

void ConsequenceLabel::setWarns(bool warns) {
    m_warns = warns;
    makeRoomForSign();
    update();
}

void ConsequenceLabel::makeRoomForSign() {
    const int room = m_warns ? fontMetrics().height() * 3 / 2 : 0;
    const bool isLeft = layoutDirection() == Qt::LeftToRight;
    setContentsMargins(isLeft ? room : 0, 0, isLeft ? 0 : room, 0);
}

void ConsequenceLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange) {
        makeRoomForSign();
    }
}

void ConsequenceLabel::showEvent(QShowEvent* event) {
    if (auto* const control = window()->findChild<QWidget*>(m_control)) {
        describe(*control, *this, text());
    }
    QLabel::showEvent(event);
}

void ConsequenceLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (!m_warns || text().isEmpty()) {
        return;
    }
    const int side = fontMetrics().height();
    const int left = layoutDirection() == Qt::LeftToRight ? 0 : width() - side;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintGlyph(painter, Glyph::Warning, QRect(left, (height() - side) / 2, side, side),
               warningColour(palette()));
}

} // namespace zelto
