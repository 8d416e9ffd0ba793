#include "ui/VirtualScreen.h"

#include <QPalette>

#include <cstdio>

namespace zelto {
namespace {

/// Such a screen remarks on every window that it cannot raise; the rest is printed.
void printRemark(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (!text.startsWith(QLatin1String("This plugin does not support"))) {
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, text)));
    }
}

QPalette lightOn(const QColor& window, const QColor& base, const QColor& text, const QColor& grey) {
    QPalette palette(window, window);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, grey);
    }
    palette.setColor(QPalette::PlaceholderText, grey);
    palette.setColor(QPalette::Base, base);
    return palette;
}

} // namespace

VirtualScreen::VirtualScreen(double scale) {
    if (m_description.open()) {
        m_description.write(
            QStringLiteral(R"({"screens": [{"name": "laptop", "x": 0, "y": 0, "width": %1,
                "height": %2, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": %3}]})")
                .arg(qRound(1366 * scale))
                .arg(qRound(768 * scale))
                .arg(scale)
                .toUtf8());
        m_description.close();
    }
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + m_description.fileName().toUtf8());
    qInstallMessageHandler(printRemark);
}

QPalette darkPalette() {
    QPalette palette = lightOn(QColor(0x2B, 0x2D, 0x30), QColor(0x1E, 0x1F, 0x22),
                               QColor(0xF0, 0xF0, 0xF0), QColor(0x8A, 0x8C, 0x90));
    palette.setColor(QPalette::Highlight, QColor(0x2F, 0x7F, 0xC4));
    return palette;
}

QPalette highContrastPalette() {
    QPalette palette = lightOn(Qt::black, Qt::black, Qt::white, QColor(0xC0, 0xC0, 0xC0));
    palette.setColor(QPalette::Highlight, QColor(0x00, 0x60, 0xC0));
    return palette;
}

} // namespace zelto
