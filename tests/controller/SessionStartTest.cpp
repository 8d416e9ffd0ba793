#include "tests/controller/SessionBench.h"

namespace zelto::test {
namespace {

using simulator::DiskVerb;
using simulator::LogLine;
using simulator::ToolBehaviour;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

const std::filesystem::path OnVolume = "/media/user/ZELTO TOOL/ZeltoAppMac.app";
const std::filesystem::path Copy = "/home/user/Applications/ZeltoAppMac.app";
constexpr Computer::FileTime Monday{std::chrono::seconds(1'772'000'000)};
constexpr Computer::FileTime Tuesday{std::chrono::seconds(1'772'086'400)};

class RelocationTest : public SessionTest {
protected:
    RelocationTest() {
        m_bench.plugPreparedDrive();
        files().setBundlePath(OnVolume);
        files().installBundle(OnVolume, Tuesday);
        m_destination = files().applicationsFolder() / OnVolume.filename();
    }
    simulator::VirtualFiles& files() { return m_bench.computer.files; }
    [[nodiscard]] std::vector<std::string> flagToolRuns() {
        return m_bench.computer.log.texts(LogLine::Kind::FlagTool);
    }

    std::filesystem::path m_destination;
};

TEST_F(RelocationTest, CopiesItselfStartsTheCopyAndQuitsWithoutLookingForDrives) {
    m_bench.start();
    EXPECT_TRUE(files().areEqual(OnVolume, m_destination));
    EXPECT_THAT(files().opened(), ElementsAre(m_destination));
    EXPECT_TRUE(m_bench.hasQuit());
    EXPECT_EQ(m_bench.visibleWindow(), "");
    EXPECT_THAT(m_bench.commands(), IsEmpty());
    EXPECT_EQ(m_bench.app().Drives.DevCnt, 0);
}

TEST_F(RelocationTest, DisregardsTheLetterCaseOfTheMountRoot) {
    files().setBundlePath("/MEDIA/user/ZELTO TOOL/ZeltoAppMac.app");
    m_bench.start();
    EXPECT_THAT(files().opened(), ElementsAre(m_destination));
    EXPECT_TRUE(m_bench.hasQuit());
}

TEST_F(RelocationTest, ACopyThatRunsAlreadyIsLeftAlone) {
    files().installBundle(m_destination, Monday);
    files().setRunning({m_destination});
    m_bench.start();
    EXPECT_EQ(files().fileModificationDate(m_destination), Monday) << "not replaced";
    EXPECT_THAT(files().opened(), IsEmpty());
    EXPECT_TRUE(m_bench.hasQuit());
}

TEST_F(RelocationTest, ACopyOfTheSameDateIsReused) {
    files().installBundle(m_destination, Tuesday);
    files().setCopyFails(true);
    m_bench.start();
    EXPECT_TRUE(files().fileExistsAtPath(m_destination));
    EXPECT_THAT(files().opened(), ElementsAre(m_destination));
    EXPECT_THAT(flagToolRuns(), IsEmpty());
}

TEST_F(RelocationTest, AReadOnlyCopyOfTheSameDateIsUnlockedAllTheSame) {
    files().installBundle(m_destination, Tuesday);
    files().ownDisk().setWritable(simulator::VirtualFiles::onOwnDisk(m_destination), false);
    m_bench.start();
    EXPECT_EQ(flagToolRuns().size(), 1U);
    EXPECT_TRUE(files().isWritableFileAtPath(m_destination));
}

TEST_F(RelocationTest, AnOlderOrNewerCopyIsReplaced) {
    for (const auto date : {Monday, Tuesday + std::chrono::hours(24)}) {
        files().installBundle(m_destination, date);
        m_bench.start();
        EXPECT_EQ(files().fileModificationDate(m_destination), Tuesday);
        EXPECT_TRUE(files().areEqual(OnVolume, m_destination));
    }
}

TEST_F(RelocationTest, AReadOnlyCopyOfAnotherDateIsUnlockedAndReplaced) {
    files().installBundle(m_destination, Monday);
    files().ownDisk().setWritable(simulator::VirtualFiles::onOwnDisk(m_destination), false);
    m_bench.start();
    EXPECT_TRUE(files().areEqual(OnVolume, m_destination));
}

TEST_F(RelocationTest, AFileInTheCopysPlaceIsReplacedByTheCopy) {
    files().installBundle(m_destination, Monday);
    ASSERT_TRUE(files().removeItemAtPath(m_destination));
    ASSERT_TRUE(files().ownDisk().writeFile(simulator::VirtualFiles::onOwnDisk(m_destination),
                                            std::vector<std::uint8_t>{1, 2, 3}, Monday));
    m_bench.start();
    EXPECT_TRUE(files().areEqual(OnVolume, m_destination));
}

TEST_F(RelocationTest, AFullDiskIsNotReported) {
    files().setCopyFails(true);
    m_bench.start();
    EXPECT_THAT(alerts(), IsEmpty());
    EXPECT_TRUE(m_bench.hasQuit());
}

TEST_F(RelocationTest, ABundleAnywhereElseStartsWhereItIs) {
    files().setBundlePath("/home/user/Größe 2/ZeltoAppMac.app");
    m_bench.start();
    EXPECT_EQ(m_bench.visibleWindow(), "AuthenticateWindow");
    EXPECT_THAT(files().opened(), IsEmpty());
}

class StartTest : public SessionTest {};

TEST_F(StartTest, EveryFieldStartsZeroOrEmpty) {
    m_bench.start();
    const AppDelegate& app = m_bench.app();
    EXPECT_EQ(app.Drives.DevCnt, 0);
    EXPECT_EQ(app.Drives.CurrentUsbIntf, nullptr);
    EXPECT_FALSE(app.Drives.AlwaysUseSelectZeltoWindow);
    EXPECT_FALSE(app.Drives.WaitReconnectZelto);
    EXPECT_EQ(app.TextInputMode, 0);
    EXPECT_FALSE(app.Settings.InitialSetting);
    EXPECT_FALSE(app.Settings.PasswordSettingsParameters.Use1stAnd2ndPassword);
    EXPECT_EQ(app.Settings.PasswordSettingsParameters.NumberOfTrials, 0);
    EXPECT_EQ(app.Settings.StrEncryptionKey, QString());
    EXPECT_EQ(app.Setup.InitialSettingState, SetupProgress::NoSetup);
    EXPECT_FALSE(app.Changed.ChangePassword);
    EXPECT_FALSE(app.TimeStatusInvalid);
    EXPECT_EQ(app.window(), nullptr);
}

TEST_F(StartTest, TheTimerTicksEverySecond) {
    m_bench.plugPreparedDrive();
    m_bench.start();
    m_bench.computer.log.clear();
    m_bench.tick(4);
    EXPECT_EQ(m_bench.computer.log.count("TKVR21_ZELTO_GetTimeStatus"), 4U);
}

TEST_F(StartTest, AQuitRequestIsRefusedOnlyWhileASetupIsUnderWay) {
    m_bench.start();
    struct Row {
        std::uint8_t state;
        bool quits;
    };
    for (const Row row :
         {Row{1, false}, Row{2, false}, Row{3, false}, Row{0, true}, Row{4, true}}) {
        m_bench.app().Setup.InitialSettingState = row.state;
        EXPECT_EQ(m_bench.app().applicationShouldTerminate(),
                  row.quits ? AppDelegate::TerminateReply::TerminateNow
                            : AppDelegate::TerminateReply::TerminateCancel)
            << int(row.state);
    }
    EXPECT_TRUE(m_bench.app().applicationShouldTerminateAfterLastWindowClosed());
}

TEST_F(StartTest, ClosingTheOnlyWindowQuits) {
    m_bench.start();
    m_bench.app().SelectZeltoWindow.close();
    EXPECT_TRUE(m_bench.hasQuit());
}

TEST_F(StartTest, ClosingTheProgressWindowIsRefusedWhileASetupIsUnderWay) {
    m_bench.start();
    m_bench.app().SelectZeltoWindow.orderOut();
    m_bench.app().Setup.InitialSettingState = SetupProgress::WaitingForReconnect;
    m_bench.app().ZeltoSettingWindow.centreAndMakeKeyAndOrderFront();
    m_bench.app().ZeltoSettingWindow.close();
    EXPECT_FALSE(m_bench.hasQuit());
    EXPECT_EQ(m_bench.visibleWindow(), "ZeltoSettingWindow");
}

TEST_F(StartTest, ADriveThatMayNotBeOpenedIsToldApartFromNoDrive) {
    const auto drive = m_bench.plugPreparedDrive();
    drive->describe().openResult = kIOReturnNotPrivileged;
    m_bench.start();
    EXPECT_EQ(m_bench.text("SelectZeltoComboBox"), localized("IDS_ERR_NOT_FOUND_ZELTO"));
    EXPECT_EQ(m_bench.text("SelectZeltoAccessHint"), localized("IDS_HINT_RULE_MISSING"));
    drive->describe().openResult = kIOReturnNotPermitted;
    m_bench.start();
    EXPECT_EQ(m_bench.text("SelectZeltoAccessHint"), localized("IDS_HINT_OTHER_SESSION"));
}

TEST_F(StartTest, NoHintIsShownWithoutADriveThatWasRefused) {
    m_bench.start();
    EXPECT_FALSE(m_bench.control("SelectZeltoAccessHint")->isVisible());
}

// --- The tool area -----------------------------------------------------------------------------

class ToolAreaTest : public SessionTest {};

TEST_F(ToolAreaTest, FormattingIsTrueExactlyOnACleanExit) {
    m_bench.start();
    m_bench.computer.diskTool.setBehaviour(DiskVerb::EraseDisk, ToolBehaviour::Fails);
    EXPECT_FALSE(m_bench.app().FormatDrive("disk2"));
    m_bench.computer.diskTool.setBehaviour(DiskVerb::EraseDisk, ToolBehaviour::OnlyPretends);
    EXPECT_TRUE(m_bench.app().FormatDrive("disk2"));
    EXPECT_THAT(m_bench.diskToolRuns(),
                Contains("diskutil eraseDisk MS-DOS ZELTO TOOL MBR disk2").Times(2));
}

TEST_F(ToolAreaTest, OnlyTheExactPartitionIsTakenForTheToolVolume) {
    m_bench.computer.mounts.addForeign({"/media/user/TEN", "/dev/disk9s10"});
    m_bench.start();
    EXPECT_FALSE(m_bench.app().CopyToolFile("disk9"));
    EXPECT_THAT(alerts(), IsEmpty());
}

TEST_F(ToolAreaTest, AVolumeThatIsNotMountedIsAFailureWithoutAMessage) {
    m_bench.start();
    EXPECT_FALSE(m_bench.app().CopyToolFile("disk5"));
    EXPECT_THAT(alerts(), IsEmpty());
}

TEST_F(ToolAreaTest, AFailedCopyIsSaidWithBothPathsWhateverTheyContain) {
    m_bench.computer.files.setBundlePath("/home/user/100%2 %1/ZeltoAppMac.app");
    m_bench.computer.mounts.addForeign({"/media/user/Z T", "/dev/disk9s1"});
    m_bench.start();
    EXPECT_FALSE(m_bench.app().CopyToolFile("disk9"));
    EXPECT_THAT(alerts(),
                ElementsAre(localized("IDS_ERR_FILE_COPY",
                                      QStringLiteral("/home/user/100%2 %1/ZeltoAppMac.app"),
                                      QStringLiteral("/media/user/Z T/ZeltoAppMac.app"))));
    EXPECT_TRUE(alerts().front().contains(QStringLiteral("100%2 %1")));
}

} // namespace
} // namespace zelto::test
