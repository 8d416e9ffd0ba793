#pragma once

#include "platform/Disks.h"
#include "simulator/computer/VirtualDisks.h"
#include "simulator/computer/VirtualVolume.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace zelto::simulator {

/// A mounted volume of one of the virtual disks.
struct MountedVolume {
    std::string bsdName;
    std::string mountPoint;
    std::unique_ptr<VirtualVolume> volume;
};

/// What the desktop does with a volume that appears.
enum class DesktopHabit { MountsAtOnce, Never };

/// The mount table of the virtual computer, and its desktop, which mounts behind the program's
/// back.
class VirtualMountTable : public MountTable {
public:
    explicit VirtualMountTable(VirtualDisks& disks) : m_disks(disks) {}

    [[nodiscard]] std::vector<MountedFileSystem> getmntinfo() override;

    void setDesktopHabit(DesktopHabit habit) { m_habit = habit; }
    /// A line that no virtual disk stands behind.
    void addForeign(MountedFileSystem line) { m_foreign.push_back(std::move(line)); }
    /// Programs that have files open on a volume; empty when it is to be free again.
    void setHolders(const std::string& bsdName, std::set<std::string> programs);
    [[nodiscard]] std::set<std::string> holders(const std::string& bsdName) const;

    /// Mounts a volume below "/media/user" under its label; false when there is none of that name.
    /// A mounted volume is mounted once.
    bool mount(const std::string& bsdName);
    /// False when the volume is not mounted, or busy.
    [[nodiscard]] bool unmount(const std::string& bsdName);
    [[nodiscard]] bool isMounted(const std::string& bsdName) const {
        return !mountPoint(bsdName).empty();
    }
    /// The volume's mount point; empty when it is not mounted.
    [[nodiscard]] std::string mountPoint(const std::string& bsdName) const;
    /// The volume that a path leads into and the rest of the path; null when it is none of these.
    [[nodiscard]] VirtualVolume* volumeAt(const std::filesystem::path& path,
                                          std::filesystem::path& rest) const;

    void diskAppeared(const VirtualDisk& disk);
    void diskVanished(const VirtualDisk& disk);

private:
    [[nodiscard]] std::string freeMountPoint(const std::string& label) const;

    VirtualDisks& m_disks;
    DesktopHabit m_habit = DesktopHabit::MountsAtOnce;
    std::vector<MountedFileSystem> m_foreign{{"/", "/dev/disk0s2"}};
    std::vector<MountedVolume> m_mounted;
    std::map<std::string, std::set<std::string>> m_holders;
};

} // namespace zelto::simulator
