#pragma once

#include <QString>

#include <vector>

namespace zelto::test {

/// Texts that people paste and that no field expects.
inline std::vector<QString> strangeTexts() {
    return {
        QStringLiteral(" "),
        QStringLiteral("\t1"),
        QStringLiteral("-1"),
        QStringLiteral("+1"),
        QStringLiteral("1.5"),
        QStringLiteral("1 "),
        QStringLiteral("0x10"),
        QStringLiteral("1e3"),
        QString(QChar(u'\0')),
        QStringLiteral("1") + QChar(u'\0') + QStringLiteral("2"),
        QStringLiteral("\u0661\u0662"), // Arabic-Indic digits
        QStringLiteral("\uFF11\uFF12"), // fullwidth digits
        QStringLiteral("\u00B2"),       // superscript two
        QStringLiteral("\u05D0\u05D1"), // right-to-left
        QStringLiteral("\u202E12"),     // right-to-left override
        QStringLiteral("\U0001F511"),   // an emoji, two text units
        QString(QChar(0xD83D)),         // half of one
        QStringLiteral("e\u0301"),      // a combining accent
        QString(100000, QChar(0x00E9)),
    };
}

} // namespace zelto::test
