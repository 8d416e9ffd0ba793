#include "ui/KeyField.h"

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

namespace zelto::test {
namespace {

class KeyFieldTest : public ::testing::Test {
protected:
    KeyFieldTest() {
        field.resize(field.sizeHint());
        field.show();
        field.activateWindow();
        QApplication::processEvents();
        field.setFocus();
    }

    void enter(int digits) { field.setSecret(QString(digits, u'8')); }
    /// The caret shows where on the screen the cursor stands.
    [[nodiscard]] QRect caret() const {
        return field.inputMethodQuery(Qt::ImCursorRectangle).toRect();
    }
    [[nodiscard]] QRect caretAt(int position) {
        field.setCursorPosition(position);
        return caret();
    }

    KeyField field;
};

TEST_F(KeyFieldTest, ShowsThe128DigitsOfTheLongestKeyInFourLines) {
    enter(128);
    for (const int position : {0, 1, 31, 32, 64, 127, 128}) {
        EXPECT_TRUE(field.rect().contains(caretAt(position))) << position;
    }
    EXPECT_EQ(caretAt(0).top(), caretAt(31).top());
    EXPECT_LT(caretAt(31).top(), caretAt(32).top());
    EXPECT_EQ(caretAt(0).left(), caretAt(32).left());
    EXPECT_EQ(caretAt(127).top(), caretAt(128).top());
}

TEST_F(KeyFieldTest, SetsGroupsOfEightApart) {
    enter(128);
    const int inGroup = caretAt(7).left() - caretAt(6).left();
    const int betweenGroups = caretAt(8).left() - caretAt(7).left();
    EXPECT_GT(inGroup, 0);
    EXPECT_EQ(betweenGroups, 2 * inGroup);
}

TEST_F(KeyFieldTest, ItsTextIsTheDigitsAlone) {
    QTest::keyClicks(&field, QStringLiteral("0A1B 2C3D:4E5F"));
    EXPECT_EQ(field.secret(), u"0A1B2C3D4E5F");
}

TEST_F(KeyFieldTest, ScrollsToTheCursorWhenThereAreMoreDigitsThanAKeyHas) {
    enter(160);
    EXPECT_TRUE(field.rect().contains(caretAt(160)));
    EXPECT_TRUE(field.rect().contains(caretAt(0)));
}

TEST_F(KeyFieldTest, AClickPutsTheCursorBeforeTheDigitUnderIt) {
    enter(128);
    for (const int position : {0, 5, 9, 40, 100, 127}) {
        const QRect wanted = caretAt(position);
        field.setCursorPosition(0);
        QTest::mouseClick(&field, Qt::LeftButton, {}, wanted.center());
        EXPECT_EQ(field.cursorPosition(), position);
    }
}

TEST_F(KeyFieldTest, DraggingSelectsAndTypingReplacesTheSelection) {
    enter(64);
    const QPoint from = caretAt(2).center();
    const QPoint to = caretAt(40).center();
    QTest::mousePress(&field, Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, to, field.mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&field, &move);
    QTest::mouseRelease(&field, Qt::LeftButton, {}, to);
    EXPECT_EQ(field.selectionStart(), 2);
    EXPECT_EQ(field.selectionLength(), 38);
    QTest::keyClick(&field, Qt::Key_A);
    EXPECT_EQ(field.secret().size(), 64 - 38 + 1);
}

TEST_F(KeyFieldTest, ADoubleClickSelectsAGroup) {
    enter(64);
    QTest::mouseDClick(&field, Qt::LeftButton, {}, caretAt(11).center());
    EXPECT_EQ(field.selectionStart(), 8);
    EXPECT_EQ(field.selectionLength(), 8);
}

TEST_F(KeyFieldTest, UpAndDownGoToTheLineAboveAndBelow) {
    enter(100);
    field.setCursorPosition(40);
    QTest::keyClick(&field, Qt::Key_Up);
    EXPECT_EQ(field.cursorPosition(), 8);
    QTest::keyClick(&field, Qt::Key_Up);
    EXPECT_EQ(field.cursorPosition(), 0);
    field.setCursorPosition(90);
    QTest::keyClick(&field, Qt::Key_Down);
    EXPECT_EQ(field.cursorPosition(), 100);
    QTest::keyClick(&field, Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(field.selectionLength(), 32);
}

TEST_F(KeyFieldTest, ReadsFromLeftToRightInEveryLanguage) {
    field.setLayoutDirection(Qt::RightToLeft);
    enter(128);
    EXPECT_LT(caretAt(0).left(), caretAt(1).left());
    EXPECT_TRUE(field.rect().contains(caretAt(31)));
}

} // namespace
} // namespace zelto::test
