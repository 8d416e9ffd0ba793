#include "simulator/computer/VirtualDiskTool.h"

#include <algorithm>

namespace zelto::simulator {

bool VirtualDiskTool::run(DiskVerb verb, const std::string& arguments, const std::string& bsdName,
                          const std::function<bool()>& action) {
    m_log.note(LogLine::Kind::DiskTool, "diskutil " + arguments);
    if (m_beforeRun) {
        m_beforeRun(bsdName);
    }
    const ToolBehaviour behaviour = m_behaviours[verb];
    return behaviour == ToolBehaviour::Works ? action() : behaviour == ToolBehaviour::OnlyPretends;
}

bool VirtualDiskTool::umount(const std::string& bsdName) {
    return run(DiskVerb::Umount, "umount " + bsdName, bsdName, [&] {
        return closeStackedOn(bsdName) &&
               (isStacked(bsdName) ? m_disks.closeStacked(bsdName) : m_mounts.unmount(bsdName));
    });
}

bool VirtualDiskTool::eject(const std::string& bsdName) {
    return run(DiskVerb::Eject, "eject " + bsdName, bsdName, [&] {
        VirtualDisk* const disk = m_disks.find(baseOf(bsdName));
        const bool isFree = disk != nullptr && unmountAll(*disk);
        if (isFree) {
            m_disks.eject(*disk);
        }
        return isFree;
    });
}

bool VirtualDiskTool::eraseDisk(const std::string& bsdName, const DiskIdentity& meant,
                                const std::string& label) {
    return run(DiskVerb::EraseDisk, "eraseDisk MS-DOS " + label + " MBR " + bsdName, bsdName, [&] {
        VirtualDisk* const disk = m_disks.find(bsdName);
        return disk != nullptr && disk->bsdName == bsdName && disk->identity() == meant &&
               label.size() <= VirtualVolume::LongestLabel && unmountAll(*disk) &&
               format(*disk, label);
    });
}

std::string VirtualDiskTool::partitionName(const std::string& disk, unsigned number) const {
    return disk + "s" + std::to_string(number);
}

std::vector<std::string> VirtualDiskTool::holders(const std::vector<std::string>& bsdNames) const {
    std::set<std::string> programs;
    for (const std::string& name : bsdNames) {
        programs.merge(m_mounts.holders(name));
        if (isStacked(name)) {
            programs.insert(name);
        }
        if (const VirtualDisk* const disk = m_disks.find(name)) {
            programs.merge(m_mounts.holders(disk->volumeName()));
        }
    }
    return {programs.begin(), programs.end()};
}

bool VirtualDiskTool::isStacked(const std::string& bsdName) const {
    return std::ranges::find(m_disks.stacked(), bsdName, &StackedVolume::bsdName) !=
           m_disks.stacked().end();
}

std::string VirtualDiskTool::baseOf(std::string bsdName) const {
    for (const StackedVolume& volume : m_disks.stacked()) {
        if (volume.bsdName == bsdName) {
            return baseOf(volume.below);
        }
    }
    return bsdName;
}

/// What stands on another first.
bool VirtualDiskTool::closeStackedOn(const std::string& bsdName) {
    const auto stacked = m_disks.stacked();
    return std::ranges::all_of(stacked, [&](const StackedVolume& volume) {
        return volume.below != bsdName ||
               (closeStackedOn(volume.bsdName) && m_disks.closeStacked(volume.bsdName));
    });
}

bool VirtualDiskTool::unmountAll(const VirtualDisk& disk) {
    const std::string name = disk.volumeName();
    const bool diskIsFree = closeStackedOn(disk.bsdName);
    const bool volumeIsFree = closeStackedOn(name);
    return (!m_mounts.isMounted(name) || m_mounts.unmount(name)) && diskIsFree && volumeIsFree;
}

bool VirtualDiskTool::format(VirtualDisk& disk, const std::string& label) {
    disk.hasVolume = VirtualVolume::format(*disk.medium, label);
    if (disk.hasVolume && m_eraseMounts) {
        m_mounts.mount(disk.volumeName());
    }
    return disk.hasVolume;
}

} // namespace zelto::simulator
