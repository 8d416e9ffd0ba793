#include "tests/support/SettingsBench.h"

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
        {"leadingBlank", QStringLiteral(" 12"), true, true},
        {"trailingBlank", QStringLiteral("12 "), true, true},
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
    void tryAll(const char* field, const char* ok,
                const std::function<bool(const PastedText&)>& isAccepted) {
        for (const PastedText& pasted : pastedTexts()) {
            type(field, pasted.text);
            EXPECT_EQ(isEnabled(ok), isAccepted(pasted)) << field << ": " << pasted.name;
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
    tryAll("AuthenticateTextField", "AuthenticateSubmit",
           [](const auto& pasted) { return pasted.isPassword; });
}

TEST_F(PastedTexts, InTheAreaDialogAreAcceptedAsSmallNumbersOnly) {
    begin();
    inDialog("AreaSettingsButton", "AreaSettingsWindow", [&] {
        type("Disk2CapacityText", "0");
        tryAll("Disk1CapacityText", "AreaSettingsOKButton",
               [](const auto& pasted) { return pasted.isSmallNumber; });
        type("Disk1CapacityText", "10");
        tryAll("Disk2CapacityText", "AreaSettingsOKButton", isEmptyOrSmallNumber);
        type("Disk2CapacityText", "0");
        tryAll("Disk3CapacityText", "AreaSettingsOKButton", isEmptyOrSmallNumber);
    });
}

TEST_F(PastedTexts, InThePasswordSettingsAreAcceptedAsPasswordsAndTrialsOnly) {
    inPasswordDialog([&] {
        for (const PastedText& pasted : pastedTexts()) {
            type("PS_1stPasswordText", pasted.text);
            type("PS_Again1stPasswordText", pasted.text);
            EXPECT_EQ(isEnabled("PS_OKButton"), pasted.isPassword) << pasted.name;
        }
        type("PS_1stPasswordText", "abc");
        type("PS_Again1stPasswordText", "abc");
        press("PS_1stAnd2ndCell");
        type("PS_2ndPasswordNumberOfTrials", "3");
        for (const PastedText& pasted : pastedTexts()) {
            type("PS_2ndPasswordText", pasted.text);
            type("PS_Again2ndPasswordText", pasted.text);
            EXPECT_EQ(isEnabled("PS_OKButton"), pasted.isPassword) << pasted.name;
        }
        type("PS_2ndPasswordText", "def");
        type("PS_Again2ndPasswordText", "def");
        tryAll("PS_2ndPasswordNumberOfTrials", "PS_OKButton",
               [](const auto& pasted) { return pasted.isSmallNumber; });
    });
}

TEST_F(PastedTexts, LeftInTheSecondPasswordOfAFirstOnlyChoiceAreNeverUsed) {
    inPasswordDialog([&] {
        type("PS_1stPasswordText", "abc");
        type("PS_Again1stPasswordText", "abc");
        press("PS_1stAnd2ndCell");
        type("PS_2ndPasswordText", QString(1000, u'x'));
        type("PS_2ndPasswordNumberOfTrials", "99999999999");
        press("PS_1stOnlyCell");
        press("PS_OKButton");
    });
    EXPECT_EQ(app().Settings.PasswordSettingsParameters.NumberOfTrials, 2147483647);
    commit();
    EXPECT_EQ(app().Setup.InitialSettingState, 1);
    EXPECT_EQ(all("TKVR21_SetAuthInfo").size(), 1u);
}

TEST_F(PastedTexts, InThePasswordChangeAreAcceptedAsPasswordsAndTrialsOnly) {
    beginWithSettingsOf({.twoPasswords = true});
    inDialog("PasswordSettingsButton", "PasswordChangeWindow", [&] {
        for (const char* field :
             {"PC_Current1stPasswordText", "PC_New1stPasswordText", "PC_AgainNew1stPasswordText",
              "PC_Current2ndPasswordText", "PC_New2ndPasswordText", "PC_AgainNew2ndPasswordText"}) {
            type(field, "abc");
        }
        type("PC_2ndPasswordNumberOfTrials", "3");
        ASSERT_TRUE(isEnabled("PC_OKButton"));
        const auto isPassword = [](const auto& pasted) { return pasted.isPassword; };
        const auto never = [](const auto&) { return false; };
        tryAll("PC_Current1stPasswordText", "PC_OKButton", isPassword);
        type("PC_Current1stPasswordText", "abc");
        tryAll("PC_Current2ndPasswordText", "PC_OKButton", isPassword);
        type("PC_Current2ndPasswordText", "abc");
        tryAll("PC_New1stPasswordText", "PC_OKButton", never);
        type("PC_New1stPasswordText", "abc");
        tryAll("PC_AgainNew2ndPasswordText", "PC_OKButton", never);
        type("PC_AgainNew2ndPasswordText", "abc");
        tryAll("PC_2ndPasswordNumberOfTrials", "PC_OKButton",
               [](const auto& pasted) { return pasted.isSmallNumber; });
    });
}

TEST_F(PastedTexts, InTheKeyDialogAreAcceptedAsPairsOfHexadecimalDigitsOnly) {
    begin();
    layOut({});
    press("EncryptionKeyManualCell");
    inDialog("EncryptionKeyButton", "EncryptionKeyWindow", [&] {
        tryAll("EncryptionKeyText", "EncryptionKeyOKButton",
               [](const auto& pasted) { return pasted.isKey; });
    });
}

TEST_F(PastedTexts, InThePeriodsAreAcceptedAsSmallNumbersOnly) {
    beginWithSettingsOf({});
    const auto isSmallNumber = [](const auto& pasted) { return pasted.isSmallNumber; };
    press("AutoClearEnabledCheckBox");
    tryAll("AutoClearText", "MainSettingsOKButton", isSmallNumber);
    type("AutoClearText", "1");
    press("AutoLogOffEnabledCheckBox");
    tryAll("AutoLogOffText", "MainSettingsOKButton", isSmallNumber);
}

// --- Periods that do not fit -------------------------------------------------------------------

TEST_F(PastedTexts, AnAutoLogOffThatWouldWrapIn16BitsCannotBeTyped) {
    beginWithSettingsOf({});
    press("AutoLogOffEnabledCheckBox");
    type("AutoLogOffText", "999");
    EXPECT_TRUE(okIsEnabled());
    for (const char* minutes : {"1000", "1092", "1093", "2186", "65536", "71582789"}) {
        type("AutoLogOffText", minutes);
        EXPECT_FALSE(okIsEnabled()) << minutes;
    }
}

TEST_F(PastedTexts, TheLargestIdlePeriodOfADriveIsSentBackInWholeMinutes) {
    drive = plugPreparedDrive({.serial = Serial, .idleLockSeconds = 0xFFFF});
    start();
    logIn(QStringLiteral("first"));
    openSettingsOfUnlockedDrive();
    EXPECT_EQ(text("AutoLogOffText"), QStringLiteral("1092"));
    press("ShowRemainingTimeCheckBox");
    commit();
    EXPECT_TRUE(hasQuit());
    EXPECT_EQ(latest("TKVR21_ZELTO_SetIdleLockPeriod").setup.wValue, 65520);
}

TEST_F(PastedTexts, ATextOf1093MinutesWouldBeSentAs44Seconds) {
    beginWithSettingsOf({});
    // Nothing that a person or a drive can do puts it there; the commit itself does not judge.
    control<QCheckBox>("AutoLogOffEnabledCheckBox")->setChecked(true);
    control<QLineEdit>("AutoLogOffText")->setText(QStringLiteral("1093"));
    press("ShowRemainingTimeCheckBox");
    commit();
    EXPECT_EQ(latest("TKVR21_ZELTO_SetIdleLockPeriod").setup.wValue, 44);
}

} // namespace
} // namespace zelto::test
