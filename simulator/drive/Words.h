#pragma once

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>
#include <vector>

/// Lines of text taken apart.
namespace zelto::simulator {

/// The number that a whole word is; nothing when it is none, or does not fit.
template <typename Integer>
[[nodiscard]] std::optional<Integer> numberIn(std::string_view word, int base = 10) {
    Integer value = 0;
    const char* const end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, value, base);
    return error == std::errc{} && stop == end ? std::optional(value) : std::nullopt;
}

/// The pieces of a line between single blanks.
[[nodiscard]] inline std::vector<std::string_view> wordsOf(std::string_view line) {
    std::vector<std::string_view> words;
    for (std::size_t start = 0; start <= line.size();) {
        const std::size_t end = std::min(line.find(' ', start), line.size());
        words.push_back(line.substr(start, end - start));
        start = end + 1;
    }
    return words;
}

} // namespace zelto::simulator
