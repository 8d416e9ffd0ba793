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
/// told. A moment before the latest one told counts as the latest: time never runs back on the
/// drive, whatever happens to the clock of the computer that runs it.
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
    std::vector<std::uint8_t> data = {};
};

/// The drive's key, as 64 bytes: those of a key entered by hand padded with zeros, or those that
/// the drive drew.
using MediumKey = std::array<std::uint8_t, 64>;

/// A run of the drive's sectors as one storage unit shows it.
struct Medium {
    std::uint64_t firstSector = 0;
    std::uint64_t sectorCount = 0;
    bool secure = false;
    /// What a secure area's sectors are enciphered under; nothing for a normal area.
    std::optional<MediumKey> key = {};

    friend bool operator==(const Medium&, const Medium&) = default;
};

/// What was decided when the drive was made.
struct Manufactured {
    std::string serial = "ZD0123456789ABCD";
    /// In sectors of 512 bytes, the tool area's included.
    std::uint64_t totalSectors = 0;
    /// What the drive draws its keys from; two drives with the same seed make the same keys.
    std::uint64_t keySeed = 0;

    friend bool operator==(const Manufactured&, const Manufactured&) = default;
};

/// What first-time set-up sends, piece by piece.
struct SetupParts {
    std::optional<std::vector<AreaInfoEntry>> areas;
    std::optional<MediumKey> key;
    bool keyIsAutomatic = false;
    std::optional<PasswordDigest> firstPassword;
    std::optional<PasswordDigest> secondPassword;
    std::uint8_t trialsAllowed = 0;

    /// Wipes the secrets among the parts, and leaves no part.
    void forget();

    friend bool operator==(const SetupParts&, const SetupParts&) = default;
};

/// What survives unplugging. Nothing here says which security state the drive is in: the state is
/// computed.
struct Remembered {
    std::vector<AreaInfoEntry> areas;
    /// Set only while there is a secure area.
    std::optional<MediumKey> key;
    bool keyIsAutomatic = false;
    /// How many keys the drive has drawn, so that it never draws one twice.
    std::uint64_t keysDrawn = 0;
    std::optional<PasswordDigest> firstPassword;
    std::optional<PasswordDigest> secondPassword;
    std::uint8_t trialsAllowed = 0;
    /// Counted before a comparison, so that pulling the plug refunds nothing.
    std::uint8_t wrongSecondPasswords = 0;

    /// What the clock showed and when that was; nothing when it was never set, or lost.
    struct ClockSetting {
        std::chrono::sys_seconds shown;
        Moment at;

        friend bool operator==(const ClockSetting&, const ClockSetting&) = default;
    };
    std::optional<ClockSetting> clock;
    /// Seconds; 0 is off.
    std::uint32_t autoClearPeriod = 0;
    Moment autoClearSince;
    /// The seconds counted when the clock was lost under a running period. The count stands still
    /// and the drive is fully locked until the clock is set.
    std::optional<std::uint32_t> autoClearHeldAt;
    bool autoClearExpired = false;
    /// Seconds; 0 is off.
    std::uint16_t idleLockPeriod = 0;
    std::array<std::uint8_t, 4096> hintData{};

    /// A complete set-up whose reconnect was accepted: in force from the next power-up.
    std::optional<SetupParts> setupToCome;
    /// The areas were reset: from the next power-up there is one blank medium, until then none.
    bool resetAtPowerUp = false;
    /// The latest moment told.
    Moment latest;

    friend bool operator==(const Remembered&, const Remembered&) = default;
};

/// What a power cycle clears.
struct Powered {
    /// Why the latest command was refused; zeros after one that succeeded. A status read reports
    /// it and leaves it as it is.
    Sense sense;
    bool firstPasswordGiven = false;
    bool unlocked = false;
    unsigned notReadyReads = 0;
    /// The latest storage access or command that keeps the idle lock away.
    Moment lastUse;
    bool wantsReconnect = false;
    /// A first-time set-up that has not been sealed by a reconnect: a power cycle breaks it off.
    SetupParts setup;
};

/// Whether areas follow each other from sector 0, fit into the drive, are one to four, and at most
/// one of them is secure (the drive has one key).
[[nodiscard]] bool areSoundAreas(std::span<const AreaInfoEntry> areas, std::uint64_t totalSectors);

[[nodiscard]] bool hasSecureArea(std::span<const AreaInfoEntry> areas);
/// Whether a set-up may come into force: one that would leave a secure area without a key, or
/// without a password to open it, may not.
[[nodiscard]] bool isComplete(const SetupParts& setup);

/// The drive's firmware: what it answers to the sixteen vendor requests, which media its storage
/// units show, and what time and unplugging do to it. A pure model: no threads, no clock of its
/// own, no USB around it. Nothing in it blocks.
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
    DriveModel(const DriveModel&) = default;
    DriveModel& operator=(const DriveModel&) = default;
    ~DriveModel();

    /// Plugging in; also what a reconnect ends with. A powered drive loses its power first.
    void powerUp(Moment now);
    /// Unplugging, at any moment.
    void powerOff(Moment now);
    [[nodiscard]] bool isPowered() const { return m_isPowered; }

    /// One vendor request to the powered drive. `sent` is the data stage towards the device,
    /// wLength bytes; empty for the other direction. Nothing in either is trusted. A drive
    /// without power stalls and does nothing.
    [[nodiscard]] ControlReply control(const SetupPacket& setup, std::span<const std::uint8_t> sent,
                                       Moment now);

    /// True once after a request to reconnect: the bus takes the drive away and brings it back
    /// (powerOff, powerUp).
    [[nodiscard]] bool takeReconnect();

    /// The security state, as a status read at that moment would report it.
    [[nodiscard]] SecurityState state(Moment now);
    /// What unit `unit` (counted from 0) shows at this moment; nothing when it has no medium, the
    /// unit does not exist, or the drive has no power.
    [[nodiscard]] std::optional<Medium> medium(std::size_t unit, Moment now);
    /// A read or write of a unit's medium: keeps the idle lock from closing the drive. Not for
    /// commands that only ask whether there is a medium: a computer sends those all the time.
    void storageUsed(Moment now);

    [[nodiscard]] const Manufactured& manufactured() const { return m_manufactured; }
    [[nodiscard]] const Remembered& remembered() const { return m_remembered; }

    /// Physical accidents and testing aids, not requests.

    /// The clock stops, as after a long time without power.
    void loseClock();
    /// The next `reads` status reads with value 1 answer "not ready".
    void setNotReadyReads(unsigned reads);
    /// What stands outside the firmware could not carry out the latest command (the sectors or the
    /// memory could not be written): the next status read says so.
    void reportFault(const Sense& sense);

private:
    struct Request;
    struct RequestRule;
    /// The requests that the drive knows: the one table of them.
    static std::span<const RequestRule> requestRules();

    // Time and state: DriveModel.cpp
    Moment settle(Moment now);
    void expireAutoClear();
    void lockIdleDrive();
    [[nodiscard]] std::uint64_t autoClearElapsed() const;
    [[nodiscard]] SecurityState computeState() const;
    [[nodiscard]] std::uint8_t securityByte() const;
    void lock();
    void destroyKey();
    void forgetPasswords();
    void putSetupInForce();

    // Requests: DriveRequests.cpp. Each returns the sense of its refusal, or none.
    [[nodiscard]] Sense perform(Request& request);
    [[nodiscard]] Sense getDeviceStatus(Request& request);
    [[nodiscard]] Sense authenticate(Request& request);
    [[nodiscard]] Sense authenticateFirst(const PasswordDigest& digest);
    [[nodiscard]] Sense authenticateSecond(const PasswordDigest& digest);
    [[nodiscard]] Sense logout(Request& request);
    [[nodiscard]] Sense getAreaInfos(Request& request);
    [[nodiscard]] Sense setAreaInfos(Request& request);
    [[nodiscard]] Sense resetAreaInfos(Request& request);
    [[nodiscard]] Sense reconnect(Request& request);
    [[nodiscard]] Sense setEncryptionInfo(Request& request);
    [[nodiscard]] Sense clearEncryptionInfo(Request& request);
    [[nodiscard]] Sense setAuthInfo(Request& request);
    [[nodiscard]] Sense setNewPasswords(const AuthInfo& info);
    [[nodiscard]] Sense changePasswords(const AuthInfo& info);
    [[nodiscard]] Sense setErasePeriod(Request& request);
    [[nodiscard]] Sense setIdleLockPeriod(Request& request);
    [[nodiscard]] Sense getTimeStatus(Request& request);
    [[nodiscard]] Sense setCurrentTime(Request& request);
    [[nodiscard]] Sense readHintData(Request& request);
    [[nodiscard]] Sense writeHintData(Request& request);
    [[nodiscard]] MediumKey drawKey();

    Manufactured m_manufactured;
    Remembered m_remembered;
    Powered m_powered;
    bool m_isPowered = false;
};

} // namespace zelto::simulator
