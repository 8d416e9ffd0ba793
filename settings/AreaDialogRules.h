#pragma once

#include <QString>

#include <array>
#include <cstdint>

namespace zelto {

/// What the area dialog's three capacity fields mean.
struct AreaDialogVerdict {
    /// MiB of Disk1 to Disk3, from the digits that each text begins with.
    std::array<std::uint64_t, 3> mebibytes{};
    /// MiB not given to any disk; negative when the disks together exceed the drive.
    std::int64_t leftMebibytes = 0;
    /// Disk1 has a size, all texts are numbers, and everything fits.
    bool isComplete = false;
};

/// `totalSectors` are those that the user may lay out.
[[nodiscard]] AreaDialogVerdict judgeAreaDialog(const std::array<QString, 3>& texts,
                                                std::uint64_t totalSectors);

} // namespace zelto
