#include "app/AppDelegate.h"
#include "device/DeviceReads.h"
#include "device/IORegistry.h"
#include "device/ZELTOctrl.h"
#include "platform/Disks.h"
#include "ui/Strings.h"

#include <algorithm>

namespace zelto {

using namespace std::chrono_literals;

void AppDelegate::GetBsdNameList(std::uint8_t diskNumber) {
    g_BsdNameList.clear();
    const ScanTarget target{.vendor = UsbIdentity::Vendor,
                            .product = Drives.FoundPid[Drives.SelectedZeltoIndex],
                            .serial = Drives.UsbSerial[Drives.SelectedZeltoIndex],
                            .diskNumber = diskNumber,
                            .location = Drives.currentLocation()};
    // A drive that is not found has no volumes.
    (void)IORegistry::Scan_ZELTOusb(m_platform.registry, target, g_BsdNameList);
}

bool AppDelegate::UnmountVolume(const std::vector<std::string>& bsdNames, std::uint8_t eject) {
    const Desktop::Hold awake =
        m_platform.desktop.keepAwake(localized("IDS_AWAKE_RELEASE").toStdString());
    bool allSucceeded = true;
    for (const std::string& name : bsdNames) {
        // Asked afresh for each name: ejecting a disk has unmounted its partitions too.
        if (!isInUse(name)) {
            continue;
        }
        const EventGate::Closing closing(m_gate);
        const bool done = eject == 0 ? m_platform.disks.umount(name) : m_platform.disks.eject(name);
        allSucceeded = done && allSucceeded;
    }
    return allSucceeded;
}

/// Open is as bad as mounted: the drive would be locked, or pulled, under an encrypted volume.
bool AppDelegate::isInUse(const std::string& bsdName) const {
    const auto mounted = m_platform.mounts.getmntinfo();
    return std::ranges::find(mounted, "/dev/" + bsdName, &MountedFileSystem::f_mntfromname) !=
               mounted.end() ||
           m_platform.disks.isStacked(bsdName);
}

bool AppDelegate::SpinUpDrive() {
    constexpr int Attempts = 10;
    for (int attemptsLeft = Attempts;;) {
        const auto status = readDeviceStatus(Device(), StatusRequest::WithReadiness);
        if (reportIfFailed(status.result)) {
            return false;
        }
        if (status.record.isReady()) {
            return true;
        }
        if (--attemptsLeft == 0) {
            ShowMessage(AlertWeight::Warning, localized("IDS_ERR_SPINUP"));
            TerminateApplication();
            return false;
        }
        Pause(1s);
    }
}

} // namespace zelto
