#pragma once

#include "device/AreaInfo.h"
#include "device/DeviceStatus.h"
#include "device/PasswordRecords.h"
#include "device/TimeStatus.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace zelto::simulator {

/// The moment at which something is done to the drive. The model never asks for the time; it is
/// told. Moments never go back.
using Moment = std::chrono::sys_seconds;

/// The setup packet of a control transfer (USB 2.0, 9.3), in host order.
struct SetupPacket {
    std::uint8_t bmRequestType = 0;
    std::uint8_t bRequest = 0;
    std::uint16_t wValue = 0;
    std::uint16_t wIndex = 0;
    std::uint16_t wLength = 0;
};

/// How the drive ends a control transfer.
struct ControlReply {
    /// The request is refused; why is in the sense bytes of the next status read.
    bool stalled = false;
    /// The data stage towards the host, at most wLength bytes.
    std::vector<std::uint8_t> data;
};

/// A key of AES-256 in XTS mode (two keys of 32 bytes).
using MediumKey = std::array<std::uint8_t, 64>;

/// A run of the drive's sectors as one storage unit shows it.
struct Medium {
    std::uint64_t firstSector = 0;
    std::uint64_t sectorCount = 0;
    bool secure = false;
    /// What a secure area's sectors are enciphered under; nothing for a normal area.
    std::optional<MediumKey> key;

    friend bool operator==(const Medium&, const Medium&) = default;
};

/// What was decided when the drive was made.
struct Manufactured {
    std::string serial = "ZD0123456789ABCD";
    std::uint64_t totalSectors = 0;
    /// What the drive draws its keys from; two drives with the same seed make the same keys.
    std::uint64_t keySeed = 0;
};

/// What survives unplugging. Nothing here says which security state the drive is in: the state is
/// computed.
struct Remembered {
    std::vector<AreaInfoEntry> areas;
    std::optional<MediumKey> key;
    bool keyIsAutomatic = false;
    std::optional<PasswordDigest> firstPassword;
    std::optional<PasswordDigest> secondPassword;
    std::uint8_t trialsAllowed = 0;
    /// Counted before a comparison, so that pulling the plug refunds nothing.
    std::uint8_t wrongSecondPasswords = 0;
    /// What the clock showed and when that was; nothing when it was never set, or lost.
    struct ClockSetting {
        std::chrono::sys_seconds shown;
        Moment at;
    };
    std::optional<ClockSetting> clock;
    std::uint32_t autoClearPeriod = 0;
    Moment autoClearSince;
    bool autoClearExpired = false;
    std::uint16_t idleLockPeriod = 0;
    std::array<std::uint8_t, 4096> hintData{};
    /// First-time set-up: in force from the next power-up; a set-up broken off leaves it unused.
    std::optional<std::vector<AreaInfoEntry>> areasToCome;
    bool resetAtPowerUp = false;
};

/// What a power cycle clears.
struct Powered {
    Sense sense;
    bool firstPasswordGiven = false;
    bool unlocked = false;
    unsigned notReadyReads = 0;
    Moment lastUse;
    bool wantsReconnect = false;
};

/// The drive's firmware: what it answers to the sixteen vendor requests, which media its storage
/// units show, and what time and unplugging do to it. A pure model: no threads, no clock of its
/// own, no USB around it.
class DriveModel {
public:
    /// One storage unit for each possible area: three of the user's and the tool area.
    static constexpr std::size_t UnitCount = 4;
    /// Hint data that the drive keeps, in bytes.
    static constexpr std::size_t HintDataSize = 4096;

    /// A new drive, not powered.
    explicit DriveModel(Manufactured manufactured);
    /// A drive as it was put away.
    DriveModel(Manufactured manufactured, Remembered remembered);

    /// Plugging in; also what a reconnect ends with.
    void powerUp(Moment now);
    /// Unplugging, at any moment.
    void powerOff(Moment now);
    [[nodiscard]] bool isPowered() const { return m_isPowered; }

    /// One vendor request to the powered drive. `sent` is the data stage towards the device,
    /// wLength bytes; empty for the other direction. Nothing in either is trusted.
    [[nodiscard]] ControlReply control(const SetupPacket& setup, std::span<const std::uint8_t> sent,
                                       Moment now);

    /// True once after a request to reconnect: the bus takes the drive away and brings it back
    /// (powerOff, powerUp).
    [[nodiscard]] bool takeReconnect();

    [[nodiscard]] SecurityState state(Moment now);
    /// What unit `unit` (counted from 0) shows at this moment; nothing when it has no medium.
    [[nodiscard]] std::optional<Medium> medium(std::size_t unit, Moment now);
    /// A command to a storage unit's medium: keeps the idle lock from closing the drive.
    void storageUsed(Moment now);

    [[nodiscard]] const Manufactured& manufactured() const { return m_manufactured; }
    [[nodiscard]] const Remembered& remembered() const { return m_remembered; }

    /// Physical accidents and testing aids, not requests.
    void loseClock();
    void setNotReadyReads(unsigned reads);

private:
    Manufactured m_manufactured;
    Remembered m_remembered;
    Powered m_powered;
    bool m_isPowered = false;
};

} // namespace zelto::simulator
