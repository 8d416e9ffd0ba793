#pragma once

#include <QButtonGroup>
#include <QWidget>

namespace zelto {

/// A group of radio buttons of which one is selected, each known by its "tag": an int property
/// that Designer gives to the button. Disabling the matrix disables every cell.
class RadioMatrix : public QWidget {
    Q_OBJECT

public:
    explicit RadioMatrix(QWidget* parent = nullptr);

    /// The tag of the selected cell; -1 while none is selected.
    [[nodiscard]] int selectedTag() const;
    /// Selects the cell; an unknown tag changes nothing. Silent: no signal.
    void selectCellWithTag(int tag);

Q_SIGNALS:
    /// The user chose the cell, by mouse or keyboard; also when it was selected already.
    void cellActivated(int tag);

protected:
    void childEvent(QChildEvent* event) override;

private:
    /// All buttons that have a tag by now.
    [[nodiscard]] QButtonGroup& cells() const;

    QButtonGroup* m_cells = new QButtonGroup(this);
};

} // namespace zelto
