#include "tests/support/ControllerBench.h"

#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace zelto::test {
namespace {

using testing::Contains;
using testing::ElementsAre;

/// What every other test of the controller takes for granted.
class ControllerBenchTest : public testing::Test, protected ControllerBench {
protected:
    void logIn() {
        type("AuthenticateTextField", "first");
        press("AuthenticateSubmit");
        type("AuthenticateTextField", "second");
        press("AuthenticateSubmit");
    }
};

TEST_F(ControllerBenchTest, OpensTheWindowOfALockedDriveAndLogsInWithTwoPasswords) {
    plugPreparedDrive({.secondPassword = "second"});
    start();
    EXPECT_EQ(visibleWindow(), "AuthenticateWindow");
    EXPECT_FALSE(isEnabled("AuthenticateSubmit"));
    logIn();
    EXPECT_EQ(visibleWindow(), "UnlockedWindow");
    EXPECT_THAT(commands(), Contains("TKVR21_Authenticate").Times(2));
}

TEST_F(ControllerBenchTest, ShowsTheSecureVolumeWhileTheDriveIsUnlocked) {
    plugPreparedDrive({.secondPassword = "second"});
    EXPECT_FALSE(computer.files.fileExistsAtPath("/media/user/PRIVATE"));
    start();
    logIn();
    EXPECT_TRUE(computer.files.fileExistsAtPath("/media/user/PRIVATE"));
    press("UnlockedLogOff");
    EXPECT_TRUE(hasQuit());
    EXPECT_FALSE(computer.files.fileExistsAtPath("/media/user/PRIVATE"));
    EXPECT_TRUE(computer.files.fileExistsAtPath("/media/user/PUBLIC"));
    ASSERT_EQ(diskToolRuns().size(), 1U);
    EXPECT_THAT(diskToolRuns()[0], testing::StartsWith("diskutil eject disk"));
}

TEST_F(ControllerBenchTest, RecordsAlertsAndThePauseAroundThem) {
    plugPreparedDrive();
    start();
    type("AuthenticateTextField", "wrong");
    computer.log.clear();
    press("AuthenticateSubmit");
    ASSERT_EQ(messages().size(), 1U);
    EXPECT_THAT(computer.log.story(),
                ElementsAre("TKVR21_Authenticate", "sleep 1", "TKVR21_GetDeviceStatus",
                            testing::StartsWith("alert: "), "sleep 1"));
}

TEST_F(ControllerBenchTest, ComplainsAboutWhatNobodyCouldPress) {
    plugPreparedDrive();
    start();
    EXPECT_NONFATAL_FAILURE(press("AuthenticateSubmit"), "disabled");
    EXPECT_NONFATAL_FAILURE(press("UnlockedOK"), "no control");
    EXPECT_NONFATAL_FAILURE(type("AuthenticateMessage", "x"), "takes no text");
}

TEST_F(ControllerBenchTest, DrivesADialogThatBlocksItsCaller) {
    plugNewDrive();
    start();
    ASSERT_EQ(visibleWindow(), "MainSettingsWindow");
    std::string inside;
    press("AreaSettingsButton", [&] {
        inside = visibleWindow();
        type("Disk1CapacityText", "40");
        press("AreaSettingsCancelButton");
    });
    EXPECT_EQ(inside, "AreaSettingsWindow");
    EXPECT_EQ(visibleWindow(), "MainSettingsWindow");
}

TEST_F(ControllerBenchTest, PutsAFaultIntoTheDrivesCable) {
    plugPreparedDrive();
    start();
    plan->failWhen([](const IOUSBDevRequest& request) { return request.bRequest == 0xB3; },
                   {.kind = Fault::Kind::VanishesBefore});
    type("AuthenticateTextField", "first");
    press("AuthenticateSubmit");
    EXPECT_TRUE(hasQuit());
    EXPECT_TRUE(plan->hasStruck());
}

TEST_F(ControllerBenchTest, StartsAgainOnTheSameComputer) {
    plugPreparedDrive();
    start();
    press("AuthenticateCancel");
    EXPECT_TRUE(hasQuit());
    start();
    EXPECT_FALSE(hasQuit());
    EXPECT_EQ(visibleWindow(), "AuthenticateWindow");
}

} // namespace
} // namespace zelto::test
