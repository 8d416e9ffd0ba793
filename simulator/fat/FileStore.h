#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace zelto::simulator {

struct FileInfo {
    bool isFolder = false;
    std::uint64_t size = 0;
    std::chrono::sys_seconds modified;
    bool isWritable = true;
};

/// A tree of files and folders: the virtual computer's own, or one on a FAT volume. Paths are
/// relative to the tree's root, UTF-8, without "." and ".."; the empty path is the root.
class FileStore {
public:
    using Bytes = std::vector<std::uint8_t>;
    using Path = std::filesystem::path;

    FileStore() = default;
    FileStore(const FileStore&) = delete;
    FileStore& operator=(const FileStore&) = delete;
    virtual ~FileStore() = default;

    /// Nothing when there is no such file or folder.
    [[nodiscard]] virtual std::optional<FileInfo> info(const Path& path) = 0;
    /// The names in a folder, in the folder's own order; nothing when it is none.
    [[nodiscard]] virtual std::optional<std::vector<std::string>> list(const Path& folder) = 0;
    [[nodiscard]] virtual std::optional<Bytes> readFile(const Path& path) = 0;
    /// Creates or replaces a file in an existing folder. False, with nothing left behind, when the
    /// store is full, read-only, or a folder stands in the way.
    [[nodiscard]] virtual bool writeFile(const Path& path, std::span<const std::uint8_t> bytes,
                                         std::chrono::sys_seconds modified) = 0;
    /// Creates a folder in an existing folder.
    [[nodiscard]] virtual bool makeFolder(const Path& path, std::chrono::sys_seconds modified) = 0;
    /// Removes a file, or a folder with all that is in it. False when there is none.
    [[nodiscard]] virtual bool remove(const Path& path) = 0;
};

} // namespace zelto::simulator
