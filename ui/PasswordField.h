#pragma once

#include <QLineEdit>

class QLabel;
class QToolButton;

namespace zelto {

/// A line for a password, without line breaks. It shows dots; its eye shows the text only while it
/// is held down. It warns while letters arrive as with Caps Lock, gives nothing to the clipboard,
/// and keeps no history of what was typed.
class PasswordField : public QLineEdit {
    Q_OBJECT

public:
    explicit PasswordField(QWidget* parent = nullptr);
    ~PasswordField() override;

    /// Empties the field and overwrites its characters in memory, unless a QString got from text()
    /// still shares them. Copies that Qt made on the way here, in events or the input method, are
    /// out of reach. Silent for textEdited.
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
    enum class Shown { Dots, Text };

    void reveal(Shown shown);
    void overwriteOwnCharacters();
    void dropHistoryAndLineBreaks();
    void followCapsLock(const QKeyEvent& event);
    void setCapsLock(bool on);
    void renderIcons();
    void placeIcons();

    QToolButton* m_reveal = nullptr;
    QLabel* m_capsLockSign = nullptr;
    bool m_capsLock = false;
};

} // namespace zelto
