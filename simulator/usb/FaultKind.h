#pragma once

#include <cstdint>

namespace zelto::simulator {

/// How a transfer to a device goes wrong on purpose.
enum class FaultKind : std::uint8_t {
    /// It fails; the device never saw it.
    FailsBefore,
    /// The device obeyed, the answer was lost.
    FailsAfter,
    /// No answer until the host gives up; the device never saw it.
    SilentBefore,
    /// The same, but the device obeyed.
    SilentAfter,
    /// The device answers fewer bytes than it has. Towards the device: nothing goes wrong.
    AnswersShort,
    /// The device is gone before it sees the transfer.
    VanishesBefore,
    /// The device obeys and is gone before it answers.
    VanishesAfter,
};

} // namespace zelto::simulator
