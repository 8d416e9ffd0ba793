#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace zelto {

/// The desktop session around the program. Each of its services is optional: where one is missing
/// nothing is lost but the comfort, and nothing is reported. This one here has none of them.
class Desktop {
public:
    /// Whatever it stands for ends when it goes.
    using Hold = std::shared_ptr<void>;

    Desktop() = default;
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    virtual ~Desktop() = default;

    /// Keeps the computer from sleep and from being shut down unasked, and its user from being
    /// logged out where the desktop can, as long as the result lives. `why` is shown to whoever
    /// asks what keeps it awake. May block for a fraction of a second; null when nothing is kept.
    [[nodiscard]] virtual Hold keepAwake(const std::string& /*why*/) { return nullptr; }

    /// What a later start of the program does to the copy that has the session's place. Called from
    /// the run loop, also inside a wait or an alert.
    struct LaterStart {
        /// The user wants to see this copy: nothing more.
        std::function<void()> comeForward;
        /// The user wants to read the manual.
        std::function<void()> showManual;
        /// This copy has no window, and a new one wants its drive.
        std::function<void()> giveWay;
    };
    /// Makes this copy the session's one program. False when another copy is that already and has
    /// come forward: this one has to end. A copy that gives way is ended first. Blocks for a few
    /// seconds at most, until the other has come forward, or has let its drive go.
    [[nodiscard]] virtual bool takePlace(const LaterStart& /*later*/) { return true; }
    /// From now on a new start takes this copy's place.
    virtual void giveWayToNewStart() {}
    /// Has the session's program come forward, where one runs, for a copy that does not take its
    /// place. Blocks like takePlace.
    virtual void bringOtherForward() {}

    /// What is to be known when the program's windows are gone.
    struct Notice {
        enum class Weight { Passing, Lasting };
        /// A lasting one stays until the user has taken note of it.
        Weight weight = Weight::Passing;
        std::string title;
        std::string text;
    };
    /// Has a notice shown when the program ends.
    virtual void leaveNotice(const Notice& /*notice*/) {}

    /// Shows a file in the program that the user reads such files with; does not wait for it. False
    /// when there is none.
    [[nodiscard]] virtual bool openDocument(const std::filesystem::path& /*file*/) { return false; }

    /// Whether Caps Lock is on; nothing where the desktop does not tell. Does not wait for anybody
    /// but the display server.
    [[nodiscard]] virtual std::optional<bool> isCapsLockOn() const { return {}; }

    /// `mayEnd` is asked when the session is about to end; false asks the desktop to wait.
    virtual void setSessionEndHandler(const std::function<bool()>& /*mayEnd*/) {}
};

} // namespace zelto
