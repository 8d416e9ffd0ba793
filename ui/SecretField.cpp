#include "ui/SecretField.h"

#include "digest/Wipe.h"
#include "ui/Strings.h"
#include "ui/TypedText.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyleOptionFrame>

#include <algorithm>

namespace zelto {
namespace {

constexpr QChar Bullet = u'\u25CF';

/// The toolkit would copy, or bring back, what it has only bullets for.
bool isForNothing(const QKeyEvent& press) {
    return press.matches(QKeySequence::Copy) || press.matches(QKeySequence::Cut) ||
           press.matches(QKeySequence::Undo) || press.matches(QKeySequence::Redo);
}

std::size_t place(int position) {
    return static_cast<std::size_t>(std::max(position, 0));
}

} // namespace

SecretField::SecretField(Separator isSeparator, QWidget* parent)
    : QLineEdit(parent), m_isSeparator(isSeparator) {
    setEchoMode(QLineEdit::Password);
    setInputMethodHints(Qt::ImhHiddenText | Qt::ImhSensitiveData | Qt::ImhNoPredictiveText |
                        Qt::ImhNoAutoUppercase);
    setMaxLength(static_cast<int>(SecretText::Capacity));
    setDragEnabled(false);
    setAcceptDrops(false);
    // Before anybody else can connect: whoever hears of an edit finds the text edited.
    connect(this, &QLineEdit::textEdited, this, &SecretField::followBullets);
    connect(this, &QLineEdit::textChanged, this, &SecretField::followBullets);
}

void SecretField::setSecret(QStringView text) {
    m_secret.assign({text.utf16(), static_cast<std::size_t>(text.size())});
    const QScopedValueRollback leading(m_isLeading, true);
    QLineEdit::setText(bullets());
    Q_EMIT secretChanged();
}

void SecretField::wipe() {
    setSecret({});
}

void SecretField::setShown(Shown shown) {
    if (shown == Shown::Bullets && m_shown == Shown::Text) {
        deselect();
    }
    m_shown = shown;
    update();
}

void SecretField::insertSecret(QStringView text) {
    if (std::ranges::all_of(text, m_isSeparator)) {
        return;
    }
    std::size_t at = place(cursorPosition());
    if (hasSelectedText()) {
        at = place(selectionStart());
        m_secret.erase(at, place(selectionLength()));
    }
    for (const QChar character : text) {
        if (!m_isSeparator(character)) {
            const char16_t unit = character.unicode();
            at += m_secret.insert(at, {&unit, 1});
        }
    }
    showBullets(static_cast<int>(at));
    Q_EMIT secretChanged();
    Q_EMIT textEdited(QLineEdit::text());
}

QString SecretField::bullets() const {
    return QString(static_cast<qsizetype>(m_secret.size()), Bullet);
}

/// Set anew, the line forgets how its text came about.
void SecretField::showBullets(int cursor) {
    const QScopedValueRollback leading(m_isLeading, true);
    QLineEdit::setText(bullets());
    setCursorPosition(cursor);
}

/// The toolkit takes bullets away by itself, whatever key, gesture or assistive technology asked
/// for it, and leaves the cursor where they were.
void SecretField::followBullets() {
    if (m_isLeading) {
        return;
    }
    const QString shown = QLineEdit::text();
    const int cursor = cursorPosition();
    if (std::ranges::any_of(shown, [](QChar character) { return character != Bullet; })) {
        takeOver(shown);
    } else if (const auto left = static_cast<std::size_t>(shown.size()); left < m_secret.size()) {
        m_secret.erase(place(cursor), m_secret.size() - left);
    } else {
        return;
    }
    showBullets(cursor);
    Q_EMIT secretChanged();
}

/// Bullets around what was set stand for what was there before.
void SecretField::takeOver(const QString& text) {
    const auto isOther = [](QChar character) { return character != Bullet; };
    const auto begin = std::ranges::find_if(text, isOther);
    const auto end = std::find_if(text.crbegin(), text.crend(), isOther).base();
    const auto before = static_cast<std::size_t>(begin - text.cbegin());
    const auto after = static_cast<std::size_t>(text.cend() - end);
    m_secret.erase(before, m_secret.size() - std::min(before + after, m_secret.size()));
    const QStringView set(begin, end);
    (void)m_secret.insert(before, {set.utf16(), static_cast<std::size_t>(set.size())});
}

void SecretField::paste(QClipboard::Mode mode) {
    QString text = QApplication::clipboard()->text(mode);
    insertSecret(text);
    // Where the clipboard is another program's, this was the last one to hold the copy.
    if (text.isDetached()) {
        zelto::wipe(text);
    }
}

void SecretField::keyPressEvent(QKeyEvent* event) {
    event->accept();
    if (isForNothing(*event)) {
        return;
    }
    if (event->matches(QKeySequence::Paste)) {
        paste();
    } else if (isTypedText(*event)) {
        insertSecret(event->text());
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

/// What is being composed is not shown: it would be in the toolkit's hands.
void SecretField::inputMethodEvent(QInputMethodEvent* event) {
    insertSecret(event->commitString());
    event->accept();
}

QVariant SecretField::inputMethodQuery(Qt::InputMethodQuery query) const {
    switch (query) {
    case Qt::ImSurroundingText:
    case Qt::ImCurrentSelection:
    case Qt::ImTextBeforeCursor:
    case Qt::ImTextAfterCursor:
        return {};
    default:
        return QLineEdit::inputMethodQuery(query);
    }
}

void SecretField::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton && QApplication::clipboard()->supportsSelection()) {
        deselect();
        setCursorPosition(positionAt(event->position().toPoint()));
        paste(QClipboard::Selection);
        return;
    }
    QLineEdit::mouseReleaseEvent(event);
}

void SecretField::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu(this);
    QAction* const pasting =
        menu.addAction(localized("IDS_FIELD_PASTE"), this, [this] { paste(); });
    const QMimeData* const offered = QApplication::clipboard()->mimeData();
    pasting->setEnabled(offered != nullptr && offered->hasText());
    QAction* const selecting =
        menu.addAction(localized("IDS_FIELD_SELECT_ALL"), this, &QLineEdit::selectAll);
    selecting->setEnabled(!m_secret.isEmpty());
    menu.exec(event->globalPos());
}

void SecretField::paintEvent(QPaintEvent* event) {
    if (showsText() && !m_secret.isEmpty()) {
        paintText();
    } else {
        QLineEdit::paintEvent(event);
    }
}

int SecretField::positionAt(const QPoint& point) {
    return cursorPositionAt(point);
}

void SecretField::paintCharacter(QPainter& painter, int index, const QRectF& cell) const {
    const bool isSelected = hasSelectedText() && index >= selectionStart() &&
                            index < selectionStart() + selectionLength();
    if (isSelected) {
        painter.fillRect(cell, palette().highlight());
    }
    painter.setPen(palette().color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    painter.drawText(cell.adjusted(-cell.width(), 0, cell.width(), 0), Qt::AlignCenter,
                     QString(QChar(m_secret.view()[place(index)])));
}

/// Each character in the place of its bullet.
void SecretField::paintText() {
    QStyleOptionFrame frame;
    initStyleOption(&frame);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &frame, &painter, this);
    const QRect room = style()
                           ->subElementRect(QStyle::SE_LineEditContents, &frame, this)
                           .marginsRemoved(textMargins());
    painter.setClipRect(room);

    const QChar shownBullet(
        style()->styleHint(QStyle::SH_LineEdit_PasswordCharacter, &frame, this));
    const qreal cell = QFontMetricsF(font()).horizontalAdvance(shownBullet);
    const int size = static_cast<int>(m_secret.size());
    const int ahead = isRightToLeft() ? size - cursorPosition() : cursorPosition();
    const qreal left = cursorRect().center().x() - ahead * cell;
    for (int index = 0; index < size; ++index) {
        paintCharacter(painter, index,
                       QRectF(left + index * cell, room.top(), cell, room.height()));
    }
    if (hasFocus()) {
        const qreal caret = left + cursorPosition() * cell;
        painter.fillRect(QRectF(caret, room.top() + 1, 1, room.height() - 2), palette().text());
    }
}

} // namespace zelto
