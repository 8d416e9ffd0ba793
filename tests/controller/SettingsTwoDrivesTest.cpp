#include "tests/support/SettingsBench.h"

#include <set>

namespace zelto::test {
namespace {

using testing::IsEmpty;
using testing::Not;

/// Another drive, in use and mounted, stands beside the one that is worked on.
class TwoDrives : public SettingsBench {
protected:
    explicit TwoDrives(const std::string& otherSerial = OtherSerial) {
        computer.diskTool.setBeforeRun([this](const auto& bsdName) { noteRun(bsdName); });
        m_other = plugPreparedDrive({.serial = otherSerial});
        m_remembered = m_other->drive().model().remembered();
        m_mounted = mountedOfOther();
        EXPECT_FALSE(m_mounted.empty());
    }

    void noteRun(const std::string& bsdName) {
        const auto* const disk = computer.disks.find(bsdName);
        m_touchedDevices.insert(disk != nullptr ? disk->attachment->device : nullptr);
    }

    /// The other drive's mounted file systems.
    [[nodiscard]] std::set<std::string> mountedOfOther() {
        std::set<std::string> points;
        for (const auto& line : computer.mounts.getmntinfo()) {
            const auto* const disk = computer.disks.find(line.f_mntfromname.substr(5));
            if (disk != nullptr && disk->attachment->device == m_other) {
                points.insert(line.f_mntonname);
            }
        }
        return points;
    }

    void expectOtherUntouched() {
        for (const auto& line : computer.log.lines()) {
            if (line.kind == simulator::LogLine::Kind::Command) {
                EXPECT_EQ(line.serial, Serial) << line.text;
            }
        }
        for (const auto& device : m_touchedDevices) {
            EXPECT_EQ(device, drive) << "the disk tool ran on a disk of another drive";
        }
        EXPECT_EQ(mountedOfOther(), m_mounted);
        auto remembered = m_other->drive().model().remembered();
        // When it last had power, which it goes on having.
        remembered.latest = m_remembered.latest;
        EXPECT_TRUE(remembered == m_remembered);
    }

    void pressAndConfirm(const char* button) {
        alerts.answer(AlertButton::Alternate);
        press(button);
    }

    inline static const std::string OtherSerial = "ZD0000000002";
    Drive m_other;
    simulator::Remembered m_remembered;
    std::set<std::string> m_mounted;
    std::set<std::shared_ptr<simulator::PluggableDevice>> m_touchedDevices;
};

TEST_F(TwoDrives, SettingOneUpNeverTouchesTheOther) {
    begin();
    fill({.twoPasswords = true});
    commit();
    tick(15);
    EXPECT_EQ(app().Setup.InitialSettingState, 4);
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_THAT(m_touchedDevices, Not(IsEmpty()));
    expectOtherUntouched();
}

TEST_F(TwoDrives, ChangingOneNeverTouchesTheOther) {
    beginWithSettingsOf({});
    press("ShowRemainingTimeCheckBox");
    commit();
    EXPECT_TRUE(hasQuit());
    expectOtherUntouched();
}

TEST_F(TwoDrives, LoggingOffOneNeverTouchesTheOther) {
    beginWithSettingsOf({});
    app().MainSettingsWindow->orderOut();
    app().DisplayUnlockedWindow();
    press("UnlockedLogOff");
    EXPECT_TRUE(hasQuit());
    EXPECT_EQ(driveState(), SecurityState::StateLocked);
    expectOtherUntouched();
}

TEST_F(TwoDrives, ErasingTheKeyOfOneNeverTouchesTheOther) {
    beginWithSettingsOf({});
    pressAndConfirm("EraseEncryptionKeyButton");
    EXPECT_TRUE(hasQuit());
    expectOtherUntouched();
}

TEST_F(TwoDrives, ClearingOneNeverTouchesTheOther) {
    beginWithSettingsOf({});
    pressAndConfirm("MainSettingsClearAllButton");
    EXPECT_TRUE(hasQuit());
    EXPECT_THAT(m_touchedDevices, Not(IsEmpty()));
    expectOtherUntouched();
}

TEST_F(TwoDrives, ClearingOneWithoutSecureAreaUnmountsNothingOfTheOther) {
    beginWithSettingsOf({.secureDisk = 0});
    pressAndConfirm("MainSettingsClearAllButton");
    EXPECT_TRUE(hasQuit());
    expectOtherUntouched();
}

TEST_F(TwoDrives, AnotherDriveThatArrivesWhileOneIsAwaitedIsNotTakenForIt) {
    computer.usb.setReconnectDelay(std::nullopt);
    begin();
    fill({});
    commit();
    unplug(m_other);
    replug(m_other);
    tick(10);
    EXPECT_EQ(app().Setup.InitialSettingState, 1);
    EXPECT_TRUE(app().Drives.WaitReconnectZelto);
    EXPECT_THAT(diskToolRuns(), IsEmpty());
}

/// The other one says of itself just what the one says, and stands before it in every list.
class TwoDrivesOfOneSerial : public TwoDrives {
protected:
    TwoDrivesOfOneSerial() : TwoDrives(Serial) {}
};

TEST_F(TwoDrivesOfOneSerial, SettingOneUpNeverTouchesTheOther) {
    begin();
    fill({});
    commit();
    tick(15);
    EXPECT_EQ(app().Setup.InitialSettingState, 4);
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_THAT(m_touchedDevices, Not(IsEmpty()));
    expectOtherUntouched();
}

TEST_F(TwoDrivesOfOneSerial, LoggingOffOneLeavesTheVolumesOfTheOther) {
    beginWithSettingsOf({});
    app().MainSettingsWindow->orderOut();
    app().DisplayUnlockedWindow();
    press("UnlockedLogOff");
    EXPECT_TRUE(hasQuit());
    EXPECT_EQ(driveState(), SecurityState::StateLocked);
    expectOtherUntouched();
}

TEST_F(TwoDrivesOfOneSerial, ClearingOneNeverTouchesTheOther) {
    beginWithSettingsOf({});
    pressAndConfirm("MainSettingsClearAllButton");
    EXPECT_TRUE(hasQuit());
    EXPECT_THAT(m_touchedDevices, Not(IsEmpty()));
    expectOtherUntouched();
}

} // namespace
} // namespace zelto::test
