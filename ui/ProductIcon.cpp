#include "ui/ProductIcon.h"

#include "ui/Resources.h"
#include "ui/Strings.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFontMetrics>
#include <QIcon>

namespace zelto {
namespace {

QIcon decodeIcon() {
    initResources();
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256, 512}) {
        icon.addFile(QStringLiteral(":/zelto/icons/zelto-%1.png").arg(size), {size, size});
    }
    return icon;
}

} // namespace

ProductIcon::ProductIcon(QWidget* parent) : QLabel(parent) {
    setAccessibleName(localized("IDS_APP_TITLE"));
    render();
}

QIcon ProductIcon::icon() {
    // Every window asks for it, and decoding it once takes longer than building all of them.
    static QIcon decoded;
    if (decoded.isNull()) {
        decoded = decodeIcon();
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
    setPixmap(icon().pixmap({side, side}, devicePixelRatioF()));
}

} // namespace zelto
