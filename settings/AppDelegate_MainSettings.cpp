#include "app/AppDelegate.h"
#include "device/DeviceReads.h"
#include "settings/AreaPacking.h"
#include "settings/SettingsCues.h"
#include "ui/Description.h"
#include "ui/Strings.h"

#include <initializer_list>
#include <utility>

namespace zelto {
void AppDelegate::DisplayMainSettingsWindow(bool refresh) {
    TextInputMode = TextInputModes::MainSettings;
    if (refresh) {
        refreshMainSettingsWindow();
    } else {
        openMainSettingsWindow();
    }
}

void AppDelegate::openMainSettingsWindow() {
    if (!readAreasForSettings()) {
        return;
    }
    const AreaView areas = keepAreaView();
    if (areas.hasSecureArea) {
        Settings.SecureAreaAlreadyExist = true;
    }
    Settings.SecureAreaExist = areas.hasSecureArea;
    // A status that cannot be read is all zero, and leaves the controls as for an open drive.
    const DeviceStatus status = readDeviceStatus(Device(), StatusRequest::Plain).record;
    showFreeCapacity(areas);
    if (!showSecurityOf(occasionAtOpening(areas.hasSecureArea, status.state()), status)) {
        return;
    }
    reloadAreaTable(areas);
    MainSettingsWindow->centreAndMakeKeyAndOrderFront();
    UpdateMainSettingsOKButton();
}

void AppDelegate::refreshMainSettingsWindow() {
    const AreaView areas = keepAreaView();
    const SecureAreas secure{.onDrive = Settings.SecureAreaAlreadyExist,
                             .before = std::exchange(Settings.SecureAreaExist, areas.hasSecureArea),
                             .now = areas.hasSecureArea};
    // A status that cannot be read is all zero, and leaves the controls as for an open drive.
    const DeviceStatus status = readDeviceStatus(Device(), StatusRequest::Plain).record;
    showFreeCapacity(areas);
    (void)showSecurityOf(occasionAfterAreaDialog(secure, status.state()), status);
    reloadAreaTable(areas);
    UpdateMainSettingsOKButton();
}

AreaView AppDelegate::keepAreaView() {
    AreaView areas = buildAreaView(Settings.AreaInfos, Settings.TotalSectorCount);
    Settings.AreaInfosViewData = areas.rows;
    return areas;
}

void AppDelegate::showFreeCapacity(const AreaView& areas) {
    showValue(*MainSettingsWindow->FreeCapacityText,
              localized("IDS_FREE_CAPACITY", mebibytesOfSectors(areas.freeSectors)));
}

bool AppDelegate::readAreasForSettings() {
    clearMainSettingsWindow();
    const auto areas = readAreaInfos(Device());
    if (reportIfFailed(areas.result)) {
        return false;
    }
    Settings.AreaInfos = areas.record;
    Settings.TotalSectorCount = Settings.AreaInfos.totalSectorCount();
    if (isNeverPartitioned(Settings.AreaInfos)) {
        Settings.InitialSetting = true;
        Settings.TotalSectorCount = sectorsBesideToolArea(Settings.TotalSectorCount);
    } else {
        MainSettingsWindow->AreaSettingsButton->setEnabled(false);
    }
    const std::uint64_t mebibytes = mebibytesOfSectors(Settings.TotalSectorCount);
    showValue(*MainSettingsWindow->TotalCapacityText, localized("IDS_TOTAL_CAPACITY", mebibytes));
    Settings.AreaSettingsDiskCapacity[0] = mebibytes;
    return true;
}

void AppDelegate::clearMainSettingsWindow() {
    auto& form = *MainSettingsWindow;
    form.ZeltoDriveComboBox->addItem(
        QString::asprintf("Device %d", static_cast<int>(Drives.SelectedZeltoIndex)));
    form.ZeltoDriveComboBox->setCurrentIndex(0);
    form.ZeltoDriveComboBox->setEnabled(false);
    form.PCTimeText->clear();
    form.DeviceTimeText->clear();
    showSecurity(withoutDrive(shownSecurity()));
}

bool AppDelegate::showSecurityOf(SecurityOccasion occasion, const DeviceStatus& status) {
    switch (occasion) {
    case SecurityOccasion::NothingToSecure:
        Settings.StrEncryptionKey.clear();
        showSecurity(switchedOff(shownSecurity()));
        return true;
    case SecurityOccasion::FirstSecureAreaLaidOut:
        showSecurity(offeredForFirstSecureArea(shownSecurity()));
        UpdateCheckBoxShowRemainingTime();
        return true;
    case SecurityOccasion::SecureAreaKept:
        return true;
    case SecurityOccasion::SecureDriveOpened:
        return showSecurityOfDrive(status);
    }
    return true;
}

bool AppDelegate::showSecurityOfDrive(const DeviceStatus& status) {
    Settings.PasswordSettingsParameters.Use1stAnd2ndPassword = status.usesSecondPassword();
    showSecurity(ofSecureDrive(shownSecurity(), status));
    UpdateCheckBoxShowRemainingTime();
    const auto time = readTimeStatus(Device());
    if (reportIfFailed(time.result)) {
        return false;
    }
    showSecurity(withPeriods(shownSecurity(), time.record));
    return true;
}

void AppDelegate::showSecurity(const SecurityView& view) {
    auto& form = *MainSettingsWindow;
    form.PasswordSettingsButton->setEnabled(view.passwordsEnabled);
    form.EncryptionKeyAutoManualSelectRadioButton->setEnabled(view.keyOriginEnabled);
    form.EncryptionKeyAutoManualSelectRadioButton->selectCellWithTag(
        static_cast<int>(view.keyOrigin));
    form.EncryptionKeyButton->setEnabled(view.keyEntryEnabled);
    form.EraseEncryptionKeyButton->setEnabled(view.keyErasureEnabled);
    form.AutoClearEnabledCheckBox->setEnabled(view.autoClearEnabled);
    form.AutoClearEnabledCheckBox->setChecked(view.autoClear.enabled);
    form.AutoClearDaysOrMinutesRadioButton->setEnabled(view.autoClear.enabled);
    form.AutoClearDaysOrMinutesRadioButton->selectCellWithTag(
        static_cast<int>(view.autoClear.unit));
    form.AutoClearText->setEnabled(view.autoClear.enabled);
    form.AutoClearText->setText(view.autoClear.text);
    form.AutoLogOffEnabledCheckBox->setEnabled(view.autoLogOffEnabled);
    form.AutoLogOffEnabledCheckBox->setChecked(view.autoLogOff.enabled);
    form.AutoLogOffText->setEnabled(view.autoLogOff.enabled);
    form.AutoLogOffText->setText(view.autoLogOff.text);
    form.ShowRemainingTimeCheckBox->setEnabled(view.remainingTimeEnabled);
    form.ShowRemainingTimeCheckBox->setChecked(view.showsRemainingTime);
}

SecurityView AppDelegate::shownSecurity() const {
    const auto& form = *MainSettingsWindow;
    // The controls' own state: all of them are disabled while the window itself is.
    const auto enabled = [&form](const QWidget* control) { return control->isEnabledTo(&form); };
    return {
        .passwordsEnabled = enabled(form.PasswordSettingsButton),
        .keyOriginEnabled = enabled(form.EncryptionKeyAutoManualSelectRadioButton),
        .keyOrigin = keyOriginOfTag(form.EncryptionKeyAutoManualSelectRadioButton->selectedTag()),
        .keyEntryEnabled = enabled(form.EncryptionKeyButton),
        .keyErasureEnabled = enabled(form.EraseEncryptionKeyButton),
        .autoClearEnabled = enabled(form.AutoClearEnabledCheckBox),
        .autoClear = {.enabled = form.AutoClearEnabledCheckBox->isChecked(),
                      .unit =
                          periodUnitOfTag(form.AutoClearDaysOrMinutesRadioButton->selectedTag()),
                      .text = form.AutoClearText->text()},
        .autoLogOffEnabled = enabled(form.AutoLogOffEnabledCheckBox),
        .autoLogOff = {.enabled = form.AutoLogOffEnabledCheckBox->isChecked(),
                       .text = form.AutoLogOffText->text()},
        .remainingTimeEnabled = enabled(form.ShowRemainingTimeCheckBox),
        .showsRemainingTime = form.ShowRemainingTimeCheckBox->isChecked()};
}

void AppDelegate::UpdateMainSettingsOKButton() {
    showSettingsCues();
    if (Settings.InitialSetting) {
        UpdateMainSettingsOKButtonAtInitialization();
    } else {
        UpdateMainSettingsOKButtonAtChanging();
    }
}

void AppDelegate::UpdateMainSettingsOKButtonAtInitialization() {
    const MainSettingsEntries entries = mainSettingsEntries();
    MainSettingsWindow->MainSettingsOKButton->setEnabled(canCommitAtInitialization(entries));
    showObstacle(*MainSettingsWindow->MainSettingsObstacle, obstacleAtInitialization(entries));
}

void AppDelegate::UpdateMainSettingsOKButtonAtChanging() {
    const MainSettingsEntries entries = mainSettingsEntries();
    MainSettingsWindow->MainSettingsOKButton->setEnabled(canCommitAtChanging(entries));
    showObstacle(*MainSettingsWindow->MainSettingsObstacle, obstacleAtChanging(entries));
}

void AppDelegate::showObstacle(QLabel& line, const Obstacle& obstacle) const {
    if (obstacle.key == nullptr) {
        sayBesideFocus(line, {});
    } else if (obstacle.number == 0) {
        sayBesideFocus(line, localized(obstacle.key));
    } else {
        sayBesideFocus(line, localized(obstacle.key, obstacle.number));
    }
}

void AppDelegate::showSettingsCues() {
    auto& form = *MainSettingsWindow;
    const auto show = [](QLabel& label, const char* key, std::initializer_list<QWidget*> controls) {
        label.setText(key == nullptr ? QString() : localized(key));
        label.setVisible(key != nullptr);
        for (QWidget* const control : controls) {
            describe(*control, label, label.text());
        }
    };
    const SecurityView shown = shownSecurity();
    const SettingsCues cues = settingsCues({.isInitial = Settings.InitialSetting,
                                            .areasWereLaidOut = Changed.AreaSettingsPerformed,
                                            .secureAreaExists = Settings.SecureAreaExist,
                                            .areasWereSent = Settings.AreasWereSent,
                                            .clockIsNotValid = TimeStatusInvalid,
                                            .autoClear = shown.autoClear,
                                            .autoLogOff = shown.autoLogOff});
    show(*form.MainSettingsAreasCue, cues.areas, {form.AreaSettingsButton});
    show(*form.MainSettingsClockCue, cues.clock, {form.MainSettingsSetTimeButton});
    show(*form.MainSettingsPeriodsCue, cues.periods, {form.AutoClearText, form.AutoLogOffText});
    form.MainSettingsCommitCue->setWarns(Settings.InitialSetting);
    show(*form.MainSettingsCommitCue, cues.commit, {form.MainSettingsOKButton});
}

/// The two text fields are not told apart.
void AppDelegate::MainSettingsTextDidChenge() {
    Changed.AutoClearSettingsChanged = true;
    Changed.AutoLogOffSettingsChanged = true;
    UpdateMainSettingsOKButton();
}

MainSettingsEntries AppDelegate::mainSettingsEntries() const {
    const SecurityView shown = shownSecurity();
    return {.secureAreaExists = Settings.SecureAreaExist,
            .changed = Changed,
            .autoClear = shown.autoClear,
            .autoLogOff = shown.autoLogOff};
}

} // namespace zelto
