#include "platform/linux/LinuxDiskTool.h"
#include "platform/linux/LinuxMountTable.h"
#include "tests/platform/FakeUDisks.h"
#include "tests/support/SysfsTree.h"

#include <QDBusArgument>
#include <QLoggingCategory>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zelto::test {
namespace {

using namespace linux_platform;
using ::testing::ElementsAre;

constexpr auto Disk = FakeUDisks::DiskPath;
constexpr auto Partition = FakeUDisks::PartitionPath;

/// What Qt's log is given while one lives, with rules as in QT_LOGGING_RULES.
class CaughtLog {
public:
    explicit CaughtLog(const QString& rules) : m_before(qInstallMessageHandler(note)) {
        lines.clear();
        QLoggingCategory::setFilterRules(rules);
    }
    CaughtLog(const CaughtLog&) = delete;
    CaughtLog& operator=(const CaughtLog&) = delete;
    ~CaughtLog() {
        QLoggingCategory::setFilterRules({});
        qInstallMessageHandler(m_before);
    }

    static inline std::vector<std::string> lines;

private:
    static void note(QtMsgType, const QMessageLogContext& context, const QString& text) {
        lines.push_back(std::string(context.category) + ": " + text.toStdString());
    }

    QtMessageHandler m_before;
};

class DiskToolTest : public ::testing::Test {
protected:
    [[nodiscard]] std::vector<std::string> calls() const {
        std::vector<std::string> names;
        for (const auto& call : udisks.calls()) {
            names.push_back(call.toStdString());
        }
        return names;
    }
    DiskToolTest() { attach("07f7", "0135", 5); }
    /// Puts a disk under the names "sdb" and "sdb1".
    void attach(const char* vendor, const char* product, unsigned number) {
        tree.addUsbDevice(Place, 1, number, vendor, product, "ZD");
        const auto disk = tree.addDisk(Place, 3, "sdb", "ZELTO DISK4     ", 40960);
        tree.addPartition(disk, "sdb1", 1);
        sdb = tree.path() / "devices" / disk;
    }
    void detach() {
        for (const auto* folder : {"devices", "class", "dev", "bus"}) {
            std::filesystem::remove_all(tree.path() / folder);
        }
    }
    [[nodiscard]] bool erase() { return tool.eraseDisk("sdb", Meant, "ZELTO TOOL"); }
    /// The drive is pulled, and a disk just like it that comes next gets its names.
    void passNameOn() {
        detach();
        attach("07f7", "0135", 6);
    }

    [[nodiscard]] LinuxDiskTool toolWith(DiskDelays delays) {
        return {[this] { return client; }, waiting, mounts, delays, {"/proc", tree.path()}};
    }
    /// A tool that does not wait for properties that never come.
    [[nodiscard]] LinuxDiskTool impatientTool() {
        return toolWith({std::chrono::milliseconds(0), std::chrono::milliseconds(0)});
    }

    static constexpr std::chrono::hours LongerThanAnyTest{24};
    static constexpr auto Place = "pci/usb1/1-1";
    const DiskIdentity Meant{(1U << 16U) | 5U, "KESTRIN ZELTO DISK4 Media", 40960};
    SysfsTree tree;
    std::filesystem::path sdb;
    PrivateBus bus;
    QDBusConnection client = bus.connection("client");
    FakeUDisks udisks{bus.connection("service")};
    Waiting waiting;
    LinuxMountTable mounts;
    LinuxDiskTool tool = toolWith({});
};

TEST_F(DiskToolTest, UnmountsOneVolumeWithoutForce) {
    udisks.addPartition({"/media/a/X"});
    udisks.script("Unmount", [&](const QDBusMessage& call) {
        EXPECT_TRUE(qdbus_cast<QVariantMap>(call.arguments().at(0)).isEmpty());
        return udisks.obey(call);
    });
    EXPECT_TRUE(tool.umount("sdb1"));
    EXPECT_THAT(calls(), ElementsAre("sdb1.Unmount"));
}

TEST_F(DiskToolTest, UnmountsAVolumeThatIsMountedInSeveralPlaces) {
    udisks.addPartition({"/media/a/X", "/mnt", "/srv"});
    EXPECT_TRUE(tool.umount("sdb1"));
    EXPECT_THAT(udisks.mountPoints(Partition), ::testing::IsEmpty());
    EXPECT_EQ(calls().size(), 3U);
}

TEST_F(DiskToolTest, IsDoneWithAVolumeThatIsNotMounted) {
    udisks.addPartition();
    EXPECT_TRUE(tool.umount("sdb1"));
    EXPECT_TRUE(calls().empty());
}

TEST_F(DiskToolTest, IsDoneWhenSomebodyElseUnmountedFirst) {
    udisks.addPartition({"/media/a/X"});
    udisks.script("Unmount", [&](const QDBusMessage& call) {
        udisks.setMountPoints(Partition, {});
        return udisks.obey(call);
    });
    EXPECT_TRUE(tool.umount("sdb1"));
}

TEST_F(DiskToolTest, WaitsForPropertiesThatComeLate) {
    udisks.addPartition({"/media/a/X"});
    udisks.script("Unmount", [&](const QDBusMessage& call) {
        udisks.afterReads(1, [&] { udisks.setMountPoints(Partition, {}); });
        return call.createReply();
    });
    EXPECT_TRUE(tool.umount("sdb1"));
    EXPECT_THAT(calls(), ElementsAre("sdb1.Unmount"));
}

TEST_F(DiskToolTest, BelievesNotMountedAlsoWhileThePropertyIsStale) {
    udisks.addPartition({"/media/a/X"});
    udisks.refuse("Unmount", "NotMounted");
    EXPECT_TRUE(impatientTool().umount("sdb1"));
}

TEST_F(DiskToolTest, FailsOnABusyVolumeAndTriesOnce) {
    udisks.addPartition({"/media/a/X"});
    udisks.refuse("Unmount", "DeviceBusy");
    EXPECT_FALSE(tool.umount("sdb1"));
    EXPECT_THAT(calls(), ElementsAre("sdb1.Unmount"));
}

TEST_F(DiskToolTest, FailsWhenTheUserMayNotOrWillNot) {
    for (const auto* error :
         {"NotAuthorized", "NotAuthorizedCanObtain", "NotAuthorizedDismissed"}) {
        udisks.addPartition({"/media/a/X"});
        udisks.refuse("Unmount", error);
        EXPECT_FALSE(tool.umount("sdb1")) << error;
    }
}

TEST_F(DiskToolTest, FailsWhenTheServiceOnlySaysThatItUnmounts) {
    udisks.addPartition({"/media/a/X"});
    for (int tries = 0; tries < 2; ++tries) {
        udisks.script("Unmount", [](const QDBusMessage& call) { return call.createReply(); });
    }
    EXPECT_FALSE(impatientTool().umount("sdb1"));
}

TEST_F(DiskToolTest, ErasesADiskThatTheServiceHearsOfLate) {
    const auto disk = udisks.objects.take(QDBusObjectPath(Disk));
    udisks.afterReads(1, [&] {
        udisks.objects.insert(QDBusObjectPath(Disk), disk);
        udisks.set(Disk, "Block", "Size", udisks.get(Disk, "Block", "Size"));
    });
    EXPECT_TRUE(erase());
}

TEST_F(DiskToolTest, ErasesADiskWhoseMediumTheServiceSeesLate) {
    const auto size = udisks.get(Disk, "Block", "Size");
    udisks.set(Disk, "Block", "Size", quint64{0});
    udisks.afterReads(1, [&] { udisks.set(Disk, "Block", "Size", size); });
    EXPECT_TRUE(erase());
}

TEST_F(DiskToolTest, FailsWithoutTheServiceOrTheDevice) {
    EXPECT_FALSE(tool.umount("sdz1"));
    EXPECT_FALSE(tool.eject("sdz"));
    EXPECT_FALSE(impatientTool().eraseDisk("sdz", Meant, "X"));
    udisks.vanish();
    EXPECT_FALSE(tool.umount("sdb1"));
    EXPECT_FALSE(tool.eject("sdb"));
    EXPECT_FALSE(erase());
}

TEST_F(DiskToolTest, FailsWithoutABus) {
    LinuxDiskTool lost([] { return QDBusConnection("none"); }, waiting, mounts);
    EXPECT_FALSE(lost.umount("sdb1"));
}

TEST_F(DiskToolTest, FailsWhenTheServiceVanishesInTheMiddleOfACall) {
    udisks.addPartition({"/media/a/X"});
    udisks.script("Unmount", [&](const QDBusMessage&) -> std::optional<QDBusMessage> {
        bus.breakDown();
        return std::nullopt;
    });
    EXPECT_FALSE(tool.umount("sdb1"));
}

TEST_F(DiskToolTest, RefusesALabelThatDoesNotFit) {
    EXPECT_FALSE(tool.eraseDisk("sdb", Meant, "LONGER THAN FAT"));
    EXPECT_TRUE(calls().empty());
}

TEST_F(DiskToolTest, EjectsAfterUnmountingTheWholeDiskAndNeverTurnsThePowerOff) {
    udisks.addPartition({"/media/a/X"});
    EXPECT_TRUE(tool.eject("sdb1"));
    EXPECT_THAT(calls(), ElementsAre("sdb1.Unmount", "ZELTO.Eject"));
}

TEST_F(DiskToolTest, DoesNotEjectADiskThatIsBusy) {
    udisks.addPartition({"/media/a/X"});
    udisks.refuse("Unmount", "DeviceBusy");
    EXPECT_FALSE(tool.eject("sdb1"));
    EXPECT_THAT(calls(), ElementsAre("sdb1.Unmount"));
}

TEST_F(DiskToolTest, UnmountsAgainWhatTheDesktopMountsBeforeTheEjection) {
    udisks.addPartition({"/media/a/X"});
    udisks.script("Eject", [&](const QDBusMessage& call) {
        udisks.setMountPoints(Partition, {"/media/a/X"});
        return udisks.obey(call);
    });
    EXPECT_TRUE(tool.eject("sdb"));
    EXPECT_THAT(calls(), ElementsAre("sdb1.Unmount", "ZELTO.Eject", "sdb1.Unmount", "ZELTO.Eject"));
}

/// A drive whose partition is encrypted and unlocked: "dm-0" is the clear text.
class StackedTest : public DiskToolTest {
protected:
    StackedTest() {
        udisks.addPartition();
        udisks.whenLocked = [this](const std::string& name) { tree.removeMapping(name); };
    }
    void unlock(const QStringList& mountPoints) {
        udisks.unlock(Partition, "dm-0", mountPoints);
        dm0 = tree.addMapping("dm-0", "253:0", "luks-1", {partitionPlace()});
    }
    void stackOnTop() { tree.addMapping("dm-1", "253:1", "vg-data", {dm0}); }
    [[nodiscard]] std::string partitionPlace() const {
        return (sdb / "sdb1").lexically_relative(tree.path() / "devices").string();
    }

    std::string dm0;
};

TEST_F(StackedTest, AnEncryptedVolumeIsUnmountedAndLocked) {
    unlock({"/media/a/SECRET", "/srv"});
    EXPECT_TRUE(tool.isStacked("dm-0"));
    EXPECT_FALSE(tool.isStacked("sdb1"));
    EXPECT_TRUE(tool.umount("dm-0"));
    EXPECT_THAT(calls(), ElementsAre("dm_2d0.Unmount", "dm_2d0.Unmount", "sdb1.Lock"));
    EXPECT_FALSE(tool.isStacked("dm-0"));
}

TEST_F(StackedTest, AnEncryptedVolumeThatIsOpenButNotMountedIsLocked) {
    unlock({});
    EXPECT_TRUE(tool.umount("dm-0"));
    EXPECT_THAT(calls(), ElementsAre("sdb1.Lock"));
}

TEST_F(StackedTest, TheMediumIsEjectedOnceTheEncryptedVolumeIsLocked) {
    for (const auto* name : {"dm-0", "sdb1", "sdb"}) {
        udisks.set(FakeUDisks::DrivePath, "Drive", "MediaAvailable", true);
        unlock({"/media/a/SECRET"});
        const auto before = udisks.calls().size();
        EXPECT_TRUE(tool.eject(name)) << name;
        EXPECT_EQ(udisks.calls().mid(before),
                  (QStringList{"dm_2d0.Unmount", "sdb1.Lock", "ZELTO.Eject"}))
            << name;
    }
}

TEST_F(StackedTest, ADiskIsErasedOnceTheEncryptedVolumeIsLocked) {
    unlock({"/media/a/SECRET"});
    EXPECT_TRUE(erase());
    EXPECT_EQ(udisks.calls().mid(0, 3), (QStringList{"dm_2d0.Unmount", "sdb1.Lock", "sdb.Format"}));
}

TEST_F(StackedTest, WhatStandsOnAnotherIsClosedFirst) {
    unlock({});
    stackOnTop();
    udisks.unlock(FakeUDisks::pathOf("dm-0"), "dm-1", {"/media/a/INNER"});
    EXPECT_TRUE(tool.umount("dm-0"));
    EXPECT_THAT(calls(), ElementsAre("dm_2d1.Unmount", "dm_2d0.Lock", "sdb1.Lock"));
}

TEST_F(StackedTest, ALogicalVolumeIsUnmountedAndCountsAsBusyAndIsNamed) {
    unlock({});
    stackOnTop();
    udisks.addVolume("dm-1", {"/srv/data"});
    EXPECT_FALSE(tool.umount("dm-0"));
    EXPECT_THAT(calls(), ElementsAre("dm_2d1.Unmount"));
    EXPECT_FALSE(tool.eject("dm-0"));
    EXPECT_FALSE(tool.umount("dm-1"));
    EXPECT_FALSE(erase());
    EXPECT_THAT(calls(), ElementsAre("dm_2d1.Unmount")) << "neither ejected nor erased";
    EXPECT_THAT(tool.holders({"sdb", "sdb1", "dm-0", "dm-1", "dm-1"}),
                ElementsAre("luks-1", "vg-data"));
}

TEST_F(StackedTest, AVolumeThatTheServiceDoesNotKnowIsBusy) {
    unlock({});
    udisks.objects.remove(QDBusObjectPath(FakeUDisks::pathOf("dm-0")));
    EXPECT_FALSE(tool.umount("dm-0"));
    EXPECT_FALSE(tool.eject("sdb"));
    EXPECT_TRUE(calls().empty());
}

TEST_F(StackedTest, ALockThatIsRefusedIsAFailureAndTriedOnce) {
    unlock({});
    udisks.refuse("Lock", "NotAuthorizedDismissed");
    EXPECT_FALSE(tool.umount("dm-0"));
    EXPECT_THAT(calls(), ElementsAre("sdb1.Lock"));
}

TEST_F(StackedTest, WhatTheDesktopMountsInBetweenIsUnmountedAgain) {
    unlock({"/media/a/SECRET"});
    udisks.script("Lock", [&](const QDBusMessage& call) {
        udisks.setMountPoints(FakeUDisks::pathOf("dm-0"), {"/media/a/SECRET"});
        return udisks.obey(call);
    });
    EXPECT_TRUE(tool.umount("dm-0"));
    EXPECT_THAT(calls(), ElementsAre("dm_2d0.Unmount", "sdb1.Lock", "dm_2d0.Unmount", "sdb1.Lock"));
}

TEST_F(StackedTest, ALockThatTimedOutButWasDoneIsDone) {
    unlock({});
    udisks.script("Lock", [&](const QDBusMessage& call) {
        udisks.obey(call);
        return call.createErrorReply("org.freedesktop.UDisks2.Error.Timedout", "Timed out");
    });
    EXPECT_TRUE(tool.umount("dm-0"));
}

TEST_F(StackedTest, ABusyEncryptedVolumeIsNotLocked) {
    unlock({"/media/a/SECRET"});
    udisks.refuse("Unmount", "DeviceBusy");
    EXPECT_FALSE(tool.eject("dm-0"));
    EXPECT_THAT(calls(), ElementsAre("dm_2d0.Unmount"));
}

TEST_F(DiskToolTest, CountsAnEjectionAsDoneThatFailsAlthoughNothingIsMounted) {
    for (const auto* error : {"Failed", "NotSupported", "NotAuthorizedDismissed", "Timedout"}) {
        udisks.addPartition({"/media/a/X"});
        udisks.refuse("Eject", error, "no eject program");
        EXPECT_TRUE(impatientTool().eject("sdb1")) << error;
        EXPECT_THAT(udisks.mountPoints(Partition), ::testing::IsEmpty());
    }
}

TEST_F(DiskToolTest, CountsAnEjectionAsDoneWhereTheServiceKnowsNoDriveToEjectFrom) {
    udisks.addPartition({"/media/a/X"});
    udisks.objects.remove(QDBusObjectPath(FakeUDisks::DrivePath));
    EXPECT_TRUE(tool.eject("sdb1"));
    EXPECT_THAT(calls(), ElementsAre("sdb1.Unmount"));
    udisks.addPartition({"/media/a/X"});
    udisks.refuse("Unmount", "DeviceBusy");
    EXPECT_FALSE(tool.eject("sdb1"));
}

TEST_F(DiskToolTest, FailsWhenTheEjectionLeavesAVolumeMounted) {
    udisks.addPartition({"/media/a/X"});
    for (int tries = 0; tries < 5; ++tries) {
        udisks.script("Eject", [&](const QDBusMessage& call) {
            udisks.setMountPoints(Partition, {"/media/a/X"});
            return udisks.obey(call);
        });
    }
    EXPECT_FALSE(tool.eject("sdb"));
}

TEST_F(DiskToolTest, FailsToEjectWhenTheServiceVanishesMeanwhile) {
    udisks.addPartition();
    udisks.script("Eject", [&](const QDBusMessage& call) {
        udisks.vanish();
        return call.createErrorReply("org.freedesktop.UDisks2.Error.Failed", "going");
    });
    EXPECT_FALSE(impatientTool().eject("sdb"));
}

TEST_F(DiskToolTest, WaitsForTheMediumOnlyAsLongAsForAnEjection) {
    udisks.addPartition({"/media/a/X"});
    udisks.script("Eject", [](const QDBusMessage& call) { return call.createReply(); });
    EXPECT_TRUE(toolWith({LongerThanAnyTest, std::chrono::milliseconds(0)}).eject("sdb"));
    EXPECT_EQ(DiskDelays{}.ejection, std::chrono::seconds(3));
}

TEST_F(DiskToolTest, CountsAnEjectionAsDoneWhenTheMediumIsGoneAllTheSame) {
    udisks.script("Eject", [&](const QDBusMessage& call) {
        udisks.set(FakeUDisks::DrivePath, "Drive", "MediaAvailable", false);
        return call.createErrorReply("org.freedesktop.UDisks2.Error.Failed", "no medium found");
    });
    EXPECT_TRUE(tool.eject("sdb"));
}

TEST_F(DiskToolTest, CountsAnEjectionAsDoneWhenTheDiskHasNoSizeAnyMore) {
    udisks.script("Eject", [&](const QDBusMessage& call) {
        udisks.set(Disk, "Block", "Size", quint64{0});
        return call.createErrorReply("org.freedesktop.UDisks2.Error.Failed", "no such drive");
    });
    EXPECT_TRUE(impatientTool().eject("sdb"));
}

TEST_F(DiskToolTest, ErasesADiskAndLeavesItsNewVolumeMounted) {
    udisks.addPartition({"/media/a/OLD"});
    EXPECT_TRUE(erase());
    EXPECT_THAT(calls(), ElementsAre("sdb1.Unmount", "sdb.Format", "sdb.CreatePartition",
                                     "sdb1.Format", "sdb1.Mount"));
    EXPECT_EQ(udisks.get(Partition, "Block", "IdLabel"), "ZELTO TOOL");
    EXPECT_EQ(udisks.mountPoints(Partition).size(), 1);
}

TEST_F(DiskToolTest, DoesNotEraseADiskThatIsNotTheOneMeant) {
    struct Row {
        int line;
        DiskIdentity meant;
    };
    const std::vector<Row> rows{
        {__LINE__, {0, Meant.mediaName, 40960}},
        {__LINE__, {(1U << 16U) | 6U, Meant.mediaName, 40960}},
        {__LINE__, {(2U << 16U) | 5U, Meant.mediaName, 40960}},
        {__LINE__, {Meant.location, "KESTRIN ZELTO DISK3 Media", 40960}},
        {__LINE__, {Meant.location, "", 40960}},
        {__LINE__, {Meant.location, Meant.mediaName, 40959}},
        {__LINE__, {Meant.location, Meant.mediaName, 134'217'728}},
    };
    for (const auto& row : rows) {
        EXPECT_FALSE(toolWith({LongerThanAnyTest, LongerThanAnyTest})
                         .eraseDisk("sdb", row.meant, "ZELTO TOOL"))
            << "line " << row.line;
    }
    EXPECT_FALSE(tool.eraseDisk("sdb1", Meant, "ZELTO TOOL")) << "a partition is no disk";
    EXPECT_TRUE(calls().empty());
}

TEST_F(DiskToolTest, DoesNotEraseAnotherDiskThatGetsTheNameWhileTheServiceIsWaitedFor) {
    udisks.set(Disk, "Block", "Size", quint64{0});
    udisks.afterReads(1, [&] {
        passNameOn();
        udisks.set(Disk, "Block", "Size", quint64{40960} * 512);
    });
    EXPECT_FALSE(
        toolWith({LongerThanAnyTest, LongerThanAnyTest}).eraseDisk("sdb", Meant, "ZELTO TOOL"));
    EXPECT_TRUE(calls().empty());
}

TEST_F(DiskToolTest, WaitsWhileTheServiceStillSpeaksOfTheDiskThatHadTheNameBefore) {
    udisks.set(Disk, "Block", "Size", quint64{134'217'728} * 512);
    udisks.afterReads(1, [&] { udisks.set(Disk, "Block", "Size", quint64{40960} * 512); });
    EXPECT_TRUE(erase());
}

TEST_F(DiskToolTest, StopsErasingOnceTheNameHasPassedOn) {
    for (const auto* step : {"Unmount", "Format", "CreatePartition"}) {
        udisks.addPartition({"/media/a/OLD"});
        udisks.script(step, [&](const QDBusMessage& call) {
            passNameOn();
            return udisks.obey(call);
        });
        const auto before = udisks.calls().size();
        EXPECT_FALSE(erase()) << step;
        EXPECT_EQ(udisks.calls().constLast().section('.', 1), QString(step));
        EXPECT_GT(udisks.calls().size(), before);
        detach();
        attach("07f7", "0135", 5);
    }
}

TEST_F(DiskToolTest, DoesNotFormatAPartitionThatIsNotTheDisks) {
    std::filesystem::remove_all(sdb / "sdb1");
    EXPECT_FALSE(erase());
    EXPECT_THAT(calls(), ElementsAre("sdb.Format", "sdb.CreatePartition"));
}

TEST_F(DiskToolTest, PartitionsFromTheFirstMebibyteOn) {
    udisks.script("CreatePartition", [&](const QDBusMessage& call) {
        EXPECT_EQ(call.arguments().at(0).toULongLong(), 1'048'576U);
        EXPECT_EQ(call.arguments().at(1).toULongLong(), 19U * 1'048'576U);
        EXPECT_EQ(call.arguments().at(2).toString(), "0x0e");
        return udisks.obey(call);
    });
    EXPECT_TRUE(erase());
}

TEST_F(DiskToolTest, UnmountsTheOldVolumeThatTheDesktopMountsInBetween) {
    udisks.script("CreatePartition", [&](const QDBusMessage& call) {
        auto reply = udisks.obey(call);
        udisks.setMountPoints(Partition, {"/media/a/OLD"});
        return reply;
    });
    udisks.script("Format", [&](const QDBusMessage& call) { return udisks.obey(call); });
    udisks.script("Format", [&](const QDBusMessage& call) {
        udisks.setMountPoints(Partition, {"/media/a/OLD"});
        return udisks.obey(call);
    });
    EXPECT_TRUE(erase());
    EXPECT_THAT(calls(), ElementsAre("sdb.Format", "sdb.CreatePartition", "sdb1.Unmount",
                                     "sdb1.Format", "sdb1.Unmount", "sdb1.Format", "sdb1.Mount"));
}

TEST_F(DiskToolTest, GivesUpAgainstADesktopThatMountsForEver) {
    udisks.addPartition({"/media/a/OLD"});
    for (int tries = 0; tries < 5; ++tries) {
        udisks.script("Format", [&](const QDBusMessage& call) {
            udisks.setMountPoints(Partition, {"/media/a/OLD"});
            return udisks.obey(call);
        });
    }
    EXPECT_FALSE(erase());
}

TEST_F(DiskToolTest, ReadsTheStateAgainWhenAStepTimedOutButWasDone) {
    const auto doneButTimedOut = [&](const QDBusMessage& call) {
        udisks.obey(call);
        return call.createErrorReply("org.freedesktop.UDisks2.Error.Failed",
                                     "Timed out waiting for object");
    };
    udisks.addPartition({"/media/a/OLD"});
    for (const auto* method : {"Unmount", "Format", "CreatePartition", "Format", "Mount"}) {
        udisks.script(method, doneButTimedOut);
    }
    EXPECT_TRUE(erase());
    EXPECT_EQ(udisks.get(Partition, "Block", "IdLabel"), "ZELTO TOOL");
}

TEST_F(DiskToolTest, DoesNotWaitForADiskThatHasLeft) {
    udisks.script("CreatePartition", [&](const QDBusMessage& call) {
        udisks.objects.clear();
        return call.createErrorReply("org.freedesktop.UDisks2.Error.Failed",
                                     "Timed out waiting for object");
    });
    auto patient = toolWith({LongerThanAnyTest, LongerThanAnyTest});
    EXPECT_FALSE(patient.eraseDisk("sdb", Meant, "ZELTO TOOL"));
}

TEST_F(DiskToolTest, IsNotFooledByTheOldVolumeOfTheSameName) {
    udisks.script("CreatePartition", [&](const QDBusMessage& call) {
        udisks.addPartition({}, "ZELTO TOOL", "AAAA-0001");
        return call.createReply(QVariant::fromValue(QDBusObjectPath(Partition)));
    });
    udisks.script("Format", [&](const QDBusMessage& call) { return udisks.obey(call); });
    udisks.refuse("Format", "Failed", "mkfs.vfat is not installed");
    EXPECT_FALSE(erase());
    EXPECT_THAT(udisks.mountPoints(Partition), ::testing::IsEmpty());
}

TEST_F(DiskToolTest, IsContentWithAVolumeThatTheDesktopMountedFirst) {
    udisks.script("Mount", [&](const QDBusMessage& call) {
        udisks.setMountPoints(Partition, {"/media/a/ZELTO TOOL"});
        return udisks.obey(call);
    });
    EXPECT_TRUE(erase());
}

TEST_F(DiskToolTest, StopsErasingAtTheFirstRefusal) {
    for (const auto* method : {"Format", "CreatePartition", "Mount"}) {
        udisks.refuse(method, "NotAuthorizedDismissed");
        EXPECT_FALSE(erase()) << method;
    }
}

TEST_F(DiskToolTest, ReadsPropertiesOfTheWrongTypeAsEmpty) {
    udisks.addPartition();
    udisks.set(Partition, "Filesystem", "MountPoints", 7);
    udisks.set(Partition, "Partition", "Table", QString("no path"));
    udisks.set(Disk, "Block", "Size", QStringList{"x"});
    EXPECT_TRUE(tool.umount("sdb1"));
    EXPECT_FALSE(impatientTool().eraseDisk("sdb", Meant, "ZELTO TOOL"));
}

TEST_F(DiskToolTest, ShowsThatWorkIsUnderWayOncePerRun) {
    int shown = 0;
    const Waiting showing([&] {
        ++shown;
        return std::make_shared<int>();
    });
    LinuxDiskTool shower([this] { return client; }, showing, mounts, {}, {"/proc", tree.path()});
    udisks.addPartition({"/media/a/OLD"});
    EXPECT_TRUE(shower.eraseDisk("sdb", Meant, "ZELTO TOOL"));
    EXPECT_EQ(shown, 1);
}

TEST_F(DiskToolTest, KeepsToItselfWhatTheServiceRefuses) {
    const CaughtLog log({});
    udisks.addPartition({"/media/a/X"});
    udisks.refuse("Unmount", "DeviceBusy", "target is busy");
    EXPECT_FALSE(tool.umount("sdb1"));
    EXPECT_THAT(log.lines, ::testing::IsEmpty());
}

TEST_F(DiskToolTest, SaysWhatTheServiceRefusesWhenAsked) {
    const CaughtLog log("zelto.disks=true");
    udisks.addPartition({"/media/a/X"});
    udisks.refuse("Unmount", "DeviceBusy", "target is busy");
    EXPECT_FALSE(tool.umount("sdb1"));
    EXPECT_THAT(log.lines,
                ElementsAre("zelto.disks: Unmount of /org/freedesktop/UDisks2/block_devices/sdb1: "
                            "org.freedesktop.UDisks2.Error.DeviceBusy: target is busy"));
}

TEST_F(DiskToolTest, NamesPartitionsAsTheKernelDoes) {
    EXPECT_EQ(tool.partitionName("sdb", 1), "sdb1");
    EXPECT_EQ(tool.partitionName("nvme0n1", 2), "nvme0n1p2");
    EXPECT_EQ(tool.partitionName("mmcblk0", 10), "mmcblk0p10");
}

TEST(FatPartitionPlan, FitsTheDisk) {
    EXPECT_TRUE(planFatPartition(0).type.isEmpty());
    EXPECT_TRUE(planFatPartition(2'097'151).type.isEmpty());
    EXPECT_EQ(planFatPartition(2'097'152).size, 1'048'576U);
    EXPECT_EQ(planFatPartition(512ULL << 20U).type, "0x0e");
    EXPECT_EQ(planFatPartition(513ULL << 20U).type, "0x0c");
}

} // namespace
} // namespace zelto::test
