#include "ui/AreaTableModel.h"
#include "ui/AreaTableView.h"

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace zelto::test {
namespace {

class AreaTableTest : public ::testing::Test {
protected:
    [[nodiscard]] QString cell(int row, int column) const {
        return model.data(model.index(row, column), Qt::DisplayRole).toString();
    }

    int rows = 2;
    AreaTableModel model{{[this] { return rows; },
                          [](const QString& column, int row) {
                              return QStringLiteral("%1@%2").arg(column).arg(row);
                          }}};
};

TEST_F(AreaTableTest, IsEmptyUntilItIsFirstLoaded) {
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_EQ(model.columnCount(), 3);
}

TEST_F(AreaTableTest, AsksForEachCellByItsColumnsIdentifier) {
    model.reloadData();
    EXPECT_EQ(cell(0, 0), QStringLiteral("ColumnIDDisk@0"));
    EXPECT_EQ(cell(1, 1), QStringLiteral("ColumnIDType@1"));
    EXPECT_EQ(cell(1, 2), QStringLiteral("ColumnIDCapacity@1"));
}

TEST_F(AreaTableTest, KeepsItsNumberOfRowsUntilItIsReloaded) {
    model.reloadData();
    rows = 4;
    EXPECT_EQ(model.rowCount(), 2);
    const QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    model.reloadData();
    EXPECT_EQ(model.rowCount(), 4);
    EXPECT_EQ(reset.count(), 1);
}

TEST_F(AreaTableTest, ANegativeNumberOfRowsIsNone) {
    rows = -3;
    model.reloadData();
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(AreaTableTest, CellsOutsideTheTableAreNothing) {
    model.reloadData();
    EXPECT_FALSE(model.data({}, Qt::DisplayRole).isValid());
    EXPECT_FALSE(model.headerData(3, Qt::Horizontal, Qt::DisplayRole).isValid());
    EXPECT_FALSE(model.headerData(-1, Qt::Horizontal, Qt::DisplayRole).isValid());
    EXPECT_FALSE(model.headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
}

TEST_F(AreaTableTest, EveryColumnHasATitle) {
    for (int column = 0; column < 3; ++column) {
        const QVariant title = model.headerData(column, Qt::Horizontal, Qt::DisplayRole);
        EXPECT_FALSE(title.toString().isEmpty());
    }
}

TEST_F(AreaTableTest, BehavesAsAModelShould) {
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.reloadData();
    rows = 0;
    model.reloadData();
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(AreaTableTest, TheViewHasRoomForThreeAreasAndTheToolArea) {
    AreaTableView view;
    view.setModel(&model);
    rows = 4;
    model.reloadData();
    view.resize(view.sizeHint());
    view.show();
    const QRect last = view.visualRect(model.index(3, 0));
    EXPECT_TRUE(view.viewport()->rect().contains(last));
}

TEST_F(AreaTableTest, ItsColumnsFitTheirContentsAndFillTheView) {
    AreaTableView view;
    view.verticalHeader()->hide();
    view.setModel(&model);
    model.reloadData();
    view.show();
    for (const int extra : {0, 1, 200}) {
        view.resize(view.sizeHint() + QSize(extra, 0));
        int width = 0;
        for (int column = 0; column < 3; ++column) {
            const QString text = cell(0, column);
            EXPECT_GT(view.columnWidth(column), view.fontMetrics().horizontalAdvance(text));
            width += view.columnWidth(column);
        }
        EXPECT_EQ(width, view.viewport()->width());
    }
}

} // namespace
} // namespace zelto::test
