#include "app/AppDelegate.h"
#include "settings/IntegerValue.h"
#include "settings/PasswordRules.h"
#include "settings/PasswordStrength.h"
#include "ui/Description.h"
#include "ui/Strings.h"

#include <initializer_list>

namespace zelto {
namespace {

constexpr int FirstOnlyTag = 0;
constexpr int FirstAndSecondTag = 1;

bool meansTwo(const RadioMatrix& matrix) {
    return matrix.selectedTag() != FirstOnlyTag;
}

void select(RadioMatrix& matrix, bool firstAndSecond) {
    matrix.selectCellWithTag(firstAndSecond ? FirstAndSecondTag : FirstOnlyTag);
}

void enable(std::initializer_list<QWidget*> controls, bool enabled) {
    for (QWidget* control : controls) {
        control->setEnabled(enabled);
    }
}

void show(const SecretText& password, std::initializer_list<PasswordField*> fields) {
    for (PasswordField* field : fields) {
        field->setSecret(password.view());
    }
}

/// The dialogs are filled anew when they open; meanwhile their fields keep no password.
void wipeFields(std::initializer_list<PasswordField*> fields) {
    for (PasswordField* field : fields) {
        field->wipe();
    }
}

/// A number not given yet leaves the field with what it shows.
void showTrials(std::int32_t numberOfTrials, QLineEdit& field) {
    if (numberOfTrials != 0) {
        field.setText(QString::number(numberOfTrials));
    }
}

/// Beside the field, and as its description.
void showStrength(StrengthHint& hint, PasswordField& field) {
    const PasswordStrength strength =
        field.isEnabled() ? passwordStrength(field.secret()) : PasswordStrength::None;
    hint.setStrength(static_cast<int>(strength));
    describe(field, hint, hint.text());
}

} // namespace

void AppDelegate::MainSettingsPasswordSettingsAction() {
    if (Settings.InitialSetting) {
        DisplayPasswordSettingsWindow();
    } else {
        DisplayPasswordChangeWindow();
    }
    UpdateMainSettingsOKButton();
}

void AppDelegate::DisplayPasswordSettingsWindow() {
    auto& form = *PasswordSettingsWindow;
    auto& parameters = Settings.PasswordSettingsParameters;
    TextInputMode = TextInputModes::PasswordSettings;
    select(*form.PS_1stOnlyOr1stAnd2ndRadioButton, parameters.Use1stAnd2ndPassword);
    enable(
        {form.PS_2ndPasswordText, form.PS_Again2ndPasswordText, form.PS_2ndPasswordNumberOfTrials},
        parameters.Use1stAnd2ndPassword);
    form.PS_OKButton->setEnabled(false);
    show(parameters.strNew1stPassword, {form.PS_1stPasswordText, form.PS_Again1stPasswordText});
    show(parameters.strNew2ndPassword, {form.PS_2ndPasswordText, form.PS_Again2ndPasswordText});
    showTrials(parameters.NumberOfTrials, *form.PS_2ndPasswordNumberOfTrials);
    form.PS_TrialsCue->setText(localized("IDS_HINT_TRIALS_ERASE"));
    UpdatePasswordSettingsWindow();

    if (form.runModal(&*MainSettingsWindow) == Window::ModalOK) {
        Changed.ChangePassword = true;
        parameters.Use1stAnd2ndPassword = meansTwo(*form.PS_1stOnlyOr1stAnd2ndRadioButton);
        parameters.strNew1stPassword = form.PS_1stPasswordText->secretText();
        parameters.strNew2ndPassword = form.PS_2ndPasswordText->secretText();
        parameters.NumberOfTrials = integerValue32(form.PS_2ndPasswordNumberOfTrials->text());
    }
    TextInputMode = TextInputModes::MainSettings;
    form.orderOut();
    wipeFields({form.PS_1stPasswordText, form.PS_Again1stPasswordText, form.PS_2ndPasswordText,
                form.PS_Again2ndPasswordText});
}

void AppDelegate::DisplayPasswordChangeWindow() {
    auto& form = *PasswordChangeWindow;
    auto& parameters = Settings.PasswordSettingsParameters;
    TextInputMode = TextInputModes::PasswordChange;
    select(*form.PC_1stOnlyOr1stAnd2ndRadioButton, parameters.Use1stAnd2ndPassword);
    enable({form.PC_Current2ndPasswordText, form.PC_New2ndPasswordText,
            form.PC_AgainNew2ndPasswordText, form.PC_2ndPasswordNumberOfTrials},
           parameters.Use1stAnd2ndPassword);
    enable({form.PC_1stOnlyOr1stAnd2ndRadioButton, form.PC_OKButton}, false);
    show(parameters.strCurrent1stPassword, {form.PC_Current1stPasswordText});
    show(parameters.strNew1stPassword,
         {form.PC_New1stPasswordText, form.PC_AgainNew1stPasswordText});
    show(parameters.strCurrent2ndPassword, {form.PC_Current2ndPasswordText});
    show(parameters.strNew2ndPassword,
         {form.PC_New2ndPasswordText, form.PC_AgainNew2ndPasswordText});
    showTrials(parameters.NumberOfTrials, *form.PC_2ndPasswordNumberOfTrials);
    form.PC_TrialsCue->setText(localized("IDS_HINT_TRIALS_ERASE"));
    UpdatePasswordChangeWindow();

    if (form.runModal(&*MainSettingsWindow) == Window::ModalOK) {
        keepChangedPasswords();
    }
    TextInputMode = TextInputModes::MainSettings;
    form.orderOut();
    wipeFields({form.PC_Current1stPasswordText, form.PC_New1stPasswordText,
                form.PC_AgainNew1stPasswordText, form.PC_Current2ndPasswordText,
                form.PC_New2ndPasswordText, form.PC_AgainNew2ndPasswordText});
}

void AppDelegate::keepChangedPasswords() {
    const auto& form = *PasswordChangeWindow;
    auto& parameters = Settings.PasswordSettingsParameters;
    Changed.ChangePassword = true;
    parameters.Use1stAnd2ndPassword = meansTwo(*form.PC_1stOnlyOr1stAnd2ndRadioButton);
    parameters.strCurrent1stPassword = form.PC_Current1stPasswordText->secretText();
    parameters.strNew1stPassword = form.PC_New1stPasswordText->secretText();
    parameters.strCurrent2ndPassword = form.PC_Current2ndPasswordText->secretText();
    parameters.strNew2ndPassword = form.PC_New2ndPasswordText->secretText();
    parameters.NumberOfTrials = integerValue32(form.PC_2ndPasswordNumberOfTrials->text());
}

void AppDelegate::UpdatePasswordSettingsWindow() {
    auto& form = *PasswordSettingsWindow;
    const bool two = meansTwo(*form.PS_1stOnlyOr1stAnd2ndRadioButton);
    enable(
        {form.PS_2ndPasswordText, form.PS_Again2ndPasswordText, form.PS_2ndPasswordNumberOfTrials},
        two);
    // The views are into this text, so it outlives the entries.
    const QString trials = form.PS_2ndPasswordNumberOfTrials->text();
    const PasswordSettingsEntries entries{
        .firstAndSecond = two,
        .first = {form.PS_1stPasswordText->secret(), form.PS_Again1stPasswordText->secret()},
        .second = {form.PS_2ndPasswordText->secret(), form.PS_Again2ndPasswordText->secret()},
        .trials = trials};
    form.PS_OKButton->setEnabled(passwordSettingsAreComplete(entries));
    showObstacle(*form.PS_Obstacle, passwordSettingsObstacle(entries));
    showStrength(*form.PS_1stStrength, *form.PS_1stPasswordText);
    showStrength(*form.PS_2ndStrength, *form.PS_2ndPasswordText);
}

/// The drive's number of passwords decides, not the radio: it cannot be changed here.
void AppDelegate::UpdatePasswordChangeWindow() {
    auto& form = *PasswordChangeWindow;
    // The views are into this text, so it outlives the entries.
    const QString trials = form.PC_2ndPasswordNumberOfTrials->text();
    const PasswordChangeEntries entries{
        .currentFirst = form.PC_Current1stPasswordText->secret(),
        .currentSecond = form.PC_Current2ndPasswordText->secret(),
        .renewed = {.firstAndSecond = Settings.PasswordSettingsParameters.Use1stAnd2ndPassword,
                    .first = {form.PC_New1stPasswordText->secret(),
                              form.PC_AgainNew1stPasswordText->secret()},
                    .second = {form.PC_New2ndPasswordText->secret(),
                               form.PC_AgainNew2ndPasswordText->secret()},
                    .trials = trials}};
    form.PC_OKButton->setEnabled(passwordChangeIsComplete(entries));
    showObstacle(*form.PC_Obstacle, passwordChangeObstacle(entries));
    showStrength(*form.PC_New1stStrength, *form.PC_New1stPasswordText);
    showStrength(*form.PC_New2ndStrength, *form.PC_New2ndPasswordText);
}

void AppDelegate::PasswordSettingsUse1stAction() {
    UpdatePasswordSettingsWindow();
}

void AppDelegate::PasswordSettingsUse1stAnd2ndAction() {
    UpdatePasswordSettingsWindow();
}

void AppDelegate::PasswordSettingsOKAction() {
    PasswordSettingsWindow->stopModal(Window::ModalOK);
}

void AppDelegate::PasswordSettingsCancelAction() {
    PasswordSettingsWindow->stopModal(Window::ModalCancel);
}

void AppDelegate::PasswordChangeOKAction() {
    PasswordChangeWindow->stopModal(Window::ModalOK);
}

void AppDelegate::PasswordChangeCancelAction() {
    PasswordChangeWindow->stopModal(Window::ModalCancel);
}

} // namespace zelto
