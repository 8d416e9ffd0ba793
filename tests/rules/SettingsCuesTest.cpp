#include "settings/SettingsCues.h"

#include <gtest/gtest.h>

#include <string>

namespace zelto::test {
namespace {

std::string words(const char* key) {
    return key == nullptr ? "" : key;
}

struct CueCase {
    int line;
    SettingsSituation situation;
    const char* areas;
    const char* commit;
};

TEST(SettingsCues, SayBeforehandWhatOkDoes) {
    const CueCase cases[] = {
        {__LINE__, {}, "", "IDS_HINT_CLOSES"},
        {__LINE__, {.areasWereLaidOut = true}, "", "IDS_HINT_CLOSES"},
        {__LINE__, {.isInitial = true}, "", "IDS_HINT_SETUP_ERASES"},
        {__LINE__,
         {.isInitial = true, .areasWereLaidOut = true},
         "IDS_HINT_SETUP_OPEN",
         "IDS_HINT_SETUP_ERASES"},
        {__LINE__,
         {.isInitial = true, .areasWereLaidOut = true, .secureAreaExists = true},
         "",
         "IDS_HINT_SETUP_ERASES"},
        {__LINE__,
         {.isInitial = true,
          .areasWereLaidOut = true,
          .secureAreaExists = true,
          .areasWereSent = true},
         "IDS_HINT_SETUP_RETRY",
         "IDS_HINT_SETUP_ERASES"},
    };
    for (const CueCase& row : cases) {
        const SettingsCues cues = settingsCues(row.situation);
        EXPECT_EQ(words(cues.areas), row.areas) << "line " << row.line;
        EXPECT_EQ(words(cues.commit), row.commit) << "line " << row.line;
    }
}

TEST(SettingsCues, WarnOfAClockThatClosesTheProgramWhenSet) {
    EXPECT_EQ(words(settingsCues({.clockIsNotValid = true}).clock), "IDS_HINT_SET_CLOCK_CLOSES");
    EXPECT_EQ(settingsCues({}).clock, nullptr);
}

TEST(SettingsCues, WarnOfAPeriodThatShowsZeroWhileItIsOn) {
    EXPECT_EQ(words(settingsCues({.autoClear = {true, PeriodUnit::Days, "0"}}).periods),
              "IDS_HINT_PERIOD_ZERO");
    EXPECT_EQ(words(settingsCues({.autoLogOff = {true, "0"}}).periods), "IDS_HINT_PERIOD_ZERO");
    EXPECT_EQ(settingsCues({.autoClear = {false, PeriodUnit::Days, "0"}}).periods, nullptr);
    EXPECT_EQ(settingsCues({.autoClear = {true, PeriodUnit::Days, "10"}}).periods, nullptr);
}

} // namespace
} // namespace zelto::test
