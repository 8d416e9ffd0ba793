#include "tests/support/ScriptedDesktop.h"
#include "tests/support/SettingsBench.h"

#include <gmock/gmock.h>

namespace zelto::test {
namespace {

using testing::IsEmpty;

/// Another program's window, which the user looks at while ours is behind it.
class OtherWindow : public QWidget {
public:
    OtherWindow() {
        show();
        activateWindow();
        QCoreApplication::processEvents();
    }
};

/// What happens when the user starts the program that runs already.
class StartedTwice : public SettingsBench {
protected:
    StartedTwice() { computer.desktop = desktop; }

    /// The window that has the keyboard after a second start from another program's window.
    [[nodiscard]] std::string broughtForward() const {
        const OtherWindow other;
        EXPECT_TRUE(other.isActiveWindow());
        EXPECT_FALSE(desktop->startAgain());
        QCoreApplication::processEvents();
        const QWidget* const active = QApplication::activeWindow();
        return active == nullptr ? std::string() : active->objectName().toStdString();
    }

    std::shared_ptr<ScriptedDesktop> desktop = std::make_shared<ScriptedDesktop>();
};

TEST_F(StartedTwice, TheSecondEndsWithoutLookingForDrives) {
    drive = plugPreparedDrive();
    desktop->setOtherRuns();
    start();
    EXPECT_EQ(desktop->othersForward(), 1);
    EXPECT_TRUE(hasQuit());
    EXPECT_EQ(visibleWindow(), "");
    EXPECT_EQ(app().Drives.DevCnt, 0);
    EXPECT_THAT(computer.log.lines(),
                testing::Each(testing::Field(&simulator::LogLine::text, "stop")));
    EXPECT_FALSE(desktop->isKeptAwake());
}

TEST_F(StartedTwice, TheFirstComesForwardWithTheWindowThatItShows) {
    drive = plugPreparedDrive();
    start();
    EXPECT_EQ(broughtForward(), "AuthenticateWindow");
    logIn(QStringLiteral("first"));
    EXPECT_EQ(broughtForward(), "UnlockingWindow");
    press("UnlockingSetup");
    EXPECT_EQ(broughtForward(), "MainSettingsWindow");
    EXPECT_FALSE(hasQuit());
}

TEST_F(StartedTwice, TheFirstComesForwardWithTheDialogThatTakesInput) {
    begin();
    inDialog("AreaSettingsButton", "AreaSettingsWindow",
             [&] { EXPECT_EQ(broughtForward(), "AreaSettingsWindow"); });
}

TEST_F(StartedTwice, AMinimisedWindowIsShownAgain) {
    drive = plugPreparedDrive();
    start();
    app().AuthenticateWindow->showMinimized();
    EXPECT_EQ(broughtForward(), "AuthenticateWindow");
    EXPECT_FALSE(app().AuthenticateWindow->isMinimized());
}

TEST_F(StartedTwice, NothingElseHappensInAnAlert) {
    drive = plugPreparedDrive();
    start();
    alerts.answer(AlertButton::Default, [&](const AlertPanel&) {
        computer.log.clear();
        EXPECT_FALSE(desktop->startAgain());
        EXPECT_THAT(computer.log.lines(), IsEmpty());
    });
    logIn(QStringLiteral("wrong"));
    EXPECT_EQ(messages().size(), 1U);
    EXPECT_EQ(visibleWindow(), "AuthenticateWindow");
}

TEST_F(StartedTwice, ASetUpGoesOn) {
    begin();
    fill({});
    commit();
    tick();
    EXPECT_EQ(broughtForward(), "ZeltoSettingWindow");
    tick(20);
    EXPECT_EQ(app().Setup.InitialSettingState, 4);
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_FALSE(hasQuit());
}

/// What happens when the user asks for the manual in the menu while the program runs.
class AskedForTheManual : public StartedTwice {
protected:
    AskedForTheManual() {
        drive = plugPreparedDrive();
        computer.files.setBundlePath("/usr/bin");
    }
    void installManual() {
        ASSERT_TRUE(computer.files.ownDisk().writeFile(simulator::VirtualFiles::onOwnDisk(Index),
                                                       std::vector<std::uint8_t>{'<'}, {}));
    }
    /// The window that has the keyboard after the user asked from another program's window.
    [[nodiscard]] std::string activeAfterwards() const {
        const OtherWindow other;
        desktop->askForManual();
        QCoreApplication::processEvents();
        const QWidget* const active = QApplication::activeWindow();
        return active == &other ? "other" : active->objectName().toStdString();
    }

    const std::filesystem::path Index = "/usr/share/doc/zelto/manual/index.html";
};

TEST_F(AskedForTheManual, ItsFirstPageOpensAndNothingComesForward) {
    installManual();
    start();
    EXPECT_EQ(activeAfterwards(), "other");
    EXPECT_THAT(desktop->openedDocuments(), testing::ElementsAre(Index));
    EXPECT_EQ(visibleWindow(), "AuthenticateWindow");
}

TEST_F(AskedForTheManual, ItOpensWhileAnAlertIsUp) {
    installManual();
    start();
    alerts.answer(AlertButton::Default, [&](const AlertPanel&) {
        desktop->askForManual();
        EXPECT_THAT(desktop->openedDocuments(), testing::ElementsAre(Index));
    });
    logIn(QStringLiteral("wrong"));
    EXPECT_EQ(messages().size(), 1U);
}

TEST_F(AskedForTheManual, WithoutOneTheProgramComesForward) {
    start();
    EXPECT_EQ(activeAfterwards(), "AuthenticateWindow");
    EXPECT_THAT(desktop->openedDocuments(), IsEmpty());
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(AskedForTheManual, WhereNothingCanShowItTheProgramComesForward) {
    installManual();
    desktop->setOpensNothing();
    start();
    EXPECT_EQ(activeAfterwards(), "AuthenticateWindow");
    EXPECT_THAT(messages(), IsEmpty());
}

/// The program on the drive, started while a copy of it runs on the computer.
class StartedFromTheDrive : public StartedTwice {
protected:
    StartedFromTheDrive() {
        drive = plugPreparedDrive();
        computer.files.setBundlePath(OnVolume);
        computer.files.installBundle(OnVolume, {});
    }
    [[nodiscard]] std::filesystem::path copy() const {
        return computer.files.applicationsFolder() / OnVolume.filename();
    }

    const std::filesystem::path OnVolume = "/media/user/ZELTO TOOL/ZeltoAppMac.app";
};

TEST_F(StartedFromTheDrive, ACopyThatRunsInItsPlaceComesForward) {
    computer.files.installBundle(copy(), {});
    computer.files.setRunning({copy()});
    start();
    EXPECT_EQ(desktop->othersForward(), 1);
    EXPECT_THAT(computer.files.opened(), IsEmpty());
    EXPECT_TRUE(hasQuit());
}

TEST_F(StartedFromTheDrive, ItIsNotTakenForTheSecondBeforeItsCopyHasStarted) {
    desktop->setOtherRuns();
    start();
    EXPECT_EQ(desktop->othersForward(), 0);
    EXPECT_THAT(computer.files.opened(), testing::ElementsAre(copy()));
    EXPECT_TRUE(hasQuit());
}

} // namespace
} // namespace zelto::test
