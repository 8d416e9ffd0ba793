#pragma once

#include "ui/SecretField.h"

#include <QStringView>

#include <functional>
#include <optional>
#include <utility>

class QLabel;
class QToolButton;

namespace zelto {

/// Whether Caps Lock is on, as far as a letter that is typed with or without Shift tells it.
[[nodiscard]] std::optional<bool> capsLockOf(QStringView typed, bool withShift);

/// A line for a password, without line breaks. It shows bullets; its eye, the next stop of the tab
/// key, shows the text until it is pressed again or both are left. Caps Lock is warned of in words.
class PasswordField : public SecretField {
    Q_OBJECT

public:
    /// Whether Caps Lock is on; nothing where that cannot be known.
    using CapsLockState = std::function<std::optional<bool>()>;

    explicit PasswordField(QWidget* parent = nullptr);
    ~PasswordField() override;

    /// As SecretField, and text and warning are no longer shown.
    void wipe();
    /// Shows bullets again.
    void hideText();

    /// Asked when the field gets the focus and at each key. Without an answer the letters that
    /// arrive tell.
    void setCapsLockState(CapsLockState state) { m_capsLockState = std::move(state); }
    [[nodiscard]] bool warnsOfCapsLock() const { return m_capsLock; }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void makeReveal();
    void makeCapsLockSign();
    void followReveal(bool on);
    void followFocus(const QWidget* now);
    void followCapsLock(const QKeyEvent& event);
    [[nodiscard]] bool askForCapsLock();
    void setCapsLock(bool on);
    [[nodiscard]] int capsLockWordsWidth() const;
    [[nodiscard]] int fewBullets() const;
    void renderIcons();
    void placeIcons();

    QToolButton* m_reveal = nullptr;
    QLabel* m_capsLockSign = nullptr;
    QLabel* m_capsLockWords = nullptr;
    CapsLockState m_capsLockState;
    bool m_capsLock = false;
};

} // namespace zelto
