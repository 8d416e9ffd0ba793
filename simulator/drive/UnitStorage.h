#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace zelto::simulator {

/// A medium as a storage unit's host sees it.
struct UnitMedium {
    /// At least 1.
    std::uint64_t sectorCount = 0;
    /// Another number whenever the medium is not the one that was there before.
    std::uint64_t identity = 0;

    friend bool operator==(const UnitMedium&, const UnitMedium&) = default;
};

/// What lies behind the storage units: the drive that decides which media they show, and what is
/// on them. Units are counted from 0, sectors from the start of the medium.
class UnitStorage {
public:
    UnitStorage() = default;
    UnitStorage(const UnitStorage&) = delete;
    UnitStorage& operator=(const UnitStorage&) = delete;
    virtual ~UnitStorage() = default;

    /// What the unit shows at this moment; nothing when it has no medium.
    [[nodiscard]] virtual std::optional<UnitMedium> medium(std::size_t unit) = 0;

    /// Whole sectors that lie on the unit's medium. False when they cannot be read or written
    /// (an error of the files behind the drive, or no such medium any more); the buffer's
    /// contents are then undefined. May block on a disk.
    [[nodiscard]] virtual bool read(std::size_t unit, std::uint64_t firstSector,
                                    std::span<std::uint8_t> sectors) = 0;
    [[nodiscard]] virtual bool write(std::size_t unit, std::uint64_t firstSector,
                                     std::span<const std::uint8_t> sectors) = 0;
    /// Everything written is safe when this returns true. Blocks on a disk.
    [[nodiscard]] virtual bool flush(std::size_t unit) = 0;
};

} // namespace zelto::simulator
