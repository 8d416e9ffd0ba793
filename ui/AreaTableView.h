#pragma once

#include <QTableView>

namespace zelto {

/// The area table, sized for the rows it can usually have: three areas and the tool area. More
/// than that scroll.
class AreaTableView : public QTableView {
    Q_OBJECT

public:
    explicit AreaTableView(QWidget* parent = nullptr);

    void setModel(QAbstractItemModel* model) override;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void changeEvent(QEvent* event) override;

private:
    void followFont();
};

} // namespace zelto
