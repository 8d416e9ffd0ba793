#include "ui/OutlinedStyle.h"
#include "ui/Glyph.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace zelto::test {
namespace {

QPalette blackAndWhite() {
    QPalette palette(Qt::black, Qt::black);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText}) {
        palette.setColor(role, Qt::white);
    }
    palette.setColor(QPalette::Base, Qt::black);
    return palette;
}

TEST(HighContrast, IsTextOnBlackOrWhiteAndNotMerelyADarkTheme) {
    EXPECT_TRUE(isHighContrast(blackAndWhite()));
    QPalette dark = blackAndWhite();
    dark.setColor(QPalette::Window, QColor(0x2D, 0x2D, 0x2D));
    EXPECT_FALSE(isHighContrast(dark));
    QPalette light(QColor(0xEF, 0xEF, 0xEF));
    EXPECT_FALSE(isHighContrast(light));
}

TEST(HighContrast, OutlinesAreAsStrongAsText) {
    EXPECT_EQ(outlineColour(blackAndWhite()), QColor(Qt::white));
}

TEST(OutlinedStyleTest, DrawsTheEdgeOfEveryControl) {
    OutlinedStyle style;
    std::vector<std::unique_ptr<QWidget>> controls;
    controls.push_back(std::make_unique<QPushButton>());
    controls.push_back(std::make_unique<QLineEdit>());
    controls.push_back(std::make_unique<QComboBox>());
    controls.push_back(std::make_unique<QCheckBox>());
    controls.push_back(std::make_unique<QRadioButton>());
    controls.push_back(std::make_unique<QPushButton>());
    controls.back()->setEnabled(false);
    for (const auto& control : controls) {
        control->setStyle(&style);
        control->setPalette(blackAndWhite());
        control->resize(control->sizeHint());
        const QImage image = control->grab().toImage();
        int white = 0;
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 0; y < image.height(); ++y) {
                white += image.pixelColor(x, y).lightness() > 100 ? 1 : 0;
            }
        }
        EXPECT_GT(white, 20) << control->metaObject()->className();
        control->setStyle(nullptr);
    }
}

TEST(OutlinedStyleTest, FollowsThePaletteWhileTheProgramRuns) {
    OutlinedStyle style;
    QPushButton button;
    button.setStyle(&style);
    button.resize(button.sizeHint());
    const QPalette usual = button.palette();
    const QImage before = button.grab().toImage();
    button.setPalette(blackAndWhite());
    EXPECT_EQ(button.grab().toImage().pixelColor(0, button.height() / 2), QColor(Qt::white));
    button.setPalette(usual);
    EXPECT_EQ(button.grab().toImage(), before);
    button.setStyle(nullptr);
}

/// How far in from the left the line around the field reaches.
int lineWidth(QLineEdit& field) {
    const QImage image = field.grab().toImage();
    int width = 0;
    while (image.pixelColor(width, field.height() / 2) == QColor(Qt::white)) {
        ++width;
    }
    return width;
}

TEST(OutlinedStyleTest, DrawsAStrongerLineAroundWhatHasTheFocus) {
    OutlinedStyle style;
    QWidget window;
    QLineEdit with(&window);
    QLineEdit without(&window);
    for (QLineEdit* field : {&with, &without}) {
        field->setStyle(&style);
        field->setPalette(blackAndWhite());
    }
    window.show();
    window.activateWindow();
    QApplication::processEvents();
    with.setFocus();
    EXPECT_GT(lineWidth(with), lineWidth(without));
    EXPECT_EQ(lineWidth(without), 1);
    with.setStyle(nullptr);
    without.setStyle(nullptr);
}

TEST(OutlinedStyleTest, LeavesTheTitleOfAGroupAboveItsLine) {
    OutlinedStyle style;
    QGroupBox group(QStringLiteral("Title"));
    group.setStyle(&style);
    group.setPalette(blackAndWhite());
    group.resize(200, 80);
    const QImage image = group.grab().toImage();
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(0, 60), QColor(Qt::white));
    group.setStyle(nullptr);
}

} // namespace
} // namespace zelto::test
