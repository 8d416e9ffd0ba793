#pragma once

#include "digest/SecretText.h"

#include <QClipboard>
#include <QLineEdit>
#include <QStringView>

namespace zelto {

/// A line for a password or a key. The toolkit's own line, from which it inherits the cursor, the
/// selection and the rest, holds a bullet for each character and nothing else: its history, its
/// accessible object, the input method and the clipboard know no more than that. The text itself
/// is here, and only its painting goes through the toolkit, a character at a time.
///
/// QLineEdit::text() is the bullets. A text that is set there by somebody who knows the line only
/// as a QLineEdit is taken over.
class SecretField : public QLineEdit {
    Q_OBJECT

public:
    /// Whether a character is left out of what is typed and pasted.
    using Separator = bool (*)(QChar);

    enum class Shown { Bullets, Text };

    /// Valid until the text changes.
    [[nodiscard]] QStringView secret() const { return m_secret.view(); }
    [[nodiscard]] const SecretText& secretText() const { return m_secret; }
    /// Silent for textEdited, as QLineEdit::setText() is.
    void setSecret(QStringView text);
    /// Empties the field; silent for textEdited.
    void wipe();

    /// What is in the clipboard comes in; the program's own copies of it are overwritten.
    void paste(QClipboard::Mode mode = QClipboard::Clipboard);

    [[nodiscard]] bool showsText() const { return m_shown == Shown::Text; }

    [[nodiscard]] QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

Q_SIGNALS:
    /// However it has changed. QLineEdit::textChanged() is not told of a change of as many
    /// characters.
    void secretChanged();

protected:
    SecretField(Separator isSeparator, QWidget* parent);

    void setShown(Shown shown);

    /// Before which character a click at this point means to stand.
    [[nodiscard]] virtual int positionAt(const QPoint& point);
    /// Draws one character of the text into its cell, as selected if it is.
    void paintCharacter(QPainter& painter, int index, const QRectF& cell) const;

    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void insertSecret(QStringView text);
    [[nodiscard]] QString bullets() const;
    void showBullets(int cursor);
    void followBullets();
    void takeOver(const QString& text);
    void paintText();

    Separator m_isSeparator;
    Shown m_shown = Shown::Bullets;
    SecretText m_secret;
    /// The bullets are being changed to fit the text, not the other way round.
    bool m_isLeading = false;
};

} // namespace zelto
