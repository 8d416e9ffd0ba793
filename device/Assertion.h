#pragma once

namespace zelto {

/// Ends the process with an assertion, where it cannot continue because the program or the
/// system's registry is broken. Prints the text, which names what did not hold, to the standard
/// error stream. Never used for what a drive or a person sends.
[[noreturn]] void failAssertion(const char* text) noexcept;

} // namespace zelto
