#pragma once

#include <QBoxLayout>
#include <QScrollArea>

#include <utility>

namespace zelto {

/// The contents of a window, which scroll where the screen has no room for all of them. Where it
/// has, the area asks for exactly what its contents ask for, as if it were not there.
class FittingArea : public QScrollArea {
    Q_OBJECT

public:
    /// The object name of the layout that may be one column or two, whichever fits.
    static constexpr const char* ColumnsName = "columns";

    /// Takes all that the window's layout holds but its last row, the buttons, and puts itself in
    /// their place.
    explicit FittingArea(QBoxLayout& window);
    ~FittingArea() override;

    /// The most that the area may ask for.
    void setRoom(const QSize& room);
    /// As setRoom(), and turns the columns: as the form has them if all fits so, else the other way
    /// if all fits that way, else whichever needs no scrolling to the side and less of it
    /// downwards.
    void foldInto(const QSize& room);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    /// What the contents ask for has changed, and with it what the area asks for.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Cost = std::pair<int, int>;

    [[nodiscard]] Cost costAs(QBoxLayout::Direction direction);
    void turn(QBoxLayout::Direction direction);
    [[nodiscard]] QSize wholeSize() const;
    [[nodiscard]] QSize asked(QSize size) const;
    [[nodiscard]] int scrollBarWidth() const;
    [[nodiscard]] int wholeHeight(int width) const;
    void dropNeedlessBar();
    void showFocused(QWidget* focused);

    QBoxLayout* m_contents = nullptr;
    QBoxLayout* m_columns = nullptr;
    QBoxLayout::Direction m_designed = QBoxLayout::TopToBottom;
    QSize m_room{QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};
};

} // namespace zelto
