#include "ui/PasswordField.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>

#include <gtest/gtest.h>

#include <algorithm>

namespace zelto::test {
namespace {

class PasswordFieldTest : public ::testing::Test {
protected:
    PasswordFieldTest() {
        auto* column = new QVBoxLayout(&window);
        column->addWidget(field);
        auto* const other = new QLineEdit(&window);
        other->setObjectName(QStringLiteral("other"));
        column->addWidget(other);
        window.show();
        window.activateWindow();
        QApplication::processEvents();
        field->setFocus();
    }

    [[nodiscard]] QToolButton* eye() const { return field->findChild<QToolButton*>(); }
    /// Of the text alone: the eye looks different while it is pressed.
    [[nodiscard]] QImage picture() const {
        const QRect text(0, 0, field->width() - 2 * field->height(), field->height());
        return field->grab(text).toImage();
    }

    QWidget window;
    PasswordField* field = new PasswordField(&window);
};

TEST_F(PasswordFieldTest, TheEyeShowsTheTextUntilItIsPressedAgain) {
    field->setSecret(QStringLiteral("secret"));
    QTest::mouseClick(eye(), Qt::LeftButton);
    EXPECT_TRUE(eye()->isChecked());
    const QImage shown = picture();
    QTest::mouseClick(eye(), Qt::LeftButton);
    EXPECT_FALSE(eye()->isChecked());
    const QImage hidden = picture();
    field->setSecret(QStringLiteral("tersec"));
    EXPECT_EQ(picture(), hidden) << "bullets are all alike";
    QTest::mouseClick(eye(), Qt::LeftButton);
    EXPECT_NE(picture(), shown) << "texts are not";
    field->setSecret(QStringLiteral("secret"));
    EXPECT_EQ(picture(), shown);
}

TEST_F(PasswordFieldTest, TheEyeIsDrawnAnewOnAnotherScreen) {
    const qint64 before = eye()->icon().cacheKey();
    Q_EMIT window.windowHandle()->screenChanged(nullptr);
    EXPECT_NE(eye()->icon().cacheKey(), before);
}

TEST_F(PasswordFieldTest, TheTextIsHiddenAgainWhenTheWindowIsLeft) {
    field->setSecret(QStringLiteral("secret"));
    QTest::mouseClick(eye(), Qt::LeftButton);
    ASSERT_TRUE(field->showsText());
    window.hide();
    EXPECT_FALSE(field->showsText());
    EXPECT_FALSE(eye()->isChecked());
}

TEST_F(PasswordFieldTest, TheTextIsHiddenAgainWhenTheFieldIsDisabled) {
    QTest::mouseClick(eye(), Qt::LeftButton);
    ASSERT_TRUE(field->showsText());
    field->setEnabled(false);
    EXPECT_FALSE(field->showsText());
}

TEST_F(PasswordFieldTest, TheTextIsHiddenAgainWhenItIsWiped) {
    QTest::mouseClick(eye(), Qt::LeftButton);
    field->wipe();
    EXPECT_FALSE(field->showsText());
}

TEST_F(PasswordFieldTest, TheEyeIsTheNextTabStopAndIsPressedByTheSpaceBar) {
    QTest::keyClick(field, Qt::Key_Tab);
    ASSERT_TRUE(eye()->hasFocus());
    QTest::keyClick(eye(), Qt::Key_Space);
    EXPECT_TRUE(field->showsText());
    QTest::keyClick(eye(), Qt::Key_Backtab);
    EXPECT_TRUE(field->hasFocus());
    EXPECT_TRUE(field->showsText()) << "between the field and its eye it stays";
}

TEST_F(PasswordFieldTest, TheTextIsHiddenAgainWhenFieldAndEyeAreLeft) {
    QTest::keyClick(field, Qt::Key_Tab);
    QTest::keyClick(eye(), Qt::Key_Space);
    QTest::keyClick(eye(), Qt::Key_Tab);
    EXPECT_FALSE(eye()->hasFocus());
    EXPECT_FALSE(field->showsText());
    EXPECT_FALSE(eye()->isChecked());
}

TEST_F(PasswordFieldTest, AClickOnTheEyeLeavesTheFocusInTheField) {
    QTest::mouseClick(eye(), Qt::LeftButton);
    EXPECT_TRUE(field->hasFocus());
}

TEST_F(PasswordFieldTest, AClickOnTheEyeOfAnotherFieldGoesThere) {
    window.findChild<QLineEdit*>(QStringLiteral("other"))->setFocus();
    QTest::mouseClick(eye(), Qt::LeftButton);
    EXPECT_TRUE(field->hasFocus());
    EXPECT_TRUE(field->showsText());
}

TEST_F(PasswordFieldTest, GoesWithTheFocusOnItsEye) {
    QTest::keyClick(field, Qt::Key_Tab);
    ASSERT_TRUE(eye()->hasFocus());
    delete field;
    EXPECT_EQ(QApplication::focusWidget(), nullptr);
}

TEST_F(PasswordFieldTest, TheEyeSaysWhatItDoesAndWhetherItIsDone) {
    QAccessibleInterface* const heard = QAccessible::queryAccessibleInterface(eye());
    EXPECT_FALSE(heard->text(QAccessible::Name).isEmpty());
    EXPECT_EQ(heard->role(), QAccessible::CheckBox);
    EXPECT_FALSE(heard->state().checked);
    QTest::mouseClick(eye(), Qt::LeftButton);
    EXPECT_TRUE(heard->state().checked);
}

TEST_F(PasswordFieldTest, NothingReachesTheClipboardEvenWhileTheTextIsShown) {
    QApplication::clipboard()->setText(QStringLiteral("before"));
    field->setSecret(QStringLiteral("secret"));
    QTest::mouseClick(eye(), Qt::LeftButton);
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(field, Qt::Key_C, Qt::ControlModifier);
    QTest::keyClick(field, Qt::Key_X, Qt::ControlModifier);
    QTest::keyClick(field, Qt::Key_Insert, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("before"));
    EXPECT_EQ(field->secret(), QStringLiteral("secret"));
}

TEST_F(PasswordFieldTest, NothingTypedCanBeUndone) {
    QTest::keyClicks(field, QStringLiteral("abc"));
    EXPECT_EQ(field->secret(), QStringLiteral("abc"));
    EXPECT_FALSE(field->isUndoAvailable());
}

TEST_F(PasswordFieldTest, TypingInTheMiddleKeepsTheCursorWhereItIs) {
    QTest::keyClicks(field, QStringLiteral("ad"));
    QTest::keyClick(field, Qt::Key_Left);
    QTest::keyClicks(field, QStringLiteral("bc"));
    EXPECT_EQ(field->secret(), QStringLiteral("abcd"));
}

TEST_F(PasswordFieldTest, EveryEditOfTheUserIsToldOnce) {
    const QSignalSpy edited(field, &QLineEdit::textEdited);
    QTest::keyClicks(field, QStringLiteral("abc"));
    EXPECT_EQ(edited.count(), 3);
    field->setSecret(QStringLiteral("set by the program"));
    field->wipe();
    EXPECT_EQ(edited.count(), 3);
}

TEST_F(PasswordFieldTest, WipingEmptiesTheField) {
    QTest::keyClicks(field, QStringLiteral("abc"));
    field->wipe();
    EXPECT_TRUE(field->secret().isEmpty());
    field->wipe();
    EXPECT_TRUE(field->secret().isEmpty());
}

TEST_F(PasswordFieldTest, WipingATextFromTheProgramsConstantsIsHarmless) {
    const QString constant = QStringLiteral("constant");
    field->setSecret(constant);
    field->wipe();
    EXPECT_EQ(constant, QStringLiteral("constant"));
    EXPECT_TRUE(field->secret().isEmpty());
}

TEST_F(PasswordFieldTest, ACapitalWithoutShiftWarnsOfCapsLock) {
    EXPECT_FALSE(field->warnsOfCapsLock());
    QTest::sendKeyEvent(QTest::Click, field, Qt::Key_A, QStringLiteral("A"), Qt::NoModifier);
    EXPECT_TRUE(field->warnsOfCapsLock());
    EXPECT_FALSE(field->accessibleDescription().isEmpty());
    EXPECT_TRUE(field->findChild<QLabel*>()->isVisible());
}

TEST_F(PasswordFieldTest, ASmallLetterWithShiftWarnsOfCapsLock) {
    QTest::sendKeyEvent(QTest::Click, field, Qt::Key_A, QStringLiteral("a"), Qt::ShiftModifier);
    EXPECT_TRUE(field->warnsOfCapsLock());
}

TEST_F(PasswordFieldTest, TheWarningGoesWithTheNextOrdinaryLetter) {
    QTest::sendKeyEvent(QTest::Click, field, Qt::Key_A, QStringLiteral("A"), Qt::NoModifier);
    QTest::sendKeyEvent(QTest::Click, field, Qt::Key_B, QStringLiteral("B"), Qt::ShiftModifier);
    EXPECT_FALSE(field->warnsOfCapsLock());
    EXPECT_TRUE(field->accessibleDescription().isEmpty());
}

TEST_F(PasswordFieldTest, DigitsSignsAndLettersWithoutCaseSayNothingAboutCapsLock) {
    for (const char16_t sign : {u'1', u'-', u'!', u'\u05D0', u'\u3042'}) {
        QTest::sendKeyEvent(QTest::Click, field, Qt::Key_unknown, QString(QChar(sign)),
                            Qt::ShiftModifier);
        EXPECT_FALSE(field->warnsOfCapsLock());
    }
}

TEST_F(PasswordFieldTest, TheWarningGoesWhenTheFieldIsLeftOrCapsLockPressed) {
    QTest::sendKeyEvent(QTest::Click, field, Qt::Key_A, QStringLiteral("A"), Qt::NoModifier);
    QTest::keyClick(field, Qt::Key_CapsLock);
    EXPECT_FALSE(field->warnsOfCapsLock());
    QTest::sendKeyEvent(QTest::Click, field, Qt::Key_A, QStringLiteral("A"), Qt::NoModifier);
    QTest::keyClick(field, Qt::Key_Tab);
    EXPECT_FALSE(field->warnsOfCapsLock());
}

TEST_F(PasswordFieldTest, CapsLockIsWarnedOfInWordsAsSoonAsTheFieldHasTheFocus) {
    window.findChild<QLineEdit*>(QStringLiteral("other"))->setFocus();
    bool isOn = true;
    field->setCapsLockState([&] { return isOn; });
    field->setFocus();
    EXPECT_TRUE(field->warnsOfCapsLock());
    const auto labels = field->findChildren<QLabel*>();
    EXPECT_TRUE(std::ranges::any_of(labels, [](const QLabel* label) {
        return label->isVisible() && label->text() == QStringLiteral("Caps Lock is on");
    }));
    isOn = false;
    QTest::keyRelease(field, Qt::Key_CapsLock);
    EXPECT_FALSE(field->warnsOfCapsLock());
}

TEST_F(PasswordFieldTest, WhereTheStateOfCapsLockIsKnownLettersTellNothing) {
    field->setCapsLockState([] { return false; });
    QTest::sendKeyEvent(QTest::Click, field, Qt::Key_A, QStringLiteral("A"), Qt::NoModifier);
    EXPECT_FALSE(field->warnsOfCapsLock());
}

TEST_F(PasswordFieldTest, TheWarningLeavesRoomForAFewBullets) {
    window.resize(window.sizeHint());
    QApplication::processEvents();
    QTest::sendKeyEvent(QTest::Click, field, Qt::Key_A, QStringLiteral("A"), Qt::NoModifier);
    const QMargins taken = field->textMargins();
    EXPECT_GE(field->width() - taken.left() - taken.right(),
              4 * field->fontMetrics().averageCharWidth());
}

TEST_F(PasswordFieldTest, TextsOfAnyLengthAndScriptAreTaken) {
    field->setSecret(QString(100'000, u'x'));
    field->setSecret(QStringLiteral("\U0001F511\u05E9\u05DC\u05D5\u05DD"));
    field->setSecret(QString(QChar(u'\0')));
    field->wipe();
    EXPECT_TRUE(field->secret().isEmpty());
}

} // namespace
} // namespace zelto::test
