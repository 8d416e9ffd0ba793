#pragma once

#include <QProxyStyle>

namespace zelto {

/// The desktop's style with a line around every control. For palettes of high contrast: styles
/// shade their edges from the window's colour, and of black there is no darker shade.
class OutlinedStyle : public QProxyStyle {
    Q_OBJECT

public:
    /// Gives the application this style if its palette is one of high contrast.
    static void installWhereNeeded();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget = nullptr) const override;
};

} // namespace zelto
