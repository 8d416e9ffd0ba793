#include "simulator/fat/FatVolume.h"

#include <algorithm>
#include <limits>

namespace zelto::simulator {

namespace {

/// Folders inside folders, on a volume that nobody vouches for.
constexpr unsigned DeepestFolder = 64;

} // namespace

std::unique_ptr<FatVolume> FatVolume::mount(BlockDevice& device) {
    auto layout = readFatLayout(device);
    if (!layout) {
        return nullptr;
    }
    return std::unique_ptr<FatVolume>(new FatVolume(device, std::move(*layout)));
}

std::uint64_t FatVolume::freeBytes() {
    return std::uint64_t{m_table.freeClusters()} * m_layout.clusterBytes();
}

FileStore::Bytes FatVolume::readClusters(const std::vector<std::uint32_t>& clusters,
                                         std::size_t length) {
    Bytes bytes;
    Bytes cluster(m_layout.clusterBytes());
    for (const std::uint32_t number : clusters) {
        if (bytes.size() >= length || !m_device.read(m_layout.sectorOf(number), cluster)) {
            break;
        }
        const std::size_t wanted = std::min(cluster.size(), length - bytes.size());
        bytes.insert(bytes.end(), cluster.begin(),
                     cluster.begin() + static_cast<std::ptrdiff_t>(wanted));
    }
    return bytes;
}

bool FatVolume::writeClusters(const std::vector<std::uint32_t>& clusters,
                              std::span<const std::uint8_t> bytes) {
    Bytes cluster(m_layout.clusterBytes());
    for (const std::uint32_t number : clusters) {
        const auto part = bytes.first(std::min(bytes.size(), cluster.size()));
        bytes = bytes.subspan(part.size());
        const auto end = std::ranges::copy(part, cluster.begin()).out;
        std::fill(end, cluster.end(), std::uint8_t{0});
        if (!m_device.write(m_layout.sectorOf(number), cluster)) {
            return false;
        }
    }
    return true;
}

std::vector<std::uint32_t> FatVolume::folderChain(FolderId id) {
    return m_table.chain(id == 0 ? m_layout.rootCluster : id);
}

std::optional<FileStore::Bytes> FatVolume::readFolder(FolderId id) {
    if (id == 0 && m_layout.kind != FatLayout::Kind::Fat32) {
        Bytes root(m_layout.rootSectors * SectorSize);
        return m_device.read(m_layout.firstRootSector, root) ? std::optional(root) : std::nullopt;
    }
    const auto clusters = folderChain(id);
    Bytes bytes = readClusters(clusters, FatFolder::LargestSize);
    const std::size_t expected =
        std::min(clusters.size() * m_layout.clusterBytes(), FatFolder::LargestSize);
    return bytes.size() == expected ? std::optional(std::move(bytes)) : std::nullopt;
}

bool FatVolume::writeFolder(FolderId id, Bytes bytes) {
    if (id == 0 && m_layout.kind != FatLayout::Kind::Fat32) {
        return bytes.size() <= m_layout.rootSectors * SectorSize &&
               m_device.write(m_layout.firstRootSector, bytes);
    }
    auto clusters = folderChain(id);
    const std::size_t needed =
        (bytes.size() + m_layout.clusterBytes() - 1) / m_layout.clusterBytes();
    if (clusters.empty()) {
        return false;
    }
    if (needed > clusters.size()) {
        const auto more = m_table.allocate(needed - clusters.size());
        if (!more || !m_table.append(clusters.back(), more->front())) {
            return false;
        }
        clusters.insert(clusters.end(), more->begin(), more->end());
    }
    return writeClusters(clusters, bytes);
}

std::optional<FatVolume::FolderId> FatVolume::folder(const Path& path) {
    FolderId id = 0;
    for (const Path& name : path) {
        const auto bytes = readFolder(id);
        const auto found = bytes ? FatFolder::find(*bytes, name.string()) : std::nullopt;
        if (!found || !found->isFolder() || !m_layout.holdsCluster(found->firstCluster)) {
            return std::nullopt;
        }
        id = found->firstCluster;
    }
    return id;
}

std::optional<FatItem> FatVolume::item(const Path& path) {
    const auto parent = folder(path.parent_path());
    const auto bytes = parent ? readFolder(*parent) : std::nullopt;
    return bytes ? FatFolder::find(*bytes, path.filename().string()) : std::nullopt;
}

std::optional<FileInfo> FatVolume::info(const Path& path) {
    if (path.empty()) {
        return readFolder(0) ? std::optional(FileInfo{.isFolder = true, .modified = {}})
                             : std::nullopt;
    }
    const auto found = item(path);
    if (!found) {
        return std::nullopt;
    }
    return FileInfo{.isFolder = found->isFolder(),
                    .size = found->size,
                    .modified = found->modified,
                    .isWritable = (found->attributes & FatItem::ReadOnly) == 0};
}

std::optional<std::vector<std::string>> FatVolume::list(const Path& path) {
    const auto id = folder(path);
    const auto bytes = id ? readFolder(*id) : std::nullopt;
    if (!bytes) {
        return std::nullopt;
    }
    std::vector<std::string> names;
    for (FatItem& found : FatFolder::items(*bytes)) {
        names.push_back(std::move(found.name));
    }
    return names;
}

std::optional<FileStore::Bytes> FatVolume::readFile(const Path& path) {
    const auto found = item(path);
    if (!found || found->isFolder()) {
        return std::nullopt;
    }
    Bytes bytes = readClusters(m_table.chain(found->firstCluster), found->size);
    return bytes.size() == found->size ? std::optional(std::move(bytes)) : std::nullopt;
}

bool FatVolume::addTo(FolderId parent, const FatItem& added,
                      std::span<const std::uint8_t> contents) {
    auto listing = readFolder(parent);
    const std::size_t needed =
        (contents.size() + m_layout.clusterBytes() - 1) / m_layout.clusterBytes();
    const auto clusters = listing ? m_table.allocate(needed) : std::nullopt;
    if (!clusters) {
        return false;
    }
    FatItem entry = added;
    entry.firstCluster = clusters->empty() ? 0 : clusters->front();
    Bytes bytes(contents.begin(), contents.end());
    if (entry.isFolder()) {
        FatFolder::putDotEntries(bytes, entry.firstCluster, parent, entry.modified);
    }
    if (!writeClusters(*clusters, bytes) || !FatFolder::add(*listing, entry) ||
        !writeFolder(parent, std::move(*listing))) {
        m_table.release(*clusters);
        return false;
    }
    return m_table.writeInfo();
}

bool FatVolume::writeFile(const Path& path, std::span<const std::uint8_t> bytes,
                          std::chrono::sys_seconds modified) {
    const auto parent = folder(path.parent_path());
    FatItem added;
    added.name = path.filename().string();
    if (!parent || !FatFolder::isNameAllowed(added.name) ||
        bytes.size() > std::numeric_limits<std::uint32_t>::max()) {
        return false;
    }
    if (const auto existing = item(path)) {
        if (existing->isFolder() || !removeFrom(*parent, *existing, 0)) {
            return false;
        }
    }
    added.size = static_cast<std::uint32_t>(bytes.size());
    added.modified = modified;
    return addTo(*parent, added, bytes);
}

bool FatVolume::makeFolder(const Path& path, std::chrono::sys_seconds modified) {
    const auto parent = folder(path.parent_path());
    FatItem added;
    added.name = path.filename().string();
    added.attributes = FatItem::Folder;
    added.modified = modified;
    return parent && FatFolder::isNameAllowed(added.name) && !item(path) &&
           addTo(*parent, added, Bytes(m_layout.clusterBytes()));
}

bool FatVolume::removeFrom(FolderId parent, const FatItem& removed, unsigned depth) {
    if (removed.isFolder() && m_layout.holdsCluster(removed.firstCluster)) {
        const auto inside = readFolder(removed.firstCluster);
        if (!inside || depth == DeepestFolder) {
            return false;
        }
        for (const FatItem& child : FatFolder::items(*inside)) {
            if (!removeFrom(removed.firstCluster, child, depth + 1)) {
                return false;
            }
        }
    }
    auto listing = readFolder(parent);
    if (!listing) {
        return false;
    }
    FatFolder::remove(*listing, removed);
    if (!writeFolder(parent, std::move(*listing))) {
        return false;
    }
    m_table.release(m_table.chain(removed.firstCluster));
    return m_table.writeInfo();
}

bool FatVolume::remove(const Path& path) {
    const auto parent = folder(path.parent_path());
    const auto removed = item(path);
    return parent && removed && removeFrom(*parent, *removed, 0);
}

} // namespace zelto::simulator
