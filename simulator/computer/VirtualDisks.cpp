#include "simulator/computer/VirtualDisks.h"

#include "simulator/computer/VirtualVolume.h"

#include <algorithm>

namespace zelto::simulator {

namespace {

/// The computer's own disks come first.
constexpr unsigned FirstName = 2;

/// A medium seen through the system: it fails once the device has left, as a disk does.
class DiskMedium : public SectorStore {
public:
    DiskMedium(std::shared_ptr<Attachment> attachment, std::size_t unit, std::uint64_t sectorCount)
        : m_attachment(std::move(attachment)), m_unit(unit), m_sectorCount(sectorCount) {}

    [[nodiscard]] std::uint64_t sectorCount() const override { return m_sectorCount; }
    [[nodiscard]] bool read(std::uint64_t sector, std::span<std::uint8_t> bytes) override {
        return m_attachment->isAttached && m_attachment->units->read(m_unit, sector, bytes);
    }
    [[nodiscard]] bool write(std::uint64_t sector, std::span<const std::uint8_t> bytes) override {
        return m_attachment->isAttached && m_attachment->units->write(m_unit, sector, bytes);
    }
    [[nodiscard]] bool flush() override { return true; }
    [[nodiscard]] bool discardAll() override { return false; }

private:
    std::shared_ptr<Attachment> m_attachment;
    std::size_t m_unit;
    std::uint64_t m_sectorCount;
};

} // namespace

void VirtualDisks::setListeners(std::function<void(VirtualDisk&)> appeared,
                                std::function<void(const VirtualDisk&)> vanished) {
    m_appeared = std::move(appeared);
    m_vanished = std::move(vanished);
}

void VirtualDisks::removeVanished() {
    for (std::size_t i = 0; i < m_disks.size();) {
        const Attachment& attachment = *m_disks[i]->attachment;
        const auto medium = attachment.units->medium(m_disks[i]->unit);
        if (attachment.isAttached && medium && medium->identity == m_disks[i]->mediumIdentity) {
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
    const auto medium = attachment->units->medium(unit);
    if (!medium || isKnown(*attachment, unit) ||
        attachment->ejectedMedia[unit] == medium->identity) {
        return;
    }
    auto disk = std::make_unique<VirtualDisk>();
    disk->bsdName = freeName();
    disk->unitName = attachment->device->unitName(unit);
    disk->attachment = attachment;
    disk->unit = unit;
    disk->mediumIdentity = medium->identity;
    disk->medium = std::make_unique<DiskMedium>(attachment, unit, medium->sectorCount);
    disk->hasVolume = VirtualVolume::mount(*disk->medium) != nullptr;
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

void VirtualDisks::eject(VirtualDisk& disk) {
    disk.attachment->ejectedMedia[disk.unit] = disk.mediumIdentity;
    const auto found = std::ranges::find(
        m_disks, &disk, [](const std::unique_ptr<VirtualDisk>& each) { return each.get(); });
    const std::unique_ptr<VirtualDisk> gone = std::move(*found);
    m_disks.erase(found);
    if (m_vanished) {
        m_vanished(*gone);
    }
}

VirtualDisk* VirtualDisks::find(const std::string& bsdName) const {
    const auto found = std::ranges::find_if(m_disks, [&](const auto& disk) {
        return disk->bsdName == bsdName || (disk->hasVolume && disk->volumeName() == bsdName);
    });
    return found == m_disks.end() ? nullptr : found->get();
}

bool VirtualDisks::closeStacked(const std::string& bsdName) {
    const auto found = std::ranges::find(m_stacked, bsdName, &StackedVolume::bsdName);
    if (found == m_stacked.end()) {
        return true;
    }
    found->mountPoint.clear();
    if (!found->canBeClosed) {
        return false;
    }
    m_stacked.erase(found);
    return true;
}

} // namespace zelto::simulator
