#include "ui/PasswordField.h"

#include "ui/Glyph.h"
#include "ui/PastedText.h"
#include "ui/Strings.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QStyle>
#include <QToolButton>

namespace zelto {

PasswordField::PasswordField(QWidget* parent)
    : SecretField(isLineBreak, parent),
      m_reveal(new QToolButton(this)),
      m_capsLockSign(new QLabel(this)) {
    m_reveal->setFocusPolicy(Qt::NoFocus);
    m_reveal->setAutoRaise(true);
    m_reveal->setCursor(Qt::ArrowCursor);
    m_reveal->setToolTip(localized("IDS_FIELD_REVEAL"));
    m_reveal->setAccessibleName(m_reveal->toolTip());
    connect(m_reveal, &QToolButton::pressed, this, [this] { setShown(Shown::Text); });
    connect(m_reveal, &QToolButton::released, this, [this] { setShown(Shown::Bullets); });

    m_capsLockSign->setToolTip(localized("IDS_FIELD_CAPS_LOCK"));
    m_capsLockSign->setAccessibleName(m_capsLockSign->toolTip());
    m_capsLockSign->setCursor(Qt::ArrowCursor);
    m_capsLockSign->hide();

    renderIcons();
}

void PasswordField::wipe() {
    SecretField::wipe();
    setCapsLock(false);
}

void PasswordField::keyPressEvent(QKeyEvent* event) {
    followCapsLock(*event);
    SecretField::keyPressEvent(event);
}

void PasswordField::contextMenuEvent(QContextMenuEvent* event) {
    setShown(Shown::Bullets);
    SecretField::contextMenuEvent(event);
}

void PasswordField::focusOutEvent(QFocusEvent* event) {
    setShown(Shown::Bullets);
    setCapsLock(false);
    SecretField::focusOutEvent(event);
}

void PasswordField::hideEvent(QHideEvent* event) {
    setShown(Shown::Bullets);
    SecretField::hideEvent(event);
}

void PasswordField::changeEvent(QEvent* event) {
    SecretField::changeEvent(event);
    switch (event->type()) {
    case QEvent::EnabledChange:
        setShown(Shown::Bullets);
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
    SecretField::resizeEvent(event);
    placeIcons();
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
