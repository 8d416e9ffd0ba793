#include "device/VendorRequest.h"
#include "tests/faults/WaysToFail.h"
#include "tests/support/ControllerBench.h"
#include "ui/Strings.h"

#include <functional>
#include <map>

namespace zelto::test {
namespace {

/// A request in a letter.
char letterOf(const simulator::LogLine& line) {
    static const std::map<std::string, char> Letters{
        {"TKVR21_GetDeviceStatus", 'D'},     {"TKVR21_GetAreaInfos", 'A'},
        {"TKVR21_ZELTO_ReadHintData", 'H'},  {"TKVR21_ZELTO_GetTimeStatus", 'T'},
        {"TKVR21_Authenticate", 'U'},        {"TKVR21_Logout", 'L'},
        {"TKVR21_ZELTO_SetCurrentTime", 'C'}};
    if (line.kind == simulator::LogLine::Kind::StandardRequest) {
        return 's'; // The serial number.
    }
    const auto found = Letters.find(line.text);
    return found == Letters.end() ? '?' : found->second;
}

/// Where a flow ends.
struct Ending {
    /// The open window; "" for none, and nothing at all once the program has quit.
    const char* window = "";
    std::vector<QString> messages = {};
    /// What the program still asks of the drive after the transfer that went wrong.
    const char* asksAfterwards = "";
};
constexpr const char* Quit = nullptr;

/// The flow's ending when transfer `transfer` goes wrong in one of these ways.
struct Row {
    std::size_t transfer;
    /// Letters of WayToFail.
    const char* ways;
    Ending ending;
};

struct Flow {
    std::function<void()> arrange;
    std::function<void()> act;
    /// What an undisturbed run asks of the drive.
    const char* asks;
    /// One for each transfer and each way.
    std::vector<Row> rows;
};

/// Every flow of the session with every one of its transfers going wrong, one at a time.
class SessionFaults : public testing::TestWithParam<WayToFail>, protected ControllerBench {
protected:
    void sweep(const Flow& flow) {
        const std::string asks = flow.asks;
        run(flow, {});
        ASSERT_EQ(asked(), asks);
        putAway();
        for (std::size_t transfer = 0; transfer < asks.size(); ++transfer) {
            SCOPED_TRACE("transfer " + std::to_string(transfer) + " of " + asks);
            run(flow, transfer);
            EXPECT_TRUE(plan->hasStruck());
            EXPECT_EQ(asked().substr(0, transfer + 1), asks.substr(0, transfer + 1));
            check(expectedEnding(flow, transfer), asked().substr(transfer + 1));
            putAway();
        }
    }

    void run(const Flow& flow, std::optional<std::size_t> failing) {
        flow.arrange();
        alerts.clear();
        computer.log.clear();
        plan->restartCount();
        if (failing) {
            plan->failTransfer(*failing, GetParam().fault);
        }
        if (m_answer) {
            alerts.answer(*m_answer);
        }
        flow.act();
    }

    /// What the program has asked of the drive, whether or not a drive was there to hear it: a
    /// letter for each request.
    [[nodiscard]] std::string asked() const {
        std::string letters;
        for (const simulator::LogLine& line : computer.log.lines()) {
            if (line.kind == simulator::LogLine::Kind::Command ||
                line.kind == simulator::LogLine::Kind::StandardRequest) {
                letters += letterOf(line);
            }
        }
        return letters;
    }

    static Ending expectedEnding(const Flow& flow, std::size_t transfer) {
        for (const Row& row : flow.rows) {
            if (row.transfer == transfer &&
                std::string(row.ways).find(GetParam().letter()) != std::string::npos) {
                return row.ending;
            }
        }
        ADD_FAILURE() << "nothing is expected of this";
        return {};
    }

    void check(const Ending& ending, const std::string& askedAfterwards) {
        EXPECT_EQ(messages(), ending.messages);
        EXPECT_EQ(askedAfterwards, ending.asksAfterwards);
        EXPECT_EQ(hasQuit(), ending.window == Quit);
        if (ending.window != Quit) {
            EXPECT_EQ(visibleWindow(), ending.window);
        }
        EXPECT_EQ(alerts.open(), 0);
    }

    void putAway() {
        end();
        plan->clear();
        if (computer.usb.isPlugged(m_drive)) {
            unplug(m_drive);
        }
        computer.settle();
        computer.log.clear();
    }

    void logInTyping(const char* password) {
        start();
        type("AuthenticateTextField", QString::fromLatin1(password));
    }
    void submit() { press("AuthenticateSubmit"); }

    static QString notFound() { return localized("IDS_ERR_NOT_FOUND_ZELTO"); }
    static QString sense(int key, int code, int qualifier) {
        return localized("IDS_COMMAND_FAIL_WITH_SENSE_INFO", key, code, qualifier);
    }

    /// To the first alert of each run.
    std::optional<AlertButton> m_answer;
    Drive m_drive;
};

TEST_P(SessionFaults, OfTheStartOpenAWindowOrSayThatTheDriveIsGone) {
    sweep({.arrange =
               [&] {
                   m_drive =
                       plugPreparedDrive({.autoClearSeconds = 86400, .showsRemainingTime = true});
               },
           .act = [&] { start(); },
           .asks = "sDHT",
           .rows = {{0, "RLZS", {"AuthenticateWindow", {}, "DHT"}},
                    {0, "G", {Quit, {notFound()}, "DA"}},
                    {1, "RLZS", {"MainSettingsWindow", {}, "ADHT"}},
                    {1, "G", {Quit, {notFound()}, "A"}},
                    {2, "RLZG", {"AuthenticateWindow", {}, ""}},
                    {2, "S", {"AuthenticateWindow", {}, "T"}},
                    {3, "RLZSG", {"AuthenticateWindow", {}, ""}}}});
}

TEST_P(SessionFaults, OfALogInKeepTheWindowOpenUnlessTheDriveIsGone) {
    sweep({.arrange =
               [&] {
                   m_drive = plugPreparedDrive();
                   logInTyping("first");
               },
           .act = [&] { submit(); },
           .asks = "UD",
           .rows = {{0, "RL", {"AuthenticateWindow", {}, "D"}},
                    {0, "ZS", {"UnlockingWindow", {}, "D"}},
                    {0, "G", {Quit, {notFound()}, ""}},
                    {1, "RLZS", {"MainSettingsWindow", {}, "ADHT"}},
                    {1, "G", {Quit, {notFound()}, "A"}}}});
}

TEST_P(SessionFaults, OfTheSecondStepKeepTheWindowOpenUnlessTheDriveIsGone) {
    sweep({.arrange =
               [&] {
                   m_drive = plugPreparedDrive({.secondPassword = "second"});
                   logInTyping("first");
                   submit();
                   type("AuthenticateTextField", QStringLiteral("second"));
               },
           .act = [&] { submit(); },
           .asks = "U",
           .rows = {{0, "RL", {"AuthenticateWindow", {}, "D"}},
                    {0, "ZS", {"UnlockedWindow", {}, ""}},
                    {0, "G", {Quit, {notFound()}, ""}}}});
}

TEST_P(SessionFaults, OfAWrongPasswordNeverOpenTheDrive) {
    const QString refused = localized("IDS_ERR_AUTHENTICATE_FAILED");
    sweep({.arrange =
               [&] {
                   m_drive = plugPreparedDrive();
                   logInTyping("wrong");
               },
           .act = [&] { submit(); },
           .asks = "UD",
           .rows = {{0, "R", {"AuthenticateWindow", {}, "D"}},
                    {0, "LZS", {"AuthenticateWindow", {refused}, "D"}},
                    {0, "G", {Quit, {notFound()}, ""}},
                    {1, "RL", {"AuthenticateWindow", {sense(5, 0x74, 0x40)}, "D"}},
                    {1, "ZS", {"AuthenticateWindow", {}, ""}},
                    {1, "G", {"AuthenticateWindow", {notFound()}, ""}}}});
}

class SessionRetries : public SessionFaults {};

TEST_P(SessionRetries, OfALogInSucceedWithTheTextThatStillStandsThere) {
    m_drive = plugPreparedDrive();
    logInTyping("first");
    plan->restartCount();
    plan->failTransfer(0, GetParam().fault);
    submit();
    EXPECT_EQ(text("AuthenticateTextField"), QStringLiteral("first"));
    submit();
    EXPECT_EQ(visibleWindow(), "UnlockingWindow");
}

TEST_P(SessionFaults, OfALogOffEndTheProgramAllTheSame) {
    sweep({.arrange =
               [&] {
                   m_drive = plugPreparedDrive();
                   logInTyping("first");
                   submit();
               },
           .act = [&] { press("UnlockingLogOff"); },
           .asks = "AL",
           .rows = {{0, "RL", {Quit, {sense(0, 0, 0)}, "D"}},
                    {0, "ZS", {Quit, {}, "L"}},
                    {0, "G", {Quit, {notFound()}, ""}},
                    {1, "RLZSG", {Quit, {}, ""}}}});
}

TEST_P(SessionFaults, OfSettingTheClockAreReportedAndKeepTheWindowOpen) {
    sweep({.arrange =
               [&] {
                   m_drive = plugPreparedDrive({.areas = {{.mebibytes = 16}}, .clockIsSet = false});
                   start();
                   tick();
               },
           .act = [&] { press("MainSettingsSetTimeButton"); },
           .asks = "C",
           .rows = {{0, "RL", {"MainSettingsWindow", {sense(0, 0, 0)}, "D"}},
                    {0, "ZS", {Quit, {localized("IDS_TIME_SYNC_COMPLETE")}, ""}},
                    {0, "G", {"MainSettingsWindow", {notFound()}, ""}}}});
}

TEST_P(SessionFaults, OfSettingTheClockOfAFullyLockedDriveEndTheProgram) {
    const QString offer =
        localized("IDS_FULLLOCK_TIME_STATUS_INVALID", QStringLiteral("2026/03/02 09:30"));
    const QString done = localized("IDS_SET_CURRENT_YIME");
    m_answer = AlertButton::Default;
    sweep({.arrange =
               [&] {
                   m_drive = plugPreparedDrive({.autoClearSeconds = 86400});
                   m_drive->drive().loseClock(computer.clock.worldTime());
               },
           .act = [&] { start(); },
           .asks = "sDTC",
           .rows = {{0, "RLZS", {Quit, {offer, done}, "DTC"}},
                    {0, "G", {Quit, {notFound()}, "DA"}},
                    {1, "RLZS", {"MainSettingsWindow", {}, "AD"}},
                    {1, "G", {Quit, {notFound()}, "A"}},
                    {2, "RLG", {Quit, {}, ""}},
                    {2, "Z", {"MainSettingsWindow", {localized("IDS_ERR_ZELTO_DRIVE_LOST")}, "AD"}},
                    {2, "S", {Quit, {offer, done}, "C"}},
                    {3, "RL", {Quit, {offer, sense(0, 0, 0)}, "D"}},
                    {3, "ZS", {Quit, {offer, done}, ""}},
                    {3, "G", {Quit, {offer, notFound()}, ""}}}});
}

TEST_P(SessionFaults, OfATickLeaveTheDrivesLabelsAsTheyWere) {
    sweep({.arrange =
               [&] {
                   m_drive = plugPreparedDrive();
                   start();
                   tick();
               },
           .act =
               [&] {
                   const QString before = text("AuthenticateDeviceTimeText");
                   tick();
                   if (std::string("RLG").find(GetParam().letter()) != std::string::npos &&
                       plan->hasStruck()) {
                       EXPECT_EQ(text("AuthenticateDeviceTimeText"), before);
                   }
               },
           .asks = "T",
           .rows = {{0, "RLZSG", {"AuthenticateWindow", {}, ""}}}});
}

INSTANTIATE_TEST_SUITE_P(Every, SessionFaults, waysToFail(Ways::All), nameOfWay);
INSTANTIATE_TEST_SUITE_P(Every, SessionRetries, waysToFail(Ways::Unheard), nameOfWay);

} // namespace
} // namespace zelto::test
