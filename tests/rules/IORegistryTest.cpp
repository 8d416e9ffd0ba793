#include "device/IORegistry.h"

#include "tests/support/ScriptedRegistry.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace zelto::test {
namespace {

using Names = std::vector<std::string>;

RegistryNode plain(std::string name, std::vector<RegistryNode> children = {}) {
    return {.name = std::move(name), .children = std::move(children)};
}

RegistryNode volume(std::string name, std::string bsdName,
                    std::vector<RegistryNode> children = {}) {
    return {.name = std::move(name),
            .properties = {{"Size", std::int64_t{4096}}, {"BSD Name", std::move(bsdName)}},
            .children = std::move(children)};
}

RegistryNode usbDevice(std::int64_t vendor, std::int64_t product, std::string serial,
                       std::vector<RegistryNode> children = {}) {
    return {.name = "ZELTO DISK",
            .properties = {{"idProduct", product},
                           {"bcdDevice", std::int64_t{0x0100}},
                           {"idVendor", vendor},
                           {"USB Serial Number", std::move(serial)}},
            .children = std::move(children)};
}

/// The drive with its disks and their partitions, two levels below its device entry.
RegistryNode zelto(std::string serial, const std::string& letter) {
    return usbDevice(0x07F7, 0x0135, std::move(serial),
                     {plain("Interface", {volume("KESTRIN ZELTO DISK1 Media", "sd" + letter,
                                                 {volume("Untitled 1", "sd" + letter + "1")}),
                                          volume("KESTRIN ZELTO DISK2 Media", "se" + letter,
                                                 {volume("Untitled 1", "se" + letter + "1")})})});
}

/// A computer with a hub, another drive before the one that is looked for, and a last entry.
RegistryNode computer() {
    return plain("Root", {usbDevice(0x1D6B, 2, "hub", {plain("Port")}), zelto("OTHER", "x"),
                          zelto("SERIAL", "y"), plain("End")});
}

constexpr std::uint8_t AllDisks = 0;

ScanTarget targetOf(std::uint8_t diskNumber, std::string serial = "SERIAL") {
    return {
        .vendor = 0x07F7, .product = 0x0135, .serial = std::move(serial), .diskNumber = diskNumber};
}

struct Walk {
    bool closed = false;
    Names names;
};

Walk walk(const RegistryNode& root, const ScanTarget& target) {
    ScriptedRegistry registry(root);
    Walk result;
    result.closed = IORegistry::Scan_ZELTOusb(registry, target, result.names);
    return result;
}

// --- What is found -----------------------------------------------------------------------------

TEST(RegistryWalk, DiskNumberZeroTakesEveryNameBelowTheDriveInOrder) {
    const Walk result = walk(computer(), targetOf(AllDisks));
    EXPECT_TRUE(result.closed);
    EXPECT_EQ(result.names, (Names{"sdy", "sdy1", "sey", "sey1"}));
}

TEST(RegistryWalk, ADiskNumberTakesThatDiskAndWhatIsBelowIt) {
    EXPECT_EQ(walk(computer(), targetOf(1)).names, (Names{"sdy", "sdy1"}));
    EXPECT_EQ(walk(computer(), targetOf(2)).names, (Names{"sey", "sey1"}));
}

TEST(RegistryWalk, ADiskThatTheDriveDoesNotHaveGivesNoNamesButIsFound) {
    const Walk result = walk(computer(), targetOf(3));
    EXPECT_TRUE(result.closed);
    EXPECT_TRUE(result.names.empty());
}

TEST(RegistryWalk, ADriveThatIsNotThereIsNotFound) {
    const Walk result = walk(computer(), targetOf(AllDisks, "MISSING"));
    EXPECT_FALSE(result.closed);
    EXPECT_TRUE(result.names.empty());
}

TEST(RegistryWalk, ADriveAtTheVeryEndOfTheTreeIsNeverClosed) {
    RegistryNode root = computer();
    root.children.pop_back();
    const Walk result = walk(root, targetOf(AllDisks));
    EXPECT_FALSE(result.closed);
    EXPECT_TRUE(result.names.empty());
}

TEST(RegistryWalk, AnEntryAboveTheDriveClosesItToo) {
    const RegistryNode root =
        plain("Root", {plain("Hub", {zelto("SERIAL", "y")}), volume("Disk", "sda")});
    const Walk result = walk(root, targetOf(AllDisks));
    EXPECT_TRUE(result.closed);
    EXPECT_EQ(result.names, (Names{"sdy", "sdy1", "sey", "sey1"}));
}

TEST(RegistryWalk, AppendsToTheCallersNames) {
    const RegistryNode root = computer();
    ScriptedRegistry registry(root);
    Names names{"kept"};
    EXPECT_TRUE(IORegistry::Scan_ZELTOusb(registry, targetOf(1), names));
    EXPECT_EQ(names, (Names{"kept", "sdy", "sdy1"}));
}

TEST(RegistryWalk, ADriveNotFoundLeavesTheCallersNames) {
    const RegistryNode root = computer();
    ScriptedRegistry registry(root);
    Names names{"kept"};
    EXPECT_FALSE(IORegistry::Scan_ZELTOusb(registry, targetOf(1, "MISSING"), names));
    EXPECT_EQ(names, Names{"kept"});
}

TEST(RegistryWalk, StopsAtTheEntryAfterTheDrive) {
    RegistryNode root = computer();
    for (int count = 0; count < 100; ++count) {
        root.children.push_back(plain("Later", {plain("Below")}));
    }
    ScriptedRegistry registry(root);
    Names names;
    EXPECT_TRUE(IORegistry::Scan_ZELTOusb(registry, targetOf(AllDisks), names));
    EXPECT_LT(registry.entriesTaken(), 20U);
}

TEST(RegistryWalk, TheDriveAsTheRootIsNeverClosed) {
    EXPECT_FALSE(walk(zelto("SERIAL", "y"), targetOf(AllDisks)).closed);
}

// --- Which entry is the drive ------------------------------------------------------------------

TEST(RegistryWalk, VendorProductAndSerialMustAllMatch) {
    const auto finds = [](std::int64_t vendor, std::int64_t product, std::string serial) {
        const RegistryNode root =
            plain("Root", {usbDevice(vendor, product, std::move(serial)), plain("End")});
        return walk(root, targetOf(AllDisks)).closed;
    };
    EXPECT_TRUE(finds(0x07F7, 0x0135, "SERIAL"));
    EXPECT_FALSE(finds(0x07F8, 0x0135, "SERIAL"));
    EXPECT_FALSE(finds(0x07F7, 0x0136, "SERIAL"));
    EXPECT_FALSE(finds(0x07F7, 0x0135, "SERIAL2"));
    EXPECT_FALSE(finds(0x07F7, 0x0135, "serial"));
}

TEST(RegistryWalk, PropertiesOfDifferentEntriesDoNotAddUp) {
    const RegistryNode ids{
        .name = "Ids",
        .properties = {{"idVendor", std::int64_t{0x07F7}}, {"idProduct", std::int64_t{0x0135}}}};
    const RegistryNode serial{.name = "Serial",
                              .properties = {{"USB Serial Number", std::string("SERIAL")}}};
    EXPECT_FALSE(walk(plain("Root", {ids, serial, plain("End")}), targetOf(AllDisks)).closed);
    EXPECT_FALSE(walk(plain("Root", {serial, ids, plain("End")}), targetOf(AllDisks)).closed);
}

TEST(RegistryWalk, IdentifiersKeepTheirLow32Bits) {
    const RegistryNode root =
        plain("Root", {usbDevice(0x1'0000'07F7, 0x7FFF'0000'0000'0135, "SERIAL"), plain("End")});
    EXPECT_TRUE(walk(root, targetOf(AllDisks)).closed);
    const RegistryNode wide = plain("Root", {usbDevice(0x1'07F7, 0x0135, "SERIAL"), plain("End")});
    EXPECT_FALSE(walk(wide, targetOf(AllDisks)).closed);
}

TEST(RegistryWalk, PropertiesOfAnotherTypeAreNotRead) {
    RegistryNode drive = zelto("SERIAL", "y");
    drive.properties.emplace_back("idVendor", std::string("0x1234"));
    drive.properties.emplace_back("idProduct", std::monostate());
    drive.properties.emplace_back("USB Serial Number", std::int64_t{5});
    drive.children.push_back({.name = "Odd", .properties = {{"BSD Name", std::int64_t{7}}}});
    const Walk result = walk(plain("Root", {drive, plain("End")}), targetOf(AllDisks));
    EXPECT_TRUE(result.closed);
    EXPECT_EQ(result.names, (Names{"sdy", "sdy1", "sey", "sey1"}));
}

TEST(RegistryWalk, AnEntryThatIsNoServiceIsNotExamined) {
    RegistryNode drive = usbDevice(0x07F7, 0x0135, "SERIAL");
    drive.isService = false;
    drive.propertiesReadable = false;
    EXPECT_FALSE(walk(plain("Root", {drive, plain("End")}), targetOf(AllDisks)).closed);
}

TEST(RegistryWalk, TextsEndAtTheirFirstZero) {
    using namespace std::string_literals;
    const RegistryNode root =
        plain("Root", {usbDevice(0x07F7, 0x0135, "SERIAL\0MORE"s, {volume("Disk", "sdy\0x"s)}),
                       plain("End")});
    EXPECT_EQ(walk(root, targetOf(AllDisks)).names, Names{"sdy"});
}

TEST(RegistryWalk, TheSameSerialNumberOnAnotherProductIsNotTheDrive) {
    const RegistryNode root =
        plain("Root", {usbDevice(0x07F7, 0x0999, "SERIAL", {volume("Disk", "sdx")}),
                       zelto("SERIAL", "y"), plain("End")});
    EXPECT_EQ(walk(root, targetOf(1)).names, (Names{"sdy", "sdy1"}));
}

// --- Which disk is meant -----------------------------------------------------------------------

TEST(RegistryWalk, ADiskIsTakenByItsWholeName) {
    for (const char* name : {"KESTRIN ZELTO DISK10 Media", "KESTRIN ZELTO DISK1",
                             "KESTRIN ZELTO DISK1 media", "KESTRIN ZELTO DISK", "ZELTO DISK1 Media",
                             "kestrin zelto disk1 media", "KESTRIN ZELTO DISK01 Media", ""}) {
        const RegistryNode root = plain(
            "Root", {usbDevice(0x07F7, 0x0135, "SERIAL", {volume(name, "sdy")}), plain("End")});
        EXPECT_TRUE(walk(root, targetOf(1)).names.empty()) << name;
        EXPECT_EQ(walk(root, targetOf(AllDisks)).names, Names{"sdy"}) << name;
    }
}

TEST(RegistryWalk, AnyNameThatBeginsWithTheProductEndsTheDiskBefore) {
    const RegistryNode root = plain(
        "Root", {usbDevice(0x07F7, 0x0135, "SERIAL",
                           {volume("KESTRIN ZELTO DISK1 Media", "sdb"), volume("Untitled", "sdb1"),
                            volume("KESTRIN ZELTO DISKETTE", "sdc"), volume("Late", "sdc1")}),
                 plain("End")});
    EXPECT_EQ(walk(root, targetOf(1)).names, (Names{"sdb", "sdb1"}));
}

TEST(RegistryWalk, TheLargestDiskNumberIsWrittenOut) {
    const RegistryNode root =
        plain("Root",
              {usbDevice(0x07F7, 0x0135, "SERIAL", {volume("KESTRIN ZELTO DISK255 Media", "sdb")}),
               plain("End")});
    EXPECT_EQ(walk(root, targetOf(255)).names, Names{"sdb"});
}

// --- The working record ------------------------------------------------------------------------

TEST(ScanState, IsCompleteInPhaseThreeOnly) {
    EXPECT_EQ(static_cast<unsigned>(ScanPhase::Looking), 0U);
    EXPECT_EQ(static_cast<unsigned>(ScanPhase::Collecting), 2U);
    EXPECT_EQ(static_cast<unsigned>(ScanPhase::Complete), 3U);
    ScanState state;
    EXPECT_FALSE(IsScanComplete(state));
    state.phase = ScanPhase::Collecting;
    EXPECT_FALSE(IsScanComplete(state));
    state.phase = ScanPhase::Complete;
    EXPECT_TRUE(IsScanComplete(state));
}

TEST(ScanState, NamesAreTakenWhileCollectingAMatchingDiskOnly) {
    const RegistryValue name = std::string("sdb");
    ScanState state;
    CheckPropertiesUsbSub("BSD Name", name, state);
    state.mediaMatch = true;
    CheckPropertiesUsbSub("BSD Name", name, state);
    state.phase = ScanPhase::Complete;
    CheckPropertiesUsbSub("BSD Name", name, state);
    state.phase = ScanPhase::Collecting;
    state.mediaMatch = false;
    CheckPropertiesUsbSub("BSD Name", name, state);
    EXPECT_TRUE(state.names.empty());
    state.mediaMatch = true;
    CheckPropertiesUsbSub("bsd name", name, state);
    CheckPropertiesUsbSub("BSD Name", name, state);
    EXPECT_EQ(state.names, Names{"sdb"});
}

TEST(ScanState, IdentifiersAreTakenWhileLookingOnly) {
    ScanState state;
    state.phase = ScanPhase::Collecting;
    CheckPropertiesUsbSub("idVendor", std::int64_t{1}, state);
    CheckPropertiesUsbSub("idProduct", std::int64_t{2}, state);
    CheckPropertiesUsbSub("USB Serial Number", std::string("S"), state);
    EXPECT_EQ(state.vendor, 0U);
    EXPECT_EQ(state.product, 0U);
    EXPECT_FALSE(state.serial.has_value());
}

TEST(ScanState, AReservedFieldThatIsSetKeepsEntriesFromBeingExamined) {
    const RegistryNode root = computer();
    ScriptedRegistry registry(root);
    ScanState state;
    state.reserved = 1;
    const auto entry = registry.IORegistryGetRootEntry({});
    IORegistry::Scan(*entry, false, 0, state, {}, targetOf(AllDisks));
    EXPECT_EQ(state.phase, ScanPhase::Looking);
    EXPECT_EQ(registry.entriesTaken(), 16U);
}

// --- Trees without end -------------------------------------------------------------------------

Walk walkBounded(const RegistryNode& root) {
    ScriptedRegistry registry(root);
    Walk result;
    result.closed = IORegistry::Scan_ZELTOusb(registry, targetOf(AllDisks), result.names);
    EXPECT_LE(registry.entriesTaken(), ScanState::MaximumEntries + 2);
    return result;
}

TEST(RegistryWalk, ATreeOfEndlessSiblingsIsGivenUp) {
    const RegistryNode sibling = plain("Sibling");
    RegistryNode root = plain("Root");
    root.childAt = [&sibling](std::size_t) { return &sibling; };
    EXPECT_FALSE(walkBounded(root).closed);
}

TEST(RegistryWalk, ATreeOfEndlessDepthIsGivenUp) {
    RegistryNode root = plain("Root");
    root.childAt = [&root](std::size_t index) { return index == 0 ? &root : nullptr; };
    EXPECT_FALSE(walkBounded(root).closed);
}

TEST(RegistryWalk, ATreeThatIsEndlessBothWaysIsGivenUp) {
    RegistryNode root = plain("Root");
    root.childAt = [&root](std::size_t) { return &root; };
    EXPECT_FALSE(walkBounded(root).closed);
}

TEST(RegistryWalk, ADriveWithEndlessVolumesIsNeverClosed) {
    const RegistryNode disk = volume("KESTRIN ZELTO DISK1 Media", "sdb");
    RegistryNode drive = usbDevice(0x07F7, 0x0135, "SERIAL");
    drive.childAt = [&disk](std::size_t) { return &disk; };
    const Walk result = walkBounded(plain("Root", {drive, plain("End")}));
    EXPECT_FALSE(result.closed);
    EXPECT_TRUE(result.names.empty());
}

TEST(RegistryWalk, ADriveOfEndlessDepthIsNeverClosed) {
    RegistryNode disk = volume("KESTRIN ZELTO DISK1 Media", "sdb");
    disk.childAt = [&disk](std::size_t index) { return index == 0 ? &disk : nullptr; };
    RegistryNode drive = usbDevice(0x07F7, 0x0135, "SERIAL");
    drive.childAt = [&disk](std::size_t index) { return index == 0 ? &disk : nullptr; };
    const Walk result = walkBounded(plain("Root", {drive, plain("End")}));
    EXPECT_FALSE(result.closed);
    EXPECT_TRUE(result.names.empty());
}

TEST(RegistryWalk, EndlessEntriesAfterTheDriveAreNotWaitedFor) {
    const RegistryNode drive = zelto("SERIAL", "y");
    const RegistryNode later = plain("Later");
    RegistryNode root = plain("Root");
    root.childAt = [&](std::size_t index) { return index == 0 ? &drive : &later; };
    const Walk result = walkBounded(root);
    EXPECT_TRUE(result.closed);
    EXPECT_EQ(result.names.size(), 4U);
}

TEST(RegistryWalk, ATreeAsDeepAsAllowedIsWalked) {
    RegistryNode branch = zelto("SERIAL", "y");
    // The drive's partitions are three levels below its device entry, which the loop puts at the
    // deepest level that leaves room for them.
    for (std::uint32_t depth = 1; depth + 3 < ScanState::MaximumDepth; ++depth) {
        branch = plain("Hub", {std::move(branch)});
    }
    const Walk result = walk(plain("Root", {branch, plain("End")}), targetOf(AllDisks));
    EXPECT_TRUE(result.closed);
    EXPECT_EQ(result.names.size(), 4U);
}

// --- A registry that is broken -----------------------------------------------------------------

TEST(RegistryWalkDeathTest, NoRootEndsTheProcess) {
    ScriptedRegistry registry;
    Names names;
    EXPECT_DEATH(static_cast<void>(IORegistry::Scan_ZELTOusb(registry, targetOf(0), names)),
                 "Assertion failed: service");
}

TEST(RegistryWalkDeathTest, AnEntryThatCannotBeReadEndsTheProcess) {
    const auto walkWith = [](const RegistryNode& broken) {
        static_cast<void>(walk(plain("Root", {broken}), targetOf(AllDisks)));
    };
    RegistryNode node = plain("Broken");
    node.childrenListable = false;
    EXPECT_DEATH(walkWith(node), "Assertion failed: status == KERN_SUCCESS");
    node = plain("Broken");
    node.name.reset();
    EXPECT_DEATH(walkWith(node), "Assertion failed: status == KERN_SUCCESS");
    node = plain("Broken");
    node.className.reset();
    EXPECT_DEATH(walkWith(node), "Assertion failed: status == KERN_SUCCESS");
    node = plain("Broken");
    node.propertiesReadable = false;
    EXPECT_DEATH(walkWith(node), "Assertion failed: status == KERN_SUCCESS");
}

} // namespace
} // namespace zelto::test
