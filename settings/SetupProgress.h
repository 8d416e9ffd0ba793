#pragma once

#include <cstdint>

namespace zelto {

/// First-time set-up after its commit, advanced by the timer.
struct SetupProgress {
    enum State : std::uint8_t {
        NoSetup = 0,
        WaitingForReconnect = 1,
        WaitingForToolVolume = 2,
        FormatAndCopyDue = 3,
        /// Successfully or not.
        Finished = 4,
    };
    /// Ticks that each of the two waits allows.
    static constexpr std::int32_t WaitTicks = 60;

    std::uint8_t InitialSettingState = NoSetup;
    /// Ticks left to wait; its parity drives the blinking.
    std::int32_t WaitCount = 0;
    /// 1-based number of the tool area in the table that was sent.
    std::uint8_t ReservedAreaDiskNumber = 0;

    [[nodiscard]] bool isUnderWay() const {
        return InitialSettingState != NoSetup && InitialSettingState != Finished;
    }
};

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

/// One tick of first-time set-up. Whoever acts upon FormatAndCopy keeps the new progress first, so
/// that a format that fails or takes minutes is never begun twice. Upon NotFound it is kept last:
/// until the message has been read the set-up counts as under way, and the program stays.
[[nodiscard]] SetupStep advanceSetup(const SetupProgress& progress,
                                     const SetupObservation& observation);

/// Whether the blinking progress text is visible at this tick: on odd counts. It stands still
/// while the count does.
[[nodiscard]] bool showsProgressText(const SetupProgress& progress);

/// What the set-up window shows. Finish may be pressed once all has been done.
struct SetupView {
    enum class Text : std::uint8_t { Blank, NowSetting, Complete };
    enum class Outcome : std::uint8_t { UnderWay, Failed, Done };

    Text text = Text::NowSetting;
    /// A SetupProgress::State; of a set-up that failed, the one it failed in.
    std::uint8_t step = SetupProgress::WaitingForReconnect;
    Outcome outcome = Outcome::UnderWay;

    friend bool operator==(const SetupView&, const SetupView&) = default;
};

/// While a tick found the set-up in `before` and left it in `after`.
[[nodiscard]] SetupView setupUnderWay(const SetupProgress& before, const SetupProgress& after);
/// The step that a tick found the set-up in could not be completed.
[[nodiscard]] SetupView setupFailed(const SetupProgress& before);
[[nodiscard]] SetupView setupDone();

} // namespace zelto
