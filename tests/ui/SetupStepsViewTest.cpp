#include "ui/SetupSteps.h"

#include <gtest/gtest.h>

#include <QImage>

#include <array>

namespace zelto {
namespace {

using State = SetupSteps::State;

std::array<State, 5> statesOf(const SetupSteps& steps) {
    std::array<State, 5> states{};
    for (int step = 0; step < 5; ++step) {
        states[static_cast<std::size_t>(step)] = steps.stateOf(step);
    }
    return states;
}

TEST(SetupStepsTest, StepsBeforeTheCurrentOneAreDone) {
    SetupSteps steps;
    steps.setCurrentStep(SetupSteps::VolumeAppears);
    const std::array expected{State::Done, State::Done, State::UnderWay, State::ToCome,
                              State::ToCome};
    EXPECT_EQ(statesOf(steps), expected);
}

TEST(SetupStepsTest, OnceFinishedEveryStepIsDone) {
    SetupSteps steps;
    steps.setCurrentStep(SetupSteps::Finished);
    for (const State state : statesOf(steps)) {
        EXPECT_EQ(state, State::Done);
    }
}

TEST(SetupStepsTest, AFailureMarksTheStepThatWasUnderWay) {
    SetupSteps steps;
    steps.setCurrentStep(SetupSteps::DriveReconnects);
    steps.setFailed();
    EXPECT_EQ(steps.stateOf(SetupSteps::SettingsSent), State::Done);
    EXPECT_EQ(steps.stateOf(SetupSteps::DriveReconnects), State::Failed);
    EXPECT_EQ(steps.stateOf(SetupSteps::VolumeAppears), State::ToCome);
}

TEST(SetupStepsTest, ANewStepForgetsTheFailure) {
    SetupSteps steps;
    steps.setFailed();
    steps.setCurrentStep(SetupSteps::SettingsSent);
    EXPECT_EQ(steps.stateOf(SetupSteps::SettingsSent), State::UnderWay);
}

TEST(SetupStepsTest, NumbersOutOfRangeAreTakenForTheNearestStep) {
    SetupSteps steps;
    steps.setCurrentStep(99);
    EXPECT_EQ(steps.currentStep(), SetupSteps::Finished);
    steps.setCurrentStep(-1);
    EXPECT_EQ(steps.currentStep(), SetupSteps::SettingsSent);
}

TEST(SetupStepsTest, TellsTheStepToThoseWhoDoNotSeeIt) {
    SetupSteps steps;
    steps.setCurrentStep(SetupSteps::FormatAndCopy);
    const QString told = steps.accessibleDescription();
    EXPECT_TRUE(told.contains(QStringLiteral("4")) && told.contains(QStringLiteral("5")));
    steps.setFailed();
    EXPECT_NE(steps.accessibleDescription(), told);
}

TEST(SetupStepsTest, LooksDifferentInEveryStepAndKeepsItsSize) {
    SetupSteps steps;
    const QSize size = steps.sizeHint();
    steps.resize(size);
    QImage before;
    for (int step = 0; step < 5; ++step) {
        steps.setCurrentStep(step);
        const QImage now = steps.grab().toImage();
        EXPECT_NE(now, before);
        EXPECT_EQ(steps.sizeHint(), size);
        before = now;
    }
}

} // namespace
} // namespace zelto
