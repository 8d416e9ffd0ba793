#pragma once

#include <QLabel>
#include <QString>

#include <functional>

namespace zelto {

/// A label for a text that changes while its window is open: it has room from the beginning for
/// the text it is known to hold later, and keeps the room of the widest that it has shown, also
/// while it is hidden. So what is around it doesn't move. From right to left it begins at the right
/// whatever it holds, digits too.
class SteadyLabel : public QLabel {
    Q_OBJECT
    Q_PROPERTY(QString holds READ holds WRITE setHolds)

public:
    explicit SteadyLabel(QWidget* parent = nullptr);

    /// What it is going to hold at the most; each digit stands for any.
    [[nodiscard]] const QString& holds() const { return m_holds; }
    void setHolds(const QString& text);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void beginWhereLinesDo();
    [[nodiscard]] QSize room(const std::function<QSize(const QLabel&)>& measure) const;
    [[nodiscard]] int advanceOf(const QString& text) const;
    [[nodiscard]] QString withWidestDigits(QString text) const;

    QString m_holds;
    mutable QString m_widest;
};

} // namespace zelto
