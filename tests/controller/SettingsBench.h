#pragma once

#include "tests/support/ControllerBench.h"
#include "ui/Strings.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QRadioButton>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
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

/// The bench with one drive whose cable can be made to fail, and a person who knows the way through
/// the settings.
class SettingsBench : public testing::Test, protected ControllerBench {
protected:
    static constexpr std::uint64_t DriveSectors = NewDriveSectors;
    inline static const std::string Serial = "ZD0000000001";

    /// Plugs a new drive in and starts the program.
    void begin(std::uint64_t sectors = DriveSectors) {
        drive = plugNewDrive(Serial, sectors);
        startWithDrive();
    }

    /// Starts the program and chooses the drive, if there is anything to choose from.
    void startWithDrive() {
        start();
        if (!app().SelectZeltoWindow.isVisible()) {
            return;
        }
        const auto& serials = app().Drives.UsbSerial;
        const auto found = std::ranges::find(serials, Serial);
        ASSERT_NE(found, serials.end());
        person.choose("SelectZeltoComboBox", static_cast<int>(found - serials.begin()));
        press("SelectZeltoOK");
    }

    /// The program ends and is started again, on the drive as it stands.
    void startAgain() {
        end();
        computer.log.clear();
        alerts.clear();
        startWithDrive();
    }

    /// The program ends and the drive is put away: ready for another beginning.
    void putAway() {
        end();
        plan->clear();
        if (computer.usb.isPlugged(drive)) {
            unplug(drive);
        }
        computer.settle();
        computer.log.clear();
        alerts.clear();
    }

    /// The person, by the controls themselves.
    using ControllerBench::type;
    void type(const QLineEdit* field, const QString& text) { type(nameOf(field).c_str(), text); }
    void type(const QLineEdit* field, const char* text) { type(field, QString::fromLatin1(text)); }
    void click(const QAbstractButton* button) { press(nameOf(button).c_str()); }
    void check(const QAbstractButton* box, bool on) {
        if (box->isChecked() != on) {
            click(box);
        }
    }

    /// Opens a dialog by its button and does something in it; a dialog that is still open then is
    /// closed as with Escape.
    void inDialog(const QAbstractButton* opener, Window& dialog,
                  const std::function<void()>& work) {
        press(nameOf(opener).c_str(), [&] {
            EXPECT_TRUE(dialog.isVisible());
            work();
            if (dialog.isVisible()) {
                dialog.reject();
            }
        });
        EXPECT_FALSE(dialog.isVisible());
    }

    /// Does something in the dialog for the passwords of a new drive with laid-out areas; `work`
    /// gets its form.
    void inPasswordDialog(const std::function<void(Form<Ui::PasswordSettingsWindow>&)>& work) {
        begin();
        layOut({});
        auto& form = app().PasswordSettingsWindow;
        inDialog(app().MainSettingsWindow.PasswordSettingsButton, form, [&] { work(form); });
    }

    void layOut(const Wishes& wishes) {
        auto& form = app().AreaSettingsWindow;
        inDialog(app().MainSettingsWindow.AreaSettingsButton, form, [&] {
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
        auto& form = app().PasswordSettingsWindow;
        inDialog(app().MainSettingsWindow.PasswordSettingsButton, form, [&] {
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
        auto& main = app().MainSettingsWindow;
        click(main.EncryptionKeyManualCell);
        inDialog(main.EncryptionKeyButton, app().EncryptionKeyWindow, [&] {
            type(app().EncryptionKeyWindow.EncryptionKeyText, key);
            click(app().EncryptionKeyWindow.EncryptionKeyOKButton);
        });
    }

    /// Fills the main settings window for first-time set-up.
    void fill(const Wishes& wishes) {
        auto& main = app().MainSettingsWindow;
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

    void commit() { click(app().MainSettingsWindow.MainSettingsOKButton); }

    /// A drive from its box to "finished", and the program started again.
    void setUpAndStartAgain(const Wishes& wishes) {
        fill(wishes);
        commit();
        tick(10);
        ASSERT_EQ(app().Setup.InitialSettingState, 4);
        ASSERT_THAT(messages(), testing::IsEmpty());
        click(app().ZeltoSettingWindow.ZeltoSettingOKButton);
        ASSERT_TRUE(hasQuit());
        startAgain();
    }

    void logIn(const QString& password) {
        type(app().AuthenticateWindow.AuthenticateTextField, password);
        click(app().AuthenticateWindow.AuthenticateSubmit);
    }

    void openSettingsOfUnlockedDrive() {
        auto* const setup = app().UnlockedWindow.isVisible() ? app().UnlockedWindow.UnlockedSetup
                                                             : app().UnlockingWindow.UnlockingSetup;
        click(setup);
        ASSERT_TRUE(app().MainSettingsWindow.isVisible());
    }

    /// A drive that was set up, logged in to, with the settings open. It was set up elsewhere,
    /// which saves the time that setting it up here takes.
    void beginWithSettingsOf(const Wishes& wishes) {
        drive = plugPreparedDrive(setupOf(wishes));
        startWithDrive();
        openSettingsAfterLogIn(wishes);
    }
    void openSettingsAfterLogIn(const Wishes& wishes) {
        if (wishes.secureDisk != 0) {
            logIn(wishes.firstPassword);
            if (wishes.twoPasswords) {
                logIn(wishes.secondPassword);
            }
            openSettingsOfUnlockedDrive();
        }
        computer.log.clear();
    }

    /// The commands since the log was cleared, in order, without their common prefix and without
    /// what the tick reads.
    [[nodiscard]] std::vector<std::string> commands() const {
        auto names = ControllerBench::commands();
        for (auto& name : names) {
            name.erase(0, Prefix.size());
        }
        return names;
    }
    [[nodiscard]] const simulator::LogLine& latest(const std::string& command) const {
        static const simulator::LogLine none;
        const auto* const line = computer.log.latest(Prefix + command);
        EXPECT_NE(line, nullptr) << command;
        return line == nullptr ? none : *line;
    }
    [[nodiscard]] std::vector<simulator::LogLine> all(const std::string& command) const {
        std::vector<simulator::LogLine> found;
        for (const auto& line : computer.log.lines()) {
            if (line.text == Prefix + command) {
                found.push_back(line);
            }
        }
        return found;
    }
    [[nodiscard]] std::vector<QString> messages() const { return alertTexts(); }

    /// The next transfer of this command goes wrong, and all later ones of it.
    void failCommand(const std::string& command, simulator::Fault fault) {
        plan->failWhen(
            [name = Prefix + command](const IOUSBDevRequest& request) {
                return simulator::commandName(request) == name;
            },
            fault);
    }

    [[nodiscard]] SecurityState driveState() {
        return drive->drive().state(computer.clock.worldTime());
    }
    [[nodiscard]] bool okIsEnabled() {
        return app().MainSettingsWindow.MainSettingsOKButton->isEnabled();
    }

    Drive drive;

private:
    inline static const std::string Prefix = "TKVR21_";

    static std::string nameOf(const QWidget* control) {
        return control->objectName().toStdString();
    }

    /// What first-time set-up makes of the wishes, its unset clock and blank user areas included.
    static simulator::DriveSetup setupOf(const Wishes& wishes) {
        constexpr std::uint32_t SecondsPerDay = 86400;
        constexpr std::uint32_t SecondsPerMinute = 60;
        simulator::DriveSetup setup{
            .serial = Serial,
            .areas = {},
            .firstPassword = wishes.firstPassword.toStdString(),
            .secondPassword =
                wishes.twoPasswords ? wishes.secondPassword.toStdString() : std::string(),
            .trials = static_cast<std::uint8_t>(QByteArray(wishes.trials).toUInt()),
            .autoClearSeconds = QByteArray(wishes.autoClearDays).toUInt() * SecondsPerDay,
            .idleLockSeconds = static_cast<std::uint16_t>(
                QByteArray(wishes.autoLogOffMinutes).toUInt() * SecondsPerMinute),
            .clockIsSet = false};
        for (int disk = 1; disk <= 3; ++disk) {
            const auto mebibytes =
                QByteArray(wishes.mebibytes[static_cast<std::size_t>(disk) - 1]).toULongLong();
            if (mebibytes != 0) {
                setup.areas.push_back({mebibytes, disk == wishes.secureDisk});
            }
        }
        return setup;
    }
};

} // namespace zelto::test
