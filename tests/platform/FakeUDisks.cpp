#include "tests/platform/FakeUDisks.h"

#include <QDBusMetaType>

namespace zelto::test {

namespace {

const QString Prefix = QStringLiteral("org.freedesktop.UDisks2.");

QByteArray zeroEnded(const QString& text) {
    auto bytes = text.toUtf8();
    bytes.append('\0');
    return bytes;
}

QVariantMap blockProperties(const QString& device) {
    return {{"Device", zeroEnded(device)},
            {"Drive", QVariant::fromValue(QDBusObjectPath(FakeUDisks::DrivePath))},
            {"Size", quint64{40960} * 512},
            {"IdType", QString()},
            {"IdLabel", QString()},
            {"IdUUID", QString()}};
}

} // namespace

FakeUDisks::FakeUDisks(const QDBusConnection& bus) : m_bus(bus) {
    qDBusRegisterMetaType<QList<QByteArray>>();
    qDBusRegisterMetaType<linux_platform::ManagedInterfaces>();
    qDBusRegisterMetaType<linux_platform::ManagedObjects>();
    objects[QDBusObjectPath(DrivePath)][Prefix + "Drive"] = {{"MediaAvailable", true}};
    objects[QDBusObjectPath(DiskPath)][Prefix + "Block"] = blockProperties("/dev/sdb");
    m_bus.registerVirtualObject(Manager, this, QDBusConnection::SubPath);
    m_bus.registerService("org.freedesktop.UDisks2");
}

void FakeUDisks::addPartition(const QStringList& mountPoints, const QString& label,
                              const QString& uuid) {
    objects[QDBusObjectPath(DiskPath)][Prefix + "PartitionTable"] = {{"Type", "dos"}};
    auto& partition = objects[QDBusObjectPath(PartitionPath)];
    auto block = blockProperties("/dev/sdb1");
    block["IdType"] = "vfat";
    block["IdLabel"] = label;
    block["IdUUID"] = uuid;
    partition[Prefix + "Block"] = block;
    partition[Prefix + "Partition"] = {{"Table", QVariant::fromValue(QDBusObjectPath(DiskPath))}};
    partition[Prefix + "Filesystem"] = {};
    setMountPoints(PartitionPath, mountPoints);
}

QString FakeUDisks::pathOf(const QString& name) {
    return QStringLiteral("/org/freedesktop/UDisks2/block_devices/") +
           QString(name).replace('-', "_2d");
}

void FakeUDisks::addVolume(const QString& name, const QStringList& mountPoints) {
    auto& volume = objects[QDBusObjectPath(pathOf(name))];
    volume[Prefix + "Block"] = blockProperties("/dev/" + name);
    volume[Prefix + "Block"]["Drive"] = QVariant::fromValue(QDBusObjectPath("/"));
    volume[Prefix + "Block"]["CryptoBackingDevice"] = QVariant::fromValue(QDBusObjectPath("/"));
    volume[Prefix + "Filesystem"] = {};
    setMountPoints(pathOf(name), mountPoints);
}

void FakeUDisks::unlock(const QString& backing, const QString& name,
                        const QStringList& mountPoints) {
    addVolume(name, mountPoints);
    objects[QDBusObjectPath(backing)][Prefix + "Encrypted"] = {};
    set(pathOf(name), "Block", "CryptoBackingDevice",
        QVariant::fromValue(QDBusObjectPath(backing)));
}

QString FakeUDisks::clearTextOf(const QString& backing) const {
    for (auto object = objects.begin(); object != objects.end(); ++object) {
        auto path = object.key().path();
        if (get(path, "Block", "CryptoBackingDevice").value<QDBusObjectPath>().path() == backing) {
            return path;
        }
    }
    return {};
}

void FakeUDisks::setMountPoints(const QString& path, const QStringList& mountPoints) {
    QList<QByteArray> bytes;
    for (const auto& mountPoint : mountPoints) {
        bytes.append(zeroEnded(mountPoint));
    }
    set(path, "Filesystem", "MountPoints", QVariant::fromValue(bytes));
}

QStringList FakeUDisks::mountPoints(const QString& path) const {
    QStringList texts;
    for (const auto& bytes : get(path, "Filesystem", "MountPoints").value<QList<QByteArray>>()) {
        texts.append(QString::fromUtf8(bytes.chopped(1)));
    }
    return texts;
}

void FakeUDisks::set(const QString& path, const QString& interface, const QString& property,
                     const QVariant& value) {
    objects[QDBusObjectPath(path)][Prefix + interface][property] = value;
    announceChange(path);
}

QVariant FakeUDisks::get(const QString& path, const QString& interface,
                         const QString& property) const {
    return objects.value(QDBusObjectPath(path)).value(Prefix + interface).value(property);
}

void FakeUDisks::vanish() {
    m_bus.unregisterService("org.freedesktop.UDisks2");
    m_bus.unregisterObject(Manager, QDBusConnection::UnregisterTree);
}

void FakeUDisks::announceChange(const QString& path) {
    auto signal =
        QDBusMessage::createSignal(path, "org.freedesktop.DBus.Properties", "PropertiesChanged");
    signal.setArguments({Prefix + "Filesystem", QVariantMap(), QStringList()});
    m_bus.send(signal);
}

void FakeUDisks::refuse(const QString& method, const QString& error, const QString& text) {
    script(method, [=](const QDBusMessage& call) {
        return call.createErrorReply(Prefix + "Error." + error, text);
    });
}

void FakeUDisks::afterReads(int reads, std::function<void()> event) {
    m_readsUntilEvent = reads;
    m_event = std::move(event);
}

bool FakeUDisks::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    if (message.member() == "GetManagedObjects") {
        connection.send(message.createReply(QVariant::fromValue(objects)));
        if (m_event && --m_readsUntilEvent == 0) {
            std::exchange(m_event, nullptr)();
        }
        return true;
    }
    m_calls.append(message.path().section('/', -1) + "." + message.member());
    auto& scripts = m_scripts[message.member()];
    std::optional<QDBusMessage> reply;
    if (scripts.empty()) {
        reply = obey(message);
    } else {
        const auto next = scripts.front();
        scripts.pop_front();
        reply = next(message);
    }
    if (reply) {
        connection.send(*reply);
    }
    return true;
}

QDBusMessage FakeUDisks::obey(const QDBusMessage& call) {
    const auto error = [&](const char* name) {
        return call.createErrorReply(Prefix + "Error." + name, name);
    };
    if (call.member() == "Unmount") {
        auto remaining = mountPoints(call.path());
        if (remaining.isEmpty()) {
            return error("NotMounted");
        }
        remaining.removeFirst();
        setMountPoints(call.path(), remaining);
        return call.createReply();
    }
    if (call.member() == "Mount") {
        if (!mountPoints(call.path()).isEmpty()) {
            return error("AlreadyMounted");
        }
        setMountPoints(call.path(), {"/media/a/NEW"});
        return call.createReply(QVariant(QString("/media/a/NEW")));
    }
    if (call.member() == "Lock") {
        return lock(call);
    }
    if (!mountPoints(PartitionPath).isEmpty() || !clearTextOf(PartitionPath).isEmpty()) {
        return error("DeviceBusy");
    }
    if (call.member() == "Eject") {
        set(DrivePath, "Drive", "MediaAvailable", false);
        return call.createReply();
    }
    if (call.member() == "CreatePartition") {
        // What lay at these sectors before shows again.
        addPartition();
        return call.createReply(QVariant::fromValue(QDBusObjectPath(PartitionPath)));
    }
    if (call.member() == "Format") {
        format(call);
        return call.createReply();
    }
    return error("NotSupported");
}

QDBusMessage FakeUDisks::lock(const QDBusMessage& call) {
    const auto clearText = clearTextOf(call.path());
    const bool isHeld = !clearTextOf(clearText).isEmpty();
    if (clearText.isEmpty() || isHeld || !mountPoints(clearText).isEmpty()) {
        return call.createErrorReply(Prefix + "Error." +
                                         (clearText.isEmpty() ? "Failed" : "DeviceBusy"),
                                     "cannot be locked");
    }
    const auto device = get(clearText, "Block", "Device").toByteArray().chopped(1);
    objects.remove(QDBusObjectPath(clearText));
    announceChange(clearText);
    if (whenLocked) {
        whenLocked(device.mid(5).toStdString());
    }
    return call.createReply();
}

void FakeUDisks::format(const QDBusMessage& call) {
    if (call.arguments().at(0) == "dos") {
        objects.remove(QDBusObjectPath(PartitionPath));
        set(call.path(), "PartitionTable", "Type", "dos");
        return;
    }
    const auto options = qdbus_cast<QVariantMap>(call.arguments().at(1));
    set(call.path(), "Block", "IdType", call.arguments().at(0));
    set(call.path(), "Block", "IdLabel", options.value("label"));
    set(call.path(), "Block", "IdUUID", "BBBB-0002");
}

} // namespace zelto::test
