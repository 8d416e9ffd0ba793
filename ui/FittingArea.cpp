#include "ui/FittingArea.h"

#include <QApplication>
#include <QEvent>
#include <QScrollBar>

#include <algorithm>

namespace zelto {
namespace {

QBoxLayout::Direction turned(QBoxLayout::Direction direction) {
    return direction == QBoxLayout::TopToBottom ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom;
}

void moveFirst(QBoxLayout& from, QBoxLayout& to) {
    QLayoutItem* const item = from.takeAt(0);
    if (QLayout* const layout = item->layout()) {
        to.addLayout(layout);
    } else if (QWidget* const widget = item->widget()) {
        const Qt::Alignment alignment = item->alignment();
        // First: a widget tells only the item that it got first when it has changed.
        delete item;
        to.addWidget(widget, 0, alignment);
    } else {
        to.addItem(item);
    }
}

} // namespace

FittingArea::FittingArea(QBoxLayout& window) : QScrollArea(window.parentWidget()) {
    auto* const widget = new QWidget;
    widget->setObjectName(QStringLiteral("WindowContents"));
    m_contents = new QVBoxLayout(widget);
    m_contents->setContentsMargins({});
    m_contents->setSpacing(window.spacing());
    setWidget(widget);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    // The window's own background shows through, whatever the style paints there.
    widget->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    // The controls in it take the focus, and are brought into view by it.
    setFocusPolicy(Qt::NoFocus);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* now) { showFocused(now); });

    while (window.count() > 1) {
        moveFirst(window, *m_contents);
    }
    window.insertWidget(0, this);
    // Assistive technology reads a window's parts in this order.
    lower();
    m_columns = widget->findChild<QBoxLayout*>(QLatin1String(ColumnsName));
    if (m_columns != nullptr) {
        m_designed = m_columns->direction();
    }
}

FittingArea::~FittingArea() {
    // The focus moves on while the contents go.
    disconnect(qApp, nullptr, this, nullptr);
}

void FittingArea::setRoom(const QSize& room) {
    if (room != m_room) {
        m_room = room;
        updateGeometry();
    }
}

void FittingArea::foldInto(const QSize& room) {
    m_room = room;
    // Also where the room is as before: the contents may have changed.
    updateGeometry();
    if (m_columns == nullptr) {
        return;
    }
    const auto other = turned(m_designed);
    const Cost costOfOther = costAs(other);
    if (costOfOther < costAs(m_designed)) {
        turn(other);
    }
}

void FittingArea::turn(QBoxLayout::Direction direction) {
    m_columns->setDirection(direction);
    m_contents->activate();
}

/// Scrolling to the side costs more than any scrolling downwards.
FittingArea::Cost FittingArea::costAs(QBoxLayout::Direction direction) {
    turn(direction);
    if (wholeSize().boundedTo(m_room) == wholeSize()) {
        return {0, 0};
    }
    const int least = m_contents->totalMinimumSize().width();
    const bool scrollsToTheSide = least + scrollBarWidth() > m_room.width();
    return scrollsToTheSide ? Cost{2, least} : Cost{1, wholeSize().height()};
}

QSize FittingArea::wholeSize() const {
    return m_contents->totalSizeHint().expandedTo(m_contents->totalMinimumSize());
}

int FittingArea::scrollBarWidth() const {
    return verticalScrollBar()->sizeHint().width();
}

/// With room for the bar beside contents that scroll.
QSize FittingArea::asked(QSize size) const {
    if (wholeSize().height() > m_room.height()) {
        size.rwidth() += scrollBarWidth();
    }
    return size.boundedTo(m_room);
}

QSize FittingArea::sizeHint() const {
    return asked(wholeSize());
}

QSize FittingArea::minimumSizeHint() const {
    return asked(m_contents->totalMinimumSize());
}

int FittingArea::wholeHeight(int width) const {
    return m_contents->hasHeightForWidth() ? m_contents->totalHeightForWidth(width)
                                           : wholeSize().height();
}

int FittingArea::heightForWidth(int width) const {
    return std::min(wholeHeight(width), m_room.height());
}

/// The toolkit measures contents beside the bar that there is. Narrowed by it, a text may have one
/// line more, and the bar would stay for that line's sake.
void FittingArea::dropNeedlessBar() {
    setVerticalScrollBarPolicy(wholeHeight(width()) <= height() ? Qt::ScrollBarAlwaysOff
                                                                : Qt::ScrollBarAsNeeded);
}

void FittingArea::resizeEvent(QResizeEvent* event) {
    dropNeedlessBar();
    QScrollArea::resizeEvent(event);
}

bool FittingArea::eventFilter(QObject* watched, QEvent* event) {
    // A window that is not on the screen is laid out when it comes there.
    if (watched == widget() && event->type() == QEvent::LayoutRequest && isVisible()) {
        updateGeometry();
        dropNeedlessBar();
        // The toolkit's area follows its contents when it is asked to by name.
        QScrollArea::event(event);
    }
    return QScrollArea::eventFilter(watched, event);
}

void FittingArea::showFocused(QWidget* focused) {
    if (focused != nullptr && widget()->isAncestorOf(focused)) {
        ensureWidgetVisible(focused);
    }
}

} // namespace zelto
