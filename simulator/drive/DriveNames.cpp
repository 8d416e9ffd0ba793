#include "simulator/drive/DriveNames.h"

#include "device/VendorRequest.h"

#include <algorithm>
#include <array>

namespace zelto::simulator {

std::string_view commandOf(std::uint8_t bmRequestType, std::uint8_t bRequest) {
    namespace Is = VendorRequest;
    struct Row {
        std::uint8_t bmRequestType;
        std::uint8_t bRequest;
        std::string_view command;
    };
    static constexpr std::array Rows{
        Row{Is::ToDevice, Is::SetEncryptionInfo, "TKVR21_SetEncryptionInfo"},
        Row{Is::ToDevice, Is::SetAuthInfo, "TKVR21_SetAuthInfo"},
        Row{Is::ToDevice, Is::Authenticate, "TKVR21_Authenticate"},
        Row{Is::ToDevice, Is::Logout, "TKVR21_Logout"},
        Row{Is::ToHost, Is::ReadHintData, "TKVR21_ZELTO_ReadHintData"},
        Row{Is::ToDevice, Is::WriteHintData, "TKVR21_ZELTO_WriteHintData"},
        Row{Is::ToHost, Is::GetTimeStatus, "TKVR21_ZELTO_GetTimeStatus"},
        Row{Is::ToDevice, Is::SetCurrentTime, "TKVR21_ZELTO_SetCurrentTime"},
        Row{Is::ToDevice, Is::SetErasePeriod, "TKVR21_ZELTO_SetErasePeriod"},
        Row{Is::ToDevice, Is::SetIdleLockPeriod, "TKVR21_ZELTO_SetIdleLockPeriod"},
        Row{Is::ToHost, Is::GetDeviceStatus, "TKVR21_GetDeviceStatus"},
        Row{Is::ToDevice, Is::Reconnect, "TKVR21_Reconnect"},
        Row{Is::ToHost, Is::GetAreaInfos, "TKVR21_GetAreaInfos"},
        Row{Is::ToDevice, Is::SetAreaInfos, "TKVR21_SetAreaInfos"},
        Row{Is::ToDevice, Is::ResetAreaInfos, "TKVR21_ResetAreaInfos"},
    };
    const auto* const row = std::ranges::find_if(Rows, [&](const Row& known) {
        return known.bmRequestType == bmRequestType && known.bRequest == bRequest;
    });
    return row == Rows.end() ? std::string_view() : row->command;
}

std::string_view nameOf(SecurityState state) {
    static constexpr std::array<std::string_view, 6> Names{
        "StateNoPassword",      "StateIdle",      "StateLocked",
        "StatePasswordPending", "StateUnlocking", "StateFullLock"};
    return Names.at(static_cast<std::size_t>(state));
}

} // namespace zelto::simulator
