#include "simulator/computer/VirtualDiskTool.h"

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
    return run(DiskVerb::Umount, "umount " + bsdName, bsdName,
               [&] { return m_mounts.unmount(bsdName); });
}

bool VirtualDiskTool::eject(const std::string& bsdName) {
    return run(DiskVerb::Eject, "eject " + bsdName, bsdName, [&] {
        VirtualDisk* const disk = m_disks.find(bsdName);
        const bool isFree = disk != nullptr && unmountVolume(*disk);
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
               label.size() <= VirtualVolume::LongestLabel && unmountVolume(*disk) &&
               format(*disk, label);
    });
}

std::string VirtualDiskTool::partitionName(const std::string& disk, unsigned number) const {
    return disk + "s" + std::to_string(number);
}

std::vector<std::string> VirtualDiskTool::holders(const std::vector<std::string>& bsdNames) const {
    std::set<std::string> programs;
    for (const std::string& name : bsdNames) {
        if (const VirtualDisk* const disk = m_disks.find(name)) {
            programs.merge(m_mounts.holders(disk->volumeName()));
        }
    }
    return {programs.begin(), programs.end()};
}

bool VirtualDiskTool::unmountVolume(const VirtualDisk& disk) {
    const std::string name = disk.volumeName();
    return !m_mounts.isMounted(name) || m_mounts.unmount(name);
}

bool VirtualDiskTool::format(VirtualDisk& disk, const std::string& label) {
    disk.hasVolume = VirtualVolume::format(*disk.medium, label);
    if (disk.hasVolume && m_eraseMounts) {
        m_mounts.mount(disk.volumeName());
    }
    return disk.hasVolume;
}

} // namespace zelto::simulator
