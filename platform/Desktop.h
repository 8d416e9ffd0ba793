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

    /// Keeps the computer from going to sleep and from being shut down unasked, as long as the
    /// result lives. `why` is shown to whoever asks what keeps it awake. May block for a fraction
    /// of a second; null when the computer cannot be kept awake.
    [[nodiscard]] virtual Hold keepAwake(const std::string& /*why*/) { return nullptr; }

    /// Begins the session's one program. A copy of it that runs without a window and gives way is
    /// ended first; blocks for a few seconds at most until it has let its drive go. `giveWay` is
    /// called, from the run loop, when this copy gives way to a later one.
    virtual void takePlace(const std::function<void()>& /*giveWay*/) {}
    /// From now on a new start takes this copy's place.
    virtual void giveWayToNewStart() {}

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
