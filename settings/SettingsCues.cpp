#include "settings/SettingsCues.h"

namespace zelto {
namespace {

const char* areasCue(const SettingsSituation& situation) {
    if (!situation.isInitial || !situation.areasWereLaidOut) {
        return nullptr;
    }
    if (situation.areasWereSent) {
        return "IDS_HINT_SETUP_RETRY";
    }
    return situation.secureAreaExists ? nullptr : "IDS_HINT_SETUP_OPEN";
}

/// A drive's period that is shorter than the unit it is shown in.
bool showsZero(bool enabled, const QString& text) {
    return enabled && text == u'0';
}

} // namespace

SettingsCues settingsCues(const SettingsSituation& situation) {
    const bool zeroShown = showsZero(situation.autoClear.enabled, situation.autoClear.text) ||
                           showsZero(situation.autoLogOff.enabled, situation.autoLogOff.text);
    return {.areas = areasCue(situation),
            .clock = situation.clockIsNotValid ? "IDS_HINT_SET_CLOCK_CLOSES" : nullptr,
            .periods = zeroShown ? "IDS_HINT_PERIOD_ZERO" : nullptr,
            .commit = situation.isInitial ? "IDS_HINT_SETUP_ERASES" : "IDS_HINT_CLOSES"};
}

} // namespace zelto
