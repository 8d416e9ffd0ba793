#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

namespace zelto::linux_platform {

/// What a small text file of the kernel's holds now, at most `limit` bytes of it; nothing when it
/// cannot be read. Such files report no size, so the whole is read until it ends.
[[nodiscard]] std::optional<std::string> readTextFile(const std::filesystem::path& path,
                                                      std::size_t limit = 16U << 20U);

} // namespace zelto::linux_platform
