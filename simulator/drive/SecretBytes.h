#pragma once

#include "digest/Wipe.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace zelto::simulator {

/// Wipes key or password bytes that are no longer needed, and leaves nothing in their place.
template <typename Bytes>
void forgetSecret(std::optional<Bytes>& secret) {
    if (secret) {
        wipe(*secret);
        secret.reset();
    }
}

/// Whether two secrets are equal, in a time that does not depend on where they differ.
[[nodiscard]] inline bool equalSecrets(std::span<const std::uint8_t> left,
                                       std::span<const std::uint8_t> right) {
    if (left.size() != right.size()) {
        return false;
    }
    unsigned difference = 0;
    for (std::size_t index = 0; index < left.size(); ++index) {
        difference |= static_cast<unsigned>(left[index] ^ right[index]);
    }
    return difference == 0;
}

} // namespace zelto::simulator
