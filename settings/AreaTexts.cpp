#include "settings/AreaTexts.h"

#include "device/AreaInfo.h"

namespace zelto {
namespace {

QString typeText(const _tagAreaInfoViewData& area, Localize localize) {
    if (area.capacity == AreaInfoEntry::AllSectors) {
        return localize("IDS_FREE_AREA");
    }
    if (area.type == AreaInfoEntry::SecureArea) {
        return localize("IDS_SECURE_AREA");
    }
    if (area.type != AreaInfoEntry::NormalArea) {
        return QString::asprintf("%02Xh", static_cast<unsigned>(area.type));
    }
    return localize("IDS_NORMAL_AREA");
}

QString capacityText(const _tagAreaInfoViewData& area, Localize localize) {
    if (area.capacity == AreaInfoEntry::AllSectors) {
        return localize("IDS_ALL_SECTORS");
    }
    return QString::number(area.capacity) + QStringLiteral("MB");
}

} // namespace

QString areaCellText(const _tagAreaInfosViewData& rows, QStringView column, int row,
                     Localize localize) {
    if (row < 0 || row >= rows.areaCount || row >= _tagAreaInfosViewData::Capacity) {
        return {};
    }
    const _tagAreaInfoViewData& area = rows.areaData[static_cast<std::size_t>(row)];
    if (area.capacity == 0) {
        return {};
    }
    if (column == AreaColumn::Disk) {
        return QStringLiteral("Disk") + QString::number(row + 1);
    }
    if (column == AreaColumn::Type) {
        return typeText(area, localize);
    }
    if (column == AreaColumn::Capacity) {
        return capacityText(area, localize);
    }
    return {};
}

} // namespace zelto
