#include "ui/WorkIndicator.h"

#include "ui/TypeAhead.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QTimer>

namespace zelto {
namespace {

// Most work takes less; a pointer that changes for a moment would only flicker.
constexpr int PointerDelayMilliseconds = 300;

bool isInput(QEvent::Type type) {
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletRelease:
    case QEvent::ContextMenu:
    case QEvent::Drop:
    case QEvent::DragEnter:
    case QEvent::Close:
        return true;
    default:
        return false;
    }
}

} // namespace

class BusyWindows::Filter : public QObject {
public:
    Filter() {
        qApp->installEventFilter(this);
        m_pointerDelay.setSingleShot(true);
        m_pointerDelay.callOnTimeout(this, [this] {
            QApplication::setOverrideCursor(Qt::WaitCursor);
            m_pointerShown = true;
        });
        m_pointerDelay.start(PointerDelayMilliseconds);
    }

    ~Filter() override {
        if (m_pointerShown) {
            QApplication::restoreOverrideCursor();
        }
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (!isInput(event->type())) {
            return QObject::eventFilter(watched, event);
        }
        if (event->type() == QEvent::KeyPress) {
            TypeAhead::offer(static_cast<const QKeyEvent&>(*event));
        }
        // A close that is merely swallowed counts as accepted, and the window would go.
        event->setAccepted(event->type() != QEvent::Close);
        return true;
    }

private:
    QTimer m_pointerDelay;
    bool m_pointerShown = false;
};

BusyWindows::BusyWindows() {
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr) {
        m_filter = std::make_unique<Filter>();
    }
}

BusyWindows::~BusyWindows() = default;

} // namespace zelto
