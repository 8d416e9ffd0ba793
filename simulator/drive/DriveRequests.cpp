#include "device/VendorRequest.h"
#include "digest/SHA256.h"
#include "simulator/drive/DriveModel.h"
#include "simulator/drive/SecretBytes.h"
#include "simulator/drive/SenseCodes.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace zelto::simulator {
namespace {

using namespace std::chrono_literals;

/// Lengths of the data stage that a request takes: `smallest`, and on in steps up to `largest`.
struct LengthRule {
    std::uint16_t smallest = 0;
    std::uint16_t largest = 0;
    std::uint16_t step = 1;

    [[nodiscard]] constexpr bool allows(std::uint16_t length) const {
        return length >= smallest && length <= largest && (length - smallest) % step == 0;
    }
};

constexpr std::uint16_t MostAreas = DriveModel::UnitCount;

constexpr LengthRule NoData{};
/// A record towards the host is cut to what the host asks for.
constexpr LengthRule AnyInput{1, 0xFFFF};
constexpr LengthRule HintBytes{1, DriveModel::HintDataSize};
constexpr LengthRule AreaEntries{AreaInfoEntry::Size, MostAreas* AreaInfoEntry::Size,
                                 AreaInfoEntry::Size};
constexpr LengthRule PasswordRecord{AuthInfo::ShortSize, AuthInfo::LongSize,
                                    AuthInfo::LongSize - AuthInfo::ShortSize};

template <std::size_t Size>
constexpr LengthRule exactly() {
    static_assert(Size <= 0xFFFF);
    return {Size, Size};
}

constexpr std::array<std::uint8_t, 4> ClearMagic{'T', 'K', 'C', 'L'};

/// A set of security states, one bit each.
using StateSet = std::uint8_t;

constexpr StateSet in(SecurityState state) {
    return static_cast<StateSet>(1U << static_cast<unsigned>(state));
}

template <typename... States>
constexpr StateSet in(SecurityState first, States... rest) {
    return static_cast<StateSet>(in(first) | in(rest...));
}

using enum SecurityState;

constexpr StateSet AnyState = in(StateNoPassword, StateIdle, StateLocked, StatePasswordPending,
                                 StateUnlocking, StateFullLock);
/// Nobody has to log in (any more).
constexpr StateSet Open = in(StateNoPassword, StateIdle, StateUnlocking);

/// wValue and wIndex bits that a request may carry.
constexpr std::uint16_t NoBits = 0;
constexpr std::uint16_t OneFlag = 0x0001;
constexpr std::uint16_t FlagPair = 0x0003;
constexpr std::uint16_t OneByte = 0x00FF;
constexpr std::uint16_t AnyBits = 0xFFFF;

enum class IdleLock {
    /// The request shows that somebody works with the drive.
    StartsAnew,
    /// Programs send it by themselves, all the time.
    CountsOn,
};

enum class OldSense { IsCleared, Stays };

std::vector<std::uint8_t> cutTo(std::uint16_t length, std::span<const std::uint8_t> record) {
    const auto size = std::min<std::size_t>(length, record.size());
    return {record.begin(), record.begin() + static_cast<std::ptrdiff_t>(size)};
}

PasswordDigest digestIn(std::span<const std::uint8_t> record, record::Field field) {
    PasswordDigest digest{};
    std::ranges::copy(record::bytes(record, field), digest.begin());
    return digest;
}

bool isZero(std::span<const std::uint8_t> record, record::Field field) {
    return std::ranges::all_of(record::bytes(record, field),
                               [](std::uint8_t byte) { return byte == 0; });
}

/// The password record; nothing when it is none that the drive knows.
std::optional<AuthInfo> decodeAuthInfo(std::span<const std::uint8_t> record) {
    using namespace AuthInfoField;
    AuthInfo info;
    constexpr std::array Kinds{AuthInfo::Set, AuthInfo::SetBoth, AuthInfo::Change,
                               AuthInfo::ChangeBoth};
    const auto named = record::get<std::uint8_t>(record, AuthInfoField::Kind);
    const auto* const kind = std::ranges::find(Kinds, static_cast<AuthInfo::Kind>(named));
    if (kind == Kinds.end()) {
        return std::nullopt;
    }
    info.kind = *kind;
    if (record.size() != info.size() || record::get(record, AlwaysOne) != 1 ||
        !isZero(record, AfterKind) || !isZero(record, AfterAlwaysOne) ||
        !isZero(record, BeforeSlots)) {
        return std::nullopt;
    }
    info.numberOfTrials = record::get<std::uint8_t>(record, NumberOfTrials);
    info.slot1 = digestIn(record, Slot1);
    info.slot2 = digestIn(record, Slot2);
    if (info.kind == AuthInfo::ChangeBoth) {
        info.slot3 = digestIn(record, Slot3);
    }
    return info;
}

/// The encryption record; nothing when it is none.
std::optional<EncryptionInfo> decodeEncryptionInfo(std::span<const std::uint8_t> record) {
    using namespace EncryptionInfoField;
    const auto automatic = record::get(record, AutomaticKey);
    if (record::get(record, Magic) != MagicValue || record::get(record, Form) != FormValue ||
        (automatic != 0 && automatic != AutomaticKeyBit) || !isZero(record, BeforeKey)) {
        return std::nullopt;
    }
    EncryptionInfo info{.automaticKey = automatic != 0};
    if (info.automaticKey && !isZero(record, Key)) {
        return std::nullopt;
    }
    std::ranges::copy(record::bytes(record, Key), info.key.begin());
    return info;
}

/// The moment that a clock can be set to; nothing for one that this hardware does not count.
std::optional<std::chrono::sys_seconds> settableMoment(const CurrentTime& time) {
    constexpr std::uint16_t FirstYear = 1970;
    constexpr std::uint16_t LastYear = 9999;
    if (time.year < FirstYear || time.year > LastYear) {
        return std::nullopt;
    }
    return momentOf(time);
}

/// An area of a known kind, in use, whose flags say the same as its type.
bool isSound(const AreaInfoEntry& entry) {
    const bool flaggedSecure = (entry.flags & AreaInfoEntry::Secure) != 0;
    const bool isInUse = (entry.flags & AreaInfoEntry::InUse) != 0;
    switch (entry.type) {
    case AreaInfoEntry::NormalArea:
        return isInUse && !flaggedSecure;
    case AreaInfoEntry::SecureArea:
        return isInUse && flaggedSecure;
    default:
        return false;
    }
}

} // namespace

bool hasSecureArea(std::span<const AreaInfoEntry> areas) {
    return std::ranges::find(areas, AreaInfoEntry::SecureArea, &AreaInfoEntry::type) != areas.end();
}

bool isComplete(const SetupParts& setup) {
    return !setup.areas || !hasSecureArea(*setup.areas) || (setup.key && setup.firstPassword);
}

bool areSoundAreas(std::span<const AreaInfoEntry> areas, std::uint64_t totalSectors) {
    std::uint64_t next = 0;
    std::size_t secureAreas = 0;
    for (const AreaInfoEntry& area : areas) {
        if (!isSound(area) || area.firstSector != next || area.sectorCount == 0 ||
            area.sectorCount > totalSectors - next) {
            return false;
        }
        next += area.sectorCount;
        secureAreas += area.type == AreaInfoEntry::SecureArea ? 1U : 0U;
    }
    return !areas.empty() && areas.size() <= MostAreas && secureAreas <= 1;
}

/// One control transfer on its way through the drive.
struct DriveModel::Request {
    const SetupPacket& setup;
    std::span<const std::uint8_t> sent;
    Moment now;
    std::vector<std::uint8_t> answer;
};

/// What the drive checks before a request is carried out, in the order of the members.
struct DriveModel::RequestRule {
    std::uint8_t bRequest;
    std::uint8_t bmRequestType;
    LengthRule length;
    std::uint16_t valueBits;
    std::uint16_t indexBits;
    StateSet states;
    IdleLock idleLock;
    OldSense oldSense;
    Sense (DriveModel::*perform)(Request&);
};

std::span<const DriveModel::RequestRule> DriveModel::requestRules() {
    namespace Is = VendorRequest;
    constexpr auto Anew = IdleLock::StartsAnew;
    constexpr auto CountsOn = IdleLock::CountsOn;
    constexpr auto Cleared = OldSense::IsCleared;
    constexpr auto Stays = OldSense::Stays;
    constexpr StateSet SetUpOrChange = in(StateNoPassword, StateUnlocking);
    constexpr StateSet LogIn = in(StateLocked, StatePasswordPending);
    constexpr StateSet LogOut = in(StateLocked, StatePasswordPending, StateUnlocking);
    constexpr StateSet Clear = in(StateIdle, StateLocked, StatePasswordPending, StateFullLock);
    constexpr StateSet WriteHint = Open | in(StateFullLock);
    // clang-format off
    static constexpr RequestRule Rules[] = {
        {Is::GetDeviceStatus,     Is::ToHost,   AnyInput,                         OneFlag,  NoBits,  AnyState,            CountsOn, Stays,   &DriveModel::getDeviceStatus},
        {Is::GetTimeStatus,       Is::ToHost,   AnyInput,                         OneFlag,  NoBits,  AnyState,            CountsOn, Cleared, &DriveModel::getTimeStatus},
        {Is::GetAreaInfos,        Is::ToHost,   AnyInput,                         NoBits,   NoBits,  AnyState,            Anew,     Cleared, &DriveModel::getAreaInfos},
        {Is::ReadHintData,        Is::ToHost,   HintBytes,                        OneByte,  AnyBits, AnyState,            Anew,     Cleared, &DriveModel::readHintData},
        {Is::WriteHintData,       Is::ToDevice, HintBytes,                        OneFlag,  AnyBits, WriteHint,           Anew,     Cleared, &DriveModel::writeHintData},
        {Is::Authenticate,        Is::ToDevice, exactly<AuthPayload::Size>(),     OneByte,  NoBits,  LogIn,               Anew,     Cleared, &DriveModel::authenticate},
        {Is::Logout,              Is::ToDevice, NoData,                           OneByte,  NoBits,  LogOut,              Anew,     Cleared, &DriveModel::logout},
        {Is::SetAreaInfos,        Is::ToDevice, AreaEntries,                      OneFlag,  NoBits,  in(StateNoPassword), Anew,     Cleared, &DriveModel::setAreaInfos},
        {Is::SetEncryptionInfo,   Is::ToDevice, exactly<EncryptionInfo::Size>(),  FlagPair, NoBits,  in(StateNoPassword), Anew,     Cleared, &DriveModel::setEncryptionInfo},
        {Is::ClearEncryptionInfo, Is::ToDevice, exactly<ClearMagic.size()>(),     FlagPair, NoBits,  Clear,               Anew,     Cleared, &DriveModel::clearEncryptionInfo},
        {Is::SetAuthInfo,         Is::ToDevice, PasswordRecord,                   FlagPair, NoBits,  SetUpOrChange,       Anew,     Cleared, &DriveModel::setAuthInfo},
        {Is::SetErasePeriod,      Is::ToDevice, NoData,                           AnyBits,  AnyBits, Open,                Anew,     Cleared, &DriveModel::setErasePeriod},
        {Is::SetIdleLockPeriod,   Is::ToDevice, NoData,                           AnyBits,  NoBits,  Open,                Anew,     Cleared, &DriveModel::setIdleLockPeriod},
        {Is::SetCurrentTime,      Is::ToDevice, exactly<CurrentTime::Size>(),     NoBits,   NoBits,  AnyState,            Anew,     Cleared, &DriveModel::setCurrentTime},
        // Refused by its own rule while a key is set, whatever the state.
        {Is::ResetAreaInfos,      Is::ToDevice, NoData,                           FlagPair, NoBits,  AnyState,            Anew,     Cleared, &DriveModel::resetAreaInfos},
        {Is::Reconnect,           Is::ToDevice, NoData,                           OneByte,  AnyBits, AnyState,            Anew,     Cleared, &DriveModel::reconnect},
    };
    // clang-format on
    return Rules;
}

ControlReply DriveModel::control(const SetupPacket& setup, std::span<const std::uint8_t> sent,
                                 Moment now) {
    if (!m_isPowered) {
        return {.stalled = true};
    }
    Request request{.setup = setup, .sent = sent, .now = settle(now), .answer = {}};
    const Sense refusal = perform(request);
    if (refusal != SenseCode::None) {
        m_powered.sense = refusal;
        return {.stalled = true};
    }
    return {.stalled = false, .data = std::move(request.answer)};
}

Sense DriveModel::perform(Request& request) {
    const SetupPacket& setup = request.setup;
    const auto isNamed = [&](const RequestRule& rule) { return rule.bRequest == setup.bRequest; };
    const auto fits = [&](const RequestRule& rule) {
        return isNamed(rule) && rule.length.allows(setup.wLength);
    };
    const auto named = std::ranges::find_if(requestRules(), isNamed);
    if (named == requestRules().end()) {
        m_powered.lastUse = request.now;
        return SenseCode::InvalidCommand;
    }
    if (named->idleLock == IdleLock::StartsAnew) {
        m_powered.lastUse = request.now;
    }
    if (named->bmRequestType != setup.bmRequestType) {
        return SenseCode::InvalidFieldInCommand;
    }
    // Two requests share a code; their lengths tell them apart.
    const auto rule = std::ranges::find_if(requestRules(), fits);
    const bool isInput = setup.bmRequestType == VendorRequest::ToHost;
    if (rule == requestRules().end() || (!isInput && request.sent.size() != setup.wLength)) {
        return SenseCode::WrongParameterLength;
    }
    if ((setup.wValue & ~rule->valueBits) != 0 || (setup.wIndex & ~rule->indexBits) != 0) {
        return SenseCode::InvalidFieldInCommand;
    }
    if ((rule->states & in(computeState())) == 0) {
        return SenseCode::StateForbids;
    }
    const Sense refusal = (this->*rule->perform)(request);
    if (refusal == SenseCode::None && rule->oldSense == OldSense::IsCleared) {
        m_powered.sense = SenseCode::None;
    }
    return refusal;
}

// --- Status ------------------------------------------------------------------------------------

Sense DriveModel::getDeviceStatus(Request& request) {
    constexpr std::uint8_t Ready = 0x80;
    DeviceStatus status{.sense = m_powered.sense, .security = securityByte()};
    if (request.setup.wValue != 0) {
        status.readiness = m_powered.notReadyReads == 0 ? Ready : 0;
        m_powered.notReadyReads -= m_powered.notReadyReads == 0 ? 0U : 1U;
    }
    request.answer = cutTo(request.setup.wLength, encodeDeviceStatus(status));
    return SenseCode::None;
}

Sense DriveModel::getTimeStatus(Request& request) {
    constexpr std::uint64_t MostSeconds = std::numeric_limits<std::uint32_t>::max();
    TimeStatus status{
        .clockNotValid = !m_remembered.clock,
        .autoClearExpired = m_remembered.autoClearExpired,
        .clock = {},
        .autoClearPeriod = m_remembered.autoClearPeriod,
        .idleLockPeriod = m_remembered.idleLockPeriod,
    };
    if (m_remembered.clock) {
        const auto shown = m_remembered.clock->shown + (request.now - m_remembered.clock->at);
        status.clock = clockAt(shown);
    }
    if (m_remembered.autoClearExpired) {
        status.autoClearElapsed = m_remembered.autoClearPeriod;
    } else if (m_remembered.autoClearPeriod != 0) {
        status.autoClearElapsed =
            static_cast<std::uint32_t>(std::min(autoClearElapsed(), MostSeconds));
    }
    request.answer = cutTo(request.setup.wLength, encodeTimeStatus(status));
    return SenseCode::None;
}

// --- Log-in and log-out ------------------------------------------------------------------------

Sense DriveModel::authenticate(Request& request) {
    const auto payload = decodeAuthPayload(request.sent.first<AuthPayload::Size>());
    const bool isFirstStep = computeState() == StateLocked;
    if (payload.firstStep != isFirstStep) {
        return SenseCode::InvalidFieldInParameters;
    }
    return isFirstStep ? authenticateFirst(payload.digest) : authenticateSecond(payload.digest);
}

Sense DriveModel::authenticateFirst(const PasswordDigest& digest) {
    if (!m_remembered.firstPassword || !equalSecrets(digest, *m_remembered.firstPassword)) {
        return SenseCode::AuthenticationFailed;
    }
    m_powered.firstPasswordGiven = true;
    m_powered.unlocked = !m_remembered.secondPassword;
    return SenseCode::None;
}

Sense DriveModel::authenticateSecond(const PasswordDigest& digest) {
    // Before the comparison: a try that is cut short by pulling the plug has been counted.
    ++m_remembered.wrongSecondPasswords;
    if (!m_remembered.secondPassword || !equalSecrets(digest, *m_remembered.secondPassword)) {
        settle(m_remembered.latest);
        return SenseCode::AuthenticationFailed;
    }
    m_remembered.wrongSecondPasswords = 0;
    m_powered.unlocked = true;
    return SenseCode::None;
}

Sense DriveModel::logout(Request& /*request*/) {
    lock();
    return SenseCode::None;
}

// --- Areas -------------------------------------------------------------------------------------

Sense DriveModel::getAreaInfos(Request& request) {
    const AreaInfoTable table =
        encodeAreaInfoTable(m_manufactured.totalSectors, m_remembered.areas);
    const std::size_t size =
        AreaInfoTable::HeaderSize + m_remembered.areas.size() * AreaInfoEntry::Size;
    request.answer = cutTo(request.setup.wLength, table.bytes().first(size));
    return SenseCode::None;
}

Sense DriveModel::setAreaInfos(Request& request) {
    std::vector<AreaInfoEntry> areas;
    for (auto rest = request.sent; !rest.empty(); rest = rest.subspan(AreaInfoEntry::Size)) {
        areas.push_back(decodeAreaInfoEntry(rest.first<AreaInfoEntry::Size>()));
    }
    if (!areSoundAreas(areas, m_manufactured.totalSectors)) {
        return SenseCode::InvalidFieldInParameters;
    }
    m_powered.setup.areas = std::move(areas);
    return SenseCode::None;
}

Sense DriveModel::resetAreaInfos(Request& /*request*/) {
    if (m_remembered.key) {
        return SenseCode::StateForbids;
    }
    forgetPasswords();
    m_powered.setup.forget();
    if (m_remembered.setupToCome) {
        m_remembered.setupToCome->forget();
        m_remembered.setupToCome.reset();
    }
    m_remembered.areas = {{.sectorCount = AreaInfoEntry::AllSectors}};
    m_remembered.resetAtPowerUp = true;
    // Nothing is left to clear or to lock.
    m_remembered.autoClearPeriod = 0;
    m_remembered.autoClearHeldAt.reset();
    m_remembered.autoClearExpired = false;
    m_remembered.idleLockPeriod = 0;
    return SenseCode::None;
}

Sense DriveModel::reconnect(Request& /*request*/) {
    SetupParts& setup = m_powered.setup;
    if (!isComplete(setup)) {
        return SenseCode::WrongSequence;
    }
    if (setup.areas) {
        m_remembered.setupToCome = setup;
    }
    setup.forget();
    m_powered.wantsReconnect = true;
    return SenseCode::None;
}

// --- Key and passwords -------------------------------------------------------------------------

Sense DriveModel::setEncryptionInfo(Request& request) {
    auto info = decodeEncryptionInfo(request.sent);
    if (!info) {
        return SenseCode::InvalidFieldInParameters;
    }
    forgetSecret(m_powered.setup.key);
    m_powered.setup.key = info->automaticKey ? drawKey() : info->key;
    m_powered.setup.keyIsAutomatic = info->automaticKey;
    wipe(info->key);
    return SenseCode::None;
}

/// The next key of the drive's own: digests of its seed, the key's number and the half's.
MediumKey DriveModel::drawKey() {
    constexpr record::Field Seed{0, 8};
    constexpr record::Field Number{8, 8};
    constexpr record::Field Half{16, 1};
    constexpr std::size_t HalfSize = 32;
    std::array<std::uint8_t, 17> source{};
    record::put(source, Seed, m_manufactured.keySeed);
    record::put(source, Number, m_remembered.keysDrawn);
    ++m_remembered.keysDrawn;

    MediumKey key{};
    for (std::size_t half = 0; half < key.size() / HalfSize; ++half) {
        record::put(source, Half, half);
        auto digest = digestOf(source);
        std::ranges::copy(digest, &key[half * HalfSize]);
        wipe(digest);
    }
    wipe(source);
    return key;
}

Sense DriveModel::clearEncryptionInfo(Request& request) {
    if (!std::ranges::equal(request.sent, ClearMagic)) {
        return SenseCode::InvalidFieldInParameters;
    }
    destroyKey();
    forgetPasswords();
    return SenseCode::None;
}

Sense DriveModel::setAuthInfo(Request& request) {
    const auto info = decodeAuthInfo(request.sent);
    if (!info) {
        return SenseCode::InvalidFieldInParameters;
    }
    const bool isSetup = computeState() == StateNoPassword;
    switch (info->kind) {
    case AuthInfo::Set:
    case AuthInfo::SetBoth:
        return isSetup ? setNewPasswords(*info) : SenseCode::StateForbids;
    case AuthInfo::Change:
    case AuthInfo::ChangeBoth:
        return isSetup ? SenseCode::StateForbids : changePasswords(*info);
    }
    return SenseCode::InvalidFieldInParameters;
}

/// The passwords of a first-time set-up. A number of trials is what tells a second password from
/// a first.
Sense DriveModel::setNewPasswords(const AuthInfo& info) {
    SetupParts& setup = m_powered.setup;
    if (info.kind == AuthInfo::SetBoth) {
        if (!setup.secondPassword) {
            return SenseCode::WrongSequence;
        }
        setup.firstPassword = info.slot1;
        setup.secondPassword = info.slot2;
    } else if (info.numberOfTrials != 0) {
        forgetSecret(setup.firstPassword);
        setup.secondPassword = info.slot1;
        setup.trialsAllowed = info.numberOfTrials;
    } else {
        setup.firstPassword = info.slot1;
        forgetSecret(setup.secondPassword);
        setup.trialsAllowed = 0;
    }
    return SenseCode::None;
}

Sense DriveModel::changePasswords(const AuthInfo& info) {
    const bool changesSecond = info.kind == AuthInfo::Change && info.numberOfTrials != 0;
    auto& changed = changesSecond ? m_remembered.secondPassword : m_remembered.firstPassword;
    if (!changed || !equalSecrets(info.slot2, *changed)) {
        return SenseCode::AuthenticationFailed;
    }
    if (info.kind == AuthInfo::ChangeBoth) {
        // The number of passwords stays what set-up made it.
        if (!m_remembered.secondPassword) {
            return SenseCode::WrongSequence;
        }
        m_remembered.secondPassword = info.slot3;
    }
    changed = info.slot1;
    if (changesSecond) {
        m_remembered.trialsAllowed = info.numberOfTrials;
        m_remembered.wrongSecondPasswords = 0;
    }
    return SenseCode::None;
}

// --- Time --------------------------------------------------------------------------------------

Sense DriveModel::setErasePeriod(Request& request) {
    m_remembered.autoClearPeriod =
        static_cast<std::uint32_t>(request.setup.wIndex) << 16 | request.setup.wValue;
    m_remembered.autoClearSince = request.now;
    m_remembered.autoClearHeldAt.reset();
    m_remembered.autoClearExpired = false;
    return SenseCode::None;
}

Sense DriveModel::setIdleLockPeriod(Request& request) {
    m_remembered.idleLockPeriod = request.setup.wValue;
    return SenseCode::None;
}

Sense DriveModel::setCurrentTime(Request& request) {
    const auto shown = settableMoment(decodeCurrentTime(request.sent.first<CurrentTime::Size>()));
    if (!shown) {
        return SenseCode::InvalidFieldInParameters;
    }
    m_remembered.clock = {.shown = *shown, .at = request.now};
    if (m_remembered.autoClearHeldAt) {
        m_remembered.autoClearSince =
            request.now - std::chrono::seconds{*m_remembered.autoClearHeldAt};
        m_remembered.autoClearHeldAt.reset();
    }
    return SenseCode::None;
}

// --- Hint data ---------------------------------------------------------------------------------

Sense DriveModel::readHintData(Request& request) {
    const std::size_t address = request.setup.wIndex;
    if (address + request.setup.wLength > HintDataSize) {
        return SenseCode::InvalidFieldInCommand;
    }
    const auto bytes = std::span(m_remembered.hintData).subspan(address, request.setup.wLength);
    request.answer.assign(bytes.begin(), bytes.end());
    return SenseCode::None;
}

Sense DriveModel::writeHintData(Request& request) {
    const std::size_t address = request.setup.wIndex;
    if (address + request.sent.size() > HintDataSize) {
        return SenseCode::InvalidFieldInCommand;
    }
    std::ranges::copy(request.sent, std::span(m_remembered.hintData).subspan(address).begin());
    return SenseCode::None;
}

} // namespace zelto::simulator
