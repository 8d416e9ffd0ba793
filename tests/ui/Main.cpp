#include <QApplication>

#include <gtest/gtest.h>

// Every test of this ring shows widgets, so they all run inside one application.
int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
