#include "tests/ui/FilledForms.h"

#include "ui/AreaBar.h"
#include "ui/AreaTableModel.h"
#include "ui/AreaTableView.h"
#include "ui/DeviceRule.h"
#include "ui/SecretField.h"
#include "ui/StrengthHint.h"
#include "ui/Strings.h"

#include <QComboBox>
#include <QPlainTextEdit>

#include <algorithm>
#include <cstdint>
#include <map>
#include <vector>

namespace zelto::test {
namespace {

using Keys = std::vector<const char*>;

constexpr std::uint64_t TwoTerabytes = std::uint64_t{2} * 1024 * 1024;

/// What the labels hold, by the labels' names.
const std::map<QString, Keys>& shownIn() {
    static const std::map<QString, Keys> keys{
        {QStringLiteral("AuthenticateMessage"),
         {"IDS_ENTER_1ST_PASSWORD", "IDS_ENTER_2ND_PASSWORD"}},
        {QStringLiteral("AuthenticateDeviceTimeText"), {"IDS_ERR_TIME_STATUS_INVALID"}},
        {QStringLiteral("DeviceTimeText"), {"IDS_ERR_TIME_STATUS_INVALID"}},
        {QStringLiteral("AuthenticateRemainingTimeText"), {"IDS_EXPIRED"}},
        {QStringLiteral("AuthenticateObstacle"),
         {"IDS_HINT_PASSWORD_SIGNS", "IDS_HINT_PASSWORD_TOO_LONG"}},
        {QStringLiteral("SelectZeltoNoDrive"), {"IDS_ERR_NOT_FOUND_ZELTO"}},
        {QStringLiteral("SelectZeltoAccessHint"),
         {"IDS_HINT_RULE_MISSING", "IDS_HINT_OTHER_SESSION", "IDS_HINT_DRIVE_IN_USE"}},
        {QStringLiteral("ZeltoSettingText"), {"IDS_NOW_SETTING", "IDS_SETTING_COMPLETE"}},
        {QStringLiteral("LeftCapacityText"), {"IDS_CAPACITY_OVER"}},
        {QStringLiteral("AreaSettingsCue"), {"IDS_HINT_SECURE_CHOICE_DROPPED"}},
        {QStringLiteral("AreaSettingsObstacle"), {"IDS_HINT_AREA_DIGITS", "IDS_HINT_AREA_DISK1"}},
        {QStringLiteral("MainSettingsClockCue"), {"IDS_HINT_SET_CLOCK_CLOSES"}},
        {QStringLiteral("MainSettingsAreasCue"),
         {"IDS_HINT_SETUP_OPEN", "IDS_HINT_SETUP_RETRY", "IDS_HINT_SETUP_ERASES"}},
        {QStringLiteral("MainSettingsPeriodsCue"), {"IDS_HINT_PERIOD_ZERO"}},
        {QStringLiteral("MainSettingsCommitCue"), {"IDS_HINT_CLOSES", "IDS_HINT_SETUP_ERASES"}},
        {QStringLiteral("MainSettingsObstacle"),
         {"IDS_HINT_NEXT_AREAS", "IDS_HINT_NEXT_PASSWORDS", "IDS_HINT_NOTHING_CHANGED",
          "IDS_HINT_AUTO_CLEAR_DAYS", "IDS_HINT_AUTO_CLEAR_MINUTES",
          "IDS_HINT_AUTO_LOG_OFF_MINUTES"}},
        {QStringLiteral("PS_TrialsCue"), {"IDS_HINT_TRIALS_ERASE"}},
        {QStringLiteral("PC_TrialsCue"), {"IDS_HINT_TRIALS_ERASE"}},
        {QStringLiteral("PS_Obstacle"),
         {"IDS_HINT_FIRST_MISSING", "IDS_HINT_FIRST_AGAIN", "IDS_HINT_FIRST_DIFFERS",
          "IDS_HINT_SECOND_MISSING", "IDS_HINT_SECOND_AGAIN", "IDS_HINT_SECOND_DIFFERS",
          "IDS_HINT_PASSWORD_SIGNS", "IDS_HINT_PASSWORD_TOO_LONG", "IDS_HINT_TRIALS"}},
        {QStringLiteral("PC_Obstacle"),
         {"IDS_HINT_CURRENT_FIRST_MISSING", "IDS_HINT_CURRENT_SECOND_MISSING",
          "IDS_HINT_FIRST_DIFFERS", "IDS_HINT_SECOND_DIFFERS", "IDS_HINT_PASSWORD_SIGNS"}},
        {QStringLiteral("EncryptionKeyObstacle"),
         {"IDS_HINT_KEY_MISSING", "IDS_HINT_KEY_DIGITS", "IDS_HINT_KEY_ODD"}},
    };
    return keys;
}

void keepLonger(QLabel& label, const QString& text) {
    if (text.size() > label.text().size()) {
        label.setText(text);
    }
}

const Keys& keysOf(const QLabel& label) {
    static const Keys none;
    const auto keys = shownIn().find(label.objectName());
    return keys == shownIn().end() ? none : keys->second;
}

void fillLabels(Window& form) {
    for (QLabel* label : form.findChildren<QLabel*>()) {
        for (const char* key : keysOf(*label)) {
            keepLonger(*label, localized(key));
            label->show();
        }
        if (label->objectName().endsWith(QStringLiteral("TimeText"))) {
            keepLonger(*label, QStringLiteral("2026/10/28 20:48:58"));
        }
    }
    const auto fillOne = [&form](const char* name, const QString& text) {
        if (auto* const label = form.findChild<QLabel*>(QLatin1String(name))) {
            keepLonger(*label, text);
        }
    };
    fillOne("TotalCapacityText", localized("IDS_TOTAL_CAPACITY", TwoTerabytes));
    fillOne("FreeCapacityText", localized("IDS_FREE_CAPACITY", TwoTerabytes));
    fillOne("LeftCapacityText", localized("IDS_FREE_CAPACITY", TwoTerabytes));
    fillOne("AuthenticateRemainingTimeText",
            QStringLiteral("9999 %1 23 %2 59 %3")
                .arg(localized("IDS_DAYS"), localized("IDS_HOURS"), localized("IDS_MIN")));
    fillOne("EncryptionKeyObstacle", localized("IDS_HINT_KEY_TOO_LONG", 256));
    fillOne("SelectZeltoSign",
            localized("IDS_DRIVE_SERIAL_AND_PORT", QString(40, u'W'), QStringLiteral("1-1.4.3.2")));
    for (StrengthHint* hint : form.findChildren<StrengthHint*>()) {
        hint->setStrength(StrengthHint::Strongest);
    }
}

void fillAreas(Window& form) {
    for (AreaBar* bar : form.findChildren<AreaBar*>()) {
        bar->setSegments({{QStringLiteral("Disk1"), 500, AreaBar::Kind::Normal},
                          {QStringLiteral("Disk2"), TwoTerabytes - 8000, AreaBar::Kind::Secure},
                          {QStringLiteral("Disk3"), 7000, AreaBar::Kind::Normal},
                          {QStringLiteral("Disk4"), 20, AreaBar::Kind::Tool},
                          {localized("IDS_FREE_AREA"), 480, AreaBar::Kind::Free}});
    }
    if (auto* const table = form.findChild<AreaTableView*>()) {
        const auto cell = [](const QString& column, int row) {
            if (column == QStringLiteral("ColumnIDDisk")) {
                return row == 0 ? localized("IDS_ALL_SECTORS") : QStringLiteral("Disk%1").arg(row);
            }
            return column == QStringLiteral("ColumnIDType")
                       ? localized("IDS_SECURE_AREA")
                       : QStringLiteral("%1MB").arg(TwoTerabytes);
        };
        auto* const model =
            new AreaTableModel({.rowCount = [] { return 4; }, .objectValue = cell}, table);
        table->setModel(model);
        model->reloadData();
    }
}

} // namespace

void fill(Window& form) {
    fillLabels(form);
    fillAreas(form);
    for (QComboBox* box : form.findChildren<QComboBox*>()) {
        box->addItem(QStringLiteral("Device 0"));
    }
    for (SecretField* field : form.findChildren<SecretField*>()) {
        field->setSecret(QStringLiteral("0A1"));
    }
    if (auto* const command = form.findChild<QPlainTextEdit*>()) {
        command->setPlainText(deviceRuleCommand());
    }
}

int textsInTurn(const Window& form) {
    std::size_t most = 1;
    for (const QLabel* label : form.findChildren<QLabel*>()) {
        most = std::max(most, keysOf(*label).size());
    }
    return static_cast<int>(most);
}

void showText(Window& form, int turn) {
    for (StrengthHint* hint : form.findChildren<StrengthHint*>()) {
        hint->setStrength(1 + turn % StrengthHint::Strongest);
    }
    for (QLabel* label : form.findChildren<QLabel*>()) {
        if (const Keys& keys = keysOf(*label); !keys.empty()) {
            label->setText(localized(keys[static_cast<std::size_t>(turn) % keys.size()]));
        }
    }
}

} // namespace zelto::test
