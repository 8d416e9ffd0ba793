// Whatever is typed into the fields: a verdict, and never a number or a key that the rules forbid.

#include "settings/AreaDialogRules.h"
#include "settings/IntegerValue.h"
#include "settings/KeyDigits.h"
#include "settings/Obstacle.h"
#include "settings/PasswordRules.h"
#include "tests/fuzz/Target.h"

#include <array>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zelto;
    using zelto::test::require;
    QString text;
    test::Input input(data, size);
    while (!input.isEmpty()) {
        // Mostly letters and digits; the high bit opens all of UTF-16.
        const std::uint8_t byte = input.takeByte();
        text += byte < 0x80 ? QChar(byte) : QChar(input.takeWord());
    }
    const std::int32_t trials = trialCount(text);
    require(!isValidTrialCount(text) || (trials >= 1 && trials <= PasswordLimits::MostTrials),
            "a valid number of trials is one");
    require(!isValidPassword(text) || (text.size() <= PasswordLimits::LongestPassword &&
                                       text.toUtf8().size() == text.size()),
            "a valid password takes a byte for each character");
    const auto key = keyOfDigits(text);
    if (isValidKeyText(text)) {
        require(keyObstacle(text).key == nullptr, "nothing is wrong with a valid key");
        for (qsizetype index = text.size() / 2; index < static_cast<qsizetype>(key.size());
             ++index) {
            require(key[static_cast<std::size_t>(index)] == 0, "a key is padded with zeros");
        }
    } else {
        require(keyObstacle(text).key != nullptr, "what is wrong with a key is said");
    }
    (void)integerValue64(text);
    const std::array texts{text.section(u',', 0, 0), text.section(u',', 1, 1),
                           text.section(u',', 2)};
    const AreaDialogVerdict verdict = judgeAreaDialog(texts, std::uint64_t{1} << 20U);
    require(verdict.isComplete == (areaObstacle(texts, verdict).key == nullptr),
            "what keeps areas from being laid out is said");
    return 0;
}
