#pragma once

#include <QTableView>

namespace zelto {

/// The area table, sized for the rows it can usually have: three areas and the tool area. More
/// than that scroll. Its columns are as wide as their contents, and share what is left.
class AreaTableView : public QTableView {
    Q_OBJECT

public:
    explicit AreaTableView(QWidget* parent = nullptr);

    void setModel(QAbstractItemModel* model) override;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void followFont();
    void followContents();
    [[nodiscard]] int contentWidth(int column) const;
    [[nodiscard]] int contentWidth() const;
};

} // namespace zelto
