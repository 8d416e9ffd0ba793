#pragma once

#include <QLabel>

namespace zelto {

/// What a window is about: the window's font, a little larger and heavier.
class HeadingLabel : public QLabel {
    Q_OBJECT

public:
    explicit HeadingLabel(QWidget* parent = nullptr);

    /// One line, unless the heading is very long.
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void followApplicationFont();
};

} // namespace zelto
