#include "tests/ui/AllForms.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>

#include <gtest/gtest.h>

#include <array>
#include <set>

namespace zelto::test {
namespace {

struct ControlRow {
    int line;
    const char* form;
    const char* name;
    const QMetaObject* kind;
    bool startsEnabled;
};

const auto* const Button = &QPushButton::staticMetaObject;
const auto* const Label = &QLabel::staticMetaObject;
const auto* const Line = &QLineEdit::staticMetaObject;
const auto* const Password = &PasswordField::staticMetaObject;
const auto* const Check = &QCheckBox::staticMetaObject;
const auto* const Combo = &QComboBox::staticMetaObject;
const auto* const Matrix = &RadioMatrix::staticMetaObject;

const ControlRow Controls[] = {
    {__LINE__, "SelectZeltoWindow", "SelectZeltoComboBox", Combo, true},
    {__LINE__, "SelectZeltoWindow", "SelectZeltoOK", Button, true},
    {__LINE__, "SelectZeltoWindow", "SelectZeltoUpdate", Button, true},
    {__LINE__, "SelectZeltoWindow", "SelectZeltoCancel", Button, true},
    {__LINE__, "SelectZeltoWindow", "SelectZeltoNoDrive", Label, true},
    {__LINE__, "SelectZeltoWindow", "SelectZeltoSign", Label, true},
    {__LINE__, "SelectZeltoWindow", "SelectZeltoAccessHint", Label, true},
    {__LINE__, "SelectZeltoWindow", "SelectZeltoShowRule", Button, true},
    {__LINE__, "DeviceRuleWindow", "DeviceRuleCommand", &QPlainTextEdit::staticMetaObject, true},
    {__LINE__, "DeviceRuleWindow", "DeviceRuleCopy", Button, true},
    {__LINE__, "DeviceRuleWindow", "DeviceRuleClose", Button, true},
    {__LINE__, "AuthenticateWindow", "AuthenticateMessage", Label, true},
    {__LINE__, "AuthenticateWindow", "AuthenticateTextField", Password, true},
    {__LINE__, "AuthenticateWindow", "AuthenticateObstacle", Label, true},
    {__LINE__, "AuthenticateWindow", "AuthenticateSubmit", Button, false},
    {__LINE__, "AuthenticateWindow", "AuthenticateCancel", Button, true},
    {__LINE__, "AuthenticateWindow", "AuthenticateDeviceTimeText", Label, true},
    {__LINE__, "AuthenticateWindow", "AuthenticateRemainingTimeTitleText", Label, true},
    {__LINE__, "AuthenticateWindow", "AuthenticateRemainingTimeText", Label, true},
    {__LINE__, "UnlockedWindow", "UnlockedOK", Button, true},
    {__LINE__, "UnlockedWindow", "UnlockedLogOff", Button, true},
    {__LINE__, "UnlockedWindow", "UnlockedSetup", Button, true},
    {__LINE__, "UnlockingWindow", "UnlockingCancel", Button, true},
    {__LINE__, "UnlockingWindow", "UnlockingLogOff", Button, true},
    {__LINE__, "UnlockingWindow", "UnlockingSetup", Button, true},
    {__LINE__, "ZeltoSettingWindow", "ZeltoSettingText", Label, true},
    {__LINE__, "ZeltoSettingWindow", "ZeltoSettingOKButton", Button, false},
    {__LINE__, "ZeltoSettingWindow", "SetupStepsView", &SetupStepsView::staticMetaObject, true},
    {__LINE__, "MainSettingsWindow", "ZeltoDriveComboBox", Combo, false},
    {__LINE__, "MainSettingsWindow", "PCTimeText", Label, true},
    {__LINE__, "MainSettingsWindow", "DeviceTimeText", Label, true},
    {__LINE__, "MainSettingsWindow", "TotalCapacityText", Label, true},
    {__LINE__, "MainSettingsWindow", "FreeCapacityText", Label, true},
    {__LINE__, "MainSettingsWindow", "AreaInfosTableView", &QTableView::staticMetaObject, true},
    {__LINE__, "MainSettingsWindow", "AreaBarView", &AreaBar::staticMetaObject, true},
    {__LINE__, "MainSettingsWindow", "AreaSettingsButton", Button, true},
    {__LINE__, "MainSettingsWindow", "PasswordSettingsButton", Button, false},
    {__LINE__, "MainSettingsWindow", "EncryptionKeyAutoManualSelectRadioButton", Matrix, false},
    {__LINE__, "MainSettingsWindow", "EncryptionKeyButton", Button, false},
    {__LINE__, "MainSettingsWindow", "EraseEncryptionKeyButton", Button, false},
    {__LINE__, "MainSettingsWindow", "AutoClearEnabledCheckBox", Check, false},
    {__LINE__, "MainSettingsWindow", "AutoClearDaysOrMinutesRadioButton", Matrix, false},
    {__LINE__, "MainSettingsWindow", "AutoClearText", Line, false},
    {__LINE__, "MainSettingsWindow", "AutoLogOffEnabledCheckBox", Check, false},
    {__LINE__, "MainSettingsWindow", "AutoLogOffText", Line, false},
    {__LINE__, "MainSettingsWindow", "ShowRemainingTimeCheckBox", Check, false},
    {__LINE__, "MainSettingsWindow", "MainSettingsOKButton", Button, false},
    {__LINE__, "MainSettingsWindow", "MainSettingsClearAllButton", Button, true},
    {__LINE__, "MainSettingsWindow", "MainSettingsSetTimeButton", Button, true},
    {__LINE__, "MainSettingsWindow", "MainSettingsCancelButton", Button, true},
    {__LINE__, "AreaSettingsWindow", "Disk1CapacityText", Line, true},
    {__LINE__, "AreaSettingsWindow", "Disk2CapacityText", Line, true},
    {__LINE__, "AreaSettingsWindow", "Disk3CapacityText", Line, true},
    {__LINE__, "AreaSettingsWindow", "Disk1SecureCheckBox", Check, true},
    {__LINE__, "AreaSettingsWindow", "Disk2SecureCheckBox", Check, true},
    {__LINE__, "AreaSettingsWindow", "Disk3SecureCheckBox", Check, true},
    {__LINE__, "AreaSettingsWindow", "LeftCapacityText", Label, true},
    {__LINE__, "AreaSettingsWindow", "AreaSettingsBarView", &AreaBar::staticMetaObject, true},
    {__LINE__, "AreaSettingsWindow", "AreaSettingsOKButton", Button, false},
    {__LINE__, "AreaSettingsWindow", "AreaSettingsCancelButton", Button, true},
    {__LINE__, "PasswordSettingsWindow", "PS_1stOnlyOr1stAnd2ndRadioButton", Matrix, true},
    {__LINE__, "PasswordSettingsWindow", "PS_1stPasswordText", Password, true},
    {__LINE__, "PasswordSettingsWindow", "PS_Again1stPasswordText", Password, true},
    {__LINE__, "PasswordSettingsWindow", "PS_2ndPasswordText", Password, false},
    {__LINE__, "PasswordSettingsWindow", "PS_Again2ndPasswordText", Password, false},
    {__LINE__, "PasswordSettingsWindow", "PS_2ndPasswordNumberOfTrials", Line, false},
    {__LINE__, "PasswordSettingsWindow", "PS_OKButton", Button, false},
    {__LINE__, "PasswordSettingsWindow", "PasswordSettingsCancelButton", Button, true},
    {__LINE__, "PasswordChangeWindow", "PC_1stOnlyOr1stAnd2ndRadioButton", Matrix, false},
    {__LINE__, "PasswordChangeWindow", "PC_Current1stPasswordText", Password, true},
    {__LINE__, "PasswordChangeWindow", "PC_New1stPasswordText", Password, true},
    {__LINE__, "PasswordChangeWindow", "PC_AgainNew1stPasswordText", Password, true},
    {__LINE__, "PasswordChangeWindow", "PC_Current2ndPasswordText", Password, false},
    {__LINE__, "PasswordChangeWindow", "PC_New2ndPasswordText", Password, false},
    {__LINE__, "PasswordChangeWindow", "PC_AgainNew2ndPasswordText", Password, false},
    {__LINE__, "PasswordChangeWindow", "PC_2ndPasswordNumberOfTrials", Line, false},
    {__LINE__, "PasswordChangeWindow", "PC_OKButton", Button, false},
    {__LINE__, "PasswordChangeWindow", "PasswordChangeCancelButton", Button, true},
    {__LINE__, "EncryptionKeyWindow", "EncryptionKeyText", Line, true},
    {__LINE__, "EncryptionKeyWindow", "EncryptionKeyOKButton", Button, false},
    {__LINE__, "EncryptionKeyWindow", "EncryptionKeyCancelButton", Button, true},
};

TEST(FormControls, EveryControlHasItsNameItsKindAndItsFirstState) {
    for (const FormUnderTest& form : allForms()) {
        const std::unique_ptr<Window> window = form.create();
        for (const ControlRow& row : Controls) {
            if (std::string_view(row.form) != form.name) {
                continue;
            }
            SCOPED_TRACE(row.line);
            const auto* control = window->findChild<QWidget*>(QString::fromLatin1(row.name));
            ASSERT_NE(control, nullptr) << row.name;
            EXPECT_TRUE(control->metaObject()->inherits(row.kind)) << row.name;
            EXPECT_EQ(control->isEnabled(), row.startsEnabled) << row.name;
        }
    }
}

TEST(FormControls, EveryRadioMatrixHasTheTagsZeroAndOneAndStartsAtZero) {
    int matrices = 0;
    for (const FormUnderTest& form : allForms()) {
        const std::unique_ptr<Window> window = form.create();
        for (RadioMatrix* matrix : window->findChildren<RadioMatrix*>()) {
            ++matrices;
            EXPECT_EQ(matrix->findChildren<QRadioButton*>().size(), 2);
            EXPECT_EQ(matrix->selectedTag(), 0);
            matrix->selectCellWithTag(1);
            EXPECT_EQ(matrix->selectedTag(), 1);
        }
    }
    EXPECT_EQ(matrices, 4);
}

TEST(FormControls, TheRemainingTimeCaptionHasItsTextFromTheForm) {
    const Form<Ui::AuthenticateWindow> form;
    EXPECT_FALSE(form.AuthenticateRemainingTimeTitleText->text().isEmpty());
}

TEST(FormControls, TheAccessHintStartsHidden) {
    const Form<Ui::SelectZeltoWindow> form;
    EXPECT_TRUE(form.SelectZeltoAccessHint->isHidden());
    EXPECT_TRUE(form.SelectZeltoAccessHint->wordWrap());
}

TEST(FormControls, EveryPasswordIsHiddenAndKeptFromTheInputMethodsMemory) {
    int fields = 0;
    for (const FormUnderTest& form : allForms()) {
        const std::unique_ptr<Window> window = form.create();
        for (const PasswordField* field : window->findChildren<PasswordField*>()) {
            ++fields;
            EXPECT_EQ(field->echoMode(), QLineEdit::Password);
            EXPECT_TRUE(field->inputMethodHints().testFlag(Qt::ImhSensitiveData));
            EXPECT_TRUE(field->inputMethodHints().testFlag(Qt::ImhNoPredictiveText));
            EXPECT_FALSE(field->dragEnabled());
        }
    }
    EXPECT_EQ(fields, 11);
}

} // namespace
} // namespace zelto::test
