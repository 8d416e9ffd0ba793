#pragma once

#include <QObject>

class QDialog;
class QPushButton;

namespace zelto {

/// What the Return and Enter keys press in a dialog. Left to the toolkit this differs between
/// desktops: some press the default button wherever the focus is, some whatever has the focus,
/// check boxes too. So the keys are taken before any control sees them.
class ReturnKey : public QObject {
public:
    enum class Presses {
        /// The button that has the focus; the default one only when no button has it.
        FocusedButton,
        /// The default button, wherever the focus is.
        DefaultButton,
    };

    ReturnKey(QDialog& dialog, Presses presses);

    /// Takes the keys from every control that the dialog has now. Call it once they all exist, and
    /// again when there are more.
    void watchControls();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] QPushButton* button() const;

    QDialog& m_dialog;
    Presses m_presses;
};

} // namespace zelto
