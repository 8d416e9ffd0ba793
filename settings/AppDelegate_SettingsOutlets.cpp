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
    connectEncryptionKeyWindow();
}

void AppDelegate::connectMainSettingsWindow() {
    whenBuilt(MainSettingsWindow, [this](auto& form) {
        m_areaTable = new AreaTableModel(
            {.rowCount = [this] { return numberOfRowsInTableView(); },
             .objectValue = [this](const QString& column,
                                   int row) { return tableViewObjectValue(column, row); }},
            form.AreaInfosTableView);
        form.AreaInfosTableView->setModel(m_areaTable);
        form.MainSettingsClockCue->setHolds(localized("IDS_HINT_SET_CLOCK_CLOSES"));
        showTimes();

        onClick(form.MainSettingsOKButton, this, &AppDelegate::MainSettingsOKAction);
        onClick(form.MainSettingsCancelButton, this, &AppDelegate::MainSettingsCancelAction);
        onClose(form, this, &AppDelegate::MainSettingsCancelAction);
        onClick(form.MainSettingsSetTimeButton, this, &AppDelegate::MainSettingsSetTimeAction);
        onClick(form.MainSettingsClearAllButton, this, &AppDelegate::MainSettingsClearAllAction);
        onClick(form.EraseEncryptionKeyButton, this,
                &AppDelegate::MainSettingsAutoClearEraseAction);

        onClick(form.AreaSettingsButton, this, &AppDelegate::MainSettingsAreaSettingsAction);
        onClick(form.PasswordSettingsButton, this,
                &AppDelegate::MainSettingsPasswordSettingsAction);
        onClick(form.EncryptionKeyButton, this, &AppDelegate::MainSettingsEncryptionKeyAction);
        onCell(form.EncryptionKeyAutoManualSelectRadioButton, this,
               &AppDelegate::MainSettingsEncryptionKeyAuto,
               &AppDelegate::MainSettingsEncryptionKeyManual);

        onClick(form.AutoClearEnabledCheckBox, this,
                &AppDelegate::MainSettingsAutoClearEnabledAction);
        onCell(form.AutoClearDaysOrMinutesRadioButton, this,
               &AppDelegate::MainSettingsAutoClearDaysAction,
               &AppDelegate::MainSettingsAutoClearMinutesAction);
        onEdit(form.AutoClearText, this, &AppDelegate::controlTextDidChange);
        onClick(form.AutoLogOffEnabledCheckBox, this,
                &AppDelegate::MainSettingsAutoLogOffEnabledAction);
        onEdit(form.AutoLogOffText, this, &AppDelegate::controlTextDidChange);
        onClick(form.ShowRemainingTimeCheckBox, this,
                &AppDelegate::MainSettingsShowRemainingTimeEnabledAction);
    });
}

void AppDelegate::connectAreaSettingsWindow() {
    whenBuilt(AreaSettingsWindow, [this](auto& form) {
        AreaSettingsDlg.AreaSettingsWindow = &form;
        AreaSettingsDlg.awakeFromNib();
        onClick(form.AreaSettingsOKButton, this, &AppDelegate::AreaSettingsOKAction);
        onClick(form.AreaSettingsCancelButton, this, &AppDelegate::AreaSettingsCancelAction);
        onClick(form.Disk1SecureCheckBox, this,
                &AppDelegate::AreaSettingsDisk1SecureCheckBoxAction);
        onClick(form.Disk2SecureCheckBox, this,
                &AppDelegate::AreaSettingsDisk2SecureCheckBoxAction);
        onClick(form.Disk3SecureCheckBox, this,
                &AppDelegate::AreaSettingsDisk3SecureCheckBoxAction);
        for (QLineEdit* field : diskCapacityFields()) {
            onEdit(field, this, &AppDelegate::controlTextDidChange);
        }
    });
}

void AppDelegate::connectPasswordWindows() {
    whenBuilt(PasswordSettingsWindow, [this](auto& form) {
        onClick(form.PS_OKButton, this, &AppDelegate::PasswordSettingsOKAction);
        onClick(form.PasswordSettingsCancelButton, this,
                &AppDelegate::PasswordSettingsCancelAction);
        onCell(form.PS_1stOnlyOr1stAnd2ndRadioButton, this,
               &AppDelegate::PasswordSettingsUse1stAction,
               &AppDelegate::PasswordSettingsUse1stAnd2ndAction);
        for (QLineEdit* field : std::initializer_list<QLineEdit*>{
                 form.PS_1stPasswordText, form.PS_Again1stPasswordText, form.PS_2ndPasswordText,
                 form.PS_Again2ndPasswordText, form.PS_2ndPasswordNumberOfTrials}) {
            onEdit(field, this, &AppDelegate::controlTextDidChange);
        }
    });
    whenBuilt(PasswordChangeWindow, [this](auto& form) {
        onClick(form.PC_OKButton, this, &AppDelegate::PasswordChangeOKAction);
        onClick(form.PasswordChangeCancelButton, this, &AppDelegate::PasswordChangeCancelAction);
        for (QLineEdit* field : std::initializer_list<QLineEdit*>{
                 form.PC_Current1stPasswordText, form.PC_New1stPasswordText,
                 form.PC_AgainNew1stPasswordText, form.PC_Current2ndPasswordText,
                 form.PC_New2ndPasswordText, form.PC_AgainNew2ndPasswordText,
                 form.PC_2ndPasswordNumberOfTrials}) {
            onEdit(field, this, &AppDelegate::controlTextDidChange);
        }
    });
}

void AppDelegate::connectEncryptionKeyWindow() {
    whenBuilt(EncryptionKeyWindow, [this](auto& form) {
        onClick(form.EncryptionKeyOKButton, this, &AppDelegate::EncryptionKeyOKAction);
        onClick(form.EncryptionKeyCancelButton, this, &AppDelegate::EncryptionKeyCancelAction);
        onEdit(form.EncryptionKeyText, this, &AppDelegate::controlTextDidChange);
    });
}

} // namespace zelto
