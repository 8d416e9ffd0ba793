#pragma once

#include <QString>

#include <type_traits>

namespace zelto {

/// Loads the texts that are linked into the program into the running application, in the language
/// that the desktop's user reads, and turns the windows the way it is read. False when they are
/// damaged; every text is then its own key.
bool installStrings();

/// The same in this language, one of textLanguages(), instead of any that was loaded before. A text
/// that it lacks is English. Windows that exist keep their texts.
bool installStrings(const QString& language);

/// The text of the key. A key without a text is shown as it is.
[[nodiscard]] QString localized(const char* key);

namespace detail {

inline QString argumentText(const QString& text) {
    return text;
}

template <typename Integer>
requires std::is_integral_v<Integer> QString argumentText(Integer number) {
    return QString::number(number);
}

} // namespace detail

/// The text of the key with %1, %2 and so on replaced by QStrings and integers, all at once: an
/// argument that holds "%2" is left as it is.
template <typename First, typename... Others>
[[nodiscard]] QString localized(const char* key, const First& first, const Others&... others) {
    return localized(key).arg(detail::argumentText(first), detail::argumentText(others)...);
}

} // namespace zelto
