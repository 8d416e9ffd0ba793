#include "session/ForeignText.h"

#include <QStringList>

#include <algorithm>

namespace zelto {
namespace {

constexpr QChar Ellipsis = u'\u2026';
constexpr std::size_t LongestName = 40;
constexpr std::size_t MostNames = 8;

bool isSeen(char32_t character) {
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Other_PrivateUse:
    case QChar::Other_NotAssigned:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return true;
    }
}

QString numberOf(char32_t character) {
    const QString digits = QString::number(static_cast<uint>(character), 16).toUpper();
    return QStringLiteral("[U+%1]").arg(digits.rightJustified(4, u'0'));
}

} // namespace

QString foreignText(std::string_view text, std::size_t longest) {
    // No character has more than four bytes, so this many are enough to fill the limit and to tell
    // whether there are more.
    const std::string_view head = text.substr(0, 4 * (longest + 1));
    const QString decoded = QString::fromUtf8(head.data(), static_cast<qsizetype>(head.size()));
    QString shown;
    std::size_t count = 0;
    for (const char32_t character : decoded.toUcs4()) {
        if (count++ == longest) {
            return shown + Ellipsis;
        }
        shown += isSeen(character) ? QString::fromUcs4(&character, 1) : numberOf(character);
    }
    return shown;
}

QString foreignNames(const std::vector<std::string>& names, const QString& separator) {
    QStringList shown;
    for (std::size_t index = 0; index < std::min(names.size(), MostNames); ++index) {
        shown += foreignText(names[index], LongestName);
    }
    if (names.size() > MostNames) {
        shown += Ellipsis;
    }
    return shown.join(separator);
}

} // namespace zelto
