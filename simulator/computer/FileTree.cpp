#include "simulator/computer/FileTree.h"

namespace zelto::simulator {

namespace {

/// What the paths of everything in a folder begin with.
std::string insideOf(const std::filesystem::path& folder) {
    return folder.empty() ? std::string() : folder.generic_string() + "/";
}

void erase(FileTree::Branch& files, const std::filesystem::path& path) {
    std::erase_if(files, [&, inside = insideOf(path)](const auto& file) {
        return file.first == path.generic_string() || file.first.starts_with(inside);
    });
}

} // namespace

FileTree::FileTree() : FileTree(Branch{}) {}

FileTree::FileTree(Branch files) : m_files(std::move(files)) {
    m_files[""].isFolder = true;
}

const File* FileTree::find(const Path& path) const {
    const auto found = m_files.find(path.generic_string());
    return found == m_files.end() ? nullptr : &found->second;
}

FileTree::Branch FileTree::branch(const Path& path) const {
    Branch found;
    const std::string inside = insideOf(path);
    for (const auto& [name, file] : m_files) {
        if (name == path.generic_string()) {
            found[""] = file;
        } else if (name.starts_with(inside)) {
            found[name.substr(inside.size())] = file;
        }
    }
    return found;
}

bool FileTree::allowsChange(const Path& path) const {
    if (path.empty()) {
        return false;
    }
    Path folder = path.parent_path();
    while (find(folder) == nullptr) {
        folder = folder.parent_path();
    }
    const File& around = *find(folder);
    const File* const existing = find(path);
    return around.isFolder && around.isWritable && (existing == nullptr || existing->isWritable);
}

bool FileTree::change(Branch files) {
    const bool isKept = keep(files);
    if (isKept) {
        m_files = std::move(files);
    }
    return isKept;
}

bool FileTree::put(const Path& path, const Branch& branch) {
    if (!allowsChange(path)) {
        return false;
    }
    Branch files = m_files;
    erase(files, path);
    for (Path folder = path.parent_path(); !folder.empty(); folder = folder.parent_path()) {
        files[folder.generic_string()].isFolder = true;
    }
    for (const auto& [name, file] : branch) {
        files[(name.empty() ? path : path / name).generic_string()] = file;
    }
    return change(std::move(files));
}

bool FileTree::writeFile(const Path& path, Bytes bytes, std::chrono::sys_seconds modified) {
    return put(path, {{"", {.modified = modified, .bytes = std::move(bytes)}}});
}

bool FileTree::remove(const Path& path) {
    if (find(path) == nullptr || !allowsChange(path)) {
        return false;
    }
    Branch files = m_files;
    erase(files, path);
    return change(std::move(files));
}

bool FileTree::setWritable(const Path& path, bool writable) {
    const auto found = m_files.find(path.generic_string());
    if (found == m_files.end()) {
        return false;
    }
    found->second.isWritable = writable;
    return true;
}

} // namespace zelto::simulator
