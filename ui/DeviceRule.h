#pragma once

#include <QString>

namespace zelto {

/// The one command that installs the udev rule, which is linked into the program: an administrator
/// types it into a terminal. It ends with a line break.
[[nodiscard]] QString deviceRuleCommand();

} // namespace zelto
