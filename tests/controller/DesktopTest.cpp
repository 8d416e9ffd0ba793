#include "tests/support/ScriptedDesktop.h"
#include "tests/support/SettingsBench.h"

#include <gmock/gmock.h>

namespace zelto::test {
namespace {

/// What the program asks of the desktop around it.
class DesktopTest : public SettingsBench {
protected:
    DesktopTest() { computer.desktop = desktop; }

    [[nodiscard]] bool isAwake() const { return desktop->isKeptAwake(); }
    void answerStatusWith(std::uint8_t security) {
        constexpr std::uint8_t StatusRequestCode = 0xC0;
        forge(StatusRequestCode,
              [security](ForgedReplies::Reply& reply) { reply.data[33] = security; });
    }

    std::shared_ptr<ScriptedDesktop> desktop = std::make_shared<ScriptedDesktop>();
};

TEST_F(DesktopTest, TheComputerStaysAwakeUntilASetUpIsFinished) {
    begin();
    fill({});
    EXPECT_FALSE(isAwake());
    commit();
    for (int state = app().Setup.InitialSettingState; state != 4;
         state = app().Setup.InitialSettingState) {
        EXPECT_TRUE(isAwake()) << "in state " << state;
        tick();
    }
    EXPECT_FALSE(isAwake());
    EXPECT_FALSE(hasQuit());
}

TEST_F(DesktopTest, TheComputerMaySleepAgainAfterASetUpThatFailed) {
    begin();
    fill({});
    computer.usb.setReconnectDelay(std::nullopt);
    commit();
    tick(60);
    ASSERT_TRUE(hasQuit());
    EXPECT_FALSE(isAwake());
}

TEST_F(DesktopTest, TheComputerStaysAwakeWhileTheToolAreaIsFormatted) {
    begin();
    fill({});
    commit();
    bool wasAwake = false;
    computer.diskTool.setBeforeRun([&](const std::string&) { wasAwake = isAwake(); });
    tick(10);
    EXPECT_TRUE(wasAwake);
    EXPECT_FALSE(isAwake());
}

TEST_F(DesktopTest, TheComputerStaysAwakeWhileVolumesAreReleased) {
    drive = plugPreparedDrive();
    start();
    logIn(QStringLiteral("first"));
    bool wasAwake = false;
    computer.diskTool.setBeforeRun([&](const std::string&) { wasAwake = isAwake(); });
    press("UnlockingLogOff");
    EXPECT_TRUE(wasAwake);
    EXPECT_FALSE(isAwake());
}

TEST_F(DesktopTest, TheComputerStaysAwakeWhilePasswordsAreChangedWhateverTheDriveAnswers) {
    for (const bool isRefused : {false, true}) {
        beginWithSettingsOf({});
        inDialog("PasswordSettingsButton", "PasswordChangeWindow", [&] {
            type("PC_Current1stPasswordText", isRefused ? "wrong" : "first");
            type("PC_New1stPasswordText", "new");
            type("PC_AgainNew1stPasswordText", "new");
            press("PC_OKButton");
        });
        bool wasAwake = false;
        plan->failWhen(
            [&](const IOUSBDevRequest& request) {
                wasAwake = wasAwake ||
                           (simulator::commandName(request) == "TKVR21_SetAuthInfo" && isAwake());
                return false;
            },
            {});
        commit();
        EXPECT_TRUE(wasAwake) << isRefused;
        EXPECT_FALSE(isAwake()) << isRefused;
        putAway();
    }
}

TEST_F(DesktopTest, TheSessionDoesNotEndDuringASetUp) {
    begin();
    EXPECT_TRUE(desktop->endSession());
    fill({});
    commit();
    EXPECT_FALSE(desktop->endSession());
    tick(20);
    EXPECT_TRUE(desktop->endSession());
}

TEST_F(DesktopTest, TheEndOfTheSessionLeavesAnUnlockedDriveAsItIs) {
    drive = plugPreparedDrive();
    start();
    logIn(QStringLiteral("first"));
    for (const char* const opener : {"", "UnlockingSetup"}) {
        if (*opener != 0) {
            press(opener);
        }
        computer.log.clear();
        EXPECT_TRUE(desktop->endSession()) << opener;
        computer.settle();
        EXPECT_THAT(computer.log.lines(), testing::IsEmpty()) << opener;
    }
    end();
    EXPECT_THAT(computer.log.lines(), testing::IsEmpty());
    EXPECT_EQ(driveState(), SecurityState::StateUnlocking);
}

TEST_F(DesktopTest, ADriveThatLeftDuringASleepIsMissedByTheNextCommand) {
    for (const bool comesBack : {false, true}) {
        drive = plugPreparedDrive();
        start();
        logIn(QStringLiteral("first"));
        comesBack ? replug(drive) : unplug(drive);
        computer.skip(std::chrono::hours(8));
        EXPECT_EQ(visibleWindow(), "UnlockingWindow") << "nothing is said unasked";
        EXPECT_THAT(messages(), testing::IsEmpty());
        press("UnlockingLogOff");
        EXPECT_THAT(messages(), testing::ElementsAre(localized("IDS_ERR_NOT_FOUND_ZELTO")));
        EXPECT_TRUE(hasQuit());
        putAway();
    }
}

TEST_F(DesktopTest, SettingsOfADriveThatLeftDuringASleepStayOpenAndSayThatItIsGone) {
    for (const bool comesBack : {false, true}) {
        beginWithSettingsOf({});
        comesBack ? replug(drive) : unplug(drive);
        computer.skip(std::chrono::hours(8));
        tick(3);
        EXPECT_EQ(visibleWindow(), "MainSettingsWindow");
        press("MainSettingsSetTimeButton");
        check("ShowRemainingTimeCheckBox", !isChecked("ShowRemainingTimeCheckBox"));
        commit();
        EXPECT_THAT(messages(), testing::ElementsAre(localized("IDS_ERR_NOT_FOUND_ZELTO"),
                                                     localized("IDS_ERR_NOT_FOUND_ZELTO")));
        EXPECT_FALSE(hasQuit());
        press("MainSettingsCancelButton");
        EXPECT_TRUE(hasQuit());
        putAway();
    }
}

TEST_F(DesktopTest, AProgramWithoutAWindowGivesWayToANewStart) {
    for (const std::uint8_t state : {std::uint8_t{1}, std::uint8_t{6}, std::uint8_t{7}}) {
        drive = plugPreparedDrive();
        answerStatusWith(state);
        start();
        EXPECT_EQ(visibleWindow(), "");
        EXPECT_FALSE(hasQuit()) << "the program stays, until";
        EXPECT_TRUE(desktop->startAgain());
        EXPECT_TRUE(hasQuit());
        putAway();
    }
}

TEST_F(DesktopTest, AProgramWithAWindowDoesNotGiveWay) {
    drive = plugPreparedDrive();
    start();
    EXPECT_FALSE(desktop->startAgain());
    EXPECT_FALSE(hasQuit());
}

TEST_F(DesktopTest, SettingsThatCannotBeReadAfterLogInEndTheProgramInsteadOfHidingIt) {
    for (const char* command : {"TKVR21_GetAreaInfos", "TKVR21_ZELTO_GetTimeStatus"}) {
        drive = plugPreparedDrive();
        start();
        logIn(QStringLiteral("first"));
        failCommand(command, {.result = kIOUSBPipeStalled});
        press("UnlockingSetup");
        EXPECT_EQ(messages().size(), 1U) << command;
        EXPECT_TRUE(hasQuit()) << command;
        putAway();
    }
}

TEST_F(DesktopTest, ARefusedPasswordIsSelectedSoThatTypingReplacesIt) {
    drive = plugPreparedDrive();
    start();
    logIn(QStringLiteral("wrong"));
    const auto& field = *app().AuthenticateWindow->AuthenticateTextField;
    EXPECT_EQ(app().AuthenticateWindow->focusWidget(), &field);
    EXPECT_EQ(field.selectedText().size(), 5);
    EXPECT_EQ(field.secret(), QStringLiteral("wrong"));
}

TEST_F(DesktopTest, NewsHaveTheirWeight) {
    drive = plugPreparedDrive();
    start();
    logIn(QStringLiteral("wrong"));
    ASSERT_EQ(alerts.panels().size(), 1U);
    EXPECT_EQ(alerts.panels().back().weight, AlertWeight::Warning);
    putAway();

    drive = plugPreparedDrive({.autoClearSeconds = 60});
    computer.advance(std::chrono::seconds(61));
    start();
    EXPECT_EQ(messages().back(), localized("IDS_ERR_ZELTO_DRIVE_LOST"));
    EXPECT_EQ(alerts.panels().back().weight, AlertWeight::Critical);
    putAway();

    drive = plugPreparedDrive({.areas = {{.mebibytes = 16}}, .clockIsSet = false});
    start();
    tick();
    EXPECT_TRUE(control<QWidget>("MainSettingsClockCue")->isVisible());
    press("MainSettingsSetTimeButton");
    EXPECT_EQ(messages().back(), localized("IDS_TIME_SYNC_COMPLETE"));
    EXPECT_EQ(alerts.panels().back().weight, AlertWeight::Information);
}

TEST_F(DesktopTest, BesideADisabledOkStandsWhatIsMissing) {
    begin();
    EXPECT_EQ(text("MainSettingsObstacle"), localized("IDS_HINT_NEXT_AREAS"));
    EXPECT_EQ(text("MainSettingsCommitCue"), localized("IDS_HINT_SETUP_ERASES"));
    layOut({});
    EXPECT_EQ(text("MainSettingsObstacle"), localized("IDS_HINT_NEXT_PASSWORDS"));
    setPasswords({});
    EXPECT_EQ(text("MainSettingsObstacle"), QString());
    EXPECT_TRUE(okIsEnabled());
}

TEST_F(DesktopTest, WhatStandsBesideAControlIsItsDescription) {
    const auto saysOf = [&](const char* name, const char* key) {
        return control<QWidget>(name)->accessibleDescription().contains(localized(key));
    };
    begin();
    EXPECT_TRUE(saysOf("MainSettingsOKButton", "IDS_HINT_SETUP_ERASES"));
    layOut({.secureDisk = 0});
    EXPECT_TRUE(saysOf("AreaSettingsButton", "IDS_HINT_SETUP_OPEN"));
    putAway();

    drive = plugPreparedDrive({.areas = {{.mebibytes = 16}}, .clockIsSet = false});
    start();
    EXPECT_FALSE(saysOf("MainSettingsSetTimeButton", "IDS_HINT_SET_CLOCK_CLOSES"));
    tick();
    EXPECT_TRUE(saysOf("MainSettingsSetTimeButton", "IDS_HINT_SET_CLOCK_CLOSES"));
}

TEST_F(DesktopTest, AFailedSetUpSaysThatTheAreasHaveToBeConfirmedAgain) {
    begin();
    fill({});
    failCommand("TKVR21_SetAreaInfos", {.result = kIOUSBPipeStalled});
    commit();
    EXPECT_EQ(text("MainSettingsAreasCue"), localized("IDS_HINT_SETUP_RETRY"));
    plan->clear();
    layOut({});
    EXPECT_FALSE(control<QWidget>("MainSettingsAreasCue")->isVisible());
}

TEST_F(DesktopTest, AreasWithoutASecureOneSayThatAnyoneCanReadTheDrive) {
    begin();
    layOut({.secureDisk = 0});
    EXPECT_EQ(text("MainSettingsAreasCue"), localized("IDS_HINT_SETUP_OPEN"));
    inDialog("AreaSettingsButton", "AreaSettingsWindow", [&] {
        EXPECT_EQ(text("AreaSettingsCue"), localized("IDS_HINT_SECURE_CHOICE_DROPPED"));
    });
}

} // namespace
} // namespace zelto::test
