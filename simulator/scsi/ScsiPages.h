#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What the storage units say about themselves, as bytes (SPC-4, SBC-3). Pure.
namespace zelto::simulator {

/// Who a unit is.
struct UnitIdentity {
    /// Counted from 0; the first unit's product is "ZELTO DISK1".
    std::size_t number = 0;
    std::string serial;
};

/// Standard INQUIRY data, 74 bytes: a removable disk.
[[nodiscard]] std::vector<std::uint8_t> standardInquiry(const UnitIdentity& unit);
/// The same for a unit number that the drive does not have (SPC-4, 6.6.2: qualifier 011b).
[[nodiscard]] std::vector<std::uint8_t> absentUnitInquiry();
/// A vital product data page; nothing for a page that there is not.
[[nodiscard]] std::optional<std::vector<std::uint8_t>> vitalProductData(std::uint8_t page,
                                                                        const UnitIdentity& unit);

enum class ModeValues : std::uint8_t { Current = 0, Changeable = 1, Default = 2, Saved = 3 };

/// The mode pages that `page` asks for (3Fh: all of them), without header; nothing for a page that
/// there is not. No value can be changed.
[[nodiscard]] std::optional<std::vector<std::uint8_t>>
modePages(std::uint8_t page, std::uint8_t subpage, ModeValues values);

/// READ CAPACITY (10): FFFFFFFFh as last sector when it does not fit.
[[nodiscard]] std::vector<std::uint8_t> capacity10(std::uint64_t sectorCount);
/// READ CAPACITY (16), 32 bytes.
[[nodiscard]] std::vector<std::uint8_t> capacity16(std::uint64_t sectorCount);
/// READ FORMAT CAPACITIES (MMC-6, 6.23): one current descriptor, with or without a medium.
[[nodiscard]] std::vector<std::uint8_t> formatCapacities(std::optional<std::uint64_t> sectorCount);
/// REPORT LUNS (SPC-4, 6.33): units 0 to `unitCount` - 1 in peripheral device addressing.
[[nodiscard]] std::vector<std::uint8_t> unitList(std::size_t unitCount);

} // namespace zelto::simulator
