#include "simulator/scsi/ScsiPages.h"

#include "device/Record.h"
#include "simulator/drive/DriveNames.h"
#include "simulator/drive/SectorStore.h"

#include <algorithm>

namespace zelto::simulator {

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::string_view Revision = "0100";
constexpr std::uint8_t DirectAccess = 0x00;
constexpr std::uint8_t Spc4 = 0x06;

/// SCSI texts are ASCII, left-aligned and filled with blanks.
void appendPadded(Bytes& bytes, std::string_view text, std::size_t width) {
    for (std::size_t index = 0; index < width; ++index) {
        bytes.push_back(index < text.size() ? static_cast<std::uint8_t>(text[index]) : ' ');
    }
}

Bytes inquiryData(std::uint8_t peripheral, std::string_view product) {
    constexpr std::uint8_t Removable = 0x80;
    constexpr std::uint8_t ResponseFormat = 0x02;
    constexpr std::size_t Size = 74;
    constexpr std::uint8_t AdditionalLength = Size - 5;
    Bytes bytes{peripheral, Removable, Spc4, ResponseFormat, AdditionalLength, 0, 0, 0};
    appendPadded(bytes, DriveName::Vendor, 8);
    appendPadded(bytes, product, 16);
    appendPadded(bytes, Revision, 4);
    bytes.resize(Size);
    // Version descriptors (SPC-4, 6.6.2): the standards that the unit keeps to.
    record::put(bytes, {58, 2}, 0x0460); // SPC-4
    record::put(bytes, {60, 2}, 0x04C0); // SBC-3
    record::put(bytes, {62, 2}, 0x1730); // USB Mass Storage Bulk-Only Transport 1.0
    return bytes;
}

Bytes supportedPages() {
    return {0x00, 0x80, 0x83, 0xB0, 0xB1};
}

Bytes serialNumber(const UnitIdentity& unit) {
    return {unit.serial.begin(), unit.serial.end()};
}

/// One designator of type 1, "T10 vendor ID": the unit's own name in the world.
Bytes identification(const UnitIdentity& unit) {
    constexpr std::uint8_t Ascii = 0x02;
    constexpr std::uint8_t T10VendorId = 0x01;
    Bytes name;
    appendPadded(name, DriveName::Vendor, 8);
    appendPadded(name, unitProduct(unit.number), 16);
    name.insert(name.end(), unit.serial.begin(), unit.serial.end());
    Bytes bytes{Ascii, T10VendorId, 0, static_cast<std::uint8_t>(name.size())};
    bytes.insert(bytes.end(), name.begin(), name.end());
    return bytes;
}

/// No limits but a granularity: 8 sectors, so that partitions and file systems align to 4 KiB.
Bytes blockLimits() {
    constexpr std::uint8_t OptimalGranularity = 8;
    Bytes bytes(0x3C);
    bytes[3] = OptimalGranularity;
    return bytes;
}

Bytes blockCharacteristics() {
    constexpr std::uint8_t NonRotating = 1;
    Bytes bytes(0x3C);
    bytes[1] = NonRotating;
    return bytes;
}

std::optional<Bytes> pageBody(std::uint8_t page, const UnitIdentity& unit) {
    switch (page) {
    case 0x00:
        return supportedPages();
    case 0x80:
        return serialNumber(unit);
    case 0x83:
        return identification(unit);
    case 0xB0:
        return blockLimits();
    case 0xB1:
        return blockCharacteristics();
    default:
        return std::nullopt;
    }
}

/// Caching page (SBC-3, 6.5.5): writes rest in a cache until it is synchronized.
Bytes cachingPage(ModeValues values) {
    constexpr std::uint8_t WriteCacheEnabled = 0x04;
    Bytes bytes(20);
    bytes[0] = 0x08;
    bytes[1] = 18;
    bytes[2] = values == ModeValues::Changeable ? 0 : WriteCacheEnabled;
    return bytes;
}

/// Control page (SPC-4, 7.5.8): fixed-format sense, one command after the other.
Bytes controlPage() {
    Bytes bytes(12);
    bytes[0] = 0x0A;
    bytes[1] = 10;
    return bytes;
}

} // namespace

std::vector<std::uint8_t> standardInquiry(const UnitIdentity& unit) {
    return inquiryData(DirectAccess, unitProduct(unit.number));
}

std::vector<std::uint8_t> absentUnitInquiry() {
    constexpr std::uint8_t NoSuchUnit = 0x7F;
    return inquiryData(NoSuchUnit, "");
}

std::optional<std::vector<std::uint8_t>> vitalProductData(std::uint8_t page,
                                                          const UnitIdentity& unit) {
    const std::optional<Bytes> body = pageBody(page, unit);
    if (!body) {
        return std::nullopt;
    }
    Bytes bytes{DirectAccess, page, static_cast<std::uint8_t>(body->size() >> 8),
                static_cast<std::uint8_t>(body->size() & 0xFF)};
    bytes.insert(bytes.end(), body->begin(), body->end());
    return bytes;
}

std::optional<std::vector<std::uint8_t>> modePages(std::uint8_t page, std::uint8_t subpage,
                                                   ModeValues values) {
    constexpr std::uint8_t Caching = 0x08;
    constexpr std::uint8_t Control = 0x0A;
    constexpr std::uint8_t AllPages = 0x3F;
    constexpr std::uint8_t AllSubpages = 0xFF;
    if (subpage != 0 && (subpage != AllSubpages || page != AllPages)) {
        return std::nullopt;
    }
    Bytes bytes;
    if (page == Caching || page == AllPages) {
        bytes = cachingPage(values);
    }
    if (page == Control || page == AllPages) {
        const Bytes control = controlPage();
        bytes.insert(bytes.end(), control.begin(), control.end());
    }
    return bytes.empty() ? std::nullopt : std::optional(bytes);
}

std::vector<std::uint8_t> capacity10(std::uint64_t sectorCount) {
    Bytes bytes(8);
    record::put(bytes, {0, 4}, std::min<std::uint64_t>(sectorCount - 1, 0xFFFFFFFF));
    record::put(bytes, {4, 4}, SectorSize);
    return bytes;
}

std::vector<std::uint8_t> capacity16(std::uint64_t sectorCount) {
    Bytes bytes(32);
    record::put(bytes, {0, 8}, sectorCount - 1);
    record::put(bytes, {8, 4}, SectorSize);
    return bytes;
}

std::vector<std::uint8_t> formatCapacities(std::optional<std::uint64_t> sectorCount) {
    constexpr std::uint8_t FormattedMedium = 0x02;
    constexpr std::uint8_t NoMedium = 0x03;
    Bytes bytes(12);
    bytes[3] = 8;
    record::put(bytes, {4, 4}, std::min<std::uint64_t>(sectorCount.value_or(0), 0xFFFFFFFF));
    bytes[8] = sectorCount ? FormattedMedium : NoMedium;
    record::put(bytes, {9, 3}, SectorSize);
    return bytes;
}

std::vector<std::uint8_t> unitList(std::size_t unitCount) {
    Bytes bytes(8 + 8 * unitCount);
    record::put(bytes, {0, 4}, 8 * unitCount);
    for (std::size_t unit = 0; unit < unitCount; ++unit) {
        bytes[8 + 8 * unit + 1] = static_cast<std::uint8_t>(unit);
    }
    return bytes;
}

} // namespace zelto::simulator
