#include "ui/FittingArea.h"
#include "ui/ClippedTexts.h"
#include "ui/Forms.h"

#include <QApplication>
#include <QScrollBar>

#include <gtest/gtest.h>

namespace zelto::test {
namespace {

constexpr QSize Plenty{4000, 4000};

class FittingAreaTest : public ::testing::Test {
protected:
    [[nodiscard]] QBoxLayout::Direction directionIn(const QSize& room) {
        form.resizeToFit(room);
        return form.columns->direction();
    }
    [[nodiscard]] const FittingArea& area() const { return *form.findChild<FittingArea*>(); }

    Form<Ui::PasswordChangeWindow> form;
};

TEST_F(FittingAreaTest, LeavesTheColumnsAsTheFormHasThemWhereTheyFit) {
    EXPECT_EQ(directionIn(Plenty), QBoxLayout::TopToBottom);
    EXPECT_EQ(area().sizeHint(), area().minimumSizeHint().expandedTo(area().sizeHint()));
}

TEST_F(FittingAreaTest, PutsThemBesideEachOtherWhereTheScreenIsLow) {
    EXPECT_EQ(directionIn(Plenty), QBoxLayout::TopToBottom);
    const QSize tall = form.size();
    EXPECT_EQ(directionIn({tall.width() * 3, tall.height() - 40}), QBoxLayout::LeftToRight);
    EXPECT_LT(form.height(), tall.height());
    EXPECT_EQ(directionIn(Plenty), QBoxLayout::TopToBottom);
}

TEST_F(FittingAreaTest, RatherScrollsDownwardsThanToTheSide) {
    EXPECT_EQ(directionIn(Plenty), QBoxLayout::TopToBottom);
    const QSize narrowAndLow(area().minimumSizeHint().width() + 60, form.height() / 2);
    EXPECT_EQ(directionIn(narrowAndLow), QBoxLayout::TopToBottom);
    form.show();
    QApplication::processEvents();
    EXPECT_LE(form.height(), narrowAndLow.height());
    EXPECT_GT(area().verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(area().horizontalScrollBar()->maximum(), 0);
}

// A bar that is needed until the window has grown narrows what is beside it, and a text may have
// one line more for it.
TEST_F(FittingAreaTest, HasNoBarAfterTheWindowHasGrown) {
    form.resizeToFit(Plenty);
    form.show();
    for (int words = 0; words < 60; ++words) {
        for (QLabel* const label : std::initializer_list<QLabel*>{form.PC_TrialsCue, form.label1}) {
            label->setText(label->text() + QStringLiteral(" more"));
        }
        settle(form);
        EXPECT_FALSE(area().verticalScrollBar()->isVisible()) << words;
    }
}

TEST_F(FittingAreaTest, BringsTheControlThatGetsTheFocusIntoView) {
    form.resizeToFit({form.sizeHint().width() + 60, 260});
    form.show();
    form.activateWindow();
    QApplication::processEvents();
    form.PC_OKButton->setEnabled(true);
    form.PC_OKButton->setFocus();
    for (QWidget* control : std::initializer_list<QWidget*>{form.PC_AgainNew2ndPasswordText,
                                                            form.PC_Current1stPasswordText}) {
        control->setEnabled(true);
        control->setFocus();
        const QPoint top = control->mapTo(area().viewport(), QPoint());
        EXPECT_TRUE(area().viewport()->rect().contains(QRect(top, control->size())))
            << control->objectName().toStdString();
    }
}

} // namespace
} // namespace zelto::test
