#include "tests/support/SettingsBench.h"
#include "tests/support/TextCases.h"

#include <QTimer>

namespace zelto::test {
namespace {

using testing::IsEmpty;

class AreaDialog : public SettingsBench {};

TEST_F(AreaDialog, OffersTheWholeDriveToDisk1) {
    begin();
    inDialog("AreaSettingsButton", "AreaSettingsWindow", [&] {
        EXPECT_EQ(text("Disk1CapacityText"), QStringLiteral("108"));
        EXPECT_EQ(text("Disk2CapacityText"), QStringLiteral("0"));
        EXPECT_EQ(text("Disk3CapacityText"), QStringLiteral("0"));
        EXPECT_EQ(text("LeftCapacityText"), localized("IDS_FREE_CAPACITY", 0));
        EXPECT_TRUE(isEnabled("AreaSettingsOKButton"));
        EXPECT_EQ(app().TextInputMode, 3);
    });
    EXPECT_EQ(app().TextInputMode, 0);
    EXPECT_FALSE(app().Changed.AreaSettingsPerformed);
}

TEST_F(AreaDialog, ShowsWhatIsLeftAfterEveryEditAndWhenItIsTooMuch) {
    begin();
    inDialog("AreaSettingsButton", "AreaSettingsWindow", [&] {
        type("Disk1CapacityText", "100");
        EXPECT_EQ(text("LeftCapacityText"), localized("IDS_FREE_CAPACITY", 8));
        type("Disk2CapacityText", "8");
        EXPECT_EQ(text("LeftCapacityText"), localized("IDS_FREE_CAPACITY", 0));
        EXPECT_TRUE(isEnabled("AreaSettingsOKButton"));
        type("Disk2CapacityText", "9");
        EXPECT_EQ(text("LeftCapacityText"), localized("IDS_CAPACITY_OVER"));
        EXPECT_FALSE(isEnabled("AreaSettingsOKButton"));
        type("Disk2CapacityText", "");
        EXPECT_TRUE(isEnabled("AreaSettingsOKButton"));
        type("Disk1CapacityText", "");
        EXPECT_FALSE(isEnabled("AreaSettingsOKButton"));
    });
}

TEST_F(AreaDialog, StrangeTextsKeepOkDisabled) {
    begin();
    inDialog("AreaSettingsButton", "AreaSettingsWindow", [&] {
        type("Disk1CapacityText", "10");
        for (const QString& text : strangeTexts()) {
            type("Disk3CapacityText", text);
            EXPECT_FALSE(isEnabled("AreaSettingsOKButton")) << text.left(9).toStdString();
        }
        type("Disk3CapacityText", "1a");
        EXPECT_FALSE(isEnabled("AreaSettingsOKButton"));
        type("Disk3CapacityText", QString(30000, u'9'));
        EXPECT_FALSE(isEnabled("AreaSettingsOKButton"));
        EXPECT_EQ(text("LeftCapacityText"), localized("IDS_CAPACITY_OVER"));
    });
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(AreaDialog, AtMostOneDiskIsSecure) {
    begin();
    inDialog("AreaSettingsButton", "AreaSettingsWindow", [&] {
        press("Disk1SecureCheckBox");
        press("Disk3SecureCheckBox");
        EXPECT_FALSE(isChecked("Disk1SecureCheckBox"));
        EXPECT_TRUE(isChecked("Disk3SecureCheckBox"));
        press("Disk2SecureCheckBox");
        EXPECT_FALSE(isChecked("Disk3SecureCheckBox"));
        EXPECT_TRUE(isChecked("Disk2SecureCheckBox"));
        press("Disk2SecureCheckBox");
        EXPECT_FALSE(isChecked("Disk1SecureCheckBox"));
        EXPECT_FALSE(isChecked("Disk2SecureCheckBox"));
    });
}

TEST_F(AreaDialog, ACancelledDialogKeepsWhatWasTypedAndNothingElse) {
    begin();
    inDialog("AreaSettingsButton", "AreaSettingsWindow", [&] {
        type("Disk1CapacityText", "50");
        press("Disk1SecureCheckBox");
        press("AreaSettingsCancelButton");
    });
    EXPECT_FALSE(app().Changed.AreaSettingsPerformed);
    EXPECT_EQ(app().Settings.AreaInfos.entry(0).sectorCount, AreaInfoEntry::AllSectors);
    EXPECT_FALSE(okIsEnabled());
    inDialog("AreaSettingsButton", "AreaSettingsWindow", [&] {
        EXPECT_EQ(text("Disk1CapacityText"), QStringLiteral("50"));
        EXPECT_FALSE(isChecked("Disk1SecureCheckBox"));
    });
}

TEST_F(AreaDialog, OnlyDisk1sSecureChoiceIsBroughtBack) {
    begin();
    layOut({.secureDisk = 1});
    inDialog("AreaSettingsButton", "AreaSettingsWindow",
             [&] { EXPECT_TRUE(isChecked("Disk1SecureCheckBox")); });
    layOut({.mebibytes = {"10", "10", "0"}, .secureDisk = 2});
    inDialog("AreaSettingsButton", "AreaSettingsWindow", [&] {
        EXPECT_FALSE(isChecked("Disk1SecureCheckBox"));
        EXPECT_FALSE(isChecked("Disk2SecureCheckBox"));
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
    EXPECT_EQ(control<QTableView>("AreaInfosTableView")->model()->rowCount(), 2);
    EXPECT_EQ(text("FreeCapacityText"), localized("IDS_FREE_CAPACITY", 48));
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
    layOut({.secureDisk = 1});
    EXPECT_TRUE(isEnabled("PasswordSettingsButton"));
    EXPECT_TRUE(isEnabled("EncryptionKeyAutoManualSelectRadioButton"));
    EXPECT_EQ(control<RadioMatrix>("EncryptionKeyAutoManualSelectRadioButton")->selectedTag(), 0);
    EXPECT_FALSE(isEnabled("EncryptionKeyButton"));
    EXPECT_TRUE(isEnabled("AutoClearEnabledCheckBox"));
    EXPECT_FALSE(isEnabled("AutoClearText"));
    EXPECT_TRUE(isEnabled("ShowRemainingTimeCheckBox"));
    EXPECT_FALSE(okIsEnabled());

    setKey(QStringLiteral("0A"));
    press("AutoClearEnabledCheckBox");
    type("AutoClearText", "5");
    layOut({.mebibytes = {"10", "0", "0"}, .secureDisk = 1});
    EXPECT_EQ(text("AutoClearText"), QStringLiteral("5"));
    EXPECT_TRUE(isChecked("AutoClearEnabledCheckBox"));
    EXPECT_EQ(app().Settings.StrEncryptionKey.view(), u"0A");

    layOut({.secureDisk = 0});
    EXPECT_FALSE(isChecked("AutoClearEnabledCheckBox"));
    EXPECT_TRUE(text("AutoClearText").isEmpty());
    EXPECT_TRUE(app().Settings.StrEncryptionKey.isEmpty());
    EXPECT_TRUE(okIsEnabled());
}

TEST_F(AreaDialog, OnADriveWithoutRoomNothingCanBeLaidOut) {
    begin(40000);
    EXPECT_TRUE(app().Settings.InitialSetting);
    EXPECT_EQ(app().Settings.TotalSectorCount, 0u);
    inDialog("AreaSettingsButton", "AreaSettingsWindow", [&] {
        type("Disk1CapacityText", "1");
        EXPECT_FALSE(isEnabled("AreaSettingsOKButton"));
    });
}

class PasswordDialog : public SettingsBench {};

TEST_F(PasswordDialog, OnePasswordNeedsAValidPairOnly) {
    inPasswordDialog([&] {
        EXPECT_EQ(app().TextInputMode, 4);
        EXPECT_FALSE(isEnabled("PS_OKButton"));
        EXPECT_FALSE(isEnabled("PS_2ndPasswordText"));
        EXPECT_FALSE(isEnabled("PS_2ndPasswordNumberOfTrials"));
        type("PS_1stPasswordText", "abc");
        type("PS_Again1stPasswordText", "abd");
        EXPECT_FALSE(isEnabled("PS_OKButton"));
        type("PS_Again1stPasswordText", "abc");
        EXPECT_TRUE(isEnabled("PS_OKButton"));
        const QString tooLong(33, u'a');
        type("PS_1stPasswordText", tooLong);
        type("PS_Again1stPasswordText", tooLong);
        EXPECT_FALSE(isEnabled("PS_OKButton"));
        for (const QString& text : {QStringLiteral("\u00E9"), QStringLiteral("\U0001F511"),
                                    QStringLiteral("\u05D0"), QString(100000, u'a')}) {
            type("PS_1stPasswordText", text);
            type("PS_Again1stPasswordText", text);
            EXPECT_FALSE(isEnabled("PS_OKButton")) << text.left(9).toStdString();
        }
    });
    EXPECT_EQ(app().TextInputMode, 0);
    EXPECT_FALSE(app().Changed.ChangePassword);
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(PasswordDialog, TwoPasswordsNeedTrialsOfOneTo99) {
    inPasswordDialog([&] {
        type("PS_1stPasswordText", "abc");
        type("PS_Again1stPasswordText", "abc");
        press("PS_1stAnd2ndCell");
        EXPECT_FALSE(isEnabled("PS_OKButton"));
        type("PS_2ndPasswordText", "def");
        type("PS_Again2ndPasswordText", "def");
        for (const char* trials : {"", "0", "100", "1a", "-1", "4294967297"}) {
            type("PS_2ndPasswordNumberOfTrials", trials);
            EXPECT_FALSE(isEnabled("PS_OKButton")) << trials;
        }
        type("PS_2ndPasswordNumberOfTrials", "99");
        EXPECT_TRUE(isEnabled("PS_OKButton"));
    });
}

TEST_F(PasswordDialog, AWeakPasswordIsCalledSoAndMayBeUsed) {
    inPasswordDialog([&] {
        EXPECT_EQ(text("PS_1stStrength"), QString());
        type("PS_1stPasswordText", "password");
        EXPECT_EQ(text("PS_1stStrength"), localized("IDS_STRENGTH_WEAK"));
        EXPECT_TRUE(control("PS_1stPasswordText")
                        ->accessibleDescription()
                        .contains(localized("IDS_STRENGTH_WEAK")));
        type("PS_Again1stPasswordText", "password");
        EXPECT_TRUE(isEnabled("PS_OKButton"));
        type("PS_1stPasswordText", "x7#kQ9!vLm2pZ");
        EXPECT_EQ(text("PS_1stStrength"), localized("IDS_STRENGTH_STRONG"));
    });
}

TEST_F(PasswordDialog, OfAPasswordItsStrengthIsSaidAndWhatIsStillMissing) {
    inPasswordDialog([&] {
        control("PS_1stPasswordText")->setFocus();
        type("PS_1stPasswordText", "password");
        const QString heard = control("PS_1stPasswordText")->accessibleDescription();
        EXPECT_TRUE(heard.contains(localized("IDS_STRENGTH_WEAK"))) << heard.toStdString();
        EXPECT_TRUE(heard.contains(localized("IDS_HINT_FIRST_AGAIN"))) << heard.toStdString();
    });
}

TEST_F(PasswordDialog, NothingIsSaidAboutASecondPasswordThatIsNotUsed) {
    inPasswordDialog([&] {
        press("PS_1stAnd2ndCell");
        type("PS_2ndPasswordText", "password");
        EXPECT_EQ(text("PS_2ndStrength"), localized("IDS_STRENGTH_WEAK"));
        press("PS_1stOnlyCell");
        EXPECT_EQ(text("PS_2ndStrength"), QString());
    });
}

TEST_F(PasswordDialog, GoingBackToOnePasswordKeepsTheSecondOnesText) {
    inPasswordDialog([&] {
        type("PS_1stPasswordText", "abc");
        type("PS_Again1stPasswordText", "abc");
        press("PS_1stAnd2ndCell");
        type("PS_2ndPasswordText", "def");
        type("PS_2ndPasswordNumberOfTrials", "7");
        press("PS_1stOnlyCell");
        EXPECT_FALSE(isEnabled("PS_2ndPasswordText"));
        EXPECT_EQ(text("PS_2ndPasswordText"), QStringLiteral("def"));
        press("PS_OKButton");
    });
    const auto& parameters = app().Settings.PasswordSettingsParameters;
    EXPECT_FALSE(parameters.Use1stAnd2ndPassword);
    EXPECT_EQ(parameters.strNew1stPassword.view(), u"abc");
    EXPECT_EQ(parameters.strNew2ndPassword.view(), u"def");
    EXPECT_EQ(parameters.NumberOfTrials, 7);
    EXPECT_TRUE(okIsEnabled());
}

TEST_F(PasswordDialog, OpenedAgainItIsFilledAndOkIsEnabledAtOnce) {
    begin();
    layOut({});
    setPasswords({.twoPasswords = true, .trials = "42"});
    inDialog("PasswordSettingsButton", "PasswordSettingsWindow", [&] {
        EXPECT_EQ(control<RadioMatrix>("PS_1stOnlyOr1stAnd2ndRadioButton")->selectedTag(), 1);
        EXPECT_EQ(text("PS_Again1stPasswordText"), QStringLiteral("first"));
        EXPECT_EQ(text("PS_Again2ndPasswordText"), QStringLiteral("second"));
        EXPECT_EQ(text("PS_2ndPasswordNumberOfTrials"), QStringLiteral("42"));
        EXPECT_TRUE(isEnabled("PS_OKButton"));
        type("PS_1stPasswordText", "other");
    });
    EXPECT_EQ(app().Settings.PasswordSettingsParameters.strNew1stPassword.view(), u"first");
    EXPECT_EQ(app().Settings.PasswordSettingsParameters.strNew2ndPassword.view(), u"second");
}

TEST_F(PasswordDialog, AClosedDialogHoldsNoPassword) {
    begin();
    layOut({});
    setPasswords({.twoPasswords = true});
    for (const char* field : {"PS_1stPasswordText", "PS_Again1stPasswordText", "PS_2ndPasswordText",
                              "PS_Again2ndPasswordText"}) {
        EXPECT_TRUE(control<QLineEdit>(field)->text().isEmpty());
    }
}

TEST_F(PasswordDialog, TheChangeDialogIgnoresTheSecondPasswordOfADriveWithOne) {
    beginWithSettingsOf({});
    inDialog("PasswordSettingsButton", "PasswordChangeWindow", [&] {
        EXPECT_EQ(app().TextInputMode, 5);
        EXPECT_FALSE(isEnabled("PC_1stOnlyOr1stAnd2ndRadioButton"));
        EXPECT_FALSE(isEnabled("PC_Current2ndPasswordText"));
        EXPECT_FALSE(isEnabled("PC_2ndPasswordNumberOfTrials"));
        type("PC_New1stPasswordText", "same");
        type("PC_AgainNew1stPasswordText", "same");
        EXPECT_EQ(text("PC_New1stStrength"), localized("IDS_STRENGTH_WEAK"));
        EXPECT_FALSE(isEnabled("PC_OKButton"));
        type("PC_Current1stPasswordText", "same");
        EXPECT_TRUE(isEnabled("PC_OKButton"));
    });
    EXPECT_FALSE(app().Changed.ChangePassword);
    EXPECT_FALSE(okIsEnabled());
}

class KeyDialog : public SettingsBench {};

TEST_F(KeyDialog, AcceptsOneToSixtyFourBytesInHexadecimalDigits) {
    begin();
    layOut({});
    press("EncryptionKeyManualCell");
    inDialog("EncryptionKeyButton", "EncryptionKeyWindow", [&] {
        EXPECT_EQ(app().TextInputMode, 6);
        EXPECT_FALSE(isEnabled("EncryptionKeyOKButton"));
        for (const QString& text :
             {QStringLiteral("0A"), QStringLiteral("0a"), QString(128, u'F')}) {
            type("EncryptionKeyText", text);
            EXPECT_TRUE(isEnabled("EncryptionKeyOKButton"));
        }
        for (const QString& text :
             {QStringLiteral("0"), QStringLiteral("0G"), QString(130, u'F'), QString()}) {
            type("EncryptionKeyText", text);
            EXPECT_FALSE(isEnabled("EncryptionKeyOKButton"));
        }
        for (const QString& text : strangeTexts()) {
            type("EncryptionKeyText", text + QStringLiteral("G"));
            EXPECT_FALSE(isEnabled("EncryptionKeyOKButton"));
        }
        type("EncryptionKeyText", "1aG");
        EXPECT_FALSE(isEnabled("EncryptionKeyOKButton"));
    });
    EXPECT_TRUE(app().Settings.StrEncryptionKey.isEmpty());
    press("EncryptionKeyAutoCell");
    EXPECT_FALSE(isEnabled("EncryptionKeyButton"));
}

TEST_F(KeyDialog, OpenedAgainItShowsTheKeyAsTyped) {
    begin();
    layOut({});
    setKey(QStringLiteral("0aFF"));
    inDialog("EncryptionKeyButton", "EncryptionKeyWindow", [&] {
        EXPECT_EQ(text("EncryptionKeyText"), QStringLiteral("0aFF"));
        EXPECT_TRUE(isEnabled("EncryptionKeyOKButton"));
    });
    EXPECT_EQ(app().Settings.StrEncryptionKey.view(), u"0aFF");
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
