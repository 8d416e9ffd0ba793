#pragma once

#include "platform/Result.h"

namespace zelto::linux_platform {

/// What a libusb status (a libusb_error, or a non-negative count of bytes) means to callers.
[[nodiscard]] IOReturn resultOfTransfer(int libusbStatus);

/// Who could open the node, as far as the system says.
enum class AccessRule {
    /// No rule gives the node to the session's user.
    Missing,
    /// A rule does; its user is somebody else, or the permissions are still on their way.
    Present,
};

/// What the errno of a refused open(2) means to callers.
[[nodiscard]] IOReturn resultOfOpen(int error, AccessRule rule);

} // namespace zelto::linux_platform
