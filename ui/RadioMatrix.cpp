#include "ui/RadioMatrix.h"

#include <QChildEvent>
#include <QRadioButton>

namespace zelto {
namespace {

constexpr auto TagProperty = "tag";

} // namespace

int RadioMatrix::selectedTag() const {
    for (const QRadioButton* cell : cells()) {
        if (cell->isChecked()) {
            return cell->property(TagProperty).toInt();
        }
    }
    return -1;
}

void RadioMatrix::selectCellWithTag(int tag) {
    for (QRadioButton* cell : cells()) {
        if (cell->property(TagProperty).toInt() == tag) {
            cell->setChecked(true);
        }
    }
}

// A child that is being added is not yet the class it will be, so its signals can't be connected
// here. It becomes a cell when the form gives it its tag.
void RadioMatrix::childEvent(QChildEvent* event) {
    if (event->added()) {
        event->child()->installEventFilter(this);
    }
    QWidget::childEvent(event);
}

bool RadioMatrix::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::DynamicPropertyChange) {
        if (auto* cell = qobject_cast<QRadioButton*>(watched)) {
            cell->removeEventFilter(this);
            connect(cell, &QRadioButton::clicked, this,
                    [this, cell] { Q_EMIT cellActivated(cell->property(TagProperty).toInt()); });
        }
    }
    return QWidget::eventFilter(watched, event);
}

QList<QRadioButton*> RadioMatrix::cells() const {
    QList<QRadioButton*> tagged;
    for (QRadioButton* cell : findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly)) {
        if (cell->property(TagProperty).isValid()) {
            tagged.append(cell);
        }
    }
    return tagged;
}

} // namespace zelto
