#include "ui/AreaTableView.h"

#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>

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
        horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        connect(model, &QAbstractItemModel::modelReset, this, [this] {
            followContents();
            updateGeometry();
        });
        followContents();
    }
}

int AreaTableView::contentWidth(int column) const {
    return std::max(horizontalHeader()->sectionSizeHint(column), sizeHintForColumn(column));
}

int AreaTableView::contentWidth() const {
    int width = 0;
    for (int column = 0; column < horizontalHeader()->count(); ++column) {
        width += contentWidth(column);
    }
    return width;
}

void AreaTableView::followContents() {
    const int columns = horizontalHeader()->count();
    const int left = std::max(0, viewport()->width() - contentWidth());
    for (int column = 0; column < columns; ++column) {
        const int share = left * (column + 1) / columns - left * column / columns;
        setColumnWidth(column, contentWidth(column) + share);
    }
}

QSize AreaTableView::sizeHint() const {
    ensurePolished();
    const int rows = verticalHeader()->defaultSectionSize() * UsualRows;
    const int frame = 2 * frameWidth();
    const bool scrolls = model() != nullptr && model()->rowCount() > UsualRows;
    const int bar = scrolls ? verticalScrollBar()->sizeHint().width() : 0;
    return {std::max(fontMetrics().averageCharWidth() * WidthInCharacters, contentWidth() + bar) +
                frame,
            horizontalHeader()->sizeHint().height() + rows + frame};
}

void AreaTableView::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        followFont();
    }
}

void AreaTableView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    followContents();
}

void AreaTableView::followFont() {
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
    updateGeometry();
}

} // namespace zelto
