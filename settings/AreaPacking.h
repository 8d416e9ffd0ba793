#pragma once

#include "device/AreaInfo.h"
#include "settings/SettingsModel.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace zelto {

/// Sizes are 512-byte sectors on the drive and MiB on the screen.
namespace AreaUnits {
inline constexpr unsigned SectorsToMebibytesShift = 11;
/// The area that carries the program, at the drive's end.
inline constexpr std::uint64_t ToolAreaSectors = 40960;
} // namespace AreaUnits

[[nodiscard]] constexpr std::uint64_t mebibytesOfSectors(std::uint64_t sectors) {
    return sectors >> AreaUnits::SectorsToMebibytesShift;
}
[[nodiscard]] constexpr std::uint64_t sectorsOfMebibytes(std::uint64_t mebibytes) {
    return mebibytes << AreaUnits::SectorsToMebibytesShift;
}

/// Sectors that the user may lay out on a drive that still needs its tool area; 0 on a drive that
/// has no room even for that.
[[nodiscard]] std::uint64_t sectorsBesideToolArea(std::uint64_t totalSectors);

/// True for the table of a drive whose areas were never set.
[[nodiscard]] bool isNeverPartitioned(const AreaInfoTable& table);

/// The table as the main settings window shows it.
struct AreaView {
    /// The first four areas. A drive that reports more is shown without the rest.
    _tagAreaInfosViewData rows;
    /// Not in any area; 0 when the areas claim more than there is.
    std::uint64_t freeSectors = 0;
    /// Some area is secure, shown or not.
    bool hasSecureArea = false;
};

[[nodiscard]] AreaView buildAreaView(const AreaInfoTable& table, std::uint64_t totalSectors);

/// What the area dialog holds for Disk1 to Disk3.
struct AreaChoice {
    std::array<std::uint64_t, 3> mebibytes{};
    std::array<bool, 3> secure{};
};

/// MiB not given to any disk; negative when the disks together exceed the drive.
[[nodiscard]] std::int64_t leftMebibytes(std::uint64_t totalSectors,
                                         const std::array<std::uint64_t, 3>& mebibytes);

/// Replaces the table's areas by those chosen, one after the other from the drive's start. A disk
/// of 0 MiB gets no entry and the next one moves up. Total sectors stay as they are.
void rebuildUserAreas(AreaInfoTable& table, const AreaChoice& choice);

/// Marks the stored areas as sent by set-up, appends the tool area behind the last one and returns
/// its 1-based number. The length field stays behind the stored count on purpose: the table on the
/// screen goes on showing the user's areas only. Each call appends another tool area, so a set-up
/// that is retried sends one more; nothing, and an unchanged table, when the buffer has no room.
[[nodiscard]] std::optional<std::uint8_t> appendToolArea(AreaInfoTable& table);

/// The stored entries as they travel, without the header.
[[nodiscard]] std::span<const std::uint8_t> storedEntries(const AreaInfoTable& table);

} // namespace zelto
