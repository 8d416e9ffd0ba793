#include "digest/Wipe.h"
#include "ui/ClippedTexts.h"
#include "ui/FittingArea.h"
#include "ui/Forms.h"

#include <QApplication>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace zelto::test {
namespace {

TEST(WindowTest, ComesUpCentredOnItsScreenAndInFront) {
    Form<Ui::UnlockedWindow> form;
    form.centreAndMakeKeyAndOrderFront();
    EXPECT_TRUE(form.isVisible());
    const QPoint offset = form.geometry().center() - form.screen()->availableGeometry().center();
    EXPECT_LE(offset.manhattanLength(), 4);
}

TEST(WindowTest, OnTheScreenHasWhatIsFreedOverwritten) {
    Form<Ui::SelectZeltoWindow> form;
    form.centreAndMakeKeyAndOrderFront();
    EXPECT_TRUE(wipesHeap());
}

TEST(WindowTest, KeepsItsTitleBarOnASmallScreen) {
    Form<Ui::MainSettingsWindow> form;
    QFont huge = form.font();
    huge.setPointSize(60);
    form.setFont(huge);
    form.centreAndMakeKeyAndOrderFront();
    EXPECT_GE(form.y(), form.screen()->availableGeometry().top());
    EXPECT_GE(form.x(), form.screen()->availableGeometry().left());
}

TEST(WindowTest, StartsInTheFirstFieldEveryTimeItOpens) {
    Form<Ui::AuthenticateWindow> form;
    form.centreAndMakeKeyAndOrderFront();
    form.AuthenticateCancel->setFocus();
    form.orderOut();
    form.centreAndMakeKeyAndOrderFront();
    EXPECT_EQ(form.focusWidget(), form.AuthenticateTextField);
}

TEST(WindowTest, StartsOnItsDefaultButtonWhenItHasNoField) {
    Form<Ui::UnlockedWindow> form;
    form.centreAndMakeKeyAndOrderFront();
    EXPECT_EQ(form.focusWidget(), form.UnlockedOK);
}

TEST(WindowTest, TheSettingsStartWhereNoKeyChangesAnything) {
    Form<Ui::MainSettingsWindow> form;
    form.AutoClearText->setEnabled(true);
    form.AutoClearText->setText(QStringLiteral("30"));
    form.centreAndMakeKeyAndOrderFront();
    EXPECT_EQ(form.focusWidget(), form.AreaInfosTableView);
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Delete, Qt::Key_5, Qt::Key_Return}) {
        QTest::keyClick(form.focusWidget(), key);
    }
    EXPECT_EQ(form.AutoClearText->text(), QStringLiteral("30"));
    EXPECT_TRUE(form.isVisible());
}

TEST(WindowTest, GoesOffTheScreenWithoutAskingAnybody) {
    Form<Ui::UnlockedWindow> form;
    const QSignalSpy asked(&form, &Window::closeRequested);
    form.centreAndMakeKeyAndOrderFront();
    form.orderOut();
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(asked.count(), 0);
}

TEST(WindowTest, ItsTitleBarAsksOnceAndTheWindowStays) {
    Form<Ui::UnlockedWindow> form;
    const QSignalSpy asked(&form, &Window::closeRequested);
    form.centreAndMakeKeyAndOrderFront();
    form.close();
    EXPECT_EQ(asked.count(), 1);
    EXPECT_TRUE(form.isVisible());
}

TEST(WindowTest, StaysOnTheScreenUntilTheNextIsThere) {
    Form<Ui::UnlockedWindow> first;
    Form<Ui::MainSettingsWindow> second;
    first.centreAndMakeKeyAndOrderFront();
    first.giveWayTo([&] {
        EXPECT_TRUE(first.isVisible());
        EXPECT_FALSE(first.isInUse());
        second.centreAndMakeKeyAndOrderFront();
        EXPECT_TRUE(first.isVisible());
    });
    EXPECT_FALSE(first.isVisible());
    EXPECT_TRUE(second.isInUse());
}

TEST(WindowTest, GoesAlsoWhenNoOtherFollows) {
    Form<Ui::UnlockedWindow> form;
    form.centreAndMakeKeyAndOrderFront();
    form.giveWayTo([] {});
    EXPECT_FALSE(form.isVisible());
}

TEST(WindowTest, ThatFollowsItselfStaysWhereThePersonHasPutIt) {
    Form<Ui::AuthenticateWindow> form;
    form.centreAndMakeKeyAndOrderFront();
    const QPoint moved = form.pos() + QPoint(50, 30);
    form.move(moved);
    form.AuthenticateCancel->setFocus();
    form.giveWayTo([&] { form.centreAndMakeKeyAndOrderFront(); });
    EXPECT_TRUE(form.isInUse());
    EXPECT_EQ(form.pos(), moved);
    EXPECT_EQ(form.focusWidget(), form.AuthenticateTextField);
}

class ModalRun : public ::testing::Test {
protected:
    int run(const std::function<void()>& user) {
        QTimer::singleShot(0, &dialog, user);
        return dialog.runModal(&parent);
    }

    Form<Ui::MainSettingsWindow> parent;
    Form<Ui::PasswordSettingsWindow> dialog;
};

TEST_F(ModalRun, EndsWithTheCodeItIsStoppedWith) {
    EXPECT_EQ(run([this] { dialog.stopModal(Window::ModalOK); }), 0);
    EXPECT_EQ(run([this] { dialog.stopModal(Window::ModalCancel); }), 1);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(ModalRun, EscapeAndTheTitleBarCancelIt) {
    const QSignalSpy asked(&dialog, &Window::closeRequested);
    EXPECT_EQ(run([this] { QTest::keyClick(&dialog, Qt::Key_Escape); }), Window::ModalCancel);
    EXPECT_EQ(run([this] { dialog.close(); }), Window::ModalCancel);
    EXPECT_EQ(asked.count(), 0);
}

TEST_F(ModalRun, ThatEndsBecauseTheApplicationDoesIsACancel) {
    int code = Window::ModalOK;
    QTimer::singleShot(0, &dialog, [&] { code = run([] { QCoreApplication::exit(); }); });
    QApplication::exec();
    EXPECT_EQ(code, Window::ModalCancel);
}

TEST_F(ModalRun, StandsOverItsParentAndIsFreeAgainAfterwards) {
    EXPECT_EQ(run([this] {
                  EXPECT_EQ(dialog.parentWidget(), &parent);
                  EXPECT_EQ(dialog.windowModality(), Qt::ApplicationModal);
                  dialog.stopModal(Window::ModalOK);
              }),
              Window::ModalOK);
    EXPECT_EQ(dialog.parentWidget(), nullptr);
}

TEST_F(ModalRun, NeedsNoParent) {
    QTimer::singleShot(0, &dialog, [this] { dialog.stopModal(Window::ModalOK); });
    EXPECT_EQ(dialog.runModal(nullptr), Window::ModalOK);
}

TEST_F(ModalRun, KeepsWhatWasTypedForTheNextRun) {
    EXPECT_EQ(run([this] {
                  QTest::keyClicks(dialog.PS_1stPasswordText, QStringLiteral("abc"));
                  dialog.stopModal(Window::ModalCancel);
              }),
              Window::ModalCancel);
    EXPECT_EQ(dialog.PS_1stPasswordText->secret(), QStringLiteral("abc"));
}

TEST(WindowTest, FitsWhatHasChangedWhileItWasOffTheScreen) {
    Form<Ui::SelectZeltoWindow> form;
    form.centreAndMakeKeyAndOrderFront();
    const int before = form.height();
    form.orderOut();
    form.SelectZeltoPluggedIn->setText(QStringLiteral("more words ").repeated(40));
    form.centreAndMakeKeyAndOrderFront();
    EXPECT_GT(form.height(), before);
    EXPECT_EQ(clippedTexts(form), QStringList());
}

TEST(WindowTest, GrowsWhenAHintAppearsInIt) {
    Form<Ui::SelectZeltoWindow> form;
    form.centreAndMakeKeyAndOrderFront();
    QApplication::processEvents();
    form.SelectZeltoAccessHint->setText(
        QString(40, u'x') + QString(300, u' ').replace(QStringLiteral(" "), QStringLiteral(" y")));
    form.SelectZeltoAccessHint->show();
    QApplication::processEvents();
    const QLabel& hint = *form.SelectZeltoAccessHint;
    EXPECT_GE(hint.height(), hint.heightForWidth(hint.width()));
    EXPECT_TRUE(form.rect().contains(form.SelectZeltoOK->geometry()));
}

TEST(WindowTest, GrowsWhenAHintInItGetsLonger) {
    Form<Ui::SelectZeltoWindow> form;
    form.SelectZeltoAccessHint->setText(QStringLiteral("another ").repeated(15));
    form.SelectZeltoAccessHint->show();
    form.centreAndMakeKeyAndOrderFront();
    QApplication::processEvents();
    form.SelectZeltoAccessHint->setText(QStringLiteral("another ").repeated(60));
    QApplication::processEvents();
    const QLabel& hint = *form.SelectZeltoAccessHint;
    EXPECT_GE(hint.height(), hint.heightForWidth(hint.width()));
    EXPECT_FALSE(form.findChild<FittingArea*>()->verticalScrollBar()->isVisible());
}

TEST(TextInputModesTest, HaveTheirNumbers) {
    EXPECT_EQ(TextInputModes::MainSettings, 0);
    EXPECT_EQ(TextInputModes::AuthenticateFurtherStep, 1);
    EXPECT_EQ(TextInputModes::AuthenticateFirstStep, 2);
    EXPECT_EQ(TextInputModes::AreaSettings, 3);
    EXPECT_EQ(TextInputModes::PasswordSettings, 4);
    EXPECT_EQ(TextInputModes::PasswordChange, 5);
    EXPECT_EQ(TextInputModes::EncryptionKey, 6);
}

} // namespace
} // namespace zelto::test
