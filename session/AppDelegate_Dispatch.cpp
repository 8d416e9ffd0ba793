#include "app/AppDelegate.h"
#include "device/DeviceReads.h"
#include "device/Discovery.h"
#include "platform/Clock.h"
#include "platform/Desktop.h"
#include "session/ClockText.h"
#include "session/DriveSign.h"
#include "ui/Description.h"
#include "ui/DeviceRule.h"
#include "ui/Strings.h"

#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>
#include <array>
#include <functional>

namespace zelto {
namespace {

/// What a person can do about a drive that is attached but may not be opened.
QString accessHint(AttachedDrives::Access access) {
    switch (access) {
    case AttachedDrives::Access::Granted:
        return {};
    case AttachedDrives::Access::RuleMissing:
        return localized("IDS_HINT_RULE_MISSING");
    case AttachedDrives::Access::OtherSession:
        return localized("IDS_HINT_OTHER_SESSION");
    case AttachedDrives::Access::InUse:
        return localized("IDS_HINT_DRIVE_IN_USE");
    }
    return {};
}

QString wordsOf(const DriveSign& sign) {
    if (sign.serial.isEmpty()) {
        return localized("IDS_DRIVE_PORT", sign.port);
    }
    return sign.port.isEmpty() ? localized("IDS_DRIVE_SERIAL", sign.serial)
                               : localized("IDS_DRIVE_SERIAL_AND_PORT", sign.serial, sign.port);
}

/// In an idle drive, and in states without a name, there is nothing to show; the program stays.
bool hasWindow(SecurityState state) {
    return state <= SecurityState::StateFullLock && state != SecurityState::StateIdle;
}

} // namespace

void AppDelegate::ProcessBySecurityState() {
    // A status that could not be read is all zero: the settings open, and what they fail to read
    // there is reported, which beats a program that shows nothing at all.
    const DeviceStatus status = readDeviceStatus(Device(), StatusRequest::Plain).record;
    switch (status.state()) {
    case SecurityState::StateNoPassword:
        DisplayMainSettingsWindow(false);
        break;
    case SecurityState::StateLocked:
        DisplayAuthenticateWindow(true, localized("IDS_ENTER_1ST_PASSWORD"));
        break;
    case SecurityState::StatePasswordPending:
        DisplayAuthenticateWindow(false, localized(status.usesSecondPassword()
                                                       ? "IDS_ENTER_2ND_PASSWORD"
                                                       : "IDS_ENTER_1ST_PASSWORD"));
        break;
    case SecurityState::StateUnlocking:
        DisplayUnlockingWindow();
        break;
    case SecurityState::StateFullLock:
        processFullLock();
        break;
    case SecurityState::StateIdle:
        break;
    }
    if (hasWindow(status.state())) {
        quitWithoutWindow();
    } else {
        m_platform.desktop.giveWayToNewStart();
    }
}

/// Closing the last window quits, and so does failing to open it: without this the program would
/// go on unseen and hold the drive.
void AppDelegate::quitWithoutWindow() {
    const std::array inUse{SelectZeltoWindow.isInUse(),  AuthenticateWindow.isInUse(),
                           UnlockedWindow.isInUse(),     UnlockingWindow.isInUse(),
                           ZeltoSettingWindow.isInUse(), MainSettingsWindow.isInUse()};
    if (std::ranges::none_of(inUse, std::identity())) {
        TerminateApplication();
    }
}

void AppDelegate::processFullLock() {
    const auto time = readTimeStatus(Device());
    if (time.failed()) {
        return;
    }
    if (time.record.clockNotValid) {
        offerToSetClock();
        TerminateApplication();
        return;
    }
    ShowMessage(AlertWeight::Critical, localized("IDS_ERR_ZELTO_DRIVE_LOST"));
    DisplayMainSettingsWindow(false);
}

void AppDelegate::offerToSetClock() {
    const auto now = m_platform.clock.now();
    const QString localTime = dateMinuteText(clockAt(now + m_platform.clock.utcOffset(now)));
    const AlertButton answer =
        RunAlertPanel({.weight = AlertWeight::Warning,
                       .title = localized("IDS_APP_TITLE"),
                       .message = localized("IDS_FULLLOCK_TIME_STATUS_INVALID", localTime),
                       .defaultButton = localized("OK"),
                       .alternateButton = localized("IDS_CANCEL_BUTTON"),
                       .onEscape = AlertButton::Alternate});
    if (answer != AlertButton::Default) {
        return;
    }
    if (reportIfFailed(SetCurrentTime())) {
        return;
    }
    ShowMessage(AlertWeight::Information, localized("IDS_SET_CURRENT_YIME"));
}

void AppDelegate::DisplaySelectZeltoWindow() {
    auto& form = *SelectZeltoWindow;
    const bool anyDrive = Drives.DevCnt != 0;
    form.SelectZeltoComboBox->clear();
    for (int index = 0; index < Drives.DevCnt; ++index) {
        form.SelectZeltoComboBox->addItem(QString::asprintf("Device %d", index));
    }
    if (anyDrive) {
        // Nothing enables it again: a list that has shown drives is not refreshed by hand.
        form.SelectZeltoUpdate->setEnabled(false);
    } else {
        form.SelectZeltoComboBox->addItem(localized("IDS_ERR_NOT_FOUND_ZELTO"));
    }
    form.SelectZeltoComboBox->setEnabled(anyDrive);
    form.SelectZeltoOK->setEnabled(anyDrive);
    form.SelectZeltoComboBox->setCurrentIndex(0);

    showWhetherThereAreDrives(anyDrive);
    UpdateDriveSign();
    UpdateAccessHint();
}

/// A list that is disabled is out of the keyboard's reach, and nobody hears what it says. So the
/// same text stands where the focus can go.
void AppDelegate::showWhetherThereAreDrives(bool anyDrive) {
    auto& form = *SelectZeltoWindow;
    form.SelectZeltoPluggedIn->setVisible(anyDrive);
    form.SelectZeltoNoDrive->setVisible(!anyDrive);
    form.SelectZeltoNoDrive->setText(anyDrive ? QString() : localized("IDS_ERR_NOT_FOUND_ZELTO"));
    form.SelectZeltoNoDrive->setFocusPolicy(anyDrive ? Qt::NoFocus : Qt::TabFocus);
}

/// Below the list, of the drive that is chosen in it.
void AppDelegate::UpdateDriveSign() {
    const int chosen = SelectZeltoWindow->SelectZeltoComboBox->currentIndex();
    auto& line = *SelectZeltoWindow->SelectZeltoSign;
    line.setText(Drives.DevCnt == 0 ? QString()
                                    : wordsOf(driveSign(Drives, static_cast<std::size_t>(chosen))));
    line.setVisible(Drives.DevCnt != 0);
    describe(*SelectZeltoWindow->SelectZeltoComboBox, line, line.text());
}

/// Beside the list, of the drives that are attached at this moment.
void AppDelegate::UpdateAccessHint() {
    if (!SelectZeltoWindow.isBuilt()) {
        return;
    }
    auto& hint = *SelectZeltoWindow->SelectZeltoAccessHint;
    hint.setText(accessHint(Drives.refusedAccess()));
    hint.setVisible(Drives.refusedAccess() != AttachedDrives::Access::Granted);
    for (QWidget* const heard : {static_cast<QWidget*>(SelectZeltoWindow->SelectZeltoComboBox),
                                 static_cast<QWidget*>(SelectZeltoWindow->SelectZeltoNoDrive),
                                 static_cast<QWidget*>(SelectZeltoWindow->SelectZeltoUpdate)}) {
        describe(*heard, hint, hint.text());
    }
    SelectZeltoWindow->SelectZeltoShowRule->setVisible(Drives.refusedAccess() ==
                                                       AttachedDrives::Access::RuleMissing);
}

void AppDelegate::SelectZeltoUpdateAction() {
    TryRefusedDrivesAgain(Drives);
    DisplaySelectZeltoWindow();
}

/// The text comes from the program that runs here: whatever lies on a drive may have been changed
/// by whoever had it, and this is obeyed by root.
void AppDelegate::SelectZeltoShowRuleAction() {
    DeviceRuleWindow->DeviceRuleCommand->setPlainText(deviceRuleCommand());
    (void)DeviceRuleWindow->runModal(&*SelectZeltoWindow);
    DeviceRuleWindow->orderOut();
}

void AppDelegate::DeviceRuleCopyAction() {
    QGuiApplication::clipboard()->setText(DeviceRuleWindow->DeviceRuleCommand->toPlainText());
}

void AppDelegate::DeviceRuleCloseAction() {
    DeviceRuleWindow->stopModal(Window::ModalCancel);
}

void AppDelegate::SelectZeltoOKAction() {
    const auto index =
        static_cast<std::uint8_t>(SelectZeltoWindow->SelectZeltoComboBox->currentIndex());
    Drives.CurrentUsbIntf = Drives.UsbIntf.at(index);
    Drives.SelectedZeltoIndex = index;
    SelectZeltoWindow->giveWayTo([this] { ProcessBySecurityState(); });
}

void AppDelegate::SelectZeltoCancelAction() {
    TerminateApplication();
}

} // namespace zelto
