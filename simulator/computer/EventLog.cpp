#include "simulator/computer/EventLog.h"

#include "device/VendorRequest.h"

#include <algorithm>
#include <array>

namespace zelto::simulator {

std::vector<std::string> EventLog::texts(LogLine::Kind kind) const {
    std::vector<std::string> found;
    for (const LogLine& line : m_lines) {
        if (line.kind == kind) {
            found.push_back(line.text);
        }
    }
    return found;
}

std::vector<std::string> EventLog::story() const {
    std::vector<std::string> found;
    for (const LogLine& line : m_lines) {
        if (line.kind != LogLine::Kind::StandardRequest &&
            line.text != "TKVR21_ZELTO_GetTimeStatus") {
            found.push_back(line.text);
        }
    }
    return found;
}

std::size_t EventLog::count(const std::string& text) const {
    return static_cast<std::size_t>(std::ranges::count(m_lines, text, &LogLine::text));
}

const LogLine* EventLog::latest(const std::string& text) const {
    const auto found = std::find_if(m_lines.rbegin(), m_lines.rend(),
                                    [&](const LogLine& line) { return line.text == text; });
    return found == m_lines.rend() ? nullptr : &*found;
}

namespace {

struct NamedRequest {
    std::uint8_t bmRequestType;
    std::uint8_t bRequest;
    const char* name;
};

constexpr std::array Names{
    NamedRequest{VendorRequest::ToDevice, VendorRequest::SetAuthInfo, "TKVR21_SetAuthInfo"},
    NamedRequest{VendorRequest::ToDevice, VendorRequest::Authenticate, "TKVR21_Authenticate"},
    NamedRequest{VendorRequest::ToDevice, VendorRequest::Logout, "TKVR21_Logout"},
    NamedRequest{VendorRequest::ToHost, VendorRequest::ReadHintData, "TKVR21_ZELTO_ReadHintData"},
    NamedRequest{VendorRequest::ToDevice, VendorRequest::WriteHintData,
                 "TKVR21_ZELTO_WriteHintData"},
    NamedRequest{VendorRequest::ToHost, VendorRequest::GetTimeStatus, "TKVR21_ZELTO_GetTimeStatus"},
    NamedRequest{VendorRequest::ToDevice, VendorRequest::SetCurrentTime,
                 "TKVR21_ZELTO_SetCurrentTime"},
    NamedRequest{VendorRequest::ToDevice, VendorRequest::SetErasePeriod,
                 "TKVR21_ZELTO_SetErasePeriod"},
    NamedRequest{VendorRequest::ToDevice, VendorRequest::SetIdleLockPeriod,
                 "TKVR21_ZELTO_SetIdleLockPeriod"},
    NamedRequest{VendorRequest::ToHost, VendorRequest::GetDeviceStatus, "TKVR21_GetDeviceStatus"},
    NamedRequest{VendorRequest::ToDevice, VendorRequest::Reconnect, "TKVR21_Reconnect"},
    NamedRequest{VendorRequest::ToHost, VendorRequest::GetAreaInfos, "TKVR21_GetAreaInfos"},
    NamedRequest{VendorRequest::ToDevice, VendorRequest::SetAreaInfos, "TKVR21_SetAreaInfos"},
    NamedRequest{VendorRequest::ToDevice, VendorRequest::ResetAreaInfos, "TKVR21_ResetAreaInfos"},
};

} // namespace

std::string commandName(const IOUSBDevRequest& request) {
    if (request.bmRequestType == VendorRequest::ToDevice &&
        request.bRequest == VendorRequest::SetEncryptionInfo) {
        constexpr std::uint16_t ClearLength = 4;
        return request.wLength == ClearLength ? "TKVR21_ClearEncryptionInfo"
                                              : "TKVR21_SetEncryptionInfo";
    }
    const auto* const found = std::ranges::find_if(Names, [&](const NamedRequest& named) {
        return named.bmRequestType == request.bmRequestType && named.bRequest == request.bRequest;
    });
    if (found != Names.end()) {
        return found->name;
    }
    static constexpr const char* Digits = "0123456789ABCDEF";
    return std::string("request ") + Digits[request.bRequest >> 4U] +
           Digits[request.bRequest & 0x0FU] + "h";
}

} // namespace zelto::simulator
