#include "tests/support/SettingsBench.h"

#include "digest/SHA256.h"

#include <ostream>

namespace zelto::test {
namespace {

using namespace std::chrono_literals;
using simulator::DiskVerb;
using simulator::ToolBehaviour;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

using Commands = std::vector<std::string>;

PasswordDigest digestOf(const std::string& password) {
    PasswordDigest digest{};
    SHA256 sha;
    sha.Init();
    sha.Input(reinterpret_cast<const std::uint8_t*>(password.data()),
              static_cast<std::uint32_t>(password.size()));
    sha.Get(digest.data());
    return digest;
}

std::vector<std::uint8_t> part(const simulator::LogLine& line, std::size_t from, std::size_t size) {
    if (line.data.size() < from + size) {
        return {};
    }
    const auto start = line.data.begin() + static_cast<std::ptrdiff_t>(from);
    return {start, start + static_cast<std::ptrdiff_t>(size)};
}

class FirstTimeSetup : public SettingsBench {};

TEST_F(FirstTimeSetup, AnUnpartitionedDriveOpensTheSettingsWithEverySecurityControlOff) {
    begin(2000000);
    auto& main = *app().MainSettingsWindow;
    EXPECT_TRUE(main.isVisible());
    EXPECT_TRUE(app().Settings.InitialSetting);
    EXPECT_EQ(app().Settings.TotalSectorCount, 1959040u);
    EXPECT_EQ(text("TotalCapacityText"), localized("IDS_TOTAL_CAPACITY", 956));
    EXPECT_EQ(app().Settings.AreaSettingsDiskCapacity[0], 956u);
    EXPECT_TRUE(isEnabled("AreaSettingsButton"));
    for (const char* name :
         {"PasswordSettingsButton", "EncryptionKeyAutoManualSelectRadioButton",
          "EncryptionKeyButton", "EraseEncryptionKeyButton", "AutoClearEnabledCheckBox",
          "AutoClearDaysOrMinutesRadioButton", "AutoClearText", "AutoLogOffEnabledCheckBox",
          "AutoLogOffText", "ShowRemainingTimeCheckBox", "ZeltoDriveComboBox"}) {
        EXPECT_FALSE(isEnabled(name)) << name;
    }
    EXPECT_FALSE(okIsEnabled());
}

TEST_F(FirstTimeSetup, TwoNormalAreasAreSentWithTheToolAreaAndNoSecrets) {
    begin();
    layOut({.mebibytes = {"60", "0", "20"}, .secureDisk = 0});
    ASSERT_TRUE(okIsEnabled());
    computer.log.clear();
    commit();
    EXPECT_EQ(commands(), (Commands{"TKVR21_GetDeviceStatus", "TKVR21_SetAreaInfos",
                                    "TKVR21_ZELTO_SetErasePeriod", "TKVR21_ZELTO_SetIdleLockPeriod",
                                    "TKVR21_ZELTO_WriteHintData", "TKVR21_Reconnect"}));
    const auto& areas = latest("TKVR21_SetAreaInfos");
    EXPECT_EQ(areas.data.size(), 60u);
    EXPECT_EQ(areas.setup.wValue, 0);
    // 60 MiB from sector 0, 20 MiB from 122880, the tool area from 163840.
    EXPECT_THAT(part(areas, 20, 20), ElementsAre(0x00, 0x41, 0, 0, 0, 0, 0, 0, 0, 0x01, 0xE0, 0, 0,
                                                 0, 0, 0, 0, 0x00, 0xA0, 0x00));
    EXPECT_THAT(part(areas, 40, 20), ElementsAre(0x00, 0x41, 0, 0, 0, 0, 0, 0, 0, 0x02, 0x80, 0, 0,
                                                 0, 0, 0, 0, 0x00, 0xA0, 0x00));
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(FirstTimeSetup, ASecureAreaIsSentWithKeyPasswordAndPeriodsInThisOrder) {
    begin();
    fill({.autoClearDays = "2", .autoLogOffMinutes = "30"});
    ASSERT_TRUE(okIsEnabled());
    computer.log.clear();
    commit();
    EXPECT_EQ(commands(), (Commands{"TKVR21_GetDeviceStatus", "TKVR21_SetAreaInfos",
                                    "TKVR21_SetEncryptionInfo", "TKVR21_SetAuthInfo",
                                    "TKVR21_ZELTO_SetErasePeriod", "TKVR21_ZELTO_SetIdleLockPeriod",
                                    "TKVR21_ZELTO_WriteHintData", "TKVR21_Reconnect"}));
    const auto& key = latest("TKVR21_SetEncryptionInfo");
    EXPECT_THAT(part(key, 0, 8), ElementsAre('T', 'K', 'E', 'R', 0x03, 0x80, 0, 0));
    EXPECT_THAT(part(key, 8, 64), testing::Each(0));
    EXPECT_EQ(key.setup.wValue, 2);
    const auto& password = latest("TKVR21_SetAuthInfo");
    EXPECT_THAT(part(password, 0, 8), ElementsAre(0x02, 0, 1, 0, 0, 0, 0, 0));
    EXPECT_THAT(part(password, 8, 32), ElementsAreArray(digestOf("first")));
    EXPECT_THAT(part(password, 40, 32), testing::Each(0));
    EXPECT_EQ(password.setup.wValue, 2);
    EXPECT_EQ(latest("TKVR21_ZELTO_SetErasePeriod").setup.wValue, 172800 & 0xFFFF);
    EXPECT_EQ(latest("TKVR21_ZELTO_SetErasePeriod").setup.wIndex, 172800 >> 16);
    EXPECT_EQ(latest("TKVR21_ZELTO_SetIdleLockPeriod").setup.wValue, 1800);
    EXPECT_EQ(latest("TKVR21_Reconnect").setup.wValue, 1);
    EXPECT_EQ(latest("TKVR21_Reconnect").setup.wIndex, 1);
}

TEST_F(FirstTimeSetup, TwoPasswordsGoInTwoRecords) {
    begin();
    fill({.twoPasswords = true, .trials = "7"});
    commit();
    const auto records = all("TKVR21_SetAuthInfo");
    ASSERT_EQ(records.size(), 2u);
    EXPECT_THAT(part(records[0], 0, 8), ElementsAre(0x02, 0, 1, 0, 7, 0, 0, 0));
    EXPECT_THAT(part(records[0], 8, 32), ElementsAreArray(digestOf("second")));
    EXPECT_THAT(part(records[1], 0, 8), ElementsAre(0x0B, 0, 1, 0, 0, 0, 0, 0));
    EXPECT_THAT(part(records[1], 8, 32), ElementsAreArray(digestOf("first")));
    EXPECT_THAT(part(records[1], 40, 32), ElementsAreArray(digestOf("second")));
    EXPECT_EQ(records[1].data.size(), 72u);
}

TEST_F(FirstTimeSetup, AKeyEnteredByHandIsSentAsTyped) {
    begin();
    fill({.key = QStringLiteral("0A1b")});
    commit();
    const auto& key = latest("TKVR21_SetEncryptionInfo");
    EXPECT_THAT(part(key, 4, 6), ElementsAre(0x03, 0x00, 0, 0, 0x0A, 0x1B));
    EXPECT_THAT(part(key, 10, 62), testing::Each(0));
}

TEST_F(FirstTimeSetup, AutoClearInMinutesIsSentInSeconds) {
    begin();
    fill({});
    press("AutoClearEnabledCheckBox");
    press("AutoClearMinutesCell");
    type("AutoClearText", "30");
    commit();
    EXPECT_EQ(latest("TKVR21_ZELTO_SetErasePeriod").setup.wValue, 1800);
}

TEST_F(FirstTimeSetup, ShowsItsProgressWhileTheDriveIsAway) {
    begin();
    fill({});
    computer.usb.setReconnectDelay(5s);
    commit();
    EXPECT_FALSE(app().MainSettingsWindow->isVisible());
    EXPECT_TRUE(app().ZeltoSettingWindow->isVisible());
    EXPECT_FALSE(isEnabled("ZeltoSettingOKButton"));
    EXPECT_EQ(text("ZeltoSettingText"), localized("IDS_NOW_SETTING"));
    EXPECT_EQ(app().Setup.InitialSettingState, 1);
    EXPECT_EQ(app().Setup.WaitCount, 60);
    EXPECT_EQ(app().Setup.ReservedAreaDiskNumber, 2);
}

TEST_F(FirstTimeSetup, ForgetsPasswordsAndKeyOnceTheyAreSent) {
    begin();
    fill({.twoPasswords = true, .key = QStringLiteral("0A1B")});
    commit();
    EXPECT_TRUE(app().Settings.PasswordSettingsParameters.strNew1stPassword.isEmpty());
    EXPECT_TRUE(app().Settings.PasswordSettingsParameters.strNew2ndPassword.isEmpty());
    EXPECT_TRUE(app().Settings.StrEncryptionKey.isEmpty());
    EXPECT_TRUE(control<QLineEdit>("PS_1stPasswordText")->text().isEmpty());
    EXPECT_TRUE(control<QLineEdit>("EncryptionKeyText")->text().isEmpty());
}

TEST_F(FirstTimeSetup, EndsWithTheProgramOnTheToolArea) {
    begin();
    fill({});
    commit();
    computer.advance(10s);
    EXPECT_EQ(app().Setup.InitialSettingState, 4);
    EXPECT_EQ(text("ZeltoSettingText"), localized("IDS_SETTING_COMPLETE"));
    EXPECT_TRUE(isEnabled("ZeltoSettingOKButton"));
    EXPECT_EQ(computer.diskTool.holders({}).size(), 0u);
    const std::filesystem::path copy = "/media/user/ZELTO TOOL/ZeltoAppMac.app";
    EXPECT_TRUE(computer.files.fileExistsAtPath(copy));
    EXPECT_TRUE(computer.files.areEqual(computer.files.bundlePath(), copy));
    EXPECT_EQ(driveState(), SecurityState::StateLocked);
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(FirstTimeSetup, ReportsAFormatThatFails) {
    begin();
    fill({});
    commit();
    computer.diskTool.setBehaviour(DiskVerb::EraseDisk, ToolBehaviour::Fails);
    computer.advance(20s);
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_FORMAT")));
    EXPECT_TRUE(hasQuit());
    EXPECT_FALSE(isEnabled("ZeltoSettingOKButton"));
}

TEST_F(FirstTimeSetup, ReportsACopyThatFails) {
    begin();
    fill({});
    commit();
    computer.files.setCopyFails(true);
    computer.advance(20s);
    EXPECT_THAT(messages(),
                ElementsAre(localized("IDS_ERR_FILE_COPY",
                                      QString::fromStdString(computer.files.bundlePath().string()),
                                      QStringLiteral("/media/user/ZELTO TOOL/ZeltoAppMac.app"))));
    EXPECT_TRUE(hasQuit());
}

TEST_F(FirstTimeSetup, EndsWithoutAWordWhenTheFormattedVolumeIsNotMounted) {
    begin();
    fill({});
    commit();
    computer.diskTool.setEraseMounts(false);
    computer.mounts.setDesktopHabit(simulator::DesktopHabit::Never);
    computer.advance(20s);
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_TRUE(hasQuit());
}

TEST_F(FirstTimeSetup, AManualKeyThatWasNotEnteredIsAskedForBeforeAnythingIsSent) {
    begin();
    fill({});
    press("EncryptionKeyManualCell");
    computer.log.clear();
    commit();
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_ENCRYPTION_MANUAL_KEY_NOT_SETUP")));
    EXPECT_THAT(commands(), IsEmpty());
    EXPECT_TRUE(okIsEnabled());
    EXPECT_TRUE(app().MainSettingsWindow->isVisible());
}

TEST_F(FirstTimeSetup, ADriveThatDoesNotSpinUpEndsTheProgram) {
    begin();
    layOut({.secureDisk = 0});
    drive->drive().setNotReadyReads(10);
    computer.log.clear();
    commit();
    EXPECT_EQ(computer.log.count("TKVR21_GetDeviceStatus"), 10u);
    EXPECT_EQ(computer.log.count("sleep 1"), 9u);
    EXPECT_EQ(computer.log.count("TKVR21_SetAreaInfos"), 0u);
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_SPINUP")));
    EXPECT_TRUE(hasQuit());
}

TEST_F(FirstTimeSetup, ARetryAppendsAnotherToolArea) {
    begin();
    layOut({.secureDisk = 0});
    failCommand("TKVR21_ZELTO_SetErasePeriod", {});
    commit();
    EXPECT_EQ(messages().size(), 1u);
    EXPECT_TRUE(okIsEnabled());
    EXPECT_EQ(latest("TKVR21_SetAreaInfos").data.size(), 40u);
    EXPECT_EQ(app().Settings.AreaInfosViewData.areaCount, 1);

    plan->clear();
    commit();
    EXPECT_EQ(latest("TKVR21_SetAreaInfos").data.size(), 60u);
    EXPECT_EQ(app().Setup.ReservedAreaDiskNumber, 3);
}

TEST_F(FirstTimeSetup, AfterManyRetriesTheTableIsFullAndLayingOutAgainMakesRoom) {
    begin();
    layOut({.secureDisk = 0});
    failCommand("TKVR21_SetAreaInfos", {.kind = Fault::Kind::FailsAfter});
    for (int retry = 0; retry < 11; ++retry) {
        commit();
    }
    EXPECT_EQ(latest("TKVR21_SetAreaInfos").data.size(), 240u);
    computer.log.clear();
    alerts.clear();
    commit();
    EXPECT_EQ(computer.log.count("TKVR21_SetAreaInfos"), 0u);
    EXPECT_EQ(messages().size(), 1u);
    EXPECT_TRUE(okIsEnabled());

    plan->clear();
    layOut({.secureDisk = 0});
    commit();
    EXPECT_EQ(latest("TKVR21_SetAreaInfos").data.size(), 40u);
    EXPECT_EQ(app().Setup.InitialSettingState, 1);
}

TEST_F(FirstTimeSetup, AVolumeThatCannotBeClosedStopsItBeforeAnythingIsSent) {
    begin();
    computer.disks.stack({.bsdName = "vg-data",
                          .below = computer.disks.all().front()->bsdName,
                          .canBeClosed = false});
    fill({});
    computer.log.clear();
    commit();
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_UNMOUNT")));
    EXPECT_THAT(commands(), IsEmpty());
}

TEST_F(FirstTimeSetup, VolumesThatWereUnmountedStaySoAfterAFailure) {
    begin();
    setUpAndStartAgain({.secureDisk = 0});
    app().Settings.InitialSetting = true;
    app().Changed.AreaSettingsPerformed = true;
    app().UpdateMainSettingsOKButton();
    const auto mountedBefore = computer.mounts.getmntinfo().size();
    failCommand("TKVR21_SetAreaInfos", {});
    commit();
    EXPECT_LT(computer.mounts.getmntinfo().size(), mountedBefore);
    tick(3);
    EXPECT_LT(computer.mounts.getmntinfo().size(), mountedBefore);
    EXPECT_TRUE(okIsEnabled());
}

TEST_F(FirstTimeSetup, ARetryWithTheDialogsOwnLayoutSucceeds) {
    begin();
    layOut({.secureDisk = 0});
    failCommand("TKVR21_SetAreaInfos", {});
    commit();
    plan->clear();
    // Opened and confirmed as it stands: the sizes that were typed before.
    inDialog("AreaSettingsButton", "AreaSettingsWindow", [&] { press("AreaSettingsOKButton"); });
    commit();
    EXPECT_EQ(latest("TKVR21_SetAreaInfos").data.size(), 40U);
    tick(10);
    EXPECT_EQ(app().Setup.InitialSettingState, 4);
    EXPECT_FALSE(hasQuit());
}

TEST_F(FirstTimeSetup, ABusyVolumeStopsItBeforeAnythingIsSent) {
    begin();
    setUpAndStartAgain({.secureDisk = 0});
    // As a new drive again, with the volumes of the old layout still mounted.
    app().Settings.InitialSetting = true;
    app().Changed.AreaSettingsPerformed = true;
    app().UpdateMainSettingsOKButton();
    computer.diskTool.setBehaviour(DiskVerb::Umount, ToolBehaviour::Fails);
    computer.log.clear();
    commit();
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERR_UNMOUNT")));
    EXPECT_THAT(commands(), IsEmpty());
    EXPECT_TRUE(okIsEnabled());
}

struct StoryCase {
    const char* name;
    Wishes wishes;
    std::uint64_t sectors = 262144;

    friend void PrintTo(const StoryCase& story, std::ostream* out) { *out << story.name; }
};

class SetupStory : public SettingsBench, public testing::WithParamInterface<StoryCase> {};

TEST_P(SetupStory, SetsUpLogsInClearsAndSetsUpAnew) {
    const Wishes& wishes = GetParam().wishes;
    begin(GetParam().sectors);
    ASSERT_NO_FATAL_FAILURE(setUpAndStartAgain(wishes));
    if (wishes.secureDisk != 0) {
        EXPECT_EQ(driveState(), SecurityState::StateLocked);
        logIn(wishes.firstPassword);
        if (wishes.twoPasswords) {
            EXPECT_EQ(driveState(), SecurityState::StatePasswordPending);
            logIn(wishes.secondPassword);
        }
        EXPECT_EQ(driveState(), SecurityState::StateUnlocking);
        openSettingsOfUnlockedDrive();
    }
    alerts.answer(AlertButton::Alternate);
    press("MainSettingsClearAllButton");
    EXPECT_TRUE(hasQuit());
    EXPECT_EQ(messages().size(), 1u);
    computer.replug(drive);
    startAgain();
    EXPECT_TRUE(app().Settings.InitialSetting);
    ASSERT_NO_FATAL_FAILURE(setUpAndStartAgain(wishes));
}

const QString OneByte = QStringLiteral("7F");
const QString SixtyThreeBytes = QString(126, u'a');
const QString SixtyFourBytes = QString(128, u'F');

INSTANTIATE_TEST_SUITE_P(
    FirstTimeSetup, SetupStory,
    testing::Values(StoryCase{"noSecureArea", {.mebibytes = {"50", "40", "18"}, .secureDisk = 0}},
                    StoryCase{"onePassword", {}}, StoryCase{"twoPasswords", {.twoPasswords = true}},
                    StoryCase{"secureThirdDisk", {.mebibytes = {"10", "0", "50"}, .secureDisk = 3}},
                    StoryCase{"keyOfOneByte", {.key = OneByte}},
                    StoryCase{"keyOf63Bytes", {.key = SixtyThreeBytes}},
                    StoryCase{"keyOf64Bytes", {.twoPasswords = true, .key = SixtyFourBytes}},
                    StoryCase{"largestArea", {.mebibytes = {"108", "0", "0"}}},
                    StoryCase{"smallestAreas", {.mebibytes = {"1", "1", "1"}, .secureDisk = 2}},
                    StoryCase{"driveOf64Megabytes", {.mebibytes = {"44", "0", "0"}}, 131072},
                    StoryCase{"driveOf2Terabytes",
                              {.mebibytes = {"2097132", "0", "0"}},
                              std::uint64_t{1} << 32}),
    [](const auto& story) { return std::string(story.param.name); });

} // namespace
} // namespace zelto::test
