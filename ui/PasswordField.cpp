#include "ui/PasswordField.h"

#include "ui/Description.h"
#include "ui/Glyph.h"
#include "ui/PastedText.h"
#include "ui/Strings.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QStyle>
#include <QToolButton>
#include <QWindow>

#include <algorithm>

namespace zelto {

std::optional<bool> capsLockOf(QStringView typed, bool withShift) {
    if (typed.size() != 1 || typed.front().toLower() == typed.front().toUpper()) {
        return {};
    }
    return typed.front().isUpper() != withShift;
}

PasswordField::PasswordField(QWidget* parent)
    : SecretField(isLineBreak, parent),
      m_reveal(new QToolButton(this)),
      m_capsLockSign(new QLabel(this)),
      m_capsLockWords(new QLabel(this)) {
    makeReveal();
    makeCapsLockSign();
    renderIcons();
}

PasswordField::~PasswordField() {
    // An eye that goes with the focus on it tells of that when the field is gone already.
    disconnect(qApp, nullptr, this, nullptr);
}

void PasswordField::makeReveal() {
    m_reveal->setCheckable(true);
    // A click leaves the focus where it is.
    m_reveal->setFocusPolicy(Qt::TabFocus);
    m_reveal->setAutoRaise(true);
    m_reveal->setCursor(Qt::ArrowCursor);
    m_reveal->setToolTip(localized("IDS_FIELD_REVEAL"));
    m_reveal->setAccessibleName(m_reveal->toolTip());
    connect(m_reveal, &QToolButton::toggled, this, [this](bool on) { followReveal(on); });
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget*, const QWidget* now) { followFocus(now); });
}

void PasswordField::makeCapsLockSign() {
    m_capsLockWords->setTextFormat(Qt::PlainText);
    m_capsLockWords->setText(localized("IDS_FIELD_CAPS_LOCK"));
    m_capsLockSign->setToolTip(m_capsLockWords->text());
    m_capsLockSign->setAccessibleName(m_capsLockWords->text());
    for (QLabel* const label : {m_capsLockSign, m_capsLockWords}) {
        label->setCursor(Qt::ArrowCursor);
        label->hide();
    }
}

void PasswordField::wipe() {
    SecretField::wipe();
    hideText();
    setCapsLock(false);
}

void PasswordField::hideText() {
    m_reveal->setChecked(false);
}

// With room for the warning beside a few bullets.
QSize PasswordField::sizeHint() const {
    const QSize line = SecretField::sizeHint();
    const int warned = line.height() + capsLockWordsWidth() + fewBullets();
    return {line.height() + std::max(line.width(), warned), line.height()};
}

bool PasswordField::event(QEvent* event) {
    // By the time a form is polished, the order of its own controls has been set.
    if (event->type() == QEvent::Polish) {
        QWidget::setTabOrder(this, m_reveal);
    }
    return SecretField::event(event);
}

void PasswordField::keyPressEvent(QKeyEvent* event) {
    followCapsLock(*event);
    SecretField::keyPressEvent(event);
}

// Caps Lock goes off when the key is let go.
void PasswordField::keyReleaseEvent(QKeyEvent* event) {
    (void)askForCapsLock();
    SecretField::keyReleaseEvent(event);
}

void PasswordField::contextMenuEvent(QContextMenuEvent* event) {
    hideText();
    SecretField::contextMenuEvent(event);
}

void PasswordField::focusInEvent(QFocusEvent* event) {
    SecretField::focusInEvent(event);
    (void)askForCapsLock();
}

void PasswordField::focusOutEvent(QFocusEvent* event) {
    setCapsLock(false);
    SecretField::focusOutEvent(event);
}

void PasswordField::showEvent(QShowEvent* event) {
    SecretField::showEvent(event);
    // A screen of another scale takes other pixels.
    connect(window()->windowHandle(), &QWindow::screenChanged, this, &PasswordField::renderIcons,
            Qt::UniqueConnection);
}

void PasswordField::hideEvent(QHideEvent* event) {
    hideText();
    SecretField::hideEvent(event);
}

void PasswordField::changeEvent(QEvent* event) {
    SecretField::changeEvent(event);
    switch (event->type()) {
    case QEvent::EnabledChange:
        hideText();
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

// What is shown without the focus would not be hidden by leaving it.
void PasswordField::followReveal(bool on) {
    setShown(on ? Shown::Text : Shown::Bullets);
    if (on && !hasFocus() && !m_reveal->hasFocus()) {
        setFocus(Qt::OtherFocusReason);
    }
}

/// Between the field and its eye the text may stay.
void PasswordField::followFocus(const QWidget* now) {
    if (now != this && now != m_reveal) {
        hideText();
    }
}

void PasswordField::followCapsLock(const QKeyEvent& event) {
    if (askForCapsLock()) {
        return;
    }
    if (event.key() == Qt::Key_CapsLock) {
        setCapsLock(false);
        return;
    }
    const bool withShift = event.modifiers().testFlag(Qt::ShiftModifier);
    if (const auto isOn = capsLockOf(event.text(), withShift)) {
        setCapsLock(*isOn);
    }
}

/// False where there is no answer.
bool PasswordField::askForCapsLock() {
    const auto isOn = m_capsLockState ? m_capsLockState() : std::nullopt;
    if (isOn) {
        setCapsLock(*isOn && hasFocus());
    }
    return isOn.has_value();
}

void PasswordField::setCapsLock(bool on) {
    m_capsLock = on;
    describe(*this, *m_capsLockSign, on ? m_capsLockWords->text() : QString());
    placeIcons();
}

int PasswordField::capsLockWordsWidth() const {
    return m_capsLockWords->sizeHint().width();
}

int PasswordField::fewBullets() const {
    return 8 * fontMetrics().averageCharWidth();
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
    // Squeezed into a narrow form, the field warns by the sign alone.
    const bool hasRoom = width() >= 2 * side + capsLockWordsWidth() + fewBullets();
    const int words = hasRoom ? capsLockWordsWidth() : 0;
    m_capsLockSign->setVisible(m_capsLock);
    m_capsLockWords->setVisible(m_capsLock && hasRoom);
    const auto place = [&](QWidget& part, int fromEnd, int wide) {
        const int left = mirrored ? frame + fromEnd : width() - frame - fromEnd - wide;
        part.setGeometry(left, frame, wide, side);
    };
    place(*m_reveal, 0, side);
    place(*m_capsLockWords, side, words);
    place(*m_capsLockSign, side + words, side);
    m_capsLockSign->setAlignment(Qt::AlignCenter);
    const int taken = side + (m_capsLock ? words + side : 0);
    setTextMargins(mirrored ? taken : 0, 0, mirrored ? 0 : taken, 0);
}

} // namespace zelto
