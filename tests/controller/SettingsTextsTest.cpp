#include "tests/controller/SettingsBench.h"

namespace zelto::test {
namespace {

using testing::IsEmpty;

/// A text that somebody may paste into any field, and what it is good for.
struct PastedText {
    const char* name;
    QString text;
    bool isPassword = false;
    bool isKey = false;
    /// 1 to 99, as all the numbers of the dialogs accept it.
    bool isSmallNumber = false;
};

QString repeated(const QString& text, int times) {
    return text.repeated(times);
}

std::vector<PastedText> pastedTexts() {
    return {
        {"empty", {}},
        {"blank", QStringLiteral(" "), true},
        {"number", QStringLiteral("12"), true, true, true},
        {"leadingZeros", QStringLiteral("0012"), true, true, true},
        {"leadingBlank", QStringLiteral(" 12"), true},
        {"trailingBlank", QStringLiteral("12 "), true},
        {"plus", QStringLiteral("+12"), true},
        {"minus", QStringLiteral("-12"), true},
        {"fraction", QStringLiteral("1.5"), true},
        {"exponent", QStringLiteral("1e1"), true},
        {"hexadecimalPrefix", QStringLiteral("0x10"), true},
        {"hexadecimal", QStringLiteral("aF"), true, true},
        {"zero", QStringLiteral("00"), true, true},
        {"over32Bits", QStringLiteral("4294967297"), true, true},
        {"over63Bits", QStringLiteral("9223372036854775809"), true},
        {"over64Bits", QStringLiteral("18446744073709551617"), true, true},
        {"hundredDigits", repeated(QStringLiteral("9"), 100), false, true},
        {"emoji", QStringLiteral("\U0001F511")},
        {"family", QStringLiteral("\U0001F468\u200D\U0001F469\u200D\U0001F467")},
        {"accent", QStringLiteral("\u00E9")},
        {"combiningAccent", QStringLiteral("e\u0301")},
        {"hebrew", QStringLiteral("\u05D0\u05D1")},
        {"rightToLeftOverride", QStringLiteral("\u202E12")},
        {"arabicDigits", QStringLiteral("\u0661\u0662")},
        {"fullWidthDigits", QStringLiteral("\uFF11\uFF12")},
        {"zeroWidthSpace", QStringLiteral("1\u200B2")},
        {"byteOrderMark", QStringLiteral("\uFEFF12")},
        {"loneSurrogate", QString(QChar(0xD83D))},
        {"zeroCharacter", QString(QStringLiteral("1") + QChar(0) + QStringLiteral("2")), true},
        {"format", QStringLiteral("%s%n%1%2"), true},
        {"markup", QStringLiteral("<b>&amp;</b>"), true},
        {"longDigits", repeated(QStringLiteral("1"), 100000)},
        {"longLetters", repeated(QStringLiteral("x"), 100000)},
        {"longEmoji", repeated(QStringLiteral("\U0001F511"), 50000)},
    };
}

class PastedTexts : public SettingsBench {
protected:
    /// Tries every text in a field; what the OK button then says is the field's own rule.
    void tryAll(const QLineEdit* field, const QAbstractButton* ok,
                const std::function<bool(const PastedText&)>& isAccepted) {
        for (const PastedText& pasted : pastedTexts()) {
            type(field, pasted.text);
            EXPECT_EQ(ok->isEnabled(), isAccepted(pasted))
                << field->objectName().toStdString() << ": " << pasted.name;
        }
        EXPECT_THAT(messages(), IsEmpty());
    }
    static bool isEmptyOrSmallNumber(const PastedText& pasted) {
        return pasted.text.isEmpty() || isSmallNumberOrZero(pasted);
    }
    static bool isSmallNumberOrZero(const PastedText& pasted) {
        return pasted.isSmallNumber || pasted.text == QStringLiteral("00");
    }
};

TEST_F(PastedTexts, InTheLogInFieldAreAcceptedAsPasswordsOnly) {
    drive = plugPreparedDrive({.serial = Serial});
    start();
    auto& form = app().AuthenticateWindow;
    tryAll(form.AuthenticateTextField, form.AuthenticateSubmit,
           [](const auto& pasted) { return pasted.isPassword; });
}

TEST_F(PastedTexts, InTheAreaDialogAreAcceptedAsSmallNumbersOnly) {
    begin();
    auto& form = app().AreaSettingsWindow;
    inDialog(app().MainSettingsWindow.AreaSettingsButton, form, [&] {
        type(form.Disk2CapacityText, "0");
        tryAll(form.Disk1CapacityText, form.AreaSettingsOKButton,
               [](const auto& pasted) { return pasted.isSmallNumber; });
        type(form.Disk1CapacityText, "10");
        tryAll(form.Disk2CapacityText, form.AreaSettingsOKButton, isEmptyOrSmallNumber);
        type(form.Disk2CapacityText, "0");
        tryAll(form.Disk3CapacityText, form.AreaSettingsOKButton, isEmptyOrSmallNumber);
    });
}

TEST_F(PastedTexts, InThePasswordSettingsAreAcceptedAsPasswordsAndTrialsOnly) {
    inPasswordDialog([&](auto& form) {
        for (const PastedText& pasted : pastedTexts()) {
            type(form.PS_1stPasswordText, pasted.text);
            type(form.PS_Again1stPasswordText, pasted.text);
            EXPECT_EQ(form.PS_OKButton->isEnabled(), pasted.isPassword) << pasted.name;
        }
        type(form.PS_1stPasswordText, "abc");
        type(form.PS_Again1stPasswordText, "abc");
        click(form.PS_1stAnd2ndCell);
        type(form.PS_2ndPasswordNumberOfTrials, "3");
        for (const PastedText& pasted : pastedTexts()) {
            type(form.PS_2ndPasswordText, pasted.text);
            type(form.PS_Again2ndPasswordText, pasted.text);
            EXPECT_EQ(form.PS_OKButton->isEnabled(), pasted.isPassword) << pasted.name;
        }
        type(form.PS_2ndPasswordText, "def");
        type(form.PS_Again2ndPasswordText, "def");
        tryAll(form.PS_2ndPasswordNumberOfTrials, form.PS_OKButton,
               [](const auto& pasted) { return pasted.isSmallNumber; });
    });
}

TEST_F(PastedTexts, LeftInTheSecondPasswordOfAFirstOnlyChoiceAreNeverUsed) {
    inPasswordDialog([&](auto& form) {
        type(form.PS_1stPasswordText, "abc");
        type(form.PS_Again1stPasswordText, "abc");
        click(form.PS_1stAnd2ndCell);
        type(form.PS_2ndPasswordText, QString(1000, u'x'));
        type(form.PS_2ndPasswordNumberOfTrials, "99999999999");
        click(form.PS_1stOnlyCell);
        click(form.PS_OKButton);
    });
    EXPECT_EQ(app().Settings.PasswordSettingsParameters.NumberOfTrials, 2147483647);
    commit();
    EXPECT_EQ(app().Setup.InitialSettingState, 1);
    EXPECT_EQ(all("SetAuthInfo").size(), 1u);
}

TEST_F(PastedTexts, InThePasswordChangeAreAcceptedAsPasswordsAndTrialsOnly) {
    beginWithSettingsOf({.twoPasswords = true});
    auto& form = app().PasswordChangeWindow;
    inDialog(app().MainSettingsWindow.PasswordSettingsButton, form, [&] {
        for (const QLineEdit* field : std::initializer_list<const QLineEdit*>{
                 form.PC_Current1stPasswordText, form.PC_New1stPasswordText,
                 form.PC_AgainNew1stPasswordText, form.PC_Current2ndPasswordText,
                 form.PC_New2ndPasswordText, form.PC_AgainNew2ndPasswordText}) {
            type(field, "abc");
        }
        type(form.PC_2ndPasswordNumberOfTrials, "3");
        ASSERT_TRUE(form.PC_OKButton->isEnabled());
        const auto isPassword = [](const auto& pasted) { return pasted.isPassword; };
        const auto never = [](const auto&) { return false; };
        tryAll(form.PC_Current1stPasswordText, form.PC_OKButton, isPassword);
        type(form.PC_Current1stPasswordText, "abc");
        tryAll(form.PC_Current2ndPasswordText, form.PC_OKButton, isPassword);
        type(form.PC_Current2ndPasswordText, "abc");
        tryAll(form.PC_New1stPasswordText, form.PC_OKButton, never);
        type(form.PC_New1stPasswordText, "abc");
        tryAll(form.PC_AgainNew2ndPasswordText, form.PC_OKButton, never);
        type(form.PC_AgainNew2ndPasswordText, "abc");
        tryAll(form.PC_2ndPasswordNumberOfTrials, form.PC_OKButton,
               [](const auto& pasted) { return pasted.isSmallNumber; });
    });
}

TEST_F(PastedTexts, InTheKeyDialogAreAcceptedAsPairsOfHexadecimalDigitsOnly) {
    begin();
    layOut({});
    click(app().MainSettingsWindow.EncryptionKeyManualCell);
    auto& form = app().EncryptionKeyWindow;
    inDialog(app().MainSettingsWindow.EncryptionKeyButton, form, [&] {
        tryAll(form.EncryptionKeyText, form.EncryptionKeyOKButton,
               [](const auto& pasted) { return pasted.isKey; });
    });
}

TEST_F(PastedTexts, InThePeriodsAreAcceptedAsSmallNumbersOnly) {
    beginWithSettingsOf({});
    auto& main = app().MainSettingsWindow;
    const auto isSmallNumber = [](const auto& pasted) { return pasted.isSmallNumber; };
    click(main.AutoClearEnabledCheckBox);
    tryAll(main.AutoClearText, main.MainSettingsOKButton, isSmallNumber);
    type(main.AutoClearText, "1");
    click(main.AutoLogOffEnabledCheckBox);
    tryAll(main.AutoLogOffText, main.MainSettingsOKButton, isSmallNumber);
}

// --- Periods that do not fit -------------------------------------------------------------------

TEST_F(PastedTexts, AnAutoLogOffThatWouldWrapIn16BitsCannotBeTyped) {
    beginWithSettingsOf({});
    auto& main = app().MainSettingsWindow;
    click(main.AutoLogOffEnabledCheckBox);
    type(main.AutoLogOffText, "999");
    EXPECT_TRUE(okIsEnabled());
    for (const char* minutes : {"1000", "1092", "1093", "2186", "65536", "71582789"}) {
        type(main.AutoLogOffText, minutes);
        EXPECT_FALSE(okIsEnabled()) << minutes;
    }
}

TEST_F(PastedTexts, TheLargestIdlePeriodOfADriveIsSentBackInWholeMinutes) {
    drive = plugPreparedDrive({.serial = Serial, .idleLockSeconds = 0xFFFF});
    start();
    logIn(QStringLiteral("first"));
    openSettingsOfUnlockedDrive();
    EXPECT_EQ(text("AutoLogOffText"), QStringLiteral("1092"));
    click(app().MainSettingsWindow.ShowRemainingTimeCheckBox);
    commit();
    EXPECT_TRUE(hasQuit());
    EXPECT_EQ(latest("ZELTO_SetIdleLockPeriod").setup.wValue, 65520);
}

TEST_F(PastedTexts, ATextOf1093MinutesWouldBeSentAs44Seconds) {
    beginWithSettingsOf({});
    auto& main = app().MainSettingsWindow;
    // Nothing that a person or a drive can do puts it there; the commit itself does not judge.
    main.AutoLogOffEnabledCheckBox->setChecked(true);
    main.AutoLogOffText->setText(QStringLiteral("1093"));
    click(main.ShowRemainingTimeCheckBox);
    commit();
    EXPECT_EQ(latest("ZELTO_SetIdleLockPeriod").setup.wValue, 44);
}

} // namespace
} // namespace zelto::test
