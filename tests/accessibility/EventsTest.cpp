#include "tests/accessibility/AccessibilityBench.h"

#include "platform/linux/LinuxDesktop.h"
#include "platform/linux/Waiting.h"

#include <QToolButton>

namespace zelto::test {
namespace {

using testing::HasSubstr;

/// What is heard without being asked for, while somebody uses the program.
class SaidByItself : public AccessibilityBench {
protected:
    [[nodiscard]] std::string saidNow() { return said().toStdString(); }
    [[nodiscard]] static std::string words(const char* key) { return localized(key).toStdString(); }
    [[nodiscard]] QToolButton* eyeOf(const char* field) {
        return control(field)->findChild<QToolButton*>();
    }
};

TEST_F(SaidByItself, WithoutADriveWhatToDo) {
    start();
    (void)frontWindow();
    EXPECT_THAT(saidNow(), HasSubstr(words("IDS_ERR_NOT_FOUND_ZELTO")));
}

TEST_F(SaidByItself, TheSerialNumberOfTheDriveThatIsChosen) {
    plugPreparedDrive({.serial = "ZD-A"});
    plugPreparedDrive({.serial = "ZD-B"});
    start();
    focus("SelectZeltoComboBox");
    EXPECT_THAT(saidNow(), HasSubstr("ZD-A"));
    pressKey(Qt::Key_Down);
    EXPECT_THAT(saidNow(), HasSubstr("ZD-B"));
}

TEST_F(SaidByItself, WhetherTheTwoEntriesMatchAndWhatIsMissing) {
    inPasswordDialog([this] {
        focus("PS_1stPasswordText");
        (void)said();
        typeKeys("ab");
        EXPECT_THAT(saidNow(), HasSubstr(words("IDS_HINT_FIRST_AGAIN")));
        focus("PS_Again1stPasswordText");
        typeKeys("a");
        EXPECT_THAT(saidNow(), HasSubstr("The two entries differ."));
        typeKeys("b");
        EXPECT_THAT(saidNow(), HasSubstr("The two entries match."));
    });
}

TEST_F(SaidByItself, HowManyDigitsTheKeyHas) {
    begin();
    layOut({});
    press("EncryptionKeyManualCell");
    inDialog("EncryptionKeyButton", "EncryptionKeyWindow", [this] {
        focus("EncryptionKeyText");
        (void)said();
        typeKeys("0A1");
        EXPECT_THAT(saidNow(), HasSubstr("3 of 128 digits"));
    });
}

TEST_F(SaidByItself, WhatIsLeftOfTheDriveWhileItsAreasAreLaidOut) {
    begin();
    inDialog("AreaSettingsButton", "AreaSettingsWindow", [this] {
        focus("Disk2CapacityText");
        (void)said();
        typeKeys("9");
        EXPECT_THAT(saidNow(), HasSubstr(words("IDS_CAPACITY_OVER")));
    });
}

TEST_F(SaidByItself, EachStepOfTheSetUpAndItsEnd) {
    begin();
    fill({});
    commit();
    (void)frontWindow();
    EXPECT_THAT(saidNow(), HasSubstr("Steps of the set-up, progress bar, 2 of 5, Step 2 of 5"));
    tick(10);
    const std::string rest = saidNow();
    for (const char* step : {"Step 3 of 5", "Step 4 of 5"}) {
        EXPECT_THAT(rest, HasSubstr(step));
    }
    EXPECT_THAT(rest, HasSubstr("Finish, push button, " + words("IDS_SETTING_COMPLETE")));
    EXPECT_TRUE(control("ZeltoSettingOKButton")->hasFocus());
}

TEST_F(SaidByItself, WhetherThePasswordIsShown) {
    plugPreparedDrive();
    start();
    (void)frontWindow();
    pressKey(Qt::Key_Tab);
    EXPECT_THAT(saidNow(), HasSubstr("Show the password, check box, not checked"));
    pressKey(Qt::Key_Space);
    EXPECT_THAT(saidNow(), HasSubstr("checked"));
    pressKey(Qt::Key_Tab);
    EXPECT_FALSE(eyeOf("AuthenticateTextField")->isChecked());
}

TEST_F(SaidByItself, ThatCapsLockIsOnAsSoonAsTheFieldHasTheFocus) {
    constexpr int CapsLockKey = 66;
    const linux_platform::Waiting waiting;
    const auto nowhere = [] { return QDBusConnection(QStringLiteral("nowhere")); };
    computer.desktop = std::make_shared<linux_platform::LinuxDesktop>(nowhere, nowhere, waiting);
    plugPreparedDrive();
    start();
    (void)frontWindow();
    EXPECT_EQ(computer.desktop->isCapsLockOn(), false);
    focus("AuthenticateCancel");
    reader.pressKey(CapsLockKey);
    ScreenReader::waitUntil([this] { return computer.desktop->isCapsLockOn().value(); });
    (void)said();
    focus("AuthenticateTextField");
    EXPECT_THAT(saidNow(), HasSubstr("Caps Lock is on"));
    reader.pressKey(CapsLockKey);
    auto* const field = control<PasswordField>("AuthenticateTextField");
    ScreenReader::waitUntil([&] { return !field->warnsOfCapsLock(); });
}

} // namespace
} // namespace zelto::test
