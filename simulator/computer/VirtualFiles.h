#pragma once

#include "platform/Computer.h"
#include "simulator/computer/FileTree.h"
#include "simulator/computer/VirtualMountTable.h"

namespace zelto::simulator {

/// The files and programs of the virtual computer. A path below a mounted volume leads to the
/// volume, any other to the computer's own disk.
class VirtualFiles : public Computer {
public:
    VirtualFiles(VirtualMountTable& mounts, EventLog& log);

    [[nodiscard]] std::filesystem::path bundlePath() const override { return m_bundlePath; }
    [[nodiscard]] std::vector<std::filesystem::path>
    mountRoots(const UsbMatching& drives) const override;
    [[nodiscard]] std::filesystem::path applicationsFolder() const override;
    [[nodiscard]] std::vector<std::filesystem::path> launchedApplications() const override;
    [[nodiscard]] std::vector<std::filesystem::path> filesBesideBundle() const override {
        return {};
    }
    [[nodiscard]] bool fileExistsAtPath(const std::filesystem::path& path) const override;
    [[nodiscard]] std::optional<FileTime>
    fileModificationDate(const std::filesystem::path& path) const override;
    [[nodiscard]] bool isWritableFileAtPath(const std::filesystem::path& path) const override;
    [[nodiscard]] bool removeItemAtPath(const std::filesystem::path& path) override;
    [[nodiscard]] bool copyItemAtPath(const std::filesystem::path& source,
                                      const std::filesystem::path& destination) override;
    int open(const std::filesystem::path& bundle) override;
    int chflags(const std::string& flag, const std::filesystem::path& path) override;

    /// Where the program was started from; it need not be there any more.
    void setBundlePath(std::filesystem::path path) { m_bundlePath = std::move(path); }
    /// Puts a bundle of several files and folders there, its parents included.
    void installBundle(const std::filesystem::path& bundle, FileTime modified);
    /// The drive's volume is mounted there, outside of the folders that volumes are mounted in.
    void addDriveElsewhere(std::filesystem::path mountPoint) {
        m_drivesElsewhere.push_back(std::move(mountPoint));
    }
    /// Programs that run beside this one.
    void setRunning(std::vector<std::filesystem::path> bundles) { m_running = std::move(bundles); }
    [[nodiscard]] const std::vector<std::filesystem::path>& opened() const { return m_opened; }
    /// Every copy fails, without a reason that anybody could name beforehand.
    void setCopyFails(bool fails) { m_copyFails = fails; }

    /// The computer's own disk. Its paths lack the leading slash.
    [[nodiscard]] FileTree& ownDisk() { return m_ownDisk; }
    [[nodiscard]] static FileTree::Path onOwnDisk(const std::filesystem::path& path) {
        return path.relative_path();
    }
    /// Whether two files, or two folders with all that is in them, are equal byte for byte.
    [[nodiscard]] bool areEqual(const std::filesystem::path& one,
                                const std::filesystem::path& other) const;

private:
    /// A path within the tree that it leads into.
    struct Place {
        FileTree& tree;
        FileTree::Path path;
    };

    [[nodiscard]] Place place(const std::filesystem::path& path) const;
    [[nodiscard]] const File* find(const std::filesystem::path& path) const;

    VirtualMountTable& m_mounts;
    EventLog& m_log;
    /// Looking at a file and changing it both begin with its place.
    mutable FileTree m_ownDisk;
    std::filesystem::path m_bundlePath;
    std::vector<std::filesystem::path> m_drivesElsewhere;
    std::vector<std::filesystem::path> m_running;
    std::vector<std::filesystem::path> m_opened;
    bool m_copyFails = false;
};

} // namespace zelto::simulator
