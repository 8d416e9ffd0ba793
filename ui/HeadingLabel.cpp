#include "ui/HeadingLabel.h"

#include <QApplication>
#include <QEvent>

#include <algorithm>

namespace zelto {
namespace {

constexpr double HeadingScale = 1.2;
/// In characters.
constexpr int LongestLine = 64;

} // namespace

HeadingLabel::HeadingLabel(QWidget* parent) : QLabel(parent) {
    setWordWrap(true);
    followApplicationFont();
}

QSize HeadingLabel::sizeHint() const {
    const int line = fontMetrics().boundingRect(text()).width() + fontMetrics().averageCharWidth();
    const int width = std::min(line, fontMetrics().averageCharWidth() * LongestLine);
    return {width, heightForWidth(width)};
}

void HeadingLabel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ApplicationFontChange) {
        followApplicationFont();
    }
    QLabel::changeEvent(event);
}

void HeadingLabel::followApplicationFont() {
    QFont heading = QApplication::font(this);
    heading.setBold(true);
    // A font is given in points or in pixels; the other of the two is then -1.
    if (heading.pointSizeF() > 0) {
        heading.setPointSizeF(heading.pointSizeF() * HeadingScale);
    } else {
        heading.setPixelSize(qRound(heading.pixelSize() * HeadingScale));
    }
    setFont(heading);
}

} // namespace zelto
