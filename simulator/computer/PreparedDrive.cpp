#include "simulator/computer/PreparedDrive.h"

#include "device/DeviceWrites.h"
#include "device/ZELTOctrl.h"
#include "digest/SHA256.h"
#include "settings/AreaPacking.h"
#include "simulator/computer/VirtualComputer.h"

#include <algorithm>
#include <iterator>

namespace zelto::simulator {

namespace {

const std::string ToolLabel = "ZELTO TOOL";

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

/// Formats the volumes on the drive's media, the tool area's among them.
bool formatAll(VirtualComputer& workshop, const DriveSetup& setup) {
    std::vector<std::string> labels;
    std::ranges::transform(setup.areas, std::back_inserter(labels), &DriveSetup::Area::label);
    labels.push_back(ToolLabel);
    return std::ranges::all_of(workshop.disks.all(), [&](const auto& disk) {
        const std::string& label = labels.at(disk->unit);
        return label.empty() || workshop.diskTool.eraseDisk(disk->bsdName, disk->identity(), label);
    });
}

} // namespace

std::shared_ptr<DriveOnBus> makePreparedDrive(const DriveSetup& setup, Moment now) {
    const AreaInfoTable areas = layOut(setup);
    const AreaInfoEntry last = areas.entry(areas.storedCount() - 1U);
    auto drive = makeDrive(setup.serial, last.firstSector + last.sectorCount);
    const bool secure = std::ranges::any_of(setup.areas, &DriveSetup::Area::isSecure);
    VirtualComputer workshop(now);
    workshop.usb.setReconnectDelay(std::nullopt);
    const auto plug = [&] {
        workshop.plug(drive);
        auto handle = workshop.usb.makeHandle(workshop.usb.attachments().front());
        return handle->USBDeviceOpen() == kIOReturnSuccess ? std::move(handle) : nullptr;
    };
    auto handle = plug();
    bool done = writeAreaInfos(*handle, storedEntries(areas)) == kIOReturnSuccess &&
                (!secure || sendSecrets(*handle, setup)) && sendSettings(*handle, setup, now) &&
                TKVR21_Reconnect(*handle, 1, 1) == kIOReturnSuccess;
    handle = plug();
    if (done && secure) {
        done = logIn(*handle, setup.firstPassword, true) &&
               (setup.secondPassword.empty() || logIn(*handle, setup.secondPassword, false));
    }
    done = done && formatAll(workshop, setup);
    workshop.unplug(drive);
    return done ? drive : nullptr;
}

} // namespace zelto::simulator
