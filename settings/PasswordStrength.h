#pragma once

#include <QStringView>

namespace zelto {

/// How hard a first password is to guess for somebody who has the drive. It bars nothing.
enum class PasswordStrength { None, Weak, Fair, Good, Strong };

/// What a number of guesses is worth, given as its binary logarithm. The drive allows any number of
/// tries, and a program may make a thousand a second: a weak password is found within two weeks, a
/// fair one within a lifetime, a good one later than that, a strong one in a hundred thousand
/// years.
[[nodiscard]] PasswordStrength strengthOfGuesses(double bits);

/// None for what cannot be a password. Leaves no copy of it anywhere.
[[nodiscard]] PasswordStrength passwordStrength(QStringView password);

} // namespace zelto
