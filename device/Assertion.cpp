#include "device/Assertion.h"

#include <cstdio>
#include <cstdlib>

namespace zelto {

void failAssertion(const char* text) noexcept {
    static_cast<void>(std::fprintf(stderr, "Assertion failed: %s\n", text));
    std::abort();
}

} // namespace zelto
