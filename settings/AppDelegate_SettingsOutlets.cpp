#include "app/AppDelegate.h"
#include "app/Outlets.h"
#include "ui/AreaTableModel.h"
#include "ui/Strings.h"

namespace zelto {

using namespace outlets;

void AppDelegate::connectSettingsWindows() {
    connectMainSettingsWindow();
    connectAreaSettingsWindow();
    connectPasswordWindows();

    onClick(EncryptionKeyWindow.EncryptionKeyOKButton, this, &AppDelegate::EncryptionKeyOKAction);
    onClick(EncryptionKeyWindow.EncryptionKeyCancelButton, this,
            &AppDelegate::EncryptionKeyCancelAction);
    onEdit(EncryptionKeyWindow.EncryptionKeyText, this, &AppDelegate::controlTextDidChange);
}

void AppDelegate::connectMainSettingsWindow() {
    auto& form = MainSettingsWindow;
    m_areaTable = new AreaTableModel(
        {.rowCount = [this] { return numberOfRowsInTableView(); },
         .objectValue = [this](const QString& column,
                               int row) { return tableViewObjectValue(column, row); }},
        form.AreaInfosTableView);
    form.AreaInfosTableView->setModel(m_areaTable);
    form.MainSettingsClockCue->setHolds(localized("IDS_HINT_SET_CLOCK_CLOSES"));

    onClick(form.MainSettingsOKButton, this, &AppDelegate::MainSettingsOKAction);
    onClick(form.MainSettingsCancelButton, this, &AppDelegate::MainSettingsCancelAction);
    onClose(form, this, &AppDelegate::MainSettingsCancelAction);
    onClick(form.MainSettingsSetTimeButton, this, &AppDelegate::MainSettingsSetTimeAction);
    onClick(form.MainSettingsClearAllButton, this, &AppDelegate::MainSettingsClearAllAction);
    onClick(form.EraseEncryptionKeyButton, this, &AppDelegate::MainSettingsAutoClearEraseAction);

    onClick(form.AreaSettingsButton, this, &AppDelegate::MainSettingsAreaSettingsAction);
    onClick(form.PasswordSettingsButton, this, &AppDelegate::MainSettingsPasswordSettingsAction);
    onClick(form.EncryptionKeyButton, this, &AppDelegate::MainSettingsEncryptionKeyAction);
    onCell(form.EncryptionKeyAutoManualSelectRadioButton, this,
           &AppDelegate::MainSettingsEncryptionKeyAuto,
           &AppDelegate::MainSettingsEncryptionKeyManual);

    onClick(form.AutoClearEnabledCheckBox, this, &AppDelegate::MainSettingsAutoClearEnabledAction);
    onCell(form.AutoClearDaysOrMinutesRadioButton, this,
           &AppDelegate::MainSettingsAutoClearDaysAction,
           &AppDelegate::MainSettingsAutoClearMinutesAction);
    onEdit(form.AutoClearText, this, &AppDelegate::controlTextDidChange);
    onClick(form.AutoLogOffEnabledCheckBox, this,
            &AppDelegate::MainSettingsAutoLogOffEnabledAction);
    onEdit(form.AutoLogOffText, this, &AppDelegate::controlTextDidChange);
    onClick(form.ShowRemainingTimeCheckBox, this,
            &AppDelegate::MainSettingsShowRemainingTimeEnabledAction);
}

void AppDelegate::connectAreaSettingsWindow() {
    auto& form = AreaSettingsWindow;
    AreaSettingsDlg.AreaSettingsWindow = &form;
    AreaSettingsDlg.awakeFromNib();
    onClick(form.AreaSettingsOKButton, this, &AppDelegate::AreaSettingsOKAction);
    onClick(form.AreaSettingsCancelButton, this, &AppDelegate::AreaSettingsCancelAction);
    onClick(form.Disk1SecureCheckBox, this, &AppDelegate::AreaSettingsDisk1SecureCheckBoxAction);
    onClick(form.Disk2SecureCheckBox, this, &AppDelegate::AreaSettingsDisk2SecureCheckBoxAction);
    onClick(form.Disk3SecureCheckBox, this, &AppDelegate::AreaSettingsDisk3SecureCheckBoxAction);
    for (QLineEdit* field : diskCapacityFields()) {
        onEdit(field, this, &AppDelegate::controlTextDidChange);
    }
}

void AppDelegate::connectPasswordWindows() {
    auto& settings = PasswordSettingsWindow;
    onClick(settings.PS_OKButton, this, &AppDelegate::PasswordSettingsOKAction);
    onClick(settings.PasswordSettingsCancelButton, this,
            &AppDelegate::PasswordSettingsCancelAction);
    onCell(settings.PS_1stOnlyOr1stAnd2ndRadioButton, this,
           &AppDelegate::PasswordSettingsUse1stAction,
           &AppDelegate::PasswordSettingsUse1stAnd2ndAction);
    for (QLineEdit* field : std::initializer_list<QLineEdit*>{
             settings.PS_1stPasswordText, settings.PS_Again1stPasswordText,
             settings.PS_2ndPasswordText, settings.PS_Again2ndPasswordText,
             settings.PS_2ndPasswordNumberOfTrials}) {
        onEdit(field, this, &AppDelegate::controlTextDidChange);
    }

    auto& change = PasswordChangeWindow;
    onClick(change.PC_OKButton, this, &AppDelegate::PasswordChangeOKAction);
    onClick(change.PasswordChangeCancelButton, this, &AppDelegate::PasswordChangeCancelAction);
    for (QLineEdit* field : std::initializer_list<QLineEdit*>{
             change.PC_Current1stPasswordText, change.PC_New1stPasswordText,
             change.PC_AgainNew1stPasswordText, change.PC_Current2ndPasswordText,
             change.PC_New2ndPasswordText, change.PC_AgainNew2ndPasswordText,
             change.PC_2ndPasswordNumberOfTrials}) {
        onEdit(field, this, &AppDelegate::controlTextDidChange);
    }
}

} // namespace zelto
