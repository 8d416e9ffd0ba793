#pragma once

#include "app/AppDelegate.h"
#include "simulator/computer/VirtualComputer.h"

namespace zelto::simulator {

/// The utility running on the virtual computer, from start to end. One at a time.
class UtilityProcess {
public:
    UtilityProcess(VirtualComputer& computer, Alerts& alerts);
    UtilityProcess(const UtilityProcess&) = delete;
    UtilityProcess& operator=(const UtilityProcess&) = delete;
    /// The process ends, whatever it was doing.
    ~UtilityProcess();

    /// Launches it, as the desktop would; returns when its first window is there.
    void start();
    [[nodiscard]] AppDelegate& delegate() { return *m_delegate; }
    /// It has asked for its own end.
    [[nodiscard]] bool hasQuit() const { return m_computer.application.isStopped(); }

private:
    VirtualComputer& m_computer;
    std::unique_ptr<AppDelegate> m_delegate;
};

} // namespace zelto::simulator
