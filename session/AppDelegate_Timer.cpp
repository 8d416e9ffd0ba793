#include "app/AppDelegate.h"
#include "device/DeviceReads.h"
#include "device/IORegistry.h"
#include "device/ZELTOctrl.h"
#include "platform/Clock.h"
#include "session/ClockText.h"
#include "session/RemainingTime.h"
#include "settings/SetupSteps.h"
#include "ui/Strings.h"

namespace zelto {

void AppDelegate::TimerHandler() {
    blinkSetupText();
    tickSetup();
    if (m_gate.isClosedForGood()) {
        return; // A set-up that has given up sends nothing more on its way out.
    }

    const auto now = m_platform.clock.now();
    MainSettingsWindow.PCTimeText->setText(
        dateTimeText(clockAt(now + m_platform.clock.utcOffset(now))));

    if (Drives.CurrentUsbIntf == nullptr) {
        return;
    }
    const auto time = readTimeStatus(Device());
    if (time.failed()) {
        return;
    }
    showDriveTime(time.record);
    if (DisplayRemainingTimeAuthenticateWindow) {
        AuthenticateWindow.AuthenticateRemainingTimeText->setText(
            remainingTimeText(time.record, {.expired = localized("IDS_EXPIRED"),
                                            .days = localized("IDS_DAYS"),
                                            .hours = localized("IDS_HOURS"),
                                            .minutes = localized("IDS_MIN")}));
    }
}

void AppDelegate::blinkSetupText() {
    if (Setup.isUnderWay()) {
        ZeltoSettingWindow.ZeltoSettingText->setText(
            showsProgressText(Setup) ? localized("IDS_NOW_SETTING") : QString());
    }
}

void AppDelegate::tickSetup() {
    SetupObservation observation{.driveStillAway = Drives.WaitReconnectZelto};
    if (Setup.InitialSettingState == SetupProgress::WaitingForToolVolume) {
        GetBsdNameList(Setup.ReservedAreaDiskNumber);
        observation.toolVolumeSeen = !g_BsdNameList.empty();
    }
    const SetupStep step = advanceSetup(Setup, observation);
    switch (step.event) {
    case SetupEvent::None:
        if (Setup.isUnderWay()) {
            ZeltoSettingWindow.SetupStepsView->setCurrentStep(step.progress.InitialSettingState);
        }
        Setup = step.progress;
        break;
    case SetupEvent::NotFound:
        ZeltoSettingWindow.SetupStepsView->setFailed();
        ShowMessage(localized("IDS_ERR_NOT_FOUND_ZELTO"));
        Setup = step.progress;
        TerminateApplication();
        break;
    case SetupEvent::FormatAndCopy:
        Setup = step.progress;
        formatAndCopy();
        break;
    }
}

void AppDelegate::formatAndCopy() {
    // Since the volume was seen, the drive may have gone and another disk may have got its name.
    GetBsdNameList(Setup.ReservedAreaDiskNumber);
    const std::string disk = g_BsdNameList.empty() ? std::string() : g_BsdNameList.front();
    if (disk.empty() || !FormatDrive(disk)) {
        ZeltoSettingWindow.SetupStepsView->setFailed();
        ShowMessage(localized("IDS_ERR_FORMAT"));
        TerminateApplication();
        return;
    }
    if (!CopyToolFile(disk)) {
        ZeltoSettingWindow.SetupStepsView->setFailed();
        TerminateApplication();
        return;
    }
    ZeltoSettingWindow.SetupStepsView->setCurrentStep(SetupSteps::Finished);
    ZeltoSettingWindow.ZeltoSettingText->setText(localized("IDS_SETTING_COMPLETE"));
    ZeltoSettingWindow.ZeltoSettingOKButton->setEnabled(true);
}

void AppDelegate::showDriveTime(const TimeStatus& status) {
    QString text = localized("IDS_ERR_TIME_STATUS_INVALID");
    if (status.clockNotValid) {
        TimeStatusInvalid = true;
    } else if (const auto moment = momentOf(status.clock)) {
        text = dateTimeText(clockAt(*moment + m_platform.clock.utcOffset(*moment)));
    }
    MainSettingsWindow.DeviceTimeText->setText(text);
    AuthenticateWindow.AuthenticateDeviceTimeText->setText(text);
}

IOReturn AppDelegate::SetCurrentTime() {
    const CurrentTime::Bytes bytes = encodeCurrentTime(clockAt(m_platform.clock.now()));
    return TKVR21_ZELTO_SetCurrentTime(Device(), bytes.data(), bytes.size());
}

void AppDelegate::MainSettingsSetTimeAction() {
    if (const IOReturn result = SetCurrentTime(); result != kIOReturnSuccess) {
        ErrorMessageBox(result);
        return;
    }
    // A clock that was valid before is set without a word.
    if (TimeStatusInvalid) {
        ShowMessage(localized("IDS_TIME_SYNC_COMPLETE"));
        TerminateApplication();
    }
}

void AppDelegate::UpdateCheckBoxShowRemainingTime() {
    auto& box = *MainSettingsWindow.ShowRemainingTimeCheckBox;
    box.setChecked(readShowRemainingTime(Device()));
    box.setEnabled(true);
}

void AppDelegate::UpdateUserDefaultsShowRemainingTime() {
    // Everything else has been accepted by now; a choice that was not is no reason to stay.
    (void)writeShowRemainingTime(Device(),
                                 MainSettingsWindow.ShowRemainingTimeCheckBox->isChecked());
}

} // namespace zelto
