#pragma once

#include <QLabel>

namespace zelto {

/// The product's icon as a window shows it beside its heading. Decoration: it has no text, takes
/// no focus, and grows with the font.
class ProductIcon : public QLabel {
    Q_OBJECT

public:
    explicit ProductIcon(QWidget* parent = nullptr);

    /// The icon in the sizes of the windows' frames and the task bar: 16 to 64 pixels, and up
    /// to as many more as the finest screen has in one.
    [[nodiscard]] static QIcon icon();

protected:
    void changeEvent(QEvent* event) override;

private:
    void render();
};

} // namespace zelto
