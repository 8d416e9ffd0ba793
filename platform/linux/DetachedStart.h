#pragma once

#include <filesystem>

namespace zelto::linux_platform {

/// Starts a program that goes on by itself: in a session of its own, with "/" as working folder,
/// /dev/null as its standard streams, no other descriptor of this process, default signals, and
/// without library paths in its environment. True once the system has accepted the program.
[[nodiscard]] bool startDetached(const std::filesystem::path& program);

} // namespace zelto::linux_platform
