#include "device/DeviceStatus.h"

namespace zelto {
namespace {

using record::Field;

constexpr Field Leading{0, 7};
constexpr Field Readiness{7, 1};
constexpr Field BeforeSense{8, 5};
constexpr Field SenseKey{13, 1};
constexpr Field AdditionalSenseCode{14, 1};
constexpr Field AdditionalSenseCodeQualifier{15, 1};
constexpr Field BeforeSecurity{16, 17};
constexpr Field Security{33, 1};
constexpr Field Trailing{34, 2};

static_assert(record::covers(std::array{Leading, Readiness, BeforeSense, SenseKey,
                                        AdditionalSenseCode, AdditionalSenseCodeQualifier,
                                        BeforeSecurity, Security, Trailing},
                             DeviceStatus::Size));

} // namespace

DeviceStatus decodeDeviceStatus(std::span<const std::uint8_t, DeviceStatus::Size> bytes) {
    using record::get;
    return {
        .readiness = get<std::uint8_t>(bytes, Readiness),
        .sense = {.key = get<std::uint8_t>(bytes, SenseKey),
                  .additionalCode = get<std::uint8_t>(bytes, AdditionalSenseCode),
                  .qualifier = get<std::uint8_t>(bytes, AdditionalSenseCodeQualifier)},
        .security = get<std::uint8_t>(bytes, Security),
    };
}

DeviceStatus::Bytes encodeDeviceStatus(const DeviceStatus& status) {
    DeviceStatus::Bytes bytes{};
    record::put(bytes, Readiness, status.readiness);
    record::put(bytes, SenseKey, status.sense.key);
    record::put(bytes, AdditionalSenseCode, status.sense.additionalCode);
    record::put(bytes, AdditionalSenseCodeQualifier, status.sense.qualifier);
    record::put(bytes, Security, status.security);
    return bytes;
}

} // namespace zelto
