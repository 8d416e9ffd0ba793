#include "ui/AreaBar.h"

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
    return segment.name.isEmpty() ? localized("IDS_BAR_UNNAMED", kind, size)
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

QSize AreaBar::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    return {metrics.averageCharWidth() * 48, barHeight() + metrics.lineSpacing() * 2};
}

QSize AreaBar::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * 24, sizeHint().height()};
}

int AreaBar::barHeight() const {
    return fontMetrics().height() * 2;
}

std::vector<int> AreaBar::visibleWidths() const {
    return widthsOf(m_segments, width(), fontMetrics().averageCharWidth() * 6);
}

void AreaBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF bar = QRectF(0.5, 0.5, width() - 1, barHeight() - 1);
    const double radius = fontMetrics().height() / 3.0;
    QPainterPath outline;
    outline.addRoundedRect(bar, radius, radius);

    painter.save();
    painter.setClipPath(outline);
    painter.fillRect(bar, palette().color(QPalette::Base));
    const std::vector<int> widths = visibleWidths();
    double left = 0;
    for (std::size_t index = 0; index < widths.size(); ++index) {
        const QRectF logical(left, 0, widths[index], barHeight());
        const double mirroredLeft = width() - logical.right();
        const QRectF box = layoutDirection() == Qt::RightToLeft
                               ? logical.translated(mirroredLeft - logical.left(), 0)
                               : logical;
        paintSegment(painter, m_segments[index], box);
        painter.setClipping(false);
        paintCaption(painter, m_segments[index],
                     QRectF(box.left(), barHeight(), box.width(), height() - barHeight()));
        painter.setClipPath(outline);
        left += widths[index];
    }
    painter.restore();

    const bool warns = m_fit == Fit::TooLarge;
    const QColor line = warns ? warningColour(palette())
                              : mixed(palette().color(QPalette::Window),
                                      palette().color(QPalette::WindowText), 0.4);
    painter.strokePath(outline, QPen(line, warns ? 2.0 : 1.0));
}

void AreaBar::paintSegment(QPainter& painter, const Segment& segment, const QRectF& box) const {
    painter.fillRect(box, fillOf(segment.kind, palette()));
    if (segment.kind == Kind::Free) {
        const QColor hatch =
            mixed(palette().color(QPalette::Base), palette().color(QPalette::WindowText), 0.25);
        painter.fillRect(box, QBrush(hatch, Qt::BDiagPattern));
    }
    if (segment.kind == Kind::Secure) {
        const double side = std::min<double>(fontMetrics().height() * 1.2, box.width() - 4);
        QRectF lock(0, 0, side, side);
        lock.moveCenter(box.center());
        paintGlyph(painter, Glyph::Lock, lock, palette().color(QPalette::HighlightedText));
    }
    painter.fillRect(QRectF(box.right() - 1, box.top(), 1, box.height()),
                     palette().color(QPalette::Window));
}

void AreaBar::paintCaption(QPainter& painter, const Segment& segment, const QRectF& box) const {
    const QFontMetrics metrics = fontMetrics();
    const double room = box.width() - metrics.averageCharWidth() / 2.0;
    double top = box.top();
    for (const QString& line : {segment.name, shortSize(segment.mebibytes)}) {
        const QString shown = metrics.elidedText(line, Qt::ElideRight, qRound(room));
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(QRectF(box.left(), top, room, metrics.lineSpacing()),
                         static_cast<int>(Qt::AlignLeading | Qt::AlignVCenter), shown);
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
