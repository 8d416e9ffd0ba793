#pragma once

#include "simulator/fat/BlockDevice.h"

#include <cstdint>
#include <vector>

namespace zelto::simulator {

/// A primary partition of a master boot record.
struct Partition {
    /// 1 to 4: its place in the table, and the number in its name.
    unsigned number = 1;
    std::uint8_t type = 0;
    std::uint64_t firstSector = 0;
    std::uint64_t sectorCount = 0;

    friend bool operator==(const Partition&, const Partition&) = default;
};

/// The partitions of a disk, those only that lie inside it; empty when it has no table.
[[nodiscard]] std::vector<Partition> readMasterBootRecord(BlockDevice& disk);

/// The one partition that fills a disk, aligned to a mebibyte where there is room for that.
[[nodiscard]] Partition partitionFilling(std::uint64_t diskSectors, std::uint8_t type);

/// Writes a table with that one partition.
[[nodiscard]] bool writeMasterBootRecord(BlockDevice& disk, const Partition& partition);

} // namespace zelto::simulator
