#pragma once

#include <QString>

namespace zelto {

/// The program's version: "1.0.0", say.
[[nodiscard]] QString productVersion();

} // namespace zelto
