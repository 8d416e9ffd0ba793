#pragma once

#include "simulator/computer/VirtualMountTable.h"

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace zelto::simulator {

enum class DiskVerb { Umount, Eject, EraseDisk };

enum class ToolBehaviour {
    Works,
    /// It does nothing and says so.
    Fails,
    /// It does nothing and says that it was done.
    OnlyPretends,
};

/// The disk tool of the virtual computer.
class VirtualDiskTool : public DiskTool {
public:
    VirtualDiskTool(VirtualDisks& disks, VirtualMountTable& mounts, EventLog& log)
        : m_disks(disks), m_mounts(mounts), m_log(log) {}

    [[nodiscard]] bool isStacked(const std::string& bsdName) const override;
    [[nodiscard]] bool umount(const std::string& bsdName) override;
    [[nodiscard]] bool eject(const std::string& bsdName) override;
    [[nodiscard]] bool eraseDisk(const std::string& bsdName, const DiskIdentity& meant,
                                 const std::string& label) override;
    [[nodiscard]] std::string partitionName(const std::string& disk,
                                            unsigned number) const override;
    [[nodiscard]] std::vector<std::string>
    holders(const std::vector<std::string>& bsdNames) const override;

    /// From now on, with every run of this verb.
    void setBehaviour(DiskVerb verb, ToolBehaviour behaviour) { m_behaviours[verb] = behaviour; }
    /// eraseDisk forgets to mount what it has made.
    void setEraseMounts(bool mounts) { m_eraseMounts = mounts; }
    /// Called before each run with the name of the disk or partition that it is for.
    void setBeforeRun(std::function<void(const std::string& bsdName)> hook) {
        m_beforeRun = std::move(hook);
    }

private:
    [[nodiscard]] bool run(DiskVerb verb, const std::string& arguments, const std::string& bsdName,
                           const std::function<bool()>& action);
    [[nodiscard]] bool closeStackedOn(const std::string& bsdName);
    [[nodiscard]] std::string baseOf(std::string bsdName) const;
    [[nodiscard]] bool unmountAll(const VirtualDisk& disk);
    [[nodiscard]] bool format(VirtualDisk& disk, const std::string& label);

    VirtualDisks& m_disks;
    VirtualMountTable& m_mounts;
    EventLog& m_log;
    std::map<DiskVerb, ToolBehaviour> m_behaviours;
    bool m_eraseMounts = true;
    std::function<void(const std::string&)> m_beforeRun;
};

} // namespace zelto::simulator
