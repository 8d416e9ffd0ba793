#pragma once

#include <filesystem>
#include <vector>

namespace zelto {

/// Whether a bundle lies below one of the folders that volumes are mounted in: its leading path
/// components, as many as the root has, joined with nothing between them, equal the root's joined
/// the same way, without regard to letter case.
[[nodiscard]] bool runsFromMountedVolume(const std::filesystem::path& bundle,
                                         const std::vector<std::filesystem::path>& mountRoots);

/// Whether a program has to hand over to the copy of its bundle at `destination`: it runs from a
/// mounted volume, and is not that copy itself, as in a home folder that lies on such a volume.
[[nodiscard]] bool hasToRelocate(const std::filesystem::path& bundle,
                                 const std::filesystem::path& destination,
                                 const std::vector<std::filesystem::path>& mountRoots);

} // namespace zelto
