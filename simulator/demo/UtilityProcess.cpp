#include "simulator/demo/UtilityProcess.h"

namespace zelto::simulator {

UtilityProcess::UtilityProcess(VirtualComputer& computer, Alerts& alerts)
    : m_computer(computer), m_delegate(std::make_unique<AppDelegate>(computer.platform(alerts))) {}

UtilityProcess::~UtilityProcess() {
    // The loop goes first: what waits in it points into the controller.
    m_computer.endProcess();
    m_delegate.reset();
}

void UtilityProcess::start() {
    m_delegate->applicationWillFinishLaunching();
    m_delegate->applicationDidFinishLaunching();
    m_computer.settle();
}

} // namespace zelto::simulator
