#pragma once

#include <QStringView>

#include <cstdint>

namespace zelto {

namespace PasswordLimits {
/// Characters, each of which takes one byte.
inline constexpr qsizetype LongestPassword = 32;
inline constexpr std::int32_t MostTrials = 99;
} // namespace PasswordLimits

/// True when every character takes one byte in UTF-8, the 8-bit encoding that passwords are
/// digested in: exactly the ASCII characters do. The empty text is.
[[nodiscard]] bool isSingleByteText(QStringView text);

/// 1 to 32 single-byte characters. The log-in window and the password dialogs agree on this.
[[nodiscard]] bool isValidPassword(QStringView password);

/// A valid password, entered the same way twice.
[[nodiscard]] bool isValidPasswordPair(QStringView password, QStringView again);

/// The number of trials that a text means; 0 when it is not a plain number.
[[nodiscard]] std::int32_t trialCount(QStringView text);

/// 1 to 99 trials.
[[nodiscard]] bool isValidTrialCount(QStringView text);

/// What the password dialogs hold for one kind of password.
struct PasswordEntry {
    QStringView password;
    QStringView again;
};

/// The rule of the password settings dialog.
struct PasswordSettingsEntries {
    bool firstAndSecond = false;
    PasswordEntry first = {};
    PasswordEntry second = {};
    QStringView trials = {};
};
[[nodiscard]] bool passwordSettingsAreComplete(const PasswordSettingsEntries& entries);

/// The rule of the password change dialog: the same, and the passwords in force, which the drive
/// will judge. New passwords may equal the current ones.
struct PasswordChangeEntries {
    QStringView currentFirst = {};
    QStringView currentSecond = {};
    PasswordSettingsEntries renewed = {};
};
[[nodiscard]] bool passwordChangeIsComplete(const PasswordChangeEntries& entries);

} // namespace zelto
