#pragma once

#include "device/AreaInfo.h"
#include "digest/SecretText.h"

#include <array>
#include <cstdint>

namespace zelto {

/// The password choices as the dialogs edit them, in clear until the commit has digested them.
struct _tagPasswordSettingsParameters {
    /// 0: only the first password; 1: first and second.
    bool Use1stAnd2ndPassword = false;
    /// In force now; only a password change asks for them.
    SecretText strCurrent1stPassword;
    SecretText strCurrent2ndPassword;
    SecretText strNew1stPassword;
    SecretText strNew2ndPassword;
    /// Trials allowed for the second password, 1 to 99; 0 when not given yet. Sent as its low byte.
    std::int32_t NumberOfTrials = 0;
};

struct _tagAreaInfoViewData {
    /// The area's type byte as the drive reports it.
    std::uint8_t type = 0;
    /// MiB, rounded down; all ones for an area that spans the whole drive.
    std::uint64_t capacity = 0;
};

/// The area table as the main settings window shows it: three areas of the user and the tool area.
struct _tagAreaInfosViewData {
    static constexpr std::uint16_t Capacity = 4;

    std::uint16_t areaCount = 0;
    std::array<_tagAreaInfoViewData, Capacity> areaData{};
};

/// The settings being edited that live outside the windows' controls.
struct SettingsModel {
    _tagAreaInfosViewData AreaInfosViewData;
    /// The drive's area table, rebuilt by the area settings.
    AreaInfoTable AreaInfos;
    /// A set-up has sent these very areas before, and has failed.
    bool AreasWereSent = false;
    /// Sectors; in first-time set-up less those of the tool area.
    std::uint64_t TotalSectorCount = 0;
    /// Sizes chosen for Disk1 to Disk3 in MiB; 0: no such area.
    std::array<std::uint64_t, 3> AreaSettingsDiskCapacity{};
    _tagPasswordSettingsParameters PasswordSettingsParameters;
    /// The key entered by hand, hexadecimal digits; empty when none.
    SecretText StrEncryptionKey;
    /// The drive was never set up: the main settings window is in first-time set-up.
    bool InitialSetting = false;
    /// The drive had a secure area when the window opened.
    bool SecureAreaAlreadyExist = false;
    /// The area table as it stands has a secure area.
    bool SecureAreaExist = false;

    /// The choices stay.
    void wipeSecrets() {
        PasswordSettingsParameters.strCurrent1stPassword.clear();
        PasswordSettingsParameters.strCurrent2ndPassword.clear();
        PasswordSettingsParameters.strNew1stPassword.clear();
        PasswordSettingsParameters.strNew2ndPassword.clear();
        StrEncryptionKey.clear();
    }
};

/// What the user has touched in the main settings window. Nothing is ever cleared during a run.
struct ChangedFlags {
    bool ChangePassword = false;
    bool AreaSettingsPerformed = false;
    bool AutoClearSettingsChanged = false;
    bool AutoLogOffSettingsChanged = false;
    bool ChangeRemainingTimeSetting = false;
};

} // namespace zelto
