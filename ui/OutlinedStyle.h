#pragma once

#include <QProxyStyle>

namespace zelto {

/// The desktop's style; where the palette is one of high contrast, with a line around every control
/// and a double one around what has the focus: styles shade their edges from the window's colour,
/// and of black there is no darker shade. It follows the palette while the program runs.
class OutlinedStyle : public QProxyStyle {
    Q_OBJECT

public:
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget = nullptr) const override;
};

} // namespace zelto
