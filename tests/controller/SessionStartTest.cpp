#include "tests/controller/SessionBench.h"
#include "ui/DeviceRule.h"

#include <QClipboard>
#include <QPlainTextEdit>

namespace zelto::test {
namespace {

using simulator::DiskVerb;
using simulator::LogLine;
using simulator::ToolBehaviour;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

const std::filesystem::path OnVolume = "/media/user/ZELTO TOOL/ZeltoAppMac.app";
const std::filesystem::path Copy = "/home/user/Applications/ZeltoAppMac.app";
constexpr Computer::FileTime Monday{std::chrono::seconds(1'772'000'000)};
constexpr Computer::FileTime Tuesday{std::chrono::seconds(1'772'086'400)};

class RelocationTest : public SessionTest {
protected:
    RelocationTest() {
        plugPreparedDrive();
        files().setBundlePath(OnVolume);
        files().installBundle(OnVolume, Tuesday);
        m_destination = files().applicationsFolder() / OnVolume.filename();
    }
    simulator::VirtualFiles& files() { return computer.files; }
    [[nodiscard]] std::vector<std::string> flagToolRuns() {
        return computer.log.texts(LogLine::Kind::FlagTool);
    }

    std::filesystem::path m_destination;
};

TEST_F(RelocationTest, CopiesItselfStartsTheCopyAndQuitsWithoutLookingForDrives) {
    start();
    EXPECT_TRUE(files().areEqual(OnVolume, m_destination));
    EXPECT_THAT(files().opened(), ElementsAre(m_destination));
    EXPECT_TRUE(hasQuit());
    EXPECT_EQ(visibleWindow(), "");
    EXPECT_THAT(commands(), IsEmpty());
    EXPECT_EQ(app().Drives.DevCnt, 0);
}

TEST_F(RelocationTest, DisregardsTheLetterCaseOfTheMountRoot) {
    files().setBundlePath("/MEDIA/user/ZELTO TOOL/ZeltoAppMac.app");
    start();
    EXPECT_THAT(files().opened(), ElementsAre(m_destination));
    EXPECT_TRUE(hasQuit());
}

TEST_F(RelocationTest, ACopyInAHomeFolderOnAVolumeStartsNormally) {
    files().addDriveElsewhere("/home");
    files().setBundlePath(m_destination);
    start();
    EXPECT_FALSE(hasQuit());
    EXPECT_EQ(app().Drives.DevCnt, 1);
    EXPECT_THAT(files().opened(), IsEmpty());
}

TEST_F(RelocationTest, ADriveThatIsMountedElsewhereIsAVolumeTheSame) {
    files().addDriveElsewhere("/mnt/stick");
    files().setBundlePath("/mnt/stick/ZeltoAppMac.app");
    files().installBundle("/mnt/stick/ZeltoAppMac.app", Tuesday);
    start();
    EXPECT_THAT(files().opened(), ElementsAre(m_destination));
    EXPECT_TRUE(hasQuit());
}

TEST_F(RelocationTest, ACopyThatRunsAlreadyIsLeftAlone) {
    files().installBundle(m_destination, Monday);
    files().setRunning({m_destination});
    start();
    EXPECT_EQ(files().fileModificationDate(m_destination), Monday) << "not replaced";
    EXPECT_THAT(files().opened(), IsEmpty());
    EXPECT_TRUE(hasQuit());
}

TEST_F(RelocationTest, ACopyOfTheSameDateIsReused) {
    files().installBundle(m_destination, Tuesday);
    files().setCopyFails(true);
    start();
    EXPECT_TRUE(files().fileExistsAtPath(m_destination));
    EXPECT_THAT(files().opened(), ElementsAre(m_destination));
    EXPECT_THAT(flagToolRuns(), IsEmpty());
}

TEST_F(RelocationTest, AReadOnlyCopyOfTheSameDateIsUnlockedAllTheSame) {
    files().installBundle(m_destination, Tuesday);
    files().ownDisk().setWritable(simulator::VirtualFiles::onOwnDisk(m_destination), false);
    start();
    EXPECT_EQ(flagToolRuns().size(), 1U);
    EXPECT_TRUE(files().isWritableFileAtPath(m_destination));
}

TEST_F(RelocationTest, AnOlderOrNewerCopyIsReplaced) {
    for (const auto date : {Monday, Tuesday + std::chrono::hours(24)}) {
        files().installBundle(m_destination, date);
        start();
        EXPECT_EQ(files().fileModificationDate(m_destination), Tuesday);
        EXPECT_TRUE(files().areEqual(OnVolume, m_destination));
    }
}

TEST_F(RelocationTest, AReadOnlyCopyOfAnotherDateIsUnlockedAndReplaced) {
    files().installBundle(m_destination, Monday);
    files().ownDisk().setWritable(simulator::VirtualFiles::onOwnDisk(m_destination), false);
    start();
    EXPECT_TRUE(files().areEqual(OnVolume, m_destination));
}

TEST_F(RelocationTest, AFileInTheCopysPlaceIsReplacedByTheCopy) {
    files().installBundle(m_destination, Monday);
    ASSERT_TRUE(files().removeItemAtPath(m_destination));
    ASSERT_TRUE(files().ownDisk().writeFile(simulator::VirtualFiles::onOwnDisk(m_destination),
                                            std::vector<std::uint8_t>{1, 2, 3}, Monday));
    start();
    EXPECT_TRUE(files().areEqual(OnVolume, m_destination));
}

TEST_F(RelocationTest, AFullDiskIsNotReported) {
    files().setCopyFails(true);
    start();
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_TRUE(hasQuit());
}

TEST_F(RelocationTest, ABundleAnywhereElseStartsWhereItIs) {
    files().setBundlePath("/home/user/Größe 2/ZeltoAppMac.app");
    start();
    EXPECT_EQ(visibleWindow(), "AuthenticateWindow");
    EXPECT_THAT(files().opened(), IsEmpty());
}

class StartTest : public SessionTest {};

TEST_F(StartTest, EveryFieldStartsZeroOrEmpty) {
    start();
    const AppDelegate& delegate = app();
    EXPECT_EQ(delegate.Drives.DevCnt, 0);
    EXPECT_EQ(delegate.Drives.CurrentUsbIntf, nullptr);
    EXPECT_FALSE(delegate.Drives.AlwaysUseSelectZeltoWindow);
    EXPECT_FALSE(delegate.Drives.WaitReconnectZelto);
    EXPECT_EQ(delegate.TextInputMode, 0);
    EXPECT_FALSE(delegate.Settings.InitialSetting);
    EXPECT_FALSE(delegate.Settings.PasswordSettingsParameters.Use1stAnd2ndPassword);
    EXPECT_EQ(delegate.Settings.PasswordSettingsParameters.NumberOfTrials, 0);
    EXPECT_TRUE(delegate.Settings.StrEncryptionKey.isEmpty());
    EXPECT_EQ(delegate.Setup.InitialSettingState, SetupProgress::NoSetup);
    EXPECT_FALSE(delegate.Changed.ChangePassword);
    EXPECT_FALSE(delegate.TimeStatusInvalid);
    EXPECT_EQ(delegate.window(), nullptr);
}

TEST_F(StartTest, TheTimerTicksEverySecond) {
    plugPreparedDrive();
    start();
    computer.log.clear();
    tick(4);
    EXPECT_EQ(computer.log.count("TKVR21_ZELTO_GetTimeStatus"), 4U);
}

TEST_F(StartTest, AQuitRequestIsRefusedOnlyWhileASetupIsUnderWay) {
    start();
    struct Row {
        std::uint8_t state;
        bool quits;
    };
    for (const Row row :
         {Row{1, false}, Row{2, false}, Row{3, false}, Row{0, true}, Row{4, true}}) {
        app().Setup.InitialSettingState = row.state;
        EXPECT_EQ(app().applicationShouldTerminate(),
                  row.quits ? AppDelegate::TerminateReply::TerminateNow
                            : AppDelegate::TerminateReply::TerminateCancel)
            << int(row.state);
    }
    EXPECT_TRUE(app().applicationShouldTerminateAfterLastWindowClosed());
}

TEST_F(StartTest, ClosingTheOnlyWindowQuits) {
    start();
    app().SelectZeltoWindow->close();
    EXPECT_TRUE(hasQuit());
}

TEST_F(StartTest, ClosingTheProgressWindowIsRefusedWhileASetupIsUnderWay) {
    start();
    app().SelectZeltoWindow->orderOut();
    app().Setup.InitialSettingState = SetupProgress::WaitingForReconnect;
    app().ZeltoSettingWindow->centreAndMakeKeyAndOrderFront();
    app().ZeltoSettingWindow->close();
    EXPECT_FALSE(hasQuit());
    EXPECT_EQ(visibleWindow(), "ZeltoSettingWindow");
}

TEST_F(StartTest, ADriveThatMayNotBeOpenedIsToldApartFromNoDrive) {
    const auto drive = plugPreparedDrive();
    drive->describe().openResult = kIOReturnNotPrivileged;
    start();
    EXPECT_EQ(text("SelectZeltoComboBox"), localized("IDS_ERR_NOT_FOUND_ZELTO"));
    EXPECT_EQ(text("SelectZeltoAccessHint"), localized("IDS_HINT_RULE_MISSING"));
    // Where the focus is.
    EXPECT_EQ(control<QWidget>("SelectZeltoNoDrive")->accessibleDescription(),
              localized("IDS_HINT_RULE_MISSING"));
    drive->describe().openResult = kIOReturnNotPermitted;
    start();
    EXPECT_EQ(text("SelectZeltoAccessHint"), localized("IDS_HINT_OTHER_SESSION"));
}

TEST_F(StartTest, ASecondCopyLeavesTheDriveToTheFirstAndSaysSo) {
    plugPreparedDrive();
    auto first = computer.usb.makeHandle(computer.usb.attachments().front());
    ASSERT_EQ(first->USBDeviceOpen(), kIOReturnSuccess);
    start();
    tick(3);
    EXPECT_THAT(commands(), IsEmpty());
    EXPECT_EQ(text("SelectZeltoComboBox"), localized("IDS_ERR_NOT_FOUND_ZELTO"));
    EXPECT_EQ(text("SelectZeltoAccessHint"), localized("IDS_HINT_DRIVE_IN_USE"));
    first.reset();
    start();
    EXPECT_EQ(app().Drives.DevCnt, 1);
}

TEST_F(StartTest, TheHintGoesWhenTheRefusedDriveIsPulled) {
    const auto drive = plugPreparedDrive();
    const auto first = computer.usb.makeHandle(computer.usb.attachments().front());
    ASSERT_EQ(first->USBDeviceOpen(), kIOReturnSuccess);
    start();
    EXPECT_TRUE(app().SelectZeltoWindow->SelectZeltoAccessHint->isVisible());
    unplug(drive);
    tick();
    EXPECT_FALSE(app().SelectZeltoWindow->SelectZeltoAccessHint->isVisible());
    plug(drive);
    tick();
    EXPECT_FALSE(app().SelectZeltoWindow->SelectZeltoAccessHint->isVisible());
}

TEST_F(StartTest, TheHintAppearsWithADriveThatIsRefusedOnArrival) {
    start();
    const auto drive = simulator::makeDrive("ZD0000000000A1", ControllerBench::NewDriveSectors);
    drive->describe().openResult = kIOReturnNotPrivileged;
    plug(drive);
    tick();
    EXPECT_TRUE(app().SelectZeltoWindow->SelectZeltoAccessHint->isVisible());
    EXPECT_EQ(text("SelectZeltoAccessHint"), localized("IDS_HINT_RULE_MISSING"));
}

TEST_F(StartTest, UpdateTakesADriveThatTheOtherCopyHasLetGo) {
    plugPreparedDrive();
    auto first = computer.usb.makeHandle(computer.usb.attachments().front());
    ASSERT_EQ(first->USBDeviceOpen(), kIOReturnSuccess);
    start();
    press("SelectZeltoUpdate");
    EXPECT_TRUE(app().SelectZeltoWindow->SelectZeltoAccessHint->isVisible());
    first.reset();
    press("SelectZeltoUpdate");
    EXPECT_EQ(text("SelectZeltoComboBox"), QStringLiteral("Device 0"));
    EXPECT_FALSE(app().SelectZeltoWindow->SelectZeltoAccessHint->isVisible());
}

TEST_F(StartTest, NoHintIsShownWithoutADriveThatWasRefused) {
    start();
    EXPECT_FALSE(control("SelectZeltoAccessHint")->isVisible());
    EXPECT_FALSE(control("SelectZeltoShowRule")->isVisible());
}

TEST_F(StartTest, TheMissingRuleCanBeSeenAndCopiedWithTheCommandThatAddsIt) {
    plugPreparedDrive()->describe().openResult = kIOReturnNotPrivileged;
    start();
    press("SelectZeltoShowRule", [this] {
        press("DeviceRuleCopy");
        const QString copied = QGuiApplication::clipboard()->text();
        EXPECT_EQ(copied, deviceRuleCommand());
        EXPECT_EQ(control<QPlainTextEdit>("DeviceRuleCommand")->toPlainText(), copied);
        press("DeviceRuleClose");
    });
    EXPECT_EQ(visibleWindow(), "SelectZeltoWindow");
}

TEST_F(StartTest, TheRuleIsOfferedOnlyWhereItIsMissing) {
    plugPreparedDrive()->describe().openResult = kIOReturnNotPermitted;
    start();
    EXPECT_TRUE(control("SelectZeltoAccessHint")->isVisible());
    EXPECT_FALSE(control("SelectZeltoShowRule")->isVisible());
}

// --- The tool area -----------------------------------------------------------------------------

class ToolAreaTest : public SessionTest {};

TEST_F(ToolAreaTest, FormattingIsTrueExactlyOnACleanExit) {
    start();
    computer.diskTool.setBehaviour(DiskVerb::EraseDisk, ToolBehaviour::Fails);
    EXPECT_FALSE(app().FormatDrive("disk2"));
    computer.diskTool.setBehaviour(DiskVerb::EraseDisk, ToolBehaviour::OnlyPretends);
    EXPECT_TRUE(app().FormatDrive("disk2"));
    EXPECT_THAT(diskToolRuns(),
                Contains("diskutil eraseDisk MS-DOS ZELTO TOOL MBR disk2").Times(2));
}

TEST_F(ToolAreaTest, OnlyTheExactPartitionIsTakenForTheToolVolume) {
    computer.mounts.addForeign({"/media/user/TEN", "/dev/disk9s10"});
    start();
    EXPECT_FALSE(app().CopyToolFile("disk9"));
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(ToolAreaTest, AVolumeThatIsNotMountedIsAFailureWithoutAMessage) {
    start();
    EXPECT_FALSE(app().CopyToolFile("disk5"));
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(ToolAreaTest, AFailedCopyIsSaidWithBothPathsWhateverTheyContain) {
    computer.files.setBundlePath("/home/user/100%2 %1/ZeltoAppMac.app");
    computer.mounts.addForeign({"/media/user/Z T", "/dev/disk9s1"});
    start();
    EXPECT_FALSE(app().CopyToolFile("disk9"));
    EXPECT_THAT(messages(),
                ElementsAre(localized("IDS_ERR_FILE_COPY",
                                      QStringLiteral("/home/user/100%2 %1/ZeltoAppMac.app"),
                                      QStringLiteral("/media/user/Z T/ZeltoAppMac.app"))));
    EXPECT_TRUE(messages().front().contains(QStringLiteral("100%2 %1")));
}

} // namespace
} // namespace zelto::test
