#include "simulator/computer/VirtualDiskTool.h"

#include <algorithm>

namespace zelto::simulator {

namespace {

constexpr int Done = 0;
constexpr int Failed = 1;

} // namespace

int VirtualDiskTool::run(const std::vector<std::string>& arguments) {
    std::string text = "diskutil";
    for (const std::string& argument : arguments) {
        text += " " + argument;
    }
    m_log.note(LogLine::Kind::DiskTool, text);
    if (m_beforeRun) {
        m_beforeRun(arguments);
    }
    if (arguments.size() < 2) {
        return Failed;
    }
    const auto failure = m_failures.find(arguments.front());
    if (failure != m_failures.end()) {
        return failure->second;
    }
    if (arguments.front() == "umount" && arguments.size() == 2) {
        return umount(arguments[1]);
    }
    if (arguments.front() == "eject" && arguments.size() == 2) {
        return eject(arguments[1]);
    }
    return arguments.front() == "eraseDisk" ? eraseDisk(arguments) : Failed;
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

void VirtualDiskTool::setFailure(const std::string& verb, std::optional<int> status) {
    m_failures.erase(verb);
    if (status) {
        m_failures.emplace(verb, *status);
    }
}

int VirtualDiskTool::umount(const std::string& name) {
    return m_mounts.unmount(name) ? Done : Failed;
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

int VirtualDiskTool::eject(const std::string& name) {
    const auto place = m_disks.find(name);
    if (!place || !unmountAll(*place->disk)) {
        return Failed;
    }
    m_disks.eject(*place->disk);
    return Done;
}

int VirtualDiskTool::eraseDisk(const std::vector<std::string>& arguments) {
    constexpr std::size_t ArgumentCount = 5;
    const bool understood =
        arguments.size() == ArgumentCount && arguments[1] == "MS-DOS" && arguments[3] == "MBR";
    const auto place = understood ? m_disks.find(arguments[4]) : std::nullopt;
    if (!place || place->partition || !unmountAll(*place->disk)) {
        return Failed;
    }
    VirtualDisk& disk = *place->disk;
    Partition partition = partitionFilling(disk.device->sectorCount(), 0);
    partition.type = fatPartitionType(partition.sectorCount);
    BlockDevicePart part(*disk.device, partition.firstSector, partition.sectorCount);
    if (partition.sectorCount == 0 || !writeMasterBootRecord(*disk.device, partition) ||
        !formatFat(part, arguments[2], static_cast<std::uint32_t>(partition.firstSector),
                   m_clock.now())) {
        return Failed;
    }
    m_disks.readPartitions(disk);
    if (m_eraseMounts) {
        m_mounts.mount(disk.partitionName(partition.number));
    }
    return Done;
}

} // namespace zelto::simulator
