#include "ui/Glyph.h"

#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPen>
#include <QPixmap>

#include <algorithm>
#include <cmath>

namespace zelto {
namespace {

// Every glyph is drawn in a square of 16 units.
constexpr double Units = 16.0;

QPen strokeOf(const QColor& colour, double width) {
    return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void paintLock(QPainter& painter, const QColor& colour) {
    QPainterPath shackle(QPointF(4.75, 8));
    shackle.lineTo(4.75, 5);
    shackle.arcTo(QRectF(4.75, 1.75, 6.5, 6.5), 180, -180);
    shackle.lineTo(11.25, 8);
    painter.strokePath(shackle, strokeOf(colour, 1.7));

    QPainterPath body;
    body.setFillRule(Qt::OddEvenFill);
    body.addRoundedRect(QRectF(2.5, 7, 11, 8), 1.6, 1.6);
    body.addEllipse(QPointF(8, 10.4), 1.3, 1.3);
    body.addRect(QRectF(7.4, 11.6, 1.2, 1.8));
    painter.fillPath(body, colour);
}

void paintEye(QPainter& painter, const QColor& colour) {
    QPainterPath lids(QPointF(1, 8));
    lids.cubicTo(4, 2.4, 12, 2.4, 15, 8);
    lids.cubicTo(12, 13.6, 4, 13.6, 1, 8);
    painter.strokePath(lids, strokeOf(colour, 1.3));
    QPainterPath pupil;
    pupil.addEllipse(QPointF(8, 8), 2.4, 2.4);
    painter.fillPath(pupil, colour);
}

void paintCapsLock(QPainter& painter, const QColor& colour) {
    QPainterPath arrow(QPointF(8, 1.5));
    for (const QPointF corner : {QPointF(14.5, 8), QPointF(11, 8), QPointF(11, 11), QPointF(5, 11),
                                 QPointF(5, 8), QPointF(1.5, 8)}) {
        arrow.lineTo(corner);
    }
    arrow.closeSubpath();
    painter.strokePath(arrow, strokeOf(colour, 1.3));
    painter.fillRect(QRectF(5, 13, 6, 1.7), colour);
}

void paintWarning(QPainter& painter, const QColor& colour) {
    QPainterPath triangle(QPointF(8, 2));
    triangle.lineTo(15, 14);
    triangle.lineTo(1, 14);
    triangle.closeSubpath();
    painter.strokePath(triangle, strokeOf(colour, 1.4));
    painter.fillRect(QRectF(7.3, 6, 1.4, 4.2), colour);
    QPainterPath dot;
    dot.addEllipse(QPointF(8, 12), 0.9, 0.9);
    painter.fillPath(dot, colour);
}

void paintCheckMark(QPainter& painter, const QColor& colour) {
    QPainterPath tick(QPointF(3, 8.5));
    tick.lineTo(6.6, 12);
    tick.lineTo(13, 4.5);
    painter.strokePath(tick, strokeOf(colour, 2));
}

QPixmap glyphPixmap(Glyph glyph, const QColor& colour, int size, double ratio) {
    QPixmap pixmap(qRound(size * ratio), qRound(size * ratio));
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paintGlyph(painter, glyph, QRectF(0, 0, size, size), colour);
    return pixmap;
}

/// As the guidelines for accessible contents weigh it; all but black and white roughly.
double luminance(const QColor& colour) {
    const auto linear = [](double channel) { return std::pow(channel, 2.2); };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

} // namespace

void paintGlyph(QPainter& painter, Glyph glyph, const QRectF& box, const QColor& colour) {
    const double side = qMin(box.width(), box.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(box.center() - QPointF(side / 2, side / 2));
    painter.scale(side / Units, side / Units);
    switch (glyph) {
    case Glyph::Lock:
        paintLock(painter, colour);
        break;
    case Glyph::Eye:
        paintEye(painter, colour);
        break;
    case Glyph::CapsLock:
        paintCapsLock(painter, colour);
        break;
    case Glyph::Warning:
        paintWarning(painter, colour);
        break;
    case Glyph::CheckMark:
        paintCheckMark(painter, colour);
        break;
    }
    painter.restore();
}

QIcon glyphIcon(Glyph glyph, const QPalette& palette, int sizeInPixels, double devicePixelRatio) {
    QIcon icon;
    for (const auto& [mode, group] : {std::pair(QIcon::Normal, QPalette::Active),
                                      std::pair(QIcon::Disabled, QPalette::Disabled)}) {
        const QColor colour = palette.color(group, QPalette::Text);
        icon.addPixmap(glyphPixmap(glyph, colour, sizeInPixels, devicePixelRatio), mode);
    }
    return icon;
}

QColor warningColour(const QPalette& palette) {
    const bool onDark = palette.color(QPalette::Window).lightnessF() < 0.5F;
    return onDark ? QColor(0xFF, 0xB4, 0x54) : QColor(0xA8, 0x4A, 0x00);
}

bool isHighContrast(const QPalette& palette) {
    constexpr double EnoughForAnybody = 15;
    // A disabled control's own colours are weaker.
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    const double first = luminance(window);
    const double second = luminance(palette.color(QPalette::Active, QPalette::WindowText));
    const double contrast = (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
    return (window == Qt::black || window == Qt::white) && contrast > EnoughForAnybody;
}

QColor outlineColour(const QPalette& palette) {
    const QColor text = palette.color(QPalette::WindowText);
    return isHighContrast(palette) ? text : mixed(palette.color(QPalette::Window), text, 0.4);
}

QColor mixed(const QColor& base, const QColor& over, double amount) {
    const auto channel = [amount](int from, int to) { return qRound(from + (to - from) * amount); };
    return {channel(base.red(), over.red()), channel(base.green(), over.green()),
            channel(base.blue(), over.blue())};
}

} // namespace zelto
