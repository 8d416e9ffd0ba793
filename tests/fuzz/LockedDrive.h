#pragma once

#include "simulator/drive/VirtualDrive.h"
#include "tests/fuzz/Target.h"
#include "tests/model/DriveBench.h"

#include <algorithm>

namespace zelto::test {

/// A whole drive with a secure area, a key and one password, locked; and what must stay so.
class LockedDrive {
public:
    static constexpr Moment Now = Start;

    LockedDrive() {
        drive.plug(Now);
        for (const Sent& sent :
             {setSecureAreas(), setAutomaticKey(), setFirst(First), reconnect()}) {
            require(!drive.control(sent.setup, sent.data, Now).stalled, "the drive is set up");
        }
        drive.unplug(Now);
        drive.plug(Now);
        require(drive.state(Now) == SecurityState::StateLocked, "the drive starts locked");
    }

    /// Without its password it never opens, whatever was said to it.
    void check(std::span<const std::uint8_t> said) {
        const Bytes password = digest(First);
        const bool wasTold =
            std::search(said.begin(), said.end(), password.begin(), password.end()) != said.end();
        require(wasTold || drive.state(Now) != SecurityState::StateUnlocking,
                "a locked drive does not open without its password");
    }

    VirtualDrive drive{Manufactured{.totalSectors = SmallDrive, .keySeed = 7}};
};

} // namespace zelto::test
