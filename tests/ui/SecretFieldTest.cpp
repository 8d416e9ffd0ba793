#include "ui/KeyField.h"
#include "ui/PasswordField.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace zelto::test {
namespace {

bool isBullets(const QString& text) {
    return text.count(u'\u25CF') == text.size();
}

bool holdsDigits(const QString& text) {
    return std::ranges::any_of(text, [](QChar character) { return character.isDigit(); });
}

class SecretFieldTest : public ::testing::Test {
protected:
    SecretFieldTest() {
        auto* column = new QVBoxLayout(&window);
        column->addWidget(password);
        column->addWidget(key);
        window.show();
        window.activateWindow();
        QApplication::processEvents();
        password->setFocus();
    }

    QWidget window;
    PasswordField* password = new PasswordField(&window);
    KeyField* key = new KeyField(&window);
};

TEST_F(SecretFieldTest, ShowsTheToolkitNothingButBullets) {
    QTest::keyClicks(password, QStringLiteral("secret"));
    QTest::keyClicks(key, QStringLiteral("00ff"));
    EXPECT_EQ(password->secret(), u"secret");
    EXPECT_EQ(key->secret(), u"00ff");
    for (const QLineEdit* line :
         {static_cast<QLineEdit*>(password), static_cast<QLineEdit*>(key)}) {
        EXPECT_EQ(line->text().size(), line == password ? 6 : 4);
        EXPECT_TRUE(isBullets(line->text()));
        EXPECT_TRUE(isBullets(line->displayText()));
    }
}

/// A key, or a sequence of them, as a person presses it.
struct Stroke {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    char16_t text = 0;
};

TEST_F(SecretFieldTest, IsEditedByEveryKeyAsAnyHiddenLineIs) {
    constexpr Qt::KeyboardModifiers None = Qt::NoModifier;
    const std::array strokes{Stroke{Qt::Key_A, None, u'a'},
                             Stroke{Qt::Key_B, Qt::ShiftModifier, u'B'},
                             Stroke{Qt::Key_Space, None, u' '},
                             Stroke{Qt::Key_1, None, u'1'},
                             Stroke{Qt::Key_Left, None},
                             Stroke{Qt::Key_Right, None},
                             Stroke{Qt::Key_Home, None},
                             Stroke{Qt::Key_End, None},
                             Stroke{Qt::Key_Left, Qt::ShiftModifier},
                             Stroke{Qt::Key_Right, Qt::ShiftModifier},
                             Stroke{Qt::Key_Home, Qt::ShiftModifier},
                             Stroke{Qt::Key_Backspace, None},
                             Stroke{Qt::Key_Delete, None},
                             Stroke{Qt::Key_Backspace, Qt::ControlModifier},
                             Stroke{Qt::Key_Delete, Qt::ControlModifier},
                             Stroke{Qt::Key_A, Qt::ControlModifier},
                             Stroke{Qt::Key_K, Qt::ControlModifier},
                             Stroke{Qt::Key_U, Qt::ControlModifier}};
    QLineEdit plain(&window);
    plain.setEchoMode(QLineEdit::Password);
    plain.show();
    std::mt19937 random(1); // NOLINT(cert-msc51-cpp): the same strokes in every run
    // Letters more often than what takes them away.
    std::discrete_distribution<std::size_t> pick(
        {9, 9, 3, 9, 4, 2, 2, 2, 2, 2, 1, 3, 3, 1, 1, 1, 1, 1});
    for (int count = 0; count < 3000; ++count) {
        const Stroke& stroke = strokes[pick(random)];
        const QString text = stroke.text == 0 ? QString() : QString(QChar(stroke.text));
        for (QLineEdit* line : {static_cast<QLineEdit*>(password), &plain}) {
            QTest::sendKeyEvent(QTest::Click, line, stroke.key, text, stroke.modifiers);
        }
        ASSERT_EQ(password->secret(), plain.text()) << "after " << count << " strokes";
        ASSERT_EQ(password->cursorPosition(), plain.cursorPosition());
        ASSERT_TRUE(isBullets(password->text()));
    }
}

TEST_F(SecretFieldTest, GivesNothingToAnyClipboardWhateverKeyIsPressed) {
    QApplication::clipboard()->setText(QStringLiteral("before"));
    for (SecretField* field :
         {static_cast<SecretField*>(password), static_cast<SecretField*>(key)}) {
        field->setSecret(u"00112233");
        field->setFocus();
        for (const Stroke& stroke :
             {Stroke{Qt::Key_Home, Qt::ShiftModifier}, Stroke{Qt::Key_A, Qt::ControlModifier},
              Stroke{Qt::Key_C, Qt::ControlModifier}, Stroke{Qt::Key_Insert, Qt::ControlModifier},
              Stroke{Qt::Key_X, Qt::ControlModifier}, Stroke{Qt::Key_K, Qt::ControlModifier},
              Stroke{Qt::Key_U, Qt::ControlModifier}}) {
            QTest::keyClick(field, stroke.key, stroke.modifiers);
        }
        QTest::mouseDClick(field, Qt::LeftButton);
        EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("before"));
        if (QApplication::clipboard()->supportsSelection()) {
            EXPECT_TRUE(QApplication::clipboard()->text(QClipboard::Selection).isEmpty());
        }
    }
}

TEST_F(SecretFieldTest, BringsNothingBackThatWasTakenOut) {
    QTest::keyClicks(password, QStringLiteral("secret"));
    QTest::keyClick(password, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(password, Qt::Key_Delete);
    QTest::keyClick(password, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(password->secret().isEmpty());
    EXPECT_TRUE(password->text().isEmpty());
    QTest::keyClick(password, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(password->secret().isEmpty());
}

TEST_F(SecretFieldTest, TakesWhatAnInputMethodCommitsAndTellsItNothing) {
    QInputMethodEvent composing(QStringLiteral("sec"), {});
    QApplication::sendEvent(password, &composing);
    EXPECT_TRUE(password->secret().isEmpty());
    QInputMethodEvent committed;
    committed.setCommitString(QStringLiteral("secret"));
    QApplication::sendEvent(password, &committed);
    EXPECT_EQ(password->secret(), u"secret");
    for (const Qt::InputMethodQuery query : {Qt::ImSurroundingText, Qt::ImCurrentSelection,
                                             Qt::ImTextBeforeCursor, Qt::ImTextAfterCursor}) {
        EXPECT_FALSE(password->inputMethodQuery(query).isValid());
    }
}

// Its events are made of the line's own text, which is bullets; no event leaves without a desktop.
TEST_F(SecretFieldTest, GivesAssistiveTechnologyNoCharacterOfIt) {
    for (SecretField* field :
         {static_cast<SecretField*>(password), static_cast<SecretField*>(key)}) {
        QTest::keyClicks(field, QStringLiteral("00112233"));
        QTest::keyClick(field, Qt::Key_Backspace);
        QAccessibleInterface* const object = QAccessible::queryAccessibleInterface(field);
        ASSERT_NE(object, nullptr);
        EXPECT_EQ(object->text(QAccessible::Value).size(), 7);
        EXPECT_FALSE(holdsDigits(object->text(QAccessible::Value)));
        ASSERT_NE(object->textInterface(), nullptr);
        EXPECT_FALSE(holdsDigits(object->textInterface()->text(0, 7)));
    }
}

TEST_F(SecretFieldTest, TakesOverATextThatIsSetAsInAnyLine) {
    QLineEdit* const line = password;
    line->setText(QStringLiteral("secret"));
    EXPECT_EQ(password->secret(), u"secret");
    line->setCursorPosition(3);
    line->insert(QStringLiteral("--"));
    EXPECT_EQ(password->secret(), u"sec--ret");
    EXPECT_EQ(line->cursorPosition(), 5);
    line->setSelection(1, 6);
    line->insert(QStringLiteral("+"));
    EXPECT_EQ(password->secret(), u"s+t");
    EXPECT_TRUE(isBullets(line->text()));
    line->clear();
    EXPECT_TRUE(password->secret().isEmpty());
}

TEST_F(SecretFieldTest, WhoHearsOfAnEditFindsTheTextEdited) {
    QStringList heard;
    QObject::connect(password, &QLineEdit::textEdited, password,
                     [&] { heard += password->secret().toString(); });
    QTest::keyClicks(password, QStringLiteral("ab"));
    QTest::keyClick(password, Qt::Key_Backspace);
    EXPECT_EQ(heard, (QStringList{QStringLiteral("a"), QStringLiteral("ab"), QStringLiteral("a")}));
}

TEST_F(SecretFieldTest, TakesNoMoreThanItHasRoomFor) {
    password->setSecret(QString(5000, u'x'));
    EXPECT_EQ(password->secret().size(), static_cast<qsizetype>(SecretText::Capacity));
    QTest::keyClicks(password, QStringLiteral("y"));
    EXPECT_EQ(password->secret(), QString(static_cast<int>(SecretText::Capacity), u'x'));
    EXPECT_EQ(password->text().size(), password->secret().size());
}

TEST_F(SecretFieldTest, TheDigitsOfAKeyAreShownEachForItself) {
    key->setSecret(u"0011");
    const QImage one = key->grab().toImage();
    key->setSecret(u"1100");
    EXPECT_NE(key->grab().toImage(), one);
}

} // namespace
} // namespace zelto::test
