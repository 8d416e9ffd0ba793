#include "simulator/computer/VirtualComputer.h"
#include "tests/support/OtherUsbDevices.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

namespace zelto {

// Where the type is, so that matchers find it.
static bool operator==(const MountedFileSystem& left, const MountedFileSystem& right) {
    return left.f_mntonname == right.f_mntonname && left.f_mntfromname == right.f_mntfromname;
}

} // namespace zelto

namespace zelto::test {
namespace {

using namespace simulator;
using std::chrono::seconds;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

class VirtualDisksTest : public testing::Test {
protected:
    bool erase(const std::string& disk, const std::string& label = "ZELTO TOOL") {
        const VirtualDisk* const found = m_computer.disks.find(disk);
        return m_tool.eraseDisk(disk, found != nullptr ? found->identity() : DiskIdentity(), label);
    }
    /// The names of all entries of the registry, depth first, as a walk sees them; the properties
    /// of each go to `found`.
    static void walk(const RegistryEntry& entry, std::vector<std::string>& names,
                     std::map<std::string, RegistryProperties>& found) {
        names.push_back(entry.IORegistryEntryGetNameInPlane("IOService").value());
        found[names.back()] = entry.IORegistryEntryCreateCFProperties().value();
        const auto children = entry.IORegistryEntryGetChildIterator("IOService");
        while (const auto child = children->IOIteratorNext()) {
            walk(*child, names, found);
        }
    }
    std::vector<std::string> walk() {
        std::vector<std::string> names;
        walk(*m_computer.registry.IORegistryGetRootEntry({}), names, m_properties);
        return names;
    }

    const MountedFileSystem ToolMounted{"/media/user/ZELTO TOOL", "/dev/disk2s1"};
    std::map<std::string, RegistryProperties> m_properties;
    VirtualComputer m_computer;
    VirtualDiskTool& m_tool = m_computer.diskTool;
    static constexpr std::uint64_t DriveSectors = 262144;
    std::shared_ptr<DriveOnBus> m_drive = makeDrive("ZD0000000000A1", DriveSectors);
};

TEST_F(VirtualDisksTest, ShowANewDriveAsOneBlankDiskThatNothingMounts) {
    m_computer.plug(m_drive);
    ASSERT_EQ(m_computer.disks.all().size(), 1U);
    EXPECT_EQ(m_computer.disks.all()[0]->bsdName, "disk2");
    EXPECT_EQ(m_computer.disks.all()[0]->medium->sectorCount(), DriveSectors);
    EXPECT_EQ(m_computer.mounts.getmntinfo().size(), 1U);
}

TEST_F(VirtualDisksTest, AppearInTheRegistryBelowTheirDeviceAndAClosingEntryFollows) {
    m_computer.plug(std::make_shared<UsbMouse>());
    m_computer.plug(m_drive);
    ASSERT_TRUE(erase("disk2"));
    EXPECT_THAT(walk(),
                ElementsAre("Root", "VirtualComputer", "EHC1", "Root Hub", "Mouse",
                            "IOUSBInterface@0", "ZELTO DISK", "IOUSBInterface@0",
                            "IOSCSILogicalUnitNub@0", "KESTRIN ZELTO DISK1 Media", "Untitled 1",
                            "IOSCSILogicalUnitNub@1", "IOSCSILogicalUnitNub@2",
                            "IOSCSILogicalUnitNub@3", "IOResources"));
}

TEST_F(VirtualDisksTest, CarryTheirIdentityOnTheDevicesOwnEntry) {
    m_computer.plug(m_drive);
    ASSERT_THAT(walk(), Contains("ZELTO DISK"));
    const auto has = [&](const std::string& key, const RegistryValue& value) {
        const auto& properties = m_properties["ZELTO DISK"];
        return std::ranges::find(properties, std::pair(key, value)) != properties.end();
    };
    EXPECT_TRUE(has("idVendor", std::int64_t{0x07F7}));
    EXPECT_TRUE(has("idProduct", std::int64_t{0x0135}));
    EXPECT_TRUE(has("USB Serial Number", std::string("ZD0000000000A1")));
}

TEST_F(VirtualDisksTest, EraseDiskLeavesAMountedVolumeWithTheLabel) {
    m_computer.plug(m_drive);
    EXPECT_TRUE(erase("disk2"));
    EXPECT_THAT(m_computer.mounts.getmntinfo(), Contains(ToolMounted));
    EXPECT_EQ(m_tool.partitionName("disk2", 1), "disk2s1");
}

TEST_F(VirtualDisksTest, EraseDiskTakesWholeDisksAndLabelsThatFit) {
    m_computer.plug(m_drive);
    EXPECT_FALSE(erase("disk7"));
    ASSERT_TRUE(erase("disk2"));
    EXPECT_FALSE(erase("disk2s1"));
    EXPECT_FALSE(erase("disk2", "LONGER THAN FAT"));
}

TEST_F(VirtualDisksTest, EraseDiskTakesNoOtherDiskThanTheOneThatIsMeant) {
    m_computer.plug(m_drive);
    const DiskIdentity meant = m_computer.disks.find("disk2")->identity();
    m_computer.replug(m_drive);
    ASSERT_TRUE(m_computer.disks.find("disk2"));
    EXPECT_FALSE(m_tool.eraseDisk("disk2", meant, "ZELTO TOOL"));
}

TEST_F(VirtualDisksTest, AreMountedByTheDesktopWhenTheDriveIsPluggedInAgain) {
    m_computer.plug(m_drive);
    ASSERT_TRUE(erase("disk2"));
    m_computer.unplug(m_drive);
    EXPECT_THAT(m_computer.mounts.getmntinfo(), Not(Contains(ToolMounted)));
    m_computer.plug(m_drive);
    EXPECT_THAT(m_computer.mounts.getmntinfo(), Contains(ToolMounted));
}

TEST_F(VirtualDisksTest, StayUnmountedWithADesktopThatNeverMounts) {
    m_computer.plug(m_drive);
    ASSERT_TRUE(erase("disk2"));
    m_computer.mounts.setDesktopHabit(DesktopHabit::Never);
    m_computer.replug(m_drive);
    m_computer.advance(seconds(100));
    EXPECT_FALSE(m_computer.mounts.isMounted("disk2s1"));
}

TEST_F(VirtualDisksTest, UmountEndsOneMountAndFailsWhenThereIsNone) {
    m_computer.plug(m_drive);
    ASSERT_TRUE(erase("disk2"));
    EXPECT_TRUE(m_tool.umount("disk2s1"));
    EXPECT_FALSE(m_tool.umount("disk2s1"));
    EXPECT_EQ(m_computer.disks.all().size(), 1U);
}

TEST_F(VirtualDisksTest, ABusyVolumeIsNeitherUnmountedNorEjectedNorErased) {
    m_computer.plug(m_drive);
    ASSERT_TRUE(erase("disk2"));
    m_computer.mounts.setHolders("disk2s1", {"editor", "player"});
    EXPECT_FALSE(m_tool.umount("disk2s1"));
    EXPECT_FALSE(m_tool.eject("disk2"));
    EXPECT_FALSE(erase("disk2"));
    EXPECT_THAT(m_tool.holders({"disk2"}), ElementsAre("editor", "player"));
    EXPECT_THAT(m_tool.holders({"disk2", "disk2s1"}), ElementsAre("editor", "player"));
    m_computer.mounts.setHolders("disk2s1", {});
    EXPECT_TRUE(m_tool.eject("disk2s1"));
}

TEST_F(VirtualDisksTest, AnEjectedDiskLeavesTheSystemWhileTheDriveStays) {
    m_computer.plug(m_drive);
    ASSERT_TRUE(erase("disk2"));
    EXPECT_TRUE(m_tool.eject("disk2s1"));
    EXPECT_TRUE(m_computer.disks.all().empty());
    m_computer.advance(seconds(5));
    EXPECT_TRUE(m_computer.disks.all().empty());
    EXPECT_TRUE(m_computer.usb.isPlugged(m_drive));
    m_computer.replug(m_drive);
    EXPECT_EQ(m_computer.disks.all().size(), 1U);
}

TEST_F(VirtualDisksTest, AVerbFailsWhenItIsToldTo) {
    m_computer.plug(m_drive);
    m_tool.setBehaviour(DiskVerb::EraseDisk, ToolBehaviour::Fails);
    EXPECT_FALSE(erase("disk2"));
    EXPECT_FALSE(m_computer.disks.all()[0]->hasVolume);
    m_tool.setBehaviour(DiskVerb::EraseDisk, ToolBehaviour::Works);
    EXPECT_TRUE(erase("disk2"));
}

TEST_F(VirtualDisksTest, GiveAFreedNameToTheNextDisk) {
    m_computer.plug(m_drive);
    m_computer.plug(std::make_shared<ForeignDisk>(DriveSectors));
    EXPECT_EQ(m_computer.mounts.mountPoint("disk3s1"), "/media/user/HOLIDAYS");
    m_computer.unplug(m_drive);
    m_computer.plug(makeDrive("ZD0000000000B2", DriveSectors));
    EXPECT_EQ(m_computer.disks.all().back()->bsdName, "disk2");
}

} // namespace
} // namespace zelto::test
