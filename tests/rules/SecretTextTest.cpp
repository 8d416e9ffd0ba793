#include "settings/SecretText.h"

#include <gtest/gtest.h>

namespace zelto::test {
namespace {

TEST(SecretText, ACopyIsNotSharedWithItsOriginal) {
    const QString original = QStringLiteral("secret");
    const QString copy = unsharedCopy(original);
    EXPECT_EQ(copy, original);
    EXPECT_NE(copy.constData(), original.constData());
}

TEST(SecretText, ACopyKeepsEveryCharacter) {
    const QString withNul = QStringLiteral("a") + QChar(u'\0') + QStringLiteral("b");
    EXPECT_EQ(unsharedCopy(withNul), withNul);
    EXPECT_EQ(unsharedCopy(QString()), QString());
}

TEST(SecretText, WipingLeavesAnEmptyText) {
    QString text = unsharedCopy(QStringLiteral("secret"));
    wipeText(text);
    EXPECT_TRUE(text.isEmpty());
    wipeText(text);
    EXPECT_TRUE(text.isEmpty());
}

TEST(SecretText, WipingOneTextLeavesItsCopyAlone) {
    QString text = unsharedCopy(QStringLiteral("secret"));
    const QString copy = unsharedCopy(text);
    wipeText(text);
    EXPECT_EQ(copy, QStringLiteral("secret"));
}

TEST(SecretText, WipingPasswordsEmptiesAllFourAndKeepsTheChoices) {
    _tagPasswordSettingsParameters parameters{
        .Use1stAnd2ndPassword = true,
        .strCurrent1stPassword = unsharedCopy(QStringLiteral("1")),
        .strCurrent2ndPassword = unsharedCopy(QStringLiteral("2")),
        .strNew1stPassword = unsharedCopy(QStringLiteral("3")),
        .strNew2ndPassword = unsharedCopy(QStringLiteral("4")),
        .NumberOfTrials = 5};
    wipePasswords(parameters);
    EXPECT_TRUE(parameters.strCurrent1stPassword.isEmpty());
    EXPECT_TRUE(parameters.strCurrent2ndPassword.isEmpty());
    EXPECT_TRUE(parameters.strNew1stPassword.isEmpty());
    EXPECT_TRUE(parameters.strNew2ndPassword.isEmpty());
    EXPECT_TRUE(parameters.Use1stAnd2ndPassword);
    EXPECT_EQ(parameters.NumberOfTrials, 5);
}

} // namespace
} // namespace zelto::test
