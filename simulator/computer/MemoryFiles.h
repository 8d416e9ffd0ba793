#pragma once

#include "simulator/fat/FileStore.h"

#include <limits>
#include <map>

namespace zelto::simulator {

/// Files in memory: the virtual computer's own disk.
class MemoryFiles : public FileStore {
public:
    MemoryFiles();

    [[nodiscard]] std::optional<FileInfo> info(const Path& path) override;
    [[nodiscard]] std::optional<std::vector<std::string>> list(const Path& folder) override;
    [[nodiscard]] std::optional<Bytes> readFile(const Path& path) override;
    [[nodiscard]] bool writeFile(const Path& path, std::span<const std::uint8_t> bytes,
                                 std::chrono::sys_seconds modified) override;
    [[nodiscard]] bool makeFolder(const Path& path, std::chrono::sys_seconds modified) override;
    [[nodiscard]] bool remove(const Path& path) override;

    /// A file that is not writable can't be replaced or removed; a folder that is not, keeps what
    /// is in it as it is. False when there is no such item.
    bool setWritable(const Path& path, bool writable);
    bool setModified(const Path& path, std::chrono::sys_seconds modified);
    /// All files together hold at most this many bytes.
    void setCapacity(std::uint64_t bytes) { m_capacity = bytes; }

private:
    struct Node {
        FileInfo info;
        Bytes bytes;
    };

    [[nodiscard]] Node* find(const Path& path);
    /// Whether something may be made, replaced or removed at the path.
    [[nodiscard]] bool allowsChange(const Path& path);
    [[nodiscard]] std::uint64_t usedBytes() const;

    std::map<std::string, Node> m_nodes;
    std::uint64_t m_capacity = std::numeric_limits<std::uint64_t>::max();
};

} // namespace zelto::simulator
