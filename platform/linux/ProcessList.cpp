#include "platform/linux/ProcessList.h"

#include "platform/linux/MountInfo.h"
#include "platform/linux/TextFile.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <set>

namespace zelto::linux_platform {

namespace {

namespace fs = std::filesystem;

/// The kernel keeps 15 bytes of a program's name.
constexpr std::size_t LongestKernelName = 15;

std::optional<std::string> target(const fs::path& link) {
    std::error_code error;
    auto path = fs::read_symlink(link, error);
    return error ? std::nullopt : std::optional(path.string());
}

std::optional<pid_t> processNumber(const std::string& name) {
    pid_t number = 0;
    const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), number);
    if (error != std::errc{} || end != name.data() + name.size() || number <= 0) {
        return std::nullopt;
    }
    return number;
}

std::string_view takeField(std::string_view& rest) {
    rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
    const auto field = rest.substr(0, rest.find(' '));
    rest.remove_prefix(field.size());
    return field;
}

/// A line reads: BEGIN-END PERMISSIONS OFFSET DEVICE INODE, blanks, PATH
std::optional<FileMapping> parseMapping(std::string_view line) {
    auto rest = line;
    const auto range = takeField(rest);
    for (int skipped = 0; skipped < 4; ++skipped) {
        takeField(rest);
    }
    rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
    FileMapping mapping;
    const auto* const last = range.data() + range.size();
    const auto begin = std::from_chars(range.data(), last, mapping.begin, 16);
    if (begin.ec != std::errc{} || begin.ptr == last || *begin.ptr != '-' ||
        !rest.starts_with('/')) {
        return std::nullopt;
    }
    const auto end = std::from_chars(begin.ptr + 1, last, mapping.end, 16);
    if (end.ec != std::errc{} || end.ptr != last) {
        return std::nullopt;
    }
    // The kernel escapes line ends only, so a path that has a backslash and such digits itself
    // looks like an escaped one, and is read wrongly.
    mapping.path = decodeOctalEscapes(rest);
    return mapping;
}

/// Off the text goes all up to the mapping's line's end.
std::optional<FileMapping> takeMapping(std::string_view& text) {
    std::optional<FileMapping> mapping;
    while (!mapping && !text.empty()) {
        const auto line = text.substr(0, text.find('\n'));
        mapping = parseMapping(line);
        text.remove_prefix(std::min(line.size() + 1, text.size()));
    }
    return mapping;
}

/// A line reads: "Uid:", a tab, the real user, and others after further tabs.
std::optional<uid_t> userOfStatus(const std::string& status) {
    constexpr std::string_view Label = "\nUid:\t";
    const auto label = status.find(Label);
    if (label == std::string::npos) {
        return std::nullopt;
    }
    uid_t user = 0;
    const auto* const first = status.data() + label + Label.size();
    const auto [end, error] = std::from_chars(first, status.data() + status.size(), user);
    return error == std::errc{} && end != first ? std::optional(user) : std::nullopt;
}

} // namespace

std::string withoutDeletedRemark(std::string path) {
    constexpr std::string_view Remark = " (deleted)";
    if (path.ends_with(Remark)) {
        path.resize(path.size() - Remark.size());
    }
    return path;
}

std::vector<FileMapping> parseFileMappings(std::string_view text) {
    std::vector<FileMapping> mappings;
    while (auto mapping = takeMapping(text)) {
        mappings.push_back(std::move(*mapping));
    }
    return mappings;
}

std::optional<std::string> fileMappedAt(std::uintptr_t address, std::string_view text) {
    while (auto mapping = takeMapping(text)) {
        if (mapping->begin <= address && address < mapping->end) {
            return std::move(mapping->path);
        }
    }
    return std::nullopt;
}

bool Process::belongsTo(uid_t user) const {
    struct stat status {};
    return ::stat(m_folder.c_str(), &status) == 0 && status.st_uid == user;
}

std::optional<std::string> Process::executable() const {
    if (auto path = target(m_folder / "exe")) {
        return withoutDeletedRemark(std::move(*path));
    }
    return startedAs();
}

/// A program that keeps its memory to itself, as this one does, hides its file from the programs
/// of its own user as well. How it was started is there to be read, and as good, since a user's
/// programs need not fear each other's names; another user's are not believed.
std::optional<std::string> Process::startedAs() const {
    if (userOfStatus(readTextFile(m_folder / "status").value_or("")) != ::getuid()) {
        return std::nullopt;
    }
    auto path = readTextFile(m_folder / "cmdline").value_or("");
    path.resize(std::min(path.find('\0'), path.size()));
    return path.starts_with('/') ? std::optional(std::move(path)) : std::nullopt;
}

std::string Process::name() const {
    auto name = readTextFile(m_folder / "comm", 64).value_or("");
    if (name.ends_with('\n')) {
        name.pop_back();
    }
    const auto file = fs::path(executable().value_or("")).filename().string();
    const bool cutShort = name.size() >= LongestKernelName && file.starts_with(name);
    return name.empty() || cutShort ? file : name;
}

std::vector<std::string> Process::heldPaths() const {
    std::set<std::string> held;
    for (const auto* link : {"cwd", "root", "exe"}) {
        if (auto path = target(m_folder / link)) {
            held.insert(std::move(*path));
        }
    }
    std::error_code error;
    for (fs::directory_iterator at(m_folder / "fd", error), end; !error && at != end;
         at.increment(error)) {
        if (auto path = target(at->path())) {
            held.insert(std::move(*path));
        }
    }
    const auto maps = readTextFile(m_folder / "maps").value_or("");
    for (auto& mapping : parseFileMappings(maps)) {
        held.insert(std::move(mapping.path));
    }
    return {held.begin(), held.end()};
}

std::vector<Process> processes(const fs::path& proc) {
    std::set<pid_t> numbers;
    std::error_code error;
    for (fs::directory_iterator at(proc, error), end; !error && at != end; at.increment(error)) {
        if (const auto number = processNumber(at->path().filename().string())) {
            numbers.insert(*number);
        }
    }
    std::vector<Process> found;
    found.reserve(numbers.size());
    for (const auto number : numbers) {
        found.emplace_back(proc / std::to_string(number));
    }
    return found;
}

} // namespace zelto::linux_platform
