#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string_view>

/// What every target of this folder is: a function of bytes that nobody thought of. It returns when
/// they did no harm, and ends the program when an invariant does not hold.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace zelto::test {

/// Ends the program unless it holds.
inline void require(bool holds, const char* what) {
    if (!holds) {
        (void)std::fprintf(stderr, "not so: %s\n", what);
        std::abort();
    }
}

/// The bytes, taken from the front; zeros once there are no more.
class Input {
public:
    Input(const std::uint8_t* data, std::size_t size) : m_rest(data, size) {}

    [[nodiscard]] bool isEmpty() const { return m_rest.empty(); }
    [[nodiscard]] std::span<const std::uint8_t> rest() const { return m_rest; }
    [[nodiscard]] std::string_view restAsText() const {
        return {reinterpret_cast<const char*>(m_rest.data()), m_rest.size()};
    }

    std::span<const std::uint8_t> takeBytes(std::size_t most) {
        const auto taken = m_rest.first(most < m_rest.size() ? most : m_rest.size());
        m_rest = m_rest.subspan(taken.size());
        return taken;
    }
    std::uint8_t takeByte() {
        const auto taken = takeBytes(1);
        return taken.empty() ? std::uint8_t{0} : taken.front();
    }
    std::uint16_t takeWord() {
        const std::uint8_t high = takeByte();
        return static_cast<std::uint16_t>(high << 8U | takeByte());
    }

private:
    std::span<const std::uint8_t> m_rest;
};

} // namespace zelto::test
