#include "app/AppDelegate.h"
#include "device/DeviceReads.h"
#include "device/DeviceWrites.h"
#include "digest/Wipe.h"
#include "ui/Strings.h"

namespace zelto {

using namespace std::chrono_literals;

void AppDelegate::MainSettingsOKAction() {
    QPushButton& ok = *MainSettingsWindow->MainSettingsOKButton;
    ok.setEnabled(false);
    // The commands that follow block the event loop: the user sees now that the commit begins.
    ok.repaint();

    const bool committed =
        Settings.InitialSetting ? ZeltoInitializeSettings() : ZeltoChangeSettings();
    if (!committed) {
        ok.setEnabled(true);
        showSettingsCues();
        return;
    }
    Settings.wipeSecrets();
    // All else has been accepted by now, so a failure stops nothing; but what was not written has
    // not been changed.
    const IOReturn written = UpdateUserDefaultsShowRemainingTime();
    if (Settings.InitialSetting) {
        beginSetupProgress();
        return;
    }
    if (written == kIOReturnSuccess) {
        LeaveNotice(Desktop::Notice::Weight::Passing, "IDS_NOTICE_SETTINGS_CHANGED");
    }
    TerminateApplication();
}

void AppDelegate::MainSettingsCancelAction() {
    TerminateApplication();
}

void AppDelegate::MainSettingsEncryptionKeyAuto() {
    MainSettingsWindow->EncryptionKeyButton->setEnabled(false);
}

void AppDelegate::MainSettingsEncryptionKeyManual() {
    MainSettingsWindow->EncryptionKeyButton->setEnabled(true);
}

void AppDelegate::MainSettingsAutoClearEnabledAction() {
    const SecurityView shown = shownSecurity();
    Changed.AutoClearSettingsChanged = true;
    showSecurity(withAutoClear(shown, shown.autoClear.enabled));
    UpdateMainSettingsOKButton();
}

void AppDelegate::MainSettingsAutoClearDaysAction() {
    Changed.AutoClearSettingsChanged = true;
    MainSettingsWindow->AutoClearText->clear();
    UpdateMainSettingsOKButton();
}

void AppDelegate::MainSettingsAutoClearMinutesAction() {
    MainSettingsAutoClearDaysAction();
}

void AppDelegate::MainSettingsAutoLogOffEnabledAction() {
    const SecurityView shown = shownSecurity();
    Changed.AutoLogOffSettingsChanged = true;
    showSecurity(withAutoLogOff(shown, shown.autoLogOff.enabled));
    UpdateMainSettingsOKButton();
}

void AppDelegate::MainSettingsShowRemainingTimeEnabledAction() {
    Changed.ChangeRemainingTimeSetting = true;
    UpdateMainSettingsOKButton();
}

bool AppDelegate::ZeltoChangeSettings() {
    if (Changed.ChangePassword && !changePasswords()) {
        return false;
    }
    return sendPeriods();
}

bool AppDelegate::changePasswords() {
    const Desktop::Hold awake =
        m_platform.desktop.keepAwake(localized("IDS_AWAKE_PASSWORDS").toStdString());
    if (!Settings.PasswordSettingsParameters.Use1stAnd2ndPassword) {
        return changeFirstPassword(AuthInfo::Change);
    }
    // The second one stays changed when the drive then refuses the first.
    return changeSecondPassword() && changeFirstPassword(AuthInfo::ChangeBoth);
}

bool AppDelegate::changeSecondPassword() {
    const auto& passwords = Settings.PasswordSettingsParameters;
    Wiped<AuthInfo> info{{.kind = AuthInfo::Change,
                          .numberOfTrials = static_cast<std::uint8_t>(passwords.NumberOfTrials)}};
    SetPasswordData(passwords.strNew2ndPassword.view(), info->slot1);
    SetPasswordData(passwords.strCurrent2ndPassword.view(), info->slot2);
    const IOReturn result = writeAuthInfo(Device(), *info, AuthInfoUse::Change);
    if (result != kIOReturnSuccess) {
        reportRefusedChange(result, "IDS_ERR_CURRENT_2ND_PASSWORD_INVALID");
        return false;
    }
    return true;
}

bool AppDelegate::changeFirstPassword(AuthInfo::Kind kind) {
    const auto& passwords = Settings.PasswordSettingsParameters;
    Wiped<AuthInfo> info{{.kind = kind}};
    SetPasswordData(passwords.strNew1stPassword.view(), info->slot1);
    SetPasswordData(passwords.strCurrent1stPassword.view(), info->slot2);
    if (kind == AuthInfo::ChangeBoth) {
        SetPasswordData(passwords.strNew2ndPassword.view(), info->slot3);
    }
    const IOReturn result = writeAuthInfo(Device(), *info, AuthInfoUse::Change);
    if (result != kIOReturnSuccess) {
        reportRefusedChange(result, "IDS_ERR_CURRENT_1ST_PASSWORD_INVALID");
        return false;
    }
    return true;
}

/// The pause paces repeated guesses of a current password.
void AppDelegate::reportRefusedChange(IOReturn result, const char* wrongPasswordKey) {
    constexpr Sense WrongPassword{.key = 5, .additionalCode = 0x74, .qualifier = 0x40};
    Pause(1s);
    const auto status = readDeviceStatus(Device(), StatusRequest::Plain);
    if (reportIfFailed(status.result)) {
        return;
    }
    if (status.record.sense == WrongPassword) {
        ShowMessage(AlertWeight::Warning, localized(wrongPasswordKey));
    } else {
        ErrorMessageBox(result);
    }
}

} // namespace zelto
