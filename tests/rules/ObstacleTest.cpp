#include "settings/Obstacle.h"
#include "settings/KeyDigits.h"

#include <gtest/gtest.h>

#include <ostream>

namespace zelto {

/// For failure messages.
inline void PrintTo(const Obstacle& obstacle, std::ostream* stream) {
    *stream << (obstacle.key == nullptr ? "nothing" : obstacle.key) << ' ' << obstacle.number;
}

} // namespace zelto

namespace zelto::test {
namespace {

constexpr Obstacle Nothing;
const AutoClearEntry NoDays{true, PeriodUnit::Days, QString()};
const AutoClearEntry NoMinutes{true, PeriodUnit::Minutes, QStringLiteral("1000")};
const AutoLogOffEntry NoLogOff{true, QStringLiteral("0")};

TEST(LogInObstacle, IsWhatIsWrongWithWhatHasBeenTyped) {
    EXPECT_EQ(logInObstacle(u""), Nothing);
    EXPECT_EQ(logInObstacle(u"secret"), Nothing);
    EXPECT_EQ(logInObstacle(u"\u0441"), Obstacle{"IDS_HINT_PASSWORD_SIGNS"});
    EXPECT_EQ(logInObstacle(u"12345678901234567890123456789012"), Nothing);
    EXPECT_EQ(logInObstacle(u"123456789012345678901234567890123"),
              Obstacle{"IDS_HINT_PASSWORD_TOO_LONG"});
}

TEST(MainSettingsObstacle, IsTheFirstThingThatASetUpNeeds) {
    MainSettingsEntries entries{.secureAreaExists = true, .autoClear = NoDays};
    EXPECT_EQ(obstacleAtInitialization(entries), Obstacle{"IDS_HINT_NEXT_AREAS"});
    entries.changed.AreaSettingsPerformed = true;
    EXPECT_EQ(obstacleAtInitialization(entries), Obstacle{"IDS_HINT_NEXT_PASSWORDS"});
    entries.changed.ChangePassword = true;
    EXPECT_EQ(obstacleAtInitialization(entries), Obstacle{"IDS_HINT_AUTO_CLEAR_DAYS"});
    entries.autoClear = NoMinutes;
    EXPECT_EQ(obstacleAtInitialization(entries), Obstacle{"IDS_HINT_AUTO_CLEAR_MINUTES"});
    entries.autoClear = {};
    entries.autoLogOff = NoLogOff;
    EXPECT_EQ(obstacleAtInitialization(entries), Obstacle{"IDS_HINT_AUTO_LOG_OFF_MINUTES"});
    entries.autoLogOff = {};
    EXPECT_EQ(obstacleAtInitialization(entries), Nothing);
}

TEST(MainSettingsObstacle, OfAChangeIsAWrongPeriodOrThatNothingWasChanged) {
    MainSettingsEntries entries{.autoClear = NoDays};
    EXPECT_EQ(obstacleAtChanging(entries), Obstacle{"IDS_HINT_NOTHING_CHANGED"});
    entries.changed.ChangePassword = true;
    EXPECT_EQ(obstacleAtChanging(entries), Nothing) << "a period that was not touched";
    entries.changed.AutoClearSettingsChanged = true;
    EXPECT_EQ(obstacleAtChanging(entries), Obstacle{"IDS_HINT_AUTO_CLEAR_DAYS"});
}

TEST(MainSettingsObstacle, IsThereExactlyWhenOkIsRefused) {
    for (unsigned bits = 0; bits < 256; ++bits) {
        const auto bit = [bits](unsigned number) { return (bits >> number & 1) != 0; };
        const MainSettingsEntries entries{
            .secureAreaExists = bit(0),
            .changed = {.ChangePassword = bit(1),
                        .AreaSettingsPerformed = bit(2),
                        .AutoClearSettingsChanged = bit(3),
                        .AutoLogOffSettingsChanged = bit(4),
                        .ChangeRemainingTimeSetting = bit(5)},
            .autoClear = bit(6) ? NoDays : AutoClearEntry{},
            .autoLogOff = bit(7) ? NoLogOff : AutoLogOffEntry{},
        };
        EXPECT_EQ(obstacleAtInitialization(entries).key == nullptr,
                  canCommitAtInitialization(entries))
            << bits;
        EXPECT_EQ(obstacleAtChanging(entries).key == nullptr, canCommitAtChanging(entries)) << bits;
    }
}

struct AreaCase {
    int line;
    std::array<QString, 3> texts;
    Obstacle expected;
};

TEST(AreaObstacle, IsTheFirstThingThatIsWrongWithTheSizes) {
    const AreaCase cases[] = {
        {__LINE__, {"", "0", "0"}, {"IDS_HINT_AREA_DISK1"}},
        {__LINE__, {"0", "5", "0"}, {"IDS_HINT_AREA_DISK1"}},
        {__LINE__, {"5", "x", "0"}, {"IDS_HINT_AREA_DIGITS"}},
        {__LINE__, {"5", "96", "0"}, {"IDS_CAPACITY_OVER"}},
        {__LINE__, {"5", "95", "0"}, {}},
        {__LINE__, {"5", "", ""}, {}},
    };
    for (const AreaCase& row : cases) {
        const AreaDialogVerdict verdict = judgeAreaDialog(row.texts, std::uint64_t{100} * 2048);
        EXPECT_EQ(areaObstacle(row.texts, verdict), row.expected) << "line " << row.line;
        EXPECT_EQ(row.expected.key == nullptr, verdict.isComplete) << "line " << row.line;
    }
}

struct PasswordCase {
    int line;
    bool firstAndSecond;
    QString first, firstAgain, second, secondAgain, trials;
    Obstacle expected;
};

TEST(PasswordObstacle, IsTheFirstThingThatIsMissingOrWrong) {
    const QString long33(33, u'a');
    const PasswordCase cases[] = {
        {__LINE__, false, "", "", "", "", "", {"IDS_HINT_FIRST_MISSING"}},
        {__LINE__, false, u"\u00E9"_qs, "", "", "", "", {"IDS_HINT_PASSWORD_SIGNS"}},
        {__LINE__, false, long33, long33, "", "", "", {"IDS_HINT_PASSWORD_TOO_LONG"}},
        {__LINE__, false, "one", "", "", "", "", {"IDS_HINT_FIRST_AGAIN"}},
        {__LINE__, false, "one", "ono", "", "", "", {"IDS_HINT_FIRST_DIFFERS"}},
        {__LINE__, false, "one", "one", "", "", "", {}},
        {__LINE__, true, "one", "one", "", "", "", {"IDS_HINT_SECOND_MISSING"}},
        {__LINE__, true, "one", "one", "two", "", "", {"IDS_HINT_SECOND_AGAIN"}},
        {__LINE__, true, "one", "one", "two", "tvo", "", {"IDS_HINT_SECOND_DIFFERS"}},
        {__LINE__, true, "one", "one", "two", "two", "", {"IDS_HINT_TRIALS"}},
        {__LINE__, true, "one", "one", "two", "two", "100", {"IDS_HINT_TRIALS"}},
        {__LINE__, true, "one", "one", "two", "two", "99", {}},
    };
    for (const PasswordCase& row : cases) {
        const PasswordSettingsEntries entries{.firstAndSecond = row.firstAndSecond,
                                              .first = {row.first, row.firstAgain},
                                              .second = {row.second, row.secondAgain},
                                              .trials = row.trials};
        EXPECT_EQ(passwordSettingsObstacle(entries), row.expected) << "line " << row.line;
        EXPECT_EQ(row.expected.key == nullptr, passwordSettingsAreComplete(entries))
            << "line " << row.line;
    }
}

TEST(PasswordObstacle, OfAChangeAsksForTheCurrentPasswordsFirst) {
    const QString one = QStringLiteral("one");
    PasswordChangeEntries entries{.renewed = {.first = {one, one}}};
    EXPECT_EQ(passwordChangeObstacle(entries), Obstacle{"IDS_HINT_CURRENT_FIRST_MISSING"});
    entries.currentFirst = one;
    EXPECT_EQ(passwordChangeObstacle(entries), Nothing);
    entries.renewed.firstAndSecond = true;
    EXPECT_EQ(passwordChangeObstacle(entries), Obstacle{"IDS_HINT_CURRENT_SECOND_MISSING"});
    EXPECT_FALSE(passwordChangeIsComplete(entries));
}

struct KeyObstacleCase {
    int line;
    QString text;
    Obstacle expected;
};

TEST(KeyObstacle, SaysWhatIsWrongWithTheDigits) {
    const KeyObstacleCase cases[] = {
        {__LINE__, "", {"IDS_HINT_KEY_MISSING"}},
        {__LINE__, "0g", {"IDS_HINT_KEY_DIGITS"}},
        {__LINE__, "0aF", {"IDS_HINT_KEY_ODD"}},
        {__LINE__, QString(129, u'0'), {"IDS_HINT_KEY_ODD"}},
        {__LINE__, QString(142, u'0'), {"IDS_HINT_KEY_TOO_LONG", 142}},
        {__LINE__, QString(128, u'0'), {}},
        {__LINE__, "0a", {}},
    };
    for (const KeyObstacleCase& row : cases) {
        EXPECT_EQ(keyObstacle(row.text), row.expected) << "line " << row.line;
        EXPECT_EQ(row.expected.key == nullptr, isValidKeyText(row.text)) << "line " << row.line;
    }
}

} // namespace
} // namespace zelto::test
