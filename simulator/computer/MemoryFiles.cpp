#include "simulator/computer/MemoryFiles.h"

namespace zelto::simulator {

MemoryFiles::MemoryFiles() {
    m_nodes[""].info.isFolder = true;
}

MemoryFiles::Node* MemoryFiles::find(const Path& path) {
    const auto found = m_nodes.find(path.generic_string());
    return found == m_nodes.end() ? nullptr : &found->second;
}

bool MemoryFiles::allowsChange(const Path& path) {
    const Node* const parent = find(path.parent_path());
    const Node* const existing = find(path);
    return !path.empty() && parent != nullptr && parent->info.isFolder && parent->info.isWritable &&
           (existing == nullptr || existing->info.isWritable);
}

std::uint64_t MemoryFiles::usedBytes() const {
    std::uint64_t used = 0;
    for (const auto& [path, node] : m_nodes) {
        used += node.bytes.size();
    }
    return used;
}

std::optional<FileInfo> MemoryFiles::info(const Path& path) {
    const Node* const node = find(path);
    return node != nullptr ? std::optional(node->info) : std::nullopt;
}

std::optional<std::vector<std::string>> MemoryFiles::list(const Path& folder) {
    const Node* const node = find(folder);
    if (node == nullptr || !node->info.isFolder) {
        return std::nullopt;
    }
    std::vector<std::string> names;
    for (const auto& [key, child] : m_nodes) {
        const Path path(key);
        if (!path.empty() && path.parent_path() == folder) {
            names.push_back(path.filename().string());
        }
    }
    return names;
}

std::optional<FileStore::Bytes> MemoryFiles::readFile(const Path& path) {
    const Node* const node = find(path);
    return node != nullptr && !node->info.isFolder ? std::optional(node->bytes) : std::nullopt;
}

bool MemoryFiles::writeFile(const Path& path, std::span<const std::uint8_t> bytes,
                            std::chrono::sys_seconds modified) {
    const Node* const existing = find(path);
    const std::uint64_t freed = existing != nullptr ? existing->bytes.size() : 0;
    if (!allowsChange(path) || (existing != nullptr && existing->info.isFolder) ||
        usedBytes() - freed > m_capacity || bytes.size() > m_capacity - (usedBytes() - freed)) {
        return false;
    }
    Node& node = m_nodes[path.generic_string()];
    node.info = {.isFolder = false, .size = bytes.size(), .modified = modified};
    node.bytes.assign(bytes.begin(), bytes.end());
    return true;
}

bool MemoryFiles::makeFolder(const Path& path, std::chrono::sys_seconds modified) {
    if (!allowsChange(path) || find(path) != nullptr) {
        return false;
    }
    m_nodes[path.generic_string()].info = {.isFolder = true, .modified = modified};
    return true;
}

bool MemoryFiles::remove(const Path& path) {
    if (find(path) == nullptr || !allowsChange(path)) {
        return false;
    }
    const std::string inside = path.generic_string() + "/";
    std::erase_if(m_nodes, [&](const auto& node) { return node.first.starts_with(inside); });
    m_nodes.erase(path.generic_string());
    return true;
}

bool MemoryFiles::setWritable(const Path& path, bool writable) {
    Node* const node = find(path);
    if (node != nullptr) {
        node->info.isWritable = writable;
    }
    return node != nullptr;
}

bool MemoryFiles::setModified(const Path& path, std::chrono::sys_seconds modified) {
    Node* const node = find(path);
    if (node != nullptr) {
        node->info.modified = modified;
    }
    return node != nullptr;
}

} // namespace zelto::simulator
