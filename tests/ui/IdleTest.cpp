#include "tests/ui/AllForms.h"
#include "tests/ui/FilledForms.h"

#include <QAbstractEventDispatcher>
#include <QApplication>

#include <gtest/gtest.h>

#include <string>

namespace zelto::test {
namespace {

class Idle : public ::testing::TestWithParam<FormUnderTest> {};

bool hasTimer(const QObject* object) {
    auto* dispatcher = QAbstractEventDispatcher::instance();
    return !dispatcher->registeredTimers(const_cast<QObject*>(object)).isEmpty();
}

// The clocks are brought up to date by the controller's tick, so a window that nobody touches
// leaves the processor asleep. Whether a caret blinks is the desktop's to say.
TEST_P(Idle, KeepsNoTimerRunning) {
    QApplication::setCursorFlashTime(0);
    const auto window = GetParam().create();
    fill(*window);
    window->show();
    // What a view puts off until it is idle, it does in the next rounds.
    for (int round = 0; round < 5; ++round) {
        QApplication::processEvents();
    }
    const auto parts = window->findChildren<QObject*>();
    EXPECT_FALSE(hasTimer(window.get()));
    for (const auto* part : parts) {
        EXPECT_FALSE(hasTimer(part))
            << part->metaObject()->className() << ' ' << part->objectName().toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Windows, Idle, ::testing::ValuesIn(allForms()),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace zelto::test
