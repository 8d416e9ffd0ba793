#pragma once

#include "tests/accessibility/ScreenReader.h"
#include "tests/support/SettingsBench.h"

#include <QApplication>
#include <QTest>

namespace zelto::test {

/// The whole utility with somebody who hears it and uses its keyboard.
class AccessibilityBench : public SettingsBench {
protected:
    /// The window that takes input, once it has the focus of the display.
    Window& frontWindow() {
        ScreenReader::waitUntil([this] {
            return person.visibleWindow() != nullptr && person.visibleWindow()->isActiveWindow();
        });
        return *person.visibleWindow();
    }

    [[nodiscard]] std::vector<Heard> read() { return reader.read(frontWindow().windowTitle()); }

    /// By keys, one after the other, into what has the focus.
    void typeKeys(const QString& text) {
        for (const QChar character : text) {
            QTest::keyClicks(frontWindow().focusWidget(), QString(character));
            ScreenReader::letKeysArrive();
        }
    }
    void pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(frontWindow().focusWidget(), key, modifiers);
        ScreenReader::letKeysArrive();
    }
    void focus(const char* name) {
        (void)frontWindow();
        control(name)->setFocus(Qt::TabFocusReason);
    }

    /// What is heard from now on, as one text.
    [[nodiscard]] QString said() { return reader.said().join(QStringLiteral(" | ")); }

    ScreenReader reader;
};

} // namespace zelto::test
