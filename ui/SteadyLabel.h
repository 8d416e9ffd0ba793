#pragma once

#include <QLabel>

namespace zelto {

/// A label that keeps the room of the largest text it has shown, so that a text that comes and
/// goes doesn't move what is around it.
class SteadyLabel : public QLabel {
    Q_OBJECT

public:
    explicit SteadyLabel(QWidget* parent = nullptr) : QLabel(parent) {}

    [[nodiscard]] QSize sizeHint() const override { return roomFor(QLabel::sizeHint()); }
    [[nodiscard]] QSize minimumSizeHint() const override {
        return roomFor(QLabel::minimumSizeHint());
    }

protected:
    void changeEvent(QEvent* event) override;

private:
    [[nodiscard]] QSize roomFor(const QSize& size) const;

    mutable QSize m_largest;
};

} // namespace zelto
