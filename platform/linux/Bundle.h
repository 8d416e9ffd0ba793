#pragma once

#include <filesystem>
#include <optional>

namespace zelto::linux_platform {

/// The bundle that a program's file belongs to; nothing for a program that belongs to none.
///
/// A bundle is started by its file ZeltoAppMac.app/zelto, on the drive as in the user's
/// "Applications". That file unpacks the program and runs it from
///
///     CACHE/DIGEST/at/PATH-OF-THE-BUNDLE/zelto
///
/// DIGEST being 64 lower-case hexadecimal digits, so that a running program shows its bundle by its
/// path alone, to itself and to others. The program of the system's package, PREFIX/bin/zelto,
/// belongs to PREFIX/lib/zelto/ZeltoAppMac.app if that exists.
[[nodiscard]] std::optional<std::filesystem::path> bundleOf(const std::filesystem::path& program);

/// The nearest folder above a program's file whose name ends in ".app" (letter case ignored, as
/// FAT does); nothing for a program that lies in none.
[[nodiscard]] std::optional<std::filesystem::path>
enclosingBundle(const std::filesystem::path& program);

} // namespace zelto::linux_platform
