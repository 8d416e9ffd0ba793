#pragma once

#include "app/AppDelegate.h"
#include "simulator/computer/VirtualComputer.h"

namespace zelto::simulator {

/// The utility running on the virtual computer, from start to end. One at a time.
class UtilityProcess {
public:
    UtilityProcess(VirtualComputer& computer, Alerts& alerts)
        : m_computer(computer), m_delegate(computer.platform(alerts)) {}
    UtilityProcess(const UtilityProcess&) = delete;
    UtilityProcess& operator=(const UtilityProcess&) = delete;
    /// The process ends, whatever it was doing. The loop goes before the controller: what waits in
    /// it points there.
    ~UtilityProcess() { m_computer.endProcess(); }

    /// Launches it, as the desktop would; returns when its first window is there.
    void start() {
        m_delegate.applicationWillFinishLaunching();
        m_delegate.applicationDidFinishLaunching();
        m_computer.settle();
    }
    [[nodiscard]] AppDelegate& delegate() { return m_delegate; }
    /// It has asked for its own end.
    [[nodiscard]] bool hasQuit() const { return m_computer.application.isStopped(); }

private:
    VirtualComputer& m_computer;
    AppDelegate m_delegate;
};

} // namespace zelto::simulator
