#include "simulator/drive/SectorStore.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace zelto::simulator {
namespace {

std::string reasonOf(int error) {
    return std::generic_category().message(error);
}

/// Makes a new file as long as the drive, all of it a hole; an older one has to be that long.
bool hasOrGetsSize(int descriptor, std::uint64_t size, std::string& error) {
    struct stat status {};
    if (::fstat(descriptor, &status) != 0) {
        error = reasonOf(errno);
        return false;
    }
    if (!S_ISREG(status.st_mode)) {
        error = "it is not a regular file";
        return false;
    }
    if (status.st_size == 0 && ::ftruncate(descriptor, static_cast<off_t>(size)) != 0) {
        error = reasonOf(errno);
        return false;
    }
    if (status.st_size != 0 && static_cast<std::uint64_t>(status.st_size) != size) {
        error = "its size is not that of the drive";
        return false;
    }
    return true;
}

/// Takes bytes apart at the borders of blocks: each piece with its block's number and the offset
/// in there.
template <std::size_t BlockSize, typename Byte, typename Action>
void eachPiece(std::uint64_t sector, std::span<Byte> bytes, Action action) {
    constexpr std::uint64_t BlockSectors = BlockSize / SectorSize;
    while (!bytes.empty()) {
        const std::size_t offset = sector % BlockSectors * SectorSize;
        const std::size_t size = std::min(bytes.size(), BlockSize - offset);
        action(sector / BlockSectors, offset, bytes.first(size));
        sector += size / SectorSize;
        bytes = bytes.subspan(size);
    }
}

/// The kernel may transfer a part of what it is asked to. Nothing at all is a failure, also when
/// reading: somebody has cut the image.
template <typename Byte, typename Transfer>
bool inFull(Transfer transfer, int descriptor, std::uint64_t sector, std::span<Byte> bytes) {
    auto offset = static_cast<off_t>(sector * SectorSize);
    while (!bytes.empty()) {
        const ssize_t done = transfer(descriptor, bytes.data(), bytes.size(), offset);
        if (done < 0 && errno == EINTR) {
            continue;
        }
        if (done <= 0) {
            return false;
        }
        bytes = bytes.subspan(static_cast<std::size_t>(done));
        offset += done;
    }
    return true;
}

} // namespace

bool SectorStore::holds(std::uint64_t sector, std::size_t size) const {
    return size % SectorSize == 0 && sector <= sectorCount() &&
           size / SectorSize <= sectorCount() - sector;
}

// --- In memory ---------------------------------------------------------------------------------

MemorySectorStore::MemorySectorStore(std::uint64_t sectorCount) : m_sectorCount(sectorCount) {}

bool MemorySectorStore::read(std::uint64_t sector, std::span<std::uint8_t> bytes) {
    if (!holds(sector, bytes.size())) {
        return false;
    }
    eachPiece<BlockSize>(sector, bytes, [&](auto number, std::size_t offset, auto piece) {
        if (const auto block = m_blocks.find(number); block != m_blocks.end()) {
            std::memcpy(piece.data(), &block->second[offset], piece.size());
        } else {
            std::memset(piece.data(), 0, piece.size());
        }
    });
    return true;
}

bool MemorySectorStore::write(std::uint64_t sector, std::span<const std::uint8_t> bytes) {
    if (!holds(sector, bytes.size())) {
        return false;
    }
    eachPiece<BlockSize>(sector, bytes, [&](auto number, std::size_t offset, auto piece) {
        auto& block = m_blocks[number];
        if (!block) {
            block = std::make_unique<std::uint8_t[]>(BlockSize);
        }
        std::memcpy(&block[offset], piece.data(), piece.size());
    });
    return true;
}

bool MemorySectorStore::discardAll() {
    m_blocks.clear();
    return true;
}

// --- In a file ---------------------------------------------------------------------------------

std::unique_ptr<FileSectorStore> FileSectorStore::open(const std::filesystem::path& path,
                                                       std::uint64_t sectorCount,
                                                       std::string& error) {
    constexpr mode_t OwnerOnly = 0600;
    linux_platform::FileDescriptor file(
        ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, OwnerOnly));
    std::string reason = file.isOpen() ? std::string() : reasonOf(errno);
    if (file.isOpen() && hasOrGetsSize(file.get(), sectorCount * SectorSize, reason)) {
        return std::unique_ptr<FileSectorStore>(new FileSectorStore(std::move(file), sectorCount));
    }
    error = path.string() + ": " + reason;
    return nullptr;
}

bool FileSectorStore::read(std::uint64_t sector, std::span<std::uint8_t> bytes) {
    return holds(sector, bytes.size()) && inFull(::pread, m_file.get(), sector, bytes);
}

bool FileSectorStore::write(std::uint64_t sector, std::span<const std::uint8_t> bytes) {
    return holds(sector, bytes.size()) && inFull(::pwrite, m_file.get(), sector, bytes);
}

bool FileSectorStore::flush() {
    return ::fdatasync(m_file.get()) == 0;
}

bool FileSectorStore::discardAll() {
    return ::ftruncate(m_file.get(), 0) == 0 &&
           ::ftruncate(m_file.get(), static_cast<off_t>(m_sectorCount * SectorSize)) == 0;
}

} // namespace zelto::simulator
