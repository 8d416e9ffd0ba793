#include "device/AreaInfo.h"

#include <algorithm>

namespace zelto {
namespace {

using record::Field;
using record::get;
using record::put;

constexpr Field Type{0, 1};
constexpr Field AreaFlags{1, 1};
constexpr Field Reserved{2, 2};
constexpr Field FirstSector{4, 8};
constexpr Field SectorCount{12, 8};

static_assert(record::covers(std::array{Type, AreaFlags, Reserved, FirstSector, SectorCount},
                             AreaInfoEntry::Size));

constexpr Field DataLength{0, 2};
constexpr Field DataLengthLowByte{1, 1};
constexpr Field AfterLength{2, 1};
constexpr Field EntryCount{3, 1};
constexpr Field TotalSectors{4, 8};

static_assert(record::covers(std::array{DataLength, AfterLength, EntryCount, TotalSectors},
                             AreaInfoTable::HeaderSize));

/// Header bytes that the length field counts: all but itself.
constexpr std::size_t CountedHeader = AreaInfoTable::HeaderSize - DataLength.width;

constexpr Field entryField(std::size_t index) {
    return {AreaInfoTable::HeaderSize + index * AreaInfoEntry::Size, AreaInfoEntry::Size};
}

} // namespace

AreaInfoEntry decodeAreaInfoEntry(std::span<const std::uint8_t, AreaInfoEntry::Size> bytes) {
    return {
        .type = get<std::uint8_t>(bytes, Type),
        .flags = get<std::uint8_t>(bytes, AreaFlags),
        .firstSector = get(bytes, FirstSector),
        .sectorCount = get(bytes, SectorCount),
    };
}

AreaInfoEntry::Bytes encodeAreaInfoEntry(const AreaInfoEntry& entry) {
    AreaInfoEntry::Bytes bytes{};
    put(bytes, Type, entry.type);
    put(bytes, AreaFlags, entry.flags);
    put(bytes, FirstSector, entry.firstSector);
    put(bytes, SectorCount, entry.sectorCount);
    return bytes;
}

std::uint16_t AreaInfoTable::claimedEntryCount() const {
    const auto counted = static_cast<std::uint16_t>(get(m_bytes, DataLength) - CountedHeader);
    return static_cast<std::uint16_t>(counted / AreaInfoEntry::Size);
}

std::size_t AreaInfoTable::entryCount() const {
    return std::min<std::size_t>(claimedEntryCount(), Capacity);
}

std::size_t AreaInfoTable::coveredEntryCount() const {
    return get<std::uint16_t>(m_bytes, DataLength) < CountedHeader ? 0 : entryCount();
}

std::uint64_t AreaInfoTable::totalSectorCount() const {
    return get(m_bytes, TotalSectors);
}

AreaInfoEntry AreaInfoTable::entry(std::size_t index) const {
    const auto bytes = record::bytes(std::span<const std::uint8_t>(m_bytes), entryField(index));
    return decodeAreaInfoEntry(bytes.first<AreaInfoEntry::Size>());
}

void AreaInfoTable::setEntry(std::size_t index, const AreaInfoEntry& entry) {
    const auto bytes = record::bytes(std::span<std::uint8_t>(m_bytes), entryField(index));
    std::ranges::copy(encodeAreaInfoEntry(entry), bytes.begin());
}

std::uint32_t AreaInfoTable::firstSecureDiskNumber() const {
    for (std::size_t index = 0; index < entryCount(); ++index) {
        if (entry(index).type == AreaInfoEntry::SecureArea) {
            return static_cast<std::uint32_t>(index + 1);
        }
    }
    return 0;
}

std::uint8_t AreaInfoTable::storedCount() const {
    return get<std::uint8_t>(m_bytes, EntryCount);
}

void AreaInfoTable::setStoredCount(std::uint8_t count) {
    put(m_bytes, EntryCount, count);
}

void AreaInfoTable::setLengthForCount(std::uint8_t count) {
    put(m_bytes, DataLengthLowByte, count * AreaInfoEntry::Size + CountedHeader);
}

AreaInfoTable encodeAreaInfoTable(std::uint64_t totalSectors,
                                  std::span<const AreaInfoEntry> entries) {
    AreaInfoTable table;
    const std::size_t count = std::min(entries.size(), AreaInfoTable::Capacity);
    put(table.bytes(), DataLength, count * AreaInfoEntry::Size + CountedHeader);
    put(table.bytes(), EntryCount, count);
    put(table.bytes(), TotalSectors, totalSectors);
    for (std::size_t index = 0; index < count; ++index) {
        table.setEntry(index, entries[index]);
    }
    return table;
}

} // namespace zelto
