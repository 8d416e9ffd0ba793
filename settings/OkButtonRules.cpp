#include "settings/OkButtonRules.h"

namespace zelto {

bool canCommitAtInitialization(const MainSettingsEntries& entries) {
    const bool passwordsValid = !entries.secureAreaExists || entries.changed.ChangePassword;
    return entries.changed.AreaSettingsPerformed && passwordsValid && isValid(entries.autoClear) &&
           isValid(entries.autoLogOff);
}

bool canCommitAtChanging(const MainSettingsEntries& entries) {
    const ChangedFlags& changed = entries.changed;
    if (changed.AutoClearSettingsChanged && !isValid(entries.autoClear)) {
        return false;
    }
    if (changed.AutoLogOffSettingsChanged && !isValid(entries.autoLogOff)) {
        return false;
    }
    return changed.ChangePassword || changed.AutoClearSettingsChanged ||
           changed.AutoLogOffSettingsChanged || changed.ChangeRemainingTimeSetting;
}

} // namespace zelto
