#include "ui/Resources.h"
#include "ui/Strings.h"

#include <QApplication>

#include <gtest/gtest.h>

// The main of every ring that shows windows: all its tests run inside one application.
int main(int argc, char** argv) {
    // Whoever runs the tests, and wherever: no window of theirs appears on a real display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    zelto::initResources();
    zelto::installStrings(QStringLiteral("en"));
    return RUN_ALL_TESTS();
}
