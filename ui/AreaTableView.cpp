#include "ui/AreaTableView.h"

#include <QEvent>
#include <QHeaderView>

namespace zelto {
namespace {

constexpr int UsualRows = 4;
constexpr int WidthInCharacters = 36;

} // namespace

AreaTableView::AreaTableView(QWidget* parent) : QTableView(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionsClickable(false);
    followFont();
}

void AreaTableView::setModel(QAbstractItemModel* model) {
    QTableView::setModel(model);
    if (model != nullptr) {
        horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    }
}

QSize AreaTableView::sizeHint() const {
    const int rows = verticalHeader()->defaultSectionSize() * UsualRows;
    const int frame = 2 * frameWidth();
    return {fontMetrics().averageCharWidth() * WidthInCharacters + frame,
            horizontalHeader()->sizeHint().height() + rows + frame};
}

void AreaTableView::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        followFont();
    }
}

void AreaTableView::followFont() {
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
    updateGeometry();
}

} // namespace zelto
