#include "ui/OutlinedStyle.h"

#include "ui/Glyph.h"

#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace zelto {
namespace {

void outline(QPainter& painter, const QStyleOption& option, const QRect& rect, bool isRound) {
    const QPalette::ColorGroup group =
        option.state.testFlag(QStyle::State_Enabled) ? QPalette::Active : QPalette::Disabled;
    const double width = option.state.testFlag(QStyle::State_HasFocus) ? 2 : 1;
    const double half = width / 2;
    const QRectF edge = QRectF(rect).adjusted(half, half, -half, -half);
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(option.palette.color(group, QPalette::WindowText), width, Qt::SolidLine,
                        Qt::SquareCap, Qt::MiterJoin));
    if (isRound) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawEllipse(edge);
    } else {
        painter.drawRect(edge);
    }
    painter.restore();
}

bool hasEdge(QStyle::PrimitiveElement element) {
    switch (element) {
    case QStyle::PE_PanelButtonCommand:
    case QStyle::PE_PanelButtonTool:
    case QStyle::PE_PanelLineEdit:
    case QStyle::PE_Frame:
    case QStyle::PE_IndicatorCheckBox:
    case QStyle::PE_IndicatorRadioButton:
        return true;
    default:
        return false;
    }
}

} // namespace

void OutlinedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (hasEdge(element) && isHighContrast(option->palette)) {
        outline(*painter, *option, option->rect, element == PE_IndicatorRadioButton);
    }
}

void OutlinedStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (!isHighContrast(option->palette)) {
        return;
    }
    constexpr bool Round = false;
    if (control == CC_ComboBox) {
        outline(*painter, *option, option->rect, Round);
    } else if (control == CC_GroupBox) {
        // Below the title, wherever the style has the frame begin.
        const QRect title = subControlRect(control, option, SC_GroupBoxLabel, widget);
        QRect frame = subControlRect(control, option, SC_GroupBoxFrame, widget);
        frame.setTop(std::max(frame.top(), title.bottom() + 2));
        outline(*painter, *option, frame, Round);
    }
}

} // namespace zelto
