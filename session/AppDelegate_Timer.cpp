#include "app/AppDelegate.h"
#include "device/DeviceReads.h"
#include "device/DeviceWrites.h"
#include "device/IORegistry.h"
#include "platform/Clock.h"
#include "session/ClockText.h"
#include "session/RemainingTime.h"
#include "settings/SetupProgress.h"
#include "ui/Description.h"
#include "ui/Strings.h"

#include <utility>

namespace zelto {
namespace {

QString setupText(SetupView::Text text) {
    switch (text) {
    case SetupView::Text::Blank:
        return {};
    case SetupView::Text::NowSetting:
        return localized("IDS_NOW_SETTING");
    case SetupView::Text::Complete:
        return localized("IDS_SETTING_COMPLETE");
    }
    return {};
}

} // namespace

void AppDelegate::TimerHandler() {
    tickSetup();
    if (m_gate.isClosedForGood()) {
        return; // After a failed set-up nothing more is sent to the drive.
    }

    const auto now = m_platform.clock.now();
    m_computerTime = dateTimeText(clockAt(now + m_platform.clock.utcOffset(now)));
    showTimes();

    if (Drives.CurrentUsbIntf == nullptr) {
        return;
    }
    const auto time = readTimeStatus(Device());
    if (time.failed()) {
        return;
    }
    showDriveTime(time.record);
    if (DisplayRemainingTimeAuthenticateWindow) {
        showValue(*AuthenticateWindow->AuthenticateRemainingTimeText,
                  remainingTimeText(time.record, {.expired = localized("IDS_EXPIRED"),
                                                  .days = localized("IDS_DAYS"),
                                                  .hours = localized("IDS_HOURS"),
                                                  .minutes = localized("IDS_MIN")}));
    }
}

void AppDelegate::tickSetup() {
    if (!Setup.isUnderWay()) {
        return;
    }
    SetupObservation observation{.driveStillAway = Drives.WaitReconnectZelto};
    if (Setup.InitialSettingState == SetupProgress::WaitingForToolVolume) {
        GetBsdNameList(Setup.ReservedAreaDiskNumber);
        observation.toolVolumeSeen = !g_BsdNameList.empty();
    }
    const SetupStep step = advanceSetup(Setup, observation);
    const Desktop::Hold awake = m_awakeForSetup; // Also while the last step is under way.
    if (!step.progress.isUnderWay()) {
        m_awakeForSetup = nullptr;
    }
    switch (step.event) {
    case SetupEvent::None:
        showSetup(setupUnderWay(Setup, step.progress));
        Setup = step.progress;
        break;
    case SetupEvent::NotFound:
        showSetup(setupFailed(Setup));
        ShowMessage(AlertWeight::Warning, localized("IDS_ERR_NOT_FOUND_ZELTO"));
        Setup = step.progress;
        TerminateApplication();
        break;
    case SetupEvent::FormatAndCopy:
        showSetup(setupUnderWay(Setup, Setup));
        formatAndCopy(std::exchange(Setup, step.progress));
        break;
    }
}

void AppDelegate::formatAndCopy(const SetupProgress& before) {
    // Since the volume was seen, the drive may have gone and another disk may have got its name.
    GetBsdNameList(Setup.ReservedAreaDiskNumber);
    const std::string disk = g_BsdNameList.empty() ? std::string() : g_BsdNameList.front();
    if (disk.empty() || !FormatDrive(disk)) {
        showSetup(setupFailed(before));
        ShowMessage(AlertWeight::Warning, localized("IDS_ERR_FORMAT"));
        TerminateApplication();
        return;
    }
    if (!CopyToolFile(disk)) {
        showSetup(setupFailed(before));
        TerminateApplication();
        return;
    }
    showSetup(setupDone());
    // Here, not with Finish: the window can be closed in other ways as well.
    LeaveNotice(Desktop::Notice::Weight::Passing, "IDS_NOTICE_SET_UP");
}

void AppDelegate::showSetup(const SetupView& view) {
    auto& form = *ZeltoSettingWindow;
    showValue(*form.ZeltoSettingText, setupText(view.text));
    form.SetupStepsView->setCurrentStep(view.step);
    if (view.outcome == SetupView::Outcome::Failed) {
        form.SetupStepsView->setFailed();
    }
    const bool isDone = view.outcome == SetupView::Outcome::Done;
    form.ZeltoSettingOKButton->setEnabled(isDone);
    if (isDone) {
        describe(*form.ZeltoSettingOKButton, *form.ZeltoSettingText, form.ZeltoSettingText->text());
        form.ZeltoSettingOKButton->setFocus(Qt::OtherFocusReason);
    }
}

void AppDelegate::showDriveTime(const TimeStatus& status) {
    m_driveTime = localized("IDS_ERR_TIME_STATUS_INVALID");
    if (status.clockNotValid) {
        TimeStatusInvalid = true;
        if (MainSettingsWindow.isBuilt()) {
            showSettingsCues();
        }
    } else if (const auto moment = momentOf(status.clock)) {
        m_driveTime = dateTimeText(clockAt(*moment + m_platform.clock.utcOffset(*moment)));
    }
    showTimes();
}

void AppDelegate::showTimes() {
    if (MainSettingsWindow.isBuilt()) {
        showValue(*MainSettingsWindow->PCTimeText, m_computerTime);
        showValue(*MainSettingsWindow->DeviceTimeText, m_driveTime);
    }
    if (AuthenticateWindow.isBuilt()) {
        showValue(*AuthenticateWindow->AuthenticateDeviceTimeText, m_driveTime);
    }
}

IOReturn AppDelegate::SetCurrentTime() {
    return writeCurrentTime(Device(), m_platform.clock.now());
}

void AppDelegate::MainSettingsSetTimeAction() {
    if (reportIfFailed(SetCurrentTime())) {
        return;
    }
    // No message for a clock that was valid before.
    if (TimeStatusInvalid) {
        ShowMessage(AlertWeight::Information, localized("IDS_TIME_SYNC_COMPLETE"));
        TerminateApplication();
    }
}

void AppDelegate::UpdateCheckBoxShowRemainingTime() {
    showSecurity(withRemainingTime(shownSecurity(), readShowRemainingTime(Device())));
}

IOReturn AppDelegate::UpdateUserDefaultsShowRemainingTime() {
    return writeShowRemainingTime(Device(),
                                  MainSettingsWindow->ShowRemainingTimeCheckBox->isChecked());
}

} // namespace zelto
