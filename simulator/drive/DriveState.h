#pragma once

#include "simulator/drive/DriveModel.h"

#include <string>
#include <string_view>

namespace zelto::simulator {

/// A drive as it lies in the drawer: what it was made with and what it remembers.
struct SavedDrive {
    Manufactured manufactured;
    Remembered remembered;

    friend bool operator==(const SavedDrive&, const SavedDrive&) = default;
};

/// The largest drive there is: 2 TB.
inline constexpr std::uint64_t MostSectors = std::uint64_t{1} << 32;

/// Why no drive can be made like this; empty when one can: a serial number of 1 to 126 printable
/// ASCII characters without blanks (what a USB string descriptor holds), 1 to MostSectors sectors.
[[nodiscard]] std::string faultOf(const Manufactured& manufactured);

/// The drive as text: a title with the format's version, one named value a line, and a last line
/// with the SHA-256 of all before it. `docs/virtual-drive.md` lists the names. The text holds keys
/// and digests: wipe it after use.
[[nodiscard]] std::string encodeDriveState(const SavedDrive& drive);

/// Reads such a text, from wherever it comes. False, and what is wrong with it in `error`, when it
/// is not whole, not of this version, or describes a drive that can't exist.
[[nodiscard]] bool decodeDriveState(std::string_view text, SavedDrive& drive, std::string& error);

} // namespace zelto::simulator
