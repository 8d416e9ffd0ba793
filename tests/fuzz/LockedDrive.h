#pragma once

#include "simulator/drive/VirtualDrive.h"
#include "tests/fuzz/Target.h"
#include "tests/model/DriveBench.h"

#include <algorithm>
#include <memory>

namespace zelto::test {

inline constexpr Moment Now = Start;

/// A whole drive with a secure area, a key and one password; plugged in, and locked.
inline std::unique_ptr<VirtualDrive> makeLockedDrive() {
    auto drive =
        std::make_unique<VirtualDrive>(Manufactured{.totalSectors = SmallDrive, .keySeed = 7});
    drive->plug(Now);
    for (const Sent& sent : {setSecureAreas(), setAutomaticKey(), setFirst(First), reconnect()}) {
        require(!drive->control(sent.setup, sent.data, Now).stalled, "the drive is set up");
    }
    drive->unplug(Now);
    drive->plug(Now);
    require(drive->state(Now) == SecurityState::StateLocked, "the drive starts locked");
    return drive;
}

/// Whether somebody who said this knew its password.
inline bool isPasswordIn(std::span<const std::uint8_t> said) {
    const Bytes password = digest(First);
    return std::search(said.begin(), said.end(), password.begin(), password.end()) != said.end();
}

/// Without it the drive never opens, whatever was said to it.
inline void checkIsShut(VirtualDrive& drive, std::span<const std::uint8_t> said, Moment now = Now) {
    require(isPasswordIn(said) || drive.state(now) != SecurityState::StateUnlocking,
            "a locked drive does not open without its password");
}

} // namespace zelto::test
