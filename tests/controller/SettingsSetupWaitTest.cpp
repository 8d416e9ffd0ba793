#include "tests/support/OtherUsbDevices.h"
#include "tests/support/SettingsBench.h"

namespace zelto::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

/// What happens between the commit of first-time set-up and its end, tick by tick.
class SetupProgressTest : public SettingsBench {
protected:
    void commitSetup() {
        begin();
        fill({});
        commit();
        ASSERT_EQ(visibleWindow(), "ZeltoSettingWindow");
    }
    /// The drive comes back with the user's area, and a tool area that the system never lists.
    void commitSetupWithoutToolVolume() {
        commitSetup();
        // As if the tool area were the drive's fifth disk, which no drive has.
        app().Setup.ReservedAreaDiskNumber = 5;
    }
    [[nodiscard]] int setupState() { return app().Setup.InitialSettingState; }
    [[nodiscard]] QString progressText() { return text("ZeltoSettingText"); }
    /// All ways of asking for the program's end that a person has at this window.
    void tryToQuit() {
        auto& window = *app().ZeltoSettingWindow;
        window.close();
        window.reject();
        app().TerminateApplication();
    }
};

TEST_F(SetupProgressTest, GivesUpWhenTheDriveIsNotBackIn60Ticks) {
    computer.usb.setReconnectDelay(std::nullopt);
    commitSetup();
    tick(59);
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ(setupState(), 1);
    tick(1);
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_NOT_FOUND_ZELTO")));
    EXPECT_EQ(setupState(), 4);
    EXPECT_TRUE(hasQuit());
    EXPECT_THAT(diskToolRuns(), IsEmpty());
}

TEST_F(SetupProgressTest, GivesUpWhenTheToolVolumeIsNotSeenIn60Ticks) {
    commitSetupWithoutToolVolume();
    while (setupState() == 1) {
        tick();
    }
    ASSERT_EQ(setupState(), 2);
    EXPECT_EQ(app().Setup.WaitCount, 60);
    tick(59);
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ(setupState(), 2);
    EXPECT_FALSE(hasQuit());
    tick(1);
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_NOT_FOUND_ZELTO")));
    EXPECT_EQ(setupState(), 4);
    EXPECT_TRUE(hasQuit());
    EXPECT_THAT(diskToolRuns(), IsEmpty());
    EXPECT_FALSE(isEnabled("ZeltoSettingOKButton"));
}

TEST_F(SetupProgressTest, ADriveThatIsBackAtTheLastTickIsStillTaken) {
    computer.usb.setReconnectDelay(std::chrono::seconds(58));
    commitSetup();
    tick(58);
    EXPECT_THAT(messages(), IsEmpty());
    tick(10);
    EXPECT_EQ(setupState(), 4);
    EXPECT_EQ(progressText(), localized("IDS_SETTING_COMPLETE"));
}

TEST_F(SetupProgressTest, TheTextBlinksWithTheCountAndStandsStillWithIt) {
    computer.usb.setReconnectDelay(std::nullopt);
    commitSetup();
    EXPECT_EQ(progressText(), localized("IDS_NOW_SETTING"));
    // 60 is even at the first tick, 59 is odd at the second.
    tick();
    EXPECT_EQ(progressText(), QString());
    tick();
    EXPECT_EQ(progressText(), localized("IDS_NOW_SETTING"));
    tick();
    EXPECT_EQ(progressText(), QString());
}

TEST_F(SetupProgressTest, QuittingIsRefusedInEveryStepAndAcceptedAtTheEnd) {
    commitSetup();
    for (int expected = 1; expected <= 3; ++expected) {
        while (setupState() < expected) {
            tick();
        }
        ASSERT_EQ(setupState(), expected);
        tryToQuit();
        EXPECT_FALSE(hasQuit()) << "state " << expected;
        EXPECT_EQ(visibleWindow(), "ZeltoSettingWindow") << "state " << expected;
    }
    tick();
    ASSERT_EQ(setupState(), 4);
    app().ZeltoSettingWindow->close();
    EXPECT_TRUE(hasQuit());
}

TEST_F(SetupProgressTest, ARefusedQuitLeavesTheSetupToEndAsUsual) {
    commitSetup();
    for (int second = 0; second < 10; ++second) {
        tryToQuit();
        tick();
        if (setupState() == 4) {
            break;
        }
    }
    EXPECT_EQ(progressText(), localized("IDS_SETTING_COMPLETE"));
    EXPECT_THAT(messages(), IsEmpty());
    press("ZeltoSettingOKButton");
    EXPECT_TRUE(hasQuit());
}

TEST_F(SetupProgressTest, AToolVolumeWithoutRoomIsAFailedCopy) {
    // Larger than the tool area's 20 MiB.
    const auto large = computer.files.bundlePath() / "large";
    const std::vector<std::uint8_t> bytes(std::size_t{21} * 1024 * 1024, 0x5A);
    ASSERT_TRUE(
        computer.files.ownDisk().writeFile(simulator::VirtualFiles::onOwnDisk(large), bytes, {}));
    commitSetup();
    tick(20);
    EXPECT_EQ(messages(),
              (std::vector<QString>{localized(
                  "IDS_ERR_FILE_COPY", QString::fromStdString(computer.files.bundlePath().string()),
                  QStringLiteral("/media/user/ZELTO TOOL/ZeltoAppMac.app"))}));
    EXPECT_EQ(setupState(), 4);
    EXPECT_TRUE(hasQuit());
    EXPECT_FALSE(isEnabled("ZeltoSettingOKButton"));
}

TEST_F(SetupProgressTest, FormatsOnlyOnceAndOnlyTheToolArea) {
    commitSetup();
    tick(20);
    ASSERT_EQ(diskToolRuns().size(), 1u);
    EXPECT_THAT(diskToolRuns().front(), StartsWith("diskutil eraseDisk MS-DOS ZELTO TOOL MBR "));
}

TEST_F(SetupProgressTest, ADriveThatIsPulledDuringTheWaitForItsVolumeIsNotFound) {
    commitSetupWithoutToolVolume();
    tick(10);
    ASSERT_EQ(setupState(), 2);
    unplug(drive);
    tick(60);
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_NOT_FOUND_ZELTO")));
    EXPECT_EQ(setupState(), 4);
    EXPECT_TRUE(hasQuit());
}

TEST_F(SetupProgressTest, ADriveThatIsPulledBeforeTheFormatLeavesItsNameToNobody) {
    commitSetup();
    while (setupState() < 3) {
        tick();
    }
    unplug(drive);
    tick();
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_FORMAT")));
    EXPECT_THAT(diskToolRuns(), IsEmpty());
    EXPECT_EQ(setupState(), 4);
    EXPECT_TRUE(hasQuit());
}

TEST_F(SetupProgressTest, ADiskThatGetsTheNameOfTheToolAreaIsNotErased) {
    commitSetup();
    std::shared_ptr<ForeignDisk> foreign;
    computer.diskTool.setBeforeRun([&](const std::string& bsdName) {
        unplug(drive);
        while (!computer.disks.find(bsdName)) {
            foreign = std::make_shared<ForeignDisk>(262144);
            computer.usb.plug(foreign);
        }
    });
    tick(20);
    EXPECT_EQ(diskToolRuns().size(), 1U);
    ASSERT_NE(foreign, nullptr);
    EXPECT_EQ(foreign->volumeLabel(), "HOLIDAYS");
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_FORMAT")));
    EXPECT_TRUE(hasQuit());
}

TEST_F(SetupProgressTest, NothingIsSentToADriveAfterTheProgramHasGivenUp) {
    commitSetupWithoutToolVolume();
    while (setupState() == 1) {
        tick();
    }
    tick(59);
    computer.log.clear();
    tick(1);
    ASSERT_TRUE(hasQuit());
    EXPECT_THAT(computer.log.texts(simulator::LogLine::Kind::Command), IsEmpty());
}

} // namespace
} // namespace zelto::test
