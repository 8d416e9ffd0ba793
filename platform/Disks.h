#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace zelto {

/// One mounted file system. Both texts are UTF-8.
struct MountedFileSystem {
    /// Where it is mounted.
    std::string f_mntonname;
    /// What it is mounted from: a device path such as "/dev/sdb1".
    std::string f_mntfromname;
};

class MountTable {
public:
    MountTable() = default;
    MountTable(const MountTable&) = delete;
    MountTable& operator=(const MountTable&) = delete;
    virtual ~MountTable() = default;

    /// The mounted file systems in the system's order, without waiting for any of them. Empty when
    /// the table cannot be read.
    [[nodiscard]] virtual std::vector<MountedFileSystem> getmntinfo() = 0;
};

/// Which disk is meant, under whatever name: a name passes on to the next disk when one leaves.
struct DiskIdentity {
    /// The stay of the USB device that it is a unit of (UsbDeviceInterface::GetLocationID).
    std::uint32_t location = 0;
    /// Its name in the registry, which tells the device's units apart.
    std::string mediaName;
    std::uint64_t sectorCount = 0;

    bool operator==(const DiskIdentity&) const = default;
};

/// The system's disk tool. An operation waits until it has ended, however long that takes: a slow
/// flush and the formatting of a large volume may take minutes. Windows go on repainting meanwhile,
/// but take no input. The result is true when it was done.
class DiskTool {
public:
    DiskTool() = default;
    DiskTool(const DiskTool&) = delete;
    DiskTool& operator=(const DiskTool&) = delete;
    virtual ~DiskTool() = default;

    /// Whether that disk stands on another: the clear text of an encrypted volume, a logical
    /// volume, an array. It keeps the other in use as long as it is there, mounted or not.
    [[nodiscard]] virtual bool isStacked(const std::string& bsdName) const = 0;

    /// Unmounts that one volume and what is stacked on it; never forced, never lazy. What is
    /// stacked is closed as well; what cannot be closed is busy.
    [[nodiscard]] virtual bool umount(const std::string& bsdName) = 0;

    /// Unmounts every volume of the disk that this disk or partition is on, closes what is stacked
    /// there, then ejects the medium.
    /// The USB device itself keeps its power and stays reachable.
    [[nodiscard]] virtual bool eject(const std::string& bsdName) = 0;

    /// Wipes the disk, writes a master boot record with one FAT partition of that label, and leaves
    /// the volume mounted. Nothing is written once the name has passed on to another disk than the
    /// one that is meant.
    [[nodiscard]] virtual bool eraseDisk(const std::string& bsdName, const DiskIdentity& meant,
                                         const std::string& label) = 0;

    /// The BSD name of a disk's partition, counted from 1: "disk2" and 1 give "disk2s1" where the
    /// system names partitions so, "sdb" and 1 give "sdb1" on Linux.
    [[nodiscard]] virtual std::string partitionName(const std::string& disk,
                                                    unsigned number) const = 0;

    /// The names of what keeps one of these disks or partitions busy, sorted, without repetition:
    /// programs of this user, and volumes that could not be closed. Empty when nothing is known.
    /// Asked after a failure.
    [[nodiscard]] virtual std::vector<std::string>
    holders(const std::vector<std::string>& bsdNames) const = 0;
};

} // namespace zelto
