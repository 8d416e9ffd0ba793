#include "simulator/computer/EventLog.h"

#include "device/VendorRequest.h"
#include "simulator/drive/DriveNames.h"

#include <algorithm>

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

std::string commandName(const IOUSBDevRequest& request) {
    constexpr std::uint16_t ClearLength = 4;
    const bool isClear = request.bmRequestType == VendorRequest::ToDevice &&
                         request.bRequest == VendorRequest::ClearEncryptionInfo &&
                         request.wLength == ClearLength;
    if (isClear) {
        return "TKVR21_ClearEncryptionInfo";
    }
    const std::string_view command = commandOf(request.bmRequestType, request.bRequest);
    if (!command.empty()) {
        return std::string(command);
    }
    static constexpr const char* Digits = "0123456789ABCDEF";
    return std::string("request ") + Digits[request.bRequest >> 4U] +
           Digits[request.bRequest & 0x0FU] + "h";
}

} // namespace zelto::simulator
