#include "settings/MainSettingsView.h"

#include <gtest/gtest.h>

namespace zelto::test {
namespace {

using State = SecurityState;

TEST(SecurityOccasion, AtOpeningFollowsFromTheDrivesAreasAndItsState) {
    EXPECT_EQ(occasionAtOpening(false, State::StateNoPassword), SecurityOccasion::NothingToSecure);
    EXPECT_EQ(occasionAtOpening(true, State::StateUnlocking), SecurityOccasion::SecureDriveOpened);
    EXPECT_EQ(occasionAtOpening(true, State::StateNoPassword), SecurityOccasion::SecureDriveOpened);
    EXPECT_EQ(occasionAtOpening(true, State::StateFullLock), SecurityOccasion::NothingToSecure);
}

struct OccasionCase {
    int line;
    SecureAreas secure;
    SecurityState state;
    SecurityOccasion expected;
};

constexpr OccasionCase OccasionCases[] = {
    {__LINE__, {}, State::StateNoPassword, SecurityOccasion::NothingToSecure},
    {__LINE__, {.now = true}, State::StateNoPassword, SecurityOccasion::FirstSecureAreaLaidOut},
    {__LINE__,
     {.before = true, .now = true},
     State::StateNoPassword,
     SecurityOccasion::SecureAreaKept},
    {__LINE__,
     {.onDrive = true, .now = true},
     State::StateNoPassword,
     SecurityOccasion::SecureAreaKept},
    {__LINE__, {.before = true}, State::StateNoPassword, SecurityOccasion::NothingToSecure},
    {__LINE__, {.now = true}, State::StateFullLock, SecurityOccasion::NothingToSecure},
};

TEST(SecurityOccasion, AfterTheAreaDialogFollowsFromWhatHasChanged) {
    for (const OccasionCase& row : OccasionCases) {
        EXPECT_EQ(occasionAfterAreaDialog(row.secure, row.state), row.expected)
            << "line " << row.line;
    }
}

/// Everything on, allowed and filled in.
SecurityView everything() {
    return {.passwordsEnabled = true,
            .keyOriginEnabled = true,
            .keyOrigin = KeyOrigin::Manual,
            .keyEntryEnabled = true,
            .keyErasureEnabled = true,
            .autoClearEnabled = true,
            .autoClear = {true, PeriodUnit::Minutes, QStringLiteral("30")},
            .autoLogOffEnabled = true,
            .autoLogOff = {true, QStringLiteral("5")},
            .remainingTimeEnabled = true,
            .showsRemainingTime = true};
}

TEST(SecurityView, BeforeTheDriveIsReadNothingIsErasedAndNothingPromised) {
    SecurityView expected = everything();
    expected.keyErasureEnabled = false;
    expected.remainingTimeEnabled = false;
    expected.showsRemainingTime = false;
    EXPECT_EQ(withoutDrive(everything()), expected);
}

TEST(SecurityView, WithNothingToSecureAllIsOffAndEmpty) {
    const SecurityView view = switchedOff(everything());
    EXPECT_FALSE(view.passwordsEnabled || view.keyOriginEnabled || view.keyEntryEnabled ||
                 view.autoClearEnabled || view.autoLogOffEnabled);
    EXPECT_EQ(view.autoClear, (AutoClearEntry{false, PeriodUnit::Days, QString()}));
    EXPECT_EQ(view.autoLogOff, (AutoLogOffEntry{false, QString()}));
}

TEST(SecurityView, WithNothingToSecureTheRestStaysAsItWas) {
    const SecurityView view = switchedOff(everything());
    EXPECT_EQ(view.keyOrigin, KeyOrigin::Manual);
    EXPECT_TRUE(view.keyErasureEnabled);
    EXPECT_TRUE(view.remainingTimeEnabled);
    EXPECT_TRUE(view.showsRemainingTime);
}

TEST(SecurityView, AFirstSecureAreaIsOfferedEverythingAndHasNothingOn) {
    SecurityView expected;
    expected.passwordsEnabled = true;
    expected.keyOriginEnabled = true;
    expected.autoClearEnabled = true;
    expected.autoLogOffEnabled = true;
    EXPECT_EQ(offeredForFirstSecureArea({}), expected);
}

TEST(SecurityView, AFirstSecureAreaGetsTheDrivesOwnKeyWhateverWasChosenBefore) {
    const SecurityView view = offeredForFirstSecureArea(everything());
    EXPECT_EQ(view.keyOrigin, KeyOrigin::Automatic);
    EXPECT_FALSE(view.keyEntryEnabled);
    EXPECT_FALSE(view.autoClear.enabled);
    EXPECT_FALSE(view.autoLogOff.enabled);
}

TEST(SecurityView, TheKeyOfASecureDriveIsErasedAsAWholeNeverChanged) {
    DeviceStatus status;
    status.security = 0x84; // Unlocked, with a key of its own making.
    SecurityView view = ofSecureDrive({}, status);
    EXPECT_TRUE(view.passwordsEnabled);
    EXPECT_TRUE(view.keyErasureEnabled);
    EXPECT_FALSE(view.keyOriginEnabled);
    EXPECT_FALSE(view.keyEntryEnabled);
    EXPECT_EQ(view.keyOrigin, KeyOrigin::Automatic);
    status.security = 0x04;
    EXPECT_EQ(ofSecureDrive(everything(), status).keyOrigin, KeyOrigin::Manual);
}

TEST(SecurityView, TheRemainingTimeChoiceIsTheUsersOnceItWasRead) {
    EXPECT_TRUE(withRemainingTime({}, false).remainingTimeEnabled);
    EXPECT_FALSE(withRemainingTime(everything(), false).showsRemainingTime);
    EXPECT_TRUE(withRemainingTime({}, true).showsRemainingTime);
}

struct PeriodsCase {
    int line;
    std::uint32_t autoClearSeconds;
    std::uint16_t idleLockSeconds;
    AutoClearEntry autoClear;
    AutoLogOffEntry autoLogOff;
};

TEST(SecurityView, ShowsThePeriodsThatTheDriveReports) {
    const PeriodsCase cases[] = {
        {__LINE__, 59940, 90, {true, PeriodUnit::Minutes, "999"}, {true, "1"}},
        {__LINE__, 59941, 60, {true, PeriodUnit::Days, "0"}, {true, "1"}},
        {__LINE__, 86400, 59, {true, PeriodUnit::Days, "1"}, {true, "0"}},
        {__LINE__, 90000, 0, {true, PeriodUnit::Days, "1"}, {false, ""}},
        {__LINE__, 0, 300, {false, PeriodUnit::Days, ""}, {true, "5"}},
    };
    for (const PeriodsCase& row : cases) {
        const SecurityView view = withPeriods(
            {}, {.autoClearPeriod = row.autoClearSeconds, .idleLockPeriod = row.idleLockSeconds});
        EXPECT_TRUE(view.autoClearEnabled && view.autoLogOffEnabled) << "line " << row.line;
        EXPECT_EQ(view.autoClear, row.autoClear) << "line " << row.line;
        EXPECT_EQ(view.autoLogOff, row.autoLogOff) << "line " << row.line;
    }
}

TEST(SecurityView, OfAPeriodThatIsOffTheNumberShownStays) {
    const SecurityView view = withPeriods(everything(), {});
    EXPECT_EQ(view.autoClear, (AutoClearEntry{false, PeriodUnit::Minutes, "30"}));
    EXPECT_EQ(view.autoLogOff, (AutoLogOffEntry{false, "5"}));
}

TEST(SecurityView, AutoClearSwitchedByTheUserBeginsAnewInDays) {
    EXPECT_EQ(withAutoClear(everything(), true).autoClear,
              (AutoClearEntry{true, PeriodUnit::Days, QString()}));
    EXPECT_EQ(withAutoClear(everything(), false).autoClear,
              (AutoClearEntry{false, PeriodUnit::Days, QString()}));
}

TEST(SecurityView, AutoLogOffKeepsItsNumberWhileItIsOn) {
    EXPECT_EQ(withAutoLogOff(everything(), true).autoLogOff, (AutoLogOffEntry{true, "5"}));
    EXPECT_EQ(withAutoLogOff(everything(), false).autoLogOff, (AutoLogOffEntry{false, ""}));
}

} // namespace
} // namespace zelto::test
