#include "simulator/computer/VirtualMountTable.h"

#include <algorithm>

namespace zelto::simulator {

namespace {

const std::string MountFolder = "/media/user/";

} // namespace

std::vector<MountedFileSystem> VirtualMountTable::getmntinfo() {
    std::vector<MountedFileSystem> lines = m_foreign;
    for (const MountedVolume& mounted : m_mounted) {
        lines.push_back({mounted.mountPoint, "/dev/" + mounted.bsdName});
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
    const std::string name = MountFolder + (label.empty() ? "NO NAME" : label);
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
    const auto place = m_disks.find(bsdName);
    if (!place) {
        return false;
    }
    BlockDevice& disk = *place->disk->device;
    const Partition whole{.firstSector = 0, .sectorCount = disk.sectorCount()};
    const Partition part = place->partition.value_or(whole);
    MountedVolume mounted;
    mounted.bsdName = bsdName;
    mounted.part = std::make_unique<BlockDevicePart>(disk, part.firstSector, part.sectorCount);
    mounted.volume = FatVolume::mount(*mounted.part);
    if (!mounted.volume) {
        return false;
    }
    mounted.mountPoint = freeMountPoint(mounted.volume->label());
    m_mounted.push_back(std::move(mounted));
    return true;
}

bool VirtualMountTable::unmount(const std::string& bsdName) {
    if (!holders(bsdName).empty() || std::erase_if(m_mounted, [&](const MountedVolume& mounted) {
                                         return mounted.bsdName == bsdName;
                                     }) == 0) {
        return false;
    }
    if (m_habit == DesktopHabit::MountsAgain) {
        m_clock.after(std::chrono::seconds(1), [this, bsdName] { mount(bsdName); });
    }
    return true;
}

bool VirtualMountTable::isMounted(const std::string& bsdName) const {
    return std::ranges::any_of(
        m_mounted, [&](const MountedVolume& mounted) { return mounted.bsdName == bsdName; });
}

std::string VirtualMountTable::mountPoint(const std::string& bsdName) const {
    const auto found = std::ranges::find(m_mounted, bsdName, &MountedVolume::bsdName);
    return found == m_mounted.end() ? std::string() : found->mountPoint;
}

FatVolume* VirtualMountTable::volumeAt(const std::filesystem::path& path,
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
    for (const std::string& name : VirtualDisks::volumeNames(disk)) {
        switch (m_habit) {
        case DesktopHabit::MountsAtOnce:
        case DesktopHabit::MountsAgain:
            mount(name);
            break;
        case DesktopHabit::MountsLate:
            m_clock.after(m_delay, [this, name] { mount(name); });
            break;
        case DesktopHabit::Never:
            break;
        }
    }
}

void VirtualMountTable::diskVanished(const VirtualDisk& disk) {
    const std::vector<std::string> names = VirtualDisks::volumeNames(disk);
    std::erase_if(m_mounted, [&](const MountedVolume& mounted) {
        return std::ranges::find(names, mounted.bsdName) != names.end();
    });
    for (const std::string& name : names) {
        m_holders.erase(name);
    }
}

} // namespace zelto::simulator
