#pragma once

#include "settings/AreaDialogRules.h"
#include "settings/OkButtonRules.h"
#include "settings/PasswordRules.h"

#include <QStringView>

namespace zelto {

/// The first thing that keeps a window's OK button disabled, as one line beside the button. What
/// is asked here in words is what the rules ask in bits: there is an obstacle exactly when a rule
/// refuses.
struct Obstacle {
    /// Of the text that says so; null: nothing is in the way.
    const char* key = nullptr;
    /// For the text's %1; 0: it has none.
    qsizetype number = 0;

    friend bool operator==(const Obstacle& left, const Obstacle& right) {
        return QLatin1String(left.key) == QLatin1String(right.key) && left.number == right.number;
    }
};

/// Main settings window: see canCommitAtInitialization and canCommitAtChanging.
[[nodiscard]] Obstacle obstacleAtInitialization(const MainSettingsEntries& entries);
[[nodiscard]] Obstacle obstacleAtChanging(const MainSettingsEntries& entries);

/// Area dialog: see judgeAreaDialog.
[[nodiscard]] Obstacle areaObstacle(const std::array<QString, 3>& texts,
                                    const AreaDialogVerdict& verdict);

/// Password dialogs: see passwordSettingsAreComplete and passwordChangeIsComplete.
[[nodiscard]] Obstacle passwordSettingsObstacle(const PasswordSettingsEntries& entries);
[[nodiscard]] Obstacle passwordChangeObstacle(const PasswordChangeEntries& entries);

/// Log-in: what is wrong with what has been typed, and nothing before that; see isValidPassword.
[[nodiscard]] Obstacle logInObstacle(QStringView password);

/// Key dialog: see isValidKeyText.
[[nodiscard]] Obstacle keyObstacle(QStringView text);

} // namespace zelto
