// The disk tool with a service that answers as it likes, over a real connection: every operation
// ends, and what it asks for concerns the disk it was given, or what the service itself has said to
// belong to that. Nothing is formatted that isn't the disk that is meant.

#include "platform/linux/LinuxDiskTool.h"
#include "platform/linux/UDisksNames.h"
#include "tests/fuzz/Target.h"
#include "tests/support/SysfsTree.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusServer>
#include <QDBusVirtualObject>

#include <array>
#include <map>
#include <set>

namespace zelto::test {
namespace {

using namespace linux_platform;
using namespace linux_platform::udisks;
using Paths = std::set<QString>;
using Names = std::set<std::string>;

constexpr std::array Objects{"/b/sdb", "/b/sdb1", "/b/sdc", "/b/sdc1",
                             "/b/dm",  "/d/1",    "/d/2",   "/"};

/// What the service has said of an object at any time during one operation.
struct Said {
    Names names;
    Paths tables;
    Paths drives;
    Paths backing;
};

struct Operation {
    enum class Kind : std::uint8_t { Umount, Eject, Erase };
    Kind kind = Kind::Umount;
    std::string name;
    /// Whether the disk is the one that is meant.
    bool isMeant = true;
    /// What stands on the disk, as the kernel has it.
    Names stacked;
};

class Service final : public QDBusVirtualObject {
public:
    void begin(Input& input, Operation operation) {
        m_input = &input;
        m_operation = std::move(operation);
        m_state.clear();
        m_said.clear();
        m_created.clear();
        m_calls = 0;
    }

    [[nodiscard]] QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        constexpr int MostCalls = 5000;
        require(++m_calls <= MostCalls, "an operation ends");
        if (message.member() == object_manager::GetManagedObjects) {
            return connection.send(stateReply(message));
        }
        check(message);
        const QDBusMessage answer = reply(message);
        if (message.member() == partition_table::CreatePartition && !answer.arguments().isEmpty()) {
            m_created.insert(answer.arguments().constFirst().value<QDBusObjectPath>().path());
        }
        return connection.send(answer);
    }

private:
    // What the service answers

    [[nodiscard]] QDBusMessage stateReply(const QDBusMessage& message) {
        switch (m_input->takeByte() % 8) {
        case 1:
            m_state.clear();
            [[fallthrough]];
        case 2:
        case 3:
            describeObjects();
            break;
        case 4:
            return message.createErrorReply(QStringLiteral("a.b"), QStringLiteral("refused"));
        case 5:
            return message.createReply(QStringLiteral("no objects"));
        case 6:
            return message.createReply({QVariant::fromValue(m_state), 1});
        default:
            break;
        }
        note();
        return message.createReply(QVariant::fromValue(m_state));
    }

    [[nodiscard]] QDBusMessage reply(const QDBusMessage& message) {
        const QString text = QStringLiteral("Timed out waiting for something");
        switch (m_input->takeByte() % 8) {
        case 1:
            return message.createErrorReply(error::NotMounted, {});
        case 2:
            return message.createErrorReply(error::TimedOut, {});
        case 3:
            return message.createErrorReply(QStringLiteral("a.b"), text);
        case 4:
            return message.createErrorReply(error::AlreadyMounted, {});
        case 5:
            return message.createReply(text);
        case 6:
            return message.createReply(objectPath());
        default:
            return message.createReply();
        }
    }

    void describeObjects() {
        struct Property {
            QLatin1String interface;
            QLatin1String name;
            QVariant (Service::*value)();
        };
        static const std::array Properties{
            Property{block::Interface, block::Device, &Service::device},
            Property{block::Interface, block::Drive, &Service::objectPath},
            Property{block::Interface, block::Size, &Service::number},
            Property{block::Interface, block::IdType, &Service::text},
            Property{block::Interface, block::IdLabel, &Service::text},
            Property{block::Interface, block::IdUuid, &Service::text},
            Property{block::Interface, block::CryptoBackingDevice, &Service::objectPath},
            Property{drive::Interface, drive::MediaAvailable, &Service::number},
            Property{encrypted::Interface, block::Device, &Service::text},
            Property{filesystem::Interface, filesystem::MountPoints, &Service::mountPoints},
            Property{partition::Interface, partition::Table, &Service::objectPath},
            Property{partition_table::Interface, partition_table::Type, &Service::text},
        };
        for (int count = m_input->takeByte() % 32; count > 0; --count) {
            auto& object = m_state[objectPath().value<QDBusObjectPath>()];
            const std::uint8_t choice = m_input->takeByte();
            const Property& property = Properties.at(choice % Properties.size());
            // Now and then of another type than it should be.
            constexpr std::uint8_t Odd = 0xF0;
            object[property.interface][property.name] =
                choice >= Odd ? mountPoints() : (this->*property.value)();
        }
    }

    [[nodiscard]] QVariant objectPath() {
        const auto* const path = Objects.at(m_input->takeByte() % Objects.size());
        return QVariant::fromValue(QDBusObjectPath(path));
    }
    [[nodiscard]] QVariant device() {
        static const std::array<QByteArray, 7> Devices{QByteArray("/dev/sdb\0", 9),
                                                       QByteArray("/dev/sdb1\0", 10),
                                                       QByteArray("/dev/sdc\0", 9),
                                                       QByteArray("/dev/dm-0\0", 10),
                                                       QByteArray("/dev/sdb"),
                                                       QByteArray("/dev/"),
                                                       QByteArray()};
        return Devices.at(m_input->takeByte() % Devices.size());
    }
    [[nodiscard]] QVariant number() {
        static const std::array<QVariant, 5> Numbers{quint64{40960} * 512, quint64{0}, ~quint64{0},
                                                     true, false};
        return Numbers.at(m_input->takeByte() % Numbers.size());
    }
    [[nodiscard]] QVariant text() {
        constexpr std::array Texts{"dos", "vfat", "ZELTO TOOL", "AAAA-0001", "gpt", ""};
        return QString::fromLatin1(Texts.at(m_input->takeByte() % Texts.size()));
    }
    [[nodiscard]] QVariant mountPoints() {
        const std::uint8_t choice = m_input->takeByte();
        if (choice == 0xFF) {
            return QStringList{QStringLiteral("/media/a")};
        }
        return QVariant::fromValue(QList<QByteArray>(choice % 3, QByteArray("/media/a\0", 9)));
    }

    // What the tool may ask for

    void note() {
        for (auto object = m_state.begin(); object != m_state.end(); ++object) {
            Said& said = m_said[object.key().path()];
            const auto pathOf = [&](QLatin1String interface, QLatin1String property) {
                return object.value()
                    .value(interface)
                    .value(property)
                    .value<QDBusObjectPath>()
                    .path();
            };
            const auto node =
                object.value().value(block::Interface).value(block::Device).toByteArray();
            const std::string name(node.constData()); // up to its zero
            said.names.insert(name.substr(std::min(name.rfind('/') + 1, name.size())));
            said.tables.insert(pathOf(partition::Interface, partition::Table));
            said.drives.insert(pathOf(block::Interface, block::Drive));
            said.backing.insert(pathOf(block::Interface, block::CryptoBackingDevice));
        }
    }

    [[nodiscard]] Paths namedAs(const Names& names) const {
        Paths found;
        for (const auto& [path, said] : m_said) {
            for (const std::string& name : said.names) {
                if (names.contains(name)) {
                    found.insert(path);
                }
            }
        }
        return found;
    }
    [[nodiscard]] Paths saidOf(const Paths& paths, Paths Said::*what) const {
        Paths found;
        for (const QString& path : paths) {
            if (const auto said = m_said.find(path); said != m_said.end()) {
                found.insert((said->second.*what).begin(), (said->second.*what).end());
            }
        }
        return found;
    }

    void check(const QDBusMessage& message) const {
        const QString path = message.path();
        const QString member = message.member();
        const bool isErasing = m_operation.kind == Operation::Kind::Erase;
        Names names = m_operation.stacked;
        names.insert(m_operation.name);
        const Paths own = namedAs(names);
        Paths disks = saidOf(own, &Said::tables);
        disks.insert(own.begin(), own.end());
        if (member == block::Format || member == partition_table::CreatePartition) {
            require(isErasing && m_operation.isMeant, "only what is meant is formatted");
            require(namedAs({"sdb", "sdb1"}).contains(path), "no other disk is formatted");
        } else if (member == drive::Eject) {
            require(m_operation.kind == Operation::Kind::Eject &&
                        saidOf(disks, &Said::drives).contains(path),
                    "no other drive is ejected");
        } else if (member == encrypted::Lock) {
            require(saidOf(disks, &Said::backing).contains(path), "no other volume is locked");
        } else if (member == filesystem::Mount) {
            require(isErasing && (m_created.contains(path) || isPartOf(path, disks)),
                    "what was made is mounted");
        } else {
            require(member == filesystem::Unmount, "nothing else is asked for");
            const bool isWhole = m_operation.kind != Operation::Kind::Umount;
            require(own.contains(path) || (isWhole && isPartOf(path, disks)),
                    "no other volume is unmounted");
        }
    }

    [[nodiscard]] bool isPartOf(const QString& path, const Paths& disks) const {
        const Paths tables = saidOf({path}, &Said::tables);
        return disks.contains(path) || std::ranges::any_of(tables, [&](const QString& table) {
                   return disks.contains(table);
               });
    }

    Input* m_input = nullptr;
    Operation m_operation;
    ManagedObjects m_state;
    std::map<QString, Said> m_said;
    Paths m_created;
    int m_calls = 0;
};

class NothingMounted final : public MountTable {
public:
    std::vector<MountedFileSystem> getmntinfo() override { return {}; }
};

/// The drive's disk "sdb" and another's, "sdc".
void addDisks(const SysfsTree& tree, bool isStacked) {
    const auto sdb = tree.addDisk("usb1/1-1", 3, "sdb", "ZELTO DISK4     ", 40960);
    tree.addUsbDevice("usb1/1-1", 1, 5, "07f7", "0135", "ZD");
    tree.addPartition(sdb, "sdb1", 1);
    tree.addPartition(tree.addDisk("usb1/1-2", 0, "sdc", "OTHER", 40960, "8:32"), "sdc1", 1,
                      "8:33");
    if (isStacked) {
        tree.addMapping("dm-0", "253:0", "luks-1", {sdb + "/sdb1"});
    }
}

/// Both ends of a connection, and the kernel's trees.
class Computer {
public:
    Computer() {
        addDisks(plain, false);
        addDisks(stacked, true);
        qDBusRegisterMetaType<QList<QByteArray>>();
        qDBusRegisterMetaType<ManagedInterfaces>();
        qDBusRegisterMetaType<ManagedObjects>();
        QObject::connect(&m_server, &QDBusServer::newConnection, &service,
                         [this](const QDBusConnection& connection) {
                             m_peer = connection;
                             m_peer.registerVirtualObject(QStringLiteral("/"), &service,
                                                          QDBusConnection::SubPath);
                         });
        client = QDBusConnection::connectToPeer(m_server.address(), QStringLiteral("client"));
        while (!m_peer.isConnected()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

    SysfsTree plain;
    SysfsTree stacked;
    Service service;
    QDBusConnection client{QString()};

private:
    QDBusServer m_server{QStringLiteral("unix:tmpdir=/tmp")};
    QDBusConnection m_peer{QString()};
};

Computer& computer() {
    static int count = 1;
    static std::array<char, 6> name{"zelto"};
    static std::array<char*, 2> arguments{name.data(), nullptr};
    static const QCoreApplication application(count, arguments.data());
    static Computer made;
    return made;
}

} // namespace
} // namespace zelto::test

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zelto::test;
    using Kind = Operation::Kind;
    Input input(data, size);
    const std::uint8_t choice = input.takeByte();
    const bool isStacked = (choice & 4U) != 0;
    const bool isMeant = (choice & 8U) == 0;
    const std::chrono::milliseconds patience((choice & 16U) != 0 ? 1 : 0);
    const auto kind = static_cast<Kind>(choice % 4U % 3U);
    const std::string name = kind == Kind::Erase || (choice & 32U) != 0 ? "sdb" : "sdb1";
    computer().service.begin(input, {kind, name, isMeant, isStacked ? Names{"dm-0"} : Names{}});

    const Waiting waiting;
    NothingMounted mounts;
    LinuxDiskTool tool(
        [] { return computer().client; }, waiting, mounts, {patience, patience},
        {"/nowhere", isStacked ? computer().stacked.path() : computer().plain.path()});
    switch (kind) {
    case Kind::Umount:
        (void)tool.umount(name);
        break;
    case Kind::Eject:
        (void)tool.eject(name);
        break;
    case Kind::Erase:
        (void)tool.eraseDisk(name,
                             {isMeant ? (1U << 16U) | 5U : 0, "KESTRIN ZELTO DISK4 Media", 40960},
                             "ZELTO TOOL");
        break;
    }
    require(tool.holders({name}).size() <= 1, "a mapping may hold it");
    return 0;
}
