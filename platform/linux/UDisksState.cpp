#include "platform/linux/UDisksState.h"

#include "platform/linux/UDisksNames.h"

#include <QDBusArgument>

#include <algorithm>
#include <string_view>

namespace zelto::linux_platform {

namespace {

/// Paths come as bytes with a zero at their end.
QByteArray withoutZero(const QByteArray& path) {
    return path.endsWith('\0') ? path.chopped(1) : path;
}

QString objectPath(const QVariant& value) {
    return value.value<QDBusObjectPath>().path();
}

std::vector<QByteArray> paths(const QVariant& value) {
    std::vector<QByteArray> decoded;
    if (value.metaType() != QMetaType::fromType<QDBusArgument>()) {
        return decoded;
    }
    const auto argument = value.value<QDBusArgument>();
    // Taking an argument apart as a type that it is not is undefined.
    if (argument.currentSignature() == udisks::filesystem::MountPointsSignature) {
        for (const auto& path : qdbus_cast<QList<QByteArray>>(argument)) {
            decoded.push_back(withoutZero(path));
        }
    }
    return decoded;
}

UDisksBlock decodeBlock(const QString& path, const ManagedInterfaces& interfaces) {
    const auto block = interfaces.value(udisks::block::Interface);
    UDisksBlock decoded;
    decoded.path = path;
    decoded.device = withoutZero(block.value(udisks::block::Device).toByteArray());
    decoded.drive = objectPath(block.value(udisks::block::Drive));
    decoded.cryptoBackingDevice = objectPath(block.value(udisks::block::CryptoBackingDevice));
    decoded.sizeInBytes = block.value(udisks::block::Size).toULongLong();
    decoded.idType = block.value(udisks::block::IdType).toString();
    decoded.idLabel = block.value(udisks::block::IdLabel).toString();
    decoded.idUuid = block.value(udisks::block::IdUuid).toString();
    decoded.hasFilesystem = interfaces.contains(udisks::filesystem::Interface);
    decoded.mountPoints = paths(
        interfaces.value(udisks::filesystem::Interface).value(udisks::filesystem::MountPoints));
    decoded.tableType = interfaces.value(udisks::partition_table::Interface)
                            .value(udisks::partition_table::Type)
                            .toString();
    decoded.disk =
        objectPath(interfaces.value(udisks::partition::Interface).value(udisks::partition::Table));
    return decoded;
}

template <typename Items, typename Predicate>
auto findIf(const Items& items, Predicate predicate) {
    const auto found = std::ranges::find_if(items, predicate);
    return found == items.end() ? nullptr : &*found;
}

} // namespace

UDisksState UDisksState::decode(const ManagedObjects& objects) {
    UDisksState state;
    for (auto object = objects.begin(); object != objects.end(); ++object) {
        if (object.value().contains(udisks::block::Interface)) {
            state.blocks.push_back(decodeBlock(object.key().path(), object.value()));
        }
        if (object.value().contains(udisks::drive::Interface)) {
            const auto drive = object.value().value(udisks::drive::Interface);
            state.drives.push_back(
                {object.key().path(), drive.value(udisks::drive::MediaAvailable).toBool()});
        }
    }
    return state;
}

std::string UDisksBlock::name() const {
    constexpr std::string_view Folder = "/dev/";
    const auto node = device.toStdString();
    return node.starts_with(Folder) ? node.substr(Folder.size()) : std::string();
}

const UDisksBlock* UDisksState::find(const QString& path) const {
    return findIf(blocks, [&](const UDisksBlock& block) { return block.path == path; });
}

const UDisksBlock* UDisksState::findDevice(const std::string& bsdName) const {
    return findIf(blocks, [&](const UDisksBlock& block) { return block.name() == bsdName; });
}

const UDisksDrive* UDisksState::findDrive(const QString& path) const {
    return findIf(drives, [&](const UDisksDrive& drive) { return drive.path == path; });
}

const UDisksBlock* UDisksState::diskOf(const UDisksBlock& block) const {
    return block.disk.isEmpty() ? &block : find(block.disk);
}

std::vector<const UDisksBlock*> UDisksState::partitionsOf(const QString& disk) const {
    std::vector<const UDisksBlock*> partitions;
    for (const auto& block : blocks) {
        if (block.disk == disk) {
            partitions.push_back(&block);
        }
    }
    return partitions;
}

std::vector<QString> UDisksState::mountedOn(const QString& disk) const {
    std::vector<QString> mounted;
    for (const auto& block : blocks) {
        if ((block.path == disk || block.disk == disk) && !block.mountPoints.empty()) {
            mounted.push_back(block.path);
        }
    }
    return mounted;
}

} // namespace zelto::linux_platform
