#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace zelto {

class Computer;

/// The file of a page of the manual, "logging-in" say, or its "index". It comes with the bundle,
/// with an installation without one, and beside a program that has just been built; nothing where
/// it is in none of these places.
[[nodiscard]] std::optional<std::filesystem::path> manualPage(const Computer& computer,
                                                              const std::string& page);

} // namespace zelto
