#include "settings/PasswordStrength.h"

#include <gtest/gtest.h>

namespace zelto::test {
namespace {

TEST(PasswordStrength, FollowsFromTheNumberOfGuesses) {
    struct Row {
        double bits;
        PasswordStrength strength;
    };
    for (const Row row : {Row{0, PasswordStrength::Weak}, Row{29.9, PasswordStrength::Weak},
                          Row{30, PasswordStrength::Fair}, Row{39.9, PasswordStrength::Fair},
                          Row{40, PasswordStrength::Good}, Row{51.9, PasswordStrength::Good},
                          Row{52, PasswordStrength::Strong}, Row{200, PasswordStrength::Strong}}) {
        EXPECT_EQ(strengthOfGuesses(row.bits), row.strength) << row.bits;
    }
}

TEST(PasswordStrength, IsThatOfWhatAGuesserTriesFirst) {
    struct Row {
        const char16_t* password;
        PasswordStrength strength;
    };
    const Row rows[] = {
        {u"a", PasswordStrength::Weak},
        {u"password", PasswordStrength::Weak},
        {u"P@ssw0rd123", PasswordStrength::Weak},
        {u"qwertyuiop", PasswordStrength::Weak},
        {u"19840512", PasswordStrength::Weak},
        {u"ZELTO-DISK", PasswordStrength::Weak},
        {u"zeltozeltozelto", PasswordStrength::Weak},
        {u"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa", PasswordStrength::Weak},
        {u"correcthorsebattery", PasswordStrength::Fair},
        {u"Quietly-4-Rivers", PasswordStrength::Good},
        {u"x7#kQ9!vLm2pZ", PasswordStrength::Strong},
        {u"correct horse battery staple 77", PasswordStrength::Strong},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(passwordStrength(row.password), row.strength)
            << QStringView(row.password).toLatin1().constData();
    }
}

TEST(PasswordStrength, NothingIsSaidOfWhatCannotBeAPassword) {
    EXPECT_EQ(passwordStrength(u""), PasswordStrength::None);
    EXPECT_EQ(passwordStrength(u"Gr\u00f6\u00dfe und viel mehr"), PasswordStrength::None);
    EXPECT_EQ(passwordStrength(u"123456789012345678901234567890123"), PasswordStrength::None);
}

} // namespace
} // namespace zelto::test
