#pragma once

#include "device/AttachedDrives.h"

#include <QString>

namespace zelto {

/// What tells a drive of the list from the others. Both texts may stand in a window.
struct DriveSign {
    /// Empty for a drive without a serial number.
    QString serial;
    /// Where it is plugged in; empty where the serial number is enough, or nothing is known.
    QString port;

    friend bool operator==(const DriveSign&, const DriveSign&) = default;
};

/// Of the drive at this index: its serial number, and its port if another drive of the list looks
/// the same by its number, or if it has none.
[[nodiscard]] DriveSign driveSign(const AttachedDrives& drives, std::size_t index);

} // namespace zelto
