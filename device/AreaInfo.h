#pragma once

#include "device/Record.h"

#include <vector>

namespace zelto {

/// One area of the drive, in 512-byte sectors.
struct AreaInfoEntry {
    static constexpr std::size_t Size = 20;
    using Bytes = std::array<std::uint8_t, Size>;

    static constexpr std::uint8_t NormalArea = 0x00;
    static constexpr std::uint8_t SecureArea = 0x40;

    static constexpr std::uint8_t InUse = 0x01;
    /// On every entry that first-time set-up sends.
    static constexpr std::uint8_t SentBySetup = 0x40;
    static constexpr std::uint8_t Secure = 0x80;

    /// The sector count of the one entry of a drive whose areas were never set.
    static constexpr std::uint64_t AllSectors = 0xFFFFFFFFFFFFFFFF;

    /// NormalArea, SecureArea, or a code that is only shown.
    std::uint8_t type = NormalArea;
    /// InUse, SentBySetup, Secure.
    std::uint8_t flags = 0;
    std::uint64_t firstSector = 0;
    std::uint64_t sectorCount = 0;

    friend bool operator==(const AreaInfoEntry&, const AreaInfoEntry&) = default;
};

[[nodiscard]] AreaInfoEntry decodeAreaInfoEntry(std::span<const std::uint8_t, AreaInfoEntry::Size>);
[[nodiscard]] AreaInfoEntry::Bytes encodeAreaInfoEntry(const AreaInfoEntry&);

/// The drive's area table as TKVR21_GetAreaInfos returns it: a header of 12 bytes, then entries.
/// It stays a buffer because the settings rebuild it in place: entries and count are replaced,
/// while header bytes that nobody sets keep what the drive sent.
class AreaInfoTable {
public:
    static constexpr std::size_t Size = 256;
    static constexpr std::size_t HeaderSize = 12;
    /// Entries that the buffer has room for, whatever the header claims.
    static constexpr std::size_t Capacity = (Size - HeaderSize) / AreaInfoEntry::Size;

    /// The whole table, for the command that reads it.
    [[nodiscard]] std::span<std::uint8_t, Size> bytes() { return m_bytes; }
    [[nodiscard]] std::span<const std::uint8_t, Size> bytes() const { return m_bytes; }

    /// Entries according to the length field, as an unsigned 16-bit computation; a drive that
    /// lies may claim more than `Capacity`.
    [[nodiscard]] std::uint16_t claimedEntryCount() const;
    /// The claimed count, cut to what the buffer holds.
    [[nodiscard]] std::size_t entryCount() const;
    /// The same, but none of a length that does not even cover the header: what the settings show.
    /// Log-off goes by the claimed count, so that no secure area is missed.
    [[nodiscard]] std::size_t coveredEntryCount() const;

    /// Sectors of the whole drive.
    [[nodiscard]] std::uint64_t totalSectorCount() const;

    /// `index` is below Capacity.
    [[nodiscard]] AreaInfoEntry entry(std::size_t index) const;
    void setEntry(std::size_t index, const AreaInfoEntry& entry);

    /// The 1-based position of the first secure area; 0 when there is none.
    [[nodiscard]] std::uint32_t firstSecureDiskNumber() const;

    /// Header byte 3, the number of entries as the settings keep it.
    [[nodiscard]] std::uint8_t storedCount() const;
    void setStoredCount(std::uint8_t count);
    /// The low byte of the length field, count x 20 + 10; the high byte is left as it is.
    void setLengthForCount(std::uint8_t count);

private:
    std::array<std::uint8_t, Size> m_bytes{};
};

/// The table a drive answers with; at most AreaInfoTable::Capacity entries.
[[nodiscard]] AreaInfoTable encodeAreaInfoTable(std::uint64_t totalSectors,
                                                std::span<const AreaInfoEntry> entries);

} // namespace zelto
