#pragma once

#include "settings/SettingsModel.h"

namespace zelto {

/// What a tick finds while a set-up is under way.
struct SetupObservation {
    /// The drive was told to reconnect and has not come back.
    bool driveStillAway = false;
    /// The system lists a volume on the tool area. Asked for only in WaitingForToolVolume.
    bool toolVolumeSeen = false;
};

/// What a tick has to do about it.
enum class SetupEvent {
    None,
    /// The wait has run out: the drive, or its volume, is not found.
    NotFound,
    /// Format the tool area's volume and copy the program onto it.
    FormatAndCopy,
};

struct SetupStep {
    SetupProgress progress;
    SetupEvent event = SetupEvent::None;
};

/// One tick of first-time set-up. The result is final before its event is acted upon, so that a
/// format that fails or takes minutes is never begun twice.
[[nodiscard]] SetupStep advanceSetup(const SetupProgress& progress,
                                     const SetupObservation& observation);

/// Whether the blinking progress text is visible at this tick: on odd counts. It stands still
/// while the count does.
[[nodiscard]] bool showsProgressText(const SetupProgress& progress);

} // namespace zelto
