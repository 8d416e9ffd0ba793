#pragma once

#include <QIcon>
#include <QRectF>

class QColor;
class QPainter;
class QPalette;

namespace zelto {

/// The few signs that the windows draw themselves, so that they take the palette's colours, light
/// or dark, at any size.
enum class Glyph { Lock, Eye, CapsLock, Warning, CheckMark };

/// Draws the glyph to fill the largest square in `box`.
void paintGlyph(QPainter& painter, Glyph glyph, const QRectF& box, const QColor& colour);

/// The glyph as an icon in the palette's text colour, greyed for disabled controls.
[[nodiscard]] QIcon glyphIcon(Glyph glyph, const QPalette& palette, int sizeInPixels,
                              double devicePixelRatio);

/// A colour that warns and can be read on the palette's window colour.
[[nodiscard]] QColor warningColour(const QPalette& palette);

/// The palette is one for people who need the strongest contrast: text and window are black and
/// white, or all but that on black or white.
[[nodiscard]] bool isHighContrast(const QPalette& palette);

/// A colour for the lines around things; as strong as text in a palette of high contrast.
[[nodiscard]] QColor outlineColour(const QPalette& palette);

/// `amount` of `over` laid on `base`; 0 is all base, 1 all over.
[[nodiscard]] QColor mixed(const QColor& base, const QColor& over, double amount);

} // namespace zelto
