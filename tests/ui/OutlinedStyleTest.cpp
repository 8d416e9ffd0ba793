#include "ui/OutlinedStyle.h"
#include "ui/Glyph.h"

#include <QCheckBox>
#include <QComboBox>
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

} // namespace
} // namespace zelto::test
