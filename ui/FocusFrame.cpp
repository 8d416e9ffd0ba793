#include "ui/FocusFrame.h"

#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QWidget>

namespace zelto {

void paintFocusFrame(QPainter& painter, const QWidget& widget) {
    if (!widget.hasFocus() || !widget.window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        return;
    }
    QStyleOptionFocusRect frame;
    frame.initFrom(&widget);
    widget.style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, &widget);
}

} // namespace zelto
