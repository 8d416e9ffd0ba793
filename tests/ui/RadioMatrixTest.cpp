#include "ui/RadioMatrix.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace zelto::test {
namespace {

class RadioMatrixTest : public ::testing::Test {
protected:
    RadioMatrixTest() {
        auto* row = new QHBoxLayout(&matrix);
        for (const int tag : {0, 1, 7}) {
            auto* cell = new QRadioButton(QString::number(tag), &matrix);
            cell->setProperty("tag", tag);
            row->addWidget(cell);
            cells.append(cell);
        }
        matrix.show();
    }

    RadioMatrix matrix;
    QList<QRadioButton*> cells;
};

TEST_F(RadioMatrixTest, NoCellIsSelectedAtFirst) {
    EXPECT_EQ(matrix.selectedTag(), -1);
}

TEST_F(RadioMatrixTest, SelectingATagSelectsItsCellSilently) {
    const QSignalSpy activated(&matrix, &RadioMatrix::cellActivated);
    matrix.selectCellWithTag(7);
    EXPECT_EQ(matrix.selectedTag(), 7);
    matrix.selectCellWithTag(0);
    EXPECT_EQ(matrix.selectedTag(), 0);
    EXPECT_FALSE(cells[2]->isChecked());
    EXPECT_EQ(activated.count(), 0);
}

TEST_F(RadioMatrixTest, AnUnknownTagChangesNothing) {
    matrix.selectCellWithTag(1);
    matrix.selectCellWithTag(99);
    EXPECT_EQ(matrix.selectedTag(), 1);
}

TEST_F(RadioMatrixTest, AClickSelectsTheCellAndTellsItsTag) {
    const QSignalSpy activated(&matrix, &RadioMatrix::cellActivated);
    QTest::mouseClick(cells[2], Qt::LeftButton, {}, {5, cells[2]->height() / 2});
    ASSERT_EQ(activated.count(), 1);
    EXPECT_EQ(activated.at(0).at(0).toInt(), 7);
    EXPECT_EQ(matrix.selectedTag(), 7);
}

TEST_F(RadioMatrixTest, AClickOnTheSelectedCellIsToldToo) {
    matrix.selectCellWithTag(0);
    const QSignalSpy activated(&matrix, &RadioMatrix::cellActivated);
    cells[0]->click();
    EXPECT_EQ(activated.count(), 1);
}

TEST_F(RadioMatrixTest, ArrowKeysMoveTheSelectionAsTheUsersDoing) {
    matrix.selectCellWithTag(0);
    matrix.activateWindow();
    QApplication::processEvents();
    cells[0]->setFocus();
    const QSignalSpy activated(&matrix, &RadioMatrix::cellActivated);
    QTest::keyClick(cells[0], Qt::Key_Right);
    ASSERT_EQ(activated.count(), 1);
    EXPECT_EQ(matrix.selectedTag(), 1);
}

TEST_F(RadioMatrixTest, DisablingItDisablesEveryCell) {
    matrix.setEnabled(false);
    for (const QRadioButton* cell : cells) {
        EXPECT_FALSE(cell->isEnabled());
    }
    const QSignalSpy activated(&matrix, &RadioMatrix::cellActivated);
    cells[1]->click();
    EXPECT_EQ(activated.count(), 0);
}

TEST_F(RadioMatrixTest, ARadioButtonWithoutATagIsNoCell) {
    auto* stranger = new QRadioButton(&matrix);
    const QSignalSpy activated(&matrix, &RadioMatrix::cellActivated);
    stranger->click();
    EXPECT_EQ(activated.count(), 0);
    EXPECT_EQ(matrix.selectedTag(), -1);
}

} // namespace
} // namespace zelto::test
