#include "settings/AreaPacking.h"

#include <algorithm>

namespace zelto {
namespace {

/// A drive may claim areas larger than itself; what is left is none then, not a huge number.
std::uint64_t lessOrNone(std::uint64_t from, std::uint64_t amount) {
    return from > amount ? from - amount : 0;
}

} // namespace

std::uint64_t sectorsBesideToolArea(std::uint64_t totalSectors) {
    return lessOrNone(totalSectors, AreaUnits::ToolAreaSectors);
}

bool isNeverPartitioned(const AreaInfoTable& table) {
    return table.entry(0).sectorCount == AreaInfoEntry::AllSectors;
}

AreaView buildAreaView(const AreaInfoTable& table, std::uint64_t totalSectors) {
    AreaView view{.rows = {}, .freeSectors = totalSectors};
    const std::size_t count = table.coveredEntryCount();
    view.rows.areaCount =
        static_cast<std::uint16_t>(std::min<std::size_t>(count, _tagAreaInfosViewData::Capacity));
    for (std::size_t index = 0; index < count; ++index) {
        const AreaInfoEntry entry = table.entry(index);
        const bool spansAll = entry.sectorCount == AreaInfoEntry::AllSectors;
        view.hasSecureArea = view.hasSecureArea || entry.type == AreaInfoEntry::SecureArea;
        if (!spansAll) {
            view.freeSectors = lessOrNone(view.freeSectors, entry.sectorCount);
        }
        if (index < view.rows.areaCount) {
            view.rows.areaData[index] = {
                .type = entry.type,
                .capacity = spansAll ? entry.sectorCount : mebibytesOfSectors(entry.sectorCount)};
        }
    }
    return view;
}

std::int64_t leftMebibytes(std::uint64_t totalSectors,
                           const std::array<std::uint64_t, 3>& mebibytes) {
    // Compared before each subtraction: typed capacities go up to 63 bits, and the sum of three
    // of them does not fit 64.
    std::uint64_t left = mebibytesOfSectors(totalSectors);
    for (const std::uint64_t capacity : mebibytes) {
        if (capacity > left) {
            return -1;
        }
        left -= capacity;
    }
    return static_cast<std::int64_t>(left);
}

void rebuildUserAreas(AreaInfoTable& table, const AreaChoice& choice) {
    std::uint8_t count = 0;
    std::uint64_t start = 0;
    for (std::size_t disk = 0; disk < choice.mebibytes.size(); ++disk) {
        table.setEntry(count, {});
        if (choice.mebibytes[disk] == 0) {
            continue;
        }
        AreaInfoEntry entry{.flags = AreaInfoEntry::InUse,
                            .firstSector = start,
                            .sectorCount = sectorsOfMebibytes(choice.mebibytes[disk])};
        if (choice.secure[disk]) {
            entry.flags |= AreaInfoEntry::Secure;
            entry.type = AreaInfoEntry::SecureArea;
        }
        table.setEntry(count, entry);
        start += entry.sectorCount;
        ++count;
    }
    table.setLengthForCount(count);
    table.setStoredCount(count);
}

std::optional<std::uint8_t> appendToolArea(AreaInfoTable& table) {
    const std::uint8_t count = table.storedCount();
    if (count >= AreaInfoTable::Capacity) {
        return std::nullopt;
    }
    AreaInfoEntry toolArea{.flags = AreaInfoEntry::InUse | AreaInfoEntry::SentBySetup,
                           .sectorCount = AreaUnits::ToolAreaSectors};
    for (std::size_t index = 0; index < count; ++index) {
        AreaInfoEntry entry = table.entry(index);
        if ((entry.flags & AreaInfoEntry::InUse) != 0) {
            entry.flags |= AreaInfoEntry::SentBySetup;
            table.setEntry(index, entry);
        }
        toolArea.firstSector = entry.firstSector + entry.sectorCount;
    }
    table.setEntry(count, toolArea);
    const auto number = static_cast<std::uint8_t>(count + 1);
    table.setStoredCount(number);
    return number;
}

std::span<const std::uint8_t> storedEntries(const AreaInfoTable& table) {
    const std::size_t count = std::min<std::size_t>(table.storedCount(), AreaInfoTable::Capacity);
    return table.bytes().subspan(AreaInfoTable::HeaderSize, count * AreaInfoEntry::Size);
}

} // namespace zelto
