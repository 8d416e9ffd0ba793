#pragma once

#include <chrono>
#include <filesystem>
#include <optional>

namespace zelto::linux_platform {

/// Copies a file, or a folder with all that is in it. The copy is written beside the destination
/// and takes its place by renaming, so it appears complete or not at all; on failure nothing of it
/// is left and what was there before is untouched. What an earlier copy to the same place has left,
/// broken off with its program or its computer, is removed first. Everything is on the medium when
/// this returns, and has been read back from there: a medium that keeps something else makes the
/// copy fail.
///
/// Modification dates are kept. Permissions are not: FAT knows none, so a program that comes from
/// there could not be started; in the copy, programs (files that the source lets anybody execute,
/// ELF files and scripts) may be executed by all, and the owner may write everything. Links are not
/// followed, and a bundle has none, as FAT has none: they and special files make the copy fail.
///
/// The destination's folder is made if only that one folder is missing. Blocks; touches nothing
/// of the program's own state, so it may run in a thread of its own.
[[nodiscard]] bool copyItem(const std::filesystem::path& source,
                            const std::filesystem::path& destination);

/// The modification date rounded down to an even second, or nothing. FAT keeps even seconds only
/// and drops the odd one, so that without the rounding a file and its unchanged copy on the drive,
/// or a copy of that, would differ.
[[nodiscard]] std::optional<std::chrono::sys_seconds>
modificationDate(const std::filesystem::path& path);

/// Clears the immutable flag where there is one, and gives the owner write permission, on a file
/// or on a folder and all that is in it. Links are not followed. False when something stays
/// locked: only a privileged user may clear the flag.
[[nodiscard]] bool unlockItem(const std::filesystem::path& path);

} // namespace zelto::linux_platform
