#pragma once

#include <QObject>

#include <functional>
#include <memory>

namespace zelto {

/// While one lives, the program's windows take no input: keys, mouse, wheel, touch, shortcuts and
/// closing are swallowed. They go on repainting as long as somebody runs the event loop, and after
/// a moment the pointer shows that work is under way. They nest. Needs a QApplication; without
/// one it does nothing.
class BusyWindows {
public:
    BusyWindows();
    ~BusyWindows();
    BusyWindows(const BusyWindows&) = delete;
    BusyWindows& operator=(const BusyWindows&) = delete;

private:
    class Filter;

    std::unique_ptr<Filter> m_filter;
};

/// Asks `done` again and again until it says yes, at most `pollMilliseconds` apart, and keeps the
/// windows repainting, deaf, meanwhile. Blocks for as long as that takes. Timers and sockets of
/// the program run in between, so whoever calls this holds their events back.
void runKeepingWindowsAlive(const std::function<bool()>& done, int pollMilliseconds = 20);

} // namespace zelto
