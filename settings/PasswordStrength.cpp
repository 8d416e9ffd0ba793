#include "settings/PasswordStrength.h"

#include "digest/Wipe.h"
#include "settings/PasswordRules.h"

#include <zxcvbn.h>

#include <algorithm>
#include <array>
#include <cstddef>

namespace zelto {
namespace {

constexpr double FairFrom = 30;
constexpr double GoodFrom = 40;
constexpr double StrongFrom = 52;

/// More than the estimator ever takes.
constexpr std::size_t EstimatorsStack = std::size_t{64} * 1024;

/// The estimator leaves pieces of the password on the stack. What it gives back to the heap is
/// overwritten there.
[[gnu::noinline]] void wipeStackOfEstimator() {
    std::array<std::byte, EstimatorsStack> below{};
    wipe(below);
}

} // namespace

PasswordStrength strengthOfGuesses(double bits) {
    if (bits < FairFrom) {
        return PasswordStrength::Weak;
    }
    if (bits < GoodFrom) {
        return PasswordStrength::Fair;
    }
    return bits < StrongFrom ? PasswordStrength::Good : PasswordStrength::Strong;
}

PasswordStrength passwordStrength(QStringView password) {
    if (!isValidPassword(password)) {
        return PasswordStrength::None;
    }
    // What a guesser of this drive's password tries first.
    std::array<const char*, 4> words{"zelto", "kestrin", "disk", nullptr};
    Wiped<std::array<char, PasswordLimits::LongestPassword + 1>> text;
    std::ranges::transform(password, text->begin(),
                           [](QChar character) { return character.toLatin1(); });
    const double bits = ZxcvbnMatch(text->data(), words.data(), nullptr);
    wipeStackOfEstimator();
    return strengthOfGuesses(bits);
}

} // namespace zelto
