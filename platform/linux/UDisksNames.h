#pragma once

#include <QLatin1String>

/// What UDisks2 calls things on the bus, as far as the disk tool uses it. The names are the
/// service's; each is written here only.
namespace zelto::linux_platform::udisks {

inline constexpr QLatin1String Service("org.freedesktop.UDisks2");
inline constexpr QLatin1String ManagerObject("/org/freedesktop/UDisks2");

namespace object_manager {
inline constexpr QLatin1String Interface("org.freedesktop.DBus.ObjectManager");
inline constexpr QLatin1String GetManagedObjects("GetManagedObjects");
inline constexpr QLatin1String InterfacesAdded("InterfacesAdded");
inline constexpr QLatin1String InterfacesRemoved("InterfacesRemoved");
/// Of what GetManagedObjects answers: object, interface, property, value.
inline constexpr QLatin1String ReplySignature("a{oa{sa{sv}}}");
} // namespace object_manager

namespace properties {
inline constexpr QLatin1String Interface("org.freedesktop.DBus.Properties");
inline constexpr QLatin1String PropertiesChanged("PropertiesChanged");
} // namespace properties

namespace block {
inline constexpr QLatin1String Interface("org.freedesktop.UDisks2.Block");
inline constexpr QLatin1String Format("Format");
inline constexpr QLatin1String LabelOption("label");
inline constexpr QLatin1String Device("Device");
inline constexpr QLatin1String Drive("Drive");
inline constexpr QLatin1String Size("Size");
inline constexpr QLatin1String IdType("IdType");
inline constexpr QLatin1String IdLabel("IdLabel");
inline constexpr QLatin1String IdUuid("IdUUID");
inline constexpr QLatin1String CryptoBackingDevice("CryptoBackingDevice");
} // namespace block

namespace drive {
inline constexpr QLatin1String Interface("org.freedesktop.UDisks2.Drive");
inline constexpr QLatin1String Eject("Eject");
inline constexpr QLatin1String MediaAvailable("MediaAvailable");
} // namespace drive

namespace encrypted {
inline constexpr QLatin1String Interface("org.freedesktop.UDisks2.Encrypted");
inline constexpr QLatin1String Lock("Lock");
} // namespace encrypted

namespace filesystem {
inline constexpr QLatin1String Interface("org.freedesktop.UDisks2.Filesystem");
inline constexpr QLatin1String Mount("Mount");
inline constexpr QLatin1String Unmount("Unmount");
inline constexpr QLatin1String MountPoints("MountPoints");
inline constexpr QLatin1String MountPointsSignature("aay");
} // namespace filesystem

namespace partition {
inline constexpr QLatin1String Interface("org.freedesktop.UDisks2.Partition");
inline constexpr QLatin1String Table("Table");
} // namespace partition

namespace partition_table {
inline constexpr QLatin1String Interface("org.freedesktop.UDisks2.PartitionTable");
inline constexpr QLatin1String CreatePartition("CreatePartition");
inline constexpr QLatin1String Type("Type");
} // namespace partition_table

namespace error {
inline constexpr QLatin1String AlreadyMounted("org.freedesktop.UDisks2.Error.AlreadyMounted");
inline constexpr QLatin1String NotMounted("org.freedesktop.UDisks2.Error.NotMounted");
inline constexpr QLatin1String TimedOut("org.freedesktop.UDisks2.Error.Timedout");
} // namespace error

/// What a partition table and a file system are of, in calls and in properties.
inline constexpr QLatin1String MbrTable("dos");
inline constexpr QLatin1String FatFilesystem("vfat");

} // namespace zelto::linux_platform::udisks
