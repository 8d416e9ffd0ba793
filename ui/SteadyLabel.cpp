#include "ui/SteadyLabel.h"

#include <QEvent>
#include <QFontMetrics>

#include <algorithm>

namespace zelto {

SteadyLabel::SteadyLabel(QWidget* parent) : QLabel(parent) {
    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
    beginWhereLinesDo();
}

/// The toolkit aligns a text by its own letters: a time of digits alone would stand at the far end.
void SteadyLabel::beginWhereLinesDo() {
    const bool fromRight = layoutDirection() == Qt::RightToLeft;
    setAlignment((fromRight ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute |
                 Qt::AlignVCenter);
}

void SteadyLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange) {
        beginWhereLinesDo();
    }
}

void SteadyLabel::setHolds(const QString& text) {
    m_holds = text;
    updateGeometry();
}

QSize SteadyLabel::sizeHint() const {
    const QSize hint = room([](const QLabel& label) { return label.QLabel::sizeHint(); });
    // In two lines at the most, which the toolkit alone would not see to.
    return wordWrap() ? hint.expandedTo({advanceOf(m_holds) * 3 / 5, 0}) : hint;
}

QSize SteadyLabel::minimumSizeHint() const {
    return room([](const QLabel& label) { return label.QLabel::minimumSizeHint(); });
}

int SteadyLabel::heightForWidth(int width) const {
    return room([width](const QLabel& label) {
               return QSize(0, label.QLabel::heightForWidth(width));
           })
        .height();
}

QSize SteadyLabel::room(const std::function<QSize(const QLabel&)>& measure) const {
    if (advanceOf(text()) > advanceOf(m_widest)) {
        m_widest = text();
    }
    QSize size = measure(*this).expandedTo({0, fontMetrics().height()});
    for (const QString& other : {m_widest, withWidestDigits(m_holds)}) {
        QLabel sample(other);
        sample.setFont(font());
        sample.setTextFormat(textFormat());
        sample.setWordWrap(wordWrap());
        size = size.expandedTo(measure(sample));
    }
    return size;
}

int SteadyLabel::advanceOf(const QString& text) const {
    return fontMetrics().horizontalAdvance(text);
}

QString SteadyLabel::withWidestDigits(QString text) const {
    const QString digits = QStringLiteral("0123456789");
    const QChar widest = *std::ranges::max_element(
        digits, {}, [this](QChar digit) { return fontMetrics().horizontalAdvance(digit); });
    std::ranges::replace_if(
        text, [](QChar character) { return character.isDigit(); }, widest);
    return text;
}

} // namespace zelto
