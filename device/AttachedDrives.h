#pragma once

#include "platform/UsbNotifications.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace zelto {

/// The drives found since the program started, in order of arrival, and the one being worked on.
/// The list only grows: a drive that leaves keeps its entry, and one that comes back gets a new
/// entry at the end. Interfaces stay open until the process ends.
struct AttachedDrives {
    static constexpr std::uint8_t Capacity = 8;

    /// Why a drive that is there could not be opened.
    enum class Access {
        /// Every drive that is attached could be opened.
        Granted,
        /// The system grants nobody access: the device rule is not installed.
        RuleMissing,
        /// Another seat or session holds the access.
        OtherSession,
        /// Another copy of the program has opened the drive.
        InUse,
    };

    std::uint8_t DevCnt = 0;
    std::array<UsbDeviceInterface*, Capacity> UsbIntf{};
    std::array<std::uint16_t, Capacity> FoundPid{};
    /// The drive that every command goes to; null until one is chosen.
    UsbDeviceInterface* CurrentUsbIntf = nullptr;
    /// Where that drive is (UsbDeviceInterface::GetLocationID); 0 while none is chosen.
    [[nodiscard]] std::uint32_t currentLocation() const {
        return CurrentUsbIntf == nullptr ? 0 : CurrentUsbIntf->GetLocationID();
    }
    bool AlwaysUseSelectZeltoWindow = false;

    std::array<std::string, Capacity> UsbSerial{};
    /// Index of the chosen drive in the lists.
    std::uint8_t SelectedZeltoIndex = 0;
    /// The chosen drive was told to reconnect and has not come back yet.
    bool WaitReconnectZelto = false;

    /// A drive that is attached but could not be opened, for want of permission.
    struct Refusal {
        std::unique_ptr<UsbDeviceInterface> device;
        Access reason = Access::Granted;
    };
    std::vector<Refusal> Refused;
    /// The reason that the latest of them gave; Granted when there is none.
    [[nodiscard]] Access refusedAccess() const {
        return Refused.empty() ? Access::Granted : Refused.back().reason;
    }

    /// Every interface ever opened, listed or not.
    std::vector<std::unique_ptr<UsbDeviceInterface>> Opened;
};

} // namespace zelto
