#pragma once

#include "simulator/drive/SectorStore.h"
#include "simulator/fat/BlockDevice.h"

namespace zelto::test {

using namespace simulator;

/// A disk in memory.
class MemoryDisk : public BlockDevice {
public:
    explicit MemoryDisk(std::uint64_t sectors) : m_store(sectors) {}
    [[nodiscard]] std::uint64_t sectorCount() const override { return m_store.sectorCount(); }
    [[nodiscard]] bool read(std::uint64_t firstSector, std::span<std::uint8_t> into) override {
        return m_store.read(firstSector, into);
    }
    [[nodiscard]] bool write(std::uint64_t firstSector,
                             std::span<const std::uint8_t> from) override {
        return m_store.write(firstSector, from);
    }

private:
    MemorySectorStore m_store;
};

} // namespace zelto::test
