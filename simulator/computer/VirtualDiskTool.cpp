#include "simulator/computer/VirtualDiskTool.h"

#include <algorithm>

namespace zelto::simulator {

namespace {

/// FAT's, in bytes.
constexpr std::size_t LongestLabel = 11;

} // namespace

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
        const auto place = m_disks.find(bsdName);
        const bool free = place && unmountAll(*place->disk);
        if (free) {
            m_disks.eject(*place->disk);
        }
        return free;
    });
}

bool VirtualDiskTool::eraseDisk(const std::string& bsdName, const std::string& label) {
    return run(DiskVerb::EraseDisk, "eraseDisk MS-DOS " + label + " MBR " + bsdName, bsdName, [&] {
        const auto place = m_disks.find(bsdName);
        return place && !place->partition && label.size() <= LongestLabel &&
               unmountAll(*place->disk) && format(*place->disk, label);
    });
}

std::string VirtualDiskTool::partitionName(const std::string& disk, unsigned number) const {
    return disk + "s" + std::to_string(number);
}

std::vector<std::string> VirtualDiskTool::holders(const std::vector<std::string>& bsdNames) const {
    std::set<std::string> programs;
    for (const std::string& name : bsdNames) {
        programs.merge(m_mounts.holders(name));
        const auto place = m_disks.find(name);
        if (place && !place->partition) {
            for (const std::string& volume : VirtualDisks::volumeNames(*place->disk)) {
                programs.merge(m_mounts.holders(volume));
            }
        }
    }
    return {programs.begin(), programs.end()};
}

bool VirtualDiskTool::unmountAll(const VirtualDisk& disk) {
    bool unmounted = true;
    for (const std::string& volume : VirtualDisks::volumeNames(disk)) {
        if (m_mounts.isMounted(volume)) {
            unmounted = m_mounts.unmount(volume) && unmounted;
        }
    }
    return unmounted;
}

bool VirtualDiskTool::format(VirtualDisk& disk, const std::string& label) {
    Partition partition = partitionFilling(disk.device->sectorCount(), 0);
    partition.type = fatPartitionType(partition.sectorCount);
    BlockDevicePart part(*disk.device, partition.firstSector, partition.sectorCount);
    if (partition.sectorCount == 0 || !writeMasterBootRecord(*disk.device, partition) ||
        !formatFat(part, label, static_cast<std::uint32_t>(partition.firstSector), m_clock.now())) {
        return false;
    }
    m_disks.readPartitions(disk);
    if (m_eraseMounts) {
        m_mounts.mount(disk.partitionName(partition.number));
    }
    return true;
}

} // namespace zelto::simulator
