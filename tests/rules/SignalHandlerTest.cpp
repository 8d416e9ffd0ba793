#include "device/Discovery.h"

#include "tests/support/ScriptedUsb.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace zelto::test {
namespace {

using testing::AllOf;
using testing::ExitedWithCode;
using testing::HasSubstr;
using testing::Not;

class SignalHandlerDeathTest : public testing::Test {
protected:
    void TearDown() override {
        releaseNotifications();
        static_cast<void>(std::signal(SIGINT, SIG_DFL));
    }

    void setUpNotifications() {
        static_cast<void>(SetupMatchingNotification(0x07F7, 0x0135, context));
    }

    ScriptedUsb usb;
    AttachedDrives drives;
    DiscoveryContext context{usb, drives, [](UsbEvent, const std::function<void()>&) {}};
};

TEST_F(SignalHandlerDeathTest, AnInterruptGivesThePortAndTheIteratorsBackInOrder) {
    EXPECT_EXIT(
        {
            usb.speaks = true;
            setUpNotifications();
            gRawAddedIter = 40;
            gRawRemovedIter = 41;
            static_cast<void>(std::raise(SIGINT));
        },
        ExitedWithCode(0), HasSubstr("destroy 1,release 40,release 41,release 2,release 3,"));
}

TEST_F(SignalHandlerDeathTest, AnInterruptLeavesIteratorsThatAreNotSetAlone) {
    EXPECT_EXIT(
        {
            usb.speaks = true;
            setUpNotifications();
            static_cast<void>(std::raise(SIGINT));
        },
        ExitedWithCode(0), HasSubstr("destroy 1,release 2,release 3,"));
}

TEST_F(SignalHandlerDeathTest, AnInterruptSkipsTheOrdinaryEnd) {
    EXPECT_EXIT(
        {
            setUpNotifications();
            static_cast<void>(
                std::atexit([] { static_cast<void>(std::fputs("ordinary end", stderr)); }));
            static_cast<void>(std::fputs("interrupted,", stderr));
            static_cast<void>(std::raise(SIGINT));
        },
        ExitedWithCode(0), AllOf(HasSubstr("interrupted,"), Not(HasSubstr("ordinary end"))));
}

TEST_F(SignalHandlerDeathTest, AComputerWithoutAUsbServiceCanBeInterruptedToo) {
    usb.hasMasterPort = false;
    EXPECT_EXIT(
        {
            usb.speaks = true;
            setUpNotifications();
            static_cast<void>(std::raise(SIGINT));
        },
        ExitedWithCode(0), Not(HasSubstr("release")));
}

TEST_F(SignalHandlerDeathTest, AnInterruptBeforeSetUpEndsTheProcess) {
    EXPECT_EXIT(SignalHandler(SIGINT), ExitedWithCode(0), "");
}

TEST_F(SignalHandlerDeathTest, EverythingIsGivenBackOnce) {
    setUpNotifications();
    usb.calls.clear();
    releaseNotifications();
    releaseNotifications();
    EXPECT_EQ(usb.calls, (std::vector<std::string>{"destroy 1", "release 2", "release 3"}));
    EXPECT_EQ(gNotifyPort, 0U);
    EXPECT_EQ(gUsbAddedIter, 0U);
    EXPECT_EQ(gUsbRemovedIter, 0U);
}

} // namespace
} // namespace zelto::test
