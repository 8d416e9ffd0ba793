#include "ui/SetupStepsView.h"

#include "ui/AccessibleViews.h"
#include "ui/FocusFrame.h"
#include "ui/Glyph.h"
#include "ui/Strings.h"

#include <QAccessible>
#include <QPainter>

#include <algorithm>
#include <array>

namespace zelto {
namespace {

constexpr std::array<const char*, 5> Titles{
    "IDS_STEP_SETTINGS", "IDS_STEP_RESTART",  "IDS_STEP_TOOL_AREA",
    "IDS_STEP_COPY",     "IDS_STEP_FINISHED",
};
constexpr int StepCount = static_cast<int>(Titles.size());

QString titleOf(int step) {
    return localized(Titles[static_cast<std::size_t>(step)]);
}

} // namespace

SetupStepsView::SetupStepsView(QWidget* parent) : QWidget(parent) {
    installAccessibleViews();
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    // Readers follow what has the focus.
    setFocusPolicy(Qt::TabFocus);
    describe();
}

void SetupStepsView::setCurrentStep(int step) {
    m_current = std::clamp(step, 0, StepCount - 1);
    m_failed = false;
    describe();
}

void SetupStepsView::setFailed() {
    m_failed = true;
    describe();
}

SetupStepsView::State SetupStepsView::stateOf(int step) const {
    if (step == m_current && m_failed) {
        return State::Failed;
    }
    if (step < m_current || m_current == AllDone) {
        return State::Done;
    }
    return step == m_current ? State::UnderWay : State::ToCome;
}

void SetupStepsView::describe() {
    const QString told = localized(m_failed ? "IDS_STEP_FAILED" : "IDS_STEP_CURRENT", m_current + 1,
                                   StepCount, titleOf(m_current));
    if (told != accessibleDescription()) {
        setAccessibleDescription(told);
        QAccessibleValueChangeEvent event(this, m_current + 1);
        QAccessible::updateAccessibility(&event);
    }
    update();
}

int SetupStepsView::lineHeight() const {
    return fontMetrics().height() * 7 / 4;
}

QSize SetupStepsView::sizeHint() const {
    QFont bold = font();
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    int widest = 0;
    for (int step = 0; step < StepCount; ++step) {
        widest = std::max(widest, metrics.horizontalAdvance(titleOf(step)));
    }
    return {lineHeight() * 5 / 4 + widest, lineHeight() * StepCount};
}

void SetupStepsView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double mark = fontMetrics().height() * 1.15;
    for (int step = 0; step < StepCount; ++step) {
        const State state = stateOf(step);
        const QRect line(0, step * lineHeight(), width(), lineHeight());
        QRectF box(0, 0, mark, mark);
        box.moveCenter({mark / 2 + 1, line.center().y() + 0.5});
        QRect words = line.adjusted(lineHeight() * 5 / 4, 0, 0, 0);
        if (layoutDirection() == Qt::RightToLeft) {
            box.moveCenter({width() - box.center().x(), box.center().y()});
            words.moveRight(width() - words.left());
        }
        paintMark(painter, state, box);
        QFont font = this->font();
        font.setBold(state == State::UnderWay || state == State::Failed);
        painter.setFont(font);
        painter.setPen(state == State::ToCome ? colourToCome()
                                              : palette().color(QPalette::WindowText));
        painter.drawText(words, static_cast<int>(Qt::AlignLeading | Qt::AlignVCenter),
                         titleOf(step));
    }
    paintFocusFrame(painter, *this);
}

QColor SetupStepsView::colourToCome() const {
    return palette().color(isHighContrast(palette()) ? QPalette::WindowText
                                                     : QPalette::PlaceholderText);
}

void SetupStepsView::paintMark(QPainter& painter, State state, const QRectF& box) const {
    const QColor accent = palette().color(QPalette::Highlight);
    const QPen line(outlineColour(palette()), 1.2);
    const bool strong = isHighContrast(palette());
    const QRectF inner = box.adjusted(1, 1, -1, -1);
    painter.setBrush(Qt::NoBrush);
    switch (state) {
    case State::Done:
        painter.setPen(strong ? line : QPen(Qt::NoPen));
        painter.setBrush(accent);
        painter.drawEllipse(inner);
        paintGlyph(painter, Glyph::CheckMark, box.adjusted(4, 4, -4, -4),
                   palette().color(QPalette::HighlightedText));
        break;
    case State::UnderWay:
        painter.setPen(strong ? QPen(line.color(), 2) : QPen(accent, 2));
        painter.drawEllipse(inner);
        painter.setPen(strong ? line : QPen(Qt::NoPen));
        painter.setBrush(accent);
        painter.drawEllipse(inner.center(), inner.width() / 4, inner.height() / 4);
        break;
    case State::ToCome:
        painter.setPen(QPen(colourToCome(), 1.2));
        painter.drawEllipse(inner);
        break;
    case State::Failed:
        paintGlyph(painter, Glyph::Warning, box, warningColour(palette()));
        break;
    }
}

} // namespace zelto
