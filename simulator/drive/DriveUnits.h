#pragma once

#include "simulator/drive/UnitStorage.h"
#include "simulator/drive/VirtualDrive.h"

#include <functional>

namespace zelto::simulator {

/// The units of a virtual drive at the moments that a clock tells.
class DriveUnits final : public UnitStorage {
public:
    using Clock = std::function<Moment()>;

    /// Refers to `drive` for as long as it lives.
    DriveUnits(VirtualDrive& drive, Clock clock) : m_drive(drive), m_clock(std::move(clock)) {}

    [[nodiscard]] std::optional<UnitMedium> medium(std::size_t unit) override {
        const UnitMedium shown{.sectorCount = m_drive.sectorCount(unit, m_clock()),
                               .identity = m_drive.mediaGeneration(unit, m_clock())};
        return shown.sectorCount > 0 ? std::optional(shown) : std::nullopt;
    }
    [[nodiscard]] bool read(std::size_t unit, std::uint64_t firstSector,
                            std::span<std::uint8_t> sectors) override {
        return m_drive.read(unit, firstSector, sectors, m_clock()) == StorageResult::Done;
    }
    [[nodiscard]] bool write(std::size_t unit, std::uint64_t firstSector,
                             std::span<const std::uint8_t> sectors) override {
        return m_drive.write(unit, firstSector, sectors, m_clock()) == StorageResult::Done;
    }
    [[nodiscard]] bool flush(std::size_t /*unit*/) override {
        return m_drive.flush() == StorageResult::Done;
    }

private:
    VirtualDrive& m_drive;
    Clock m_clock;
};

} // namespace zelto::simulator
