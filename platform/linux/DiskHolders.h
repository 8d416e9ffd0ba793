#pragma once

#include "platform/Disks.h"

#include <filesystem>
#include <string>
#include <vector>

#include <sys/types.h>

namespace zelto::linux_platform {

/// The names of `user`'s programs that have something open on one of the devices: a working or
/// root folder, the program itself, an open file, a mapped file, or the device. Sorted, without
/// repetition. `proc` is the kernel's folder of processes. Other users' programs cannot be seen.
[[nodiscard]] std::vector<std::string>
programsHolding(const std::vector<std::string>& devicePaths,
                const std::vector<MountedFileSystem>& mounted, const std::filesystem::path& proc,
                uid_t user);

} // namespace zelto::linux_platform
