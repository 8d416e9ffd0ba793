#pragma once

#include "settings/Periods.h"

namespace zelto {

/// What the main settings window's cues depend on.
struct SettingsSituation {
    /// First-time set-up.
    bool isInitial = false;
    bool areasWereLaidOut = false;
    bool secureAreaExists = false;
    /// These very areas were sent before, by a set-up that failed.
    bool areasWereSent = false;
    bool clockIsNotValid = false;
    AutoClearEntry autoClear = {};
    AutoLogOffEntry autoLogOff = {};
};

/// Keys of what is said beforehand, beside the control, where a control does more than its name
/// says; null: nothing.
struct SettingsCues {
    const char* areas = nullptr;
    const char* clock = nullptr;
    const char* periods = nullptr;
    const char* commit = nullptr;
};

[[nodiscard]] SettingsCues settingsCues(const SettingsSituation& situation);

} // namespace zelto
