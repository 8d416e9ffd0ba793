#include "tests/faults/WaysToFail.h"
#include "tests/support/SettingsBench.h"

#include <algorithm>

namespace zelto::test {
namespace {

using namespace std::chrono_literals;

/// Every settings flow with every one of its transfers going wrong, one at a time.
class SettingsFaults : public SettingsBench, public testing::WithParamInterface<WayToFail> {
protected:
    struct Flow {
        std::function<void()> arrange;
        std::function<void()> act;
        /// What is to hold after a transfer went wrong whose failure counts.
        std::function<void()> afterFailure;
        /// Commands whose failure the program ignores.
        std::vector<std::string> unchecked;
        /// Messages that the flow shows anyway.
        std::size_t ownMessages = 0;
    };

    [[nodiscard]] std::vector<std::string> allCommands() const {
        return computer.log.texts(simulator::LogLine::Kind::Command);
    }

    void run(const Flow& flow) {
        flow.arrange();
        computer.log.clear();
        alerts.clear();
        plan->restartCount();
        flow.act();
    }

    void sweep(const Flow& flow) {
        run(flow);
        const auto undisturbed = allCommands();
        ASSERT_EQ(plan->transfers(), undisturbed.size());
        putAway();
        for (std::size_t number = 0; number < undisturbed.size(); ++number) {
            SCOPED_TRACE(std::to_string(number) + ": " + undisturbed[number]);
            flow.arrange();
            computer.log.clear();
            alerts.clear();
            plan->restartCount();
            plan->failTransfer(number, GetParam().fault);
            flow.act();
            EXPECT_TRUE(plan->hasStruck());
            check(flow, undisturbed, number);
            putAway();
        }
    }

    void check(const Flow& flow, const std::vector<std::string>& undisturbed, std::size_t number) {
        EXPECT_LE(messages().size(), flow.ownMessages + 1);
        if (std::ranges::find(flow.unchecked, undisturbed[number]) != flow.unchecked.end() ||
            GetParam().fault.kind == Fault::Kind::AnswersShort) {
            return;
        }
        EXPECT_EQ(messages().size(), flow.ownMessages + 1);
        EXPECT_FALSE(hasQuit());
        flow.afterFailure();
        // What the drive heard is what it would have heard anyway, up to the failure; from there
        // on it is only asked for its status.
        const auto heard = allCommands();
        for (std::size_t index = 0; index < heard.size(); ++index) {
            if (index >= undisturbed.size() || heard[index] != undisturbed[index] ||
                index > number) {
                EXPECT_EQ(heard[index], "TKVR21_GetDeviceStatus");
            }
        }
    }

    void windowStaysWithOkEnabled() {
        EXPECT_TRUE(app().MainSettingsWindow->isVisible());
        EXPECT_TRUE(okIsEnabled());
        EXPECT_EQ(app().Setup.InitialSettingState, 0);
    }

    const std::vector<std::string> afterTheCommit{"TKVR21_ZELTO_WriteHintData", "TKVR21_Reconnect"};
};

TEST_P(SettingsFaults, OfFirstTimeSetupKeepTheWindowOpenForARetry) {
    const Wishes wishes{.twoPasswords = true, .key = QStringLiteral("0A1B"), .autoClearDays = "2"};
    sweep({.arrange =
               [&] {
                   begin();
                   fill(wishes);
               },
           .act = [&] { commit(); },
           .afterFailure =
               [&] {
                   windowStaysWithOkEnabled();
                   EXPECT_FALSE(
                       app().Settings.PasswordSettingsParameters.strNew1stPassword.isEmpty());
               },
           .unchecked = afterTheCommit});
}

class SettingsRetries : public SettingsFaults {};

TEST_P(SettingsRetries, OfFirstTimeSetupSucceed) {
    for (const char* command :
         {"TKVR21_SetAreaInfos", "TKVR21_SetEncryptionInfo", "TKVR21_SetAuthInfo",
          "TKVR21_ZELTO_SetErasePeriod", "TKVR21_ZELTO_SetIdleLockPeriod"}) {
        SCOPED_TRACE(command);
        begin();
        fill({.twoPasswords = true});
        failCommand(command, GetParam().fault);
        commit();
        plan->clear();
        if (app().Setup.InitialSettingState == 0) {
            commit();
        }
        EXPECT_EQ(app().Setup.InitialSettingState, 1);
        computer.advance(15s);
        EXPECT_EQ(app().Setup.InitialSettingState, 4);
        EXPECT_TRUE(isEnabled("ZeltoSettingOKButton"));
        putAway();
    }
}

TEST_P(SettingsFaults, OfAChangeKeepTheWindowOpenWithTheEntries) {
    sweep({.arrange =
               [&] {
                   beginWithSettingsOf({.twoPasswords = true});
                   inDialog("PasswordSettingsButton", "PasswordChangeWindow", [&] {
                       type("PC_Current1stPasswordText", "first");
                       type("PC_New1stPasswordText", "newFirst");
                       type("PC_AgainNew1stPasswordText", "newFirst");
                       type("PC_Current2ndPasswordText", "second");
                       type("PC_New2ndPasswordText", "newSecond");
                       type("PC_AgainNew2ndPasswordText", "newSecond");
                       type("PC_2ndPasswordNumberOfTrials", "9");
                       press("PC_OKButton");
                   });
               },
           .act = [&] { commit(); },
           .afterFailure =
               [&] {
                   windowStaysWithOkEnabled();
                   EXPECT_EQ(app().Settings.PasswordSettingsParameters.strCurrent1stPassword.view(),
                             u"first");
               },
           .unchecked = afterTheCommit});
}

TEST_P(SettingsFaults, OfClearingAllLeaveTheProgramRunning) {
    sweep({.arrange = [&] { beginWithSettingsOf({}); },
           .act =
               [&] {
                   alerts.answer(AlertButton::Alternate);
                   press("MainSettingsClearAllButton");
               },
           .afterFailure = [&] { EXPECT_TRUE(app().MainSettingsWindow->isVisible()); },
           // The first of the two may fail: that is what leads on to the second.
           .unchecked = {"TKVR21_ResetAreaInfos"},
           .ownMessages = 1});
}

TEST_P(SettingsFaults, OfErasingTheKeyLeaveTheProgramRunningUntilItLogsOut) {
    sweep({.arrange = [&] { beginWithSettingsOf({}); },
           .act =
               [&] {
                   alerts.answer(AlertButton::Alternate);
                   press("EraseEncryptionKeyButton");
               },
           .afterFailure = [&] { EXPECT_TRUE(app().MainSettingsWindow->isVisible()); },
           // Logging out belongs to the end: the program quits whatever comes of it.
           .unchecked = {"TKVR21_GetAreaInfos", "TKVR21_Logout"},
           .ownMessages = 1});
}

INSTANTIATE_TEST_SUITE_P(Every, SettingsFaults, waysToFail(Ways::All), nameOfWay);
INSTANTIATE_TEST_SUITE_P(Every, SettingsRetries, waysToFail(Ways::DriveStays), nameOfWay);

} // namespace
} // namespace zelto::test
