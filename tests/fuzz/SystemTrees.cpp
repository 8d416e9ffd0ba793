// The kernel's trees as a hostile device would have them, "sys" and "proc": every walk ends, the
// drive's disks are those below its own entry and what is stacked on them, and nobody holds a
// volume who doesn't mention it.

#include "device/Discovery.h"
#include "device/IORegistry.h"
#include "platform/linux/BlockDevices.h"
#include "platform/linux/DiskHolders.h"
#include "platform/linux/LinuxComputer.h"
#include "platform/linux/LinuxRegistry.h"
#include "platform/linux/MountInfo.h"
#include "platform/linux/TextFile.h"
#include "tests/fuzz/DescribedFolder.h"
#include "tests/fuzz/Target.h"

#include <algorithm>
#include <functional>
#include <set>
#include <unistd.h>

namespace zelto::test {
namespace {

using namespace linux_platform;
namespace fs = std::filesystem;

constexpr std::uint16_t Vendor = 0x07F7;
constexpr std::uint16_t Product = 0x0135;

bool isUsbDevice(const fs::path& folder) {
    std::error_code ignored;
    return fs::read_symlink(folder / "subsystem", ignored).filename() == "usb" &&
           fs::exists(folder / "idVendor", ignored);
}

/// The real folders below one, and what their "holders" lead to; other USB devices left out.
void addBelow(const fs::path& folder, std::set<fs::path>& found) {
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
        const fs::path& path = at->path();
        std::error_code gone;
        const bool isHolder = folder.filename() == "holders";
        const fs::path real = isHolder ? fs::canonical(path, gone) : path;
        if (gone || !fs::is_directory(fs::symlink_status(real, gone)) ||
            (!isHolder && isUsbDevice(real)) || !found.insert(real).second) {
            continue;
        }
        addBelow(real, found);
    }
}

std::set<std::string> namesBelow(const fs::path& device) {
    std::set<fs::path> folders;
    addBelow(device, folders);
    std::set<std::string> names;
    for (const fs::path& folder : folders) {
        names.insert(blockName(folder));
    }
    return names;
}

/// Of the drive that was opened at that place, or, without one, of whichever says it is the drive.
void checkRegistry(const fs::path& sysfs, std::uint8_t diskNumber, std::uint32_t location) {
    LinuxRegistry registry(sysfs);
    std::vector<std::string> names;
    const bool isFound = IORegistry::Scan_ZELTOusb(registry,
                                                   {.vendor = Vendor,
                                                    .product = Product,
                                                    .serial = "ZD",
                                                    .diskNumber = diskNumber,
                                                    .location = location},
                                                   names);
    require(isFound || names.empty(), "a drive that is not found has no disks");
    const auto isTheirs = [&](const auto& numbered) {
        const SysfsEntry& device = numbered.second;
        const auto below = namesBelow(device.folder());
        return device.hexadecimal("idVendor") == Vendor &&
               device.hexadecimal("idProduct") == Product &&
               (location == 0 || device.usbLocation() == location) &&
               std::ranges::all_of(names,
                                   [&](const std::string& name) { return below.contains(name); });
    };
    require(!isFound || std::ranges::any_of(usbDevices(sysfs), isTheirs),
            "the disks are those of one such drive");
}

void checkBlockDevice(const BlockDevices& devices, const std::string& name) {
    const auto entry = devices.find(name);
    const auto device = devices.usbDeviceOf(name);
    require(entry || !device, "what is not there hangs on nothing");
    require(!device || isUsbDevice(device->folder()), "a disk hangs on a USB device");
    const auto stacked = devices.stackedOn(name);
    require(std::set(stacked.begin(), stacked.end()).size() == stacked.size() &&
                std::ranges::find(stacked, name) == stacked.end(),
            "each volume is stacked once, and none on itself");
    require(!devices.baseOf(name).empty() || name.empty(), "everything has a base");
    if (!entry) {
        return;
    }
    const DiskIdentity itself{device ? device->usbLocation().value_or(0) : 0, mediaName(*entry),
                              entry->decimal("size").value_or(0)};
    DiskIdentity another = itself;
    ++another.location;
    require(!devices.isDisk(name, another), "a disk of another drive is another disk");
    require(!devices.isDisk(name, itself) || device, "a disk is a drive's");
    require(!devices.isDisk(name, itself) || !devices.isPartitionOf(name, name),
            "no disk is its own partition");
}

void checkComputer(const DescribedFolder& folder) {
    const Waiting waiting;
    const LinuxComputer computer(waiting, folder / "proc", folder / "sys");
    std::set<fs::path> mounted{"/media", "/run/media"};
    for (const auto& line :
         parseMountInfo(readTextFile(folder / "proc/self/mountinfo").value_or(""))) {
        mounted.insert(line.f_mntonname);
    }
    for (const auto& root : computer.mountRoots({Vendor, Product})) {
        require(root != "/" && mounted.contains(root), "a drive's volume is mounted somewhere");
    }
    (void)computer.bundlePath();
    (void)computer.filesBesideBundle();
    for (const auto& application : computer.launchedApplications()) {
        require(!application.empty(), "a program has a path");
    }
}

/// Whether any link of a process leads there.
bool isHeld(const fs::path& proc, const std::string& place) {
    std::error_code error;
    for (fs::recursive_directory_iterator at(proc, error), end; !error && at != end;
         at.increment(error)) {
        std::error_code noLink;
        if (fs::read_symlink(at->path(), noLink).string().starts_with(place)) {
            return true;
        }
    }
    return false;
}

void checkHolders(const DescribedFolder& folder) {
    const std::string disk = folder / "dev/sdb";
    const std::string volume = folder / "media/stick";
    const fs::path proc = folder / "proc";
    const auto holders =
        programsHolding({disk}, {{"/", "/dev/sda1"}, {volume, disk}}, proc, ::getuid());
    require(holders.empty() || isHeld(proc, disk) || isHeld(proc, volume),
            "who holds a volume has something open there");
    require(std::ranges::adjacent_find(holders, std::ranges::greater_equal()) == holders.end() &&
                std::ranges::find(holders, "") == holders.end(),
            "each is named once");
}

} // namespace
} // namespace zelto::test

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zelto::test;
    Input input(data, size);
    const std::uint8_t diskNumber = input.takeByte() & 3U;
    const DescribedFolder folder(input.restAsText());
    constexpr std::uint32_t Opened = 1U << 16U | 5U;
    for (const std::uint32_t location : {0U, Opened}) {
        checkRegistry(folder / "sys", diskNumber, location);
    }
    const BlockDevices devices(folder / "sys");
    for (const char* const name : {"sdb", "sdb1", "dm-0", "dm-1", "cciss/c0d0", "", "."}) {
        checkBlockDevice(devices, name);
    }
    for (const char* const source : {"/dev/sdb", "/dev/mapper/luks", "sdb", ""}) {
        (void)devices.nameOfMounted("8:16", source);
    }
    checkComputer(folder);
    checkHolders(folder);
    return 0;
}
