#pragma once

#include "ui/SecretField.h"

namespace zelto {

/// A field for the digits of a key, which it shows whole: in groups, the 128 of the longest key in
/// four lines. Blanks, colons and line breaks between the digits are left out, so the text is the
/// digits alone. More than fit are scrolled to by the cursor.
class KeyField : public SecretField {
    Q_OBJECT

public:
    explicit KeyField(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
    [[nodiscard]] QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

protected:
    [[nodiscard]] int positionAt(const QPoint& point) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] int digitWidth() const;
    [[nodiscard]] int lineHeight() const;
    /// Of the digits, at the size of the field as it is.
    [[nodiscard]] QRect grid() const;
    [[nodiscard]] int firstLine() const;
    [[nodiscard]] int size() const { return static_cast<int>(secret().size()); }
    [[nodiscard]] QRect cellOf(int index) const;
    [[nodiscard]] QRect caret() const;
    [[nodiscard]] int anchor() const;
    void moveCursor(int position, bool selecting);
};

} // namespace zelto
