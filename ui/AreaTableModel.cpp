#include "ui/AreaTableModel.h"

#include "ui/Strings.h"

#include <algorithm>
#include <array>
#include <utility>

namespace zelto {
namespace {

struct Column {
    const char* identifier;
    const char* title;
    Qt::Alignment alignment;
};

constexpr std::array<Column, 3> Columns{{
    {"ColumnIDDisk", "IDS_TABLE_AREA", Qt::AlignLeading},
    {"ColumnIDType", "IDS_TABLE_KIND", Qt::AlignLeading},
    {"ColumnIDCapacity", "IDS_TABLE_CAPACITY", Qt::AlignTrailing},
}};

const Column& columnAt(int section) {
    return Columns[static_cast<std::size_t>(section)];
}

bool isColumn(int section) {
    return section >= 0 && section < static_cast<int>(Columns.size());
}

} // namespace

AreaTableModel::AreaTableModel(Source source, QObject* parent)
    : QAbstractTableModel(parent), m_source(std::move(source)) {}

void AreaTableModel::reloadData() {
    beginResetModel();
    m_rows = std::max(0, m_source.rowCount());
    endResetModel();
}

int AreaTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows;
}

int AreaTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(Columns.size());
}

QVariant AreaTableModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const Column& column = columnAt(index.column());
    if (role == Qt::DisplayRole) {
        return m_source.objectValue(QString::fromLatin1(column.identifier), index.row());
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(column.alignment | Qt::AlignVCenter);
    }
    return {};
}

QVariant AreaTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || !isColumn(section)) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        return localized(columnAt(section).title);
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(columnAt(section).alignment | Qt::AlignVCenter);
    }
    return {};
}

} // namespace zelto
