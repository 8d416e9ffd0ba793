#include "ui/AlertPresenter.h"
#include "tests/support/AlertWeights.h"
#include "ui/ClippedTexts.h"
#include "ui/Forms.h"
#include "ui/FrontWindow.h"
#include "ui/Languages.h"
#include "ui/Strings.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <utility>

namespace zelto::test {
namespace {

// Shows the panel and lets `user` act on it once it is up.
AlertButton answer(const AlertPanel& panel, const std::function<void(QMessageBox&)>& user) {
    QTimer::singleShot(0, [&user] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        user(*box);
    });
    AlertPresenter presenter;
    return presenter.NSRunAlertPanel(panel);
}

AlertPanel confirmation() {
    return {.title = QStringLiteral("Title"),
            .message = QStringLiteral("Really?"),
            .defaultButton = QStringLiteral("Cancel"),
            .alternateButton = QStringLiteral("OK"),
            .onEscape = AlertButton::Default};
}

void press(QMessageBox& box, const QString& label) {
    for (QAbstractButton* button : box.buttons()) {
        if (button->text() == label) {
            button->click();
        }
    }
}

TEST(AlertPresenterTest, ShowsTheTextsAsTheyAre) {
    const AlertPanel panel{.title = QStringLiteral("Title"),
                           .message = QStringLiteral("<b>not bold</b>"),
                           .detail = QStringLiteral("<h1>Virus found</h1>"),
                           .defaultButton = QStringLiteral("OK")};
    const AlertButton button = answer(panel, [](QMessageBox& box) {
        EXPECT_EQ(box.text(), QStringLiteral("<b>not bold</b>"));
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.informativeText(), QStringLiteral("<h1>Virus found</h1>"));
        for (const QLabel* label : box.findChildren<QLabel*>()) {
            EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->text().toStdString();
        }
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Title"));
        EXPECT_EQ(box.buttons().size(), 1);
        box.buttons().constFirst()->click();
    });
    EXPECT_EQ(button, AlertButton::Default);
}

TEST(AlertPresenterTest, EachButtonAnswersForItself) {
    EXPECT_EQ(
        answer(confirmation(), [](QMessageBox& box) { press(box, QStringLiteral("Cancel")); }),
        AlertButton::Default);
    EXPECT_EQ(answer(confirmation(), [](QMessageBox& box) { press(box, QStringLiteral("OK")); }),
              AlertButton::Alternate);
}

TEST(AlertPresenterTest, ReturnPressesTheDefaultButtonEvenFromTheOtherOne) {
    const AlertButton button = answer(confirmation(), [](QMessageBox& box) {
        for (QAbstractButton* each : box.buttons()) {
            if (each->text() == QStringLiteral("OK")) {
                each->setFocus();
                QTest::keyClick(each, Qt::Key_Return);
                return;
            }
        }
    });
    EXPECT_EQ(button, AlertButton::Default);
}

TEST(AlertPresenterTest, ReturnOnCancelCancelsAQuestionWhoseDefaultIsOk) {
    AlertPanel panel = confirmation();
    std::swap(panel.defaultButton, panel.alternateButton);
    panel.onEscape = AlertButton::Alternate;
    const auto returnOn = [](const QString& label) {
        return [label](QMessageBox& box) {
            for (QAbstractButton* each : box.buttons()) {
                if (each->text() == label) {
                    each->setFocus();
                    QTest::keyClick(each, Qt::Key_Return);
                    return;
                }
            }
        };
    };
    EXPECT_EQ(answer(panel, returnOn(QStringLiteral("Cancel"))), AlertButton::Alternate);
    EXPECT_EQ(answer(panel, returnOn(QStringLiteral("OK"))), AlertButton::Default);
}

TEST(AlertPresenterTest, FitsTheScreenWithLongTextsInLargeLetters) {
    const QFont normal = QApplication::font();
    QFont large = normal;
    large.setPointSize(24);
    QApplication::setFont(large);
    AlertPanel panel = confirmation();
    panel.message = QString(50, u' ').replace(QStringLiteral(" "), QStringLiteral("letters "));
    (void)answer(panel, [](QMessageBox& box) {
        const QSize screen = box.screen()->availableGeometry().size();
        EXPECT_LE(box.width(), screen.width());
        EXPECT_LE(box.height(), screen.height());
        box.reject();
    });
    QApplication::setFont(normal);
}

TEST(AlertPresenterTest, EveryAlertIsWholeInEveryLanguageInLargeLetters) {
    const QFont normal = QApplication::font();
    QFont large = normal;
    large.setPointSize(16);
    QApplication::setFont(large);
    for (const QString& language : textLanguages()) {
        ASSERT_TRUE(installStrings(language));
        for (const WeighedText& text : alertTexts()) {
            SCOPED_TRACE(language.toStdString() + ' ' + text.key);
            (void)answer(panelOf(text), [](QMessageBox& box) {
                settle(box);
                const QSize room = box.screen()->availableGeometry().size();
                EXPECT_EQ(box.size().boundedTo(room), box.size());
                EXPECT_EQ(clippedTexts(box).join(QStringLiteral("; ")).toStdString(), "");
                box.reject();
            });
        }
    }
    installStrings(QStringLiteral("en"));
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QApplication::setFont(normal);
}

TEST(AlertPresenterTest, HasTheWeightOfItsNews) {
    const std::pair<AlertWeight, QMessageBox::Icon> rows[] = {
        {AlertWeight::Information, QMessageBox::Information},
        {AlertWeight::Warning, QMessageBox::Warning},
        {AlertWeight::Critical, QMessageBox::Critical}};
    for (const auto& [weight, icon] : rows) {
        AlertPanel panel = confirmation();
        panel.weight = weight;
        (void)answer(panel, [icon = icon](QMessageBox& box) {
            EXPECT_EQ(box.icon(), icon);
            box.reject();
        });
    }
}

TEST(AlertPresenterTest, BelongsToTheWindowOnTheScreenWhileAnotherProgramIsActive) {
    Form<Ui::UnlockedWindow> hidden;
    Form<Ui::AuthenticateWindow> form;
    form.show();
    QApplication::processEvents();
    QApplication::setActiveWindow(nullptr);
    (void)answer(confirmation(), [&form](QMessageBox& box) {
        EXPECT_EQ(box.parentWidget(), &form);
        box.reject();
    });
}

TEST(AlertPresenterTest, EscapePressesWhatThePanelSays) {
    const auto escape = [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); };
    AlertPanel panel = confirmation();
    EXPECT_EQ(answer(panel, escape), AlertButton::Default);
    panel.onEscape = AlertButton::Alternate;
    EXPECT_EQ(answer(panel, escape), AlertButton::Alternate);
}

TEST(AlertPresenterTest, ClosingThePanelPressesWhatEscapeDoes) {
    AlertPanel panel = confirmation();
    panel.onEscape = AlertButton::Alternate;
    EXPECT_EQ(answer(panel, [](QMessageBox& box) { box.close(); }), AlertButton::Alternate);
}

TEST(AlertPresenterTest, EscapeOfAPanelWithOneButtonPressesIt) {
    const AlertPanel panel{.title = {},
                           .message = QStringLiteral("Message"),
                           .defaultButton = QStringLiteral("OK"),
                           .onEscape = AlertButton::Alternate};
    EXPECT_EQ(answer(panel, [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }),
              AlertButton::Default);
}

TEST(AlertPresenterTest, StandsOverTheActiveWindow) {
    QWidget window;
    window.show();
    window.activateWindow();
    QApplication::processEvents();
    const AlertButton button = answer(confirmation(), [&window](QMessageBox& box) {
        EXPECT_EQ(box.parentWidget(), &window);
        box.reject();
    });
    EXPECT_EQ(button, AlertButton::Default);
}

TEST(AlertPresenterTest, AnAmpersandInALabelIsShown) {
    AlertPanel panel = confirmation();
    panel.defaultButton = QStringLiteral("Save & Quit");
    const AlertButton button = answer(panel, [](QMessageBox& box) {
        EXPECT_EQ(box.defaultButton()->text(), QStringLiteral("Save && Quit"));
        box.defaultButton()->click();
    });
    EXPECT_EQ(button, AlertButton::Default);
}

TEST(AlertPresenterTest, TakesAVeryLongMessage) {
    AlertPanel panel = confirmation();
    panel.message = QString(100'000, u'x');
    EXPECT_EQ(answer(panel, [](QMessageBox& box) { box.close(); }), AlertButton::Default);
}

TEST(AlertPresenterTest, AnOpenAlertIsWhatComesForward) {
    Form<Ui::AuthenticateWindow> window;
    window.centreAndMakeKeyAndOrderFront();
    EXPECT_EQ(frontWindow(), &window);
    answer(confirmation(), [](QMessageBox& box) {
        QWidget other;
        other.show();
        other.activateWindow();
        QCoreApplication::processEvents();
        EXPECT_FALSE(box.isActiveWindow());
        bringForward();
        QCoreApplication::processEvents();
        EXPECT_EQ(QApplication::activeWindow(), &box);
        press(box, QStringLiteral("Cancel"));
    });
    EXPECT_EQ(frontWindow(), &window);
}

TEST(AlertPresenterTest, WithoutAWindowNothingComesForward) {
    EXPECT_EQ(frontWindow(), nullptr);
    bringForward();
}

} // namespace
} // namespace zelto::test
