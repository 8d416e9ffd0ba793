#pragma once

#include <QAbstractTableModel>
#include <QString>

#include <functional>

namespace zelto {

/// The area table's cells, asked for one at a time. The columns are known by their identifiers
/// "ColumnIDDisk", "ColumnIDType" and "ColumnIDCapacity", in this order.
class AreaTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    struct Source {
        std::function<int()> rowCount;
        std::function<QString(const QString& columnIdentifier, int row)> objectValue;
    };

    explicit AreaTableModel(Source source, QObject* parent = nullptr);

    /// Asks for the number of rows and, as they are shown, for all cells anew.
    void reloadData();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    Source m_source;
    /// As of the last reload: views may ask at any time and must not see the count change
    /// without having been told.
    int m_rows = 0;
};

} // namespace zelto
