#pragma once

#include "tests/support/ControllerBench.h"
#include "ui/Strings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

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

    /// Starts the program and chooses the drive, if there is anything to choose from: the one that
    /// came last, where several have its serial number.
    void startWithDrive() {
        start();
        if (!app().SelectZeltoWindow->isVisible()) {
            return;
        }
        const auto& serials = app().Drives.UsbSerial;
        const auto found = std::find(serials.rbegin(), serials.rend(), Serial);
        ASSERT_NE(found, serials.rend());
        person.choose("SelectZeltoComboBox", static_cast<int>(serials.rend() - found) - 1);
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

    void check(const char* box, bool on) {
        if (isChecked(box) != on) {
            press(box);
        }
    }

    /// Opens a dialog by its button and does something in it; a dialog that is still open then is
    /// closed as with Escape.
    void inDialog(const char* opener, const char* dialog, const std::function<void()>& work) {
        press(opener, [&] {
            EXPECT_EQ(visibleWindow(), dialog);
            work();
            if (visibleWindow() == dialog) {
                person.visibleWindow()->reject();
            }
        });
        EXPECT_NE(visibleWindow(), dialog);
    }

    /// Does something in the dialog for the passwords of a new drive with laid-out areas.
    void inPasswordDialog(const std::function<void()>& work) {
        begin();
        layOut({});
        inDialog("PasswordSettingsButton", "PasswordSettingsWindow", work);
    }

    void layOut(const Wishes& wishes) {
        inDialog("AreaSettingsButton", "AreaSettingsWindow", [&] {
            type("Disk1CapacityText", wishes.mebibytes[0]);
            type("Disk2CapacityText", wishes.mebibytes[1]);
            type("Disk3CapacityText", wishes.mebibytes[2]);
            check("Disk1SecureCheckBox", wishes.secureDisk == 1);
            check("Disk2SecureCheckBox", wishes.secureDisk == 2);
            check("Disk3SecureCheckBox", wishes.secureDisk == 3);
            press("AreaSettingsOKButton");
        });
    }

    void setPasswords(const Wishes& wishes) {
        inDialog("PasswordSettingsButton", "PasswordSettingsWindow", [&] {
            press(wishes.twoPasswords ? "PS_1stAnd2ndCell" : "PS_1stOnlyCell");
            type("PS_1stPasswordText", wishes.firstPassword);
            type("PS_Again1stPasswordText", wishes.firstPassword);
            if (wishes.twoPasswords) {
                type("PS_2ndPasswordText", wishes.secondPassword);
                type("PS_Again2ndPasswordText", wishes.secondPassword);
                type("PS_2ndPasswordNumberOfTrials", wishes.trials);
            }
            press("PS_OKButton");
        });
    }

    void setKey(const QString& key) {
        press("EncryptionKeyManualCell");
        inDialog("EncryptionKeyButton", "EncryptionKeyWindow", [&] {
            type("EncryptionKeyText", key);
            press("EncryptionKeyOKButton");
        });
    }

    /// Fills the main settings window for first-time set-up.
    void fill(const Wishes& wishes) {
        layOut(wishes);
        if (wishes.secureDisk == 0) {
            return;
        }
        setPasswords(wishes);
        if (!wishes.key.isEmpty()) {
            setKey(wishes.key);
        }
        if (*wishes.autoClearDays != 0) {
            check("AutoClearEnabledCheckBox", true);
            type("AutoClearText", wishes.autoClearDays);
        }
        if (*wishes.autoLogOffMinutes != 0) {
            check("AutoLogOffEnabledCheckBox", true);
            type("AutoLogOffText", wishes.autoLogOffMinutes);
        }
    }

    void commit() { press("MainSettingsOKButton"); }

    /// A drive from its box to "finished", and the program started again.
    void setUpAndStartAgain(const Wishes& wishes) {
        fill(wishes);
        commit();
        tick(10);
        ASSERT_EQ(app().Setup.InitialSettingState, 4);
        ASSERT_THAT(messages(), testing::IsEmpty());
        press("ZeltoSettingOKButton");
        ASSERT_TRUE(hasQuit());
        startAgain();
    }

    void logIn(const QString& password) {
        type("AuthenticateTextField", password);
        press("AuthenticateSubmit");
    }

    void openSettingsOfUnlockedDrive() {
        press(app().UnlockedWindow->isVisible() ? "UnlockedSetup" : "UnlockingSetup");
        ASSERT_TRUE(app().MainSettingsWindow->isVisible());
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

    [[nodiscard]] const simulator::LogLine& latest(const std::string& command) const {
        static const simulator::LogLine none;
        const auto* const line = computer.log.latest(command);
        EXPECT_NE(line, nullptr) << command;
        return line == nullptr ? none : *line;
    }
    [[nodiscard]] std::vector<simulator::LogLine> all(const std::string& command) const {
        std::vector<simulator::LogLine> found;
        for (const auto& line : computer.log.lines()) {
            if (line.text == command) {
                found.push_back(line);
            }
        }
        return found;
    }

    /// The next transfer of this command goes wrong, and all later ones of it.
    void failCommand(const std::string& command, Fault fault) {
        plan->failWhen(
            [command](const IOUSBDevRequest& request) {
                return simulator::commandName(request) == command;
            },
            fault);
    }

    [[nodiscard]] SecurityState driveState() {
        return drive->drive().state(computer.clock.worldTime());
    }
    [[nodiscard]] bool okIsEnabled() { return isEnabled("MainSettingsOKButton"); }

    Drive drive;

private:
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
