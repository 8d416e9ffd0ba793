#include "simulator/computer/VirtualDisks.h"

#include "simulator/fat/FatLayout.h"

#include <algorithm>

namespace zelto::simulator {

namespace {

/// The computer's own disks come first.
constexpr unsigned FirstName = 2;

/// A medium seen through the system: it fails once the device has left, as a disk does.
class MediumDevice : public BlockDevice {
public:
    MediumDevice(std::shared_ptr<Attachment> attachment, std::size_t unit,
                 std::uint64_t sectorCount, VirtualClock& clock)
        : m_attachment(std::move(attachment)),
          m_unit(unit),
          m_sectorCount(sectorCount),
          m_clock(clock) {}

    [[nodiscard]] std::uint64_t sectorCount() const override { return m_sectorCount; }
    [[nodiscard]] bool read(std::uint64_t firstSector, std::span<std::uint8_t> into) override {
        return m_attachment->isAttached &&
               m_attachment->device->read(m_unit, firstSector, into, m_clock.worldTime());
    }
    [[nodiscard]] bool write(std::uint64_t firstSector,
                             std::span<const std::uint8_t> from) override {
        return m_attachment->isAttached &&
               m_attachment->device->write(m_unit, firstSector, from, m_clock.worldTime());
    }

private:
    std::shared_ptr<Attachment> m_attachment;
    std::size_t m_unit;
    std::uint64_t m_sectorCount;
    VirtualClock& m_clock;
};

} // namespace

void VirtualDisks::setListeners(std::function<void(VirtualDisk&)> appeared,
                                std::function<void(const VirtualDisk&)> vanished) {
    m_appeared = std::move(appeared);
    m_vanished = std::move(vanished);
}

std::optional<MediumInfo> VirtualDisks::mediumOf(const VirtualDisk& disk) const {
    return disk.attachment->isAttached
               ? disk.attachment->device->medium(disk.unit, m_clock.worldTime())
               : std::nullopt;
}

void VirtualDisks::removeVanished() {
    for (std::size_t i = 0; i < m_disks.size();) {
        const auto medium = mediumOf(*m_disks[i]);
        if (medium && medium->generation == m_disks[i]->generation) {
            ++i;
            continue;
        }
        const std::unique_ptr<VirtualDisk> gone = std::move(m_disks[i]);
        m_disks.erase(m_disks.begin() + static_cast<std::ptrdiff_t>(i));
        if (m_vanished) {
            m_vanished(*gone);
        }
    }
}

bool VirtualDisks::isEjected(const std::shared_ptr<Attachment>& attachment, std::size_t unit,
                             std::uint64_t generation) const {
    return std::ranges::any_of(m_ejected, [&](const Ejected& ejected) {
        return ejected.attachment.lock() == attachment && ejected.unit == unit &&
               ejected.generation == generation;
    });
}

bool VirtualDisks::isKnown(const Attachment& attachment, std::size_t unit) const {
    return std::ranges::any_of(m_disks, [&](const auto& disk) {
        return disk->attachment.get() == &attachment && disk->unit == unit;
    });
}

std::string VirtualDisks::freeName() const {
    for (unsigned number = FirstName;; ++number) {
        std::string name = "disk" + std::to_string(number);
        if (std::ranges::none_of(m_disks,
                                 [&](const auto& disk) { return disk->bsdName == name; })) {
            return name;
        }
    }
}

void VirtualDisks::addNew(const std::shared_ptr<Attachment>& attachment, std::size_t unit) {
    const auto medium = attachment->device->medium(unit, m_clock.worldTime());
    if (!medium || isKnown(*attachment, unit) || isEjected(attachment, unit, medium->generation)) {
        return;
    }
    auto disk = std::make_unique<VirtualDisk>();
    disk->bsdName = freeName();
    disk->unitName = attachment->device->unitName(unit);
    disk->attachment = attachment;
    disk->unit = unit;
    disk->generation = medium->generation;
    disk->device = std::make_unique<MediumDevice>(attachment, unit, medium->sectorCount, m_clock);
    readPartitions(*disk);
    m_disks.push_back(std::move(disk));
    if (m_appeared) {
        m_appeared(*m_disks.back());
    }
}

void VirtualDisks::lookAgain() {
    // Reading a new disk is itself a use of its device, which reports a change again.
    if (m_isLooking) {
        return;
    }
    m_isLooking = true;
    removeVanished();
    const auto attachments = m_bus.attachments();
    for (const auto& attachment : attachments) {
        for (std::size_t unit = 0; unit < attachment->device->unitCount(); ++unit) {
            addNew(attachment, unit);
        }
    }
    m_isLooking = false;
}

void VirtualDisks::readPartitions(VirtualDisk& disk) const {
    disk.isVolume = readFatLayout(*disk.device).has_value();
    disk.partitions = disk.isVolume ? std::vector<Partition>() : readMasterBootRecord(*disk.device);
}

void VirtualDisks::eject(VirtualDisk& disk) {
    m_ejected.push_back({disk.attachment, disk.unit, disk.generation});
    std::erase_if(m_ejected, [](const Ejected& ejected) { return ejected.attachment.expired(); });
    const auto found = std::ranges::find(
        m_disks, &disk, [](const std::unique_ptr<VirtualDisk>& each) { return each.get(); });
    const std::unique_ptr<VirtualDisk> gone = std::move(*found);
    m_disks.erase(found);
    if (m_vanished) {
        m_vanished(*gone);
    }
}

std::optional<DiskPlace> VirtualDisks::find(const std::string& bsdName) const {
    for (const auto& disk : m_disks) {
        if (disk->bsdName == bsdName) {
            return DiskPlace{.disk = disk.get(), .partition = std::nullopt};
        }
        for (const Partition& partition : disk->partitions) {
            if (disk->partitionName(partition.number) == bsdName) {
                return DiskPlace{.disk = disk.get(), .partition = partition};
            }
        }
    }
    return std::nullopt;
}

std::vector<std::string> VirtualDisks::volumeNames(const VirtualDisk& disk) {
    if (disk.isVolume) {
        return {disk.bsdName};
    }
    std::vector<std::string> names;
    for (const Partition& partition : disk.partitions) {
        names.push_back(disk.partitionName(partition.number));
    }
    return names;
}

} // namespace zelto::simulator
