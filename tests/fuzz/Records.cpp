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
    return 0;
}
