#include "tests/support/ControllerBench.h"

#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace zelto::test {
namespace {

using testing::Contains;
using testing::ElementsAre;

/// What every other test of the controller takes for granted.
class ControllerBenchTest : public testing::Test {
protected:
    void logIn() {
        m_bench.type("AuthenticateTextField", "first");
        m_bench.press("AuthenticateSubmit");
        m_bench.type("AuthenticateTextField", "second");
        m_bench.press("AuthenticateSubmit");
    }

    ControllerBench m_bench;
};

TEST_F(ControllerBenchTest, OpensTheWindowOfALockedDriveAndLogsInWithTwoPasswords) {
    m_bench.plugPreparedDrive({.secondPassword = "second"});
    m_bench.start();
    EXPECT_EQ(m_bench.visibleWindow(), "AuthenticateWindow");
    EXPECT_FALSE(m_bench.isEnabled("AuthenticateSubmit"));
    logIn();
    EXPECT_EQ(m_bench.visibleWindow(), "UnlockedWindow");
    EXPECT_THAT(m_bench.commands(), Contains("TKVR21_Authenticate").Times(2));
}

TEST_F(ControllerBenchTest, ShowsTheSecureVolumeWhileTheDriveIsUnlocked) {
    m_bench.plugPreparedDrive({.secondPassword = "second"});
    EXPECT_FALSE(m_bench.computer.files.fileExistsAtPath("/media/user/PRIVATE"));
    m_bench.start();
    logIn();
    EXPECT_TRUE(m_bench.computer.files.fileExistsAtPath("/media/user/PRIVATE"));
    m_bench.press("UnlockedLogOff");
    EXPECT_TRUE(m_bench.hasQuit());
    EXPECT_FALSE(m_bench.computer.files.fileExistsAtPath("/media/user/PRIVATE"));
    EXPECT_TRUE(m_bench.computer.files.fileExistsAtPath("/media/user/PUBLIC"));
    ASSERT_EQ(m_bench.diskToolRuns().size(), 1U);
    EXPECT_THAT(m_bench.diskToolRuns()[0], testing::StartsWith("diskutil eject disk"));
}

TEST_F(ControllerBenchTest, RecordsAlertsAndThePauseAroundThem) {
    m_bench.plugPreparedDrive();
    m_bench.start();
    m_bench.type("AuthenticateTextField", "wrong");
    m_bench.computer.log.clear();
    m_bench.press("AuthenticateSubmit");
    ASSERT_EQ(m_bench.alertTexts().size(), 1U);
    EXPECT_THAT(m_bench.computer.log.story(),
                ElementsAre("TKVR21_Authenticate", "sleep 1", "TKVR21_GetDeviceStatus",
                            testing::StartsWith("alert: "), "sleep 1"));
}

TEST_F(ControllerBenchTest, ComplainsAboutWhatNobodyCouldPress) {
    m_bench.plugPreparedDrive();
    m_bench.start();
    EXPECT_NONFATAL_FAILURE(m_bench.press("AuthenticateSubmit"), "disabled");
    EXPECT_NONFATAL_FAILURE(m_bench.press("UnlockedOK"), "no control");
    EXPECT_NONFATAL_FAILURE(m_bench.type("AuthenticateMessage", "x"), "takes no text");
}

TEST_F(ControllerBenchTest, DrivesADialogThatBlocksItsCaller) {
    m_bench.plugNewDrive();
    m_bench.start();
    ASSERT_EQ(m_bench.visibleWindow(), "MainSettingsWindow");
    std::string inside;
    m_bench.press("AreaSettingsButton", [&] {
        inside = m_bench.visibleWindow();
        m_bench.type("Disk1CapacityText", "40");
        m_bench.press("AreaSettingsCancelButton");
    });
    EXPECT_EQ(inside, "AreaSettingsWindow");
    EXPECT_EQ(m_bench.visibleWindow(), "MainSettingsWindow");
}

TEST_F(ControllerBenchTest, PutsAFaultIntoTheDrivesCable) {
    m_bench.plugPreparedDrive();
    m_bench.start();
    m_bench.plan->failWhen([](const IOUSBDevRequest& request) { return request.bRequest == 0xB3; },
                           {.kind = simulator::Fault::Kind::VanishesBefore});
    m_bench.type("AuthenticateTextField", "first");
    m_bench.press("AuthenticateSubmit");
    EXPECT_TRUE(m_bench.hasQuit());
    EXPECT_TRUE(m_bench.plan->hasStruck());
}

TEST_F(ControllerBenchTest, StartsAgainOnTheSameComputer) {
    m_bench.plugPreparedDrive();
    m_bench.start();
    m_bench.press("AuthenticateCancel");
    EXPECT_TRUE(m_bench.hasQuit());
    m_bench.start();
    EXPECT_FALSE(m_bench.hasQuit());
    EXPECT_EQ(m_bench.visibleWindow(), "AuthenticateWindow");
}

} // namespace
} // namespace zelto::test
