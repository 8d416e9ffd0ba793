#pragma once

#include <QObject>

#include <memory>

namespace zelto {

/// While one lives, the program's windows take no input: keys, mouse, wheel, touch, shortcuts and
/// closing are swallowed; what a TypeAhead waits for is kept for later. They go on repainting while
/// an event loop runs, and after a moment the pointer shows that work is under way. They nest.
/// Needs a QApplication; without one it does nothing.
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

} // namespace zelto
