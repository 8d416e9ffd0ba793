#include "simulator/drive/DriveModel.h"

#include "simulator/drive/SecretBytes.h"

#include <algorithm>
#include <utility>

namespace zelto::simulator {
namespace {

using namespace std::chrono_literals;

/// Moments outside are cut to this range, so that no difference of two overflows.
constexpr Moment EarliestMoment = std::chrono::sys_days{1970y / 1 / 1};
constexpr Moment LatestMoment = std::chrono::sys_days{9999y / 1 / 1};

constexpr std::uint8_t TwoPasswordsBit = 0x40;
constexpr std::uint8_t AutomaticKeyBit = 0x80;

} // namespace

void SetupParts::forget() {
    forgetSecret(key);
    forgetSecret(firstPassword);
    forgetSecret(secondPassword);
    *this = {};
}

DriveModel::DriveModel(Manufactured manufactured) : m_manufactured(std::move(manufactured)) {
    m_remembered.areas = {{.sectorCount = AreaInfoEntry::AllSectors}};
}

DriveModel::DriveModel(Manufactured manufactured, Remembered remembered)
    : m_manufactured(std::move(manufactured)), m_remembered(std::move(remembered)) {}

DriveModel::~DriveModel() {
    m_powered.setup.forget();
    if (m_remembered.setupToCome) {
        m_remembered.setupToCome->forget();
    }
    destroyKey();
    forgetPasswords();
}

void DriveModel::powerUp(Moment now) {
    if (m_isPowered) {
        powerOff(now);
    }
    m_isPowered = true;
    putSetupInForce();
    m_remembered.resetAtPowerUp = false;
    m_powered.lastUse = settle(now);
}

void DriveModel::powerOff(Moment now) {
    settle(now);
    m_powered.setup.forget();
    m_powered = {};
    m_isPowered = false;
}

bool DriveModel::takeReconnect() {
    return std::exchange(m_powered.wantsReconnect, false);
}

SecurityState DriveModel::state(Moment now) {
    settle(now);
    return computeState();
}

std::optional<Medium> DriveModel::medium(std::size_t unit, Moment now) {
    settle(now);
    if (!m_isPowered || m_remembered.resetAtPowerUp || unit >= m_remembered.areas.size()) {
        return std::nullopt;
    }
    const AreaInfoEntry& area = m_remembered.areas[unit];
    if (area.sectorCount == AreaInfoEntry::AllSectors) {
        return Medium{.firstSector = 0, .sectorCount = m_manufactured.totalSectors};
    }
    if (area.type != AreaInfoEntry::SecureArea) {
        return Medium{.firstSector = area.firstSector, .sectorCount = area.sectorCount};
    }
    if (computeState() != SecurityState::StateUnlocking) {
        return std::nullopt;
    }
    return Medium{.firstSector = area.firstSector,
                  .sectorCount = area.sectorCount,
                  .secure = true,
                  .key = m_remembered.key};
}

void DriveModel::storageUsed(Moment now) {
    m_powered.lastUse = settle(now);
}

void DriveModel::loseClock() {
    if (m_remembered.autoClearPeriod != 0 && !m_remembered.autoClearExpired &&
        !m_remembered.autoClearHeldAt) {
        // Below the period, which fits, or it would have run out.
        m_remembered.autoClearHeldAt = static_cast<std::uint32_t>(autoClearElapsed());
        lock();
    }
    m_remembered.clock.reset();
}

void DriveModel::setNotReadyReads(unsigned reads) {
    m_powered.notReadyReads = reads;
}

void DriveModel::reportFault(const Sense& sense) {
    m_powered.sense = sense;
}

/// Does what the passing of time brings, and returns the moment that counts as now. Everything
/// that looks at the drive comes through here first, so that nothing is seen that has run out.
Moment DriveModel::settle(Moment now) {
    m_remembered.latest =
        std::max(m_remembered.latest, std::clamp(now, EarliestMoment, LatestMoment));
    expireAutoClear();
    // A drive that lost its power between counting the last try and destroying the key.
    if (m_remembered.trialsAllowed != 0 &&
        m_remembered.wrongSecondPasswords >= m_remembered.trialsAllowed) {
        destroyKey();
    }
    lockIdleDrive();
    return m_remembered.latest;
}

void DriveModel::expireAutoClear() {
    if (m_remembered.autoClearPeriod != 0 && autoClearElapsed() >= m_remembered.autoClearPeriod) {
        m_remembered.autoClearExpired = true;
    }
    if (m_remembered.autoClearExpired) {
        destroyKey();
    }
}

void DriveModel::lockIdleDrive() {
    const std::chrono::seconds period{m_remembered.idleLockPeriod};
    if (m_powered.unlocked && period != 0s && m_remembered.latest - m_powered.lastUse >= period) {
        lock();
    }
}

std::uint64_t DriveModel::autoClearElapsed() const {
    if (m_remembered.autoClearHeldAt) {
        return *m_remembered.autoClearHeldAt;
    }
    const auto elapsed = m_remembered.latest - m_remembered.autoClearSince;
    return static_cast<std::uint64_t>(std::max(elapsed, 0s).count());
}

SecurityState DriveModel::computeState() const {
    if (!hasSecureArea(m_remembered.areas)) {
        return SecurityState::StateNoPassword;
    }
    if (!m_remembered.key || m_remembered.autoClearHeldAt) {
        return SecurityState::StateFullLock;
    }
    if (m_powered.unlocked) {
        return SecurityState::StateUnlocking;
    }
    return m_powered.firstPasswordGiven ? SecurityState::StatePasswordPending
                                        : SecurityState::StateLocked;
}

std::uint8_t DriveModel::securityByte() const {
    unsigned byte = static_cast<unsigned>(computeState());
    byte |= m_remembered.secondPassword ? TwoPasswordsBit : 0U;
    byte |= m_remembered.keyIsAutomatic ? AutomaticKeyBit : 0U;
    return static_cast<std::uint8_t>(byte);
}

void DriveModel::lock() {
    m_powered.unlocked = false;
    m_powered.firstPasswordGiven = false;
}

void DriveModel::destroyKey() {
    forgetSecret(m_remembered.key);
    m_remembered.keyIsAutomatic = false;
    lock();
}

void DriveModel::forgetPasswords() {
    forgetSecret(m_remembered.firstPassword);
    forgetSecret(m_remembered.secondPassword);
    m_remembered.trialsAllowed = 0;
    m_remembered.wrongSecondPasswords = 0;
}

void DriveModel::putSetupInForce() {
    if (!m_remembered.setupToCome) {
        return;
    }
    SetupParts& setup = *m_remembered.setupToCome;
    destroyKey();
    forgetPasswords();
    m_remembered.areas = setup.areas.value_or(m_remembered.areas);
    if (hasSecureArea(m_remembered.areas)) {
        m_remembered.key = setup.key;
        m_remembered.keyIsAutomatic = setup.keyIsAutomatic;
        m_remembered.firstPassword = setup.firstPassword;
        m_remembered.secondPassword = setup.secondPassword;
        m_remembered.trialsAllowed = setup.trialsAllowed;
    }
    setup.forget();
    m_remembered.setupToCome.reset();
}

} // namespace zelto::simulator
