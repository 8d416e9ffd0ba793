#include "simulator/usb/ControlFaults.h"

#include <algorithm>
#include <array>
#include <utility>

namespace zelto::simulator {

std::optional<ControlFault> controlFaultNamed(std::string_view name) {
    using Entry = std::pair<std::string_view, ControlFault>;
    static constexpr std::array Names{
        Entry{"stall", ControlFault::Refused},
        Entry{"lost", ControlFault::AnswerLost},
        Entry{"silent", ControlFault::Silent},
        Entry{"silent-after", ControlFault::SilentAfterwards},
        Entry{"short", ControlFault::Short},
        Entry{"vanish", ControlFault::Vanished},
        Entry{"vanish-after", ControlFault::VanishedAfterwards},
    };
    const auto entry = std::ranges::find(Names, name, &Entry::first);
    return entry == Names.end() ? std::nullopt : std::optional(entry->second);
}

void ControlFaults::failRequest(std::uint32_t count, ControlFault fault,
                                std::optional<std::uint8_t> code) {
    m_countdown = count;
    m_fault = fault;
    m_code = code;
}

bool ControlFaults::isCounted(const SetupPacket& setup) const {
    constexpr std::uint8_t ToHost = 0x80;
    return !m_code || (setup.bRequest == *m_code && (setup.bmRequestType & ToHost) == 0);
}

bool ControlFaults::takeVanished() {
    return std::exchange(m_hasVanished, false);
}

std::optional<ControlReply> ControlFaults::request(const SetupPacket& setup,
                                                   std::span<const std::uint8_t> sent) {
    if (m_countdown == 0 || !isCounted(setup) || --m_countdown > 0) {
        return m_firmware(setup, sent);
    }
    return fail(setup, sent);
}

std::optional<ControlReply> ControlFaults::fail(const SetupPacket& setup,
                                                std::span<const std::uint8_t> sent) {
    const bool isObeyed = m_fault != ControlFault::Refused && m_fault != ControlFault::Silent &&
                          m_fault != ControlFault::Vanished;
    std::optional<ControlReply> reply;
    if (isObeyed) {
        reply = m_firmware(setup, sent);
    }
    switch (m_fault) {
    case ControlFault::Refused:
    case ControlFault::AnswerLost:
        return ControlReply{.stalled = true};
    case ControlFault::Short:
        if (reply) {
            reply->data.resize(reply->data.size() / 2);
        }
        return reply;
    case ControlFault::Vanished:
    case ControlFault::VanishedAfterwards:
        m_hasVanished = true;
        break;
    case ControlFault::Silent:
    case ControlFault::SilentAfterwards:
        break;
    }
    return std::nullopt;
}

} // namespace zelto::simulator
