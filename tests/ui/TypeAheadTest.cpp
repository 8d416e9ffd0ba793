#include "ui/TypeAhead.h"
#include "ui/WorkIndicator.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <optional>

namespace zelto::test {
namespace {

class TypeAheadTest : public ::testing::Test {
protected:
    TypeAheadTest() {
        auto* column = new QVBoxLayout(&window);
        column->addWidget(field);
        column->addWidget(button);
        window.show();
        window.activateWindow();
        QApplication::processEvents();
        field->setText(QStringLiteral("wrong"));
        field->setFocus();
        field->selectAll();
    }

    /// Types while the windows are busy, twice, as in the two pauses around a message.
    void typeWhileBusy(const QString& first, const QString& second) {
        {
            const BusyWindows busy;
            QTest::keyClicks(field, first);
        }
        const BusyWindows busy;
        QTest::keyClicks(field, second);
    }

    QWidget window;
    QLineEdit* field = new QLineEdit(&window);
    QPushButton* button = new QPushButton(QStringLiteral("&Press"), &window);
};

TEST_F(TypeAheadTest, WhatIsTypedWhileBusyArrivesInOrderInPlaceOfTheSelection) {
    {
        const TypeAhead typeAhead(*field);
        typeWhileBusy(QStringLiteral("ri"), QStringLiteral("ght"));
        QApplication::processEvents();
        EXPECT_EQ(field->text(), QStringLiteral("wrong")) << "not before it is over";
    }
    QApplication::processEvents();
    EXPECT_EQ(field->text(), QStringLiteral("right"));
}

TEST_F(TypeAheadTest, TheFieldHasTheFocusThen) {
    {
        const TypeAhead typeAhead(*field);
        typeWhileBusy(QStringLiteral("a"), {});
        button->setFocus();
    }
    EXPECT_TRUE(field->hasFocus());
}

TEST_F(TypeAheadTest, BackspaceIsPartOfWhatWasTyped) {
    {
        const TypeAhead typeAhead(*field);
        const BusyWindows busy;
        QTest::keyClicks(field, QStringLiteral("ab"));
        QTest::keyClick(field, Qt::Key_Backspace);
    }
    QApplication::processEvents();
    EXPECT_EQ(field->text(), QStringLiteral("a"));
}

TEST_F(TypeAheadTest, NothingIsPressedThatCouldNotBeSeen) {
    const QSignalSpy entered(field, &QLineEdit::returnPressed);
    const QSignalSpy pressed(button, &QPushButton::clicked);
    {
        const TypeAhead typeAhead(*field);
        const BusyWindows busy;
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Tab}) {
            QTest::keyClick(field, key);
        }
        QTest::keyClick(field, Qt::Key_P, Qt::AltModifier);
        QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
    }
    QApplication::processEvents();
    EXPECT_EQ(entered.count() + pressed.count(), 0);
    EXPECT_EQ(field->text(), QStringLiteral("wrong"));
}

TEST_F(TypeAheadTest, WithoutOneKeysAreSwallowedAsBefore) {
    typeWhileBusy(QStringLiteral("a"), QStringLiteral("b"));
    QApplication::processEvents();
    EXPECT_EQ(field->text(), QStringLiteral("wrong"));
}

TEST_F(TypeAheadTest, AControlThatHasGoneGetsNothing) {
    std::optional<TypeAhead> typeAhead(std::in_place, *field);
    typeWhileBusy(QStringLiteral("a"), {});
    delete field;
    typeAhead.reset();
    QApplication::processEvents();
}

} // namespace
} // namespace zelto::test
