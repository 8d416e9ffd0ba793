#include "app/AppDelegate.h"
#include "device/DeviceReads.h"
#include "device/DeviceWrites.h"
#include "device/IORegistry.h"
#include "device/ZELTOctrl.h"
#include "settings/KeyDigits.h"
#include "ui/Strings.h"

namespace zelto {
namespace {

/// A drive with a secure area is cleared while unlocked, or when no password opens it any more.
bool mayBeCleared(SecurityState state) {
    return state == SecurityState::StateNoPassword || state == SecurityState::StateUnlocking ||
           state == SecurityState::StateFullLock;
}

bool hasKeyToClear(SecurityState state) {
    return state == SecurityState::StateIdle || state == SecurityState::StateLocked ||
           state == SecurityState::StatePasswordPending || state == SecurityState::StateFullLock;
}

} // namespace

void AppDelegate::MainSettingsEncryptionKeyAction() {
    auto& form = *EncryptionKeyWindow;
    TextInputMode = TextInputModes::EncryptionKey;
    form.EncryptionKeyText->setSecret(Settings.StrEncryptionKey.view());
    UpdateEncryptionKeyWindow();

    if (form.runModal(&*MainSettingsWindow) == Window::ModalOK) {
        Settings.StrEncryptionKey = form.EncryptionKeyText->secretText();
    }
    TextInputMode = TextInputModes::MainSettings;
    form.orderOut();
    form.EncryptionKeyText->wipe();
}

void AppDelegate::UpdateEncryptionKeyWindow() {
    auto& form = *EncryptionKeyWindow;
    const QStringView digits = form.EncryptionKeyText->secret();
    form.EncryptionKeyOKButton->setEnabled(isValidKeyText(digits));
    showObstacle(*form.EncryptionKeyObstacle, keyObstacle(digits));
}

void AppDelegate::EncryptionKeyOKAction() {
    EncryptionKeyWindow->stopModal(Window::ModalOK);
}

void AppDelegate::EncryptionKeyCancelAction() {
    EncryptionKeyWindow->stopModal(Window::ModalCancel);
}

void AppDelegate::MainSettingsAutoClearEraseAction() {
    if (!Confirm("IDS_ERASE_ENCRYPTION_KEY_CONFIRM")) {
        return;
    }
    const auto status = readDeviceStatus(Device(), StatusRequest::Plain);
    if (reportIfFailed(status.result)) {
        return;
    }
    if (status.record.state() != SecurityState::StateUnlocking) {
        ShowMessage(AlertWeight::Warning, localized("IDS_ERR_ZELTO_NOT_UNLOCKING"));
        return;
    }
    // The drive erases its key when the period has run out, so the shortest one does it at once.
    constexpr std::uint32_t OneSecond = 1;
    if (reportIfFailed(TKVR21_ZELTO_SetErasePeriod(Device(), OneSecond))) {
        return;
    }
    Logout();
    TerminateApplication();
}

void AppDelegate::MainSettingsClearAllAction() {
    if (!Confirm("IDS_CLEAR_ALL_CONFIRM")) {
        return;
    }
    constexpr std::uint8_t AllAreas = 0;
    constexpr std::uint8_t KeepMedium = 0;
    GetBsdNameList(AllAreas);
    if (!UnmountVolume(g_BsdNameList, KeepMedium)) {
        ReportUnmountFailure();
        return;
    }
    if (!SpinUpDrive()) {
        return;
    }
    const auto status = readDeviceStatus(Device(), StatusRequest::Plain);
    if (reportIfFailed(status.result)) {
        return;
    }
    const SecurityState state = status.record.state();
    if (Settings.SecureAreaAlreadyExist && !mayBeCleared(state)) {
        ShowMessage(AlertWeight::Warning, localized("IDS_ERR_ZELTO_NOT_UNLOCKING"));
        return;
    }
    if (clearPeriodsAndHint(state) && resetAreaInfos()) {
        LeaveNotice(Desktop::Notice::Weight::Passing, "IDS_NOTICE_CLEARED");
        TerminateApplication();
    }
}

bool AppDelegate::clearPeriodsAndHint(SecurityState state) {
    // A fully locked drive takes no periods any more.
    constexpr Periods Off;
    if (state != SecurityState::StateFullLock && reportIfFailed(writePeriods(Device(), Off))) {
        return false;
    }
    constexpr bool ShowRemainingTime = true;
    return !reportIfFailed(writeShowRemainingTime(Device(), ShowRemainingTime));
}

/// When the drive refuses only because of its security state, its key is cleared first.
bool AppDelegate::resetAreaInfos() {
    if (TKVR21_ResetAreaInfos(Device(), true, true) == kIOReturnSuccess) {
        return true;
    }
    const auto refused = readDeviceStatus(Device(), StatusRequest::Plain);
    if (reportIfFailed(refused.result)) {
        return false;
    }
    SecurityState state = refused.record.state();
    if (!saysSecurityStateForbids(refused.record.sense) ||
        state == SecurityState::StateNoPassword) {
        reportSense();
        return false;
    }
    if (state == SecurityState::StateUnlocking) {
        if (reportIfFailed(TKVR21_Logout(Device(), 0))) {
            return false;
        }
        state = SecurityState::StateLocked;
    }
    if (hasKeyToClear(state) && reportIfFailed(TKVR21_ClearEncryptionInfo(Device(), true, false))) {
        return false;
    }
    return !reportIfFailed(TKVR21_ResetAreaInfos(Device(), true, true));
}

} // namespace zelto
