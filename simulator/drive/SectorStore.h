#pragma once

#include "platform/linux/FileDescriptor.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <unordered_map>

namespace zelto::simulator {

/// Bytes of a sector.
inline constexpr std::size_t SectorSize = 512;

/// The drive's memory chips: a run of sectors that read as zeros until they are written. Spans
/// hold whole sectors, and the caller keeps them within `sectorCount`; anything else is refused
/// (false) and touches nothing. One thread at a time.
class SectorStore {
public:
    SectorStore() = default;
    SectorStore(const SectorStore&) = delete;
    SectorStore& operator=(const SectorStore&) = delete;
    virtual ~SectorStore() = default;

    [[nodiscard]] virtual std::uint64_t sectorCount() const = 0;
    /// False when the sectors can't be read; the span's bytes are then undefined.
    [[nodiscard]] virtual bool read(std::uint64_t sector, std::span<std::uint8_t> bytes) = 0;
    /// False when the sectors can't be written (a full disk); some of them may have been.
    [[nodiscard]] virtual bool write(std::uint64_t sector, std::span<const std::uint8_t> bytes) = 0;
    /// Returns once everything written would survive a power failure.
    [[nodiscard]] virtual bool flush() = 0;
    /// Makes every sector read as zeros again and gives its room back.
    [[nodiscard]] virtual bool discardAll() = 0;

protected:
    [[nodiscard]] bool holds(std::uint64_t sector, std::size_t size) const;
};

/// Sectors in memory. Only what was written takes room, in blocks of 64 KiB.
class MemorySectorStore final : public SectorStore {
public:
    explicit MemorySectorStore(std::uint64_t sectorCount);

    [[nodiscard]] std::uint64_t sectorCount() const override { return m_sectorCount; }
    [[nodiscard]] bool read(std::uint64_t sector, std::span<std::uint8_t> bytes) override;
    [[nodiscard]] bool write(std::uint64_t sector, std::span<const std::uint8_t> bytes) override;
    [[nodiscard]] bool flush() override { return true; }
    [[nodiscard]] bool discardAll() override;

private:
    static constexpr std::size_t BlockSize = std::size_t{64} * 1024;

    std::uint64_t m_sectorCount = 0;
    std::unordered_map<std::uint64_t, std::unique_ptr<std::uint8_t[]>> m_blocks;
};

/// Sectors in one sparse file, sector n at byte n x 512.
class FileSectorStore final : public SectorStore {
public:
    /// Opens the image, or creates it. Null, and why in `error`, when that fails or when
    /// its size is not that of the sectors.
    [[nodiscard]] static std::unique_ptr<FileSectorStore>
    open(const std::filesystem::path& path, std::uint64_t sectorCount, std::string& error);

    [[nodiscard]] std::uint64_t sectorCount() const override { return m_sectorCount; }
    [[nodiscard]] bool read(std::uint64_t sector, std::span<std::uint8_t> bytes) override;
    [[nodiscard]] bool write(std::uint64_t sector, std::span<const std::uint8_t> bytes) override;
    [[nodiscard]] bool flush() override;
    [[nodiscard]] bool discardAll() override;

private:
    FileSectorStore(linux_platform::FileDescriptor file, std::uint64_t sectorCount)
        : m_file(std::move(file)), m_sectorCount(sectorCount) {}

    linux_platform::FileDescriptor m_file;
    std::uint64_t m_sectorCount = 0;
};

} // namespace zelto::simulator
