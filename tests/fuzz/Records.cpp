// The drive's records: one that was decoded and encoded is the same record from then on, and no
// count leads out of the area table.

#include "device/AreaInfo.h"
#include "device/DeviceStatus.h"
#include "device/PasswordRecords.h"
#include "device/TimeStatus.h"
#include "settings/AreaPacking.h"
#include "tests/fuzz/Target.h"

#include <algorithm>
#include <array>

namespace zelto::test {
namespace {

template <std::size_t Size>
std::array<std::uint8_t, Size> padded(std::span<const std::uint8_t> bytes) {
    std::array<std::uint8_t, Size> record{};
    std::copy_n(bytes.begin(), std::min(Size, bytes.size()), record.begin());
    return record;
}

template <typename Bytes, typename Decode, typename Encode>
void checkRoundTrip(std::span<const std::uint8_t> bytes, Decode decode, Encode encode) {
    const Bytes once = encode(decode(padded<std::tuple_size_v<Bytes>>(bytes)));
    require(encode(decode(once)) == once, "a record decoded and encoded is the same record");
}

void checkAreaTable(std::span<const std::uint8_t> bytes) {
    AreaInfoTable table;
    std::ranges::copy(padded<AreaInfoTable::Size>(bytes), table.bytes().begin());
    require(table.entryCount() <= AreaInfoTable::Capacity, "no more entries than there is room");
    require(table.coveredEntryCount() <= table.entryCount(), "no more rows than entries");
    require(table.firstSecureDiskNumber() <= table.entryCount(), "the secure area is an entry");
    const AreaView view = buildAreaView(table, table.totalSectorCount());
    require(view.rows.areaCount <= _tagAreaInfosViewData::Capacity, "no more rows than are shown");
    (void)appendToolArea(table);
    require(table.entryCount() <= AreaInfoTable::Capacity, "appending stays within the table");
}

/// What the utility alone encodes is where the drive looks for it.
void checkSentRecords(std::span<const std::uint8_t> bytes) {
    constexpr std::array Kinds{AuthInfo::Set, AuthInfo::SetBoth, AuthInfo::Change,
                               AuthInfo::ChangeBoth};
    Input input(bytes.data(), bytes.size());
    AuthInfo info{.kind = Kinds.at(input.takeByte() % Kinds.size()),
                  .numberOfTrials = input.takeByte()};
    info.slot3 = padded<32>(input.rest());
    const auto sent = encodeAuthInfo(info);
    require(record::get<std::uint8_t>(sent, AuthInfoField::Kind) == info.kind &&
                record::get<std::uint8_t>(sent, AuthInfoField::NumberOfTrials) ==
                    info.numberOfTrials,
            "a password record says what it is");
    require(info.kind == AuthInfo::ChangeBoth ||
                std::ranges::count(std::span(sent).subspan(AuthInfo::ShortSize), 0) == 32,
            "a third password travels in the long form only");
    const EncryptionInfo key{.automaticKey = (info.numberOfTrials & 1U) != 0,
                             .key = padded<EncryptionInfo::KeySize>(input.rest())};
    const auto encoded = encodeEncryptionInfo(key);
    const auto place = std::span(encoded).subspan(EncryptionInfoField::Key.offset);
    require(std::ranges::equal(place, key.key) != key.automaticKey ||
                key.key == EncryptionInfo{}.key,
            "a key travels when it was entered by hand");
}

void checkLayout(std::span<const std::uint8_t> bytes) {
    Input input(bytes.data(), bytes.size());
    AreaChoice choice;
    for (std::size_t disk = 0; disk < choice.mebibytes.size(); ++disk) {
        choice.secure.at(disk) = (input.takeByte() & 1U) != 0;
        choice.mebibytes.at(disk) = input.takeWord();
    }
    const std::uint64_t sectors = sectorsOfMebibytes(input.takeWord());
    AreaInfoTable table = encodeAreaInfoTable(sectors, {});
    rebuildUserAreas(table, choice);
    std::uint64_t next = 0;
    for (std::size_t index = 0; index < table.storedCount(); ++index) {
        require(table.entry(index).firstSector == next, "each area follows the one before");
        next += table.entry(index).sectorCount;
    }
    const bool fits = leftMebibytes(sectors, choice.mebibytes) >= 0;
    require(fits == (next <= sectors), "areas that fit are on the drive");
    require(sectorsBesideToolArea(sectors) <= sectors, "the tool area takes room");
    require(!isNeverPartitioned(table), "a drive with areas is not new");
    const auto toolArea = appendToolArea(table);
    require(toolArea && *toolArea == table.storedCount() &&
                table.entry(*toolArea - 1U).firstSector == next,
            "the tool area is the last");
    require(storedEntries(table).size() == table.storedCount() * AreaInfoEntry::Size,
            "every area travels");
}

} // namespace
} // namespace zelto::test

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zelto;
    using namespace zelto::test;
    const std::span bytes(data, size);
    checkRoundTrip<DeviceStatus::Bytes>(bytes, decodeDeviceStatus, encodeDeviceStatus);
    checkRoundTrip<TimeStatus::Bytes>(bytes, decodeTimeStatus, encodeTimeStatus);
    checkRoundTrip<CurrentTime::Bytes>(bytes, decodeCurrentTime, encodeCurrentTime);
    checkRoundTrip<AreaInfoEntry::Bytes>(bytes, decodeAreaInfoEntry, encodeAreaInfoEntry);
    checkRoundTrip<AuthPayload::Bytes>(bytes, decodeAuthPayload, encodeAuthPayload);
    const CurrentTime clock = decodeCurrentTime(padded<CurrentTime::Size>(bytes));
    if (const auto moment = momentOf(clock)) {
        require(encodeCurrentTime(clockAt(*moment)) == encodeCurrentTime(clock),
                "a moment and its date are the same");
    }
    checkAreaTable(bytes);
    checkSentRecords(bytes);
    checkLayout(bytes);
    return 0;
}
