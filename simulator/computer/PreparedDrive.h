#pragma once

#include "simulator/computer/DriveOnBus.h"

#include <memory>
#include <string>
#include <vector>

namespace zelto::simulator {

/// A drive as its owner has set it up.
struct DriveSetup {
    struct Area {
        std::uint64_t mebibytes = 32;
        bool isSecure = false;
        /// The FAT volume on it; empty: left blank.
        std::string label = {};
    };

    std::string serial = "ZD0000000000A1";
    std::vector<Area> areas = {{.mebibytes = 16, .isSecure = false, .label = "PUBLIC"},
                               {.mebibytes = 32, .isSecure = true, .label = "PRIVATE"}};
    std::string firstPassword = "first";
    /// Empty: log-in takes one password.
    std::string secondPassword = {};
    std::uint8_t trials = 3;
    std::uint32_t autoClearSeconds = 0;
    std::uint16_t idleLockSeconds = 0;
    bool showsRemainingTime = false;
    bool clockIsSet = true;
};

/// Makes such a drive, unplugged, by the commands that the utility would send: areas, key,
/// passwords, periods and a reconnect, then volumes, the tool area's among them. Null when the
/// drive refuses something.
[[nodiscard]] std::shared_ptr<DriveOnBus> makePreparedDrive(const DriveSetup& setup, Moment now);

} // namespace zelto::simulator
