#pragma once

#include "platform/Disks.h"
#include "platform/linux/BlockDevices.h"
#include "platform/linux/UDisks.h"
#include "platform/linux/Waiting.h"

#include <QDBusConnection>

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace zelto::linux_platform {

/// Where the kernel shows what it knows.
struct KernelFolders {
    std::filesystem::path proc = "/proc";
    std::filesystem::path sysfs = "/sys";
};

struct DiskDelays {
    /// How long the service's properties may lag behind its answers.
    std::chrono::milliseconds property{20'000};
    /// How long a medium may take to leave. The user waits for it, and the drive that it is in
    /// hides the area all the same once it is locked.
    std::chrono::milliseconds ejection{3'000};
};

/// The disk tool's operations as calls to UDisks2. Desktops mount what appears without being asked,
/// so each step expects a volume that is mounted again; and since the service can report a failure
/// for what it has done, a step that failed is judged by the state that it left.
class LinuxDiskTool final : public DiskTool {
public:
    using Bus = std::function<QDBusConnection()>;

    /// The bus is asked for at the first operation, not before.
    LinuxDiskTool(Bus bus, const Waiting& waiting, MountTable& mounts, DiskDelays delays = {},
                  KernelFolders kernel = {});

    [[nodiscard]] bool isStacked(const std::string& bsdName) const override {
        return m_devices.isStacked(bsdName);
    }
    [[nodiscard]] bool umount(const std::string& bsdName) override;
    /// Succeeds once nothing of the disk is in use, also when its medium stays.
    [[nodiscard]] bool eject(const std::string& bsdName) override;
    /// A label longer than FAT's eleven bytes is refused before anything is touched.
    [[nodiscard]] bool eraseDisk(const std::string& bsdName, const DiskIdentity& meant,
                                 const std::string& label) override;
    [[nodiscard]] std::string partitionName(const std::string& disk,
                                            unsigned number) const override;
    [[nodiscard]] std::vector<std::string>
    holders(const std::vector<std::string>& bsdNames) const override;

private:
    [[nodiscard]] UDisks& service();

    [[nodiscard]] bool unmountEverywhere(const QString& block);
    /// What stands on the device, whatever stands on another first.
    [[nodiscard]] bool releaseStacked(const std::string& bsdName);
    [[nodiscard]] bool release(const UDisksBlock& block);
    [[nodiscard]] bool close(const UDisksBlock& block);
    [[nodiscard]] bool unmountDisk(const QString& disk);
    [[nodiscard]] bool ejectMedium(const UDisksBlock& disk);
    [[nodiscard]] bool isFree(const QString& disk);
    [[nodiscard]] bool isInUse(const UDisksState& state, const QString& disk) const;
    /// A disk that is being erased: the service's object, and what has to be true of its name
    /// before each step that destroys something.
    struct Erasure {
        QString disk;
        std::string bsdName;
        DiskIdentity meant;
    };
    [[nodiscard]] bool isKnown(const std::string& bsdName, const DiskIdentity& meant);
    [[nodiscard]] bool writeTable(const Erasure& erasure);
    /// The new partition's object; empty on failure.
    [[nodiscard]] QString createPartition(const Erasure& erasure);
    [[nodiscard]] bool makeFat(const Erasure& erasure, const QString& partition,
                               const QString& label);
    [[nodiscard]] bool mount(const QString& disk, const QString& partition);

    /// What a step asks of the service, or nothing when it must not be done any more.
    using Action = std::function<std::optional<QDBusMessage>()>;
    [[nodiscard]] bool doFreed(const QString& disk, const Action& action,
                               const UDisks::Predicate& goal, std::chrono::milliseconds delay);
    [[nodiscard]] bool settle(const QString& disk, const QDBusMessage& reply,
                              const UDisks::Predicate& goal, std::chrono::milliseconds delay);

    Bus m_bus;
    const Waiting& m_waiting;
    MountTable& m_mounts;
    DiskDelays m_delays;
    std::filesystem::path m_proc;
    BlockDevices m_devices;
    std::unique_ptr<UDisks> m_service;
};

/// Where the one partition of an erased disk lies, in bytes, and what it is called in the table.
struct FatPartition {
    quint64 offset = 0;
    quint64 size = 0;
    /// The type byte as UDisks2 writes it, "0x0e" say. Empty: the disk is too small for any.
    QString type;
};
[[nodiscard]] FatPartition planFatPartition(quint64 diskSizeInBytes);

} // namespace zelto::linux_platform
