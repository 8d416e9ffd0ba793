#pragma once

#include "simulator/drive/SectorStore.h"
#include "simulator/drive/UnitStorage.h"
#include "simulator/scsi/ScsiPages.h"
#include "simulator/scsi/ScsiSense.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace zelto::simulator {

enum class DataDirection : std::uint8_t { None, ToHost, FromHost };

/// The data phase that a unit wants for a command. A refused command wants none.
struct DataPlan {
    DataDirection direction = DataDirection::None;
    std::uint64_t length = 0;

    friend bool operator==(const DataPlan&, const DataPlan&) = default;
};

/// One storage unit: a removable disk (SPC-4, SBC-3) whose medium comes and goes with the drive's
/// state. A command is begun, its data moved in as many pieces as the transport likes, and ended.
/// Knows nothing of USB. Not for use by two threads.
class ScsiUnit {
public:
    enum class Kind : std::uint8_t {
        Disk,
        /// A unit number that the drive does not have but that a host may name.
        Absent,
    };

    /// Refers to `storage` for as long as it lives. `unitCount` is what REPORT LUNS tells.
    ScsiUnit(Kind kind, UnitIdentity identity, std::size_t unitCount, UnitStorage& storage);

    /// Plugging in: nothing of what a host told the unit is kept.
    void powerUp();

    /// Looks at the drive's state; a medium that came, or was exchanged, is announced to the host
    /// with the next command. To be called after everything that can change media, so that no
    /// exchange between two commands goes unnoticed.
    void noticeMedium();

    /// Takes a command of 1 to 16 bytes; whatever the one before left unmoved is forgotten.
    /// Commands without data are carried out here.
    [[nodiscard]] DataPlan begin(std::span<const std::uint8_t> command);

    /// The next bytes towards the host, read straight into `buffer`. Fewer than both the buffer
    /// and the plan allow means that the command failed. The plan's last piece excepted, the
    /// buffer's size is a multiple of the sector size.
    [[nodiscard]] std::size_t read(std::span<std::uint8_t> buffer);

    /// The next bytes from the host, of any number within the plan. False when the command failed;
    /// the rest of its data is then not wanted.
    [[nodiscard]] bool write(std::span<const std::uint8_t> data);

    /// Whether the command succeeded (status GOOD), once all of its data has moved.
    [[nodiscard]] bool end();

    /// The sense data that REQUEST SENSE would find now.
    [[nodiscard]] const SenseData& sense() const { return m_sense; }

private:
    using Command = std::span<const std::uint8_t>;
    enum class Needs : std::uint8_t { Nothing, Medium };
    struct Row {
        std::uint8_t operation = 0;
        Needs needs = Needs::Nothing;
        DataPlan (ScsiUnit::*handler)(Command) = nullptr;
    };
    enum class Transfer : std::uint8_t { None, Reply, ReadMedium, WriteMedium, CompareMedium };
    enum class WriteThrough : std::uint8_t { No, Yes };
    /// A run of sectors named by a command.
    struct Range {
        std::uint64_t first = 0;
        std::uint64_t count = 0;
    };

    [[nodiscard]] static std::span<const Row> rows();
    [[nodiscard]] DataPlan dispatch(Command command);
    [[nodiscard]] DataPlan beginOnAbsentUnit(Command command);
    [[nodiscard]] std::optional<UnitMedium> presentMedium();

    DataPlan fail(const Sense& sense, std::optional<std::uint64_t> information = {});
    DataPlan reply(std::vector<std::uint8_t> bytes, std::uint64_t allocationLength);
    DataPlan startTransfer(Transfer transfer, Range range);

    DataPlan testUnitReady(Command command);
    DataPlan requestSense(Command command);
    DataPlan inquiry(Command command);
    DataPlan modeSense(Command command);
    DataPlan startStopUnit(Command command);
    DataPlan sendDiagnostic(Command command);
    DataPlan preventAllow(Command command);
    DataPlan readFormatCapacities(Command command);
    DataPlan readCapacity10(Command command);
    DataPlan serviceActionIn16(Command command);
    DataPlan readSectors(Command command);
    DataPlan writeSectors(Command command);
    DataPlan verify(Command command);
    DataPlan synchronizeCache(Command command);
    DataPlan reportLuns(Command command);

    [[nodiscard]] static Range rangeOf(Command command);
    [[nodiscard]] bool fits(const Range& range) const;
    /// Whether the medium is the one that the command began with. Only a vendor request or the
    /// drive's own doing can exchange it, and noticeMedium follows those.
    [[nodiscard]] bool mediumIsStillThere();
    void failTransfer(const Sense& sense);
    [[nodiscard]] std::size_t readReply(std::span<std::uint8_t> buffer);
    [[nodiscard]] std::size_t readMedium(std::span<std::uint8_t> buffer);
    [[nodiscard]] bool takeSectors(std::span<const std::uint8_t> sectors);
    [[nodiscard]] bool compareSectors(std::span<const std::uint8_t> sectors);

    Kind m_kind;
    UnitIdentity m_identity;
    std::size_t m_unitCount;
    UnitStorage& m_storage;

    // What the unit remembers from command to command.
    std::optional<UnitMedium> m_medium;
    bool m_isEjected = false;
    bool m_preventsRemoval = false;
    std::optional<Sense> m_attention;
    SenseData m_sense;

    // The command under way.
    Transfer m_transfer = Transfer::None;
    bool m_hasFailed = false;
    std::vector<std::uint8_t> m_reply;
    std::size_t m_replied = 0;
    std::uint64_t m_mediumIdentity = 0;
    std::uint64_t m_nextSector = 0;
    std::uint64_t m_sectorsLeft = 0;
    WriteThrough m_writeThrough = WriteThrough::No;
    /// The beginning of a sector whose rest the next piece of data brings.
    std::array<std::uint8_t, SectorSize> m_partialSector{};
    std::size_t m_partialSize = 0;
};

} // namespace zelto::simulator
