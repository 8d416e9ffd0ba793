#include "app/AppDelegate.h"
#include "settings/IntegerValue.h"
#include "settings/PasswordRules.h"
#include "settings/SecretText.h"
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

void show(const QString& password, std::initializer_list<PasswordField*> fields) {
    for (PasswordField* field : fields) {
        field->setText(unsharedCopy(password));
    }
}

/// The dialogs are filled anew when they open; meanwhile their fields keep no password.
void wipeFields(std::initializer_list<PasswordField*> fields) {
    for (PasswordField* field : fields) {
        field->wipe();
    }
}

void keep(const PasswordField& field, QString& password) {
    wipeText(password);
    password = unsharedCopy(field.text());
}

/// A number not given yet leaves the field with what it shows.
void showTrials(std::int32_t numberOfTrials, QLineEdit& field) {
    if (numberOfTrials != 0) {
        field.setText(QString::number(numberOfTrials));
    }
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
    auto& form = PasswordSettingsWindow;
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

    if (form.runModal(&MainSettingsWindow) == Window::ModalOK) {
        Changed.ChangePassword = true;
        parameters.Use1stAnd2ndPassword = meansTwo(*form.PS_1stOnlyOr1stAnd2ndRadioButton);
        keep(*form.PS_1stPasswordText, parameters.strNew1stPassword);
        keep(*form.PS_2ndPasswordText, parameters.strNew2ndPassword);
        parameters.NumberOfTrials = integerValue32(form.PS_2ndPasswordNumberOfTrials->text());
    }
    TextInputMode = TextInputModes::MainSettings;
    form.orderOut();
    wipeFields({form.PS_1stPasswordText, form.PS_Again1stPasswordText, form.PS_2ndPasswordText,
                form.PS_Again2ndPasswordText});
}

void AppDelegate::DisplayPasswordChangeWindow() {
    auto& form = PasswordChangeWindow;
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

    if (form.runModal(&MainSettingsWindow) == Window::ModalOK) {
        keepChangedPasswords();
    }
    TextInputMode = TextInputModes::MainSettings;
    form.orderOut();
    wipeFields({form.PC_Current1stPasswordText, form.PC_New1stPasswordText,
                form.PC_AgainNew1stPasswordText, form.PC_Current2ndPasswordText,
                form.PC_New2ndPasswordText, form.PC_AgainNew2ndPasswordText});
}

void AppDelegate::keepChangedPasswords() {
    const auto& form = PasswordChangeWindow;
    auto& parameters = Settings.PasswordSettingsParameters;
    Changed.ChangePassword = true;
    parameters.Use1stAnd2ndPassword = meansTwo(*form.PC_1stOnlyOr1stAnd2ndRadioButton);
    keep(*form.PC_Current1stPasswordText, parameters.strCurrent1stPassword);
    keep(*form.PC_New1stPasswordText, parameters.strNew1stPassword);
    keep(*form.PC_Current2ndPasswordText, parameters.strCurrent2ndPassword);
    keep(*form.PC_New2ndPasswordText, parameters.strNew2ndPassword);
    parameters.NumberOfTrials = integerValue32(form.PC_2ndPasswordNumberOfTrials->text());
}

void AppDelegate::UpdatePasswordSettingsWindow() {
    auto& form = PasswordSettingsWindow;
    const bool two = meansTwo(*form.PS_1stOnlyOr1stAnd2ndRadioButton);
    enable(
        {form.PS_2ndPasswordText, form.PS_Again2ndPasswordText, form.PS_2ndPasswordNumberOfTrials},
        two);
    // The views are into these texts, so the texts outlive the entries.
    const QString first = form.PS_1stPasswordText->text();
    const QString firstAgain = form.PS_Again1stPasswordText->text();
    const QString second = form.PS_2ndPasswordText->text();
    const QString secondAgain = form.PS_Again2ndPasswordText->text();
    const QString trials = form.PS_2ndPasswordNumberOfTrials->text();
    const PasswordSettingsEntries entries{.firstAndSecond = two,
                                          .first = {first, firstAgain},
                                          .second = {second, secondAgain},
                                          .trials = trials};
    form.PS_OKButton->setEnabled(passwordSettingsAreComplete(entries));
    showObstacle(*form.PS_Obstacle, passwordSettingsObstacle(entries));
}

/// The drive's number of passwords decides, not the radio: it cannot be changed here.
void AppDelegate::UpdatePasswordChangeWindow() {
    auto& form = PasswordChangeWindow;
    const QString currentFirst = form.PC_Current1stPasswordText->text();
    const QString currentSecond = form.PC_Current2ndPasswordText->text();
    const QString first = form.PC_New1stPasswordText->text();
    const QString firstAgain = form.PC_AgainNew1stPasswordText->text();
    const QString second = form.PC_New2ndPasswordText->text();
    const QString secondAgain = form.PC_AgainNew2ndPasswordText->text();
    const QString trials = form.PC_2ndPasswordNumberOfTrials->text();
    const PasswordChangeEntries entries{
        .currentFirst = currentFirst,
        .currentSecond = currentSecond,
        .renewed = {.firstAndSecond = Settings.PasswordSettingsParameters.Use1stAnd2ndPassword,
                    .first = {first, firstAgain},
                    .second = {second, secondAgain},
                    .trials = trials}};
    form.PC_OKButton->setEnabled(passwordChangeIsComplete(entries));
    showObstacle(*form.PC_Obstacle, passwordChangeObstacle(entries));
}

void AppDelegate::PasswordSettingsUse1stAction() {
    UpdatePasswordSettingsWindow();
}

void AppDelegate::PasswordSettingsUse1stAnd2ndAction() {
    UpdatePasswordSettingsWindow();
}

void AppDelegate::PasswordSettingsOKAction() {
    PasswordSettingsWindow.stopModal(Window::ModalOK);
}

void AppDelegate::PasswordSettingsCancelAction() {
    PasswordSettingsWindow.stopModal(Window::ModalCancel);
}

void AppDelegate::PasswordChangeOKAction() {
    PasswordChangeWindow.stopModal(Window::ModalOK);
}

void AppDelegate::PasswordChangeCancelAction() {
    PasswordChangeWindow.stopModal(Window::ModalCancel);
}

} // namespace zelto
