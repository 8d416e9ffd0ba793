#include "platform/linux/ReadBack.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <span>
#include <vector>

namespace zelto::linux_platform {

namespace {

constexpr std::size_t ReadPieceSize = 1U << 18U;

/// Fills the piece unless the file ends before; nothing on failure.
std::optional<std::size_t> readFully(int descriptor, std::span<char> piece) {
    std::size_t filled = 0;
    while (filled < piece.size()) {
        const auto count = ::read(descriptor, piece.data() + filled, piece.size() - filled);
        if (count == 0) {
            break;
        }
        if (count < 0 && errno != EINTR) {
            return std::nullopt;
        }
        filled += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    return filled;
}

} // namespace

bool readsBackAs(int written, int source) {
    // A file system that keeps everything in memory refuses, and has no medium to read.
    (void)::posix_fadvise(written, 0, 0, POSIX_FADV_DONTNEED);
    if (::lseek(written, 0, SEEK_SET) != 0 || ::lseek(source, 0, SEEK_SET) != 0) {
        return false;
    }
    std::array<std::vector<char>, 2> pieces{std::vector<char>(ReadPieceSize),
                                            std::vector<char>(ReadPieceSize)};
    while (true) {
        const auto wasWritten = readFully(written, pieces[0]);
        const auto wanted = readFully(source, pieces[1]);
        if (!wasWritten || wasWritten != wanted ||
            !std::equal(pieces[0].data(), pieces[0].data() + *wanted, pieces[1].data())) {
            return false;
        }
        if (*wanted == 0) {
            return true;
        }
    }
}

} // namespace zelto::linux_platform
