#pragma once

#include "simulator/drive/SectorStore.h"

#include <cstdint>
#include <span>

namespace zelto::simulator {

/// Something with numbered sectors of 512 bytes: a medium, or a part of one.
class BlockDevice {
public:
    BlockDevice() = default;
    BlockDevice(const BlockDevice&) = delete;
    BlockDevice& operator=(const BlockDevice&) = delete;
    virtual ~BlockDevice() = default;

    [[nodiscard]] virtual std::uint64_t sectorCount() const = 0;
    /// Whole sectors from `firstSector` on; the span's length is a multiple of SectorSize. False
    /// when they are not all there, or the medium has gone.
    [[nodiscard]] virtual bool read(std::uint64_t firstSector, std::span<std::uint8_t> into) = 0;
    [[nodiscard]] virtual bool write(std::uint64_t firstSector,
                                     std::span<const std::uint8_t> from) = 0;
};

/// A partition: a run of another device's sectors. That device outlives it.
class BlockDevicePart : public BlockDevice {
public:
    BlockDevicePart(BlockDevice& whole, std::uint64_t firstSector, std::uint64_t sectorCount)
        : m_whole(whole), m_firstSector(firstSector), m_sectorCount(sectorCount) {}

    [[nodiscard]] std::uint64_t sectorCount() const override { return m_sectorCount; }
    [[nodiscard]] bool read(std::uint64_t firstSector, std::span<std::uint8_t> into) override {
        return holds(firstSector, into.size()) && m_whole.read(m_firstSector + firstSector, into);
    }
    [[nodiscard]] bool write(std::uint64_t firstSector,
                             std::span<const std::uint8_t> from) override {
        return holds(firstSector, from.size()) && m_whole.write(m_firstSector + firstSector, from);
    }

private:
    [[nodiscard]] bool holds(std::uint64_t firstSector, std::size_t bytes) const {
        const std::uint64_t sectors = bytes / SectorSize;
        return bytes % SectorSize == 0 && firstSector <= m_sectorCount &&
               sectors <= m_sectorCount - firstSector;
    }

    BlockDevice& m_whole;
    std::uint64_t m_firstSector;
    std::uint64_t m_sectorCount;
};

} // namespace zelto::simulator
