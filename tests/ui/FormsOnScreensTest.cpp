#include "tests/ui/AllForms.h"
#include "tests/ui/FilledForms.h"
#include "ui/ClippedTexts.h"
#include "ui/FittingArea.h"
#include "ui/Languages.h"
#include "ui/Strings.h"

#include <QApplication>
#include <QPushButton>
#include <QScrollBar>
#include <QTranslator>

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace zelto::test {
namespace {

struct Screen {
    const char* name;
    int width;
    int height;
    double scale;

    /// In the toolkit's own units, without the title bar and the desktop's panels.
    [[nodiscard]] QSize room() const {
        constexpr int TitleBarAndPanels = 60;
        return QSize(width, height) / scale - QSize(0, TitleBarAndPanels);
    }
};

constexpr Screen Screens[] = {
    {"1024 x 600", 1024, 600, 1},
    {"1366 x 768", 1366, 768, 1},
    {"1366 x 768 at 125 %", 1366, 768, 1.25},
    {"1366 x 768 at 150 %", 1366, 768, 1.5},
    {"1920 x 1080", 1920, 1080, 1},
    {"1920 x 1080 at 150 %", 1920, 1080, 1.5},
    {"1920 x 1080 at 200 %", 1920, 1080, 2},
};
constexpr int PointSizes[] = {9, 11, 13, 16};

/// Texts as another language may have them: a third longer.
class LongerTexts : public QTranslator {
public:
    LongerTexts() { (void)m_texts.load(QStringLiteral(":/zelto/strings/zelto_en.qm")); }

    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* context, const char* source, const char* comment,
                                    int number) const override {
        QString text = m_texts.translate(context, source, comment, number);
        if (text.isEmpty()) {
            text = QString::fromUtf8(source);
        }
        const QString plain = QString(text).remove(u'&').remove(u'%');
        return text + u' ' + plain.left(plain.size() * 35 / 100).trimmed();
    }

private:
    QTranslator m_texts;
};

class FormsOnScreens : public ::testing::TestWithParam<FormUnderTest> {
protected:
    void SetUp() override { m_font = QApplication::font(); }
    void TearDown() override {
        QApplication::setFont(m_font);
        installStrings(QStringLiteral("en"));
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }

    /// A form of this font size, full, on no screen yet.
    std::unique_ptr<Window> open(int pointSize) {
        QFont font = m_font;
        font.setPointSize(pointSize);
        QApplication::setFont(font);
        auto form = GetParam().create();
        form->setAttribute(Qt::WA_DontShowOnScreen);
        fill(*form);
        return form;
    }

    static void expectAllFits(Window& form, const QSize& room) {
        form.resizeToFit(room);
        form.show();
        settle(form);
        EXPECT_EQ(form.size().boundedTo(room), form.size());
        EXPECT_EQ(form.minimumSizeHint().boundedTo(room), form.minimumSizeHint());
        for (const QPushButton* button : form.findChildren<QPushButton*>()) {
            if (button->parentWidget() == &form) {
                EXPECT_TRUE(form.rect().contains(button->geometry()))
                    << button->objectName().toStdString();
            }
        }
        const auto* const area = form.findChild<FittingArea*>();
        EXPECT_LE(area->widget()->width(), area->viewport()->width()) << "scrolls to the side";
        EXPECT_EQ(clippedTexts(form).join(QStringLiteral("; ")).toStdString(), "");
    }

    void expectAllFitsEverywhere() {
        for (const int pointSize : PointSizes) {
            for (const Screen& screen : Screens) {
                SCOPED_TRACE(std::to_string(pointSize) + " pt on " + screen.name);
                expectAllFits(*open(pointSize), screen.room());
            }
        }
    }

private:
    QFont m_font;
};

TEST_P(FormsOnScreens, ShowTheirButtonsAndEveryTextInFull) {
    expectAllFitsEverywhere();
}

TEST_P(FormsOnScreens, FitFromRightToLeftToo) {
    QApplication::setLayoutDirection(Qt::RightToLeft);
    expectAllFitsEverywhere();
}

TEST_P(FormsOnScreens, FitWithTextsThatAreAThirdLonger) {
    LongerTexts longer;
    QCoreApplication::installTranslator(&longer);
    expectAllFitsEverywhere();
    QCoreApplication::removeTranslator(&longer);
}

TEST_P(FormsOnScreens, FitInEveryLanguageWithTheLargestFont) {
    for (const QString& language : textLanguages()) {
        ASSERT_TRUE(installStrings(language));
        for (const Screen& screen : Screens) {
            SCOPED_TRACE(language.toStdString() + " on " + screen.name);
            expectAllFits(*open(*std::ranges::max_element(PointSizes)), screen.room());
        }
    }
}

INSTANTIATE_TEST_SUITE_P(EveryForm, FormsOnScreens, ::testing::ValuesIn(allForms()),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace zelto::test
