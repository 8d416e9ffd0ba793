#include "simulator/usb/ControlFaults.h"

#include <algorithm>
#include <array>
#include <utility>

namespace zelto::simulator {

std::optional<FaultKind> faultNamed(std::string_view name) {
    using Entry = std::pair<std::string_view, FaultKind>;
    static constexpr std::array Names{
        Entry{"stall", FaultKind::FailsBefore},
        Entry{"lost", FaultKind::FailsAfter},
        Entry{"silent", FaultKind::SilentBefore},
        Entry{"silent-after", FaultKind::SilentAfter},
        Entry{"short", FaultKind::AnswersShort},
        Entry{"vanish", FaultKind::VanishesBefore},
        Entry{"vanish-after", FaultKind::VanishesAfter},
    };
    const auto entry = std::ranges::find(Names, name, &Entry::first);
    return entry == Names.end() ? std::nullopt : std::optional(entry->second);
}

void ControlFaults::failRequest(std::uint32_t count, FaultKind fault,
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
    const bool isObeyed = m_fault != FaultKind::FailsBefore && m_fault != FaultKind::SilentBefore &&
                          m_fault != FaultKind::VanishesBefore;
    std::optional<ControlReply> reply;
    if (isObeyed) {
        reply = m_firmware(setup, sent);
    }
    switch (m_fault) {
    case FaultKind::FailsBefore:
    case FaultKind::FailsAfter:
        return ControlReply{.stalled = true};
    case FaultKind::AnswersShort:
        if (reply) {
            reply->data.resize(reply->data.size() / 2);
        }
        return reply;
    case FaultKind::VanishesBefore:
    case FaultKind::VanishesAfter:
        m_hasVanished = true;
        break;
    case FaultKind::SilentBefore:
    case FaultKind::SilentAfter:
        break;
    }
    return std::nullopt;
}

} // namespace zelto::simulator
