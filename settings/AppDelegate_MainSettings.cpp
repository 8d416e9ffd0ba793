#include "app/AppDelegate.h"
#include "device/DeviceReads.h"
#include "settings/AreaPacking.h"
#include "settings/SecretText.h"
#include "ui/Strings.h"

namespace zelto {
namespace {

constexpr int AutomaticKeyTag = 0;
constexpr int ManualKeyTag = 1;

} // namespace

void AppDelegate::DisplayMainSettingsWindow(bool refresh) {
    TextInputMode = TextInputModes::MainSettings;
    if (!refresh && !readAreasForSettings()) {
        return;
    }
    const AreaView view = buildAreaView(Settings.AreaInfos, Settings.TotalSectorCount);
    Settings.AreaInfosViewData = view.rows;
    if (!refresh && view.hasSecureArea) {
        Settings.SecureAreaAlreadyExist = true;
    }
    const bool newSecureArea =
        !Settings.SecureAreaAlreadyExist && !Settings.SecureAreaExist && view.hasSecureArea;
    Settings.SecureAreaExist = view.hasSecureArea;

    // A status that cannot be read is all zero, and leaves the controls as for an open drive.
    const DeviceStatus status = readDeviceStatus(Device(), StatusRequest::Plain).record;
    MainSettingsWindow.FreeCapacityText->setText(
        localized("IDS_FREE_CAPACITY", mebibytesOfSectors(view.freeSectors)));
    if (!Settings.SecureAreaExist || status.state() == SecurityState::StateFullLock) {
        switchSecurityControlsOff();
    } else {
        if (newSecureArea) {
            offerSecurityControls();
        }
        if (!refresh && !showSecurityOfDrive(status)) {
            return;
        }
    }
    reloadAreaTable(view);
    if (!refresh) {
        MainSettingsWindow.centreAndMakeKeyAndOrderFront();
    }
    UpdateMainSettingsOKButton();
}

bool AppDelegate::readAreasForSettings() {
    auto& form = MainSettingsWindow;
    form.ZeltoDriveComboBox->addItem(
        QString::asprintf("Device %d", static_cast<int>(Drives.SelectedZeltoIndex)));
    form.ZeltoDriveComboBox->setCurrentIndex(0);
    form.ZeltoDriveComboBox->setEnabled(false);
    form.PCTimeText->clear();
    form.DeviceTimeText->clear();
    form.EraseEncryptionKeyButton->setEnabled(false);
    form.ShowRemainingTimeCheckBox->setEnabled(false);
    form.ShowRemainingTimeCheckBox->setChecked(false);

    const auto areas = readAreaInfos(Device());
    if (!Succeeded(areas.result)) {
        return false;
    }
    Settings.AreaInfos = areas.record;
    Settings.TotalSectorCount = Settings.AreaInfos.totalSectorCount();
    if (isNeverPartitioned(Settings.AreaInfos)) {
        Settings.InitialSetting = true;
        Settings.TotalSectorCount = sectorsBesideToolArea(Settings.TotalSectorCount);
    } else {
        form.AreaSettingsButton->setEnabled(false);
    }
    const std::uint64_t mebibytes = mebibytesOfSectors(Settings.TotalSectorCount);
    form.TotalCapacityText->setText(localized("IDS_TOTAL_CAPACITY", mebibytes));
    Settings.AreaSettingsDiskCapacity[0] = mebibytes;
    return true;
}

/// Nothing to secure, or nothing that could still be secured.
void AppDelegate::switchSecurityControlsOff() {
    auto& form = MainSettingsWindow;
    form.PasswordSettingsButton->setEnabled(false);
    form.EncryptionKeyAutoManualSelectRadioButton->setEnabled(false);
    form.EncryptionKeyButton->setEnabled(false);
    wipeText(Settings.StrEncryptionKey);
    form.AutoClearEnabledCheckBox->setChecked(false);
    form.AutoClearEnabledCheckBox->setEnabled(false);
    form.AutoClearDaysOrMinutesRadioButton->selectCellWithTag(static_cast<int>(PeriodUnit::Days));
    form.AutoClearDaysOrMinutesRadioButton->setEnabled(false);
    form.AutoClearText->clear();
    form.AutoClearText->setEnabled(false);
    form.AutoLogOffEnabledCheckBox->setEnabled(false);
    form.AutoLogOffEnabledCheckBox->setChecked(false);
    form.AutoLogOffText->clear();
    form.AutoLogOffText->setEnabled(false);
}

/// A secure area has just been laid out. One laid out again later in the same run leaves the
/// controls as the user has set them.
void AppDelegate::offerSecurityControls() {
    auto& form = MainSettingsWindow;
    form.PasswordSettingsButton->setEnabled(true);
    form.EncryptionKeyAutoManualSelectRadioButton->setEnabled(true);
    form.EncryptionKeyAutoManualSelectRadioButton->selectCellWithTag(AutomaticKeyTag);
    form.EncryptionKeyButton->setEnabled(false);
    form.AutoClearEnabledCheckBox->setChecked(false);
    form.AutoClearEnabledCheckBox->setEnabled(true);
    form.AutoClearDaysOrMinutesRadioButton->setEnabled(false);
    form.AutoClearText->setEnabled(false);
    form.AutoLogOffEnabledCheckBox->setChecked(false);
    form.AutoLogOffEnabledCheckBox->setEnabled(true);
    form.AutoLogOffText->setEnabled(false);
    UpdateCheckBoxShowRemainingTime();
}

bool AppDelegate::showSecurityOfDrive(const DeviceStatus& status) {
    auto& form = MainSettingsWindow;
    if (Settings.SecureAreaAlreadyExist) {
        form.PasswordSettingsButton->setEnabled(true);
        Settings.PasswordSettingsParameters.Use1stAnd2ndPassword = status.usesSecondPassword();
        // The key of a drive that was set up is erased or replaced as a whole, never changed.
        form.EncryptionKeyAutoManualSelectRadioButton->setEnabled(false);
        form.EncryptionKeyButton->setEnabled(false);
        form.EncryptionKeyAutoManualSelectRadioButton->selectCellWithTag(
            status.hasAutomaticKey() ? AutomaticKeyTag : ManualKeyTag);
        form.EraseEncryptionKeyButton->setEnabled(true);
        UpdateCheckBoxShowRemainingTime();
    }
    const auto time = readTimeStatus(Device());
    if (!Succeeded(time.result)) {
        return false;
    }
    showPeriods(time.record);
    return true;
}

void AppDelegate::showPeriods(const TimeStatus& time) {
    auto& form = MainSettingsWindow;
    const AutoClearEntry autoClear = shownAutoClear(time.autoClearPeriod);
    form.AutoClearEnabledCheckBox->setEnabled(true);
    form.AutoClearEnabledCheckBox->setChecked(autoClear.enabled);
    form.AutoClearDaysOrMinutesRadioButton->setEnabled(autoClear.enabled);
    form.AutoClearText->setEnabled(autoClear.enabled);
    if (autoClear.enabled) {
        form.AutoClearDaysOrMinutesRadioButton->selectCellWithTag(static_cast<int>(autoClear.unit));
        form.AutoClearText->setText(autoClear.text);
    }
    const AutoLogOffEntry autoLogOff = shownAutoLogOff(time.idleLockPeriod);
    form.AutoLogOffEnabledCheckBox->setEnabled(true);
    form.AutoLogOffEnabledCheckBox->setChecked(autoLogOff.enabled);
    form.AutoLogOffText->setEnabled(autoLogOff.enabled);
    if (autoLogOff.enabled) {
        form.AutoLogOffText->setText(autoLogOff.text);
    }
}

void AppDelegate::UpdateMainSettingsOKButton() {
    if (Settings.InitialSetting) {
        UpdateMainSettingsOKButtonAtInitialization();
    } else {
        UpdateMainSettingsOKButtonAtChanging();
    }
}

void AppDelegate::UpdateMainSettingsOKButtonAtInitialization() {
    MainSettingsWindow.MainSettingsOKButton->setEnabled(
        canCommitAtInitialization(mainSettingsEntries()));
}

void AppDelegate::UpdateMainSettingsOKButtonAtChanging() {
    MainSettingsWindow.MainSettingsOKButton->setEnabled(canCommitAtChanging(mainSettingsEntries()));
}

/// The two text fields are not told apart.
void AppDelegate::MainSettingsTextDidChenge() {
    Changed.AutoClearSettingsChanged = true;
    Changed.AutoLogOffSettingsChanged = true;
    UpdateMainSettingsOKButton();
}

bool AppDelegate::usesAutomaticKey() const {
    return MainSettingsWindow.EncryptionKeyAutoManualSelectRadioButton->selectedTag() ==
           AutomaticKeyTag;
}

AutoClearEntry AppDelegate::shownAutoClearEntry() const {
    const auto& form = MainSettingsWindow;
    return {.enabled = form.AutoClearEnabledCheckBox->isChecked(),
            .unit = periodUnitOfTag(form.AutoClearDaysOrMinutesRadioButton->selectedTag()),
            .text = form.AutoClearText->text()};
}

AutoLogOffEntry AppDelegate::shownAutoLogOffEntry() const {
    const auto& form = MainSettingsWindow;
    return {.enabled = form.AutoLogOffEnabledCheckBox->isChecked(),
            .text = form.AutoLogOffText->text()};
}

MainSettingsEntries AppDelegate::mainSettingsEntries() const {
    return {.secureAreaExists = Settings.SecureAreaExist,
            .changed = Changed,
            .autoClear = shownAutoClearEntry(),
            .autoLogOff = shownAutoLogOffEntry()};
}

} // namespace zelto
