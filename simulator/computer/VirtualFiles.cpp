#include "simulator/computer/VirtualFiles.h"

#include <algorithm>

namespace zelto::simulator {

namespace {

const std::filesystem::path Applications = "/home/user/Applications";
const std::string BundleName = "ZeltoAppMac.app";

/// Bytes that no pattern of a broken copy would match.
FileTree::Bytes makeProgram(std::size_t size) {
    FileTree::Bytes bytes(size);
    std::uint32_t state = 0x2545F491;
    for (std::uint8_t& byte : bytes) {
        state ^= state << 13U;
        state ^= state >> 17U;
        state ^= state << 5U;
        byte = static_cast<std::uint8_t>(state & 0xFFU);
    }
    return bytes;
}

FileTree::Bytes textBytes(const std::string& text) {
    return {text.begin(), text.end()};
}

FileTree::Branch makeBundle(std::chrono::sys_seconds modified) {
    // The same in every bundle, and longer in the making than all the rest of a computer.
    static const FileTree::Bytes Program = makeProgram(300007);
    FileTree::Branch bundle;
    for (const char* const folder : {"", "bin", "lib", "share"}) {
        bundle[folder] = {.isFolder = true, .modified = modified};
    }
    const auto add = [&](const char* name, FileTree::Bytes bytes) {
        bundle[name] = {.modified = modified, .bytes = std::move(bytes)};
    };
    add("ZeltoAppMac", textBytes("#!/bin/sh\nexec \"$(dirname \"$0\")/bin/zelto\"\n"));
    add("bin/zelto", Program);
    add("lib/libplatform.so.1", makeProgram(4096));
    add("share/licence text of the libraries used.txt", textBytes("See the project's page.\n"));
    add("share/Übersicht – 概要.txt", textBytes("ZELTO DISK\n"));
    add("share/empty", {});
    return bundle;
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

std::vector<std::filesystem::path> VirtualFiles::mountRoots(const UsbMatching& /*drives*/) const {
    std::vector<std::filesystem::path> roots{"/media", "/run/media"};
    roots.insert(roots.end(), m_drivesElsewhere.begin(), m_drivesElsewhere.end());
    return roots;
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
    const std::filesystem::path normal = path.lexically_normal();
    FileTree::Path rest;
    FileTree* const volume = m_mounts.volumeAt(normal, rest);
    return volume != nullptr ? Place{*volume, rest} : Place{m_ownDisk, onOwnDisk(normal)};
}

const File* VirtualFiles::find(const std::filesystem::path& path) const {
    const Place at = place(path);
    return at.tree.find(at.path);
}

bool VirtualFiles::fileExistsAtPath(const std::filesystem::path& path) const {
    return find(path) != nullptr;
}

std::optional<Computer::FileTime>
VirtualFiles::fileModificationDate(const std::filesystem::path& path) const {
    const File* const found = find(path);
    return found != nullptr ? std::optional(found->modified) : std::nullopt;
}

bool VirtualFiles::isWritableFileAtPath(const std::filesystem::path& path) const {
    const File* const found = find(path);
    return found != nullptr && found->isWritable;
}

bool VirtualFiles::removeItemAtPath(const std::filesystem::path& path) {
    const Place at = place(path);
    return at.tree.remove(at.path);
}

bool VirtualFiles::copyItemAtPath(const std::filesystem::path& source,
                                  const std::filesystem::path& destination) {
    const Place from = place(source);
    const Place to = place(destination);
    const FileTree::Path inside = to.path.lexically_relative(from.path);
    const bool intoItself = &from.tree == &to.tree && !inside.empty() && *inside.begin() != "..";
    FileTree::Branch copy = from.tree.branch(from.path);
    for (auto& [name, file] : copy) {
        file.isWritable = true;
    }
    return !m_copyFails && !copy.empty() && !intoItself && to.tree.put(to.path, copy);
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
        flag == "nouchg" && &at.tree == &m_ownDisk && m_ownDisk.setWritable(at.path, true);
    return done ? 0 : 1;
}

void VirtualFiles::installBundle(const std::filesystem::path& bundle, FileTime modified) {
    const Place at = place(bundle);
    static_cast<void>(at.tree.put(at.path, makeBundle(modified)));
}

bool VirtualFiles::areEqual(const std::filesystem::path& one,
                            const std::filesystem::path& other) const {
    const Place left = place(one);
    const Place right = place(other);
    const FileTree::Branch files = left.tree.branch(left.path);
    return !files.empty() &&
           std::ranges::equal(files, right.tree.branch(right.path),
                              [](const auto& here, const auto& there) {
                                  return here.first == there.first &&
                                         here.second.isFolder == there.second.isFolder &&
                                         here.second.bytes == there.second.bytes;
                              });
}

} // namespace zelto::simulator
