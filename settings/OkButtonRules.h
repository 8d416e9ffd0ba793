#pragma once

#include "settings/Periods.h"
#include "settings/SettingsModel.h"

namespace zelto {

/// What the main settings window's OK button depends on.
struct MainSettingsEntries {
    bool secureAreaExists = false;
    ChangedFlags changed = {};
    AutoClearEntry autoClear = {};
    AutoLogOffEntry autoLogOff = {};
};

/// First-time set-up: the areas were laid out, passwords were given when there is a secure area,
/// and both periods are valid.
[[nodiscard]] bool canCommitAtInitialization(const MainSettingsEntries& entries);

/// Changing settings: something was touched, and no touched period is invalid. A period that was
/// not touched is not judged.
[[nodiscard]] bool canCommitAtChanging(const MainSettingsEntries& entries);

} // namespace zelto
