#include "platform/linux/LinuxRegistry.h"
#include "device/IORegistry.h"
#include "platform/linux/BlockDevices.h"
#include "platform/linux/SysfsEntry.h"
#include "tests/support/SysfsTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace zelto::test {
namespace {

using namespace linux_platform;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr auto Serial = "ZD0123456789ABCD";

/// The names of the tree's entries, each with as many dots before it as it lies deep.
void outline(const RegistryEntry& entry, const std::string& indent,
             std::vector<std::string>& lines) {
    lines.push_back(indent + entry.IORegistryEntryGetNameInPlane("IOService").value());
    const auto children = entry.IORegistryEntryGetChildIterator("IOService");
    while (const auto child = children->IOIteratorNext()) {
        outline(*child, indent + ".", lines);
    }
}

std::vector<std::string> outlineOf(const SysfsTree& tree, const OpenedDevice& opened = {}) {
    std::vector<std::string> lines;
    LinuxRegistry registry(tree.path());
    outline(*registry.IORegistryGetRootEntry(opened), "", lines);
    return lines;
}

/// What a walk of the whole tree finds; nothing when the walk says that it is not complete.
std::optional<std::vector<std::string>> scan(const SysfsTree& tree, std::uint8_t diskNumber,
                                             const std::string& serial = Serial,
                                             std::uint32_t location = 0) {
    LinuxRegistry registry(tree.path());
    std::vector<std::string> names;
    const bool complete =
        IORegistry::Scan_ZELTOusb(registry, {0x07f7, 0x0135, serial, diskNumber, location}, names);
    return complete ? std::optional(names) : std::nullopt;
}

/// A root hub, a hub on it, and the drive behind the hub.
class Drive : public ::testing::Test {
protected:
    Drive() {
        tree.addUsbDevice("pci/usb1", 1, 1, "1d6b", "0002", "");
        tree.addUsbDevice("pci/usb1/1-1", 1, 2, "05e3", "0608", "");
        tree.addUsbDevice(place, 1, 5, "07f7", "0135", Serial);
    }

    SysfsTree tree;
    const std::string place = "pci/usb1/1-1/1-1.2";
    /// Bus 1, device 5.
    static constexpr std::uint32_t Location = (1U << 16U) | 5U;
};

TEST_F(Drive, AppearsOnceBesideTheHubThatItHangsOn) {
    EXPECT_THAT(outlineOf(tree), ElementsAre("Root", ".usb1", ".1-1", ".1-1.2", ".End"));
}

TEST_F(Drive, ShowsDisksAndPartitionsInTheOrderOfItsUnits) {
    // Letters are given in the order in which the disks get ready, not in the order of the units.
    tree.addPartition(tree.addDisk(place, 0, "sdc", "ZELTO DISK1     ", 2048), "sdc1", 1);
    tree.addDisk(place, 1, "sdb", "ZELTO DISK2     ", 2048);
    tree.addDisk(place, 10, "sda", "ZELTO DISK3     ", 2048);
    EXPECT_THAT(outlineOf(tree),
                ElementsAre("Root", ".usb1", ".1-1", ".1-1.2", "..1-1.2:1.0", "...host0",
                            "....target0:0:0", ".....0:0:0:0", "......KESTRIN ZELTO DISK1 Media",
                            ".......sdc1", ".....0:0:0:1", "......KESTRIN ZELTO DISK2 Media",
                            ".....0:0:0:10", "......KESTRIN ZELTO DISK3 Media", ".End"));
}

TEST_F(Drive, HasItsIdentifiersAsNumbersAndItsSerialAsText) {
    const SysfsEntry entry(tree.path() / "devices" / place);
    LinuxRegistry registry(tree.path());
    const auto root = registry.IORegistryGetRootEntry({});
    const auto devices = root->IORegistryEntryGetChildIterator("IOService");
    const auto rootHub = devices->IOIteratorNext();
    const auto hub = devices->IOIteratorNext();
    const auto drive = devices->IOIteratorNext();
    EXPECT_THAT(drive->IORegistryEntryCreateCFProperties().value(),
                ElementsAre(std::pair("idVendor", RegistryValue(std::int64_t{0x07f7})),
                            std::pair("idProduct", RegistryValue(std::int64_t{0x0135})),
                            std::pair("USB Serial Number", RegistryValue(std::string(Serial)))));
    EXPECT_EQ(drive->IOObjectGetClass(), "IOUSBDevice");
    EXPECT_TRUE(drive->IOObjectConformsTo("IOService"));
    EXPECT_FALSE(drive->IOObjectConformsTo("IOMedia"));
    EXPECT_FALSE(root->IOObjectConformsTo("IOService"));
}

TEST_F(Drive, GivesAllItsBlockNamesToAWalkOfTheWholeDrive) {
    tree.addPartition(tree.addDisk(place, 0, "sdc", "ZELTO DISK1     ", 2048), "sdc1", 1);
    tree.addPartition(tree.addDisk(place, 1, "sdb", "ZELTO DISK2     ", 2048), "sdb1", 1);
    EXPECT_EQ(scan(tree, 0), (std::vector<std::string>{"sdc", "sdc1", "sdb", "sdb1"}));
}

TEST_F(Drive, GivesOneDisksBlockNamesToAWalkForThatDisk) {
    tree.addPartition(tree.addDisk(place, 0, "sdc", "ZELTO DISK1     ", 2048), "sdc1", 1);
    tree.addPartition(tree.addDisk(place, 1, "sdb", "ZELTO DISK2     ", 2048), "sdb1", 1);
    EXPECT_EQ(scan(tree, 2), (std::vector<std::string>{"sdb", "sdb1"}));
    EXPECT_EQ(scan(tree, 3), std::vector<std::string>{});
}

TEST_F(Drive, IsClosedAlthoughItIsTheLastDevice) {
    tree.addDisk(place, 0, "sdb", "ZELTO DISK1     ", 2048);
    EXPECT_TRUE(scan(tree, 0).has_value());
}

TEST_F(Drive, IsNotFoundUnderAnotherSerial) {
    EXPECT_EQ(scan(tree, 0, "ZD"), std::nullopt);
}

TEST_F(Drive, DoesNotMixWithADriveThatArrivedEarlierOnALaterPort) {
    const std::string other = "pci/usb1/1-1/1-1.1";
    tree.addUsbDevice(other, 1, 7, "07f7", "0135", "ZDOTHER");
    tree.addDisk(place, 0, "sdb", "ZELTO DISK1     ", 2048);
    tree.addDisk(other, 0, "sdd", "ZELTO DISK1     ", 2048);
    EXPECT_EQ(scan(tree, 0), std::vector<std::string>{"sdb"});
    EXPECT_EQ(scan(tree, 1, "ZDOTHER"), std::vector<std::string>{"sdd"});
}

TEST_F(Drive, IsTheOneThatIsOpenWhereAnotherSaysTheSameOfItself) {
    for (const std::string& serial : {std::string(Serial), std::string()}) {
        SysfsTree twins;
        const std::string other = "pci/usb1/1-2";
        twins.addUsbDevice(other, 1, 4, "07f7", "0135", serial);
        twins.addUsbDevice(place, 1, 5, "07f7", "0135", serial);
        twins.addDisk(other, 0, "sdb", "ZELTO DISK1     ", 2048);
        twins.addDisk(place, 0, "sdc", "ZELTO DISK1     ", 2048);
        EXPECT_EQ(scan(twins, 0, serial, Location), std::vector<std::string>{"sdc"});
        EXPECT_EQ(scan(twins, 0, serial, Location - 1), std::vector<std::string>{"sdb"});
    }
}

TEST_F(Drive, HidesWhatHangsOnOthersFromWhoHasItOpen) {
    const std::string other = "pci/usb1/1-2";
    tree.addUsbDevice(other, 1, 4, "07f7", "0135", Serial);
    tree.addDisk(other, 0, "sdb", "ZELTO DISK1     ", 2048);
    tree.addDevice(place + "/1-1.2:1.0", "usb");
    EXPECT_THAT(outlineOf(tree, {Location, Serial}),
                ElementsAre("Root", ".usb1", ".1-1", ".1-2", ".1-1.2", "..1-1.2:1.0", ".End"));
}

TEST_F(Drive, IsNotFoundOnceItHasLeftWhereAnotherSaysTheSameOfItself) {
    tree.addDisk(place, 0, "sdb", "ZELTO DISK1     ", 2048);
    EXPECT_EQ(scan(tree, 0, Serial, Location + 1), std::nullopt);
}

// The program keeps 63 characters of a serial number, and the low byte of each.
TEST_F(Drive, IsFoundByItsPlaceWhateverTheKernelMakesOfItsSerialNumber) {
    tree.addDisk(place, 0, "sdb", "ZELTO DISK1     ", 2048);
    for (const std::string& kernels : {std::string(126, 'Z'), std::string("Z\u00d6LT\u014d")}) {
        tree.set(place, "serial", kernels);
        EXPECT_EQ(scan(tree, 0, std::string(63, 'Z'), Location), std::vector<std::string>{"sdb"});
    }
}

TEST_F(Drive, IsNotTakenForAnotherProductThatHasItsPlace) {
    tree.set(place, "idProduct", "0136");
    EXPECT_EQ(scan(tree, 0, Serial, Location), std::nullopt);
}

TEST_F(Drive, HasNoDiskWhereTheUnitHasNoMedium) {
    tree.addPartition(tree.addDisk(place, 0, "sdb", "ZELTO DISK1     ", 0), "sdb1", 1);
    tree.addDisk(place, 1, "sdc", "ZELTO DISK2     ", 2048);
    EXPECT_EQ(scan(tree, 0), std::vector<std::string>{"sdc"});
}

TEST_F(Drive, NamesADiskWithoutScsiStringsByWhatThereIs) {
    const auto disk = tree.addDisk(place, 0, "sdb", "ZELTO DISK1     ", 2048);
    std::filesystem::remove(tree.path() / "devices" / disk / "device");
    EXPECT_EQ(mediaName(SysfsEntry(tree.path() / "devices" / disk)), "Media");
}

TEST_F(Drive, ShowsWhatIsStackedOnItsDisksAndPartitions) {
    const auto first = tree.addDisk(place, 0, "sdb", "ZELTO DISK1     ", 2048);
    const auto second = tree.addDisk(place, 1, "sdc", "ZELTO DISK2     ", 2048, "8:32");
    tree.addPartition(first, "sdb1", 1);
    tree.addPartition(second, "sdc1", 1, "8:33");
    const auto clear = tree.addMapping("dm-0", "253:0", "luks-1", {second + "/sdc1"});
    tree.addMapping("dm-10", "253:10", "vg-b", {clear});
    tree.addMapping("dm-2", "253:2", "vg-a", {clear});
    tree.addMapping("dm-3", "253:3", "whole", {first});
    using Names = std::vector<std::string>;
    EXPECT_EQ(scan(tree, 0),
              (Names{"sdb", "sdb1", "dm-3", "sdc", "sdc1", "dm-0", "dm-2", "dm-10"}));
    EXPECT_EQ(scan(tree, 1), (Names{"sdb", "sdb1", "dm-3"}));
    EXPECT_EQ(scan(tree, 2), (Names{"sdc", "sdc1", "dm-0", "dm-2", "dm-10"}));
}

TEST_F(Drive, EndsAWalkOfMappingsThatStandOnEachOther) {
    const auto disk = tree.addDisk(place, 0, "sdb", "ZELTO DISK1     ", 2048);
    const auto one = tree.addMapping("dm-0", "253:0", "one", {disk});
    tree.addMapping("dm-1", "253:1", "two", {one});
    tree.folder().link("devices/virtual/block/dm-1/holders/dm-0",
                       (tree.path() / "devices/virtual/block/dm-0").string());
    EXPECT_TRUE(scan(tree, 0).has_value());
    const BlockDevices devices(tree.path());
    EXPECT_THAT(devices.stackedOn("sdb"), ElementsAre("dm-1", "dm-0"));
    EXPECT_FALSE(devices.baseOf("dm-1").empty());
}

TEST(BlockDevices, KnowTheirPlaceInTheTree) {
    const SysfsTree tree;
    tree.addUsbDevice("pci/usb1/1-1", 1, 5, "07f7", "0135", Serial);
    const auto disk = tree.addDisk("pci/usb1/1-1", 0, "sdb", "ZELTO DISK1     ", 2048);
    tree.addPartition(disk, "sdb1", 1);
    const auto clear = tree.addMapping("dm-0", "253:0", "luks-1", {disk + "/sdb1"});
    tree.addMapping("dm-1", "253:1", "vg-a", {clear});
    tree.addMapping("dm-7", "253:7", "elsewhere", {});
    const BlockDevices devices(tree.path());
    for (const auto* name : {"sdb", "sdb1", "dm-0", "dm-1"}) {
        ASSERT_TRUE(devices.usbDeviceOf(name)) << name;
        EXPECT_EQ(devices.usbDeviceOf(name)->kernelName(), "1-1") << name;
    }
    for (const auto* name : {"dm-7", "sdz", "", "..", "../../devices"}) {
        EXPECT_FALSE(devices.usbDeviceOf(name)) << name;
    }
    EXPECT_THAT(devices.stackedOn("sdb"), ElementsAre("dm-1", "dm-0"));
    EXPECT_THAT(devices.stackedOn("dm-0"), ElementsAre("dm-1"));
    EXPECT_THAT(devices.stackedOn("sdz"), IsEmpty());
    EXPECT_EQ(devices.baseOf("dm-1"), "sdb1");
    EXPECT_EQ(devices.baseOf("sdb"), "sdb");
    EXPECT_TRUE(devices.isPartitionOf("sdb1", "sdb"));
    EXPECT_FALSE(devices.isPartitionOf("sdb1", "sdc"));
    EXPECT_FALSE(devices.isPartitionOf("dm-0", "sdb"));
}

TEST_F(Drive, SurvivesLinksThatLeadBackIntoItself) {
    const auto disk = tree.addDisk(place, 0, "sdb", "ZELTO DISK1     ", 2048);
    tree.folder().link("devices/" + place + "/port", ".");
    tree.folder().link("devices/" + disk + "/bdi", "../..");
    std::filesystem::remove(tree.path() / "devices" / disk / "device");
    tree.folder().link("devices/" + disk + "/device", "device");
    EXPECT_EQ(scan(tree, 0), std::vector<std::string>{"sdb"});
}

TEST_F(Drive, ReadsAsEmptyOnceItHasLeftInTheMiddleOfAWalk) {
    tree.addDisk(place, 0, "sdb", "ZELTO DISK1     ", 2048);
    LinuxRegistry registry(tree.path());
    const auto devices =
        registry.IORegistryGetRootEntry({})->IORegistryEntryGetChildIterator("IOService");
    static_cast<void>(devices->IOIteratorNext());
    static_cast<void>(devices->IOIteratorNext());
    const auto drive = devices->IOIteratorNext();
    const auto interfaces = drive->IORegistryEntryGetChildIterator("IOService");
    const auto interface = interfaces->IOIteratorNext();
    std::filesystem::remove_all(tree.path() / "devices" / place);

    EXPECT_THAT(drive->IORegistryEntryCreateCFProperties().value(), IsEmpty());
    EXPECT_EQ(drive->IORegistryEntryGetNameInPlane("IOService"), "1-1.2");
    const auto children = interface->IORegistryEntryGetChildIterator("IOService");
    ASSERT_NE(children, nullptr);
    EXPECT_EQ(children->IOIteratorNext(), nullptr);
    EXPECT_THAT(outlineOf(tree), ElementsAre("Root", ".usb1", ".1-1", ".End"));
}

TEST_F(Drive, IsPassedOverWhileItsIdentifiersAreNonsense) {
    for (const auto* nonsense : {"", "07f", "07f70", "0x07", "+7f7", "zzzz"}) {
        tree.set(place, "idVendor", nonsense);
        EXPECT_EQ(scan(tree, 0), std::nullopt) << nonsense;
    }
}

TEST(LinuxRegistry, OfAComputerWithoutUsbHasOnlyTheClosingEntry) {
    const SysfsTree tree;
    EXPECT_THAT(outlineOf(tree), ElementsAre("Root", ".End"));
}

TEST(LinuxRegistry, OrdersDevicesByBusAndDeviceNumber) {
    const SysfsTree tree;
    tree.addUsbDevice("pci/usb2", 2, 1, "1d6b", "0003", "");
    tree.addUsbDevice("pci/usb1", 1, 1, "1d6b", "0002", "");
    tree.addUsbDevice("pci/usb1/1-1", 1, 12, "1d6b", "0002", "");
    tree.addUsbDevice("pci/usb1/1-2", 1, 3, "1d6b", "0002", "");
    EXPECT_THAT(outlineOf(tree), ElementsAre("Root", ".usb1", ".1-2", ".1-1", ".usb2", ".End"));
}

TEST(KernelOrder, ComparesNumbersAsNumbers) {
    EXPECT_TRUE(precedesInKernelOrder("0:0:0:2", "0:0:0:10"));
    EXPECT_FALSE(precedesInKernelOrder("0:0:0:10", "0:0:0:2"));
    EXPECT_TRUE(precedesInKernelOrder("sda", "sda1"));
    EXPECT_TRUE(precedesInKernelOrder("sda9", "sda10"));
    EXPECT_TRUE(precedesInKernelOrder("sda10", "sdb1"));
    EXPECT_TRUE(precedesInKernelOrder("x99999999999999999998", "x99999999999999999999"));
    EXPECT_FALSE(precedesInKernelOrder("sda", "sda"));
    EXPECT_NE(precedesInKernelOrder("a01", "a1"), precedesInKernelOrder("a1", "a01"));
}

std::string deviceRule() {
    std::ifstream file(std::filesystem::path(ZELTO_SOURCE_FOLDER) / "packaging/60-zelto.rules");
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(DeviceRule, GivesTheDriveToTheActiveSessionBetweenTheRulesItDependsOn) {
    const auto rule = deviceRule();
    for (const auto* part :
         {"ACTION==\"remove\"", "ENV{DEVTYPE}!=\"usb_device\"", "ATTR{idVendor}==\"07f7\"",
          "ATTR{idProduct}==\"0135\"", "MODE=\"0660\"", "TAG+=\"uaccess\"",
          "ENV{ID_MM_DEVICE_IGNORE}=\"1\"", "ENV{MTP_NO_PROBE}=\"1\""}) {
        EXPECT_THAT(rule, ::testing::HasSubstr(part));
    }
    EXPECT_THAT(rule, ::testing::Not(::testing::HasSubstr("ATTRS{")));
}

TEST(DeviceRule, DeclaresTheAreasToBeNoPartOfTheComputer) {
    const auto rule = deviceRule();
    EXPECT_THAT(rule, ::testing::ContainsRegex(
                          "\nSUBSYSTEM==\"block\", ENV\\{ID_VENDOR_ID\\}==\"07f7\", "
                          "ENV\\{ID_MODEL_ID\\}==\"0135\", ENV\\{UDISKS_SYSTEM\\}=\"0\""));
}

} // namespace
} // namespace zelto::test
