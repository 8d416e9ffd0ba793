#pragma once

#include "platform/linux/UDisksState.h"
#include "tests/support/PrivateBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QStringList>

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <utility>

namespace zelto::test {

/// The disk service as far as the disk tool uses it: one drive with a disk /dev/sdb. It obeys like
/// the real one, unless a test has scripted what the next call of a method gets.
class FakeUDisks : public QDBusVirtualObject {
    Q_OBJECT

public:
    static constexpr auto Manager = "/org/freedesktop/UDisks2";
    static constexpr auto DrivePath = "/org/freedesktop/UDisks2/drives/ZELTO";
    static constexpr auto DiskPath = "/org/freedesktop/UDisks2/block_devices/sdb";
    static constexpr auto PartitionPath = "/org/freedesktop/UDisks2/block_devices/sdb1";

    explicit FakeUDisks(const QDBusConnection& bus);

    void addPartition(const QStringList& mountPoints = {}, const QString& label = "OLD",
                      const QString& uuid = "AAAA-0001");
    /// Unlocks the encrypted volume of an object: the clear text is the device "/dev/NAME".
    void unlock(const QString& backing, const QString& name, const QStringList& mountPoints);
    /// A volume that nobody knows how to close.
    void addVolume(const QString& name, const QStringList& mountPoints);
    [[nodiscard]] static QString pathOf(const QString& name);
    /// What the kernel does when a clear text has been locked again.
    std::function<void(const std::string& name)> whenLocked;
    void setMountPoints(const QString& path, const QStringList& mountPoints);
    [[nodiscard]] QStringList mountPoints(const QString& path) const;
    void set(const QString& path, const QString& interface, const QString& property,
             const QVariant& value);
    [[nodiscard]] QVariant get(const QString& path, const QString& interface,
                               const QString& property) const;
    void vanish();

    /// What a scripted call does. Nothing returned: no answer is ever sent.
    using Script = std::function<std::optional<QDBusMessage>(const QDBusMessage&)>;
    void script(const QString& method, Script answer) {
        m_scripts[method].push_back(std::move(answer));
    }
    /// The service's own error, "DeviceBusy" say, instead of obeying.
    void refuse(const QString& method, const QString& error, const QString& text = "refused");
    /// What the service does on a call that is not scripted; for scripts that obey as well.
    QDBusMessage obey(const QDBusMessage& call);
    /// Something that happens after the state has been read that often.
    void afterReads(int reads, std::function<void()> event);

    /// The methods called, in order, with the last part of the object's path: "sdb1.Unmount".
    [[nodiscard]] const QStringList& calls() const { return m_calls; }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

    linux_platform::ManagedObjects objects;

private:
    void announceChange(const QString& path);
    void format(const QDBusMessage& call);
    [[nodiscard]] QString clearTextOf(const QString& backing) const;
    QDBusMessage lock(const QDBusMessage& call);

    QDBusConnection m_bus;
    QStringList m_calls;
    std::map<QString, std::deque<Script>> m_scripts;
    int m_readsUntilEvent = 0;
    std::function<void()> m_event;
};

} // namespace zelto::test
