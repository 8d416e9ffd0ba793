#include "ui/Description.h"

#include "tests/support/QtPrinting.h"
#include "ui/Forms.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>

#include <gtest/gtest.h>

namespace zelto::test {
namespace {

QAccessibleInterface& heard(QObject* object) {
    return *QAccessible::queryAccessibleInterface(object);
}

class DescriptionTest : public ::testing::Test {
protected:
    QWidget window;
    QLineEdit first{&window};
    QLineEdit second{&window};
    QLabel hint{&window};
    QLabel other{&window};
};

TEST_F(DescriptionTest, KeepsTheFormsOwnAndWhatEachSpeakerSaidLast) {
    first.setAccessibleDescription(QStringLiteral("own"));
    describe(first, hint, QStringLiteral("differs"));
    describe(first, other, QStringLiteral("too long"));
    describe(first, hint, QStringLiteral("matches"));
    EXPECT_EQ(first.accessibleDescription(), u"own\ntoo long\nmatches");
    describe(first, other, {});
    describe(first, hint, {});
    EXPECT_EQ(first.accessibleDescription(), u"own");
}

TEST_F(DescriptionTest, WhatIsSaidBesideTheFocusFollowsIt) {
    window.show();
    first.setFocus();
    sayBesideFocus(hint, QStringLiteral("Next: the first."));
    EXPECT_EQ(hint.text(), u"Next: the first.");
    EXPECT_EQ(first.accessibleDescription(), u"Next: the first.");
    second.setFocus();
    sayBesideFocus(hint, QStringLiteral("Next: the second."));
    EXPECT_EQ(first.accessibleDescription(), u"");
    EXPECT_EQ(second.accessibleDescription(), u"Next: the second.");
    sayBesideFocus(hint, {});
    EXPECT_EQ(second.accessibleDescription(), u"");
}

TEST_F(DescriptionTest, WithoutAFocusNothingIsSaid) {
    sayBesideFocus(hint, QStringLiteral("shown"));
    EXPECT_EQ(hint.text(), u"shown");
    EXPECT_EQ(first.accessibleDescription(), u"");
}

TEST_F(DescriptionTest, AValueIsHeardBesideItsName) {
    hint.setAccessibleName(QStringLiteral("Drive's clock"));
    showValue(hint, QStringLiteral("2026/01/01"));
    EXPECT_EQ(hint.text(), u"2026/01/01");
    EXPECT_EQ(heard(&hint).text(QAccessible::Name), u"Drive's clock");
    EXPECT_EQ(heard(&hint).text(QAccessible::Description), u"2026/01/01");
}

TEST_F(DescriptionTest, AValueThatBlinksIsNotToldAnew) {
    showValue(hint, QStringLiteral("Setting up"));
    showValue(hint, {});
    EXPECT_EQ(hint.text(), u"");
    EXPECT_EQ(hint.accessibleDescription(), u"Setting up");
}

TEST(SpokenHintsTest, TheFieldSaysWhetherTheTwoEntriesMatch) {
    Form<Ui::PasswordSettingsWindow> form;
    form.centreAndMakeKeyAndOrderFront();
    form.PS_1stPasswordText->setSecret(QStringLiteral("abc"));
    form.PS_Again1stPasswordText->setSecret(QStringLiteral("abd"));
    EXPECT_EQ(form.PS_Again1stPasswordText->accessibleDescription(),
              form.findChild<MatchHint*>()->text());
    EXPECT_FALSE(form.PS_Again1stPasswordText->accessibleDescription().isEmpty());
}

TEST(SpokenHintsTest, TheKeyFieldSaysHowManyDigitsItHas) {
    Form<Ui::EncryptionKeyWindow> form;
    form.centreAndMakeKeyAndOrderFront();
    form.EncryptionKeyText->setSecret(QStringLiteral("0A1"));
    EXPECT_EQ(form.EncryptionKeyText->accessibleDescription(),
              form.findChild<DigitCountHint*>()->text());
}

TEST(AccessibleViewsTest, TheAreasAreAChartWithWords) {
    AreaBar bar;
    bar.setAccessibleName(QStringLiteral("Areas"));
    bar.setSegments({{QStringLiteral("Disk1"), 500, AreaBar::Kind::Normal}});
    EXPECT_EQ(heard(&bar).role(), QAccessible::Chart);
    EXPECT_TRUE(heard(&bar).text(QAccessible::Description).contains(QStringLiteral("Disk1")));
}

TEST(AccessibleViewsTest, TheStepsAreAProgressBarWithAValue) {
    SetupStepsView steps;
    steps.setCurrentStep(SetupStepsView::VolumeAppears);
    EXPECT_EQ(heard(&steps).role(), QAccessible::ProgressBar);
    auto* const value = heard(&steps).valueInterface();
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(value->minimumValue().toInt(), 1);
    EXPECT_EQ(value->currentValue().toInt(), 3);
    EXPECT_EQ(value->maximumValue().toInt(), 5);
}

TEST(AccessibleViewsTest, RadioButtonsAreInAGroupWithAName) {
    Form<Ui::PasswordSettingsWindow> form;
    auto& group = heard(form.PS_1stOnlyOr1stAnd2ndRadioButton);
    EXPECT_EQ(group.role(), QAccessible::Grouping);
    EXPECT_FALSE(group.text(QAccessible::Name).isEmpty());
    EXPECT_EQ(group.childCount(), 2);
}

} // namespace
} // namespace zelto::test
