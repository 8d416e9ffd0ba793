#pragma once

#include <QLineEdit>

namespace zelto {

/// A line for a number, as wide as its digits need. It takes any text; whether that is a number is
/// judged by the window's own rule.
class NumberField : public QLineEdit {
    Q_OBJECT
    Q_PROPERTY(int digits READ digits WRITE setDigits)

public:
    explicit NumberField(QWidget* parent = nullptr);

    [[nodiscard]] int digits() const { return m_digits; }
    void setDigits(int digits);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

private:
    int m_digits = 4;
};

} // namespace zelto
