#pragma once

#include <filesystem>

namespace zelto::linux_platform {

/// Starts a program that goes on by itself: in a session of its own, with "/" as working folder,
/// /dev/null as its standard streams, no other descriptor of this process, default signals, and
/// without library paths in its environment. A script that may not be executed where it lies is
/// given to the shell. True once the system has accepted the program.
///
/// Qt's own detached start (6.4) leaves open descriptors, blocked signals and ignored ones to the
/// new program. This one is started to let go of a volume that this process was started from, and
/// a single descriptor handed down by a shell or file manager would keep that volume busy.
[[nodiscard]] bool startDetached(const std::filesystem::path& program);

} // namespace zelto::linux_platform
