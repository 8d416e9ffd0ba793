#include "ui/Resources.h"
#include "ui/Strings.h"

#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    zelto::initResources();
    zelto::installStrings();
    return RUN_ALL_TESTS();
}
