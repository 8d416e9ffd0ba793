#include "settings/MainSettingsView.h"

namespace zelto {

SecurityOccasion occasionAtOpening(bool hasSecureArea, SecurityState state) {
    return hasSecureArea && state != SecurityState::StateFullLock
               ? SecurityOccasion::SecureDriveOpened
               : SecurityOccasion::NothingToSecure;
}

SecurityOccasion occasionAfterAreaDialog(const SecureAreas& secure, SecurityState state) {
    if (!secure.now || state == SecurityState::StateFullLock) {
        return SecurityOccasion::NothingToSecure;
    }
    return secure.onDrive || secure.before ? SecurityOccasion::SecureAreaKept
                                           : SecurityOccasion::FirstSecureAreaLaidOut;
}

SecurityView withoutDrive(SecurityView shown) {
    shown.keyErasureEnabled = false;
    shown.remainingTimeEnabled = false;
    shown.showsRemainingTime = false;
    return shown;
}

SecurityView switchedOff(const SecurityView& shown) {
    return {.keyOrigin = shown.keyOrigin,
            .keyErasureEnabled = shown.keyErasureEnabled,
            .remainingTimeEnabled = shown.remainingTimeEnabled,
            .showsRemainingTime = shown.showsRemainingTime};
}

SecurityView offeredForFirstSecureArea(SecurityView shown) {
    shown.passwordsEnabled = true;
    shown.keyOriginEnabled = true;
    shown.keyOrigin = KeyOrigin::Automatic;
    shown.keyEntryEnabled = false;
    shown.autoClearEnabled = true;
    shown.autoClear.enabled = false;
    shown.autoLogOffEnabled = true;
    shown.autoLogOff.enabled = false;
    return shown;
}

SecurityView ofSecureDrive(SecurityView shown, const DeviceStatus& status) {
    shown.passwordsEnabled = true;
    shown.keyOriginEnabled = false;
    shown.keyEntryEnabled = false;
    shown.keyOrigin = status.hasAutomaticKey() ? KeyOrigin::Automatic : KeyOrigin::Manual;
    shown.keyErasureEnabled = true;
    return shown;
}

SecurityView withRemainingTime(SecurityView shown, bool showsRemainingTime) {
    shown.remainingTimeEnabled = true;
    shown.showsRemainingTime = showsRemainingTime;
    return shown;
}

SecurityView withPeriods(SecurityView shown, const TimeStatus& time) {
    shown.autoClearEnabled = true;
    shown.autoClear.enabled = time.autoClearPeriod != 0;
    if (shown.autoClear.enabled) {
        shown.autoClear = shownAutoClear(time.autoClearPeriod);
    }
    shown.autoLogOffEnabled = true;
    shown.autoLogOff.enabled = time.idleLockPeriod != 0;
    if (shown.autoLogOff.enabled) {
        shown.autoLogOff = shownAutoLogOff(time.idleLockPeriod);
    }
    return shown;
}

SecurityView withAutoClear(SecurityView shown, bool on) {
    shown.autoClear = {.enabled = on};
    return shown;
}

SecurityView withAutoLogOff(SecurityView shown, bool on) {
    shown.autoLogOff.enabled = on;
    if (!on) {
        shown.autoLogOff.text.clear();
    }
    return shown;
}

} // namespace zelto
