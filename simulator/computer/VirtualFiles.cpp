#include "simulator/computer/VirtualFiles.h"

#include <algorithm>

namespace zelto::simulator {

namespace {

constexpr unsigned DeepestFolder = 64;
const std::filesystem::path Applications = "/home/user/Applications";
const std::string BundleName = "ZeltoAppMac.app";

/// Bytes that no pattern of a broken copy would match.
FileStore::Bytes makeProgram(std::size_t size) {
    FileStore::Bytes bytes(size);
    std::uint32_t state = 0x2545F491;
    for (std::uint8_t& byte : bytes) {
        state ^= state << 13U;
        state ^= state >> 17U;
        state ^= state << 5U;
        byte = static_cast<std::uint8_t>(state & 0xFFU);
    }
    return bytes;
}

FileStore::Bytes textBytes(const std::string& text) {
    return {text.begin(), text.end()};
}

std::vector<std::pair<std::string, FileStore::Bytes>> bundleFiles() {
    constexpr std::size_t ProgramSize = 300007;
    return {
        {"ZeltoAppMac", textBytes("#!/bin/sh\nexec \"$(dirname \"$0\")/bin/zelto\"\n")},
        {"bin/zelto", makeProgram(ProgramSize)},
        {"lib/libplatform.so.1", makeProgram(4096)},
        {"share/licence text of the libraries used.txt", textBytes("See the project's page.\n")},
        {"share/Übersicht – 概要.txt", textBytes("ZELTO DISK\n")},
        {"share/empty", {}}};
}

} // namespace

VirtualFiles::VirtualFiles(VirtualMountTable& mounts, EventLog& log)
    : m_mounts(mounts), m_log(log), m_bundlePath(Applications / BundleName) {
    constexpr FileTime Built =
        std::chrono::sys_days(std::chrono::year(2026) / std::chrono::January / 15) +
        std::chrono::hours(12);
    installBundle(m_bundlePath, Built);
    m_running = {"/usr/bin/desktop"};
}

std::vector<std::filesystem::path> VirtualFiles::mountRoots() const {
    return {"/media", "/run/media"};
}

std::filesystem::path VirtualFiles::applicationsFolder() const {
    return Applications;
}

std::vector<std::filesystem::path> VirtualFiles::launchedApplications() const {
    std::vector<std::filesystem::path> all = m_running;
    all.push_back(m_bundlePath);
    return all;
}

VirtualFiles::Place VirtualFiles::place(const std::filesystem::path& path) const {
    Place found;
    const std::filesystem::path normal = path.lexically_normal();
    found.store = m_mounts.volumeAt(normal, found.path);
    if (found.store == nullptr) {
        found.store = &m_ownDisk;
        found.path = onOwnDisk(normal);
    }
    return found;
}

std::optional<FileInfo> VirtualFiles::info(const std::filesystem::path& path) const {
    const Place at = place(path);
    return at.store->info(at.path);
}

bool VirtualFiles::fileExistsAtPath(const std::filesystem::path& path) const {
    return info(path).has_value();
}

std::optional<Computer::FileTime>
VirtualFiles::fileModificationDate(const std::filesystem::path& path) const {
    const auto found = info(path);
    return found ? std::optional(found->modified) : std::nullopt;
}

bool VirtualFiles::isWritableFileAtPath(const std::filesystem::path& path) const {
    const auto found = info(path);
    return found && found->isWritable;
}

bool VirtualFiles::removeItemAtPath(const std::filesystem::path& path) {
    const Place at = place(path);
    return at.store->remove(at.path);
}

std::optional<VirtualFiles::Tree> VirtualFiles::read(const Place& from, unsigned depth) {
    const auto found = from.store->info(from.path);
    if (!found || depth == DeepestFolder) {
        return std::nullopt;
    }
    Tree tree;
    tree.info = *found;
    if (!found->isFolder) {
        auto bytes = from.store->readFile(from.path);
        if (!bytes) {
            return std::nullopt;
        }
        tree.bytes = std::move(*bytes);
        return tree;
    }
    auto names = from.store->list(from.path);
    std::ranges::sort(*names);
    for (const std::string& name : *names) {
        auto child = read({from.store, from.path / name}, depth + 1);
        if (!child) {
            return std::nullopt;
        }
        child->name = name;
        tree.children.push_back(std::move(*child));
    }
    return tree;
}

bool VirtualFiles::write(const Tree& tree, const Place& to) {
    if (!tree.info.isFolder) {
        return to.store->writeFile(to.path, tree.bytes, tree.info.modified);
    }
    return to.store->makeFolder(to.path, tree.info.modified) &&
           std::ranges::all_of(tree.children, [&](const Tree& child) {
               return write(child, {to.store, to.path / child.name});
           });
}

void VirtualFiles::makeParents(const Place& of) const {
    FileStore::Path path;
    for (const FileStore::Path& name : of.path.parent_path()) {
        path /= name;
        if (!of.store->info(path) && !of.store->makeFolder(path, {})) {
            return;
        }
    }
}

bool VirtualFiles::copyItemAtPath(const std::filesystem::path& source,
                                  const std::filesystem::path& destination) {
    const Place from = place(source);
    const Place to = place(destination);
    const auto tree = m_copyFails ? std::nullopt : read(from);
    const FileStore::Path inside = to.path.lexically_relative(from.path);
    const bool intoItself = from.store == to.store && !inside.empty() && *inside.begin() != "..";
    if (!tree || intoItself || to.path.empty()) {
        return false;
    }
    makeParents(to);
    const auto replaced = read(to);
    if (replaced && !to.store->remove(to.path)) {
        return false;
    }
    if (write(*tree, to)) {
        return true;
    }
    // Nothing half-copied stays behind, and what was there comes back.
    static_cast<void>(to.store->remove(to.path));
    if (replaced) {
        static_cast<void>(write(*replaced, to));
    }
    return false;
}

int VirtualFiles::open(const std::filesystem::path& bundle) {
    m_log.note(LogLine::Kind::Opener, "open " + bundle.string());
    m_opened.push_back(bundle);
    return fileExistsAtPath(bundle) ? 0 : 1;
}

int VirtualFiles::chflags(const std::string& flag, const std::filesystem::path& path) {
    m_log.note(LogLine::Kind::FlagTool, "chflags " + flag + " " + path.string());
    const Place at = place(path);
    const bool done =
        flag == "nouchg" && at.store == &m_ownDisk && m_ownDisk.setWritable(at.path, true);
    return done ? 0 : 1;
}

void VirtualFiles::installBundle(const std::filesystem::path& bundle, FileTime modified) {
    const Place at = place(bundle);
    makeParents(at);
    if (!at.store->info(at.path)) {
        static_cast<void>(at.store->makeFolder(at.path, modified));
    }
    for (const auto& [name, bytes] : bundleFiles()) {
        const Place file{at.store, at.path / name};
        makeParents(file);
        static_cast<void>(at.store->writeFile(file.path, bytes, modified));
    }
    if (at.store == &m_ownDisk) {
        m_ownDisk.setModified(at.path, modified);
    }
}

bool VirtualFiles::sameContents(const Tree& one, const Tree& other) {
    return one.info.isFolder == other.info.isFolder && one.bytes == other.bytes &&
           std::ranges::equal(one.children, other.children,
                              [](const Tree& left, const Tree& right) {
                                  return left.name == right.name && sameContents(left, right);
                              });
}

bool VirtualFiles::areEqual(const std::filesystem::path& one,
                            const std::filesystem::path& other) const {
    const auto left = read(place(one));
    const auto right = read(place(other));
    return left && right && sameContents(*left, *right);
}

} // namespace zelto::simulator
