#pragma once

#include <filesystem>
#include <optional>

namespace zelto::linux_platform {

/// The bundle that a program's file lies in: the nearest folder above it whose name ends in ".app"
/// (letter case ignored, as FAT does); nothing for a program that lies in none.
///
/// A bundle is laid out as ZeltoAppMac.app/zelto with everything else that the program brings
/// along beside it; on the drive, in the user's "Applications", or, installed as a package, in
/// /usr/lib/zelto, where /usr/bin/zelto is a link to its program.
[[nodiscard]] std::optional<std::filesystem::path>
enclosingBundle(const std::filesystem::path& program);

} // namespace zelto::linux_platform
