#include "simulator/computer/VirtualMountTable.h"

#include <algorithm>

namespace zelto::simulator {

std::vector<MountedFileSystem> VirtualMountTable::getmntinfo() {
    std::vector<MountedFileSystem> lines = m_foreign;
    for (const MountedVolume& mounted : m_mounted) {
        lines.push_back({mounted.mountPoint, "/dev/" + mounted.bsdName});
    }
    for (const StackedVolume& volume : m_disks.stacked()) {
        if (!volume.mountPoint.empty()) {
            lines.push_back({volume.mountPoint, "/dev/" + volume.bsdName});
        }
    }
    return lines;
}

void VirtualMountTable::setHolders(const std::string& bsdName, std::set<std::string> programs) {
    m_holders[bsdName] = std::move(programs);
}

std::set<std::string> VirtualMountTable::holders(const std::string& bsdName) const {
    const auto found = m_holders.find(bsdName);
    return found == m_holders.end() ? std::set<std::string>() : found->second;
}

std::string VirtualMountTable::freeMountPoint(const std::string& label) const {
    const std::string name = "/media/user/" + (label.empty() ? "NO NAME" : label);
    std::string candidate = name;
    for (unsigned number = 1;; ++number) {
        if (std::ranges::none_of(m_mounted, [&](const MountedVolume& mounted) {
                return mounted.mountPoint == candidate;
            })) {
            return candidate;
        }
        candidate = name + std::to_string(number);
    }
}

bool VirtualMountTable::mount(const std::string& bsdName) {
    if (isMounted(bsdName)) {
        return true;
    }
    const VirtualDisk* const disk = m_disks.find(bsdName);
    if (disk == nullptr || disk->volumeName() != bsdName) {
        return false;
    }
    MountedVolume mounted;
    mounted.bsdName = bsdName;
    mounted.volume = VirtualVolume::mount(*disk->medium);
    if (!mounted.volume) {
        return false;
    }
    mounted.mountPoint = freeMountPoint(mounted.volume->label());
    m_mounted.push_back(std::move(mounted));
    return true;
}

bool VirtualMountTable::unmount(const std::string& bsdName) {
    return holders(bsdName).empty() && std::erase_if(m_mounted, [&](const MountedVolume& mounted) {
                                           return mounted.bsdName == bsdName;
                                       }) > 0;
}

std::string VirtualMountTable::mountPoint(const std::string& bsdName) const {
    const auto found = std::ranges::find(m_mounted, bsdName, &MountedVolume::bsdName);
    return found == m_mounted.end() ? std::string() : found->mountPoint;
}

VirtualVolume* VirtualMountTable::volumeAt(const std::filesystem::path& path,
                                           std::filesystem::path& rest) const {
    for (const MountedVolume& mounted : m_mounted) {
        const std::filesystem::path relative = path.lexically_relative(mounted.mountPoint);
        if (relative.empty() || *relative.begin() == "..") {
            continue;
        }
        rest = relative == "." ? std::filesystem::path() : relative;
        return mounted.volume.get();
    }
    return nullptr;
}

void VirtualMountTable::diskAppeared(const VirtualDisk& disk) {
    if (m_habit == DesktopHabit::MountsAtOnce) {
        mount(disk.volumeName());
    }
}

void VirtualMountTable::diskVanished(const VirtualDisk& disk) {
    std::erase_if(m_mounted, [name = disk.volumeName()](const MountedVolume& mounted) {
        return mounted.bsdName == name;
    });
    m_holders.erase(disk.volumeName());
}

} // namespace zelto::simulator
