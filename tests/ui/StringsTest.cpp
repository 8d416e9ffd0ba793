#include "ui/Strings.h"

#include <gtest/gtest.h>

namespace zelto::test {
namespace {

struct KeyRow {
    const char* key;
    /// How many placeholders its text has.
    int arguments = 0;
};

// The keys that came with the drive, and the hints beside the controls.
constexpr KeyRow Catalogue[] = {
    {"OK"},
    {"IDS_APP_TITLE"},
    {"IDS_CANCEL_BUTTON"},
    {"IDS_ERR_NOT_FOUND_ZELTO"},
    {"IDS_ENTER_1ST_PASSWORD"},
    {"IDS_ENTER_2ND_PASSWORD"},
    {"IDS_FULLLOCK_TIME_STATUS_INVALID", 1},
    {"IDS_SET_CURRENT_YIME"},
    {"IDS_ERR_ZELTO_DRIVE_LOST"},
    {"IDS_ERR_AUTHENTICATE_FAILED"},
    {"IDS_ERR_UNMOUNT"},
    {"IDS_COMMAND_FAIL_WITH_SENSE_INFO", 3},
    {"IDS_COMMAND_FAIL"},
    {"IDS_ERR_TIME_STATUS_INVALID"},
    {"IDS_EXPIRED"},
    {"IDS_DAYS"},
    {"IDS_HOURS"},
    {"IDS_MIN"},
    {"IDS_TIME_SYNC_COMPLETE"},
    {"IDS_NOW_SETTING"},
    {"IDS_SETTING_COMPLETE"},
    {"IDS_ERR_FORMAT"},
    {"IDS_ERR_FILE_COPY", 2},
    {"IDS_ERR_SPINUP"},
    {"IDS_ERR_ENCRYPTION_MANUAL_KEY_NOT_SETUP"},
    {"IDS_ERR_CURRENT_1ST_PASSWORD_INVALID"},
    {"IDS_ERR_CURRENT_2ND_PASSWORD_INVALID"},
    {"IDS_ERR_ZELTO_NOT_UNLOCKING"},
    {"IDS_CLEAR_ALL_CONFIRM"},
    {"IDS_ERASE_ENCRYPTION_KEY_CONFIRM"},
    {"IDS_TOTAL_CAPACITY", 1},
    {"IDS_FREE_CAPACITY", 1},
    {"IDS_CAPACITY_OVER"},
    {"IDS_NORMAL_AREA"},
    {"IDS_SECURE_AREA"},
    {"IDS_FREE_AREA"},
    {"IDS_ALL_SECTORS"},
    {"IDS_DRIVE_SERIAL", 1},
    {"IDS_DRIVE_SERIAL_AND_PORT", 2},
    {"IDS_DRIVE_PORT", 1},
    {"IDS_HINT_RULE_MISSING"},
    {"IDS_HINT_OTHER_SESSION"},
    {"IDS_HINT_DRIVE_IN_USE"},
    {"IDS_HINT_BUSY_PROGRAMS", 1},
    {"IDS_HINT_NEXT_AREAS"},
    {"IDS_HINT_NEXT_PASSWORDS"},
    {"IDS_HINT_NOTHING_CHANGED"},
    {"IDS_HINT_AUTO_CLEAR_DAYS"},
    {"IDS_HINT_AUTO_CLEAR_MINUTES"},
    {"IDS_HINT_AUTO_LOG_OFF_MINUTES"},
    {"IDS_HINT_AREA_DIGITS"},
    {"IDS_HINT_AREA_DISK1"},
    {"IDS_HINT_FIRST_MISSING"},
    {"IDS_HINT_FIRST_AGAIN"},
    {"IDS_HINT_FIRST_DIFFERS"},
    {"IDS_HINT_SECOND_MISSING"},
    {"IDS_HINT_SECOND_AGAIN"},
    {"IDS_HINT_SECOND_DIFFERS"},
    {"IDS_HINT_CURRENT_FIRST_MISSING"},
    {"IDS_HINT_CURRENT_SECOND_MISSING"},
    {"IDS_HINT_PASSWORD_SIGNS"},
    {"IDS_HINT_PASSWORD_TOO_LONG"},
    {"IDS_HINT_TRIALS"},
    {"IDS_HINT_KEY_MISSING"},
    {"IDS_HINT_KEY_DIGITS"},
    {"IDS_HINT_KEY_ODD"},
    {"IDS_HINT_KEY_TOO_LONG", 1},
    {"IDS_HINT_SETUP_ERASES"},
    {"IDS_HINT_SETUP_OPEN"},
    {"IDS_HINT_SETUP_RETRY"},
    {"IDS_HINT_SETUP_TABLE_FULL"},
    {"IDS_HINT_CLOSES"},
    {"IDS_HINT_SET_CLOCK_CLOSES"},
    {"IDS_HINT_PERIOD_ZERO"},
    {"IDS_HINT_SECURE_CHOICE_DROPPED"},
    {"IDS_HINT_TRIALS_ERASE"},
    {"IDS_HELP_BUTTON"},
    {"IDS_HELP_DESCRIPTION", 1},
    {"IDS_HINT_NO_MANUAL"},
    {"IDS_HINT_VERSION", 1},
    {"IDS_STRENGTH_WEAK"},
    {"IDS_STRENGTH_FAIR"},
    {"IDS_STRENGTH_GOOD"},
    {"IDS_STRENGTH_STRONG"},
};

class StringsTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(installStrings()); }
};

TEST_F(StringsTest, EveryKeyOfTheCatalogueHasAText) {
    for (const KeyRow& row : Catalogue) {
        const QString text = localized(row.key);
        EXPECT_FALSE(text.isEmpty()) << row.key;
        if (qstrcmp(row.key, "OK") != 0) {
            EXPECT_NE(text, QString::fromLatin1(row.key)) << row.key;
        }
    }
}

TEST_F(StringsTest, EveryTextHasThePlaceholdersItsKeyPromises) {
    for (const KeyRow& row : Catalogue) {
        const QString text = localized(row.key);
        for (int number = 1; number <= 9; ++number) {
            const bool holds = text.contains(QStringLiteral("%%1").arg(number));
            EXPECT_EQ(holds, number <= row.arguments) << row.key << " %" << number;
        }
    }
}

TEST_F(StringsTest, AMissingKeyShowsItself) {
    EXPECT_EQ(localized("IDS_NO_SUCH_KEY"), QStringLiteral("IDS_NO_SUCH_KEY"));
}

TEST_F(StringsTest, OkIsAKeyLikeAnyOther) {
    EXPECT_EQ(localized("OK"), QStringLiteral("OK"));
}

TEST_F(StringsTest, InstallingTwiceIsHarmless) {
    EXPECT_TRUE(installStrings());
    EXPECT_EQ(localized("IDS_APP_TITLE"), QStringLiteral("ZELTO DISK"));
}

TEST_F(StringsTest, SenseBytesAreFilledInInTheirOrder) {
    const QString text = localized("IDS_COMMAND_FAIL_WITH_SENSE_INFO", 5, 36, 0);
    EXPECT_TRUE(text.contains(QStringLiteral("5")) && text.contains(QStringLiteral("36")));
    EXPECT_LT(text.indexOf(QStringLiteral(" 5,")), text.indexOf(QStringLiteral(" 36,")));
    EXPECT_FALSE(text.contains(u'%'));
}

TEST_F(StringsTest, APathThatLooksLikeAPlaceholderIsNotFilled) {
    const QString text =
        localized("IDS_ERR_FILE_COPY", QStringLiteral("/a/%2/%1"), QStringLiteral("/b"));
    EXPECT_TRUE(text.contains(QStringLiteral("/a/%2/%1")));
    EXPECT_TRUE(text.contains(QStringLiteral("/b")));
}

TEST_F(StringsTest, NumbersOfEveryWidthAreFilledIn) {
    EXPECT_TRUE(localized("IDS_TOTAL_CAPACITY", 18446744073709551615ULL)
                    .contains(QStringLiteral("18446744073709551615")));
}

} // namespace
} // namespace zelto::test
