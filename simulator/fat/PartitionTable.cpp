#include "simulator/fat/PartitionTable.h"

#include "simulator/fat/LittleEndian.h"

#include <algorithm>
#include <array>
#include <limits>

namespace zelto::simulator {

namespace {

constexpr std::size_t TableOffset = 446;
constexpr std::size_t EntrySize = 16;
constexpr unsigned EntryCount = 4;
constexpr std::size_t SignatureOffset = 510;
constexpr std::uint16_t Signature = 0xAA55;
/// Cylinder, head and sector of a place that lies beyond what they can say.
constexpr std::array<std::uint8_t, 3> BeyondChs{0xFE, 0xFF, 0xFF};

} // namespace

std::vector<Partition> readMasterBootRecord(BlockDevice& disk) {
    std::array<std::uint8_t, SectorSize> sector{};
    std::vector<Partition> partitions;
    if (!disk.read(0, sector) ||
        getLittleEndian<std::uint16_t>(sector, SignatureOffset) != Signature) {
        return partitions;
    }
    for (unsigned index = 0; index < EntryCount; ++index) {
        const std::size_t entry = TableOffset + EntrySize * index;
        Partition partition;
        partition.number = index + 1;
        partition.type = sector[entry + 4];
        partition.firstSector = getLittleEndian<std::uint32_t>(sector, entry + 8);
        partition.sectorCount = getLittleEndian<std::uint32_t>(sector, entry + 12);
        const bool inside = partition.firstSector > 0 && partition.sectorCount > 0 &&
                            partition.firstSector < disk.sectorCount() &&
                            partition.sectorCount <= disk.sectorCount() - partition.firstSector;
        if (partition.type != 0 && inside) {
            partitions.push_back(partition);
        }
    }
    return partitions;
}

Partition partitionFilling(std::uint64_t diskSectors, std::uint8_t type) {
    constexpr std::uint64_t Mebibyte = 2048;
    constexpr std::uint64_t OldAlignment = 63;
    Partition partition;
    partition.type = type;
    partition.firstSector = diskSectors >= 4 * Mebibyte  ? Mebibyte
                            : diskSectors > OldAlignment ? OldAlignment
                                                         : 1;
    const std::uint64_t rest =
        diskSectors > partition.firstSector ? diskSectors - partition.firstSector : 0;
    partition.sectorCount =
        std::min<std::uint64_t>(rest, std::numeric_limits<std::uint32_t>::max());
    return partition;
}

bool writeMasterBootRecord(BlockDevice& disk, const Partition& partition) {
    std::array<std::uint8_t, SectorSize> sector{};
    const std::size_t entry = TableOffset + EntrySize * (partition.number - 1);
    std::ranges::copy(BeyondChs, sector.begin() + static_cast<std::ptrdiff_t>(entry) + 1);
    sector[entry + 4] = partition.type;
    std::ranges::copy(BeyondChs, sector.begin() + static_cast<std::ptrdiff_t>(entry) + 5);
    putLittleEndian(std::span(sector), entry + 8,
                    static_cast<std::uint32_t>(partition.firstSector));
    putLittleEndian(std::span(sector), entry + 12,
                    static_cast<std::uint32_t>(partition.sectorCount));
    putLittleEndian(std::span(sector), SignatureOffset, Signature);
    return disk.write(0, sector);
}

} // namespace zelto::simulator
