#pragma once

#include "simulator/drive/DriveModel.h"

#include <optional>
#include <span>
#include <string>

namespace zelto::simulator {

/// One vendor request and its answer as a line of text without its end: the request's code and
/// name, what it carried, and how it ended. Nothing as `reply`: no answer was given.
///
/// Password digests and keys never appear, nor does anything of a request that is not known or of
/// another length than it should have: such bytes may well be a digest gone astray.
[[nodiscard]] std::string describeRequest(const SetupPacket& setup,
                                          std::span<const std::uint8_t> sent,
                                          const std::optional<ControlReply>& reply);

} // namespace zelto::simulator
