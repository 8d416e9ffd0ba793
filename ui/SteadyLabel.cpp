#include "ui/SteadyLabel.h"

#include <QEvent>
#include <QFontMetrics>

namespace zelto {

QSize SteadyLabel::roomFor(const QSize& size) const {
    m_largest = m_largest.expandedTo(size).expandedTo({0, fontMetrics().height()});
    return m_largest;
}

void SteadyLabel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        m_largest = {};
    }
    QLabel::changeEvent(event);
}

} // namespace zelto
