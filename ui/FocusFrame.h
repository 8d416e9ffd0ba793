#pragma once

class QPainter;
class QWidget;

namespace zelto {

/// Draws the style's frame around a widget that shows its own focus: while it has the focus, once
/// somebody has used the keyboard to move it, as the toolkit's own controls do.
void paintFocusFrame(QPainter& painter, const QWidget& widget);

} // namespace zelto
