#include "ui/AreaBar.h"

#include "ui/AccessibleViews.h"
#include "ui/Glyph.h"
#include "ui/Strings.h"

#include <QHelpEvent>
#include <QLocale>
#include <QPainter>
#include <QPainterPath>
#include <QStringList>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace zelto {
namespace {

// "244 MB", "3.7 GB": short enough to stand in a narrow segment.
QString shortSize(std::uint64_t mebibytes) {
    constexpr std::uint64_t Gigabyte = 1024;
    constexpr std::uint64_t Terabyte = Gigabyte * 1024;
    const auto tenths = [mebibytes](std::uint64_t unit) {
        // All other numbers are in the digits that are typed, 0 to 9, whatever the language.
        const QLocale locale = QLocale().zeroDigit() == u"0" ? QLocale() : QLocale::c();
        return locale.toString(static_cast<double>(mebibytes) / static_cast<double>(unit), 'f', 1);
    };
    if (mebibytes >= Terabyte) {
        return localized("IDS_SIZE_TB", tenths(Terabyte));
    }
    if (mebibytes >= 10 * Gigabyte) {
        return localized("IDS_SIZE_GB", tenths(Gigabyte));
    }
    return localized("IDS_SIZE_MB", mebibytes);
}

// In a line from right to left "40 MB" would read "MB 40".
QString isolated(const QString& text) {
    constexpr QChar FirstStrongIsolate = u'\u2068';
    constexpr QChar PopDirectionalIsolate = u'\u2069';
    return FirstStrongIsolate + text + PopDirectionalIsolate;
}

QString kindWord(AreaBar::Kind kind) {
    switch (kind) {
    case AreaBar::Kind::Normal:
        return localized("IDS_BAR_NORMAL");
    case AreaBar::Kind::Secure:
        return localized("IDS_BAR_SECURE");
    case AreaBar::Kind::Tool:
        return localized("IDS_BAR_TOOL");
    case AreaBar::Kind::Free:
        return localized("IDS_BAR_FREE");
    }
    return {};
}

QString spoken(const AreaBar::Segment& segment) {
    const QString size = shortSize(segment.mebibytes);
    const QString kind = kindWord(segment.kind);
    // What is free is called so already.
    return segment.name.isEmpty() || segment.kind == AreaBar::Kind::Free
               ? localized("IDS_BAR_UNNAMED", kind, size)
               : localized("IDS_BAR_NAMED", segment.name, kind, size);
}

QColor fillOf(AreaBar::Kind kind, const QPalette& palette) {
    const QColor window = palette.color(QPalette::Window);
    const QColor accent = palette.color(QPalette::Highlight);
    switch (kind) {
    case AreaBar::Kind::Normal:
        return mixed(window, accent, 0.35);
    case AreaBar::Kind::Secure:
        return accent;
    case AreaBar::Kind::Tool:
        return mixed(window, palette.color(QPalette::WindowText), 0.25);
    case AreaBar::Kind::Free:
        return palette.color(QPalette::Base);
    }
    return window;
}

} // namespace

AreaBar::AreaBar(QWidget* parent) : QWidget(parent) {
    installAccessibleViews();
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setSegments({});
}

void AreaBar::setSegments(std::vector<Segment> segments, Fit fit) {
    std::erase_if(segments, [](const Segment& segment) { return segment.mebibytes == 0; });
    m_segments = std::move(segments);
    m_fit = fit;
    QStringList description;
    for (const Segment& segment : m_segments) {
        description.append(spoken(segment));
    }
    if (m_fit == Fit::TooLarge) {
        description.append(localized("IDS_BAR_TOO_LARGE"));
    }
    setAccessibleDescription(description.join(localized("IDS_BAR_SEPARATOR")));
    updateGeometry();
    update();
}

std::vector<int> AreaBar::widthsOf(const std::vector<Segment>& segments, int width, int smallest) {
    if (segments.empty()) {
        return {};
    }
    // Each segment gets the smallest width outright and its share of what remains. Doubles: sums
    // of 64-bit sizes that a drive or a person made up may not overflow.
    const int count = static_cast<int>(segments.size());
    const int granted = std::clamp(smallest, 0, std::max(0, width) / count);
    const double shared = std::max(0, width) - granted * count;
    const double total = std::accumulate(segments.begin(), segments.end(), 0.0,
                                         [](double sum, const Segment& segment) {
                                             return sum + static_cast<double>(segment.mebibytes);
                                         });
    std::vector<int> widths;
    double passed = 0;
    int edge = 0;
    for (const Segment& segment : segments) {
        passed += static_cast<double>(segment.mebibytes);
        const double share = total > 0 ? passed / total : 0;
        const int next = granted * static_cast<int>(widths.size() + 1) +
                         static_cast<int>(std::lround(shared * share));
        widths.push_back(next - edge);
        edge = next;
    }
    return widths;
}

std::vector<int> AreaBar::captionsOf(const std::vector<int>& segments,
                                     const std::vector<int>& captions, int width) {
    const int count = static_cast<int>(captions.size());
    std::vector<int> lefts(captions.size());
    if (std::accumulate(captions.begin(), captions.end(), 0) > width) {
        for (int index = 0; index < count; ++index) {
            lefts[static_cast<std::size_t>(index)] = std::max(0, width) * index / count;
        }
        return lefts;
    }
    int segment = 0;
    int free = 0;
    for (std::size_t index = 0; index < captions.size(); ++index) {
        lefts[index] = std::max(segment, free);
        free = lefts[index] + captions[index];
        segment += segments[index];
    }
    int end = width;
    for (std::size_t index = captions.size(); index-- > 0;) {
        lefts[index] = std::min(lefts[index], end - captions[index]);
        end = lefts[index];
    }
    return lefts;
}

QSize AreaBar::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    const int usual = metrics.averageCharWidth() * 48;
    return {std::max(usual, minimumSizeHint().width()), barHeight() + metrics.lineSpacing() * 2};
}

QSize AreaBar::minimumSizeHint() const {
    const std::vector<int> captions = captionWidths();
    const int all = std::accumulate(captions.begin(), captions.end(), 0);
    return {std::max(fontMetrics().averageCharWidth() * 24, all),
            barHeight() + fontMetrics().lineSpacing() * 2};
}

int AreaBar::barHeight() const {
    return fontMetrics().height() * 2;
}

int AreaBar::swatchSide() const {
    return fontMetrics().ascent() * 3 / 4;
}

int AreaBar::gap() const {
    return fontMetrics().averageCharWidth() / 2;
}

std::vector<int> AreaBar::visibleWidths() const {
    return widthsOf(m_segments, width(), fontMetrics().height());
}

std::vector<int> AreaBar::captionWidths() const {
    const QFontMetrics metrics = fontMetrics();
    std::vector<int> widths;
    for (const Segment& segment : m_segments) {
        const int text =
            std::max(metrics.horizontalAdvance(segment.name),
                     metrics.horizontalAdvance(isolated(shortSize(segment.mebibytes))));
        widths.push_back(swatchSide() + gap() + text + 2 * gap());
    }
    return widths;
}

QRectF AreaBar::placed(int left, int width, int top, int height) const {
    const int from = layoutDirection() == Qt::RightToLeft ? this->width() - left - width : left;
    return QRectF(from, top, width, height);
}

void AreaBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintBar(painter);
    const std::vector<int> captions = captionWidths();
    const std::vector<int> lefts = captionsOf(visibleWidths(), captions, width());
    for (std::size_t index = 0; index < lefts.size(); ++index) {
        const int end = index + 1 < lefts.size() ? lefts[index + 1] : width();
        const int room = std::min(captions[index], end - lefts[index]);
        paintCaption(painter, m_segments[index],
                     placed(lefts[index], room, barHeight(), height() - barHeight()));
    }
}

void AreaBar::paintBar(QPainter& painter) const {
    const QRectF bar = QRectF(0.5, 0.5, width() - 1, barHeight() - 1);
    const double radius = fontMetrics().height() / 3.0;
    QPainterPath outline;
    outline.addRoundedRect(bar, radius, radius);

    painter.save();
    painter.setClipPath(outline);
    painter.fillRect(bar, palette().color(QPalette::Base));
    int left = 0;
    const std::vector<int> widths = visibleWidths();
    for (std::size_t index = 0; index < widths.size(); ++index) {
        paintSegment(painter, m_segments[index], placed(left, widths[index], 0, barHeight()));
        left += widths[index];
    }
    painter.restore();

    const bool warns = m_fit == Fit::TooLarge;
    painter.strokePath(outline, QPen(warns ? warningColour(palette()) : outlineColour(palette()),
                                     warns ? 2.0 : 1.0));
}

void AreaBar::paintSegment(QPainter& painter, const Segment& segment, const QRectF& box) const {
    paintFill(painter, segment.kind, box);
    if (segment.kind == Kind::Secure) {
        const double side = std::min<double>(fontMetrics().height() * 1.2, box.width() - 4);
        QRectF lock(0, 0, side, side);
        lock.moveCenter(box.center());
        paintGlyph(painter, Glyph::Lock, lock, palette().color(QPalette::HighlightedText));
    }
    painter.fillRect(QRectF(box.right() - 1, box.top(), 1, box.height()),
                     isHighContrast(palette()) ? outlineColour(palette())
                                               : palette().color(QPalette::Window));
}

void AreaBar::paintFill(QPainter& painter, Kind kind, const QRectF& box) const {
    painter.fillRect(box, fillOf(kind, palette()));
    if (kind == Kind::Free) {
        const QColor hatch =
            mixed(palette().color(QPalette::Base), palette().color(QPalette::WindowText), 0.25);
        painter.fillRect(box, QBrush(hatch, Qt::BDiagPattern));
    }
}

void AreaBar::paintCaption(QPainter& painter, const Segment& segment, const QRectF& box) const {
    const QFontMetrics metrics = fontMetrics();
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const int side = swatchSide();
    QRectF swatch(0, box.top() + (metrics.lineSpacing() - side) / 2.0, side, side);
    swatch.moveLeft(mirrored ? box.right() - side - 0.5 : box.left() + 0.5);
    paintFill(painter, segment.kind, swatch);
    painter.setPen(outlineColour(palette()));
    painter.drawRect(swatch);

    const int taken = side + gap();
    const double room = box.width() - taken;
    painter.setPen(palette().color(QPalette::WindowText));
    double top = box.top();
    for (const QString& line : {segment.name, isolated(shortSize(segment.mebibytes))}) {
        painter.drawText(
            QRectF(mirrored ? box.left() : box.left() + taken, top, room, metrics.lineSpacing()),
            static_cast<int>(Qt::AlignLeading | Qt::AlignVCenter),
            metrics.elidedText(line, Qt::ElideRight, qRound(room)));
        top += metrics.lineSpacing();
    }
}

bool AreaBar::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) {
        return QWidget::event(event);
    }
    const auto& help = static_cast<const QHelpEvent&>(*event);
    const int from = layoutDirection() == Qt::RightToLeft ? width() - help.x() : help.x();
    int edge = 0;
    const std::vector<int> widths = visibleWidths();
    for (std::size_t index = 0; index < widths.size(); ++index) {
        edge += widths[index];
        if (from < edge) {
            QToolTip::showText(help.globalPos(), spoken(m_segments[index]), this);
            return true;
        }
    }
    QToolTip::hideText();
    return true;
}

} // namespace zelto
