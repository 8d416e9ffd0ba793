#pragma once

#include "ui/Window.h"

#include "ui_AreaSettingsWindow.h"
#include "ui_AuthenticateWindow.h"
#include "ui_DeviceRuleWindow.h"
#include "ui_EncryptionKeyWindow.h"
#include "ui_MainSettingsWindow.h"
#include "ui_PasswordChangeWindow.h"
#include "ui_PasswordSettingsWindow.h"
#include "ui_SelectZeltoWindow.h"
#include "ui_UnlockedWindow.h"
#include "ui_UnlockingWindow.h"
#include "ui_ZeltoSettingWindow.h"

#include <cstdint>

namespace zelto {

/// Which window the one text-change handler serves.
struct TextInputModes {
    enum Value : std::uint8_t {
        MainSettings = 0,
        /// The log-in window, opened for the second or a repeated step.
        AuthenticateFurtherStep = 1,
        /// The log-in window, opened for the first step.
        AuthenticateFirstStep = 2,
        AreaSettings = 3,
        PasswordSettings = 4,
        PasswordChange = 5,
        EncryptionKey = 6,
    };
};

} // namespace zelto
