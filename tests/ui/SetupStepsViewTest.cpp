#include "ui/SetupStepsView.h"
#include "ui/VirtualScreen.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPalette>

#include <array>

namespace zelto::test {
namespace {

using State = SetupStepsView::State;

std::array<State, 5> statesOf(const SetupStepsView& steps) {
    std::array<State, 5> states{};
    for (int step = 0; step < 5; ++step) {
        states[static_cast<std::size_t>(step)] = steps.stateOf(step);
    }
    return states;
}

TEST(SetupStepsViewTest, StepsBeforeTheCurrentOneAreDone) {
    SetupStepsView steps;
    steps.setCurrentStep(SetupStepsView::VolumeAppears);
    const std::array expected{State::Done, State::Done, State::UnderWay, State::ToCome,
                              State::ToCome};
    EXPECT_EQ(statesOf(steps), expected);
}

TEST(SetupStepsViewTest, OnceFinishedEveryStepIsDone) {
    SetupStepsView steps;
    steps.setCurrentStep(SetupStepsView::AllDone);
    for (const State state : statesOf(steps)) {
        EXPECT_EQ(state, State::Done);
    }
}

TEST(SetupStepsViewTest, AFailureMarksTheStepThatWasUnderWay) {
    SetupStepsView steps;
    steps.setCurrentStep(SetupStepsView::DriveReconnects);
    steps.setFailed();
    EXPECT_EQ(steps.stateOf(SetupStepsView::SettingsSent), State::Done);
    EXPECT_EQ(steps.stateOf(SetupStepsView::DriveReconnects), State::Failed);
    EXPECT_EQ(steps.stateOf(SetupStepsView::VolumeAppears), State::ToCome);
}

TEST(SetupStepsViewTest, ANewStepForgetsTheFailure) {
    SetupStepsView steps;
    steps.setFailed();
    steps.setCurrentStep(SetupStepsView::SettingsSent);
    EXPECT_EQ(steps.stateOf(SetupStepsView::SettingsSent), State::UnderWay);
}

TEST(SetupStepsViewTest, NumbersOutOfRangeAreTakenForTheNearestStep) {
    SetupStepsView steps;
    steps.setCurrentStep(99);
    EXPECT_EQ(steps.currentStep(), SetupStepsView::AllDone);
    steps.setCurrentStep(-1);
    EXPECT_EQ(steps.currentStep(), SetupStepsView::SettingsSent);
}

TEST(SetupStepsViewTest, TellsTheStepToThoseWhoDoNotSeeIt) {
    SetupStepsView steps;
    steps.setCurrentStep(SetupStepsView::FormatAndCopy);
    const QString told = steps.accessibleDescription();
    EXPECT_TRUE(told.contains(QStringLiteral("4")) && told.contains(QStringLiteral("5")));
    steps.setFailed();
    EXPECT_NE(steps.accessibleDescription(), told);
}

TEST(SetupStepsViewTest, LooksDifferentInEveryStepAndKeepsItsSize) {
    SetupStepsView steps;
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

TEST(SetupStepsViewTest, EveryMarkHasAnOutlineAsStrongAsTextInHighContrast) {
    SetupStepsView steps;
    steps.setPalette(highContrastPalette());
    steps.setCurrentStep(SetupStepsView::DriveReconnects);
    steps.resize(steps.sizeHint());
    const QImage image = steps.grab().toImage();
    const int lineHeight = image.height() / 5;
    for (int step = 0; step < 5; ++step) {
        int strong = 0;
        for (int x = 0; x < lineHeight; ++x) {
            for (int y = step * lineHeight; y < (step + 1) * lineHeight; ++y) {
                strong += image.pixelColor(x, y).lightness() > 200 ? 1 : 0;
            }
        }
        EXPECT_GT(strong, 20) << "step " << step;
    }
}

} // namespace
} // namespace zelto::test
