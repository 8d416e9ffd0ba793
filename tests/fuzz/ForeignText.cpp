// Names from outside in a window, a line each: bounded, and nothing in them that steers the
// display.

#include "session/ForeignText.h"
#include "tests/fuzz/Target.h"

#include <QList>

#include <algorithm>
#include <string>
#include <vector>

namespace zelto::test {
namespace {

constexpr std::size_t Longest = 40;
/// The longest that stands for one character: "[U+10FFFF]".
constexpr qsizetype LongestNumber = 10;
constexpr qsizetype LongestName = qsizetype{Longest} * LongestNumber + 1;

void checkIsSeen(const QString& shown, qsizetype longest) {
    require(shown.size() <= longest, "its length is bounded");
    for (const uint character : shown.toUcs4()) {
        const auto category = QChar::category(character);
        require(category != QChar::Other_Control && category != QChar::Other_Format &&
                    category != QChar::Separator_Line && category != QChar::Separator_Paragraph,
                "every character is seen");
    }
}

} // namespace
} // namespace zelto::test

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zelto::test;
    std::string_view text = Input(data, size).restAsText();
    checkIsSeen(zelto::foreignText(text, Longest), LongestName);
    std::vector<std::string> names;
    while (!text.empty()) {
        names.emplace_back(text.substr(0, text.find('\n')));
        text.remove_prefix(std::min(names.back().size() + 1, text.size()));
    }
    constexpr qsizetype MostNames = 8;
    const QString separator = QStringLiteral(", ");
    checkIsSeen(zelto::foreignNames(names, separator),
                (MostNames + 1) * (LongestName + separator.size()));
    return 0;
}
