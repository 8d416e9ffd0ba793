#include "app/AppDelegate.h"
#include "device/IORegistry.h"
#include "device/ZELTOctrl.h"

namespace zelto {

void AppDelegate::DisplayUnlockedWindow() {
    UnlockedWindow->centreAndMakeKeyAndOrderFront();
}

void AppDelegate::UnlockedOKAction() {
    TerminateApplication();
}

void AppDelegate::UnlockedLogOffAction() {
    Logout();
    TerminateApplication();
}

void AppDelegate::UnlockedSetupAction() {
    UnlockedWindow->giveWayTo([this] { DisplayMainSettingsWindow(false); });
    quitWithoutWindow();
}

void AppDelegate::DisplayUnlockingWindow() {
    UnlockingWindow->centreAndMakeKeyAndOrderFront();
}

void AppDelegate::UnlockingLogOffAction() {
    Logout();
    TerminateApplication();
}

void AppDelegate::UnlockingCancelAction() {
    TerminateApplication();
}

void AppDelegate::UnlockingSetupAction() {
    UnlockingWindow->giveWayTo([this] { DisplayMainSettingsWindow(false); });
    quitWithoutWindow();
}

/// Volumes first, then the lock: the drive must never hide an area that the computer still has
/// mounted.
void AppDelegate::Logout() {
    // 0, all areas, when the drive has no secure one: its normal areas are let go of too.
    std::uint32_t diskNumber = 0;
    if (!GetSecureAreaDiskNumber(diskNumber)) {
        return;
    }
    GetBsdNameList(static_cast<std::uint8_t>(diskNumber));
    constexpr std::uint8_t Eject = 1;
    if (!UnmountVolume(g_BsdNameList, Eject)) {
        ReportUnmountFailure();
        return;
    }
    // Nothing more can be done about a drive that does not lock: its volumes are gone all the same.
    (void)TKVR21_Logout(Device(), 0);
}

} // namespace zelto
