#pragma once

#include "simulator/drive/DriveContents.h"
#include "simulator/drive/DriveModel.h"

#include <array>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>

namespace zelto::simulator {

class DriveFolder;

/// A whole drive: its firmware, its sectors and, for one that is kept, the folder that it is saved
/// in. Plugged and unplugged as often as one likes; whoever plays the computer (a virtual one, or a
/// real kernel over USB/IP) sends it requests and reads and writes its units.
///
/// Every operation takes the moment at which it happens. Nothing here starts threads or waits,
/// apart from file access; one thread at a time.
class VirtualDrive {
public:
    static constexpr std::size_t UnitCount = DriveModel::UnitCount;

    /// A new drive that lives as long as this object.
    explicit VirtualDrive(const Manufactured& manufactured);
    /// The same on sectors of one's own; `store` has `manufactured.totalSectors` sectors.
    VirtualDrive(Manufactured manufactured, std::unique_ptr<SectorStore> store);
    /// Makes a new drive in a folder, which must not hold one yet; the folder is created. Null, and
    /// why in `error`, when that fails.
    [[nodiscard]] static std::unique_ptr<VirtualDrive>
    create(const std::filesystem::path& folder, Manufactured manufactured, std::string& error);
    /// Takes a drive out of its folder. Null, and why in `error`, when there is none, when its
    /// state is damaged, or when another program has it. A failure changes nothing in the folder.
    [[nodiscard]] static std::unique_ptr<VirtualDrive> open(const std::filesystem::path& folder,
                                                            std::string& error);
    VirtualDrive(const VirtualDrive&) = delete;
    VirtualDrive& operator=(const VirtualDrive&) = delete;
    ~VirtualDrive();

    [[nodiscard]] const std::string& serial() const { return m_model.manufactured().serial; }

    /// A drive that was reset comes up blank; if its sectors can't be made so it stays dead
    /// (isPlugged is false, saveError says why).
    void plug(Moment now);
    /// Pulls the plug, at any moment.
    void unplug(Moment now);
    [[nodiscard]] bool isPlugged() const { return m_model.isPowered(); }

    /// One vendor request to the plugged drive; see DriveModel::control. What it makes the drive
    /// remember is saved when this returns; if that fails, the request is refused as a write fault.
    [[nodiscard]] ControlReply control(const SetupPacket& setup, std::span<const std::uint8_t> sent,
                                       Moment now);
    /// True once after a request to reconnect: the drive is to leave the bus and come
    /// back.
    [[nodiscard]] bool takeReconnect() { return m_model.takeReconnect(); }
    [[nodiscard]] SecurityState state(Moment now);

    /// Sectors of the medium in a unit (counted from 0); 0 when it has none.
    [[nodiscard]] std::uint64_t sectorCount(std::size_t unit, Moment now);
    /// A number that changes whenever a unit's medium appears, vanishes or is another one. Whoever
    /// keeps the last number seen knows that the medium may have changed (SPC-4: unit attention,
    /// 06/28/00). It only grows, also across unplugging.
    [[nodiscard]] std::uint64_t mediaGeneration(std::size_t unit, Moment now);
    /// Reads or writes whole sectors of a unit's medium, from its sector `sector` on.
    [[nodiscard]] StorageResult read(std::size_t unit, std::uint64_t sector,
                                     std::span<std::uint8_t> bytes, Moment now);
    [[nodiscard]] StorageResult write(std::size_t unit, std::uint64_t sector,
                                      std::span<const std::uint8_t> bytes, Moment now);
    /// Returns once everything written would survive a power failure.
    [[nodiscard]] StorageResult flush();

    /// Physical accidents and testing aids.
    void loseClock(Moment now);
    void setNotReadyReads(unsigned reads) { m_model.setNotReadyReads(reads); }

    /// For tests and displays: what the firmware keeps.
    [[nodiscard]] const DriveModel& model() const { return m_model; }
    /// Why the drive could not be saved the last time that failed; empty when it never did.
    [[nodiscard]] const std::string& saveError() const { return m_saveError; }

private:
    struct ShownMedium {
        std::optional<Medium> medium;
        std::uint64_t generation = 0;
    };

    VirtualDrive(const DriveModel& model, std::unique_ptr<SectorStore> store,
                 std::unique_ptr<DriveFolder> folder);

    /// Notices what time or a request has changed: media, and what is to be saved. False when
    /// saving failed.
    bool update(Moment now);
    /// The same for storage accesses, of which there are many: between requests only time changes
    /// anything, and it goes by in seconds, so most have nothing to notice.
    void noticeTime(Moment now);
    void updateMedia(Moment now);
    bool save();

    DriveModel m_model;
    DriveContents m_contents;
    std::unique_ptr<DriveFolder> m_folder;
    /// What the folder holds, apart from the latest moment.
    Remembered m_saved;
    std::array<ShownMedium, UnitCount> m_shown{};
    /// When everything was noticed and saved; nothing when that failed, to try again.
    std::optional<Moment> m_upToDateAt;
    std::string m_saveError;
};

} // namespace zelto::simulator
