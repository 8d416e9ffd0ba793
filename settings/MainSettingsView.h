#pragma once

#include "device/DeviceStatus.h"
#include "device/TimeStatus.h"
#include "settings/Periods.h"

#include <cstdint>

namespace zelto {

/// Who makes the drive's key; the values are the radio cells' tags.
enum class KeyOrigin : int { Automatic = 0, Manual = 1 };

/// Every tag but 0 means a key entered by hand.
[[nodiscard]] constexpr KeyOrigin keyOriginOfTag(int tag) {
    return tag == 0 ? KeyOrigin::Automatic : KeyOrigin::Manual;
}

/// The main settings window's security controls: which of them the user may use, and what they
/// hold. A period's unit and number may be changed exactly while its check box is on.
struct SecurityView {
    bool passwordsEnabled = false;
    bool keyOriginEnabled = false;
    KeyOrigin keyOrigin = KeyOrigin::Automatic;
    bool keyEntryEnabled = false;
    bool keyErasureEnabled = false;
    bool autoClearEnabled = false;
    AutoClearEntry autoClear = {};
    bool autoLogOffEnabled = false;
    AutoLogOffEntry autoLogOff = {};
    bool remainingTimeEnabled = false;
    bool showsRemainingTime = false;

    friend bool operator==(const SecurityView&, const SecurityView&) = default;
};

/// What the window is about when its areas are shown.
enum class SecurityOccasion : std::uint8_t {
    /// No secure area, or a drive that has locked itself for good.
    NothingToSecure,
    /// The window opens on a drive that has a secure area.
    SecureDriveOpened,
    /// The area dialog has given a new drive its first secure area.
    FirstSecureAreaLaidOut,
    /// The area dialog was confirmed with a secure area that had been there before.
    SecureAreaKept,
};

/// What is known of secure areas when the area dialog was confirmed.
struct SecureAreas {
    bool onDrive = false;
    bool before = false;
    bool now = false;
};

[[nodiscard]] SecurityOccasion occasionAtOpening(bool hasSecureArea, SecurityState state);
[[nodiscard]] SecurityOccasion occasionAfterAreaDialog(const SecureAreas& secure,
                                                       SecurityState state);

// Each of these takes the controls as they are shown and gives them as they are shown next.

/// Before the drive has been read.
[[nodiscard]] SecurityView withoutDrive(SecurityView shown);
/// Nothing to secure: all is off and empty. What was chosen for the log-in window stays.
[[nodiscard]] SecurityView switchedOff(const SecurityView& shown);
/// A secure area has just been laid out: everything is offered, nothing is on.
[[nodiscard]] SecurityView offeredForFirstSecureArea(SecurityView shown);
/// A drive that was set up. Its key is erased or replaced as a whole, never changed.
[[nodiscard]] SecurityView ofSecureDrive(SecurityView shown, const DeviceStatus& status);
/// The choice for the log-in window, which the user may change from here on.
[[nodiscard]] SecurityView withRemainingTime(SecurityView shown, bool showsRemainingTime);
/// The periods that the drive reports. Of a period that is off, the number shown stays.
[[nodiscard]] SecurityView withPeriods(SecurityView shown, const TimeStatus& time);
/// The user has switched auto clear: it begins anew with no number of days.
[[nodiscard]] SecurityView withAutoClear(SecurityView shown, bool on);
/// The user has switched auto log-off: off has no number of minutes.
[[nodiscard]] SecurityView withAutoLogOff(SecurityView shown, bool on);

} // namespace zelto
