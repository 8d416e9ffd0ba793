#pragma once

#include "simulator/fat/FatLayout.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace zelto::simulator {

/// A file or folder as its folder lists it.
struct FatItem {
    static constexpr std::uint8_t ReadOnly = 0x01;
    static constexpr std::uint8_t Folder = 0x10;
    static constexpr std::uint8_t Archive = 0x20;

    std::string name;
    std::uint8_t attributes = Archive;
    std::uint32_t firstCluster = 0;
    std::uint32_t size = 0;
    std::chrono::sys_seconds modified;
    /// Where its entries lie in the folder: the long name's, then the short one.
    std::size_t firstSlot = 0;
    std::size_t slotCount = 0;

    [[nodiscard]] bool isFolder() const { return (attributes & Folder) != 0; }
};

/// The bytes of a folder, taken apart and put together. Knows nothing of clusters.
namespace FatFolder {

inline constexpr std::size_t SlotSize = 32;
/// No folder is longer (FAT's own limit), whatever its chain of clusters says.
inline constexpr std::size_t LargestSize = 65536 * SlotSize;

/// What the folder lists, without "." and ".." and the volume's label.
[[nodiscard]] std::vector<FatItem> items(std::span<const std::uint8_t> folder);
/// Letter case is ignored, as FAT does.
[[nodiscard]] std::optional<FatItem> find(std::span<const std::uint8_t> folder,
                                          const std::string& name);
[[nodiscard]] bool isNameAllowed(const std::string& name);
/// Adds the item's entries, making the folder longer when it has no room. The name is allowed and
/// not there yet. False when the folder would become too long.
[[nodiscard]] bool add(std::vector<std::uint8_t>& folder, const FatItem& item);
void remove(std::span<std::uint8_t> folder, const FatItem& item);
/// The first two entries of a new folder. `parent` is 0 for the root.
void putDotEntries(std::span<std::uint8_t> folder, std::uint32_t own, std::uint32_t parent,
                   std::chrono::sys_seconds modified);

} // namespace FatFolder

} // namespace zelto::simulator
