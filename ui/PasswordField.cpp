#include "ui/PasswordField.h"

#include "ui/Glyph.h"
#include "ui/PastedText.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QStyle>
#include <QToolButton>

#include <algorithm>

namespace zelto {

PasswordField::PasswordField(QWidget* parent)
    : QLineEdit(parent), m_reveal(new QToolButton(this)), m_capsLockSign(new QLabel(this)) {
    setDragEnabled(false);
    m_reveal->setFocusPolicy(Qt::NoFocus);
    m_reveal->setAutoRaise(true);
    m_reveal->setCursor(Qt::ArrowCursor);
    m_reveal->setToolTip(tr("Hold to see the password"));
    m_reveal->setAccessibleName(m_reveal->toolTip());
    connect(m_reveal, &QToolButton::pressed, this, [this] { reveal(Shown::Text); });
    connect(m_reveal, &QToolButton::released, this, [this] { reveal(Shown::Dots); });

    m_capsLockSign->setToolTip(tr("Caps Lock seems to be on"));
    m_capsLockSign->setAccessibleName(m_capsLockSign->toolTip());
    m_capsLockSign->setCursor(Qt::ArrowCursor);
    m_capsLockSign->hide();

    reveal(Shown::Dots);
    renderIcons();
    connect(this, &QLineEdit::textEdited, this, &PasswordField::dropHistoryAndLineBreaks);
}

PasswordField::~PasswordField() {
    // No signals any more: the form's other widgets may be gone already.
    blockSignals(true);
    wipe();
}

void PasswordField::wipe() {
    overwriteOwnCharacters();
    setText(QString());
    setCapsLock(false);
}

// The characters are overwritten in place: writing through a QString would make a second copy
// first. They are left alone while another QString shares them, whose text would change with them
// and whose owner has to wipe it; and where they are a constant of the program, which is read-only.
void PasswordField::overwriteOwnCharacters() {
    constexpr int FieldAndThisFunction = 2;
    QString characters = text();
    auto* const storage = characters.data_ptr().d_ptr();
    if (storage != nullptr && storage->ref_.loadRelaxed() == FieldAndThisFunction) {
        std::fill_n(characters.data_ptr().data(), characters.size(), u' ');
    }
}

void PasswordField::keyPressEvent(QKeyEvent* event) {
    followCapsLock(*event);
    // While the text is shown Qt would let it be copied.
    if (event->matches(QKeySequence::Copy) || event->matches(QKeySequence::Cut)) {
        event->accept();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void PasswordField::contextMenuEvent(QContextMenuEvent* event) {
    reveal(Shown::Dots);
    QLineEdit::contextMenuEvent(event);
}

void PasswordField::focusOutEvent(QFocusEvent* event) {
    reveal(Shown::Dots);
    setCapsLock(false);
    QLineEdit::focusOutEvent(event);
}

void PasswordField::hideEvent(QHideEvent* event) {
    reveal(Shown::Dots);
    QLineEdit::hideEvent(event);
}

void PasswordField::changeEvent(QEvent* event) {
    QLineEdit::changeEvent(event);
    switch (event->type()) {
    case QEvent::EnabledChange:
        reveal(Shown::Dots);
        break;
    case QEvent::PaletteChange:
    case QEvent::FontChange:
    case QEvent::StyleChange:
        renderIcons();
        break;
    default:
        break;
    }
}

void PasswordField::resizeEvent(QResizeEvent* event) {
    QLineEdit::resizeEvent(event);
    placeIcons();
}

void PasswordField::reveal(Shown shown) {
    if (shown == Shown::Dots) {
        deselect();
    }
    setEchoMode(shown == Shown::Text ? QLineEdit::Normal : QLineEdit::Password);
    // Changing the echo mode resets the hints.
    setInputMethodHints(Qt::ImhHiddenText | Qt::ImhSensitiveData | Qt::ImhNoPredictiveText |
                        Qt::ImhNoAutoUppercase);
}

// Setting the text anew forgets how it came about.
void PasswordField::dropHistoryAndLineBreaks() {
    const QString entered = text();
    const qsizetype cursor = withoutLineBreaks(entered.left(cursorPosition())).size();
    setText(withoutLineBreaks(entered));
    setCursorPosition(static_cast<int>(cursor));
}

// Qt can't be asked for the state of Caps Lock, but a letter whose case doesn't go with Shift
// gives it away.
void PasswordField::followCapsLock(const QKeyEvent& event) {
    if (event.key() == Qt::Key_CapsLock) {
        setCapsLock(false);
        return;
    }
    const QString typed = event.text();
    if (typed.size() != 1 || typed.front().toLower() == typed.front().toUpper()) {
        return;
    }
    const bool shift = event.modifiers().testFlag(Qt::ShiftModifier);
    setCapsLock(typed.front().isUpper() != shift);
}

void PasswordField::setCapsLock(bool on) {
    m_capsLock = on;
    m_capsLockSign->setVisible(on);
    setAccessibleDescription(on ? m_capsLockSign->toolTip() : QString());
    placeIcons();
}

void PasswordField::renderIcons() {
    const int side = fontMetrics().height();
    m_reveal->setIconSize({side, side});
    m_reveal->setIcon(glyphIcon(Glyph::Eye, palette(), side, devicePixelRatioF()));
    m_capsLockSign->setPixmap(glyphIcon(Glyph::CapsLock, palette(), side, devicePixelRatioF())
                                  .pixmap({side, side}, devicePixelRatioF()));
    placeIcons();
}

void PasswordField::placeIcons() {
    const int frame = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
    const int side = height() - 2 * frame;
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const auto slot = [&](int fromEnd) {
        const int left = mirrored ? frame + (fromEnd - 1) * side : width() - frame - fromEnd * side;
        return QRect(left, frame, side, side);
    };
    m_reveal->setGeometry(slot(1));
    m_capsLockSign->setGeometry(slot(2));
    m_capsLockSign->setAlignment(Qt::AlignCenter);
    const int taken = side * (m_capsLock ? 2 : 1);
    setTextMargins(mirrored ? taken : 0, 0, mirrored ? 0 : taken, 0);
}

} // namespace zelto
