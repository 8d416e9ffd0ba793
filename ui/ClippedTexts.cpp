#include "ui/ClippedTexts.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QScrollArea>
#include <QStyleOptionComboBox>
#include <QTableView>
#include <QWindow>

#include <algorithm>

namespace zelto {
namespace {

QString remark(const QWidget& widget, const QString& what) {
    return QStringLiteral("%1: %2").arg(widget.objectName(), what);
}

QString sizeText(const QSize& size) {
    return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

/// What widgets are made of is laid out by them; what a form holds has a name. The toolkit makes an
/// alert's own.
bool isOfTheForm(const QWidget& widget) {
    if (qobject_cast<const QMessageBox*>(widget.window()) != nullptr) {
        return qobject_cast<const QLabel*>(&widget) != nullptr ||
               qobject_cast<const QAbstractButton*>(&widget) != nullptr;
    }
    return !widget.objectName().isEmpty() && !widget.objectName().startsWith(QStringLiteral("qt_"));
}

/// Its parent is the view of an area.
bool isScrolled(const QWidget& widget) {
    return qobject_cast<const QScrollArea*>(widget.parentWidget()->parentWidget()) != nullptr;
}

QStringList lackOfRoom(const QWidget& widget) {
    QStringList remarks;
    const QSize needed = widget.minimumSizeHint().expandedTo({0, 0});
    if (needed.expandedTo(widget.size()) != widget.size()) {
        remarks.append(remark(widget, sizeText(widget.size()) + QStringLiteral(" instead of ") +
                                          sizeText(needed)));
    }
    if (widget.hasHeightForWidth() && widget.height() < widget.heightForWidth(widget.width())) {
        remarks.append(remark(widget, QStringLiteral("too low for its lines")));
    }
    if (!widget.parentWidget()->rect().contains(widget.geometry())) {
        remarks.append(remark(widget, QStringLiteral("beyond its parent's edge")));
    }
    return remarks;
}

QStringList elidedItem(const QComboBox& box) {
    QStyleOptionComboBox option;
    option.initFrom(&box);
    const int room =
        box.style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box)
            .width();
    const bool isElided = box.fontMetrics().horizontalAdvance(box.currentText()) > room;
    return isElided ? QStringList(remark(box, box.currentText())) : QStringList();
}

QStringList cutColumns(const QTableView& table) {
    QStringList remarks;
    const QHeaderView& header = *table.horizontalHeader();
    for (int column = 0; column < header.count(); ++column) {
        const int needed =
            std::max(header.sectionSizeHint(column),
                     static_cast<const QAbstractItemView&>(table).sizeHintForColumn(column));
        if (header.sectionSize(column) < needed) {
            remarks.append(remark(table, QStringLiteral("column %1").arg(column)));
        }
    }
    if (header.length() > table.viewport()->width()) {
        remarks.append(remark(table, QStringLiteral("wider than its view")));
    }
    return remarks;
}

} // namespace

void settle(QWidget& window) {
    // What is asked for in one round may come back in the next.
    constexpr int QuietRounds = 2;
    QSize before;
    for (int quiet = 0; quiet < QuietRounds;) {
        before = window.size();
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        quiet = window.size() == before ? quiet + 1 : 0;
    }
}

QStringList clippedTexts(const QWidget& window) {
    QStringList remarks;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(&window) || !isOfTheForm(*widget) || isScrolled(*widget)) {
            continue;
        }
        remarks += lackOfRoom(*widget);
        if (const auto* const box = qobject_cast<const QComboBox*>(widget)) {
            remarks += elidedItem(*box);
        }
        if (const auto* const table = qobject_cast<const QTableView*>(widget)) {
            remarks += cutColumns(*table);
        }
    }
    return remarks;
}

} // namespace zelto
