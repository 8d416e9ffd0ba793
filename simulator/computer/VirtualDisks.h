#pragma once

#include "simulator/computer/VirtualUsbBus.h"
#include "simulator/fat/BlockDevice.h"
#include "simulator/fat/PartitionTable.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace zelto::simulator {

/// A disk as the system knows it: a storage unit with a medium in it.
struct VirtualDisk {
    /// "disk2"; a partition's name is that, "s" and its number.
    std::string bsdName;
    /// VENDOR, blank, MODEL of its unit.
    std::string unitName;
    std::shared_ptr<Attachment> attachment;
    std::size_t unit = 0;
    std::uint64_t generation = 0;
    std::unique_ptr<BlockDevice> device;
    std::vector<Partition> partitions;
    /// The medium holds a file system without a partition table around it.
    bool isVolume = false;

    [[nodiscard]] std::string partitionName(unsigned number) const {
        return bsdName + "s" + std::to_string(number);
    }
};

/// Where a BSD name leads: a whole disk, or one of its partitions.
struct DiskPlace {
    VirtualDisk* disk = nullptr;
    std::optional<Partition> partition;
};

/// The system's disks. It looks at the storage units whenever something may have changed, gives
/// each medium that appears the lowest free name, and takes the name back when it vanishes.
class VirtualDisks {
public:
    VirtualDisks(VirtualUsbBus& bus, VirtualClock& clock) : m_bus(bus), m_clock(clock) {}

    void lookAgain();
    /// Reads a disk's partition table afresh, after it was written.
    void readPartitions(VirtualDisk& disk) const;
    /// Takes the medium out: the disk leaves the system until another medium appears in its unit.
    void eject(VirtualDisk& disk);

    [[nodiscard]] const std::vector<std::unique_ptr<VirtualDisk>>& all() const { return m_disks; }
    /// Nothing when no disk or partition has that name.
    [[nodiscard]] std::optional<DiskPlace> find(const std::string& bsdName) const;
    /// The names of the volumes on a disk that could be mounted.
    [[nodiscard]] static std::vector<std::string> volumeNames(const VirtualDisk& disk);
    void setListeners(std::function<void(VirtualDisk&)> appeared,
                      std::function<void(const VirtualDisk&)> vanished);

private:
    struct Ejected {
        std::weak_ptr<Attachment> attachment;
        std::size_t unit = 0;
        std::uint64_t generation = 0;
    };

    [[nodiscard]] std::optional<MediumInfo> mediumOf(const VirtualDisk& disk) const;
    [[nodiscard]] bool isEjected(const std::shared_ptr<Attachment>& attachment, std::size_t unit,
                                 std::uint64_t generation) const;
    [[nodiscard]] bool isKnown(const Attachment& attachment, std::size_t unit) const;
    [[nodiscard]] std::string freeName() const;
    void removeVanished();
    void addNew(const std::shared_ptr<Attachment>& attachment, std::size_t unit);

    VirtualUsbBus& m_bus;
    VirtualClock& m_clock;
    std::vector<std::unique_ptr<VirtualDisk>> m_disks;
    std::vector<Ejected> m_ejected;
    std::function<void(VirtualDisk&)> m_appeared;
    std::function<void(const VirtualDisk&)> m_vanished;
    bool m_isLooking = false;
};

} // namespace zelto::simulator
