#include "ui/RadioMatrix.h"

#include "ui/AccessibleViews.h"

#include <QButtonGroup>
#include <QChildEvent>
#include <QRadioButton>

namespace zelto {

RadioMatrix::RadioMatrix(QWidget* parent) : QWidget(parent) {
    installAccessibleViews();
    connect(m_cells, &QButtonGroup::idClicked, this, &RadioMatrix::cellActivated);
}

int RadioMatrix::selectedTag() const {
    return cells().checkedId();
}

void RadioMatrix::selectCellWithTag(int tag) {
    if (QAbstractButton* cell = cells().button(tag)) {
        cell->setChecked(true);
    }
}

// A form adds a button first and gives it its tag later, but before the button is polished; and
// only a button that has been polished can be clicked.
void RadioMatrix::childEvent(QChildEvent* event) {
    if (event->polished()) {
        (void)cells();
    }
    QWidget::childEvent(event);
}

QButtonGroup& RadioMatrix::cells() const {
    for (QRadioButton* button : findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly)) {
        const QVariant tag = button->property("tag");
        if (tag.isValid() && button->group() == nullptr) {
            m_cells->addButton(button, tag.toInt());
        }
    }
    return *m_cells;
}

} // namespace zelto
