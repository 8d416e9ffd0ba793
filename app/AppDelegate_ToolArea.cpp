#include "app/AppDelegate.h"
#include "device/DeviceReads.h"
#include "device/IORegistry.h"
#include "platform/Computer.h"
#include "platform/Desktop.h"
#include "platform/Disks.h"
#include "session/ForeignText.h"
#include "settings/AreaPacking.h"
#include "ui/Strings.h"

#include <algorithm>

namespace zelto {
namespace {

constexpr const char* ToolVolumeLabel = "ZELTO TOOL";
constexpr const char* BundleName = "ZeltoAppMac.app";
/// In characters, where a path is shown.
constexpr std::size_t LongestPath = 200;

} // namespace

bool AppDelegate::FormatDrive(const std::string& bsdName) {
    const EventGate::Closing closing(m_gate);
    const DiskIdentity toolArea{.location = Drives.currentLocation(),
                                .mediaName = mediaName(Setup.ReservedAreaDiskNumber),
                                .sectorCount = AreaUnits::ToolAreaSectors};
    return m_platform.disks.eraseDisk(bsdName, toolArea, ToolVolumeLabel);
}

bool AppDelegate::CopyToolFile(const std::string& bsdName) {
    const std::string device = "/dev/" + m_platform.disks.partitionName(bsdName, 1);
    const auto mounted = m_platform.mounts.getmntinfo();
    const auto volume = std::ranges::find(mounted, device, &MountedFileSystem::f_mntfromname);
    if (volume == mounted.end()) {
        // Nothing else says it, and the drive itself is ready.
        LeaveNotice(Desktop::Notice::Weight::Lasting, "IDS_NOTICE_SET_UP_WITHOUT_TOOL");
        return false;
    }

    const std::filesystem::path source = m_platform.computer.bundlePath();
    const std::filesystem::path root = volume->f_mntonname;
    const std::filesystem::path destination = root / BundleName;
    const bool copied = [&] {
        const EventGate::Closing closing(m_gate);
        return m_platform.computer.copyItemAtPath(source, destination);
    }();
    if (copied) {
        copyFilesBesideBundle(root);
    } else {
        ShowMessage(AlertWeight::Warning,
                    localized("IDS_ERR_FILE_COPY", foreignText(source.native(), LongestPath),
                              foreignText(destination.native(), LongestPath)));
    }
    return copied;
}

/// Without these the program can still be started from the volume by hand, so a failure is no
/// failure of the tool area.
void AppDelegate::copyFilesBesideBundle(const std::filesystem::path& volume) {
    const EventGate::Closing closing(m_gate);
    for (const auto& file : m_platform.computer.filesBesideBundle()) {
        (void)m_platform.computer.copyItemAtPath(file, volume / file.filename());
    }
}

bool AppDelegate::GetSecureAreaDiskNumber(std::uint32_t& diskNumber) {
    return !reportIfFailed(readSecureAreaDiskNumber(diskNumber));
}

IOReturn AppDelegate::readSecureAreaDiskNumber(std::uint32_t& diskNumber) {
    const auto areas = readAreaInfos(Device());
    if (!areas.failed()) {
        Settings.AreaInfos = areas.record;
        if (const auto secure = Settings.AreaInfos.firstSecureDiskNumber(); secure != 0) {
            diskNumber = secure;
        }
    }
    return areas.result;
}

} // namespace zelto
