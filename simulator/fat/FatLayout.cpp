#include "simulator/fat/FatLayout.h"

#include "simulator/fat/LittleEndian.h"

#include <algorithm>
#include <array>
#include <bit>
#include <limits>
#include <vector>

namespace zelto::simulator {

namespace {

using Sector = std::array<std::uint8_t, SectorSize>;
using Kind = FatLayout::Kind;

constexpr std::uint32_t Fat12Limit = 4085;
constexpr std::uint32_t Fat16Limit = 65525;
constexpr std::uint32_t Fat32Limit = 0x0FFFFFF5;
constexpr std::size_t FolderEntrySize = 32;
constexpr std::uint8_t FixedDisk = 0xF8;
constexpr std::uint8_t VolumeLabelAttribute = 0x08;
constexpr std::size_t LabelLength = 11;

std::string readLabel(const Sector& boot, std::size_t offset) {
    std::string label(boot.begin() + static_cast<std::ptrdiff_t>(offset),
                      boot.begin() + static_cast<std::ptrdiff_t>(offset + LabelLength));
    label.erase(label.find_last_not_of(' ') + 1);
    std::ranges::replace_if(
        label, [](char c) { return c < ' ' || c > '~' || c == '/'; }, '_');
    return label;
}

/// The numbers of the boot sector that everything else follows from.
struct BootNumbers {
    std::uint32_t sectorsPerCluster = 0;
    std::uint32_t reserved = 0;
    std::uint32_t fatCount = 0;
    std::uint32_t rootEntries = 0;
    std::uint64_t totalSectors = 0;
    std::uint64_t sectorsPerFat = 0;
};

std::optional<BootNumbers> readBootNumbers(const Sector& boot, std::uint64_t deviceSectors) {
    BootNumbers numbers;
    numbers.sectorsPerCluster = boot[13];
    numbers.reserved = getLittleEndian<std::uint16_t>(boot, 14);
    numbers.fatCount = boot[16];
    numbers.rootEntries = getLittleEndian<std::uint16_t>(boot, 17);
    numbers.totalSectors = getLittleEndian<std::uint16_t>(boot, 19);
    if (numbers.totalSectors == 0) {
        numbers.totalSectors = getLittleEndian<std::uint32_t>(boot, 32);
    }
    numbers.sectorsPerFat = getLittleEndian<std::uint16_t>(boot, 22);
    if (numbers.sectorsPerFat == 0) {
        numbers.sectorsPerFat = getLittleEndian<std::uint32_t>(boot, 36);
    }
    const bool plausible = getLittleEndian<std::uint16_t>(boot, 510) == 0xAA55 &&
                           (boot[0] == 0xEB || boot[0] == 0xE9) &&
                           getLittleEndian<std::uint16_t>(boot, 11) == SectorSize &&
                           std::has_single_bit(numbers.sectorsPerCluster) && numbers.reserved > 0 &&
                           (numbers.fatCount == 1 || numbers.fatCount == 2) && boot[21] >= 0xF0 &&
                           numbers.totalSectors <= deviceSectors && numbers.sectorsPerFat > 0;
    return plausible ? std::optional(numbers) : std::nullopt;
}

Kind kindFor(std::uint64_t clusters) {
    return clusters < Fat12Limit ? Kind::Fat12 : clusters < Fat16Limit ? Kind::Fat16 : Kind::Fat32;
}

std::uint64_t fatBytes(Kind kind, std::uint64_t clusters) {
    const std::uint64_t entries = clusters + FatLayout::FirstCluster;
    switch (kind) {
    case Kind::Fat12:
        return (entries * 3 + 1) / 2;
    case Kind::Fat16:
        return entries * 2;
    case Kind::Fat32:
        return entries * 4;
    }
    return 0;
}

} // namespace

std::optional<FatLayout> readFatLayout(BlockDevice& device) {
    Sector boot{};
    if (!device.read(0, boot)) {
        return std::nullopt;
    }
    const auto numbers = readBootNumbers(boot, device.sectorCount());
    if (!numbers) {
        return std::nullopt;
    }
    FatLayout layout;
    layout.sectorsPerCluster = numbers->sectorsPerCluster;
    layout.fatCount = numbers->fatCount;
    layout.firstFatSector = numbers->reserved;
    layout.sectorsPerFat = numbers->sectorsPerFat;
    layout.totalSectors = numbers->totalSectors;
    layout.firstRootSector = numbers->reserved + numbers->fatCount * numbers->sectorsPerFat;
    layout.rootSectors = static_cast<std::uint32_t>(
        (numbers->rootEntries * FolderEntrySize + SectorSize - 1) / SectorSize);
    layout.firstDataSector = layout.firstRootSector + layout.rootSectors;
    if (layout.firstDataSector >= layout.totalSectors) {
        return std::nullopt;
    }
    const std::uint64_t clusters =
        (layout.totalSectors - layout.firstDataSector) / layout.sectorsPerCluster;
    layout.kind = kindFor(clusters);
    if (clusters == 0 || clusters > Fat32Limit ||
        fatBytes(layout.kind, clusters) > layout.sectorsPerFat * SectorSize ||
        (layout.kind == Kind::Fat32) != (layout.rootSectors == 0)) {
        return std::nullopt;
    }
    layout.clusterCount = static_cast<std::uint32_t>(clusters);
    if (layout.kind == Kind::Fat32) {
        layout.rootCluster = getLittleEndian<std::uint32_t>(boot, 44);
        layout.infoSector = getLittleEndian<std::uint16_t>(boot, 48);
        if (!layout.holdsCluster(layout.rootCluster)) {
            return std::nullopt;
        }
    }
    layout.label = readLabel(boot, layout.kind == Kind::Fat32 ? 71 : 43);
    return layout;
}

namespace {

constexpr std::uint32_t RootEntries = 512;
constexpr std::uint32_t Fat32Reserved = 32;
constexpr std::uint32_t BackupBootSector = 6;
constexpr std::uint64_t Fat32From = 532480; // 260 MiB, as the usual tables have it

std::uint32_t clusterSizeFor(std::uint64_t sectors) {
    // Sizes in sectors up to which a cluster size serves; below 260 MiB FAT12 and FAT16.
    struct Step {
        std::uint64_t sectors;
        std::uint32_t clusterSize;
    };
    static constexpr std::array<Step, 10> Steps{{{8400, 1},
                                                 {32680, 2},
                                                 {262144, 4},
                                                 {Fat32From, 8},
                                                 {16777216, 8},
                                                 {33554432, 16},
                                                 {67108864, 32},
                                                 {134217728, 64},
                                                 {268435456, 64},
                                                 {std::numeric_limits<std::uint64_t>::max(), 128}}};
    return std::ranges::find_if(Steps, [&](const Step& step) { return sectors <= step.sectors; })
        ->clusterSize;
}

/// Chooses the layout of a new volume; the size of the FAT and the number of clusters depend on
/// each other, so they are approached from below.
std::optional<FatLayout> planLayout(std::uint64_t sectors) {
    FatLayout layout;
    layout.totalSectors =
        std::min<std::uint64_t>(sectors, std::numeric_limits<std::uint32_t>::max());
    const bool large = sectors > Fat32From;
    layout.sectorsPerCluster = clusterSizeFor(sectors);
    layout.firstFatSector = large ? Fat32Reserved : 1;
    layout.rootSectors = large ? 0 : RootEntries * FolderEntrySize / SectorSize;
    for (layout.sectorsPerFat = 1;;) {
        layout.firstRootSector = layout.firstFatSector + layout.fatCount * layout.sectorsPerFat;
        layout.firstDataSector = layout.firstRootSector + layout.rootSectors;
        if (layout.firstDataSector >= layout.totalSectors) {
            return std::nullopt;
        }
        const std::uint64_t clusters =
            (layout.totalSectors - layout.firstDataSector) / layout.sectorsPerCluster;
        layout.kind = large ? Kind::Fat32 : kindFor(clusters);
        const std::uint64_t needed =
            (fatBytes(layout.kind, clusters) + SectorSize - 1) / SectorSize;
        if (needed <= layout.sectorsPerFat) {
            layout.clusterCount = static_cast<std::uint32_t>(clusters);
            return clusters > 0 ? std::optional(layout) : std::nullopt;
        }
        layout.sectorsPerFat += std::max<std::uint64_t>(1, (needed - layout.sectorsPerFat) / 2);
    }
}

void putText(std::span<std::uint8_t> bytes, std::size_t offset, std::size_t width,
             const std::string& text) {
    for (std::size_t i = 0; i < width; ++i) {
        bytes[offset + i] = static_cast<std::uint8_t>(i < text.size() ? text[i] : ' ');
    }
}

Sector makeBootSector(const FatLayout& layout, const std::string& label,
                      std::uint32_t hiddenSectors, std::uint32_t volumeId) {
    Sector boot{};
    const std::span<std::uint8_t> bytes(boot);
    const bool fat32 = layout.kind == Kind::Fat32;
    boot[0] = 0xEB;
    boot[1] = fat32 ? 0x58 : 0x3C;
    boot[2] = 0x90;
    putText(bytes, 3, 8, "ZELTO1.0");
    putLittleEndian(bytes, 11, static_cast<std::uint16_t>(SectorSize));
    boot[13] = static_cast<std::uint8_t>(layout.sectorsPerCluster);
    putLittleEndian(bytes, 14, static_cast<std::uint16_t>(layout.firstFatSector));
    boot[16] = static_cast<std::uint8_t>(layout.fatCount);
    putLittleEndian(bytes, 17, static_cast<std::uint16_t>(fat32 ? 0 : RootEntries));
    const bool small = !fat32 && layout.totalSectors <= 0xFFFF;
    putLittleEndian(bytes, 19, static_cast<std::uint16_t>(small ? layout.totalSectors : 0));
    boot[21] = FixedDisk;
    putLittleEndian(bytes, 22, static_cast<std::uint16_t>(fat32 ? 0 : layout.sectorsPerFat));
    putLittleEndian(bytes, 24, std::uint16_t{63});
    putLittleEndian(bytes, 26, std::uint16_t{255});
    putLittleEndian(bytes, 28, hiddenSectors);
    putLittleEndian(bytes, 32, static_cast<std::uint32_t>(small ? 0 : layout.totalSectors));
    if (fat32) {
        putLittleEndian(bytes, 36, static_cast<std::uint32_t>(layout.sectorsPerFat));
        putLittleEndian(bytes, 44, FatLayout::FirstCluster);
        putLittleEndian(bytes, 48, std::uint16_t{1});
        putLittleEndian(bytes, 50, static_cast<std::uint16_t>(BackupBootSector));
    }
    const std::size_t extension = fat32 ? 64 : 36;
    boot[extension] = 0x80;
    boot[extension + 2] = 0x29;
    putLittleEndian(bytes, extension + 3, volumeId);
    putText(bytes, extension + 7, LabelLength, label);
    putText(bytes, extension + 18, 8,
            fat32 ? "FAT32" : (layout.kind == Kind::Fat16 ? "FAT16" : "FAT12"));
    putLittleEndian(bytes, 510, std::uint16_t{0xAA55});
    return boot;
}

Sector makeInfoSector(const FatLayout& layout) {
    Sector info{};
    const std::span<std::uint8_t> bytes(info);
    putText(bytes, 0, 4, "RRaA");
    putText(bytes, 484, 4, "rrAa");
    putLittleEndian(bytes, 488, layout.clusterCount - 1); // the root folder has one
    putLittleEndian(bytes, 492, FatLayout::FirstCluster + 1);
    putLittleEndian(bytes, 510, std::uint16_t{0xAA55});
    return info;
}

bool zeroSectors(BlockDevice& device, std::uint64_t first, std::uint64_t count) {
    static constexpr std::uint64_t Chunk = 256;
    const std::vector<std::uint8_t> zeros(Chunk * SectorSize);
    for (std::uint64_t done = 0; done < count; done += Chunk) {
        const std::size_t bytes =
            static_cast<std::size_t>(std::min(Chunk, count - done)) * SectorSize;
        if (!device.write(first + done, std::span(zeros).first(bytes))) {
            return false;
        }
    }
    return true;
}

/// The first sector of a FAT: entries 0 and 1 are not clusters, and on FAT32 the root folder's
/// chain of one cluster ends.
Sector makeFirstFatSector(Kind kind) {
    Sector sector{};
    const std::span<std::uint8_t> bytes(sector);
    switch (kind) {
    case Kind::Fat12:
        putLittleEndian(bytes, 0, std::uint32_t{0x00FFFF00U | FixedDisk});
        break;
    case Kind::Fat16:
        putLittleEndian(bytes, 0, std::uint32_t{0xFFFFFF00U | FixedDisk});
        break;
    case Kind::Fat32:
        putLittleEndian(bytes, 0, std::uint32_t{0x0FFFFF00U | FixedDisk});
        putLittleEndian(bytes, 4, std::uint32_t{0x0FFFFFFF});
        putLittleEndian(bytes, 8, std::uint32_t{0x0FFFFFFF});
        break;
    }
    return sector;
}

Sector makeLabelSector(const std::string& label, std::chrono::sys_seconds now) {
    Sector sector{};
    const std::span<std::uint8_t> bytes(sector);
    putText(bytes, 0, LabelLength, label);
    sector[LabelLength] = VolumeLabelAttribute;
    const FatMoment moment = toFatMoment(now);
    putLittleEndian(bytes, 22, moment.time);
    putLittleEndian(bytes, 24, moment.date);
    return sector;
}

} // namespace

bool formatFat(BlockDevice& device, const std::string& label, std::uint32_t hiddenSectors,
               std::chrono::sys_seconds now) {
    const auto layout = planLayout(device.sectorCount());
    if (!layout || label.size() > LabelLength) {
        return false;
    }
    const auto volumeId = static_cast<std::uint32_t>(now.time_since_epoch().count());
    const Sector boot = makeBootSector(*layout, label, hiddenSectors, volumeId);
    const bool fat32 = layout->kind == Kind::Fat32;
    const std::uint64_t rootAt = fat32 ? layout->firstDataSector : layout->firstRootSector;
    const std::uint64_t cleared =
        fat32 ? layout->firstDataSector + layout->sectorsPerCluster : layout->firstDataSector;
    bool written = zeroSectors(device, 0, cleared) && device.write(0, boot) &&
                   device.write(rootAt, makeLabelSector(label, now));
    for (std::uint32_t copy = 0; written && copy < layout->fatCount; ++copy) {
        written = device.write(layout->firstFatSector + copy * layout->sectorsPerFat,
                               makeFirstFatSector(layout->kind));
    }
    if (written && fat32) {
        const Sector info = makeInfoSector(*layout);
        written = device.write(1, info) && device.write(BackupBootSector, boot) &&
                  device.write(BackupBootSector + 1, info);
    }
    return written;
}

std::uint8_t fatPartitionType(std::uint64_t sectorCount) {
    const auto layout = planLayout(sectorCount);
    if (!layout || layout->kind == Kind::Fat12) {
        return 0x01;
    }
    return layout->kind == Kind::Fat16 ? 0x0E : 0x0C;
}

FatMoment toFatMoment(std::chrono::sys_seconds moment) {
    using namespace std::chrono;
    const auto day = floor<days>(moment);
    const year_month_day date(day);
    const int year = int(date.year());
    if (year < 1980 || year > 2107) {
        return {static_cast<std::uint16_t>(1U << 5U | 1U), 0};
    }
    const hh_mm_ss time(moment - day);
    return {static_cast<std::uint16_t>(static_cast<unsigned>(year - 1980) << 9U |
                                       unsigned(date.month()) << 5U | unsigned(date.day())),
            static_cast<std::uint16_t>(static_cast<unsigned>(time.hours().count()) << 11U |
                                       static_cast<unsigned>(time.minutes().count()) << 5U |
                                       static_cast<unsigned>(time.seconds().count()) / 2U)};
}

std::chrono::sys_seconds fromFatMoment(FatMoment moment) {
    using namespace std::chrono;
    const year_month_day date{year(1980 + (moment.date >> 9U)), month(moment.date >> 5U & 0xFU),
                              day(moment.date & 0x1FU)};
    const sys_days start = date.ok() ? sys_days(date) : sys_days(year(1980) / January / 1);
    return start + hours(moment.time >> 11U & 0x1FU) + minutes(moment.time >> 5U & 0x3FU) +
           seconds((moment.time & 0x1FU) * 2);
}

} // namespace zelto::simulator
