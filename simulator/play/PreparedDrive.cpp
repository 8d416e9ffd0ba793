#include "simulator/play/PreparedDrive.h"

#include "device/ZELTOctrl.h"
#include "digest/SHA256.h"
#include "simulator/fat/FatLayout.h"
#include "simulator/fat/PartitionTable.h"

#include <algorithm>
#include <array>

namespace zelto::simulator {

namespace {

constexpr std::uint64_t SectorsPerMebibyte = 2048;
constexpr std::uint64_t ToolAreaSectors = 40960;
const std::string ToolLabel = "ZELTO TOOL";

/// A cable straight to the drive, without a computer.
class DirectHandle : public UsbDeviceInterface {
public:
    DirectHandle(DriveOnBus& drive, Moment now) : m_drive(drive), m_now(now) {}
    [[nodiscard]] std::uint16_t GetDeviceVendor() const override { return UsbIdentity::Vendor; }
    [[nodiscard]] std::uint16_t GetDeviceProduct() const override { return UsbIdentity::Product; }
    [[nodiscard]] std::uint16_t GetDeviceReleaseNumber() const override { return 0; }
    [[nodiscard]] IOReturn USBDeviceOpen() override { return kIOReturnSuccess; }
    [[nodiscard]] std::uint8_t USBGetSerialNumberStringIndex() const override { return 0; }
    [[nodiscard]] IOReturn DeviceRequest(IOUSBDevRequest& request) override {
        return m_drive.control(request, m_now);
    }

private:
    DriveOnBus& m_drive;
    Moment m_now;
};

/// A unit's medium, without a computer.
class DirectMedium : public BlockDevice {
public:
    DirectMedium(DriveOnBus& drive, std::size_t unit, Moment now)
        : m_drive(drive), m_unit(unit), m_now(now) {}
    [[nodiscard]] std::uint64_t sectorCount() const override {
        return m_drive.drive().sectorCount(m_unit, m_now);
    }
    [[nodiscard]] bool read(std::uint64_t firstSector, std::span<std::uint8_t> into) override {
        return m_drive.read(m_unit, firstSector, into, m_now);
    }
    [[nodiscard]] bool write(std::uint64_t firstSector,
                             std::span<const std::uint8_t> from) override {
        return m_drive.write(m_unit, firstSector, from, m_now);
    }

private:
    DriveOnBus& m_drive;
    std::size_t m_unit;
    Moment m_now;
};

PasswordDigest digestOf(const std::string& password) {
    PasswordDigest digest{};
    SHA256 sha;
    const std::vector<std::uint8_t> bytes(password.begin(), password.end());
    sha.Init();
    sha.Input(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
    sha.Get(digest.data());
    return digest;
}

std::vector<AreaInfoEntry> makeEntries(const DriveSetup& setup) {
    std::vector<AreaInfoEntry> entries;
    std::uint64_t next = 0;
    const auto add = [&](std::uint64_t sectors, bool secure) {
        AreaInfoEntry entry;
        entry.type = secure ? AreaInfoEntry::SecureArea : AreaInfoEntry::NormalArea;
        entry.flags = static_cast<std::uint8_t>(AreaInfoEntry::InUse | AreaInfoEntry::SentBySetup |
                                                (secure ? AreaInfoEntry::Secure : 0));
        entry.firstSector = next;
        entry.sectorCount = sectors;
        next += sectors;
        entries.push_back(entry);
    };
    for (const DriveSetup::Area& area : setup.areas) {
        add(area.mebibytes * SectorsPerMebibyte, area.isSecure);
    }
    add(ToolAreaSectors, false);
    return entries;
}

bool sendAreas(UsbDeviceInterface& drive, const std::vector<AreaInfoEntry>& entries) {
    std::vector<std::uint8_t> bytes;
    for (const AreaInfoEntry& entry : entries) {
        const auto encoded = encodeAreaInfoEntry(entry);
        bytes.insert(bytes.end(), encoded.begin(), encoded.end());
    }
    return TKVR21_SetAreaInfos(drive, bytes.data(), static_cast<std::uint32_t>(bytes.size()),
                               false) == kIOReturnSuccess;
}

bool sendPassword(UsbDeviceInterface& drive, const AuthInfo& info) {
    const auto bytes = encodeAuthInfo(info);
    return TKVR21_SetAuthInfo(drive, static_cast<std::uint16_t>(info.size()), bytes.data(), true,
                              false) == kIOReturnSuccess;
}

bool sendSecrets(UsbDeviceInterface& drive, const DriveSetup& setup) {
    const auto key = encodeEncryptionInfo({.automaticKey = true, .key = {}});
    if (TKVR21_SetEncryptionInfo(drive, key.data(), key.size(), true, false) != kIOReturnSuccess) {
        return false;
    }
    AuthInfo first;
    first.slot1 = digestOf(setup.firstPassword);
    if (setup.secondPassword.empty()) {
        return sendPassword(drive, first);
    }
    AuthInfo second;
    second.numberOfTrials = setup.trials;
    second.slot1 = digestOf(setup.secondPassword);
    AuthInfo both = first;
    both.kind = AuthInfo::SetBoth;
    both.slot2 = second.slot1;
    return sendPassword(drive, second) && sendPassword(drive, both);
}

bool sendClock(UsbDeviceInterface& drive, Moment now) {
    const auto day = std::chrono::floor<std::chrono::days>(now);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss time(now - day);
    const CurrentTime current{.year = static_cast<std::uint16_t>(int(date.year())),
                              .month = static_cast<std::uint8_t>(unsigned(date.month())),
                              .day = static_cast<std::uint8_t>(unsigned(date.day())),
                              .hour = static_cast<std::uint8_t>(time.hours().count()),
                              .minute = static_cast<std::uint8_t>(time.minutes().count()),
                              .second = static_cast<std::uint8_t>(time.seconds().count())};
    const auto bytes = encodeCurrentTime(current);
    return TKVR21_ZELTO_SetCurrentTime(drive, bytes.data(), bytes.size()) == kIOReturnSuccess;
}

bool sendSettings(UsbDeviceInterface& drive, const DriveSetup& setup, Moment now) {
    const std::uint8_t hint = setup.showsRemainingTime ? 1 : 0;
    return (!setup.clockIsSet || sendClock(drive, now)) &&
           TKVR21_ZELTO_SetErasePeriod(drive, setup.autoClearSeconds) == kIOReturnSuccess &&
           TKVR21_ZELTO_SetIdleLockPeriod(drive, setup.idleLockSeconds) == kIOReturnSuccess &&
           TKVR21_ZELTO_WriteHintData(drive, HintAddress::ShowRemainingTime, &hint, 1, true) ==
               kIOReturnSuccess;
}

bool logIn(UsbDeviceInterface& drive, const std::string& password, bool firstStep) {
    const auto payload = encodeAuthPayload({.firstStep = firstStep, .digest = digestOf(password)});
    return TKVR21_Authenticate(drive, payload.data(), 0) == kIOReturnSuccess;
}

bool formatUnit(DriveOnBus& drive, std::size_t unit, const std::string& label, Moment now) {
    DirectMedium medium(drive, unit, now);
    Partition partition = partitionFilling(medium.sectorCount(), 0);
    partition.type = fatPartitionType(partition.sectorCount);
    BlockDevicePart part(medium, partition.firstSector, partition.sectorCount);
    return label.empty() ||
           (writeMasterBootRecord(medium, partition) &&
            formatFat(part, label, static_cast<std::uint32_t>(partition.firstSector), now));
}

bool formatAll(DriveOnBus& drive, const DriveSetup& setup, Moment now) {
    for (std::size_t unit = 0; unit < setup.areas.size(); ++unit) {
        if (!formatUnit(drive, unit, setup.areas[unit].label, now)) {
            return false;
        }
    }
    return formatUnit(drive, setup.areas.size(), ToolLabel, now);
}

} // namespace

std::shared_ptr<DriveOnBus> makePreparedDrive(const DriveSetup& setup, Moment now) {
    const std::vector<AreaInfoEntry> entries = makeEntries(setup);
    const AreaInfoEntry& last = entries.back();
    auto drive = makeDrive(setup.serial, last.firstSector + last.sectorCount);
    DirectHandle handle(*drive, now);
    const bool secure = std::ranges::any_of(setup.areas, &DriveSetup::Area::isSecure);
    drive->powerUp(now);
    bool done = sendAreas(handle, entries) && (!secure || sendSecrets(handle, setup)) &&
                sendSettings(handle, setup, now) &&
                TKVR21_Reconnect(handle, 1, 1) == kIOReturnSuccess && drive->takeReconnect();
    drive->powerOff(now);
    drive->powerUp(now);
    if (done && secure) {
        done = logIn(handle, setup.firstPassword, true) &&
               (setup.secondPassword.empty() || logIn(handle, setup.secondPassword, false));
    }
    done = done && formatAll(*drive, setup, now);
    drive->powerOff(now);
    return done ? drive : nullptr;
}

} // namespace zelto::simulator
