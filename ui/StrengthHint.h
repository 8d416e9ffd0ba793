#pragma once

#include <QLabel>

namespace zelto {

/// Says how strong a new password is, in words, with a bar of four parts before them. It decides
/// nothing, and says nothing at strength 0.
class StrengthHint : public QLabel {
    Q_OBJECT

public:
    static constexpr int Strongest = 4;

    explicit StrengthHint(QWidget* parent = nullptr);

    /// 0 to Strongest.
    void setStrength(int strength);
    [[nodiscard]] int strength() const { return m_strength; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    [[nodiscard]] int barWidth() const;
    void makeRoomForBar();

    int m_strength = 0;
};

} // namespace zelto
