#include "simulator/fat/FatTable.h"

#include "simulator/fat/LittleEndian.h"

#include <algorithm>
#include <array>

namespace zelto::simulator {

namespace {

/// Sectors of the table held at a time.
constexpr std::uint64_t WindowSectors = 128;

} // namespace

bool FatTable::load(std::uint64_t sector) {
    const std::uint64_t start = sector / WindowSectors * WindowSectors;
    if (!m_window.empty() && start == m_windowStart) {
        return true;
    }
    if (!flush()) {
        return false;
    }
    const std::uint64_t count = std::min(WindowSectors, m_layout.sectorsPerFat - start);
    m_window.assign(static_cast<std::size_t>(count) * SectorSize, 0);
    m_windowStart = start;
    if (!m_device.read(m_layout.firstFatSector + start, m_window)) {
        m_window.clear();
        return false;
    }
    return true;
}

bool FatTable::flush() {
    if (m_dirtyFirst == m_dirtyEnd) {
        return true;
    }
    const std::span<const std::uint8_t> changed = std::span(m_window).subspan(
        static_cast<std::size_t>(m_dirtyFirst - m_windowStart) * SectorSize,
        static_cast<std::size_t>(m_dirtyEnd - m_dirtyFirst) * SectorSize);
    bool written = true;
    for (std::uint32_t copy = 0; copy < m_layout.fatCount; ++copy) {
        written =
            m_device.write(m_layout.firstFatSector + copy * m_layout.sectorsPerFat + m_dirtyFirst,
                           changed) &&
            written;
    }
    m_dirtyFirst = m_dirtyEnd = 0;
    return written;
}

std::uint8_t FatTable::byteAt(std::uint64_t offset) {
    const std::uint64_t sector = offset / SectorSize;
    if (!load(sector)) {
        return 0;
    }
    return m_window[static_cast<std::size_t>(offset - m_windowStart * SectorSize)];
}

bool FatTable::putByte(std::uint64_t offset, std::uint8_t value) {
    const std::uint64_t sector = offset / SectorSize;
    if (!load(sector)) {
        return false;
    }
    m_window[static_cast<std::size_t>(offset - m_windowStart * SectorSize)] = value;
    const bool clean = m_dirtyFirst == m_dirtyEnd;
    m_dirtyFirst = clean ? sector : std::min(m_dirtyFirst, sector);
    m_dirtyEnd = clean ? sector + 1 : std::max(m_dirtyEnd, sector + 1);
    return true;
}

std::uint32_t FatTable::endMark() const {
    switch (m_layout.kind) {
    case FatLayout::Kind::Fat12:
        return 0x0FFF;
    case FatLayout::Kind::Fat16:
        return 0xFFFF;
    case FatLayout::Kind::Fat32:
        return 0x0FFFFFFF;
    }
    return 0;
}

std::uint32_t FatTable::get(std::uint32_t cluster) {
    std::array<std::uint8_t, 4> bytes{};
    const std::uint64_t number = cluster;
    switch (m_layout.kind) {
    case FatLayout::Kind::Fat12: {
        const std::uint64_t offset = number * 3 / 2;
        const auto pair = static_cast<std::uint32_t>(byteAt(offset) | byteAt(offset + 1) << 8U);
        return (number % 2 == 1 ? pair >> 4U : pair) & 0x0FFFU;
    }
    case FatLayout::Kind::Fat16:
        return static_cast<std::uint32_t>(byteAt(number * 2) | byteAt(number * 2 + 1) << 8U);
    case FatLayout::Kind::Fat32:
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            bytes[i] = byteAt(number * 4 + i);
        }
        return getLittleEndian<std::uint32_t>(bytes, 0) & 0x0FFFFFFFU;
    }
    return 0;
}

bool FatTable::set(std::uint32_t cluster, std::uint32_t value) {
    const std::uint64_t number = cluster;
    const auto low = [](std::uint32_t bits) { return static_cast<std::uint8_t>(bits & 0xFFU); };
    switch (m_layout.kind) {
    case FatLayout::Kind::Fat12: {
        const std::uint64_t offset = number * 3 / 2;
        auto pair = static_cast<std::uint32_t>(byteAt(offset) | byteAt(offset + 1) << 8U);
        pair =
            number % 2 == 1 ? (pair & 0x000FU) | value << 4U : (pair & 0xF000U) | (value & 0x0FFFU);
        return putByte(offset, low(pair)) && putByte(offset + 1, low(pair >> 8U));
    }
    case FatLayout::Kind::Fat16:
        return putByte(number * 2, low(value)) && putByte(number * 2 + 1, low(value >> 8U));
    case FatLayout::Kind::Fat32: {
        // The top four bits are reserved and stay as they are.
        const std::uint32_t kept = byteAt(number * 4 + 3) & 0xF0U;
        return putByte(number * 4, low(value)) && putByte(number * 4 + 1, low(value >> 8U)) &&
               putByte(number * 4 + 2, low(value >> 16U)) &&
               putByte(number * 4 + 3, low((value >> 24U & 0x0FU) | kept));
    }
    }
    return false;
}

std::vector<std::uint32_t> FatTable::chain(std::uint32_t first) {
    std::vector<std::uint32_t> clusters;
    for (std::uint32_t next = first;
         m_layout.holdsCluster(next) && clusters.size() < m_layout.clusterCount; next = get(next)) {
        clusters.push_back(next);
    }
    return clusters;
}

void FatTable::countFree() {
    std::uint32_t count = 0;
    for (std::uint32_t i = 0; i < m_layout.clusterCount; ++i) {
        count += get(FatLayout::FirstCluster + i) == 0 ? 1U : 0U;
    }
    m_free = count;
}

std::uint32_t FatTable::freeClusters() {
    if (!m_free) {
        countFree();
    }
    return *m_free;
}

std::optional<std::vector<std::uint32_t>> FatTable::allocate(std::size_t count) {
    std::vector<std::uint32_t> clusters;
    if (count > freeClusters()) {
        return std::nullopt;
    }
    for (std::uint32_t i = 0; i < m_layout.clusterCount && clusters.size() < count; ++i) {
        const std::uint32_t cluster =
            FatLayout::FirstCluster +
            (m_searchFrom - FatLayout::FirstCluster + i) % m_layout.clusterCount;
        if (get(cluster) == 0) {
            clusters.push_back(cluster);
        }
    }
    bool written = clusters.size() == count;
    for (std::size_t i = 0; written && i < clusters.size(); ++i) {
        written = set(clusters[i], i + 1 < clusters.size() ? clusters[i + 1] : endMark());
    }
    if (!written || !flush()) {
        return std::nullopt;
    }
    *m_free -= static_cast<std::uint32_t>(count);
    m_searchFrom = clusters.empty() ? m_searchFrom : clusters.back();
    return clusters;
}

bool FatTable::append(std::uint32_t last, std::uint32_t first) {
    return set(last, first) && flush();
}

void FatTable::release(const std::vector<std::uint32_t>& clusters) {
    const std::uint32_t before = freeClusters();
    std::uint32_t freed = 0;
    for (const std::uint32_t cluster : clusters) {
        freed += set(cluster, 0) ? 1U : 0U;
    }
    if (flush()) {
        m_free = before + freed;
    }
}

bool FatTable::writeInfo() {
    if (m_layout.kind != FatLayout::Kind::Fat32 || m_layout.infoSector == 0 ||
        m_layout.infoSector >= m_layout.firstFatSector) {
        return true;
    }
    std::array<std::uint8_t, SectorSize> info{};
    if (!m_device.read(m_layout.infoSector, info) ||
        getLittleEndian<std::uint32_t>(info, 484) != 0x61417272U) {
        return true;
    }
    putLittleEndian(std::span<std::uint8_t>(info), 488, freeClusters());
    return m_device.write(m_layout.infoSector, info);
}

} // namespace zelto::simulator
