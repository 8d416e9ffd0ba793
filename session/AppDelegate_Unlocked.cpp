#include "app/AppDelegate.h"
#include "device/IORegistry.h"
#include "device/ZELTOctrl.h"
#include "platform/Desktop.h"
#include "platform/Result.h"

#include <algorithm>

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

void AppDelegate::Logout() {
    switch (releaseAndLock()) {
    case kIOReturnSuccess:
        leaveLockedNotice();
        break;
    case kIOReturnNoDevice:
        break; // Without power it is locked, and whoever pulled it knows.
    default:
        LeaveNotice(Desktop::Notice::Weight::Lasting, "IDS_NOTICE_STILL_UNLOCKED");
    }
}

/// Volumes first, then the lock: the drive must never hide an area that the computer still has
/// mounted.
IOReturn AppDelegate::releaseAndLock() {
    // 0, all areas, when the drive has no secure one: its normal areas are let go of too.
    std::uint32_t diskNumber = 0;
    if (const IOReturn result = readSecureAreaDiskNumber(diskNumber); reportIfFailed(result)) {
        return result;
    }
    GetBsdNameList(static_cast<std::uint8_t>(diskNumber));
    constexpr std::uint8_t Eject = 1;
    if (!UnmountVolume(g_BsdNameList, Eject)) {
        ReportUnmountFailure();
        return kIOReturnExclusiveAccess;
    }
    // Nothing more can be done about a drive that does not lock: its volumes are gone all the same.
    return TKVR21_Logout(Device(), 0);
}

/// The normal areas stay mounted: to pull the drive may cost what was written there last.
void AppDelegate::leaveLockedNotice() {
    constexpr std::uint8_t AllAreas = 0;
    GetBsdNameList(AllAreas);
    const bool mayBeUnplugged = std::ranges::none_of(
        g_BsdNameList, [this](const std::string& name) { return isInUse(name); });
    LeaveNotice(Desktop::Notice::Weight::Passing,
                mayBeUnplugged ? "IDS_NOTICE_LOCKED" : "IDS_NOTICE_LOCKED_IN_USE");
}

} // namespace zelto
