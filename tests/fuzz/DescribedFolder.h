#pragma once

#include "tests/support/TemporaryFolder.h"

#include <sys/stat.h>

#include <algorithm>
#include <string_view>

namespace zelto::test {

/// A folder with what the input describes in it, a line for each: "PATH=TEXT" is a file, its lines
/// separated by ";", "PATH>PLACE" a link, "PATH|" a pipe, and anything else a folder. All paths
/// begin in this folder, and no link leads out of it. What can't be made is left out, and so is
/// what comes after a bounded number of lines.
class DescribedFolder {
public:
    explicit DescribedFolder(std::string_view text) {
        constexpr int MostLines = 100;
        for (int line = 0; line < MostLines && !text.empty(); ++line) {
            const std::size_t end = std::min(text.find('\n'), text.size());
            make(text.substr(0, end));
            text.remove_prefix(std::min(end + 1, text.size()));
        }
    }

    [[nodiscard]] const std::filesystem::path& path() const { return m_folder.path(); }
    [[nodiscard]] std::filesystem::path operator/(const std::string& name) const {
        return m_folder / name;
    }

private:
    using Path = std::filesystem::path;

    /// That path below this folder, however it is written.
    [[nodiscard]] Path inside(const Path& path) const {
        return m_folder.path() / ("/" / path).lexically_normal().relative_path();
    }

    void make(std::string_view line) const {
        namespace fs = std::filesystem;
        const std::size_t end = std::min(line.find_first_of("=>|"), line.size());
        const Path path = inside(line.substr(0, end));
        const char kind = end == line.size() ? '/' : line[end];
        const std::string_view rest = line.substr(std::min(end + 1, line.size()));
        std::error_code ignored;
        fs::create_directories(kind == '/' ? path : path.parent_path(), ignored);
        if (fs::exists(fs::symlink_status(path, ignored))) {
            return;
        }
        if (kind == '=') {
            std::string contents(rest);
            std::ranges::replace(contents, ';', '\n');
            std::ofstream(path, std::ios::binary) << contents << '\n';
        } else if (kind == '>') {
            fs::create_symlink(inside(rest), path, ignored);
        } else if (kind == '|') {
            (void)::mkfifo(path.c_str(), S_IRUSR | S_IWUSR);
        }
    }

    TemporaryFolder m_folder;
};

} // namespace zelto::test
