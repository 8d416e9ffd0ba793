#pragma once

#include "platform/Disks.h"
#include "simulator/computer/VirtualDisks.h"
#include "simulator/fat/FatVolume.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace zelto::simulator {

/// A mounted FAT volume of one of the virtual disks.
struct MountedVolume {
    std::string bsdName;
    std::string mountPoint;
    std::unique_ptr<BlockDevice> part;
    std::unique_ptr<FatVolume> volume;
};

/// What the desktop does with a volume that appears.
enum class DesktopHabit {
    /// Mounts it at once.
    MountsAtOnce,
    /// Mounts it some seconds later.
    MountsLate,
    Never,
    /// Mounts at once, and mounts again a second after somebody has unmounted it.
    MountsAgain,
};

/// The mount table of the virtual computer, and its desktop, which mounts behind the program's
/// back.
class VirtualMountTable : public MountTable {
public:
    VirtualMountTable(VirtualDisks& disks, VirtualClock& clock) : m_disks(disks), m_clock(clock) {}

    [[nodiscard]] std::vector<MountedFileSystem> getmntinfo() override;

    void setDesktopHabit(DesktopHabit habit) { m_habit = habit; }
    void setDesktopDelay(std::chrono::seconds delay) { m_delay = delay; }
    /// A line that no virtual disk stands behind.
    void addForeign(MountedFileSystem line) { m_foreign.push_back(std::move(line)); }
    /// Programs that have files open on a volume; empty when it is to be free again.
    void setHolders(const std::string& bsdName, std::set<std::string> programs);
    [[nodiscard]] std::set<std::string> holders(const std::string& bsdName) const;

    /// Mounts a volume below "/media/user" under its label; false when it holds no file system.
    /// A mounted volume is mounted once.
    bool mount(const std::string& bsdName);
    /// False when the volume is not mounted, or busy.
    [[nodiscard]] bool unmount(const std::string& bsdName);
    [[nodiscard]] bool isMounted(const std::string& bsdName) const;
    /// The volume's mount point; empty when it is not mounted.
    [[nodiscard]] std::string mountPoint(const std::string& bsdName) const;
    /// The volume that a path leads into and the rest of the path; null when it is none of these.
    [[nodiscard]] FatVolume* volumeAt(const std::filesystem::path& path,
                                      std::filesystem::path& rest) const;

    void diskAppeared(const VirtualDisk& disk);
    void diskVanished(const VirtualDisk& disk);

private:
    [[nodiscard]] std::string freeMountPoint(const std::string& label) const;

    VirtualDisks& m_disks;
    VirtualClock& m_clock;
    DesktopHabit m_habit = DesktopHabit::MountsAtOnce;
    std::chrono::seconds m_delay{5};
    std::vector<MountedFileSystem> m_foreign{{"/", "/dev/disk0s2"}};
    std::vector<MountedVolume> m_mounted;
    std::map<std::string, std::set<std::string>> m_holders;
};

} // namespace zelto::simulator
