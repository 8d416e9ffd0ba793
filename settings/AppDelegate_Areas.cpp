#include "app/AppDelegate.h"
#include "settings/AreaDialogRules.h"
#include "settings/AreaPacking.h"
#include "settings/AreaTexts.h"
#include "ui/AreaBar.h"
#include "ui/AreaTableModel.h"
#include "ui/Description.h"
#include "ui/Strings.h"

#include <algorithm>

namespace zelto {
namespace {

QString localizedKey(const char* key) {
    return localized(key);
}

AreaBar::Kind barKind(const _tagAreaInfoViewData& area) {
    if (area.capacity == AreaInfoEntry::AllSectors) {
        return AreaBar::Kind::Free;
    }
    return area.type == AreaInfoEntry::SecureArea ? AreaBar::Kind::Secure : AreaBar::Kind::Normal;
}

/// The areas as the table shows them, and what is free. The tool area of a drive that was set up is
/// its last one.
std::vector<AreaBar::Segment> barOfView(const AreaView& view, bool hasToolArea) {
    std::vector<AreaBar::Segment> segments;
    for (int row = 0; row < view.rows.areaCount; ++row) {
        const auto& area = view.rows.areaData[static_cast<std::size_t>(row)];
        const AreaBar::Kind kind = barKind(area);
        if (kind != AreaBar::Kind::Free) {
            segments.push_back({areaCellText(view.rows, AreaColumn::Disk, row, localizedKey),
                                area.capacity, kind});
        }
    }
    if (hasToolArea && segments.size() > 1 &&
        segments.back().mebibytes == mebibytesOfSectors(AreaUnits::ToolAreaSectors)) {
        segments.back().kind = AreaBar::Kind::Tool;
    }
    segments.push_back(
        {localized("IDS_FREE_AREA"), mebibytesOfSectors(view.freeSectors), AreaBar::Kind::Free});
    return segments;
}

} // namespace

int AppDelegate::numberOfRowsInTableView() const {
    return Settings.AreaInfosViewData.areaCount;
}

QString AppDelegate::tableViewObjectValue(const QString& column, int row) const {
    return areaCellText(Settings.AreaInfosViewData, column, row, localizedKey);
}

void AppDelegate::reloadAreaTable(const AreaView& view) {
    // First, as the table's model comes with the window.
    MainSettingsWindow->AreaBarView->setSegments(barOfView(view, !Settings.InitialSetting));
    m_areaTable->reloadData();
}

void AppDelegate::MainSettingsAreaSettingsAction() {
    auto& form = *AreaSettingsWindow;
    TextInputMode = TextInputModes::AreaSettings;
    form.AreaSettingsOKButton->setEnabled(false);
    const auto fields = diskCapacityFields();
    for (std::size_t disk = 0; disk < fields.size(); ++disk) {
        fields[disk]->setText(QString::number(Settings.AreaSettingsDiskCapacity[disk]));
    }
    // Only the first disk's choice is brought back.
    constexpr std::uint8_t InUseAndSecure = AreaInfoEntry::InUse | AreaInfoEntry::Secure;
    const std::uint8_t flags = Settings.AreaInfos.entry(0).flags;
    form.Disk1SecureCheckBox->setChecked((flags & InUseAndSecure) == InUseAndSecure);
    form.Disk2SecureCheckBox->setChecked(false);
    form.Disk3SecureCheckBox->setChecked(false);
    form.AreaSettingsCue->setText(
        Changed.AreaSettingsPerformed ? localized("IDS_HINT_SECURE_CHOICE_DROPPED") : QString());
    form.AreaSettingsCue->setVisible(Changed.AreaSettingsPerformed);
    for (QWidget* const choice :
         {form.Disk1SecureCheckBox, form.Disk2SecureCheckBox, form.Disk3SecureCheckBox}) {
        describe(*choice, *form.AreaSettingsCue, form.AreaSettingsCue->text());
    }
    UpdateAreaSettingsWindow();

    if (form.runModal(&*MainSettingsWindow) == Window::ModalOK) {
        Changed.AreaSettingsPerformed = true;
        Settings.AreasWereSent = false;
        rebuildUserAreas(Settings.AreaInfos, {.mebibytes = Settings.AreaSettingsDiskCapacity,
                                              .secure = chosenSecureDisks()});
        DisplayMainSettingsWindow(true);
    }
    TextInputMode = TextInputModes::MainSettings;
    form.orderOut();
}

void AppDelegate::AreaSettingsTextDidChange() {
    UpdateAreaSettingsWindow();
}

void AppDelegate::UpdateAreaSettingsWindow() {
    auto& form = *AreaSettingsWindow;
    const auto fields = diskCapacityFields();
    const std::array<QString, 3> texts{fields[0]->text(), fields[1]->text(), fields[2]->text()};
    const AreaDialogVerdict verdict = judgeAreaDialog(texts, Settings.TotalSectorCount);
    // Kept even when they are refused: a dialog that is opened again shows what was typed.
    Settings.AreaSettingsDiskCapacity = verdict.mebibytes;
    const QString left =
        verdict.leftMebibytes < 0
            ? localized("IDS_CAPACITY_OVER")
            : localized("IDS_FREE_CAPACITY", static_cast<std::uint32_t>(verdict.leftMebibytes));
    showValue(*form.LeftCapacityText, left);
    sayBesideFocus(*form.LeftCapacityText, left);
    form.AreaSettingsOKButton->setEnabled(verdict.isComplete);
    // Of areas that are too large the line above has told already.
    const Obstacle obstacle = areaObstacle(texts, verdict);
    showObstacle(*form.AreaSettingsObstacle,
                 obstacle == Obstacle{"IDS_CAPACITY_OVER"} ? Obstacle{} : obstacle);
    showAreaSettingsBar();
}

void AppDelegate::showAreaSettingsBar() {
    const std::uint64_t total = mebibytesOfSectors(Settings.TotalSectorCount);
    const std::int64_t left =
        leftMebibytes(Settings.TotalSectorCount, Settings.AreaSettingsDiskCapacity);
    const auto secure = chosenSecureDisks();
    std::vector<AreaBar::Segment> segments;
    for (std::size_t disk = 0; disk < secure.size(); ++disk) {
        // Any size can be typed; a share of more than four drives would look no different.
        const std::uint64_t drawn =
            std::min(Settings.AreaSettingsDiskCapacity[disk], 4 * (total + 1));
        segments.push_back({QStringLiteral("Disk") + QString::number(disk + 1), drawn,
                            secure[disk] ? AreaBar::Kind::Secure : AreaBar::Kind::Normal});
    }
    if (left > 0) {
        segments.push_back(
            {localized("IDS_FREE_AREA"), static_cast<std::uint64_t>(left), AreaBar::Kind::Free});
    }
    AreaSettingsWindow->AreaSettingsBarView->setSegments(
        std::move(segments), left < 0 ? AreaBar::Fit::TooLarge : AreaBar::Fit::Fits);
}

void AppDelegate::AreaSettingsDisk1SecureCheckBoxAction() {
    keepOneSecureDisk(0);
}

void AppDelegate::AreaSettingsDisk2SecureCheckBoxAction() {
    keepOneSecureDisk(1);
}

void AppDelegate::AreaSettingsDisk3SecureCheckBoxAction() {
    keepOneSecureDisk(2);
}

void AppDelegate::keepOneSecureDisk(std::size_t chosen) {
    const auto boxes = diskSecureBoxes();
    if (boxes[chosen]->isChecked()) {
        for (QCheckBox* box : boxes) {
            box->setChecked(box == boxes[chosen]);
        }
    }
    showAreaSettingsBar();
}

void AppDelegate::AreaSettingsOKAction() {
    AreaSettingsWindow->stopModal(Window::ModalOK);
}

void AppDelegate::AreaSettingsCancelAction() {
    AreaSettingsWindow->stopModal(Window::ModalCancel);
}

std::array<QLineEdit*, 3> AppDelegate::diskCapacityFields() const {
    const auto& form = *AreaSettingsWindow;
    return {form.Disk1CapacityText, form.Disk2CapacityText, form.Disk3CapacityText};
}

std::array<QCheckBox*, 3> AppDelegate::diskSecureBoxes() const {
    const auto& form = *AreaSettingsWindow;
    return {form.Disk1SecureCheckBox, form.Disk2SecureCheckBox, form.Disk3SecureCheckBox};
}

std::array<bool, 3> AppDelegate::chosenSecureDisks() const {
    const auto boxes = diskSecureBoxes();
    return {boxes[0]->isChecked(), boxes[1]->isChecked(), boxes[2]->isChecked()};
}

} // namespace zelto
