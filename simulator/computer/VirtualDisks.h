#pragma once

#include "platform/Disks.h"
#include "simulator/computer/VirtualUsbBus.h"
#include "simulator/drive/SectorStore.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace zelto::simulator {

/// A disk as the system knows it: a storage unit with a medium in it.
struct VirtualDisk {
    /// "disk2".
    std::string bsdName;
    /// VENDOR, blank, MODEL of its unit.
    std::string unitName;
    std::shared_ptr<Attachment> attachment;
    std::size_t unit = 0;
    std::uint64_t mediumIdentity = 0;
    std::unique_ptr<SectorStore> medium;
    /// A volume shows up as the disk's first partition.
    bool hasVolume = false;

    [[nodiscard]] DiskIdentity identity() const {
        return {attachment->location, unitName + " Media", medium->sectorCount()};
    }
    [[nodiscard]] std::string volumeName() const { return bsdName + "s1"; }
};

/// A volume that stands on another, as the clear text of an encrypted one does.
struct StackedVolume {
    std::string bsdName;
    /// The disk or partition that it stands on.
    std::string below;
    /// Empty: it is open but not mounted.
    std::string mountPoint = {};
    bool canBeClosed = true;
};

/// The system's disks. It looks at the storage units whenever something may have changed, gives
/// each medium that appears the lowest free name, and takes the name back when it vanishes.
class VirtualDisks {
public:
    explicit VirtualDisks(VirtualUsbBus& bus) : m_bus(bus) {}

    void lookAgain();
    /// Takes the medium out: the disk leaves the system until another medium appears in its unit.
    void eject(VirtualDisk& disk);

    [[nodiscard]] const std::vector<std::unique_ptr<VirtualDisk>>& all() const { return m_disks; }
    /// The disk that has this name, or whose volume has it; null when there is none.
    [[nodiscard]] VirtualDisk* find(const std::string& bsdName) const;
    /// Opens a volume on another.
    void stack(StackedVolume volume) { m_stacked.push_back(std::move(volume)); }
    [[nodiscard]] const std::vector<StackedVolume>& stacked() const { return m_stacked; }
    /// Unmounts it and, if it can be, closes it. True when it is closed then.
    [[nodiscard]] bool closeStacked(const std::string& bsdName);
    void setListeners(std::function<void(VirtualDisk&)> appeared,
                      std::function<void(const VirtualDisk&)> vanished);

private:
    [[nodiscard]] bool isKnown(const Attachment& attachment, std::size_t unit) const;
    [[nodiscard]] std::string freeName() const;
    void removeVanished();
    void addNew(const std::shared_ptr<Attachment>& attachment, std::size_t unit);

    VirtualUsbBus& m_bus;
    std::vector<std::unique_ptr<VirtualDisk>> m_disks;
    std::vector<StackedVolume> m_stacked;
    std::function<void(VirtualDisk&)> m_appeared;
    std::function<void(const VirtualDisk&)> m_vanished;
    bool m_isLooking = false;
};

} // namespace zelto::simulator
