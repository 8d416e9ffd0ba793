#pragma once

#include "simulator/computer/VirtualMountTable.h"

#include <functional>
#include <map>
#include <optional>

namespace zelto::simulator {

/// The disk tool of the virtual computer. It really unmounts, ejects and formats.
class VirtualDiskTool : public DiskTool {
public:
    VirtualDiskTool(VirtualDisks& disks, VirtualMountTable& mounts, VirtualClock& clock,
                    EventLog& log)
        : m_disks(disks), m_mounts(mounts), m_clock(clock), m_log(log) {}

    [[nodiscard]] int run(const std::vector<std::string>& arguments) override;
    [[nodiscard]] std::string partitionName(const std::string& disk,
                                            unsigned number) const override;
    [[nodiscard]] std::vector<std::string>
    holders(const std::vector<std::string>& bsdNames) const override;

    /// Every run of a verb ends with this status and does nothing; nothing: it works again.
    void setFailure(const std::string& verb, std::optional<int> status);
    /// eraseDisk forgets to mount what it has made.
    void setEraseMounts(bool mounts) { m_eraseMounts = mounts; }
    /// Called before each run, which may take this long.
    void setBeforeRun(std::function<void(const std::vector<std::string>&)> hook) {
        m_beforeRun = std::move(hook);
    }

private:
    [[nodiscard]] int umount(const std::string& name);
    [[nodiscard]] int eject(const std::string& name);
    [[nodiscard]] int eraseDisk(const std::vector<std::string>& arguments);
    [[nodiscard]] bool unmountAll(const VirtualDisk& disk);

    VirtualDisks& m_disks;
    VirtualMountTable& m_mounts;
    VirtualClock& m_clock;
    EventLog& m_log;
    std::map<std::string, int> m_failures;
    bool m_eraseMounts = true;
    std::function<void(const std::vector<std::string>&)> m_beforeRun;
};

} // namespace zelto::simulator
