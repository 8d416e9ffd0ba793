#pragma once

#include "device/AttachedDrives.h"
#include "settings/SettingsModel.h"
#include "settings/SetupProgress.h"

#include <cstdint>

namespace zelto {

/// Everything that the controller knows beside its windows. It ends with the process: start-up
/// assigns it once, as a whole, and nothing takes a part of it back. What is overwritten earlier
/// says by whom.
struct ControllerState {
    AttachedDrives Drives;
    /// A visit to the settings ends the program, so there is one visit at most. Its passwords and
    /// its key are wiped as soon as a commit has sent them.
    SettingsModel Settings;
    ChangedFlags Changed;
    /// Begun anew by each attempt to set a drive up.
    SetupProgress Setup;
    /// The drive has said during this run that its clock is not valid.
    bool TimeStatusInvalid = false;
    /// Which window the text-change handler serves; see TextInputModes in ui/Forms.h. Set by
    /// every window with text fields when it opens, and by every dialog when it closes.
    std::uint8_t TextInputMode = 0;
    /// Whether the timer fills in the remaining time on the log-in window. Set when that opens.
    bool DisplayRemainingTimeAuthenticateWindow = false;
};

} // namespace zelto
