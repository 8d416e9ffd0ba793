#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <sys/types.h>

namespace zelto::linux_platform {

/// A process as /proc shows it (proc(5)). One that has ended meanwhile reads as nothing.
class Process {
public:
    explicit Process(std::filesystem::path folder) : m_folder(std::move(folder)) {}

    [[nodiscard]] bool belongsTo(uid_t user) const;
    /// The program's file, also when it has been deleted or replaced since.
    [[nodiscard]] std::optional<std::string> executable() const;
    /// What the program calls itself, or its file's name where the kernel has cut that short.
    [[nodiscard]] std::string name() const;
    /// Every path that the process holds: working folder, root folder, program, open and mapped
    /// files.
    [[nodiscard]] std::vector<std::string> heldPaths() const;

private:
    [[nodiscard]] std::optional<std::string> startedAs() const;

    std::filesystem::path m_folder;
};

/// All processes by number.
[[nodiscard]] std::vector<Process> processes(const std::filesystem::path& proc);

/// A mapping of a file into a process's memory.
struct FileMapping {
    std::uintptr_t begin = 0;
    /// One past the last byte.
    std::uintptr_t end = 0;
    std::string path;
};

/// The file mappings in the text of /proc/PID/maps, in its order. Lines that make no sense are
/// passed over.
[[nodiscard]] std::vector<FileMapping> parseFileMappings(std::string_view text);

/// The path of the file that is mapped to the address, in such a text.
[[nodiscard]] std::optional<std::string> fileMappedAt(std::uintptr_t address,
                                                      std::string_view text);

/// The path without the remark that the kernel adds for a file that has been deleted.
[[nodiscard]] std::string withoutDeletedRemark(std::string path);

} // namespace zelto::linux_platform
