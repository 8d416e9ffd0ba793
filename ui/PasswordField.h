#pragma once

#include "ui/SecretField.h"

class QLabel;
class QToolButton;

namespace zelto {

/// A line for a password, without line breaks. It shows bullets; its eye shows the text only while
/// it is held down. It warns while letters arrive as with Caps Lock.
class PasswordField : public SecretField {
    Q_OBJECT

public:
    explicit PasswordField(QWidget* parent = nullptr);

    /// As SecretField, and the warning goes.
    void wipe();

    /// Letters arrive as if Caps Lock were on.
    [[nodiscard]] bool warnsOfCapsLock() const { return m_capsLock; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void followCapsLock(const QKeyEvent& event);
    void setCapsLock(bool on);
    void renderIcons();
    void placeIcons();

    QToolButton* m_reveal = nullptr;
    QLabel* m_capsLockSign = nullptr;
    bool m_capsLock = false;
};

} // namespace zelto
