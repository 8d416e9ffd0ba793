#pragma once

#include "simulator/drive/DriveModel.h"
#include "simulator/drive/SectorStore.h"

#include <memory>
#include <span>

namespace zelto::simulator {

/// How a read or write of sectors ended.
enum class StorageResult {
    Done,
    /// The unit shows no medium.
    NoMedium,
    /// Not all of the sectors are on the medium, or the span is no whole number of sectors.
    OutOfRange,
    /// The memory behind the drive failed.
    Failed,
};

/// The drive's sectors as media show them: those of a normal area as they are, those of a secure
/// area enciphered with AES-256-XTS (IEEE 1619) under the medium's key, the drive's own sector
/// number as tweak. What lies in the store can't be read without the key.
///
/// Runs of any length are read in place and written through one buffer, so a call allocates
/// nothing, and the cipher is set up once for a key. One thread at a time.
class DriveContents {
public:
    /// `store` is not null.
    explicit DriveContents(std::unique_ptr<SectorStore> store);
    DriveContents(const DriveContents&) = delete;
    DriveContents& operator=(const DriveContents&) = delete;
    ~DriveContents();

    /// Reads the medium's sectors from `sector` on, counted from the medium's first, into `bytes`.
    [[nodiscard]] StorageResult read(const Medium& medium, std::uint64_t sector,
                                     std::span<std::uint8_t> bytes);
    [[nodiscard]] StorageResult write(const Medium& medium, std::uint64_t sector,
                                      std::span<const std::uint8_t> bytes);
    /// Returns once everything written would survive a power failure.
    [[nodiscard]] StorageResult flush();
    /// Makes the whole drive blank.
    [[nodiscard]] StorageResult discardAll();
    /// Drops the key that is kept ready. Called when the drive locks or loses its power.
    void forgetKey();

private:
    class Cipher;

    [[nodiscard]] StorageResult writeEnciphered(const Medium& medium, std::uint64_t sector,
                                                std::span<const std::uint8_t> bytes);

    std::unique_ptr<SectorStore> m_store;
    std::unique_ptr<Cipher> m_cipher;
    std::unique_ptr<std::uint8_t[]> m_buffer;
};

} // namespace zelto::simulator
