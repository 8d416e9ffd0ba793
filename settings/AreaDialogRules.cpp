#include "settings/AreaDialogRules.h"

#include "settings/AreaPacking.h"
#include "settings/IntegerValue.h"
#include "settings/NumericCheck.h"

namespace zelto {

AreaDialogVerdict judgeAreaDialog(const std::array<QString, 3>& texts, std::uint64_t totalSectors) {
    AreaDialogVerdict verdict;
    bool allNumbers = true;
    for (std::size_t disk = 0; disk < texts.size(); ++disk) {
        allNumbers = NumericCheck(texts[disk]) && allNumbers;
        verdict.mebibytes[disk] = static_cast<std::uint64_t>(integerValue64(texts[disk]));
    }
    verdict.leftMebibytes = leftMebibytes(totalSectors, verdict.mebibytes);
    verdict.isComplete = verdict.mebibytes[0] != 0 && allNumbers && verdict.leftMebibytes >= 0;
    return verdict;
}

} // namespace zelto
