// Names from outside in a window: bounded, and nothing in them that steers the display.

#include "session/ForeignText.h"
#include "tests/fuzz/Target.h"

#include <QList>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using zelto::test::require;
    constexpr std::size_t Longest = 40;
    // The longest that stands for one character: "[U+10FFFF]".
    constexpr qsizetype LongestNumber = 10;
    const QString shown = zelto::foreignText(zelto::test::Input(data, size).restAsText(), Longest);
    require(shown.size() <= qsizetype{Longest} * LongestNumber + 1, "its length is bounded");
    for (const uint character : shown.toUcs4()) {
        const auto category = QChar::category(character);
        require(category != QChar::Other_Control && category != QChar::Other_Format &&
                    category != QChar::Separator_Line && category != QChar::Separator_Paragraph,
                "every character is seen");
    }
    return 0;
}
