#include "ui/OutlinedStyle.h"

#include "ui/Glyph.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>

namespace zelto {
namespace {

void outline(QPainter& painter, const QStyleOption& option, bool isRound) {
    const QPalette::ColorGroup group =
        option.state.testFlag(QStyle::State_Enabled) ? QPalette::Active : QPalette::Disabled;
    const QRectF edge = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(option.palette.color(group, QPalette::WindowText));
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
    case QStyle::PE_FrameGroupBox:
    case QStyle::PE_IndicatorCheckBox:
    case QStyle::PE_IndicatorRadioButton:
        return true;
    default:
        return false;
    }
}

} // namespace

void OutlinedStyle::installWhereNeeded() {
    if (isHighContrast(QApplication::palette())) {
        QApplication::setStyle(new OutlinedStyle);
    }
}

void OutlinedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (hasEdge(element)) {
        outline(*painter, *option, element == PE_IndicatorRadioButton);
    }
}

void OutlinedStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox) {
        constexpr bool Round = false;
        outline(*painter, *option, Round);
    }
}

} // namespace zelto
