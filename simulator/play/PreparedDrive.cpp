#include "simulator/play/PreparedDrive.h"

#include "device/DeviceWrites.h"
#include "device/ZELTOctrl.h"
#include "digest/SHA256.h"
#include "settings/AreaPacking.h"
#include "simulator/fat/FatLayout.h"
#include "simulator/fat/PartitionTable.h"

#include <algorithm>
#include <array>

namespace zelto::simulator {

namespace {

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

PasswordDigest passwordDigest(const std::string& password) {
    return digestOf({reinterpret_cast<const std::uint8_t*>(password.data()), password.size()});
}

/// The areas as set-up lays them out, the tool area behind them.
AreaInfoTable layOut(const DriveSetup& setup) {
    AreaChoice choice;
    for (std::size_t disk = 0; disk < setup.areas.size(); ++disk) {
        choice.mebibytes.at(disk) = setup.areas[disk].mebibytes;
        choice.secure.at(disk) = setup.areas[disk].isSecure;
    }
    AreaInfoTable table;
    rebuildUserAreas(table, choice);
    (void)appendToolArea(table); // There is room for four areas.
    return table;
}

IOReturn sendPasswords(UsbDeviceInterface& drive, const DriveSetup& setup) {
    const PasswordDigest first = passwordDigest(setup.firstPassword);
    return setup.secondPassword.empty()
               ? writeFirstPassword(drive, first)
               : writeBothPasswords(drive, first, passwordDigest(setup.secondPassword),
                                    setup.trials);
}

bool sendSecrets(UsbDeviceInterface& drive, const DriveSetup& setup) {
    return writeEncryptionInfo(drive, {.automaticKey = true}) == kIOReturnSuccess &&
           sendPasswords(drive, setup) == kIOReturnSuccess;
}

bool sendSettings(UsbDeviceInterface& drive, const DriveSetup& setup, Moment now) {
    return (!setup.clockIsSet || writeCurrentTime(drive, now) == kIOReturnSuccess) &&
           writePeriods(drive, {.autoClearSeconds = setup.autoClearSeconds,
                                .idleLockSeconds = setup.idleLockSeconds}) == kIOReturnSuccess &&
           writeShowRemainingTime(drive, setup.showsRemainingTime) == kIOReturnSuccess;
}

bool logIn(UsbDeviceInterface& drive, const std::string& password, bool firstStep) {
    return writeAuthPayload(drive, {.firstStep = firstStep, .digest = passwordDigest(password)}) ==
           kIOReturnSuccess;
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
    const AreaInfoTable areas = layOut(setup);
    const AreaInfoEntry last = areas.entry(areas.storedCount() - 1U);
    auto drive = makeDrive(setup.serial, last.firstSector + last.sectorCount);
    DirectHandle handle(*drive, now);
    const bool secure = std::ranges::any_of(setup.areas, &DriveSetup::Area::isSecure);
    drive->powerUp(now);
    bool done = writeAreaInfos(handle, storedEntries(areas)) == kIOReturnSuccess &&
                (!secure || sendSecrets(handle, setup)) && sendSettings(handle, setup, now) &&
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
