#include "platform/linux/TextFile.h"

#include "platform/linux/FileDescriptor.h"

#include <fcntl.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace zelto::linux_platform {

std::optional<std::string> readTextFile(const std::filesystem::path& path, std::size_t limit) {
    // Without O_NONBLOCK a fifo that somebody put in the place of the file would hold us for ever.
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file.isOpen()) {
        return std::nullopt;
    }
    std::string text;
    std::array<char, 4096> piece{};
    while (text.size() < limit) {
        const auto count =
            ::read(file.get(), piece.data(), std::min(piece.size(), limit - text.size()));
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return std::nullopt;
        }
        if (count == 0) {
            break;
        }
        text.append(piece.data(), static_cast<std::size_t>(count));
    }
    return text;
}

} // namespace zelto::linux_platform
