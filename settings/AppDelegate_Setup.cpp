#include "app/AppDelegate.h"
#include "device/IORegistry.h"
#include "device/ZELTOctrl.h"
#include "digest/Wipe.h"
#include "settings/AreaPacking.h"
#include "settings/KeyDigits.h"
#include "ui/Strings.h"

namespace zelto {

bool AppDelegate::ZeltoInitializeSettings() {
    constexpr std::uint8_t AllAreas = 0;
    constexpr std::uint8_t KeepMedium = 0;
    GetBsdNameList(AllAreas);
    if (!UnmountVolume(g_BsdNameList, KeepMedium)) {
        ReportUnmountFailure();
        return false;
    }
    if (Settings.SecureAreaExist && !usesAutomaticKey() && Settings.StrEncryptionKey.isEmpty()) {
        ShowMessage(localized("IDS_ERR_ENCRYPTION_MANUAL_KEY_NOT_SETUP"));
        return false;
    }
    if (!SpinUpDrive() || !sendAreaInfos()) {
        return false;
    }
    if (Settings.SecureAreaExist && !(sendEncryptionInfo() && sendFirstPasswords())) {
        return false;
    }
    return sendPeriods();
}

void AppDelegate::ZeltoSettingOKAction() {
    TerminateApplication();
}

/// What is appended here stays appended when a later command fails: a retry sends one tool area
/// more. Once the table has no room for another, the drive is not asked at all; laying out the
/// areas again makes room.
bool AppDelegate::sendAreaInfos() {
    const auto toolArea = appendToolArea(Settings.AreaInfos);
    if (!toolArea) {
        return Succeeded(kIOReturnBadArgument);
    }
    Setup.ReservedAreaDiskNumber = *toolArea;
    const auto entries = storedEntries(Settings.AreaInfos);
    return Succeeded(TKVR21_SetAreaInfos(Device(), entries.data(),
                                         static_cast<std::uint32_t>(entries.size()), false));
}

bool AppDelegate::sendEncryptionInfo() {
    EncryptionInfo info{.automaticKey = usesAutomaticKey()};
    if (!info.automaticKey) {
        info.key = keyOfDigits(Settings.StrEncryptionKey);
    }
    EncryptionInfo::Bytes bytes = encodeEncryptionInfo(info);
    const IOReturn result =
        TKVR21_SetEncryptionInfo(Device(), bytes.data(), bytes.size(), true, false);
    wipe(bytes);
    wipeObject(info);
    return Succeeded(result);
}

bool AppDelegate::sendFirstPasswords() {
    const auto& passwords = Settings.PasswordSettingsParameters;
    if (!passwords.Use1stAnd2ndPassword) {
        AuthInfo first{.kind = AuthInfo::Set};
        SetPasswordData(passwords.strNew1stPassword, first.slot1);
        return Succeeded(sendAuthInfo(first, AuthInfoUse::FirstSetup));
    }
    AuthInfo second{.kind = AuthInfo::Set,
                    .numberOfTrials = static_cast<std::uint8_t>(passwords.NumberOfTrials)};
    SetPasswordData(passwords.strNew2ndPassword, second.slot1);
    if (!Succeeded(sendAuthInfo(second, AuthInfoUse::FirstSetup))) {
        return false;
    }
    AuthInfo both{.kind = AuthInfo::SetBoth};
    SetPasswordData(passwords.strNew1stPassword, both.slot1);
    SetPasswordData(passwords.strNew2ndPassword, both.slot2);
    return Succeeded(sendAuthInfo(both, AuthInfoUse::FirstSetup));
}

IOReturn AppDelegate::sendAuthInfo(AuthInfo& info, AuthInfoUse use) {
    auto bytes = encodeAuthInfo(info);
    const IOReturn result = TKVR21_SetAuthInfo(Device(), static_cast<std::uint16_t>(info.size()),
                                               bytes.data(), use == AuthInfoUse::FirstSetup, false);
    wipe(bytes);
    wipeObject(info);
    return result;
}

bool AppDelegate::sendPeriods() {
    return Succeeded(
               TKVR21_ZELTO_SetErasePeriod(Device(), autoClearSeconds(shownAutoClearEntry()))) &&
           Succeeded(
               TKVR21_ZELTO_SetIdleLockPeriod(Device(), autoLogOffSeconds(shownAutoLogOffEntry())));
}

bool AppDelegate::Succeeded(IOReturn result) {
    if (result != kIOReturnSuccess) {
        ErrorMessageBox(result);
        return false;
    }
    return true;
}

/// From here on the timer leads: it waits for the drive, then for its tool area, and finishes.
void AppDelegate::beginSetupProgress() {
    Drives.WaitReconnectZelto = true;
    Setup.InitialSettingState = SetupProgress::WaitingForReconnect;
    Setup.WaitCount = SetupProgress::WaitTicks;
    // A drive that leaves the bus at once may not answer any more.
    (void)TKVR21_Reconnect(Device(), 1, 1);

    MainSettingsWindow.orderOut();
    ZeltoSettingWindow.ZeltoSettingText->setText(localized("IDS_NOW_SETTING"));
    ZeltoSettingWindow.ZeltoSettingOKButton->setEnabled(false);
    ZeltoSettingWindow.SetupStepsView->setCurrentStep(Setup.InitialSettingState);
    ZeltoSettingWindow.centreAndMakeKeyAndOrderFront();
}

} // namespace zelto
