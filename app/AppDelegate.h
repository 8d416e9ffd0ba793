#pragma once

#include "app/ControllerState.h"
#include "app/EventGate.h"
#include "device/DeviceStatus.h"
#include "device/Discovery.h"
#include "device/PasswordRecords.h"
#include "device/TimeStatus.h"
#include "platform/Alerts.h"
#include "platform/Desktop.h"
#include "platform/Platform.h"
#include "settings/AreaPacking.h"
#include "settings/AreaSettings.h"
#include "settings/MainSettingsView.h"
#include "settings/Obstacle.h"
#include "settings/OkButtonRules.h"
#include "ui/Forms.h"
#include "ui/LateForm.h"

#include <QString>

#include <array>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace zelto {

class AreaTableModel;

/// The one controller: it owns the windows and all state, and every button, tick and device event
/// ends up here. Each section below is one source file, in the folder of its topic: what the
/// windows call, what the world calls, and what it does itself. Its state is its base.
///
/// Everything runs on the main thread. Operations that send commands to the drive block until the
/// drive has answered (5 s at the most for each command); those that say so show an alert, run the
/// disk tool or pause, and block for as long as that takes, with the gate closed to other events.
class AppDelegate : public ControllerState {
public:
    enum class TerminateReply { TerminateCancel, TerminateNow };

    explicit AppDelegate(const Platform& platform);
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;
    ~AppDelegate();

    // --- Start-up, relocation, shutdown: app/AppDelegate_Startup.cpp --------------------------

    /// Does nothing.
    void applicationWillFinishLaunching();
    /// Relocates the program when it runs from a mounted volume; otherwise resets all fields,
    /// starts the timer and discovery, and opens the first window.
    void applicationDidFinishLaunching();
    /// Refuses while first-time set-up is under way.
    [[nodiscard]] TerminateReply applicationShouldTerminate() const;
    /// Always true: closing the last window is a request to quit.
    [[nodiscard]] bool applicationShouldTerminateAfterLastWindowClosed() const;
    /// Asks the application to quit, twice; the second request is harmless.
    void TerminateApplication();

    [[nodiscard]] bool isAlreadyBooted(const std::filesystem::path& path) const;
    /// Brings the copy at `destination` up to date with `source`. Reports nothing.
    void CopyApplicationFile(const std::filesystem::path& source,
                             const std::filesystem::path& destination);
    /// Starts the bundle at `path` and waits until the opener has exited.
    void ExecuteTempApp(const std::filesystem::path& path);
    /// Clears the user-immutable flag of `path` and waits until the flag tool has exited.
    void ReleaseLock(const std::filesystem::path& path);

    /// The outlet of the main window; nothing else uses it.
    [[nodiscard]] QWidget* window() const { return m_window; }
    void setWindow(QWidget* window) { m_window = window; }

    // --- Tool area: app/AppDelegate_ToolArea.cpp ----------------------------------------------

    /// Erases the disk and gives it one FAT volume for the tool. True on a clean exit of the tool.
    [[nodiscard]] bool FormatDrive(const std::string& bsdName);
    /// Copies the running bundle onto the disk's first partition. Reports a failed copy itself; a
    /// volume that is not mounted is false without a message.
    [[nodiscard]] bool CopyToolFile(const std::string& bsdName);
    /// The 1-based number of the drive's first secure area; left as it is when there is none.
    /// False, after an alert, when the area table cannot be read.
    [[nodiscard]] bool GetSecureAreaDiskNumber(std::uint32_t& diskNumber);

    // --- Volumes: device/AppDelegate_Volumes.cpp ----------------------------------------------

    /// Fills g_BsdNameList with the volumes of the chosen drive's disk `diskNumber`, or with those
    /// of all its disks (0). Empty when the drive is not found.
    void GetBsdNameList(std::uint8_t diskNumber);
    /// Unmounts (`eject` 0) or ejects every mounted volume of the list; all are tried. True when
    /// every run of the disk tool succeeded.
    [[nodiscard]] bool UnmountVolume(const std::vector<std::string>& bsdNames, std::uint8_t eject);
    /// Waits until the drive is ready: ten status reads, a second apart. Reports failure itself and
    /// ends the application when the drive never gets ready.
    [[nodiscard]] bool SpinUpDrive();

    // --- Dispatch and selection: session/AppDelegate_Dispatch.cpp -----------------------------

    /// Opens the window that the chosen drive's security state calls for.
    void ProcessBySecurityState();
    /// Fills the selection window from the list of drives; does not bring it forward.
    void DisplaySelectZeltoWindow();
    void UpdateAccessHint();
    void UpdateDriveSign();
    void SelectZeltoUpdateAction();
    void SelectZeltoShowRuleAction();
    void SelectZeltoOKAction();
    void SelectZeltoCancelAction();
    void DeviceRuleCopyAction();
    void DeviceRuleCloseAction();

    // --- Log-in: session/AppDelegate_Authentication.cpp ---------------------------------------

    void DisplayAuthenticateWindow(bool firstStep, const QString& message);
    /// The one text-change handler of all windows, routed by TextInputMode.
    void controlTextDidChange();
    /// Enables the submit button for an acceptable password only.
    void AuthenticateTextDidChange();
    void AuthenticateSubmitAction();
    void AuthenticateCancelAction();
    /// Writes the digest of a password of at most 32 characters; more is a programming error and
    /// ends the process.
    void SetPasswordData(QStringView password, PasswordDigest& digest) const;

    // --- Unlocked drive: session/AppDelegate_Unlocked.cpp -------------------------------------

    void DisplayUnlockedWindow();
    void UnlockedOKAction();
    void UnlockedLogOffAction();
    void UnlockedSetupAction();
    void DisplayUnlockingWindow();
    void UnlockingLogOffAction();
    void UnlockingCancelAction();
    void UnlockingSetupAction();
    /// Unmounts the secure area's volumes, then locks the drive. A busy volume is reported and
    /// leaves the drive unlocked. A notice says what the drive is now.
    void Logout();

    // --- Timer and clocks: session/AppDelegate_Timer.cpp --------------------------------------

    /// The tick, once a second.
    void TimerHandler();
    /// Writes the computer's time, UTC, into the drive's clock.
    [[nodiscard]] IOReturn SetCurrentTime();
    void MainSettingsSetTimeAction();
    void UpdateCheckBoxShowRemainingTime();
    /// Despite its name it writes to the drive, not to the computer.
    [[nodiscard]] IOReturn UpdateUserDefaultsShowRemainingTime();

    // --- Messages: session/AppDelegate_Messages.cpp -------------------------------------------

    /// Reports a failed command, by its result code and the drive's sense data. Shows an alert.
    void ErrorMessageBox(IOReturn result);

    /// Shows a page of the manual, "logging-in" say; an alert when that is not possible.
    void ShowHelp(const QString& page);

    // --- First-time set-up: settings/AppDelegate_Setup.cpp ------------------------------------

    /// Sends everything that a new drive needs. Reports failure itself; nothing is undone.
    [[nodiscard]] bool ZeltoInitializeSettings();
    void ZeltoSettingOKAction();

    // --- Commit: settings/AppDelegate_Commit.cpp ----------------------------------------------

    void MainSettingsOKAction();
    void MainSettingsCancelAction();
    void MainSettingsEncryptionKeyAuto();
    void MainSettingsEncryptionKeyManual();
    void MainSettingsAutoClearEnabledAction();
    void MainSettingsAutoClearDaysAction();
    void MainSettingsAutoClearMinutesAction();
    void MainSettingsAutoLogOffEnabledAction();
    void MainSettingsShowRemainingTimeEnabledAction();
    /// Sends changed passwords and, always, both periods. Reports failure itself.
    [[nodiscard]] bool ZeltoChangeSettings();

    // --- Main settings window: settings/AppDelegate_MainSettings.cpp --------------------------

    /// With `refresh` false reads the drive and opens the window; with true only recomputes what
    /// follows from the area table as it stands.
    void DisplayMainSettingsWindow(bool refresh);
    void UpdateMainSettingsOKButton();
    void UpdateMainSettingsOKButtonAtInitialization();
    void UpdateMainSettingsOKButtonAtChanging();
    void MainSettingsTextDidChenge();

    // --- Areas: settings/AppDelegate_Areas.cpp ------------------------------------------------

    AreaSettings AreaSettingsDlg;

    [[nodiscard]] int numberOfRowsInTableView() const;
    /// The text of a cell; `column` is the column's identifier, "ColumnIDDisk" say.
    [[nodiscard]] QString tableViewObjectValue(const QString& column, int row) const;
    void MainSettingsAreaSettingsAction();
    void AreaSettingsTextDidChange();
    void UpdateAreaSettingsWindow();
    void AreaSettingsDisk1SecureCheckBoxAction();
    void AreaSettingsDisk2SecureCheckBoxAction();
    void AreaSettingsDisk3SecureCheckBoxAction();
    void AreaSettingsOKAction();
    void AreaSettingsCancelAction();

    // --- Passwords: settings/AppDelegate_Passwords.cpp ----------------------------------------

    void MainSettingsPasswordSettingsAction();
    void DisplayPasswordSettingsWindow();
    void DisplayPasswordChangeWindow();
    void UpdatePasswordSettingsWindow();
    void UpdatePasswordChangeWindow();
    void PasswordSettingsUse1stAction();
    void PasswordSettingsUse1stAnd2ndAction();
    void PasswordSettingsOKAction();
    void PasswordSettingsCancelAction();
    void PasswordChangeOKAction();
    void PasswordChangeCancelAction();

    // --- Encryption key and clearing: settings/AppDelegate_Key.cpp ----------------------------

    void MainSettingsEncryptionKeyAction();
    void UpdateEncryptionKeyWindow();
    void EncryptionKeyOKAction();
    void EncryptionKeyCancelAction();
    void MainSettingsAutoClearEraseAction();
    void MainSettingsClearAllAction();

    // --- The windows, each built when it is first used: their controls are their own members,
    // --- under the controls' given names ------------------------------------------------------

    LateForm<Ui::SelectZeltoWindow> SelectZeltoWindow;
    LateForm<Ui::DeviceRuleWindow> DeviceRuleWindow;
    LateForm<Ui::AuthenticateWindow> AuthenticateWindow;
    LateForm<Ui::UnlockedWindow> UnlockedWindow;
    LateForm<Ui::UnlockingWindow> UnlockingWindow;
    LateForm<Ui::ZeltoSettingWindow> ZeltoSettingWindow;
    LateForm<Ui::MainSettingsWindow> MainSettingsWindow;
    LateForm<Ui::AreaSettingsWindow> AreaSettingsWindow;
    LateForm<Ui::PasswordSettingsWindow> PasswordSettingsWindow;
    LateForm<Ui::PasswordChangeWindow> PasswordChangeWindow;
    LateForm<Ui::EncryptionKeyWindow> EncryptionKeyWindow;

private:
    // app/AppDelegate_Outlets.cpp: which control calls which operation.
    void connectSessionWindows();
    void connectHelp(const Window& window);
    void connectPasswordFields(const Window& window);
    // settings/AppDelegate_SettingsOutlets.cpp
    void connectSettingsWindows();
    void connectMainSettingsWindow();
    void connectAreaSettingsWindow();
    void connectPasswordWindows();
    void connectEncryptionKeyWindow();
    /// `connect` is handed the window when it has been built.
    template <typename Layout, typename Connect>
    void whenBuilt(LateForm<Layout>& window, Connect connect) {
        window.whenBuilt([this, connect](Form<Layout>& form) {
            connectHelp(form);
            connectPasswordFields(form);
            connect(form);
        });
    }

    // app/AppDelegate_Startup.cpp
    void relocate(const std::filesystem::path& bundle, const std::filesystem::path& destination);
    void startSession();
    void showManualOrComeForward();
    /// One request to quit: granted or refused by applicationShouldTerminate.
    void terminate();

    // app/AppDelegate_ToolArea.cpp
    [[nodiscard]] IOReturn readSecureAreaDiskNumber(std::uint32_t& diskNumber);
    void copyFilesBesideBundle(const std::filesystem::path& volume);

    // device/AppDelegate_Volumes.cpp
    /// Whether that volume is mounted, or stands open on another one.
    [[nodiscard]] bool isInUse(const std::string& bsdName) const;

    // session/AppDelegate_Messages.cpp: every message and every pause goes through these, so
    // that the gate is closed while the message is up or the pause lasts.
    /// True when the command failed, which ErrorMessageBox has reported then.
    [[nodiscard]] bool reportIfFailed(IOReturn result);
    /// Reads the sense data of the drive's latest command and shows them in an alert.
    void reportSense();
    /// An alert with the application's title and the one button "OK".
    void ShowMessage(AlertWeight weight, const QString& message, const QString& detail = {});
    /// A confirmation that Return and Escape cancel; true when the user pressed OK.
    [[nodiscard]] bool Confirm(const char* messageKey);
    /// IDS_ERR_UNMOUNT, with the programs that keep the volumes of g_BsdNameList busy.
    void ReportUnmountFailure();
    AlertButton RunAlertPanel(const AlertPanel& panel);
    /// Says on the desktop what the program's end would leave unsaid.
    void LeaveNotice(Desktop::Notice::Weight weight, const char* messageKey);
    void Pause(std::chrono::seconds duration);

    // session/AppDelegate_Dispatch.cpp
    void showWhetherThereAreDrives(bool anyDrive);
    void processFullLock();
    void offerToSetClock();
    /// Asks to quit when no window is on the screen.
    void quitWithoutWindow();

    // session/AppDelegate_Authentication.cpp
    void reportRefusedPassword();

    // session/AppDelegate_Unlocked.cpp
    /// What stood in the way of the lock, if anything; it has been reported, unless the drive
    /// itself refused.
    [[nodiscard]] IOReturn releaseAndLock();
    void leaveLockedNotice();

    // session/AppDelegate_Timer.cpp
    void tickSetup();
    void formatAndCopy(const SetupProgress& before);
    void showSetup(const SetupView& view);
    void showDriveTime(const TimeStatus& status);
    void showTimes();

    // settings/AppDelegate_Setup.cpp: the parts of a commit. They report failure.
    [[nodiscard]] bool sendAreaInfos();
    [[nodiscard]] bool sendEncryptionInfo();
    [[nodiscard]] bool sendFirstPasswords();
    [[nodiscard]] bool sendPeriods();
    void beginSetupProgress();

    // settings/AppDelegate_Commit.cpp
    [[nodiscard]] bool changePasswords();
    [[nodiscard]] bool changeSecondPassword();
    /// Alone (Change), or together with the second (ChangeBoth).
    [[nodiscard]] bool changeFirstPassword(AuthInfo::Kind kind);
    void reportRefusedChange(IOReturn result, const char* wrongPasswordKey);

    // settings/AppDelegate_MainSettings.cpp: the parts of opening the window, and what it holds.
    void openMainSettingsWindow();
    void refreshMainSettingsWindow();
    [[nodiscard]] bool readAreasForSettings();
    [[nodiscard]] AreaView keepAreaView();
    void showFreeCapacity(const AreaView& areas);
    void clearMainSettingsWindow();
    [[nodiscard]] bool showSecurityOf(SecurityOccasion occasion, const DeviceStatus& status);
    [[nodiscard]] bool showSecurityOfDrive(const DeviceStatus& status);
    void showSecurity(const SecurityView& view);
    [[nodiscard]] SecurityView shownSecurity() const;
    [[nodiscard]] MainSettingsEntries mainSettingsEntries() const;
    void showSettingsCues();
    /// Says in one line why a window's OK is disabled; empties the line when it is not.
    void showObstacle(QLabel& line, const Obstacle& obstacle) const;

    // settings/AppDelegate_Areas.cpp
    void reloadAreaTable(const AreaView& view);
    void showAreaSettingsBar();
    void keepOneSecureDisk(std::size_t chosen);
    [[nodiscard]] std::array<QLineEdit*, 3> diskCapacityFields() const;
    [[nodiscard]] std::array<QCheckBox*, 3> diskSecureBoxes() const;
    [[nodiscard]] std::array<bool, 3> chosenSecureDisks() const;

    // settings/AppDelegate_Passwords.cpp
    void keepChangedPasswords();

    // settings/AppDelegate_Key.cpp: the parts of clearing all. They report failure.
    [[nodiscard]] bool clearPeriodsAndHint(SecurityState state);
    [[nodiscard]] bool resetAreaInfos();

    [[nodiscard]] UsbDeviceInterface& Device() const { return *Drives.CurrentUsbIntf; }

    Platform m_platform;
    EventGate m_gate;
    DiscoveryContext m_discovery;
    /// Keeps the computer awake while a set-up is under way.
    Desktop::Hold m_awakeForSetup;
    QWidget* m_window = nullptr;
    /// The clocks as of the last tick; a window that is built later begins with them.
    QString m_computerTime;
    QString m_driveTime;
    /// Owned by the table that shows it.
    AreaTableModel* m_areaTable = nullptr;
};

} // namespace zelto
