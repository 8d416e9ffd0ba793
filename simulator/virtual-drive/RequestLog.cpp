#include "simulator/virtual-drive/RequestLog.h"

#include "device/AreaInfo.h"
#include "device/DeviceStatus.h"
#include "device/PasswordRecords.h"
#include "device/TimeStatus.h"
#include "device/VendorRequest.h"
#include "simulator/drive/DriveNames.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <string_view>

namespace zelto::simulator {

namespace {

using Bytes = std::span<const std::uint8_t>;

template <typename... Values>
std::string format(const char* pattern, Values... values) {
    std::array<char, 256> text{};
    // Only numbers are formatted here, so the text always fits.
    const int size = std::snprintf(text.data(), text.size(), pattern, values...);
    return {text.data(), static_cast<std::size_t>(std::max(size, 0))};
}

/// A request's own words for what it carries, from the set-up packet and the data of either
/// direction.
using Describe = std::string (*)(const SetupPacket&, Bytes);

std::string valueOnly(const SetupPacket& setup, Bytes /*data*/) {
    return format(" value=%u", unsigned{setup.wValue});
}

std::string deviceStatus(const SetupPacket& setup, Bytes data) {
    std::string text = valueOnly(setup, data);
    if (data.size() < DeviceStatus::Size) {
        return text;
    }
    const DeviceStatus status = decodeDeviceStatus(data.first<DeviceStatus::Size>());
    text += format(" state=%u sense=%02X/%02X/%02X readiness=%02X",
                   static_cast<unsigned>(status.state()), unsigned{status.sense.key},
                   unsigned{status.sense.additionalCode}, unsigned{status.sense.qualifier},
                   unsigned{status.readiness});
    return text + (status.usesSecondPassword() ? " two-passwords" : "") +
           (status.hasAutomaticKey() ? " automatic-key" : "");
}

std::string timeStatus(const SetupPacket& /*setup*/, Bytes data) {
    if (data.size() < TimeStatus::Size) {
        return {};
    }
    const TimeStatus status = decodeTimeStatus(data.first<TimeStatus::Size>());
    return format(" elapsed=%u period=%u idle-lock=%u", status.autoClearElapsed,
                  status.autoClearPeriod, unsigned{status.idleLockPeriod}) +
           (status.clockNotValid ? " clock-not-valid" : "") +
           (status.autoClearExpired ? " expired" : "");
}

std::string currentTime(const SetupPacket& /*setup*/, Bytes data) {
    if (data.size() != CurrentTime::Size) {
        return {};
    }
    const CurrentTime time = decodeCurrentTime(data.first<CurrentTime::Size>());
    return format(" time=%04u-%02u-%02uT%02u:%02u:%02uZ", unsigned{time.year}, unsigned{time.month},
                  unsigned{time.day}, unsigned{time.hour}, unsigned{time.minute},
                  unsigned{time.second});
}

std::string areas(Bytes entries) {
    std::string text;
    for (; entries.size() >= AreaInfoEntry::Size; entries = entries.subspan(AreaInfoEntry::Size)) {
        const AreaInfoEntry entry = decodeAreaInfoEntry(entries.first<AreaInfoEntry::Size>());
        text += format(" area=%02X/%02X@%llu+%llu", unsigned{entry.type}, unsigned{entry.flags},
                       static_cast<unsigned long long>(entry.firstSector),
                       static_cast<unsigned long long>(entry.sectorCount));
    }
    return text;
}

std::string areaTable(const SetupPacket& /*setup*/, Bytes data) {
    return data.size() > AreaInfoTable::HeaderSize ? areas(data.subspan(AreaInfoTable::HeaderSize))
                                                   : std::string();
}

std::string areaEntries(const SetupPacket& /*setup*/, Bytes data) {
    return areas(data);
}

std::string authenticate(const SetupPacket& setup, Bytes data) {
    return valueOnly(setup, data) +
           (data.size() == AuthPayload::Size ? format(" step-flag=%u", unsigned{data[0]}) : "");
}

std::string passwordRecord(const SetupPacket& setup, Bytes data) {
    const bool isWhole = data.size() == AuthInfo::ShortSize || data.size() == AuthInfo::LongSize;
    return valueOnly(setup, data) +
           (isWhole ? format(" flags=%02X trials=%u", unsigned{data[0]}, unsigned{data[4]}) : "");
}

std::string encryptionRecord(const SetupPacket& setup, Bytes data) {
    constexpr std::size_t ClearSize = 4;
    constexpr std::uint8_t Automatic = 0x80;
    std::string text = valueOnly(setup, data);
    if (data.size() == EncryptionInfo::Size) {
        text += (data[5] & Automatic) != 0 ? " automatic-key" : " key-by-hand";
    }
    return text + (data.size() == ClearSize ? " clear" : "");
}

/// Of either kind; the shorter one leaves wIndex at 0.
std::string period(const SetupPacket& setup, Bytes /*data*/) {
    return format(" seconds=%lu", static_cast<unsigned long>(setup.wIndex) << 16 | setup.wValue);
}

std::string hintData(const SetupPacket& setup, Bytes data) {
    std::string text = format(" address=%u", unsigned{setup.wIndex});
    return text + (data.size() == 1 ? format(" byte=%02X", unsigned{data[0]}) : "");
}

std::string reconnect(const SetupPacket& setup, Bytes data) {
    return valueOnly(setup, data) + format(" index=%u", unsigned{setup.wIndex});
}

/// One for each request that has a name.
struct Teller {
    std::uint8_t bRequest = 0;
    Describe describe = nullptr;
};

constexpr std::array Tellers{
    Teller{VendorRequest::SetEncryptionInfo, &encryptionRecord},
    Teller{VendorRequest::SetAuthInfo, &passwordRecord},
    Teller{VendorRequest::Authenticate, &authenticate},
    Teller{VendorRequest::Logout, &valueOnly},
    Teller{VendorRequest::ReadHintData, &hintData},
    Teller{VendorRequest::WriteHintData, &hintData},
    Teller{VendorRequest::GetTimeStatus, &timeStatus},
    Teller{VendorRequest::SetCurrentTime, &currentTime},
    Teller{VendorRequest::SetErasePeriod, &period},
    Teller{VendorRequest::SetIdleLockPeriod, &period},
    Teller{VendorRequest::GetDeviceStatus, &deviceStatus},
    Teller{VendorRequest::Reconnect, &reconnect},
    Teller{VendorRequest::GetAreaInfos, &areaTable},
    Teller{VendorRequest::SetAreaInfos, &areaEntries},
    Teller{VendorRequest::ResetAreaInfos, &valueOnly},
};

std::string_view ending(const std::optional<ControlReply>& reply) {
    if (!reply) {
        return "no-answer";
    }
    return reply->stalled ? "stall" : "ok";
}

} // namespace

std::string describeRequest(const SetupPacket& setup, std::span<const std::uint8_t> sent,
                            const std::optional<ControlReply>& reply) {
    constexpr std::uint8_t ToHost = 0x80;
    const bool isToHost = (setup.bmRequestType & ToHost) != 0;
    const std::string_view command = commandOf(setup.bmRequestType, setup.bRequest);
    std::string text = format("%s %02X ", isToHost ? "in" : "out", unsigned{setup.bRequest});
    if (command.empty()) {
        text += format("unknown type=%02X value=%u index=%u", unsigned{setup.bmRequestType},
                       unsigned{setup.wValue}, unsigned{setup.wIndex});
    } else {
        const Bytes received = reply ? Bytes(reply->data) : Bytes();
        text += command.substr(command.rfind('_') + 1);
        const auto* const teller = std::ranges::find(Tellers, setup.bRequest, &Teller::bRequest);
        text += teller->describe(setup, isToHost ? received : sent);
    }
    return text + format(" length=%u: ", unsigned{setup.wLength}) + std::string(ending(reply));
}

} // namespace zelto::simulator
