#include "ui/KeyField.h"

#include "ui/PastedText.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFrame>

#include <algorithm>

namespace zelto {
namespace {

constexpr int DigitsInGroup = 8;
constexpr int DigitsInLine = 32;
constexpr int VisibleLines = 4;
/// Around the digits, as the toolkit's line has it around its text.
constexpr int Margin = 3;

/// A group is one digit's width apart from the next.
int columnsBefore(int digitInLine) {
    return digitInLine + digitInLine / DigitsInGroup;
}

} // namespace

KeyField::KeyField(QWidget* parent) : SecretField(isDigitSeparator, parent) {
    setShown(Shown::Text);
    // The toolkit repaints where it believes its own line to be.
    const auto repaint = qOverload<>(&QWidget::update);
    connect(this, &QLineEdit::cursorPositionChanged, this, repaint);
    connect(this, &QLineEdit::selectionChanged, this, repaint);
    connect(this, &SecretField::secretChanged, this, repaint);
}

int KeyField::digitWidth() const {
    const QString digits = QStringLiteral("0123456789ABCDEFabcdef");
    const auto widthOf = [this](QChar digit) { return fontMetrics().horizontalAdvance(digit); };
    return widthOf(*std::ranges::max_element(digits, {}, widthOf));
}

int KeyField::lineHeight() const {
    return fontMetrics().height() + 2;
}

QSize KeyField::sizeHint() const {
    QStyleOptionFrame frame;
    initStyleOption(&frame);
    const QSize digits(digitWidth() * columnsBefore(DigitsInLine - 1) + digitWidth(),
                       lineHeight() * VisibleLines);
    return style()->sizeFromContents(QStyle::CT_LineEdit, &frame,
                                     digits + QSize(2 * Margin, 2 * Margin), this);
}

QRect KeyField::grid() const {
    QStyleOptionFrame frame;
    initStyleOption(&frame);
    const QRect room = style()
                           ->subElementRect(QStyle::SE_LineEditContents, &frame, this)
                           .adjusted(Margin, 0, -Margin, 0);
    const int width = digitWidth() * (columnsBefore(DigitsInLine - 1) + 1);
    const int height = lineHeight() * VisibleLines;
    const int left = isRightToLeft() ? room.right() - width + 1 : room.left();
    return {left, room.top() + (room.height() - height) / 2, width, height};
}

/// The cursor's line is the last that is shown when there are more than fit.
int KeyField::firstLine() const {
    const int line = std::max(0, cursorPosition() - 1) / DigitsInLine;
    return std::max(0, line - VisibleLines + 1);
}

/// Digits stand from left to right in every language.
QRect KeyField::cellOf(int index) const {
    const QRect all = grid();
    return {all.left() + digitWidth() * columnsBefore(index % DigitsInLine),
            all.top() + lineHeight() * (index / DigitsInLine - firstLine()), digitWidth(),
            lineHeight()};
}

/// Behind the last digit of a full line, until there is another.
QRect KeyField::caret() const {
    const int position = cursorPosition();
    const bool atEnd = position > 0 && position == size();
    const QRect cell = cellOf(atEnd ? position - 1 : position);
    return {atEnd ? cell.right() + 1 : cell.left(), cell.top() + 1, 1, cell.height() - 2};
}

QVariant KeyField::inputMethodQuery(Qt::InputMethodQuery query) const {
    return query == Qt::ImCursorRectangle ? QVariant(caret())
                                          : SecretField::inputMethodQuery(query);
}

int KeyField::positionAt(const QPoint& point) {
    const QRect all = grid();
    const int line = std::clamp((point.y() - all.top()) / lineHeight(), 0, VisibleLines - 1);
    int digit = 0;
    while (digit < DigitsInLine &&
           all.left() + digitWidth() * columnsBefore(digit) + digitWidth() / 2 < point.x()) {
        ++digit;
    }
    return std::min((firstLine() + line) * DigitsInLine + digit, size());
}

int KeyField::anchor() const {
    if (!hasSelectedText()) {
        return cursorPosition();
    }
    return cursorPosition() == selectionStart() ? selectionEnd() : selectionStart();
}

void KeyField::moveCursor(int position, bool selecting) {
    const int to = std::clamp(position, 0, size());
    if (selecting) {
        const int from = anchor();
        setSelection(from, to - from);
    } else {
        setCursorPosition(to);
    }
}

void KeyField::keyPressEvent(QKeyEvent* event) {
    const bool isUp = event->key() == Qt::Key_Up;
    if (isUp || event->key() == Qt::Key_Down) {
        moveCursor(cursorPosition() + (isUp ? -DigitsInLine : DigitsInLine),
                   event->modifiers().testFlag(Qt::ShiftModifier));
        return;
    }
    SecretField::keyPressEvent(event);
}

void KeyField::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        moveCursor(positionAt(event->position().toPoint()),
                   event->modifiers().testFlag(Qt::ShiftModifier));
    }
}

void KeyField::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton)) {
        constexpr bool Selecting = true;
        moveCursor(positionAt(event->position().toPoint()), Selecting);
    }
}

void KeyField::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        const int group = positionAt(event->position().toPoint()) / DigitsInGroup;
        setSelection(group * DigitsInGroup, DigitsInGroup);
    }
}

void KeyField::paintEvent(QPaintEvent*) {
    QStyleOptionFrame frame;
    initStyleOption(&frame);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &frame, &painter, this);
    painter.setClipRect(grid().adjusted(-1, 0, 2, 0));
    for (int index = firstLine() * DigitsInLine; index < size(); ++index) {
        paintCharacter(painter, index, cellOf(index));
    }
    if (hasFocus()) {
        painter.fillRect(caret(), palette().text());
    }
}

} // namespace zelto
