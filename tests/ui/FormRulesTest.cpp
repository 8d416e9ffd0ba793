#include "tests/ui/AllForms.h"
#include "tests/ui/FilledForms.h"
#include "ui/ClippedTexts.h"
#include "ui/Languages.h"
#include "ui/Strings.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace zelto::test {
namespace {

QString nameHeard(QWidget& widget) {
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&widget);
    return interface == nullptr ? QString() : interface->text(QAccessible::Name);
}

// What the form itself holds: not the parts that Qt's widgets are made of.
std::vector<QWidget*> controlsOf(const Window& form) {
    std::vector<QWidget*> controls;
    for (QWidget* widget : form.findChildren<QWidget*>()) {
        const QWidget* parent = widget->parentWidget();
        const bool placed = parent->layout() != nullptr && parent->layout()->indexOf(widget) >= 0;
        const bool nested = qobject_cast<const QGroupBox*>(parent) != nullptr || parent == &form ||
                            parent->objectName() == QStringLiteral("WindowContents") ||
                            qobject_cast<const RadioMatrix*>(parent) != nullptr;
        if (nested && (placed || !widget->objectName().startsWith(QStringLiteral("qt_")))) {
            controls.push_back(widget);
        }
    }
    return controls;
}

std::vector<QWidget*> tabStopsOf(const Window& form) {
    std::vector<QWidget*> stops;
    for (QWidget* widget : controlsOf(form)) {
        if ((widget->focusPolicy() & Qt::TabFocus) != 0) {
            stops.push_back(widget);
        }
    }
    return stops;
}

QString mnemonicTextOf(const QWidget& widget) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        return button->text();
    }
    const auto* label = qobject_cast<const QLabel*>(&widget);
    return label != nullptr && label->buddy() != nullptr ? label->text() : QString();
}

QPushButton* defaultButtonOf(const Window& form) {
    for (QPushButton* button : form.findChildren<QPushButton*>()) {
        if (button->isDefault()) {
            return button;
        }
    }
    return nullptr;
}

void enableEverything(const Window& form) {
    for (QWidget* widget : form.findChildren<QWidget*>()) {
        widget->setEnabled(true);
    }
}

void setFontScale(double scale) {
    static const double normal = QApplication::font().pointSizeF();
    QFont font = QApplication::font();
    font.setPointSizeF(normal * scale);
    QApplication::setFont(font);
}

class FormRules : public ::testing::TestWithParam<FormUnderTest> {
protected:
    void SetUp() override { form = GetParam().create(); }
    void TearDown() override {
        setFontScale(1);
        installStrings(QStringLiteral("en"));
    }

    void showFilled() {
        fill(*form);
        show();
    }

    void show() {
        form->centreAndMakeKeyAndOrderFront();
        QApplication::processEvents();
    }

    void expectMnemonicsOnce() {
        std::map<QString, std::string> owners;
        for (const QWidget* widget : controlsOf(*form)) {
            const QString text = mnemonicTextOf(*widget);
            const QString key = QKeySequence::mnemonic(text).toString();
            const std::string name = widget->objectName().toStdString();
            if (qobject_cast<const QAbstractButton*>(widget) != nullptr) {
                EXPECT_FALSE(key.isEmpty()) << name << " has no mnemonic";
            }
            if (!key.isEmpty()) {
                const auto [owner, isNew] = owners.emplace(key, name);
                EXPECT_TRUE(isNew) << key.toStdString() << ": " << owner->second << ", " << name;
            }
        }
    }

    void expectEverythingFits() {
        settle(*form);
        EXPECT_EQ(clippedTexts(*form).join(QStringLiteral("; ")).toStdString(), "");
    }

    std::unique_ptr<Window> form;
};

TEST_P(FormRules, TheDesignerObjectIsNamedAfterTheWindow) {
    EXPECT_EQ(form->objectName().toStdString(), GetParam().name);
    EXPECT_FALSE(form->windowTitle().isEmpty());
    EXPECT_FALSE(form->windowIcon().isNull());
}

TEST_P(FormRules, EveryControlHasANameForAssistiveTechnology) {
    for (QWidget* stop : tabStopsOf(*form)) {
        EXPECT_FALSE(nameHeard(*stop).isEmpty()) << stop->objectName().toStdString();
    }
}

TEST_P(FormRules, EveryButtonHasAMnemonicAndNoneIsUsedTwice) {
    expectMnemonicsOnce();
}

TEST_P(FormRules, EveryFieldIsReachedByAMnemonicOrStandsBesideACheckBox) {
    for (QWidget* widget : controlsOf(*form)) {
        if (qobject_cast<QLineEdit*>(widget) == nullptr) {
            continue;
        }
        const auto labels = form->findChildren<QLabel*>();
        const bool hasLabel = std::any_of(labels.begin(), labels.end(), [&](const QLabel* label) {
            return label->buddy() == widget && !QKeySequence::mnemonic(label->text()).isEmpty();
        });
        EXPECT_TRUE(hasLabel || !widget->accessibleName().isEmpty())
            << widget->objectName().toStdString();
    }
}

TEST_P(FormRules, TabReachesEveryControlInReadingOrder) {
    enableEverything(*form);
    show();
    std::vector<QWidget*> visited;
    for (QWidget* widget = form->nextInFocusChain(); widget != form.get();
         widget = widget->nextInFocusChain()) {
        const auto stops = tabStopsOf(*form);
        if (std::find(stops.begin(), stops.end(), widget) != stops.end()) {
            visited.push_back(widget);
        }
    }
    EXPECT_EQ(visited.size(), tabStopsOf(*form).size());
    for (std::size_t index = 1; index < visited.size(); ++index) {
        const QWidget* before = visited[index - 1];
        const QWidget* after = visited[index];
        if (before->parentWidget() != after->parentWidget()) {
            continue;
        }
        const bool sameRow = after->geometry().top() <= before->geometry().center().y();
        EXPECT_TRUE(sameRow ? after->x() > before->x() : after->y() > before->y())
            << before->objectName().toStdString() << ", " << after->objectName().toStdString();
    }
}

TEST_P(FormRules, OneButtonIsTheDefaultAndNoOtherBecomesItByFocus) {
    int defaults = 0;
    for (const QPushButton* button : form->findChildren<QPushButton*>()) {
        defaults += button->isDefault() ? 1 : 0;
        EXPECT_EQ(button->autoDefault(), button->isDefault()) << button->objectName().toStdString();
    }
    EXPECT_EQ(defaults, 1);
}

TEST_P(FormRules, ReturnPressesTheButtonWithTheFocusAndElseTheDefaultOne) {
    enableEverything(*form);
    show();
    QPushButton* const defaultButton = defaultButtonOf(*form);
    ASSERT_NE(defaultButton, nullptr);
    for (QWidget* stop : tabStopsOf(*form)) {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            auto* const focused = qobject_cast<QPushButton*>(stop);
            QPushButton* const expected = focused != nullptr ? focused : defaultButton;
            int others = 0;
            std::vector<QMetaObject::Connection> connections;
            for (QPushButton* other : form->findChildren<QPushButton*>()) {
                connections.push_back(
                    QObject::connect(other, &QPushButton::clicked, form.get(),
                                     [&, other] { others += other != expected; }));
            }
            const QSignalSpy pressed(expected, &QPushButton::clicked);
            stop->setFocus();
            QTest::keyClick(stop, key);
            EXPECT_EQ(pressed.count(), 1) << stop->objectName().toStdString();
            EXPECT_EQ(others, 0) << stop->objectName().toStdString();
            for (const auto& connection : connections) {
                QObject::disconnect(connection);
            }
        }
    }
}

TEST_P(FormRules, ReturnDoesNothingWhileTheDefaultButtonIsDisabled) {
    enableEverything(*form);
    show();
    QPushButton* const button = defaultButtonOf(*form);
    button->setEnabled(false);
    if (QWidget* const focused = form->focusWidget()) {
        focused->clearFocus();
    }
    for (QPushButton* other : form->findChildren<QPushButton*>()) {
        const QSignalSpy pressed(other, &QPushButton::clicked);
        QTest::keyClick(form.get(), Qt::Key_Return);
        EXPECT_EQ(pressed.count(), 0) << other->objectName().toStdString();
    }
    EXPECT_TRUE(form->isVisible());
}

TEST_P(FormRules, EscapeAsksToCloseAndLeavesTheWindowToTheController) {
    enableEverything(*form);
    show();
    const QSignalSpy asked(form.get(), &Window::closeRequested);
    QTest::keyClick(form.get(), Qt::Key_Escape);
    EXPECT_EQ(asked.count(), 1);
    EXPECT_TRUE(form->isVisible());
}

TEST_P(FormRules, F1AsksForHelpWhateverHasTheFocus) {
    enableEverything(*form);
    show();
    const auto* const help = form->findChild<HelpButton*>();
    ASSERT_NE(help, nullptr);
    for (QWidget* stop : tabStopsOf(*form)) {
        const QSignalSpy asked(help, &QPushButton::clicked);
        stop->setFocus();
        QTest::keyClick(stop, Qt::Key_F1);
        EXPECT_EQ(asked.count(), 1) << stop->objectName().toStdString();
    }
}

TEST_P(FormRules, AControlIsDescribedByItsConsequence) {
    for (auto* label : form->findChildren<ConsequenceLabel*>()) {
        if (label->text().isEmpty()) {
            label->setText(QStringLiteral("All will be lost."));
        }
    }
    show();
    for (const auto* label : form->findChildren<ConsequenceLabel*>()) {
        auto* const control = form->findChild<QWidget*>(label->control());
        ASSERT_NE(control, nullptr) << label->control().toStdString();
        QAccessibleInterface* const heard = QAccessible::queryAccessibleInterface(control);
        ASSERT_NE(heard, nullptr);
        EXPECT_TRUE(heard->text(QAccessible::Description).contains(label->text()))
            << label->control().toStdString();
    }
}

TEST_P(FormRules, NothingHasAFixedSize) {
    for (const QWidget* widget : controlsOf(*form)) {
        const std::string name = widget->objectName().toStdString();
        EXPECT_EQ(widget->minimumSize(), QSize(0, 0)) << name;
        EXPECT_EQ(widget->maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX)) << name;
    }
    EXPECT_EQ(form->maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
}

TEST_P(FormRules, EverythingFitsFromNormalToDoubleFontSize) {
    for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
        SCOPED_TRACE(scale);
        setFontScale(scale);
        form = GetParam().create();
        showFilled();
        expectEverythingFits();
    }
}

TEST_P(FormRules, EverythingStillFitsWhenTheFontGrowsWhileTheWindowIsOpen) {
    showFilled();
    setFontScale(1.75);
    QApplication::processEvents();
    form->centreAndMakeKeyAndOrderFront();
    QApplication::processEvents();
    expectEverythingFits();
}

TEST_P(FormRules, EveryLanguageHasItsMnemonicsOnceAndFitsBothWaysRoundAtEveryFontSize) {
    for (const QString& language : textLanguages()) {
        ASSERT_TRUE(installStrings(language));
        for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
            SCOPED_TRACE(language.toStdString() + " " + std::to_string(scale));
            setFontScale(scale);
            form = GetParam().create();
            expectMnemonicsOnce();
            showFilled();
            expectEverythingFits();
            form->setLayoutDirection(form->isRightToLeft() ? Qt::LeftToRight : Qt::RightToLeft);
            QApplication::processEvents();
            expectEverythingFits();
        }
    }
}

TEST_P(FormRules, EveryTextIsShownAsPlainText) {
    for (const QLabel* label : form->findChildren<QLabel*>()) {
        if (label->pixmap().isNull()) {
            EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(EveryForm, FormRules, ::testing::ValuesIn(allForms()),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace zelto::test
