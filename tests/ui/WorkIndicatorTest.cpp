#include "ui/WorkIndicator.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <optional>

namespace zelto::test {
namespace {

class WorkIndicatorTest : public ::testing::Test {
protected:
    WorkIndicatorTest() {
        auto* column = new QVBoxLayout(&window);
        column->addWidget(field);
        column->addWidget(button);
        window.show();
        window.activateWindow();
        QApplication::processEvents();
        field->setFocus();
        QApplication::processEvents();
    }

    QWidget window;
    QLineEdit* field = new QLineEdit(&window);
    QPushButton* button = new QPushButton(QStringLiteral("&Press"), &window);
};

TEST_F(WorkIndicatorTest, KeysAndClicksAreSwallowedWhileBusy) {
    const QSignalSpy pressed(button, &QPushButton::clicked);
    {
        const BusyWindows busy;
        QTest::keyClicks(field, QStringLiteral("abc"));
        QTest::mouseClick(button, Qt::LeftButton);
        QTest::keyClick(&window, Qt::Key_P, Qt::AltModifier);
        QTest::keyClick(button, Qt::Key_Space);
    }
    EXPECT_TRUE(field->text().isEmpty());
    EXPECT_EQ(pressed.count(), 0);
}

TEST_F(WorkIndicatorTest, InputWorksAgainAfterwards) {
    std::optional<BusyWindows> busy(std::in_place);
    busy.reset();
    const QSignalSpy pressed(button, &QPushButton::clicked);
    QTest::keyClicks(field, QStringLiteral("abc"));
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(field->text(), QStringLiteral("abc"));
    EXPECT_EQ(pressed.count(), 1);
}

TEST_F(WorkIndicatorTest, WindowsCannotBeClosedWhileBusy) {
    {
        const BusyWindows busy;
        EXPECT_FALSE(window.close());
        EXPECT_TRUE(window.isVisible());
    }
    EXPECT_TRUE(window.close());
}

TEST_F(WorkIndicatorTest, BusyPeriodsNest) {
    const BusyWindows outer;
    { const BusyWindows inner; }
    QTest::keyClicks(field, QStringLiteral("abc"));
    EXPECT_TRUE(field->text().isEmpty());
}

TEST_F(WorkIndicatorTest, ThePointerIsAsBeforeAfterwards) {
    { const BusyWindows busy; }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

} // namespace
} // namespace zelto::test
