#pragma once

#include "settings/SettingsModel.h"

#include <QString>

namespace zelto {

/// A copy in memory of its own. Texts go between the dialogs' fields and the settings in this way:
/// a field overwrites its characters when its dialog closes, and whoever shared them would be left
/// with blanks.
[[nodiscard]] QString unsharedCopy(const QString& text);

/// Overwrites a text that nobody shares, and empties it.
void wipeText(QString& text);

/// Overwrites and empties every password of the settings.
void wipePasswords(_tagPasswordSettingsParameters& parameters);

} // namespace zelto
