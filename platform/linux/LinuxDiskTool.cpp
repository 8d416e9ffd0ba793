#include "platform/linux/LinuxDiskTool.h"

#include "platform/linux/DiskHolders.h"
#include "platform/linux/UDisksNames.h"

#include <unistd.h>

#include <algorithm>
#include <optional>
#include <set>
#include <utility>

namespace zelto::linux_platform {

namespace {

/// How often a volume that the desktop has mounted again is unmounted again.
constexpr int Attempts = 5;
/// A volume can be mounted in several places; a service that tells of more is broken.
constexpr int MostMountPoints = 32;
/// FAT's, in bytes.
constexpr std::size_t LongestLabel = 11;
constexpr quint64 SectorSize = 512;

bool succeeded(const QDBusMessage& reply) {
    return reply.type() == QDBusMessage::ReplyMessage;
}

bool failedWith(const QDBusMessage& reply, QLatin1String error) {
    return reply.type() == QDBusMessage::ErrorMessage && reply.errorName() == error;
}

/// The service gives up waiting for the kernel after a while, and the kernel goes on.
bool mayYetSucceed(const QDBusMessage& reply) {
    return failedWith(reply, udisks::error::TimedOut) ||
           reply.errorMessage().contains(QLatin1String("Timed out"), Qt::CaseInsensitive);
}

QVariantList withOptions(QVariantList arguments, const QVariantMap& options = {}) {
    arguments.append(options);
    return arguments;
}

bool isMounted(const UDisksState& state, const QString& block) {
    const auto* found = state.find(block);
    return found != nullptr && !found->mountPoints.empty();
}

} // namespace

FatPartition planFatPartition(quint64 diskSizeInBytes) {
    constexpr quint64 Mebibyte = 1U << 20U;
    // From this size on the formatting tool writes FAT32, below it FAT16 or FAT12.
    constexpr quint64 SmallestFat32 = 512 * Mebibyte;
    const quint64 usable = diskSizeInBytes / Mebibyte * Mebibyte;
    if (usable < 2 * Mebibyte) {
        return {};
    }
    const quint64 size = usable - Mebibyte;
    return {Mebibyte, size, size < SmallestFat32 ? QStringLiteral("0x0e") : QStringLiteral("0x0c")};
}

LinuxDiskTool::LinuxDiskTool(Bus bus, const Waiting& waiting, MountTable& mounts, DiskDelays delays,
                             KernelFolders kernel)
    : m_bus(std::move(bus)),
      m_waiting(waiting),
      m_mounts(mounts),
      m_delays(delays),
      m_proc(std::move(kernel.proc)),
      m_devices(std::move(kernel.sysfs)) {}

UDisks& LinuxDiskTool::service() {
    if (!m_service) {
        m_service = std::make_unique<UDisks>(m_bus(), m_waiting);
    }
    return *m_service;
}

std::string LinuxDiskTool::partitionName(const std::string& disk, unsigned number) const {
    const bool endsInDigit = !disk.empty() && disk.back() >= '0' && disk.back() <= '9';
    return disk + (endsInDigit ? "p" : "") + std::to_string(number);
}

std::vector<std::string> LinuxDiskTool::holders(const std::vector<std::string>& bsdNames) const {
    std::vector<std::string> devicePaths;
    std::ranges::transform(bsdNames, std::back_inserter(devicePaths),
                           [](const std::string& name) { return "/dev/" + name; });
    const auto programs = programsHolding(devicePaths, m_mounts.getmntinfo(), m_proc, ::getuid());
    std::set<std::string> found(programs.begin(), programs.end());
    for (const auto& name : bsdNames) {
        const auto stacked = m_devices.isStacked(name) ? m_devices.find(name) : std::nullopt;
        if (stacked) {
            found.insert(stacked->attribute("dm/name").value_or(name));
        }
    }
    return {found.begin(), found.end()};
}

bool LinuxDiskTool::umount(const std::string& bsdName) {
    const auto busy = m_waiting.showWork();
    const auto state = service().state();
    const auto* block = state ? state->findDevice(bsdName) : nullptr;
    return block != nullptr && releaseStacked(bsdName) && release(*block);
}

bool LinuxDiskTool::releaseStacked(const std::string& bsdName) {
    return std::ranges::all_of(m_devices.stackedOn(bsdName), [&](const std::string& name) {
        const auto state = service().state();
        const auto* block = state ? state->findDevice(name) : nullptr;
        // It may have gone with what stood on it.
        return block != nullptr ? release(*block) : state && !m_devices.isStacked(name);
    });
}

bool LinuxDiskTool::release(const UDisksBlock& block) {
    for (int attempt = 0; attempt < Attempts; ++attempt) {
        if (!unmountEverywhere(block.path)) {
            return false;
        }
        if (!m_devices.isStacked(block.name()) || close(block)) {
            return true;
        }
        const auto state = service().state();
        if (!state || !isMounted(*state, block.path)) {
            return false; // no desktop has mounted it again: it cannot be closed
        }
    }
    return false;
}

/// Only an encrypted volume can be closed here. Logical volumes and arrays are their owner's, who
/// alone knows what else they stand on.
bool LinuxDiskTool::close(const UDisksBlock& block) {
    if (block.cryptoBackingDevice.size() <= 1) {
        return false;
    }
    const auto reply = service().call(block.cryptoBackingDevice, udisks::encrypted::Interface,
                                      udisks::encrypted::Lock, withOptions({}));
    const bool worthWaiting = succeeded(reply) || mayYetSucceed(reply);
    const auto isClosed = [&](const UDisksState& now) { return now.find(block.path) == nullptr; };
    return service().waitFor(isClosed,
                             worthWaiting ? m_delays.property : std::chrono::milliseconds::zero());
}

bool LinuxDiskTool::eject(const std::string& bsdName) {
    const auto busy = m_waiting.showWork();
    const auto state = service().state();
    const auto* block = state ? state->findDevice(m_devices.baseOf(bsdName)) : nullptr;
    const auto* disk = block != nullptr ? state->diskOf(*block) : nullptr;
    if (disk == nullptr) {
        return false;
    }
    const bool hasDrive = state->findDrive(disk->drive) != nullptr;
    return (hasDrive ? ejectMedium(*disk) : unmountDisk(disk->path)) || isFree(disk->path);
}

bool LinuxDiskTool::ejectMedium(const UDisksBlock& disk) {
    // The service is not always right about drives; a disk without a size has no medium either.
    const auto mediumHasGone = [&](const UDisksState& now) {
        const auto* ejected = now.find(disk.path);
        const auto* driveNow = now.findDrive(disk.drive);
        return ejected == nullptr || ejected->sizeInBytes == 0 || driveNow == nullptr ||
               !driveNow->mediaAvailable;
    };
    // Never PowerOff: it takes the whole device off the bus, and the log-out still has to reach it.
    const auto ask = [&] {
        return service().call(disk.drive, udisks::drive::Interface, udisks::drive::Eject,
                              withOptions({}));
    };
    return doFreed(disk.path, ask, mediumHasGone, m_delays.ejection);
}

/// There may be no program to eject with, or a unit that refuses: that keeps nothing in use.
bool LinuxDiskTool::isFree(const QString& disk) {
    const auto state = service().state();
    return state && !isInUse(*state, disk);
}

bool LinuxDiskTool::isInUse(const UDisksState& state, const QString& disk) const {
    const auto* block = state.find(disk);
    return !state.mountedOn(disk).empty() ||
           (block != nullptr && !m_devices.stackedOn(block->name()).empty());
}

bool LinuxDiskTool::eraseDisk(const std::string& bsdName, const DiskIdentity& meant,
                              const std::string& label) {
    if (label.size() > LongestLabel) {
        return false;
    }
    const auto busy = m_waiting.showWork();
    if (!isKnown(bsdName, meant)) {
        return false;
    }
    const auto state = service().state();
    const auto* disk = state ? state->findDevice(bsdName) : nullptr;
    if (disk == nullptr) {
        return false;
    }
    const Erasure erasure{disk->path, bsdName, meant};
    if (!writeTable(erasure)) {
        return false;
    }
    const auto partition = createPartition(erasure);
    return !partition.isEmpty() && makeFat(erasure, partition, QString::fromStdString(label)) &&
           mount(disk->path, partition);
}

/// A drive that has just come back is in the kernel's tree a while before the service has heard of
/// it and of its medium; longest where the computer is busy with its coming and going. The service
/// may still speak of the disk that had the name before.
bool LinuxDiskTool::isKnown(const std::string& bsdName, const DiskIdentity& meant) {
    const auto arrivalDelay = 3 * m_delays.property;
    bool isMeant = true;
    const auto decided = [&](const UDisksState& now) {
        isMeant = m_devices.isDisk(bsdName, meant);
        const auto* found = now.findDevice(bsdName);
        return !isMeant ||
               (found != nullptr && found->sizeInBytes == meant.sectorCount * SectorSize);
    };
    return service().waitFor(decided, arrivalDelay) && isMeant;
}

bool LinuxDiskTool::unmountEverywhere(const QString& block) {
    bool triedInVain = false;
    for (int attempt = 0; attempt < MostMountPoints; ++attempt) {
        const auto state = service().state();
        if (!state) {
            return false;
        }
        if (!isMounted(*state, block)) {
            return true;
        }
        // Without "force": that would only hide the volume from new programs.
        const auto reply = service().call(block, udisks::filesystem::Interface,
                                          udisks::filesystem::Unmount, withOptions({}));
        const auto before = state->find(block)->mountPoints;
        const auto fewer = [&](const UDisksState& now) {
            const auto* found = now.find(block);
            return found == nullptr || found->mountPoints != before;
        };
        const bool worthWaiting = succeeded(reply) || mayYetSucceed(reply) ||
                                  failedWith(reply, udisks::error::NotMounted);
        if (service().waitFor(fewer, worthWaiting ? m_delays.property
                                                  : std::chrono::milliseconds::zero())) {
            continue;
        }
        if (failedWith(reply, udisks::error::NotMounted)) {
            return true;
        }
        // The service said that it has unmounted, and still shows the volume as mounted. If it
        // has, a second call is answered with NotMounted.
        if (!succeeded(reply) || std::exchange(triedInVain, true)) {
            return false;
        }
    }
    return false;
}

bool LinuxDiskTool::unmountDisk(const QString& disk) {
    const auto before = service().state();
    const auto* device = before ? before->find(disk) : nullptr;
    if (device != nullptr && !releaseStacked(device->name())) {
        return false;
    }
    const auto state = service().state();
    return state && std::ranges::all_of(state->mountedOn(disk), [&](const QString& block) {
               return unmountEverywhere(block);
           });
}

/// A disk that has left will not reach the goal any more, whatever the service has said.
bool LinuxDiskTool::settle(const QString& disk, const QDBusMessage& reply,
                           const UDisks::Predicate& goal, std::chrono::milliseconds delay) {
    const bool worthWaiting = succeeded(reply) || mayYetSucceed(reply);
    bool reached = false;
    bool hasLeft = false;
    const auto decided = [&](const UDisksState& now) {
        reached = goal(now);
        hasLeft = now.find(disk) == nullptr;
        return reached || hasLeft;
    };
    (void)service().waitFor(decided, worthWaiting ? delay : std::chrono::milliseconds::zero());
    return reached || (!hasLeft && succeeded(reply));
}

/// Does what a mounted volume forbids. The desktop may mount one again between the unmounting and
/// the action, which then finds the device busy.
bool LinuxDiskTool::doFreed(const QString& disk, const Action& action,
                            const UDisks::Predicate& goal, std::chrono::milliseconds delay) {
    for (int attempt = 0; attempt < Attempts; ++attempt) {
        if (!unmountDisk(disk)) {
            return false;
        }
        const auto reply = action();
        if (!reply) {
            return false;
        }
        if (settle(disk, *reply, goal, delay)) {
            return true;
        }
        const auto state = service().state();
        if (!state || !isInUse(*state, disk)) {
            return false;
        }
    }
    return false;
}

bool LinuxDiskTool::writeTable(const Erasure& erasure) {
    const auto format = [&]() -> std::optional<QDBusMessage> {
        if (!m_devices.isDisk(erasure.bsdName, erasure.meant)) {
            return std::nullopt;
        }
        return service().call(erasure.disk, udisks::block::Interface, udisks::block::Format,
                              withOptions({udisks::MbrTable}));
    };
    const auto isEmptyTable = [&](const UDisksState& now) {
        const auto* found = now.find(erasure.disk);
        return found != nullptr && found->tableType == udisks::MbrTable &&
               now.partitionsOf(erasure.disk).empty();
    };
    return doFreed(erasure.disk, format, isEmptyTable, m_delays.property);
}

QString LinuxDiskTool::createPartition(const Erasure& erasure) {
    const auto plan = planFatPartition(erasure.meant.sectorCount * SectorSize);
    if (plan.type.isEmpty() || !m_devices.isDisk(erasure.bsdName, erasure.meant)) {
        return {};
    }
    const auto reply = service().call(erasure.disk, udisks::partition_table::Interface,
                                      udisks::partition_table::CreatePartition,
                                      withOptions({plan.offset, plan.size, plan.type, QString()}));
    QString partition;
    if (!reply.arguments().isEmpty()) {
        partition = reply.arguments().constFirst().value<QDBusObjectPath>().path();
    }
    const auto isThere = [&](const UDisksState& now) {
        const auto partitions = now.partitionsOf(erasure.disk);
        if (partition.isEmpty() && !partitions.empty()) {
            partition = partitions.front()->path;
        }
        return now.find(partition) != nullptr;
    };
    return settle(erasure.disk, reply, isThere, m_delays.property) ? partition : QString();
}

bool LinuxDiskTool::makeFat(const Erasure& erasure, const QString& partition,
                            const QString& label) {
    // A file system that lay at the same sectors before shows up again with the partition, perhaps
    // under the same label; only the new one has a new serial number.
    const auto state = service().state();
    const auto* before = state ? state->find(partition) : nullptr;
    if (before == nullptr) {
        return false;
    }
    const auto oldUuid = before->idUuid;
    const auto name = before->name();
    const auto format = [&]() -> std::optional<QDBusMessage> {
        if (!m_devices.isDisk(erasure.bsdName, erasure.meant) ||
            !m_devices.isPartitionOf(name, erasure.bsdName)) {
            return std::nullopt;
        }
        return service().call(
            partition, udisks::block::Interface, udisks::block::Format,
            withOptions({udisks::FatFilesystem}, {{udisks::block::LabelOption, label}}));
    };
    const auto isFormatted = [&](const UDisksState& now) {
        const auto* found = now.find(partition);
        return found != nullptr && found->hasFilesystem && found->idType == udisks::FatFilesystem &&
               found->idLabel == label && found->idUuid != oldUuid;
    };
    return doFreed(erasure.disk, format, isFormatted, m_delays.property);
}

bool LinuxDiskTool::mount(const QString& disk, const QString& partition) {
    const auto mounted = [&](const UDisksState& now) { return isMounted(now, partition); };
    if (service().waitFor(mounted, std::chrono::milliseconds::zero())) {
        return true; // the desktop was faster
    }
    const auto reply = service().call(partition, udisks::filesystem::Interface,
                                      udisks::filesystem::Mount, withOptions({}));
    return settle(disk, reply, mounted, m_delays.property) ||
           failedWith(reply, udisks::error::AlreadyMounted);
}

} // namespace zelto::linux_platform
