#pragma once

#include <QByteArray>
#include <QDBusObjectPath>
#include <QMap>
#include <QString>
#include <QVariantMap>

#include <string>
#include <vector>

namespace zelto::linux_platform {

/// What ObjectManager.GetManagedObjects answers: object, interface, property, value.
using ManagedInterfaces = QMap<QString, QVariantMap>;
using ManagedObjects = QMap<QDBusObjectPath, ManagedInterfaces>;

/// A block device as UDisks2 describes it at one moment.
struct UDisksBlock {
    /// Its object's path.
    QString path;
    /// "/dev/sdb1" say.
    QByteArray device;
    /// The drive's object; "/" or empty when there is none.
    QString drive;
    quint64 sizeInBytes = 0;
    QString idType;
    QString idLabel;
    QString idUuid;
    bool hasFilesystem = false;
    std::vector<QByteArray> mountPoints;
    /// "dos" or "gpt" for a partitioned disk, else empty.
    QString tableType;
    /// The object of the encrypted volume that this is the clear text of; "/" or empty for others.
    QString cryptoBackingDevice;
    /// A partition's disk; empty for what is no partition.
    QString disk;

    /// The kernel's name: "sdb1".
    [[nodiscard]] std::string name() const;
};

struct UDisksDrive {
    QString path;
    bool mediaAvailable = false;
};

/// All block devices and drives at one moment. A property that is missing or of another type than
/// it should be reads as empty.
struct UDisksState {
    std::vector<UDisksBlock> blocks;
    std::vector<UDisksDrive> drives;

    [[nodiscard]] static UDisksState decode(const ManagedObjects& objects);

    /// Null when there is none. Valid as long as the state is.
    [[nodiscard]] const UDisksBlock* find(const QString& path) const;
    [[nodiscard]] const UDisksBlock* findDevice(const std::string& bsdName) const;
    [[nodiscard]] const UDisksDrive* findDrive(const QString& path) const;
    /// The disk that a block device is part of; the device itself when it is no partition.
    [[nodiscard]] const UDisksBlock* diskOf(const UDisksBlock& block) const;
    [[nodiscard]] std::vector<const UDisksBlock*> partitionsOf(const QString& disk) const;
    /// Objects of the mounted file systems on a disk and its partitions.
    [[nodiscard]] std::vector<QString> mountedOn(const QString& disk) const;
};

} // namespace zelto::linux_platform
