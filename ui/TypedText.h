#pragma once

class QKeyEvent;

namespace zelto {

/// Whether a key types text into a line, rather than doing something: as the toolkit's own line
/// decides it.
[[nodiscard]] bool isTypedText(const QKeyEvent& press);

} // namespace zelto
