#include "settings/SetupProgress.h"

namespace zelto {
namespace {

SetupStep waitOneTick(SetupProgress progress) {
    if (--progress.WaitCount != 0) {
        return {progress, SetupEvent::None};
    }
    progress.InitialSettingState = SetupProgress::Finished;
    return {progress, SetupEvent::NotFound};
}

SetupStep awaitReconnect(SetupProgress progress, const SetupObservation& observation) {
    if (observation.driveStillAway) {
        return waitOneTick(progress);
    }
    progress.InitialSettingState = SetupProgress::WaitingForToolVolume;
    progress.WaitCount = SetupProgress::WaitTicks;
    return {progress, SetupEvent::None};
}

SetupStep awaitToolVolume(SetupProgress progress, const SetupObservation& observation) {
    if (!observation.toolVolumeSeen) {
        return waitOneTick(progress);
    }
    progress.InitialSettingState = SetupProgress::FormatAndCopyDue;
    return {progress, SetupEvent::None};
}

SetupStep beginFormatAndCopy(SetupProgress progress) {
    progress.InitialSettingState = SetupProgress::Finished;
    return {progress, SetupEvent::FormatAndCopy};
}

} // namespace

SetupStep advanceSetup(const SetupProgress& progress, const SetupObservation& observation) {
    switch (static_cast<SetupProgress::State>(progress.InitialSettingState)) {
    case SetupProgress::WaitingForReconnect:
        return awaitReconnect(progress, observation);
    case SetupProgress::WaitingForToolVolume:
        return awaitToolVolume(progress, observation);
    case SetupProgress::FormatAndCopyDue:
        return beginFormatAndCopy(progress);
    case SetupProgress::NoSetup:
    case SetupProgress::Finished:
        break;
    }
    return {progress, SetupEvent::None};
}

bool showsProgressText(const SetupProgress& progress) {
    return progress.WaitCount % 2 != 0;
}

SetupView setupUnderWay(const SetupProgress& before, const SetupProgress& after) {
    return {.text =
                showsProgressText(before) ? SetupView::Text::NowSetting : SetupView::Text::Blank,
            .step = after.InitialSettingState};
}

SetupView setupFailed(const SetupProgress& before) {
    SetupView view = setupUnderWay(before, before);
    view.outcome = SetupView::Outcome::Failed;
    return view;
}

SetupView setupDone() {
    return {.text = SetupView::Text::Complete,
            .step = SetupProgress::Finished,
            .outcome = SetupView::Outcome::Done};
}

} // namespace zelto
