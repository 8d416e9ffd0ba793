#pragma once

#include "simulator/usb/FaultKind.h"
#include "simulator/usb/UsbTransfer.h"

#include <string_view>

namespace zelto::simulator {

/// The words for them: "stall" and "lost" (fails before and after the effect), "silent",
/// "silent-after", "short" (half an answer), "vanish", "vanish-after".
[[nodiscard]] std::optional<FaultKind> faultNamed(std::string_view name);

/// Stands before the firmware and makes one coming vendor request fail.
class ControlFaults {
public:
    explicit ControlFaults(VendorControl firmware) : m_firmware(std::move(firmware)) {}

    /// The `count`-th vendor request from now on (1: the next one) fails; with `code`, the
    /// `count`-th towards the drive with that bRequest. One fault at a time: this replaces one that
    /// is still to come. 0 takes it back.
    void failRequest(std::uint32_t count, FaultKind fault,
                     std::optional<std::uint8_t> code = std::nullopt);
    /// True once after the drive vanished.
    [[nodiscard]] bool takeVanished();

    [[nodiscard]] std::optional<ControlReply> request(const SetupPacket& setup,
                                                      std::span<const std::uint8_t> sent);

private:
    [[nodiscard]] bool isCounted(const SetupPacket& setup) const;
    [[nodiscard]] std::optional<ControlReply> fail(const SetupPacket& setup,
                                                   std::span<const std::uint8_t> sent);

    VendorControl m_firmware;
    std::uint32_t m_countdown = 0;
    FaultKind m_fault = FaultKind::FailsBefore;
    std::optional<std::uint8_t> m_code;
    bool m_hasVanished = false;
};

} // namespace zelto::simulator
