#pragma once

#include "simulator/fat/FatLayout.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace zelto::simulator {

/// The file allocation table of a mounted volume: chains of clusters. Every copy of the table is
/// kept up to date. Chains that loop or point outside end where they go wrong.
class FatTable {
public:
    FatTable(BlockDevice& device, const FatLayout& layout) : m_device(device), m_layout(layout) {}

    /// The clusters of the chain that starts at `first`, in order; empty for 0.
    [[nodiscard]] std::vector<std::uint32_t> chain(std::uint32_t first);
    /// Takes `count` free clusters and chains them; all or nothing.
    [[nodiscard]] std::optional<std::vector<std::uint32_t>> allocate(std::size_t count);
    /// Hangs a chain behind the end of another.
    [[nodiscard]] bool append(std::uint32_t last, std::uint32_t first);
    void release(const std::vector<std::uint32_t>& clusters);
    [[nodiscard]] std::uint32_t freeClusters();
    /// Notes the number of free clusters where FAT32 keeps it.
    [[nodiscard]] bool writeInfo();

private:
    [[nodiscard]] std::uint32_t endMark() const;
    [[nodiscard]] std::uint32_t get(std::uint32_t cluster);
    [[nodiscard]] bool set(std::uint32_t cluster, std::uint32_t value);
    [[nodiscard]] std::uint8_t byteAt(std::uint64_t offset);
    [[nodiscard]] bool putByte(std::uint64_t offset, std::uint8_t value);
    [[nodiscard]] bool load(std::uint64_t sector);
    [[nodiscard]] bool flush();
    void countFree();

    BlockDevice& m_device;
    FatLayout m_layout;
    std::vector<std::uint8_t> m_window;
    std::uint64_t m_windowStart = 0;
    std::uint64_t m_dirtyFirst = 0;
    std::uint64_t m_dirtyEnd = 0;
    std::optional<std::uint32_t> m_free;
    std::uint32_t m_searchFrom = FatLayout::FirstCluster;
};

} // namespace zelto::simulator
