#include "tests/support/AlertWeights.h"

#include "tests/support/QtPrinting.h"
#include "ui/Strings.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace zelto::test {
namespace {

constexpr std::array Rows{
    WeighedText{"IDS_SET_CURRENT_YIME", AlertWeight::Information},
    WeighedText{"IDS_TIME_SYNC_COMPLETE", AlertWeight::Information},
    WeighedText{"IDS_ERR_NOT_FOUND_ZELTO", AlertWeight::Warning},
    WeighedText{"IDS_FULLLOCK_TIME_STATUS_INVALID", AlertWeight::Warning},
    WeighedText{"IDS_ERR_AUTHENTICATE_FAILED", AlertWeight::Warning},
    WeighedText{"IDS_ERR_UNMOUNT", AlertWeight::Warning},
    WeighedText{"IDS_COMMAND_FAIL_WITH_SENSE_INFO", AlertWeight::Warning},
    WeighedText{"IDS_COMMAND_FAIL", AlertWeight::Warning},
    WeighedText{"IDS_ERR_FORMAT", AlertWeight::Warning},
    WeighedText{"IDS_ERR_FILE_COPY", AlertWeight::Warning},
    WeighedText{"IDS_ERR_SPINUP", AlertWeight::Warning},
    WeighedText{"IDS_ERR_ENCRYPTION_MANUAL_KEY_NOT_SETUP", AlertWeight::Warning},
    WeighedText{"IDS_ERR_CURRENT_1ST_PASSWORD_INVALID", AlertWeight::Warning},
    WeighedText{"IDS_ERR_CURRENT_2ND_PASSWORD_INVALID", AlertWeight::Warning},
    WeighedText{"IDS_ERR_ZELTO_NOT_UNLOCKING", AlertWeight::Warning},
    WeighedText{"IDS_HINT_SETUP_TABLE_FULL", AlertWeight::Warning},
    WeighedText{"IDS_HINT_NO_MANUAL", AlertWeight::Warning},
    WeighedText{"IDS_CLEAR_ALL_CONFIRM", AlertWeight::Warning},
    WeighedText{"IDS_ERASE_ENCRYPTION_KEY_CONFIRM", AlertWeight::Warning},
    WeighedText{"IDS_ERR_ZELTO_DRIVE_LOST", AlertWeight::Critical},
};

/// Texts with blanks to fill are told by what stands before the first.
bool says(const AlertPanel& panel, const char* key) {
    return panel.message.startsWith(localized(key).section(u'%', 0, 0));
}

} // namespace

std::span<const WeighedText> alertTexts() {
    return Rows;
}

AlertPanel panelOf(const WeighedText& text) {
    const QLatin1String key(text.key);
    QString message = localized(text.key);
    QStringList blanks{QStringLiteral("3"), QStringLiteral("17"), QStringLiteral("0")};
    if (key == QLatin1String("IDS_ERR_FILE_COPY")) {
        blanks = {QStringLiteral("/usr/bin/zelto"), QStringLiteral("/media/user/ZELTO TOOL/zelto")};
    } else if (key == QLatin1String("IDS_FULLLOCK_TIME_STATUS_INVALID")) {
        blanks = {QStringLiteral("2026/10/28 20:48:58")};
    }
    for (const QString& blank : blanks) {
        message = message.contains(u'%') ? message.arg(blank) : message;
    }
    QString detail;
    if (key.startsWith(QLatin1String("IDS_COMMAND_FAIL"))) {
        detail = localized("IDS_HINT_VERSION", QStringLiteral("1.0.0"));
    } else if (key == QLatin1String("IDS_ERR_UNMOUNT")) {
        detail = localized("IDS_HINT_BUSY_PROGRAMS", QStringLiteral("gedit"));
    }
    const bool asks = key.endsWith(QLatin1String("CONFIRM")) ||
                      key == QLatin1String("IDS_FULLLOCK_TIME_STATUS_INVALID");
    return {.weight = text.weight,
            .title = localized("IDS_APP_TITLE"),
            .message = message,
            .detail = detail,
            .defaultButton = localized(asks ? "IDS_CANCEL_BUTTON" : "OK"),
            .alternateButton = asks ? localized("OK") : QString()};
}

void expectWeightOfWords(const AlertPanel& panel) {
    const auto row =
        std::ranges::find_if(Rows, [&](const WeighedText& each) { return says(panel, each.key); });
    ASSERT_NE(row, Rows.end()) << panel.message.toStdString();
    EXPECT_EQ(panel.weight, row->weight) << row->key;
}

} // namespace zelto::test
