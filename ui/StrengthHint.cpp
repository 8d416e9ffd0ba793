#include "ui/StrengthHint.h"

#include "ui/Strings.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <array>

namespace zelto {
namespace {

constexpr std::array Words{"IDS_STRENGTH_WEAK", "IDS_STRENGTH_FAIR", "IDS_STRENGTH_GOOD",
                           "IDS_STRENGTH_STRONG"};
static_assert(Words.size() == StrengthHint::Strongest);

} // namespace

StrengthHint::StrengthHint(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    // Empty, a reader would take the title around it for its name.
    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
    hide();
    makeRoomForBar();
}

void StrengthHint::setStrength(int strength) {
    m_strength = std::clamp(strength, 0, Strongest);
    setText(m_strength == 0 ? QString()
                            : localized(Words.at(static_cast<std::size_t>(m_strength) - 1)));
    setVisible(m_strength > 0);
    update();
}

// As large as its longest text, so that typing doesn't move the window.
QSize StrengthHint::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    int width = 0;
    for (const char* const key : Words) {
        width = std::max(width, metrics.horizontalAdvance(localized(key)));
    }
    return {barWidth() + width + metrics.averageCharWidth(), metrics.height()};
}

/// The bar and the gap behind it.
int StrengthHint::barWidth() const {
    return fontMetrics().averageCharWidth() * 2 * (Strongest + 1);
}

void StrengthHint::makeRoomForBar() {
    setIndent(barWidth());
}

void StrengthHint::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        makeRoomForBar();
    }
}

void StrengthHint::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (m_strength == 0) {
        return;
    }
    QPainter painter(this);
    const int step = barWidth() / (Strongest + 1);
    const int height = fontMetrics().xHeight();
    const int top = (contentsRect().height() - height) / 2;
    painter.setPen(palette().color(foregroundRole()));
    for (int part = 0; part < Strongest; ++part) {
        const QRect here(part * step, top, step - step / 4, height);
        painter.setBrush(part < m_strength ? palette().brush(QPalette::Highlight)
                                           : QBrush(Qt::NoBrush));
        painter.drawRect(QStyle::visualRect(layoutDirection(), rect(), here));
    }
}

} // namespace zelto
