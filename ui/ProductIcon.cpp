#include "ui/ProductIcon.h"

#include "ui/Resources.h"
#include "ui/Strings.h"

#include <QEvent>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QIcon>
#include <QImageReader>
#include <QPixmap>
#include <QtMath>

#include <algorithm>
#include <array>

namespace zelto {
namespace {

constexpr std::array Sizes{16, 24, 32, 48, 64, 128, 256, 512};

/// To find out what a file holds, the toolkit would load all the formats that it can read.
QPixmap iconFile(int size) {
    initResources();
    QImageReader reader(QStringLiteral(":/zelto/icons/zelto-%1.png").arg(size), "png");
    reader.setAutoDetectImageFormat(false);
    return QPixmap::fromImageReader(&reader);
}

/// Each size goes to the display with each window, so none that its screens do not ask for. Where
/// more is shown than a task bar does, a desktop takes the icon that is installed.
QIcon iconForFrames() {
    const int largest = qCeil(64 * qGuiApp->devicePixelRatio());
    QIcon icon;
    for (const int size : Sizes) {
        if (size <= largest) {
            icon.addPixmap(iconFile(size));
        }
    }
    return icon;
}

/// The smallest that is not smaller, scaled down.
QPixmap iconOfSide(int pixels) {
    const auto size = std::ranges::lower_bound(Sizes, pixels);
    const QPixmap whole = iconFile(size != Sizes.end() ? *size : Sizes.back());
    return whole.scaled(pixels, pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace

ProductIcon::ProductIcon(QWidget* parent) : QLabel(parent) {
    setAccessibleName(localized("IDS_APP_TITLE"));
    render();
}

QIcon ProductIcon::icon() {
    // Every window asks for it.
    static QIcon decoded;
    if (decoded.isNull()) {
        decoded = iconForFrames();
        // Pixmaps must not outlive the application.
        qAddPostRoutine([] { decoded = {}; });
    }
    return decoded;
}

void ProductIcon::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange || event->type() == QEvent::ApplicationFontChange) {
        render();
    }
    QLabel::changeEvent(event);
}

void ProductIcon::render() {
    const int side = fontMetrics().height() * 3;
    QPixmap icon = iconOfSide(qRound(side * devicePixelRatioF()));
    icon.setDevicePixelRatio(devicePixelRatioF());
    setPixmap(icon);
}

} // namespace zelto
