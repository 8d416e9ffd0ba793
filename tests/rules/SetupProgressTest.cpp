#include "settings/SetupProgress.h"

#include <gtest/gtest.h>

namespace zelto::test {
namespace {

SetupProgress progressOf(std::uint8_t state, std::int32_t waitCount = SetupProgress::WaitTicks) {
    return {.InitialSettingState = state, .WaitCount = waitCount, .ReservedAreaDiskNumber = 3};
}

constexpr SetupObservation NothingYet{.driveStillAway = true, .toolVolumeSeen = false};

TEST(SetupProgress, WithoutASetupNothingHappens) {
    for (const std::uint8_t state :
         {std::uint8_t{0}, std::uint8_t{4}, std::uint8_t{5}, std::uint8_t{255}}) {
        const SetupStep step = advanceSetup(progressOf(state), NothingYet);
        EXPECT_EQ(step.event, SetupEvent::None);
        EXPECT_EQ(step.progress.InitialSettingState, state);
        EXPECT_EQ(step.progress.WaitCount, 60);
    }
}

TEST(SetupProgress, TheDriveThatIsBackOpensTheWaitForItsVolume) {
    const SetupStep step = advanceSetup(progressOf(1, 17), {.driveStillAway = false});
    EXPECT_EQ(step.event, SetupEvent::None);
    EXPECT_EQ(step.progress.InitialSettingState, 2);
    EXPECT_EQ(step.progress.WaitCount, 60);
    EXPECT_EQ(step.progress.ReservedAreaDiskNumber, 3);
}

TEST(SetupProgress, TheVolumeThatIsSeenMakesFormattingDueAtTheNextTick) {
    const SetupStep step = advanceSetup(progressOf(2, 17), {.toolVolumeSeen = true});
    EXPECT_EQ(step.event, SetupEvent::None);
    EXPECT_EQ(step.progress.InitialSettingState, 3);
    EXPECT_EQ(step.progress.WaitCount, 17);
}

TEST(SetupProgress, FormattingIsDueOnce) {
    const SetupStep step = advanceSetup(progressOf(3), NothingYet);
    EXPECT_EQ(step.event, SetupEvent::FormatAndCopy);
    EXPECT_EQ(step.progress.InitialSettingState, 4);
    EXPECT_EQ(advanceSetup(step.progress, NothingYet).event, SetupEvent::None);
}

class SetupWaits : public testing::TestWithParam<std::uint8_t> {};

TEST_P(SetupWaits, EndsAfterSixtyTicks) {
    SetupProgress progress = progressOf(GetParam());
    for (int tick = 1; tick < 60; ++tick) {
        const SetupStep step = advanceSetup(progress, NothingYet);
        ASSERT_EQ(step.event, SetupEvent::None) << tick;
        ASSERT_EQ(step.progress.WaitCount, 60 - tick);
        ASSERT_TRUE(step.progress.isUnderWay());
        progress = step.progress;
    }
    const SetupStep last = advanceSetup(progress, NothingYet);
    EXPECT_EQ(last.event, SetupEvent::NotFound);
    EXPECT_EQ(last.progress.InitialSettingState, 4);
    EXPECT_FALSE(last.progress.isUnderWay());
}

TEST_P(SetupWaits, TheLastTickStillFindsWhatItWaitsFor) {
    const SetupStep step =
        advanceSetup(progressOf(GetParam(), 1), {.driveStillAway = false, .toolVolumeSeen = true});
    EXPECT_EQ(step.event, SetupEvent::None);
    EXPECT_EQ(step.progress.InitialSettingState, GetParam() + 1);
}

INSTANTIATE_TEST_SUITE_P(SetupSteps, SetupWaits, testing::Values(std::uint8_t{1}, std::uint8_t{2}));

TEST(ProgressText, IsShownOnOddCounts) {
    EXPECT_FALSE(showsProgressText(progressOf(1, 60)));
    EXPECT_TRUE(showsProgressText(progressOf(1, 59)));
    EXPECT_FALSE(showsProgressText(progressOf(2, 0)));
    EXPECT_TRUE(showsProgressText(progressOf(2, -1)));
}

using View = SetupView;

TEST(SetupView, BlinksWithTheCountThatATickFound) {
    EXPECT_EQ(setupUnderWay(progressOf(1, 59), progressOf(1, 58)),
              (View{View::Text::NowSetting, 1, View::Outcome::UnderWay}));
    EXPECT_EQ(setupUnderWay(progressOf(1, 58), progressOf(2, 60)),
              (View{View::Text::Blank, 2, View::Outcome::UnderWay}));
}

TEST(SetupView, AFailureStaysAtTheStepItHappenedIn) {
    EXPECT_EQ(setupFailed(progressOf(2, 1)),
              (View{View::Text::NowSetting, 2, View::Outcome::Failed}));
}

TEST(SetupView, ASetupThatIsDoneSaysSo) {
    EXPECT_EQ(setupDone(), (View{View::Text::Complete, 4, View::Outcome::Done}));
}

} // namespace
} // namespace zelto::test
