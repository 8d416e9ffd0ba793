#include "app/AppDelegate.h"
#include "device/DeviceWrites.h"
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
    if (Settings.SecureAreaExist && shownSecurity().keyOrigin == KeyOrigin::Manual &&
        Settings.StrEncryptionKey.isEmpty()) {
        ShowMessage(AlertWeight::Warning, localized("IDS_ERR_ENCRYPTION_MANUAL_KEY_NOT_SETUP"));
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
        ShowMessage(AlertWeight::Warning, localized("IDS_HINT_SETUP_TABLE_FULL"));
        return false;
    }
    Settings.AreasWereSent = true;
    Setup.ReservedAreaDiskNumber = *toolArea;
    return !reportIfFailed(writeAreaInfos(Device(), storedEntries(Settings.AreaInfos)));
}

bool AppDelegate::sendEncryptionInfo() {
    const bool isAutomatic = shownSecurity().keyOrigin == KeyOrigin::Automatic;
    // The drive makes the key, or it is made here, in its place: a copy would stay behind.
    const Wiped<EncryptionInfo> info{
        {.automaticKey = isAutomatic,
         .key =
             keyOfDigits(isAutomatic ? std::u16string_view() : Settings.StrEncryptionKey.view())}};
    return !reportIfFailed(writeEncryptionInfo(Device(), *info));
}

bool AppDelegate::sendFirstPasswords() {
    const auto& passwords = Settings.PasswordSettingsParameters;
    Wiped<PasswordDigest> first;
    SetPasswordData(passwords.strNew1stPassword.view(), *first);
    if (!passwords.Use1stAnd2ndPassword) {
        return !reportIfFailed(writeFirstPassword(Device(), *first));
    }
    Wiped<PasswordDigest> second;
    SetPasswordData(passwords.strNew2ndPassword.view(), *second);
    return !reportIfFailed(writeBothPasswords(Device(), *first, *second,
                                              static_cast<std::uint8_t>(passwords.NumberOfTrials)));
}

bool AppDelegate::sendPeriods() {
    const SecurityView shown = shownSecurity();
    return !reportIfFailed(
        writePeriods(Device(), {.autoClearSeconds = autoClearSeconds(shown.autoClear),
                                .idleLockSeconds = autoLogOffSeconds(shown.autoLogOff)}));
}

/// From here on the timer leads: it waits for the drive, then for its tool area, and finishes.
void AppDelegate::beginSetupProgress() {
    m_awakeForSetup = m_platform.desktop.keepAwake(localized("IDS_AWAKE_SETUP").toStdString());
    Drives.WaitReconnectZelto = true;
    Setup.InitialSettingState = SetupProgress::WaitingForReconnect;
    Setup.WaitCount = SetupProgress::WaitTicks;
    // A drive that leaves the bus at once may not answer any more.
    (void)TKVR21_Reconnect(Device(), 1, 1);

    showSetup({});
    MainSettingsWindow->giveWayTo([this] { ZeltoSettingWindow->centreAndMakeKeyAndOrderFront(); });
}

} // namespace zelto
