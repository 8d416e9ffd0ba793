#pragma once

#include "settings/SettingsModel.h"

#include <QString>
#include <QStringView>

namespace zelto {

/// Identifiers of the area table's columns.
namespace AreaColumn {
inline constexpr QStringView Disk = u"ColumnIDDisk";
inline constexpr QStringView Type = u"ColumnIDType";
inline constexpr QStringView Capacity = u"ColumnIDCapacity";
} // namespace AreaColumn

/// Looks a key up in the table of texts.
using Localize = QString (*)(const char* key);

/// The text of a cell of the area table. Empty for a row that is not there, for one of capacity 0
/// and for a column of another name.
[[nodiscard]] QString areaCellText(const _tagAreaInfosViewData& rows, QStringView column, int row,
                                   Localize localize);

} // namespace zelto
