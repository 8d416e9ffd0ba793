#pragma once

#include "simulator/drive/DriveModel.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string_view>

namespace zelto::simulator {

/// How a vendor request goes wrong on purpose.
enum class ControlFault : std::uint8_t {
    /// Stalled; the drive never saw it.
    Refused,
    /// Stalled, but the drive obeyed: the answer was lost.
    AnswerLost,
    /// No answer until the host gives up; the drive never saw it.
    Silent,
    /// The same, but the drive obeyed.
    SilentAfterwards,
    /// Obeyed, and half of the answer.
    Short,
    /// The drive leaves the bus before it sees the request.
    Vanished,
    /// It obeys and leaves the bus before it answers.
    VanishedAfterwards,
};

/// The words for them: "stall", "lost", "silent", "silent-after", "short", "vanish",
/// "vanish-after".
[[nodiscard]] std::optional<ControlFault> controlFaultNamed(std::string_view name);

/// Stands before the firmware and makes one coming vendor request fail.
class ControlFaults {
public:
    using Firmware = std::function<std::optional<ControlReply>(const SetupPacket&,
                                                               std::span<const std::uint8_t>)>;

    explicit ControlFaults(Firmware firmware) : m_firmware(std::move(firmware)) {}

    /// The `count`-th vendor request from now on (1: the next one) fails; with `code`, the
    /// `count`-th towards the drive with that bRequest. One fault at a time: this replaces one that
    /// is still to come. 0 takes it back.
    void failRequest(std::uint32_t count, ControlFault fault,
                     std::optional<std::uint8_t> code = std::nullopt);
    /// True once after the drive vanished.
    [[nodiscard]] bool takeVanished();

    [[nodiscard]] std::optional<ControlReply> request(const SetupPacket& setup,
                                                      std::span<const std::uint8_t> sent);

private:
    [[nodiscard]] bool isCounted(const SetupPacket& setup) const;
    [[nodiscard]] std::optional<ControlReply> fail(const SetupPacket& setup,
                                                   std::span<const std::uint8_t> sent);

    Firmware m_firmware;
    std::uint32_t m_countdown = 0;
    ControlFault m_fault = ControlFault::Refused;
    std::optional<std::uint8_t> m_code;
    bool m_hasVanished = false;
};

} // namespace zelto::simulator
