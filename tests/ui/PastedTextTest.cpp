#include "ui/PastedText.h"

#include "ui/KeyField.h"
#include "ui/PasswordField.h"

#include <QApplication>
#include <QClipboard>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace zelto::test {
namespace {

QString without(bool (*isSeparator)(QChar), QString text) {
    return text.removeIf(isSeparator);
}

TEST(PastedText, LosesLineBreaksOfEveryKind) {
    EXPECT_EQ(without(isLineBreak, QStringLiteral("pass word\r\n")), QStringLiteral("pass word"));
    EXPECT_EQ(without(isLineBreak, QStringLiteral("a\u2028b\u2029c\u0085d\ve\f")),
              QStringLiteral("abcde"));
    EXPECT_EQ(without(isLineBreak, QStringLiteral("a\tb")), QStringLiteral("a\tb"));
}

TEST(PastedText, OfAKeyLosesBlanksAndColonsToo) {
    EXPECT_EQ(without(isDigitSeparator, QStringLiteral(" 0a:1B 2c\t3d\n4e\u00A0")),
              QStringLiteral("0a1B2c3d4e"));
    EXPECT_EQ(without(isDigitSeparator, QStringLiteral("0a-1b")), QStringLiteral("0a-1b"));
}

/// What the field holds, and what its listeners found in it, after a paste.
template <typename Field>
std::pair<QString, QString> paste(const QString& text) {
    Field field;
    QString heard;
    QObject::connect(&field, &QLineEdit::textEdited, &field,
                     [&] { heard = field.secret().toString(); });
    QApplication::clipboard()->setText(text);
    field.paste();
    return {field.secret().toString(), heard};
}

TEST(PastedText, APasswordIsPastedWithoutTheBreakAtItsEnd) {
    const auto [text, heard] = paste<PasswordField>(QStringLiteral("secret\n"));
    EXPECT_EQ(text, QStringLiteral("secret"));
    EXPECT_EQ(heard, QStringLiteral("secret")) << "whoever listens sees the clean text";
}

TEST(PastedText, AKeyIsPastedAsItsDigits) {
    const auto [text, heard] = paste<KeyField>(QStringLiteral("00:11 22\n33\n"));
    EXPECT_EQ(text, QStringLiteral("00112233"));
    EXPECT_EQ(heard, QStringLiteral("00112233"));
}

TEST(PastedText, TheCursorStandsBehindWhatWasPasted) {
    KeyField field;
    field.setSecret(QStringLiteral("AABB"));
    field.setCursorPosition(2);
    QApplication::clipboard()->setText(QStringLiteral("1:2"));
    field.paste();
    EXPECT_EQ(field.secret(), QStringLiteral("AA12BB"));
    EXPECT_EQ(field.cursorPosition(), 4);
}

} // namespace
} // namespace zelto::test
