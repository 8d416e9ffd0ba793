#include "simulator/drive/VirtualDrive.h"

#include "device/VendorRequest.h"
#include "simulator/drive/DriveFolder.h"
#include "simulator/drive/SecretBytes.h"
#include "simulator/drive/SenseCodes.h"

#include <utility>

namespace zelto::simulator {

VirtualDrive::VirtualDrive(const Manufactured& manufactured)
    : VirtualDrive(DriveModel(manufactured),
                   std::make_unique<MemorySectorStore>(manufactured.totalSectors), nullptr) {}

VirtualDrive::VirtualDrive(Manufactured manufactured, std::unique_ptr<SectorStore> store)
    : VirtualDrive(DriveModel(std::move(manufactured)), std::move(store), nullptr) {}

VirtualDrive::VirtualDrive(const DriveModel& model, std::unique_ptr<SectorStore> store,
                           std::unique_ptr<DriveFolder> folder)
    : m_model(model),
      m_contents(std::move(store)),
      m_folder(std::move(folder)),
      m_saved(m_model.remembered()) {}

VirtualDrive::~VirtualDrive() = default;

std::unique_ptr<VirtualDrive> VirtualDrive::create(const std::filesystem::path& folder,
                                                   Manufactured manufactured, std::string& error) {
    auto keeper = std::make_unique<DriveFolder>(folder);
    DriveFolder::Contents contents;
    if (!keeper->create(manufactured, contents, error)) {
        return nullptr;
    }
    return std::unique_ptr<VirtualDrive>(new VirtualDrive(
        DriveModel(std::move(manufactured)), std::move(contents.store), std::move(keeper)));
}

std::unique_ptr<VirtualDrive> VirtualDrive::open(const std::filesystem::path& folder,
                                                 std::string& error) {
    auto keeper = std::make_unique<DriveFolder>(folder);
    DriveFolder::Contents contents;
    if (!keeper->open(contents, error)) {
        return nullptr;
    }
    const DriveModel model(std::move(contents.manufactured), std::move(contents.remembered));
    return std::unique_ptr<VirtualDrive>(
        new VirtualDrive(model, std::move(contents.store), std::move(keeper)));
}

void VirtualDrive::plug(Moment now) {
    // A medium that is to be blank must be so before anybody can look at it. Repeating this after
    // a power failure in between does no harm.
    if (m_model.remembered().resetAtPowerUp && m_contents.discardAll() != StorageResult::Done) {
        m_saveError = "the sectors could not be made blank";
        return;
    }
    m_model.powerUp(now);
    update(now);
}

void VirtualDrive::unplug(Moment now) {
    m_upToDateAt.reset();
    m_model.powerOff(now);
    m_contents.forgetKey();
    updateMedia(now);
    save();
}

ControlReply VirtualDrive::control(const SetupPacket& setup, std::span<const std::uint8_t> sent,
                                   Moment now) {
    // Before the request as well: the idle lock may close the drive in the same second in which
    // the request opens it again.
    update(now);
    ControlReply reply = m_model.control(setup, sent, now);
    // A status read is answered all the same, or nobody could learn why the others are refused.
    const bool isStatusRead = setup.bmRequestType == VendorRequest::ToHost &&
                              setup.bRequest == VendorRequest::GetDeviceStatus;
    if (!update(now) && !isStatusRead) {
        m_model.reportFault(SenseCode::WriteFault);
        return {.stalled = true};
    }
    return reply;
}

SecurityState VirtualDrive::state(Moment now) {
    update(now);
    return m_model.state(now);
}

std::uint64_t VirtualDrive::sectorCount(std::size_t unit, Moment now) {
    noticeTime(now);
    const auto& medium = unit < UnitCount ? m_shown[unit].medium : std::nullopt;
    return medium ? medium->sectorCount : 0;
}

std::uint64_t VirtualDrive::mediaGeneration(std::size_t unit, Moment now) {
    noticeTime(now);
    return unit < UnitCount ? m_shown[unit].generation : 0;
}

StorageResult VirtualDrive::read(std::size_t unit, std::uint64_t sector,
                                 std::span<std::uint8_t> bytes, Moment now) {
    noticeTime(now);
    if (unit >= UnitCount || !m_shown[unit].medium) {
        return StorageResult::NoMedium;
    }
    m_model.storageUsed(now);
    return m_contents.read(*m_shown[unit].medium, sector, bytes);
}

StorageResult VirtualDrive::write(std::size_t unit, std::uint64_t sector,
                                  std::span<const std::uint8_t> bytes, Moment now) {
    noticeTime(now);
    if (unit >= UnitCount || !m_shown[unit].medium) {
        return StorageResult::NoMedium;
    }
    m_model.storageUsed(now);
    return m_contents.write(*m_shown[unit].medium, sector, bytes);
}

StorageResult VirtualDrive::flush() {
    return m_contents.flush();
}

void VirtualDrive::loseClock(Moment now) {
    update(now);
    m_model.loseClock();
    update(now);
}

bool VirtualDrive::update(Moment now) {
    updateMedia(now);
    // The latest moment alone is nothing to save: it moves with every request, and is saved with
    // the next change or when the drive is unplugged.
    m_saved.latest = m_model.remembered().latest;
    const bool isSaved = m_saved == m_model.remembered() || save();
    m_upToDateAt = isSaved ? std::optional(now) : std::nullopt;
    return isSaved;
}

void VirtualDrive::noticeTime(Moment now) {
    if (m_upToDateAt != now) {
        update(now);
    }
}

void VirtualDrive::updateMedia(Moment now) {
    for (std::size_t unit = 0; unit < UnitCount; ++unit) {
        auto medium = m_model.medium(unit, now);
        ShownMedium& shown = m_shown[unit];
        if (medium == shown.medium) {
            continue;
        }
        if (shown.medium && shown.medium->secure) {
            forgetSecret(shown.medium->key);
            m_contents.forgetKey();
        }
        shown.medium = medium;
        ++shown.generation;
    }
}

bool VirtualDrive::save() {
    if (m_folder) {
        std::string error;
        if (!m_folder->save(m_model.manufactured(), m_model.remembered(), error)) {
            m_saveError = error;
            return false;
        }
    }
    m_saved = m_model.remembered();
    return true;
}

} // namespace zelto::simulator
