#pragma once

#include "simulator/fat/FatFolder.h"
#include "simulator/fat/FatTable.h"
#include "simulator/fat/FileStore.h"

#include <memory>
#include <string>

namespace zelto::simulator {

/// A mounted FAT volume (FAT12, FAT16 or FAT32, long names). Everything is written through at
/// once, so the volume may vanish at any moment without losing more than what was under way.
/// Nothing on it is trusted: damaged chains, names and sizes read as short or missing files.
class FatVolume : public FileStore {
public:
    /// Null when the device holds no FAT file system. The device outlives the volume.
    [[nodiscard]] static std::unique_ptr<FatVolume> mount(BlockDevice& device);

    [[nodiscard]] const FatLayout& layout() const { return m_layout; }
    [[nodiscard]] const std::string& label() const { return m_layout.label; }
    [[nodiscard]] std::uint64_t freeBytes();

    [[nodiscard]] std::optional<FileInfo> info(const Path& path) override;
    [[nodiscard]] std::optional<std::vector<std::string>> list(const Path& folder) override;
    [[nodiscard]] std::optional<Bytes> readFile(const Path& path) override;
    [[nodiscard]] bool writeFile(const Path& path, std::span<const std::uint8_t> bytes,
                                 std::chrono::sys_seconds modified) override;
    [[nodiscard]] bool makeFolder(const Path& path, std::chrono::sys_seconds modified) override;
    [[nodiscard]] bool remove(const Path& path) override;

private:
    /// The folder that starts at a cluster; 0 is the root.
    using FolderId = std::uint32_t;

    FatVolume(BlockDevice& device, FatLayout layout)
        : m_device(device), m_layout(std::move(layout)), m_table(device, m_layout) {}

    [[nodiscard]] std::optional<FatItem> item(const Path& path);
    [[nodiscard]] std::optional<FolderId> folder(const Path& path);
    [[nodiscard]] std::vector<std::uint32_t> folderChain(FolderId id);
    [[nodiscard]] std::optional<Bytes> readFolder(FolderId id);
    /// Writes a folder back, giving it more clusters when it has become longer.
    [[nodiscard]] bool writeFolder(FolderId id, Bytes bytes);
    [[nodiscard]] Bytes readClusters(const std::vector<std::uint32_t>& clusters,
                                     std::size_t length);
    [[nodiscard]] bool writeClusters(const std::vector<std::uint32_t>& clusters,
                                     std::span<const std::uint8_t> bytes);
    [[nodiscard]] bool addTo(FolderId parent, const FatItem& added,
                             std::span<const std::uint8_t> contents);
    [[nodiscard]] bool removeFrom(FolderId parent, const FatItem& removed, unsigned depth);

    BlockDevice& m_device;
    FatLayout m_layout;
    FatTable m_table;
};

} // namespace zelto::simulator
