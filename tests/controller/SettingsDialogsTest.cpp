#include "tests/controller/SettingsBench.h"

#include <QTimer>

namespace zelto::test {
namespace {

using testing::IsEmpty;

std::vector<QString> strangeTexts() {
    return {QStringLiteral(" "),
            QStringLiteral("-1"),
            QStringLiteral("+1"),
            QStringLiteral("1a"),
            QStringLiteral("\U0001F511"),
            QStringLiteral("\u05D0\u05D1"),
            QStringLiteral("\u0661\u0662"),
            QString(100000, QChar(0x00E9))};
}

class AreaDialog : public SettingsBench {};

TEST_F(AreaDialog, OffersTheWholeDriveToDisk1) {
    begin();
    auto& form = app().AreaSettingsWindow;
    inDialog(app().MainSettingsWindow.AreaSettingsButton, form, [&] {
        EXPECT_EQ(form.Disk1CapacityText->text(), QStringLiteral("108"));
        EXPECT_EQ(form.Disk2CapacityText->text(), QStringLiteral("0"));
        EXPECT_EQ(form.Disk3CapacityText->text(), QStringLiteral("0"));
        EXPECT_EQ(form.LeftCapacityText->text(), localized("IDS_FREE_CAPACITY", 0));
        EXPECT_TRUE(form.AreaSettingsOKButton->isEnabled());
        EXPECT_EQ(app().TextInputMode, 3);
    });
    EXPECT_EQ(app().TextInputMode, 0);
    EXPECT_FALSE(app().Changed.AreaSettingsPerformed);
}

TEST_F(AreaDialog, ShowsWhatIsLeftAfterEveryEditAndWhenItIsTooMuch) {
    begin();
    auto& form = app().AreaSettingsWindow;
    inDialog(app().MainSettingsWindow.AreaSettingsButton, form, [&] {
        type(form.Disk1CapacityText, "100");
        EXPECT_EQ(form.LeftCapacityText->text(), localized("IDS_FREE_CAPACITY", 8));
        type(form.Disk2CapacityText, "8");
        EXPECT_EQ(form.LeftCapacityText->text(), localized("IDS_FREE_CAPACITY", 0));
        EXPECT_TRUE(form.AreaSettingsOKButton->isEnabled());
        type(form.Disk2CapacityText, "9");
        EXPECT_EQ(form.LeftCapacityText->text(), localized("IDS_CAPACITY_OVER"));
        EXPECT_FALSE(form.AreaSettingsOKButton->isEnabled());
        type(form.Disk2CapacityText, "");
        EXPECT_TRUE(form.AreaSettingsOKButton->isEnabled());
        type(form.Disk1CapacityText, "");
        EXPECT_FALSE(form.AreaSettingsOKButton->isEnabled());
    });
}

TEST_F(AreaDialog, StrangeTextsKeepOkDisabled) {
    begin();
    auto& form = app().AreaSettingsWindow;
    inDialog(app().MainSettingsWindow.AreaSettingsButton, form, [&] {
        type(form.Disk1CapacityText, "10");
        for (const QString& text : strangeTexts()) {
            type(form.Disk3CapacityText, text);
            EXPECT_FALSE(form.AreaSettingsOKButton->isEnabled()) << text.left(9).toStdString();
        }
        type(form.Disk3CapacityText, QString(30000, u'9'));
        EXPECT_FALSE(form.AreaSettingsOKButton->isEnabled());
        EXPECT_EQ(form.LeftCapacityText->text(), localized("IDS_CAPACITY_OVER"));
    });
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(AreaDialog, AtMostOneDiskIsSecure) {
    begin();
    auto& form = app().AreaSettingsWindow;
    inDialog(app().MainSettingsWindow.AreaSettingsButton, form, [&] {
        click(form.Disk1SecureCheckBox);
        click(form.Disk3SecureCheckBox);
        EXPECT_FALSE(form.Disk1SecureCheckBox->isChecked());
        EXPECT_TRUE(form.Disk3SecureCheckBox->isChecked());
        click(form.Disk2SecureCheckBox);
        EXPECT_FALSE(form.Disk3SecureCheckBox->isChecked());
        EXPECT_TRUE(form.Disk2SecureCheckBox->isChecked());
        click(form.Disk2SecureCheckBox);
        EXPECT_FALSE(form.Disk1SecureCheckBox->isChecked());
        EXPECT_FALSE(form.Disk2SecureCheckBox->isChecked());
    });
}

TEST_F(AreaDialog, ACancelledDialogKeepsWhatWasTypedAndNothingElse) {
    begin();
    auto& form = app().AreaSettingsWindow;
    inDialog(app().MainSettingsWindow.AreaSettingsButton, form, [&] {
        type(form.Disk1CapacityText, "50");
        click(form.Disk1SecureCheckBox);
        click(form.AreaSettingsCancelButton);
    });
    EXPECT_FALSE(app().Changed.AreaSettingsPerformed);
    EXPECT_EQ(app().Settings.AreaInfos.entry(0).sectorCount, AreaInfoEntry::AllSectors);
    EXPECT_FALSE(okIsEnabled());
    inDialog(app().MainSettingsWindow.AreaSettingsButton, form, [&] {
        EXPECT_EQ(form.Disk1CapacityText->text(), QStringLiteral("50"));
        EXPECT_FALSE(form.Disk1SecureCheckBox->isChecked());
    });
}

TEST_F(AreaDialog, OnlyDisk1sSecureChoiceIsBroughtBack) {
    begin();
    auto& form = app().AreaSettingsWindow;
    layOut({.secureDisk = 1});
    inDialog(app().MainSettingsWindow.AreaSettingsButton, form,
             [&] { EXPECT_TRUE(form.Disk1SecureCheckBox->isChecked()); });
    layOut({.mebibytes = {"10", "10", "0"}, .secureDisk = 2});
    inDialog(app().MainSettingsWindow.AreaSettingsButton, form, [&] {
        EXPECT_FALSE(form.Disk1SecureCheckBox->isChecked());
        EXPECT_FALSE(form.Disk2SecureCheckBox->isChecked());
    });
}

TEST_F(AreaDialog, AnEmptyDisk2MovesDisk3UpInTheTable) {
    begin();
    EXPECT_EQ(app().tableViewObjectValue(QStringLiteral("ColumnIDType"), 0),
              localized("IDS_FREE_AREA"));
    EXPECT_EQ(app().tableViewObjectValue(QStringLiteral("ColumnIDCapacity"), 0),
              localized("IDS_ALL_SECTORS"));
    layOut({.mebibytes = {"50", "0", "10"}, .secureDisk = 3});
    EXPECT_EQ(app().numberOfRowsInTableView(), 2);
    EXPECT_EQ(app().tableViewObjectValue(QStringLiteral("ColumnIDDisk"), 1),
              QStringLiteral("Disk2"));
    EXPECT_EQ(app().tableViewObjectValue(QStringLiteral("ColumnIDType"), 1),
              localized("IDS_SECURE_AREA"));
    EXPECT_EQ(app().tableViewObjectValue(QStringLiteral("ColumnIDCapacity"), 1),
              QStringLiteral("10MB"));
    EXPECT_EQ(app().MainSettingsWindow.AreaInfosTableView->model()->rowCount(), 2);
    EXPECT_EQ(app().MainSettingsWindow.FreeCapacityText->text(),
              localized("IDS_FREE_CAPACITY", 48));
}

TEST_F(AreaDialog, ReadsNeitherAreasNorTimesAgain) {
    begin();
    computer.log.clear();
    layOut({});
    EXPECT_EQ(computer.log.count("TKVR21_GetAreaInfos"), 0u);
    EXPECT_EQ(computer.log.count("TKVR21_GetDeviceStatus"), 1u);
    EXPECT_EQ(computer.log.count("TKVR21_ZELTO_GetTimeStatus"), 0u);
}

TEST_F(AreaDialog, ASecureAreaOffersTheSecurityControlsOnceAndKeepsThemAfterwards) {
    begin();
    auto& main = app().MainSettingsWindow;
    layOut({.secureDisk = 1});
    EXPECT_TRUE(main.PasswordSettingsButton->isEnabled());
    EXPECT_TRUE(main.EncryptionKeyAutoManualSelectRadioButton->isEnabled());
    EXPECT_EQ(main.EncryptionKeyAutoManualSelectRadioButton->selectedTag(), 0);
    EXPECT_FALSE(main.EncryptionKeyButton->isEnabled());
    EXPECT_TRUE(main.AutoClearEnabledCheckBox->isEnabled());
    EXPECT_FALSE(main.AutoClearText->isEnabled());
    EXPECT_TRUE(main.ShowRemainingTimeCheckBox->isEnabled());
    EXPECT_FALSE(okIsEnabled());

    setKey(QStringLiteral("0A"));
    click(main.AutoClearEnabledCheckBox);
    type(main.AutoClearText, "5");
    layOut({.mebibytes = {"10", "0", "0"}, .secureDisk = 1});
    EXPECT_EQ(main.AutoClearText->text(), QStringLiteral("5"));
    EXPECT_TRUE(main.AutoClearEnabledCheckBox->isChecked());
    EXPECT_EQ(app().Settings.StrEncryptionKey, QStringLiteral("0A"));

    layOut({.secureDisk = 0});
    EXPECT_FALSE(main.AutoClearEnabledCheckBox->isChecked());
    EXPECT_TRUE(main.AutoClearText->text().isEmpty());
    EXPECT_TRUE(app().Settings.StrEncryptionKey.isEmpty());
    EXPECT_TRUE(okIsEnabled());
}

TEST_F(AreaDialog, OnADriveWithoutRoomNothingCanBeLaidOut) {
    begin(40000);
    EXPECT_TRUE(app().Settings.InitialSetting);
    EXPECT_EQ(app().Settings.TotalSectorCount, 0u);
    auto& form = app().AreaSettingsWindow;
    inDialog(app().MainSettingsWindow.AreaSettingsButton, form, [&] {
        type(form.Disk1CapacityText, "1");
        EXPECT_FALSE(form.AreaSettingsOKButton->isEnabled());
    });
}

class PasswordDialog : public SettingsBench {};

TEST_F(PasswordDialog, OnePasswordNeedsAValidPairOnly) {
    inPasswordDialog([&](auto& form) {
        EXPECT_EQ(app().TextInputMode, 4);
        EXPECT_FALSE(form.PS_OKButton->isEnabled());
        EXPECT_FALSE(form.PS_2ndPasswordText->isEnabled());
        EXPECT_FALSE(form.PS_2ndPasswordNumberOfTrials->isEnabled());
        type(form.PS_1stPasswordText, "abc");
        type(form.PS_Again1stPasswordText, "abd");
        EXPECT_FALSE(form.PS_OKButton->isEnabled());
        type(form.PS_Again1stPasswordText, "abc");
        EXPECT_TRUE(form.PS_OKButton->isEnabled());
        const QString tooLong(33, u'a');
        type(form.PS_1stPasswordText, tooLong);
        type(form.PS_Again1stPasswordText, tooLong);
        EXPECT_FALSE(form.PS_OKButton->isEnabled());
        for (const QString& text : {QStringLiteral("\u00E9"), QStringLiteral("\U0001F511"),
                                    QStringLiteral("\u05D0"), QString(100000, u'a')}) {
            type(form.PS_1stPasswordText, text);
            type(form.PS_Again1stPasswordText, text);
            EXPECT_FALSE(form.PS_OKButton->isEnabled()) << text.left(9).toStdString();
        }
    });
    EXPECT_EQ(app().TextInputMode, 0);
    EXPECT_FALSE(app().Changed.ChangePassword);
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(PasswordDialog, TwoPasswordsNeedTrialsOfOneTo99) {
    inPasswordDialog([&](auto& form) {
        type(form.PS_1stPasswordText, "abc");
        type(form.PS_Again1stPasswordText, "abc");
        click(form.PS_1stAnd2ndCell);
        EXPECT_FALSE(form.PS_OKButton->isEnabled());
        type(form.PS_2ndPasswordText, "def");
        type(form.PS_Again2ndPasswordText, "def");
        for (const char* trials : {"", "0", "100", "1a", "-1", "4294967297"}) {
            type(form.PS_2ndPasswordNumberOfTrials, trials);
            EXPECT_FALSE(form.PS_OKButton->isEnabled()) << trials;
        }
        type(form.PS_2ndPasswordNumberOfTrials, "99");
        EXPECT_TRUE(form.PS_OKButton->isEnabled());
    });
}

TEST_F(PasswordDialog, GoingBackToOnePasswordKeepsTheSecondOnesText) {
    inPasswordDialog([&](auto& form) {
        type(form.PS_1stPasswordText, "abc");
        type(form.PS_Again1stPasswordText, "abc");
        click(form.PS_1stAnd2ndCell);
        type(form.PS_2ndPasswordText, "def");
        type(form.PS_2ndPasswordNumberOfTrials, "7");
        click(form.PS_1stOnlyCell);
        EXPECT_FALSE(form.PS_2ndPasswordText->isEnabled());
        EXPECT_EQ(form.PS_2ndPasswordText->text(), QStringLiteral("def"));
        click(form.PS_OKButton);
    });
    const auto& parameters = app().Settings.PasswordSettingsParameters;
    EXPECT_FALSE(parameters.Use1stAnd2ndPassword);
    EXPECT_EQ(parameters.strNew1stPassword, QStringLiteral("abc"));
    EXPECT_EQ(parameters.strNew2ndPassword, QStringLiteral("def"));
    EXPECT_EQ(parameters.NumberOfTrials, 7);
    EXPECT_TRUE(okIsEnabled());
}

TEST_F(PasswordDialog, OpenedAgainItIsFilledAndOkIsEnabledAtOnce) {
    begin();
    layOut({});
    setPasswords({.twoPasswords = true, .trials = "42"});
    auto& form = app().PasswordSettingsWindow;
    inDialog(app().MainSettingsWindow.PasswordSettingsButton, form, [&] {
        EXPECT_EQ(form.PS_1stOnlyOr1stAnd2ndRadioButton->selectedTag(), 1);
        EXPECT_EQ(form.PS_Again1stPasswordText->text(), QStringLiteral("first"));
        EXPECT_EQ(form.PS_Again2ndPasswordText->text(), QStringLiteral("second"));
        EXPECT_EQ(form.PS_2ndPasswordNumberOfTrials->text(), QStringLiteral("42"));
        EXPECT_TRUE(form.PS_OKButton->isEnabled());
        type(form.PS_1stPasswordText, "other");
    });
    EXPECT_EQ(app().Settings.PasswordSettingsParameters.strNew1stPassword, QStringLiteral("first"));
    EXPECT_EQ(app().Settings.PasswordSettingsParameters.strNew2ndPassword,
              QStringLiteral("second"));
}

TEST_F(PasswordDialog, AClosedDialogHoldsNoPassword) {
    begin();
    layOut({});
    setPasswords({.twoPasswords = true});
    auto& form = app().PasswordSettingsWindow;
    for (const QLineEdit* field : {form.PS_1stPasswordText, form.PS_Again1stPasswordText,
                                   form.PS_2ndPasswordText, form.PS_Again2ndPasswordText}) {
        EXPECT_TRUE(field->text().isEmpty());
    }
}

TEST_F(PasswordDialog, TheChangeDialogIgnoresTheSecondPasswordOfADriveWithOne) {
    beginWithSettingsOf({});
    auto& form = app().PasswordChangeWindow;
    inDialog(app().MainSettingsWindow.PasswordSettingsButton, form, [&] {
        EXPECT_EQ(app().TextInputMode, 5);
        EXPECT_FALSE(form.PC_1stOnlyOr1stAnd2ndRadioButton->isEnabled());
        EXPECT_FALSE(form.PC_Current2ndPasswordText->isEnabled());
        EXPECT_FALSE(form.PC_2ndPasswordNumberOfTrials->isEnabled());
        type(form.PC_New1stPasswordText, "same");
        type(form.PC_AgainNew1stPasswordText, "same");
        EXPECT_FALSE(form.PC_OKButton->isEnabled());
        type(form.PC_Current1stPasswordText, "same");
        EXPECT_TRUE(form.PC_OKButton->isEnabled());
    });
    EXPECT_FALSE(app().Changed.ChangePassword);
    EXPECT_FALSE(okIsEnabled());
}

class KeyDialog : public SettingsBench {};

TEST_F(KeyDialog, AcceptsOneToSixtyFourBytesInHexadecimalDigits) {
    begin();
    layOut({});
    auto& main = app().MainSettingsWindow;
    click(main.EncryptionKeyManualCell);
    auto& form = app().EncryptionKeyWindow;
    inDialog(main.EncryptionKeyButton, form, [&] {
        EXPECT_EQ(app().TextInputMode, 6);
        EXPECT_FALSE(form.EncryptionKeyOKButton->isEnabled());
        for (const QString& text :
             {QStringLiteral("0A"), QStringLiteral("0a"), QString(128, u'F')}) {
            type(form.EncryptionKeyText, text);
            EXPECT_TRUE(form.EncryptionKeyOKButton->isEnabled());
        }
        for (const QString& text :
             {QStringLiteral("0"), QStringLiteral("0G"), QString(130, u'F'), QString()}) {
            type(form.EncryptionKeyText, text);
            EXPECT_FALSE(form.EncryptionKeyOKButton->isEnabled());
        }
        for (const QString& text : strangeTexts()) {
            type(form.EncryptionKeyText, text + QStringLiteral("G"));
            EXPECT_FALSE(form.EncryptionKeyOKButton->isEnabled());
        }
    });
    EXPECT_TRUE(app().Settings.StrEncryptionKey.isEmpty());
    click(main.EncryptionKeyAutoCell);
    EXPECT_FALSE(main.EncryptionKeyButton->isEnabled());
}

TEST_F(KeyDialog, OpenedAgainItShowsTheKeyAsTyped) {
    begin();
    layOut({});
    setKey(QStringLiteral("0aFF"));
    auto& form = app().EncryptionKeyWindow;
    inDialog(app().MainSettingsWindow.EncryptionKeyButton, form, [&] {
        EXPECT_EQ(form.EncryptionKeyText->text(), QStringLiteral("0aFF"));
        EXPECT_TRUE(form.EncryptionKeyOKButton->isEnabled());
    });
    EXPECT_EQ(app().Settings.StrEncryptionKey, QStringLiteral("0aFF"));
}

TEST(AreaSettingsObject, RunsItsWindowAndReturnsZero) {
    AreaSettings dialog;
    EXPECT_EQ(dialog.DoModal(), 0);
    Form<Ui::AreaSettingsWindow> window;
    dialog.AreaSettingsWindow = &window;
    dialog.awakeFromNib();
    QTimer::singleShot(0, &window, [&] { window.reject(); });
    EXPECT_EQ(dialog.DoModal(), 0);
}

} // namespace
} // namespace zelto::test
