#include "app/AppDelegate.h"
#include "app/Outlets.h"
#include "ui/Strings.h"

#include <initializer_list>

namespace zelto {

using namespace outlets;

void AppDelegate::connectSessionWindows() {
    onClick(SelectZeltoWindow.SelectZeltoOK, this, &AppDelegate::SelectZeltoOKAction);
    onClick(SelectZeltoWindow.SelectZeltoUpdate, this, &AppDelegate::SelectZeltoUpdateAction);
    onClick(SelectZeltoWindow.SelectZeltoCancel, this, &AppDelegate::SelectZeltoCancelAction);
    onClick(SelectZeltoWindow.SelectZeltoShowRule, this, &AppDelegate::SelectZeltoShowRuleAction);
    onChoice(SelectZeltoWindow.SelectZeltoComboBox, this, &AppDelegate::UpdateDriveSign);
    onClose(SelectZeltoWindow, this, &AppDelegate::SelectZeltoCancelAction);

    onClick(DeviceRuleWindow.DeviceRuleCopy, this, &AppDelegate::DeviceRuleCopyAction);
    onClick(DeviceRuleWindow.DeviceRuleClose, this, &AppDelegate::DeviceRuleCloseAction);

    onClick(AuthenticateWindow.AuthenticateSubmit, this, &AppDelegate::AuthenticateSubmitAction);
    onClick(AuthenticateWindow.AuthenticateCancel, this, &AppDelegate::AuthenticateCancelAction);
    onClose(AuthenticateWindow, this, &AppDelegate::AuthenticateCancelAction);
    onEdit(AuthenticateWindow.AuthenticateTextField, this, &AppDelegate::controlTextDidChange);

    onClick(UnlockedWindow.UnlockedOK, this, &AppDelegate::UnlockedOKAction);
    onClick(UnlockedWindow.UnlockedLogOff, this, &AppDelegate::UnlockedLogOffAction);
    onClick(UnlockedWindow.UnlockedSetup, this, &AppDelegate::UnlockedSetupAction);
    onClose(UnlockedWindow, this, &AppDelegate::UnlockedOKAction);

    onClick(UnlockingWindow.UnlockingLogOff, this, &AppDelegate::UnlockingLogOffAction);
    onClick(UnlockingWindow.UnlockingCancel, this, &AppDelegate::UnlockingCancelAction);
    onClick(UnlockingWindow.UnlockingSetup, this, &AppDelegate::UnlockingSetupAction);
    onClose(UnlockingWindow, this, &AppDelegate::UnlockingCancelAction);

    ZeltoSettingWindow.ZeltoSettingText->setHolds(localized("IDS_SETTING_COMPLETE"));
    onClick(ZeltoSettingWindow.ZeltoSettingOKButton, this, &AppDelegate::ZeltoSettingOKAction);
    // The last window: closing it is a request to quit, refused while set-up is under way.
    onClose(ZeltoSettingWindow, this, &AppDelegate::TerminateApplication);
}

void AppDelegate::connectHelp() {
    const std::initializer_list<const HelpButton*> buttons{
        SelectZeltoWindow.Help,    DeviceRuleWindow.Help,   AuthenticateWindow.Help,
        UnlockedWindow.Help,       UnlockingWindow.Help,    ZeltoSettingWindow.Help,
        MainSettingsWindow.Help,   AreaSettingsWindow.Help, PasswordSettingsWindow.Help,
        PasswordChangeWindow.Help, EncryptionKeyWindow.Help};
    for (const HelpButton* const button : buttons) {
        QObject::connect(button, &QPushButton::clicked, button,
                         [this, button] { ShowHelp(button->page()); });
    }
}

} // namespace zelto
