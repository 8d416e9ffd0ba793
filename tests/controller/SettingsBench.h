#pragma once

#include "app/AppDelegate.h"
#include "simulator/computer/DriveOnBus.h"
#include "simulator/computer/FaultyDevice.h"
#include "simulator/computer/ScriptedAlerts.h"
#include "simulator/computer/VirtualComputer.h"
#include "ui/Strings.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QRadioButton>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

/// For failure messages, which would list a text's bytes otherwise.
inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}

namespace zelto::test {

/// What the person in front of the settings wants.
struct Wishes {
    std::array<const char*, 3> mebibytes{"60", "0", "0"};
    /// 1 to 3; 0: none.
    int secureDisk = 1;
    bool twoPasswords = false;
    QString firstPassword = QStringLiteral("first");
    QString secondPassword = QStringLiteral("second");
    const char* trials = "3";
    /// Empty: the drive makes its own key.
    QString key = QString();
    const char* autoClearDays = "";
    const char* autoLogOffMinutes = "";
};

/// The real controller with its real windows, on a virtual computer with one virtual drive. The
/// person works through the controls alone.
class SettingsBench : public testing::Test {
protected:
    static constexpr std::uint64_t DriveSectors = 262144;

    /// Plugs a drive in and starts the program.
    void begin(std::uint64_t sectors = DriveSectors) {
        drive = simulator::makeDrive("ZD0000000001", sectors);
        computer.usb.setHandleWrapper([this](std::unique_ptr<UsbDeviceInterface> handle) {
            return std::make_unique<simulator::FaultyDevice>(std::move(handle), plan);
        });
        computer.plug(drive);
        startProgram();
    }

    void startProgram() {
        app = std::make_unique<AppDelegate>(computer.platform(alerts));
        app->applicationDidFinishLaunching();
        computer.settle();
    }

    /// The program ends and is started again, on the drive as it stands.
    void startAgain() {
        app.reset();
        computer.endProcess();
        computer.log.clear();
        alerts.clear();
        startProgram();
    }

    /// The program ends and the drive is put away: ready for another beginning.
    void putAway() {
        app.reset();
        computer.endProcess();
        plan->clear();
        if (computer.usb.isPlugged(drive)) {
            computer.unplug(drive);
        }
        computer.settle();
        computer.log.clear();
        alerts.clear();
    }

    void TearDown() override { app.reset(); }

    /// Types a text in place of the one that stands there, as a person would.
    static void type(QLineEdit* field, const QString& text) {
        ASSERT_TRUE(field->isEnabled()) << field->objectName().toStdString();
        field->selectAll();
        if (text.isEmpty()) {
            field->del();
        } else {
            field->insert(text);
        }
    }
    static void type(QLineEdit* field, const char* text) { type(field, QString::fromLatin1(text)); }
    static void click(QAbstractButton* button) {
        ASSERT_TRUE(button->isEnabled()) << button->objectName().toStdString();
        button->click();
    }
    static void check(QAbstractButton* box, bool on) {
        if (box->isChecked() != on) {
            click(box);
        }
    }

    /// Opens a dialog by its button and does something in it; a dialog that is still open then is
    /// closed as with Escape.
    void inDialog(QAbstractButton* opener, Window& dialog, const std::function<void()>& work) {
        ASSERT_TRUE(opener->isEnabled()) << opener->objectName().toStdString();
        bool worked = false;
        QTimer::singleShot(0, &dialog, [&] {
            worked = true;
            EXPECT_TRUE(dialog.isVisible());
            work();
            if (dialog.isVisible()) {
                dialog.reject();
            }
        });
        opener->click();
        EXPECT_TRUE(worked) << "the dialog did not open";
        EXPECT_FALSE(dialog.isVisible());
    }

    void layOut(const Wishes& wishes) {
        auto& form = app->AreaSettingsWindow;
        inDialog(app->MainSettingsWindow.AreaSettingsButton, form, [&] {
            type(form.Disk1CapacityText, wishes.mebibytes[0]);
            type(form.Disk2CapacityText, wishes.mebibytes[1]);
            type(form.Disk3CapacityText, wishes.mebibytes[2]);
            check(form.Disk1SecureCheckBox, wishes.secureDisk == 1);
            check(form.Disk2SecureCheckBox, wishes.secureDisk == 2);
            check(form.Disk3SecureCheckBox, wishes.secureDisk == 3);
            click(form.AreaSettingsOKButton);
        });
    }

    void setPasswords(const Wishes& wishes) {
        auto& form = app->PasswordSettingsWindow;
        inDialog(app->MainSettingsWindow.PasswordSettingsButton, form, [&] {
            click(wishes.twoPasswords ? form.PS_1stAnd2ndCell : form.PS_1stOnlyCell);
            type(form.PS_1stPasswordText, wishes.firstPassword);
            type(form.PS_Again1stPasswordText, wishes.firstPassword);
            if (wishes.twoPasswords) {
                type(form.PS_2ndPasswordText, wishes.secondPassword);
                type(form.PS_Again2ndPasswordText, wishes.secondPassword);
                type(form.PS_2ndPasswordNumberOfTrials, wishes.trials);
            }
            click(form.PS_OKButton);
        });
    }

    void setKey(const QString& key) {
        auto& main = app->MainSettingsWindow;
        click(main.EncryptionKeyManualCell);
        inDialog(main.EncryptionKeyButton, app->EncryptionKeyWindow, [&] {
            type(app->EncryptionKeyWindow.EncryptionKeyText, key);
            click(app->EncryptionKeyWindow.EncryptionKeyOKButton);
        });
    }

    /// Fills the main settings window for first-time set-up.
    void fill(const Wishes& wishes) {
        auto& main = app->MainSettingsWindow;
        layOut(wishes);
        if (wishes.secureDisk == 0) {
            return;
        }
        setPasswords(wishes);
        if (!wishes.key.isEmpty()) {
            setKey(wishes.key);
        }
        if (*wishes.autoClearDays != 0) {
            check(main.AutoClearEnabledCheckBox, true);
            type(main.AutoClearText, wishes.autoClearDays);
        }
        if (*wishes.autoLogOffMinutes != 0) {
            check(main.AutoLogOffEnabledCheckBox, true);
            type(main.AutoLogOffText, wishes.autoLogOffMinutes);
        }
    }

    void commit() { click(app->MainSettingsWindow.MainSettingsOKButton); }

    /// A drive from its box to "finished", and the program started again.
    void setUpAndStartAgain(const Wishes& wishes) {
        fill(wishes);
        commit();
        computer.advance(std::chrono::seconds(10));
        ASSERT_EQ(app->Setup.InitialSettingState, 4);
        ASSERT_THAT(alerts.messages(), testing::IsEmpty());
        click(app->ZeltoSettingWindow.ZeltoSettingOKButton);
        ASSERT_TRUE(computer.application.isStopped());
        startAgain();
    }

    void logIn(const QString& password) {
        type(app->AuthenticateWindow.AuthenticateTextField, password);
        click(app->AuthenticateWindow.AuthenticateSubmit);
    }

    void openSettingsOfUnlockedDrive() {
        auto* const setup = app->UnlockedWindow.isVisible() ? app->UnlockedWindow.UnlockedSetup
                                                            : app->UnlockingWindow.UnlockingSetup;
        click(setup);
        ASSERT_TRUE(app->MainSettingsWindow.isVisible());
    }

    /// A drive that was set up, logged in to, with the settings open.
    void beginWithSettingsOf(const Wishes& wishes) {
        begin();
        setUpAndStartAgain(wishes);
        if (wishes.secureDisk == 0) {
            return;
        }
        logIn(wishes.firstPassword);
        if (wishes.twoPasswords) {
            logIn(wishes.secondPassword);
        }
        openSettingsOfUnlockedDrive();
        computer.log.clear();
    }

    /// The commands sent since the log was cleared, in order, without what the tick reads.
    [[nodiscard]] std::vector<std::string> commands() const {
        std::vector<std::string> names;
        for (const auto& text : computer.log.texts(simulator::LogLine::Kind::Command)) {
            if (text != "TKVR21_ZELTO_GetTimeStatus") {
                names.push_back(text.substr(std::string("TKVR21_").size()));
            }
        }
        return names;
    }
    [[nodiscard]] const simulator::LogLine& latest(const std::string& command) const {
        static const simulator::LogLine none;
        const auto* const line = computer.log.latest("TKVR21_" + command);
        EXPECT_NE(line, nullptr) << command;
        return line == nullptr ? none : *line;
    }
    [[nodiscard]] std::vector<simulator::LogLine> all(const std::string& command) const {
        std::vector<simulator::LogLine> found;
        for (const auto& line : computer.log.lines()) {
            if (line.text == "TKVR21_" + command) {
                found.push_back(line);
            }
        }
        return found;
    }
    [[nodiscard]] std::vector<QString> messages() const { return alerts.messages(); }

    /// The next transfer of this command goes wrong, and all later ones of it.
    void failCommand(const std::string& command, simulator::Fault fault) {
        plan->failWhen(
            [command](const IOUSBDevRequest& request) {
                return simulator::commandName(request) == "TKVR21_" + command;
            },
            fault);
    }

    [[nodiscard]] SecurityState driveState() { return drive->drive().state(computer.clock.now()); }
    [[nodiscard]] bool okIsEnabled() const {
        return app->MainSettingsWindow.MainSettingsOKButton->isEnabled();
    }

    simulator::VirtualComputer computer;
    simulator::ScriptedAlerts alerts{computer.log};
    std::shared_ptr<simulator::FaultPlan> plan = std::make_shared<simulator::FaultPlan>();
    std::shared_ptr<simulator::DriveOnBus> drive;
    std::unique_ptr<AppDelegate> app;
};

} // namespace zelto::test
