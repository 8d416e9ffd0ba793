#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace zelto::simulator {

/// A file or folder.
struct File {
    bool isFolder = false;
    /// A file that is not can't be replaced or removed; a folder that is not keeps what is in it
    /// as it is.
    bool isWritable = true;
    std::chrono::sys_seconds modified = {};
    std::vector<std::uint8_t> bytes = {};
};

/// Files and folders in memory: the virtual computer's own disk, or what one of its volumes holds.
/// Paths are relative to the root, UTF-8, without "." and ".."; the empty path is the root. A
/// change is made as a whole or, when it returns false, not at all.
class FileTree {
public:
    using Path = std::filesystem::path;
    using Bytes = std::vector<std::uint8_t>;
    /// A file, or a folder with all that is in it, by paths relative to it; its own is empty.
    using Branch = std::map<std::string, File>;

    FileTree();
    FileTree(const FileTree&) = delete;
    FileTree& operator=(const FileTree&) = delete;
    virtual ~FileTree() = default;

    /// Null when there is no such file or folder.
    [[nodiscard]] const File* find(const Path& path) const;
    /// Empty when there is nothing at that path.
    [[nodiscard]] Branch branch(const Path& path) const;

    /// Puts a file or folder there, in place of what was there, and makes the folders around it.
    [[nodiscard]] bool put(const Path& path, const Branch& branch);
    [[nodiscard]] bool writeFile(const Path& path, Bytes bytes, std::chrono::sys_seconds modified);
    [[nodiscard]] bool remove(const Path& path);
    /// False when there is no such item.
    bool setWritable(const Path& path, bool writable);

protected:
    explicit FileTree(Branch files);
    /// Whether the tree could be kept as it is to be.
    [[nodiscard]] virtual bool keep(const Branch& /*files*/) { return true; }

private:
    /// Whether something may be made, replaced or removed there.
    [[nodiscard]] bool allowsChange(const Path& path) const;
    [[nodiscard]] bool change(Branch files);

    Branch m_files;
};

} // namespace zelto::simulator
