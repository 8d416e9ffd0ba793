#include "app/AppDelegate.h"
#include "app/Outlets.h"
#include "ui/Strings.h"

namespace zelto {

using namespace outlets;

void AppDelegate::connectSessionWindows() {
    whenBuilt(SelectZeltoWindow, [this](auto& form) {
        onClick(form.SelectZeltoOK, this, &AppDelegate::SelectZeltoOKAction);
        onClick(form.SelectZeltoUpdate, this, &AppDelegate::SelectZeltoUpdateAction);
        onClick(form.SelectZeltoCancel, this, &AppDelegate::SelectZeltoCancelAction);
        onClick(form.SelectZeltoShowRule, this, &AppDelegate::SelectZeltoShowRuleAction);
        onChoice(form.SelectZeltoComboBox, this, &AppDelegate::UpdateDriveSign);
        onClose(form, this, &AppDelegate::SelectZeltoCancelAction);
    });
    whenBuilt(DeviceRuleWindow, [this](auto& form) {
        onClick(form.DeviceRuleCopy, this, &AppDelegate::DeviceRuleCopyAction);
        onClick(form.DeviceRuleClose, this, &AppDelegate::DeviceRuleCloseAction);
    });
    whenBuilt(AuthenticateWindow, [this](auto& form) {
        onClick(form.AuthenticateSubmit, this, &AppDelegate::AuthenticateSubmitAction);
        onClick(form.AuthenticateCancel, this, &AppDelegate::AuthenticateCancelAction);
        onClose(form, this, &AppDelegate::AuthenticateCancelAction);
        onEdit(form.AuthenticateTextField, this, &AppDelegate::controlTextDidChange);
        showTimes();
    });
    whenBuilt(UnlockedWindow, [this](auto& form) {
        onClick(form.UnlockedOK, this, &AppDelegate::UnlockedOKAction);
        onClick(form.UnlockedLogOff, this, &AppDelegate::UnlockedLogOffAction);
        onClick(form.UnlockedSetup, this, &AppDelegate::UnlockedSetupAction);
        onClose(form, this, &AppDelegate::UnlockedOKAction);
    });
    whenBuilt(UnlockingWindow, [this](auto& form) {
        onClick(form.UnlockingLogOff, this, &AppDelegate::UnlockingLogOffAction);
        onClick(form.UnlockingCancel, this, &AppDelegate::UnlockingCancelAction);
        onClick(form.UnlockingSetup, this, &AppDelegate::UnlockingSetupAction);
        onClose(form, this, &AppDelegate::UnlockingCancelAction);
    });
    whenBuilt(ZeltoSettingWindow, [this](auto& form) {
        form.ZeltoSettingText->setHolds(localized("IDS_SETTING_COMPLETE"));
        onClick(form.ZeltoSettingOKButton, this, &AppDelegate::ZeltoSettingOKAction);
        // The last window: closing it is a request to quit, refused while set-up is under way.
        onClose(form, this, &AppDelegate::TerminateApplication);
    });
}

void AppDelegate::connectHelp(const Window& window) {
    for (const HelpButton* const button : window.findChildren<HelpButton*>()) {
        QObject::connect(button, &QPushButton::clicked, button,
                         [this, button] { ShowHelp(button->page()); });
    }
}

void AppDelegate::connectPasswordFields(const Window& window) {
    for (PasswordField* const field : window.findChildren<PasswordField*>()) {
        field->setCapsLockState([this] { return m_platform.desktop.isCapsLockOn(); });
    }
}

} // namespace zelto
