#include "tests/ui/AllForms.h"
#include "tests/ui/FilledForms.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QEventLoop>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace zelto::test {
namespace {

class Idle : public ::testing::TestWithParam<FormUnderTest> {};

bool wakesTheProcessor(const QWidget& window) {
    auto* const dispatcher = QAbstractEventDispatcher::instance();
    const auto hasTimer = [dispatcher](const QObject* part) {
        return !dispatcher->registeredTimers(const_cast<QObject*>(part)).isEmpty();
    };
    const auto parts = window.findChildren<QObject*>();
    return hasTimer(&window) || std::ranges::any_of(parts, hasTimer);
}

// The clocks are brought up to date by the controller's tick, so a window that nobody touches
// leaves the processor asleep. Whether a caret blinks is the desktop's to say.
TEST_P(Idle, LetsTheProcessorSleep) {
    QApplication::setCursorFlashTime(0);
    const auto window = GetParam().create();
    fill(*window);
    window->show();
    QApplication::processEvents();
    // What a view puts off for a moment ends by itself; what repeats itself runs into the test's
    // time limit.
    while (wakesTheProcessor(*window)) {
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

INSTANTIATE_TEST_SUITE_P(Windows, Idle, ::testing::ValuesIn(allForms()),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace zelto::test
