#include "app/BundleLocation.h"
#include "session/ClockText.h"
#include "session/RemainingTime.h"

#include <gtest/gtest.h>

#include <chrono>

namespace zelto::test {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;

const RemainingTimeWords Words{.expired = QStringLiteral("expired"),
                               .days = QStringLiteral("days"),
                               .hours = QStringLiteral("hours"),
                               .minutes = QStringLiteral("minutes")};

QString textFor(std::uint32_t elapsed, std::uint32_t period) {
    return remainingTimeText({.autoClearElapsed = elapsed, .autoClearPeriod = period}, Words);
}

TEST(RemainingTime, LeavesOutHoursWhenLessThanAnHourIsLeftBesideTheDays) {
    EXPECT_EQ(textFor(100, 90061), QStringLiteral("1 days 59 minutes"));
}

TEST(RemainingTime, IsZeroMinutesWhenMoreHasElapsedThanThePeriod) {
    EXPECT_EQ(textFor(61, 60), QStringLiteral("0 minutes"));
    EXPECT_EQ(remainingSeconds(0xFFFFFFFF, 0), 0U);
}

TEST(RemainingTime, SaysExpiredWhateverTheCountersSay) {
    EXPECT_EQ(remainingTimeText({.autoClearExpired = true, .autoClearPeriod = 86400}, Words),
              QStringLiteral("expired"));
}

TEST(RemainingTime, AlwaysShowsMinutesAndDropsSeconds) {
    struct Row {
        int line;
        std::uint32_t remaining;
        const char* text;
    };
    const Row rows[] = {
        {__LINE__, 0, "0 minutes"},
        {__LINE__, 59, "0 minutes"},
        {__LINE__, 60, "1 minutes"},
        {__LINE__, 3599, "59 minutes"},
        {__LINE__, 3600, "1 hours 0 minutes"},
        {__LINE__, 86399, "23 hours 59 minutes"},
        {__LINE__, 86400, "1 days 0 minutes"},
        {__LINE__, 172800, "2 days 0 minutes"},
        {__LINE__, 93784, "1 days 2 hours 3 minutes"},
        {__LINE__, 0xFFFFFFFF, "49710 days 6 hours 28 minutes"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(textFor(0, row.remaining), QString::fromLatin1(row.text)) << "line " << row.line;
    }
}

TEST(DeviceClock, ShowsUtcNineHoursLaterInAZoneNineHoursAhead) {
    const auto moment =
        momentOf({.year = 2026, .month = 1, .day = 1, .hour = 0, .minute = 30, .second = 0});
    ASSERT_TRUE(moment);
    EXPECT_EQ(dateTimeText(clockAt(*moment + 9h)), QStringLiteral("2026/01/01 09:30:00"));
}

TEST(DeviceClock, CrossesMidnightYearAndLeapDayWithTheZone) {
    const auto newYear = momentOf({.year = 2025, .month = 12, .day = 31, .hour = 20});
    ASSERT_TRUE(newYear);
    EXPECT_EQ(dateTimeText(clockAt(*newYear + 5h)), QStringLiteral("2026/01/01 01:00:00"));
    const auto march = momentOf({.year = 2028, .month = 3, .day = 1, .hour = 2});
    ASSERT_TRUE(march);
    EXPECT_EQ(dateTimeText(clockAt(*march - 3h)), QStringLiteral("2028/02/29 23:00:00"));
}

TEST(DeviceClock, HasNoMomentForADateThatDoesNotExist) {
    const CurrentTime rows[] = {
        {.year = 2026, .month = 0, .day = 1},
        {.year = 2026, .month = 13, .day = 1},
        {.year = 2026, .month = 2, .day = 29},
        {.year = 2026, .month = 4, .day = 31},
        {.year = 2026, .month = 1, .day = 0},
        {.year = 2026, .month = 255, .day = 255, .hour = 255, .minute = 255, .second = 255},
        {.year = 2026, .month = 1, .day = 1, .hour = 24},
        {.year = 2026, .month = 1, .day = 1, .minute = 60},
        {.year = 2026, .month = 1, .day = 1, .second = 60},
    };
    for (const CurrentTime& row : rows) {
        EXPECT_FALSE(momentOf(row)) << dateTimeText(row).toStdString();
    }
}

TEST(DeviceClock, PadsEachPartAndTheYearWithABlank) {
    EXPECT_EQ(
        dateTimeText({.year = 987, .month = 6, .day = 5, .hour = 4, .minute = 3, .second = 2}),
        QStringLiteral(" 987/06/05 04:03:02"));
    EXPECT_EQ(dateMinuteText({.year = 2026, .month = 11, .day = 21, .hour = 7, .minute = 8}),
              QStringLiteral("2026/11/21 07:08"));
}

TEST(DeviceClock, TakesAMomentApartAndPutsItTogetherAgain) {
    for (const auto moment : {sys_seconds{0s}, sys_seconds{1'800'000'000s},
                              sys_seconds{sys_days{2000y / 2 / 29}} + 86399s}) {
        EXPECT_EQ(momentOf(clockAt(moment)), moment);
    }
}

const std::vector<std::filesystem::path> Roots{"/media", "/run/media"};

TEST(BundleLocation, IsAVolumeWhenTheLeadingComponentsSpellAMountRoot) {
    EXPECT_TRUE(runsFromMountedVolume("/media/alice/ZELTO TOOL/ZeltoAppMac.app", Roots));
    EXPECT_TRUE(runsFromMountedVolume("/run/media/alice/ZELTO TOOL/ZeltoAppMac.app", Roots));
    EXPECT_TRUE(runsFromMountedVolume("/Volumes/ZELTO TOOL/ZeltoAppMac.app", {"/Volumes"}));
}

TEST(BundleLocation, DisregardsLetterCase) {
    EXPECT_TRUE(runsFromMountedVolume("/MEDIA/alice/x/ZeltoAppMac.app", Roots));
    EXPECT_TRUE(runsFromMountedVolume("/volumes/x/ZeltoAppMac.app", {"/Volumes"}));
}

TEST(BundleLocation, IsNotAVolumeAnywhereElse) {
    for (const char* path :
         {"/home/alice/Applications/ZeltoAppMac.app", "/mediatheque/ZeltoAppMac.app",
          "/usr/lib/zelto/ZeltoAppMac.app", "/run/user/1000/ZeltoAppMac.app", "/", "",
          "media/alice/ZeltoAppMac.app", "/home/media/ZeltoAppMac.app"}) {
        EXPECT_FALSE(runsFromMountedVolume(path, Roots)) << path;
    }
}

TEST(BundleLocation, ReadsSpacesAndNonAsciiLetters) {
    EXPECT_TRUE(runsFromMountedVolume("/MEDIEN Größe/x/ZeltoAppMac.app", {"/medien größe"}));
}

TEST(BundleLocation, RelocatesFromAVolumeToAnywhereButItself) {
    struct Row {
        int line;
        const char* bundle;
        const char* destination;
        bool relocates;
    };
    const std::vector<Row> rows{
        {__LINE__, "/media/a/TOOL/Z.app", "/home/a/Applications/Z.app", true},
        {__LINE__, "/home/a/Applications/Z.app", "/home/a/Applications/Z.app", false},
        {__LINE__, "/home/a/Desktop/Z.app", "/home/a/Applications/Z.app", false},
        // The home folder lies on a mounted volume.
        {__LINE__, "/media/home/a/Applications/Z.app", "/media/home/a/Applications/Z.app", false},
        {__LINE__, "/media/home/a/Desktop/Z.app", "/media/home/a/Applications/Z.app", true},
        {__LINE__, "/media/a/TOOL/Z.app", "/media/home/a/Applications/Z.app", true},
        {__LINE__, "/media/home/a/Applications/Z.app", "/media/home/a/Applications/z.app", true},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(hasToRelocate(row.bundle, row.destination, Roots), row.relocates)
            << "line " << row.line;
    }
}

} // namespace
} // namespace zelto::test
