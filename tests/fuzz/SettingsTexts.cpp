// Whatever is typed into the fields, a line each: a verdict, an obstacle where it is no, and never
// a number or a key that the rules forbid. The first byte says what is chosen beside the fields.

#include "settings/AreaDialogRules.h"
#include "settings/IntegerValue.h"
#include "settings/KeyDigits.h"
#include "settings/Obstacle.h"
#include "settings/OkButtonRules.h"
#include "settings/PasswordRules.h"
#include "settings/Periods.h"
#include "tests/fuzz/Target.h"

#include <QStringList>

#include <array>

namespace zelto::test {
namespace {

bool isInTheWay(const Obstacle& obstacle) {
    return obstacle.key != nullptr;
}

void checkText(const QString& text) {
    const std::int32_t trials = trialCount(text);
    require(!isValidTrialCount(text) || (trials >= 1 && trials <= PasswordLimits::MostTrials),
            "a valid number of trials is one");
    require(!isValidPassword(text) || (text.size() <= PasswordLimits::LongestPassword &&
                                       text.toUtf8().size() == text.size()),
            "a valid password takes a byte for each character");
    require(isValidKeyText(text) != isInTheWay(keyObstacle(text)),
            "what is wrong with a key is said");
    const auto key = keyOfDigits(text);
    for (qsizetype index = text.size() / 2;
         isValidKeyText(text) && index < static_cast<qsizetype>(key.size()); ++index) {
        require(key[static_cast<std::size_t>(index)] == 0, "a key is padded with zeros");
    }
    (void)integerValue64(text);
}

void checkPasswords(const QStringList& texts, bool both) {
    const PasswordSettingsEntries renewed{.firstAndSecond = both,
                                          .first = {texts[0], texts[1]},
                                          .second = {texts[2], texts[3]},
                                          .trials = texts[4]};
    require(passwordSettingsAreComplete(renewed) != isInTheWay(passwordSettingsObstacle(renewed)),
            "what is wrong with passwords is said");
    const PasswordChangeEntries change{texts[5], texts[6], renewed};
    require(passwordChangeIsComplete(change) != isInTheWay(passwordChangeObstacle(change)),
            "what is wrong with a change is said");
}

void checkAreas(const QStringList& texts) {
    const std::array fields{texts[0], texts[1], texts[2]};
    constexpr std::uint64_t Sectors = std::uint64_t{1} << 20U;
    const AreaDialogVerdict verdict = judgeAreaDialog(fields, Sectors);
    require(verdict.isComplete != isInTheWay(areaObstacle(fields, verdict)),
            "what keeps areas from being laid out is said");
    require(!verdict.isComplete || verdict.leftMebibytes >= 0, "areas fit the drive");
}

void checkMainSettings(const QStringList& texts, std::uint8_t flags) {
    const auto flag = [flags](unsigned bit) { return (flags >> bit & 1U) != 0; };
    const MainSettingsEntries entries{
        .secureAreaExists = flag(0),
        .changed = {flag(1), flag(2), flag(3), flag(3), flag(4)},
        .autoClear = {flag(5), flag(6) ? PeriodUnit::Days : PeriodUnit::Minutes, texts[0]},
        .autoLogOff = {flag(7), texts[1]}};
    require(canCommitAtInitialization(entries) != isInTheWay(obstacleAtInitialization(entries)) &&
                canCommitAtChanging(entries) != isInTheWay(obstacleAtChanging(entries)),
            "what keeps OK disabled is said");
    constexpr std::uint32_t LongestDays = 9999U * 86400U;
    require(!isValid(entries.autoClear) || autoClearSeconds(entries.autoClear) <= LongestDays,
            "a valid period is bounded");
    (void)autoLogOffSeconds(entries.autoLogOff);
}

} // namespace
} // namespace zelto::test

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zelto::test;
    Input input(data, size);
    const std::uint8_t flags = input.takeByte();
    QString text;
    while (!input.isEmpty()) {
        // Mostly letters and digits; the high bit opens all of UTF-16.
        const std::uint8_t byte = input.takeByte();
        text += byte < 0x80 ? QChar(byte) : QChar(input.takeWord());
    }
    constexpr qsizetype Fields = 7;
    QStringList texts = text.split(u'\n');
    texts.resize(Fields);
    checkText(texts[0]);
    checkPasswords(texts, (flags & 1U) != 0);
    checkAreas(texts);
    checkMainSettings(texts, flags);
    return 0;
}
