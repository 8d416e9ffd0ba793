#pragma once

#include "simulator/fat/BlockDevice.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace zelto::simulator {

/// Where things lie on a FAT volume: its boot sector, read with every number doubted.
struct FatLayout {
    enum class Kind { Fat12, Fat16, Fat32 };

    Kind kind = Kind::Fat16;
    std::uint32_t sectorsPerCluster = 1;
    std::uint32_t fatCount = 2;
    std::uint64_t firstFatSector = 1;
    std::uint64_t sectorsPerFat = 1;
    /// FAT12 and FAT16: the root folder is a run of sectors of its own.
    std::uint64_t firstRootSector = 0;
    std::uint32_t rootSectors = 0;
    /// FAT32: the root folder is a chain of clusters like any other.
    std::uint32_t rootCluster = 0;
    std::uint32_t infoSector = 0;
    std::uint64_t firstDataSector = 0;
    /// Clusters are numbered from 2.
    std::uint32_t clusterCount = 0;
    std::uint64_t totalSectors = 0;
    std::string label;

    static constexpr std::uint32_t FirstCluster = 2;

    [[nodiscard]] bool holdsCluster(std::uint32_t cluster) const {
        return cluster >= FirstCluster && cluster - FirstCluster < clusterCount;
    }
    [[nodiscard]] std::size_t clusterBytes() const { return sectorsPerCluster * SectorSize; }
    [[nodiscard]] std::uint64_t sectorOf(std::uint32_t cluster) const {
        return firstDataSector + std::uint64_t{cluster - FirstCluster} * sectorsPerCluster;
    }
};

/// Nothing when the sectors hold no FAT file system of 512-byte sectors, or one that does not fit.
[[nodiscard]] std::optional<FatLayout> readFatLayout(BlockDevice& device);

/// Writes an empty FAT file system of the kind that suits the size (FAT12, FAT16 or FAT32), with a
/// label of at most 11 ASCII characters. `hiddenSectors` is what precedes the volume on its disk.
/// False when the device is too small for one, or cannot be written.
[[nodiscard]] bool formatFat(BlockDevice& device, const std::string& label,
                             std::uint32_t hiddenSectors, std::chrono::sys_seconds now);

/// The partition type byte for the kind of file system that formatFat chooses for a size.
[[nodiscard]] std::uint8_t fatPartitionType(std::uint64_t sectorCount);

/// A moment as FAT's folders keep it: date and time, in steps of two seconds, 1980 to 2107. The
/// virtual computer's FAT volumes keep UTC.
struct FatMoment {
    std::uint16_t date = 0;
    std::uint16_t time = 0;
};
[[nodiscard]] FatMoment toFatMoment(std::chrono::sys_seconds moment);
/// The epoch of FAT for a date that no calendar has.
[[nodiscard]] std::chrono::sys_seconds fromFatMoment(FatMoment moment);

} // namespace zelto::simulator
