#include "ui/Forms.h"
#include "ui/Glyph.h"
#include "ui/Strings.h"

#include <QApplication>

#include <gtest/gtest.h>

#include <utility>

namespace zelto::test {
namespace {

template <typename Hint>
QString saidBy(const Window& form) {
    return form.findChild<Hint*>()->text();
}

TEST(MatchHintTest, SaysNothingBeforeTheSecondEntry) {
    Form<Ui::PasswordSettingsWindow> form;
    form.centreAndMakeKeyAndOrderFront();
    form.PS_1stPasswordText->setSecret(QStringLiteral("abc"));
    EXPECT_TRUE(saidBy<MatchHint>(form).isEmpty());
}

TEST(MatchHintTest, TellsMatchingFromDifferingEntries) {
    Form<Ui::PasswordSettingsWindow> form;
    form.centreAndMakeKeyAndOrderFront();
    form.PS_1stPasswordText->setSecret(QStringLiteral("abc"));
    form.PS_Again1stPasswordText->setSecret(QStringLiteral("abd"));
    const QString differs = saidBy<MatchHint>(form);
    form.PS_Again1stPasswordText->setSecret(QStringLiteral("abc"));
    const QString matches = saidBy<MatchHint>(form);
    EXPECT_FALSE(differs.isEmpty());
    EXPECT_FALSE(matches.isEmpty());
    EXPECT_NE(differs, matches);
    form.PS_Again1stPasswordText->wipe();
    EXPECT_TRUE(saidBy<MatchHint>(form).isEmpty());
}

TEST(MatchHintTest, KnowsEntriesThatWereFilledBeforeTheWindowOpened) {
    Form<Ui::PasswordChangeWindow> form;
    form.PC_New1stPasswordText->setSecret(QStringLiteral("abc"));
    form.PC_AgainNew1stPasswordText->setSecret(QStringLiteral("abc"));
    form.centreAndMakeKeyAndOrderFront();
    EXPECT_FALSE(saidBy<MatchHint>(form).isEmpty());
}

TEST(MatchHintTest, NeverShowsAPassword) {
    Form<Ui::PasswordSettingsWindow> form;
    form.centreAndMakeKeyAndOrderFront();
    form.PS_1stPasswordText->setSecret(QStringLiteral("S3cr3t"));
    form.PS_Again1stPasswordText->setSecret(QStringLiteral("S3cr3t"));
    EXPECT_FALSE(saidBy<MatchHint>(form).contains(QStringLiteral("S3cr3t")));
}

TEST(MatchHintTest, StaysSilentWithoutItsFields) {
    MatchHint orphan;
    orphan.show();
    EXPECT_TRUE(orphan.text().isEmpty());
}

TEST(StrengthHintTest, SaysEachStrengthInWordsOfItsOwnAndNothingAtNone) {
    ASSERT_TRUE(installStrings());
    StrengthHint hint;
    QStringList said;
    for (int strength = 1; strength <= StrengthHint::Strongest; ++strength) {
        hint.setStrength(strength);
        EXPECT_FALSE(hint.text().isEmpty()) << strength;
        EXPECT_FALSE(said.contains(hint.text())) << strength;
        said += hint.text();
    }
    hint.setStrength(0);
    EXPECT_TRUE(hint.text().isEmpty());
}

TEST(StrengthHintTest, KeepsItsSizeWhateverItSays) {
    ASSERT_TRUE(installStrings());
    StrengthHint hint;
    const QSize silent = hint.sizeHint();
    for (int strength = 1; strength <= StrengthHint::Strongest; ++strength) {
        hint.setStrength(strength);
        EXPECT_EQ(hint.sizeHint(), silent);
        EXPECT_GE(silent.width(), hint.QLabel::sizeHint().width()) << strength;
    }
}

TEST(StrengthHintTest, TheBarGrowsWithTheStrengthFromTheSideThatIsReadFirst) {
    ASSERT_TRUE(installStrings());
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        StrengthHint hint;
        hint.setLayoutDirection(direction);
        hint.resize(hint.sizeHint());
        const QColor full = hint.palette().color(QPalette::Highlight);
        int before = 0;
        for (int strength = 1; strength <= StrengthHint::Strongest; ++strength) {
            hint.setStrength(strength);
            const QImage picture = hint.grab().toImage();
            int filled = 0;
            int onTheFirstSide = 0;
            for (int x = 0; x < picture.width(); ++x) {
                const bool isFull = picture.pixelColor(x, picture.height() / 2) == full;
                filled += isFull ? 1 : 0;
                const bool isLeft = x < picture.width() / 2;
                onTheFirstSide += isFull && isLeft == (direction == Qt::LeftToRight) ? 1 : 0;
            }
            EXPECT_GT(filled, before) << strength;
            EXPECT_EQ(onTheFirstSide, filled) << strength;
            before = filled;
        }
    }
}

class ConsequenceLabelTest : public ::testing::TestWithParam<Qt::LayoutDirection> {
protected:
    /// Where the sign is: the pixels of its colour, per half.
    static std::pair<int, int> signsOf(ConsequenceLabel& label) {
        label.resize(label.sizeHint());
        const QImage picture = label.grab().toImage();
        const QColor colour = warningColour(label.palette());
        std::pair<int, int> found;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (picture.pixelColor(x, y) == colour) {
                    ++(x < picture.width() / 2 ? found.first : found.second);
                }
            }
        }
        return found;
    }
};

TEST_P(ConsequenceLabelTest, ASignWarnsBeforeTheWords) {
    ConsequenceLabel label;
    label.setLayoutDirection(GetParam());
    label.setText(QStringLiteral("Without its key the secure area can never be read again."));
    auto [left, right] = signsOf(label);
    EXPECT_EQ(left > 0, GetParam() == Qt::LeftToRight);
    EXPECT_EQ(right > 0, GetParam() == Qt::RightToLeft);
    label.setWarns(false);
    EXPECT_EQ(signsOf(label), std::make_pair(0, 0));
}

INSTANTIATE_TEST_SUITE_P(BothDirections, ConsequenceLabelTest,
                         ::testing::Values(Qt::LeftToRight, Qt::RightToLeft));

TEST(DigitCountHintTest, CountsAndTellsAHalfByte) {
    Form<Ui::EncryptionKeyWindow> form;
    form.centreAndMakeKeyAndOrderFront();
    form.EncryptionKeyText->setSecret(QStringLiteral("0A1"));
    const QString odd = saidBy<DigitCountHint>(form);
    form.EncryptionKeyText->setSecret(QStringLiteral("0A1B"));
    const QString even = saidBy<DigitCountHint>(form);
    EXPECT_TRUE(odd.startsWith(QStringLiteral("3 ")));
    EXPECT_TRUE(even.startsWith(QStringLiteral("4 ")));
    EXPECT_LT(even.size(), odd.size());
}

TEST(DigitCountHintTest, StaysSilentWithoutItsField) {
    DigitCountHint orphan;
    orphan.show();
    EXPECT_TRUE(orphan.text().isEmpty());
}

TEST(SteadyLabelTest, TheSetUpWindowDoesNotMoveWhileItsTextBlinks) {
    Form<Ui::ZeltoSettingWindow> form;
    form.ZeltoSettingText->setText(QStringLiteral("Setting up the drive."));
    form.centreAndMakeKeyAndOrderFront();
    QApplication::processEvents();
    const QSize window = form.size();
    const QRect steps = form.SetupStepsView->geometry();
    const QRect label = form.ZeltoSettingText->geometry();
    form.ZeltoSettingText->setText(QString());
    QApplication::processEvents();
    EXPECT_EQ(form.size(), window);
    EXPECT_EQ(form.SetupStepsView->geometry(), steps);
    EXPECT_EQ(form.ZeltoSettingText->geometry(), label);
}

TEST(SteadyLabelTest, KeepsTheRoomOfItsLargestTextAndOfOneLineAtLeast) {
    SteadyLabel label;
    EXPECT_GE(label.sizeHint().height(), label.fontMetrics().height());
    label.setText(QStringLiteral("a text that comes and goes"));
    const QSize filled = label.sizeHint();
    label.setText(QString());
    EXPECT_EQ(label.sizeHint(), filled);
    EXPECT_EQ(label.minimumSizeHint(), filled);
}

TEST(SteadyLabelTest, HasRoomFromTheBeginningForWhatItIsGoingToHold) {
    SteadyLabel label;
    label.setHolds(QStringLiteral("0000/00/00 00:00:00"));
    const QSize empty = label.sizeHint();
    for (const QChar digit : QStringLiteral("0123456789")) {
        label.setText(QStringLiteral("0000/00/00 00:00:00").replace(u'0', digit));
        EXPECT_EQ(label.sizeHint(), empty) << digit.toLatin1();
        EXPECT_EQ(label.minimumSizeHint(), empty) << digit.toLatin1();
    }
}

TEST(SteadyLabelTest, BeginsAtTheRightFromRightToLeftAlsoWithDigitsAlone) {
    SteadyLabel label;
    label.setText(QStringLiteral("2026"));
    label.resize(400, 40);
    const auto isBlank = [&label](int from) {
        const QImage half = label.grab({from, 0, 200, 40}).toImage();
        QImage blank = half;
        blank.fill(half.pixelColor(0, 0));
        return half == blank;
    };
    EXPECT_TRUE(!isBlank(0) && isBlank(200));
    label.setLayoutDirection(Qt::RightToLeft);
    EXPECT_TRUE(isBlank(0) && !isBlank(200));
}

TEST(SteadyLabelTest, HasRoomForTheLinesThatATextWillWrapInto) {
    SteadyLabel label;
    label.setWordWrap(true);
    label.setHolds(QString(40, u' ').replace(QStringLiteral(" "), QStringLiteral("word ")));
    const int empty = label.heightForWidth(100);
    label.setText(label.holds());
    EXPECT_EQ(label.heightForWidth(100), empty);
    EXPECT_GT(empty, 3 * label.fontMetrics().height());
}

TEST(NumberFieldTest, IsAsWideAsItsDigitsAndRefusesNothing) {
    NumberField narrow;
    NumberField wide;
    narrow.setDigits(2);
    wide.setDigits(10);
    EXPECT_LT(narrow.sizeHint().width(), wide.sizeHint().width());
    narrow.setText(QStringLiteral("not a number"));
    EXPECT_EQ(narrow.text(), QStringLiteral("not a number"));
}

} // namespace
} // namespace zelto::test
