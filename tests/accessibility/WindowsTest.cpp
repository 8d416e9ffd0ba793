#include "tests/accessibility/AccessibilityBench.h"

#include "ui/AlertPresenter.h"

#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <iostream>

namespace zelto::test {
namespace {

/// Whatever a person can do something with, or is told something by, has a name.
bool needsName(const Heard& heard) {
    const QStringList bare{QStringLiteral("filler"),   QStringLiteral("panel"),
                           QStringLiteral("viewport"), QStringLiteral("scroll bar"),
                           QStringLiteral("list"),     QStringLiteral("table cell")};
    const bool isBlank = heard.role == QStringLiteral("label") && heard.description.isEmpty();
    return heard.isFocusable || !(isBlank || bare.contains(heard.role));
}

/// Every window, in the state in which a person meets it: nothing in it is without a name, and the
/// table of what a reader says is printed.
class EveryWindow : public AccessibilityBench {
protected:
    void hear(const char* window) {
        ASSERT_EQ(visibleWindow(), window);
        (void)frontWindow();
        hear(read());
    }

    static void hear(const std::vector<Heard>& heard) {
        ASSERT_GT(heard.size(), 1U);
        std::cout << "\n  " << heard.front().name.toStdString() << "\n";
        int focused = 0;
        for (const Heard& one : heard) {
            const QString spoken = one.spoken();
            EXPECT_FALSE(needsName(one) && one.name.isEmpty()) << spoken.toStdString();
            if (!one.name.isEmpty()) {
                std::cout << "    "
                          << (one.isFocused     ? "> "
                              : one.isFocusable ? "- "
                                                : "  ")
                          << spoken.toStdString() << "\n";
            }
            focused += one.isFocused ? 1 : 0;
        }
        EXPECT_GE(focused, 1) << "what has no focus is not heard";
    }

    [[nodiscard]] Heard find(const QString& name, const QString& role = {}) {
        for (const Heard& heard : read()) {
            if (heard.name == name && (role.isEmpty() || heard.role == role)) {
                return heard;
            }
        }
        ADD_FAILURE() << "nothing is called " << name.toStdString();
        return {};
    }
};

TEST_F(EveryWindow, OfTheSelectionWithoutADrive) {
    start();
    hear("SelectZeltoWindow");
    const Heard said = find(localized("IDS_ERR_NOT_FOUND_ZELTO"));
    EXPECT_TRUE(said.isFocused);
}

TEST_F(EveryWindow, OfTheSelectionOfADrive) {
    plugPreparedDrive({.serial = "ZD-A"});
    plugPreparedDrive({.serial = "ZD-B"});
    start();
    hear("SelectZeltoWindow");
}

TEST_F(EveryWindow, OfTheDeviceRule) {
    start();
    auto& window = *app().DeviceRuleWindow;
    window.DeviceRuleCommand->setPlainText(QStringLiteral("sudo tee"));
    window.centreAndMakeKeyAndOrderFront();
    app().SelectZeltoWindow->orderOut();
    hear("DeviceRuleWindow");
}

TEST_F(EveryWindow, OfTheLogIn) {
    plugPreparedDrive({.autoClearSeconds = 86400, .showsRemainingTime = true});
    start();
    tick();
    hear("AuthenticateWindow");
    EXPECT_EQ(find(control("AuthenticateDeviceTimeText")->accessibleName()).description,
              text("AuthenticateDeviceTimeText"));
    EXPECT_EQ(find(control("AuthenticateRemainingTimeText")->accessibleName()).description,
              text("AuthenticateRemainingTimeText"));
}

TEST_F(EveryWindow, OfADriveThatHasBeenUnlocked) {
    plugPreparedDrive({.secondPassword = "second"});
    start();
    logIn("first");
    logIn("second");
    hear("UnlockedWindow");
}

TEST_F(EveryWindow, OfADriveThatWasUnlockedBefore) {
    plugPreparedDrive();
    start();
    logIn("first");
    hear("UnlockingWindow");
}

TEST_F(EveryWindow, OfTheSettings) {
    begin();
    tick();
    hear("MainSettingsWindow");
    for (const char* label :
         {"PCTimeText", "DeviceTimeText", "TotalCapacityText", "FreeCapacityText"}) {
        const Heard value = find(control(label)->accessibleName());
        EXPECT_FALSE(value.description.isEmpty()) << label;
        EXPECT_EQ(value.description, text(label));
    }
    const Heard bar = find(control("AreaBarView")->accessibleName());
    EXPECT_EQ(bar.role, u"chart");
    EXPECT_EQ(bar.description, u"not used, 108 MB");
    const Heard cell = find(QStringLiteral("Made by the drive"));
    EXPECT_EQ(cell.role, u"radio button");
    EXPECT_TRUE(cell.within.contains(QStringLiteral("Encryption key panel")))
        << cell.within.join(u'/').toStdString();
}

TEST_F(EveryWindow, OfTheAreas) {
    begin();
    inDialog("AreaSettingsButton", "AreaSettingsWindow", [this] {
        hear("AreaSettingsWindow");
        EXPECT_EQ(find(QStringLiteral("Disk1:"), QStringLiteral("text")).description, u"MB");
        EXPECT_EQ(find(control("LeftCapacityText")->accessibleName()).description,
                  text("LeftCapacityText"));
    });
}

TEST_F(EveryWindow, OfTheFirstPasswords) {
    inPasswordDialog([this] {
        hear("PasswordSettingsWindow");
        const auto heard = read();
        EXPECT_TRUE(std::ranges::none_of(heard, [](const Heard& one) {
            return one.role == u"label" && one.name == localized("IDS_PASSWORDS_FIRST_GROUP");
        })) << "a hint that says nothing";
    });
}

TEST_F(EveryWindow, OfAChangeOfPasswords) {
    beginWithSettingsOf({.twoPasswords = true});
    inDialog("PasswordSettingsButton", "PasswordChangeWindow",
             [this] { hear("PasswordChangeWindow"); });
}

TEST_F(EveryWindow, OfTheKey) {
    begin();
    layOut({});
    press("EncryptionKeyManualCell");
    inDialog("EncryptionKeyButton", "EncryptionKeyWindow", [this] { hear("EncryptionKeyWindow"); });
}

TEST_F(EveryWindow, OfTheSetUp) {
    begin();
    fill({});
    commit();
    tick();
    hear("ZeltoSettingWindow");
    const Heard steps = find(control("SetupStepsView")->accessibleName());
    EXPECT_EQ(steps.role, u"progress bar");
    EXPECT_TRUE(steps.value.endsWith(QStringLiteral(" of 5"))) << steps.value.toStdString();
    EXPECT_TRUE(steps.isFocused);
}

TEST_F(EveryWindow, OfAnAlert) {
    plugPreparedDrive();
    start();
    (void)frontWindow();
    QTimer::singleShot(0, qApp, [this] {
        QWidget* const alert = QApplication::activeModalWidget();
        ASSERT_NE(alert, nullptr);
        ScreenReader::waitUntil(
            [] { return qobject_cast<QPushButton*>(QApplication::focusWidget()) != nullptr; });
        const auto heard = reader.read(alert->windowTitle());
        hear(heard);
        QStringList names;
        for (const Heard& one : heard) {
            names += one.name.isEmpty() ? QStringList() : QStringList(one.name);
        }
        // Weight, text, more to the text, and only then the buttons.
        EXPECT_EQ(names.mid(1),
                  QStringList({localized("IDS_ALERT_WARNING"), localized("IDS_ERR_UNMOUNT"),
                               QStringLiteral("tail"), localized("OK")}));
        alert->close();
    });
    AlertPresenter presenter;
    (void)presenter.NSRunAlertPanel({.weight = AlertWeight::Warning,
                                     .title = localized("IDS_APP_TITLE"),
                                     .message = localized("IDS_ERR_UNMOUNT"),
                                     .detail = QStringLiteral("tail"),
                                     .defaultButton = localized("OK"),
                                     .alternateButton = {},
                                     .onEscape = AlertButton::Default});
}

} // namespace
} // namespace zelto::test
