#include "tests/accessibility/AccessibilityBench.h"

#include <QClipboard>
#include <QToolButton>

namespace zelto::test {
namespace {

/// What passes over the bus while passwords and keys are entered, shown and sent.
class SecretsOnTheBus : public AccessibilityBench {
protected:
    static constexpr auto Secret = "Zq7-Xv4kJw9";

    void expectNothingOf(const QString& secret) {
        const QString heard = monitor.heard();
        ASSERT_TRUE(heard.contains(QStringLiteral("PropertyChange"))) << "the monitor is deaf";
        // Any four characters of it would be too much.
        for (qsizetype from = 0; from + 4 <= secret.size(); ++from) {
            const QString part = secret.mid(from, 4);
            EXPECT_FALSE(heard.contains(part)) << part.toStdString();
        }
    }
    void showText(const char* field) { control(field)->findChild<QToolButton*>()->click(); }

    BusMonitor monitor;
};

TEST_F(SecretsOnTheBus, HaveNothingOfALogIn) {
    plugPreparedDrive({.firstPassword = Secret});
    start();
    (void)frontWindow();
    typeKeys(QLatin1String(Secret) + QStringLiteral("x"));
    showText("AuthenticateTextField");
    pressKey(Qt::Key_Home, Qt::ShiftModifier);
    (void)read();
    pressKey(Qt::Key_End);
    pressKey(Qt::Key_Backspace);
    pressKey(Qt::Key_Return);
    EXPECT_EQ(visibleWindow(), "UnlockingWindow");
    expectNothingOf(QLatin1String(Secret));
}

TEST_F(SecretsOnTheBus, HaveNothingOfAPaste) {
    plugPreparedDrive();
    start();
    (void)frontWindow();
    QApplication::clipboard()->setText(QLatin1String(Secret));
    pressKey(Qt::Key_V, Qt::ControlModifier);
    showText("AuthenticateTextField");
    (void)read();
    control<PasswordField>("AuthenticateTextField")->wipe();
    expectNothingOf(QLatin1String(Secret));
}

TEST_F(SecretsOnTheBus, HaveNothingOfNewPasswords) {
    inPasswordDialog([this] {
        for (const char* field : {"PS_1stPasswordText", "PS_Again1stPasswordText"}) {
            focus(field);
            typeKeys(QLatin1String(Secret));
            showText(field);
            (void)read();
        }
        press("PS_OKButton");
    });
    expectNothingOf(QLatin1String(Secret));
}

TEST_F(SecretsOnTheBus, HaveNothingOfAKey) {
    const QString key = QStringLiteral("FACEDB0ADBEECAFA");
    begin();
    layOut({});
    press("EncryptionKeyManualCell");
    inDialog("EncryptionKeyButton", "EncryptionKeyWindow", [&] {
        focus("EncryptionKeyText");
        typeKeys(key);
        (void)read();
        press("EncryptionKeyOKButton");
    });
    expectNothingOf(key);
}

} // namespace
} // namespace zelto::test
