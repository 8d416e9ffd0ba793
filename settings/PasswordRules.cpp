#include "settings/PasswordRules.h"

#include "settings/IntegerValue.h"
#include "settings/NumericCheck.h"

#include <algorithm>

namespace zelto {

bool isSingleByteText(QStringView text) {
    return std::ranges::all_of(text, [](QChar unit) { return unit.unicode() < 0x80; });
}

bool isValidPassword(QStringView password) {
    return !password.isEmpty() && password.size() <= PasswordLimits::LongestPassword &&
           isSingleByteText(password);
}

bool isValidPasswordPair(QStringView password, QStringView again) {
    return isValidPassword(password) && password == again;
}

std::int32_t trialCount(QStringView text) {
    return NumericCheck(text) && isSingleByteText(text) ? integerValue32(text) : 0;
}

bool isValidTrialCount(QStringView text) {
    const std::int32_t count = trialCount(text);
    return count >= 1 && count <= PasswordLimits::MostTrials;
}

bool passwordSettingsAreComplete(const PasswordSettingsEntries& entries) {
    if (!isValidPasswordPair(entries.first.password, entries.first.again)) {
        return false;
    }
    return !entries.firstAndSecond ||
           (isValidPasswordPair(entries.second.password, entries.second.again) &&
            isValidTrialCount(entries.trials));
}

bool passwordChangeIsComplete(const PasswordChangeEntries& entries) {
    return isValidPassword(entries.currentFirst) &&
           (!entries.renewed.firstAndSecond || isValidPassword(entries.currentSecond)) &&
           passwordSettingsAreComplete(entries.renewed);
}

} // namespace zelto
