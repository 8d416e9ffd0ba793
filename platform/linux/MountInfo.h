#pragma once

#include "platform/Disks.h"

#include <string>
#include <string_view>
#include <vector>

namespace zelto::linux_platform {

/// A mounted file system and the device that it has in the kernel's eyes.
struct MountInfoLine : MountedFileSystem {
    /// "8:17" say; some kinds of file systems have numbers of their own there.
    std::string deviceNumber;
};

/// The file systems listed by the text of /proc/PID/mountinfo (proc(5)), in its order, with the
/// octal escapes of blanks, tabs, line ends and backslashes decoded. Lines that do not have the
/// fields they must have are passed over.
[[nodiscard]] std::vector<MountInfoLine> parseMountInfo(std::string_view text);

/// The text with every backslash and three octal digits replaced by the byte that they stand for.
[[nodiscard]] std::string decodeOctalEscapes(std::string_view text);

} // namespace zelto::linux_platform
