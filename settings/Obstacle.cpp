#include "settings/Obstacle.h"

#include "settings/KeyDigits.h"
#include "settings/NumericCheck.h"

#include <algorithm>

namespace zelto {
namespace {

Obstacle periodObstacle(const AutoClearEntry& autoClear, const AutoLogOffEntry& autoLogOff) {
    if (!isValid(autoClear)) {
        return {autoClear.unit == PeriodUnit::Days ? "IDS_HINT_AUTO_CLEAR_DAYS"
                                                   : "IDS_HINT_AUTO_CLEAR_MINUTES"};
    }
    return {isValid(autoLogOff) ? nullptr : "IDS_HINT_AUTO_LOG_OFF_MINUTES"};
}

/// What is wrong with a password by itself; `missingKey` asks for one that is not there yet.
Obstacle passwordObstacle(QStringView password, const char* missingKey) {
    if (password.isEmpty()) {
        return {missingKey};
    }
    if (!isSingleByteText(password)) {
        return {"IDS_HINT_PASSWORD_SIGNS"};
    }
    return {isValidPassword(password) ? nullptr : "IDS_HINT_PASSWORD_TOO_LONG"};
}

Obstacle pairObstacle(const PasswordEntry& entry, const char* missingKey, const char* againKey,
                      const char* differKey) {
    if (const Obstacle wrong = passwordObstacle(entry.password, missingKey); wrong.key != nullptr) {
        return wrong;
    }
    if (entry.again.isEmpty()) {
        return {againKey};
    }
    return {entry.password == entry.again ? nullptr : differKey};
}

} // namespace

Obstacle obstacleAtInitialization(const MainSettingsEntries& entries) {
    if (!entries.changed.AreaSettingsPerformed) {
        return {"IDS_HINT_NEXT_AREAS"};
    }
    if (entries.secureAreaExists && !entries.changed.ChangePassword) {
        return {"IDS_HINT_NEXT_PASSWORDS"};
    }
    return periodObstacle(entries.autoClear, entries.autoLogOff);
}

Obstacle obstacleAtChanging(const MainSettingsEntries& entries) {
    const ChangedFlags& changed = entries.changed;
    // A period that was not touched is not judged.
    const Obstacle wrong =
        periodObstacle(changed.AutoClearSettingsChanged ? entries.autoClear : AutoClearEntry{},
                       changed.AutoLogOffSettingsChanged ? entries.autoLogOff : AutoLogOffEntry{});
    if (wrong.key != nullptr) {
        return wrong;
    }
    return {canCommitAtChanging(entries) ? nullptr : "IDS_HINT_NOTHING_CHANGED"};
}

Obstacle areaObstacle(const std::array<QString, 3>& texts, const AreaDialogVerdict& verdict) {
    if (!std::ranges::all_of(texts, [](const QString& text) { return NumericCheck(text); })) {
        return {"IDS_HINT_AREA_DIGITS"};
    }
    if (verdict.mebibytes[0] == 0) {
        return {"IDS_HINT_AREA_DISK1"};
    }
    return {verdict.leftMebibytes < 0 ? "IDS_CAPACITY_OVER" : nullptr};
}

Obstacle passwordSettingsObstacle(const PasswordSettingsEntries& entries) {
    const Obstacle first = pairObstacle(entries.first, "IDS_HINT_FIRST_MISSING",
                                        "IDS_HINT_FIRST_AGAIN", "IDS_HINT_FIRST_DIFFERS");
    if (first.key != nullptr || !entries.firstAndSecond) {
        return first;
    }
    const Obstacle second = pairObstacle(entries.second, "IDS_HINT_SECOND_MISSING",
                                         "IDS_HINT_SECOND_AGAIN", "IDS_HINT_SECOND_DIFFERS");
    if (second.key != nullptr) {
        return second;
    }
    return {isValidTrialCount(entries.trials) ? nullptr : "IDS_HINT_TRIALS"};
}

Obstacle passwordChangeObstacle(const PasswordChangeEntries& entries) {
    if (const Obstacle first =
            passwordObstacle(entries.currentFirst, "IDS_HINT_CURRENT_FIRST_MISSING");
        first.key != nullptr) {
        return first;
    }
    if (entries.renewed.firstAndSecond) {
        if (const Obstacle second =
                passwordObstacle(entries.currentSecond, "IDS_HINT_CURRENT_SECOND_MISSING");
            second.key != nullptr) {
            return second;
        }
    }
    return passwordSettingsObstacle(entries.renewed);
}

Obstacle logInObstacle(QStringView password) {
    return passwordObstacle(password, nullptr);
}

Obstacle keyObstacle(QStringView text) {
    if (text.isEmpty()) {
        return {"IDS_HINT_KEY_MISSING"};
    }
    if (!NumericCheck(text, HexDigits::Allowed)) {
        return {"IDS_HINT_KEY_DIGITS"};
    }
    if (isValidKeyText(text)) {
        return {};
    }
    return text.size() % 2 == 0 ? Obstacle{"IDS_HINT_KEY_TOO_LONG", text.size()}
                                : Obstacle{"IDS_HINT_KEY_ODD"};
}

} // namespace zelto
