#pragma once

#include "simulator/scsi/ScsiUnit.h"
#include "simulator/usb/UsbTransfer.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace zelto::simulator {

/// CBW, the command block wrapper (Bulk-Only Transport 1.0, 5.1).
struct CommandWrapper {
    static constexpr std::size_t Size = 31;

    std::uint32_t tag = 0;
    std::uint32_t transferLength = 0;
    bool isToHost = false;
    std::uint8_t unit = 0;
    std::uint8_t commandLength = 0;
    std::array<std::uint8_t, 16> command{};
};

/// Nothing for a packet that is not valid or not meaningful (6.2).
[[nodiscard]] std::optional<CommandWrapper> decodeCommandWrapper(std::span<const std::uint8_t>);

enum class CommandStatus : std::uint8_t { Passed = 0, Failed = 1, PhaseError = 2 };

/// CSW, the command status wrapper (5.2), 13 bytes.
[[nodiscard]] std::array<std::uint8_t, 13>
encodeStatusWrapper(std::uint32_t tag, std::uint32_t residue, CommandStatus status);

/// What host and unit agree on for a command's data: the thirteen cases (6.7).
struct DataAgreement {
    /// Data moves this way; None when there is none to move.
    DataDirection direction = DataDirection::None;
    /// They contradict each other: nothing moves, and the host has to reset.
    bool isPhaseError = false;
};
[[nodiscard]] DataAgreement agreeOnData(const CommandWrapper& wrapper, const DataPlan& plan);

enum class BulkEndpoint : std::uint8_t { In, Out };

/// Bulk-Only Transport (revision 1.0) between two bulk endpoints and the storage units: commands
/// come in on one, data goes both ways, status goes out. Strictly one command at a time.
/// A host that asks for more than a unit has gets the data and then a stall, never fill bytes.
class BulkOnlyTransport {
public:
    /// Largest packet at high speed.
    static constexpr std::size_t PacketSize = 512;

    /// Refers to the units for as long as it lives. Their numbers are their places; the last one
    /// answers for all numbers that the drive does not have.
    explicit BulkOnlyTransport(std::vector<ScsiUnit>& units);

    /// The host configured the device: everything as after plugging in, but the units.
    void configure();
    /// The class request Bulk-Only Mass Storage Reset (3.1): ready for the next command; halted
    /// endpoints stay halted until the host clears them.
    void reset();

    /// A transfer from the host: a command wrapper, or data.
    [[nodiscard]] TransferResult out(std::span<const std::uint8_t> data);
    /// A transfer to the host: data, or a status wrapper, put straight into `buffer`.
    [[nodiscard]] TransferResult in(std::span<std::uint8_t> buffer);

    [[nodiscard]] bool isHalted(BulkEndpoint endpoint) const;
    void halt(BulkEndpoint endpoint);
    /// Without effect after an invalid command wrapper, until a reset (6.6.1).
    void clearHalt(BulkEndpoint endpoint);

private:
    enum class Phase : std::uint8_t { Command, DataIn, DataOut, Status };

    [[nodiscard]] ScsiUnit& unitFor(std::uint8_t number);
    [[nodiscard]] TransferResult takeCommand(std::span<const std::uint8_t> data);
    [[nodiscard]] TransferResult takeData(std::span<const std::uint8_t> data);
    [[nodiscard]] TransferResult sendData(std::span<std::uint8_t> buffer);
    [[nodiscard]] TransferResult sendStatus(std::span<std::uint8_t> buffer);
    void finishCommand(CommandStatus status);
    /// The rest of what the host wants to move is refused by halting its endpoint.
    void refuseRest();

    std::vector<ScsiUnit>& m_units;
    Phase m_phase = Phase::Command;
    CommandWrapper m_wrapper;
    CommandStatus m_status = CommandStatus::Passed;
    /// Of the data phase: what the host still wants to move, what the unit wants to, and what of
    /// the host's wish was not served.
    std::uint32_t m_hostLeft = 0;
    std::uint64_t m_unitLeft = 0;
    std::uint32_t m_residue = 0;
    bool m_inHalted = false;
    bool m_outHalted = false;
    bool m_needsReset = false;
};

} // namespace zelto::simulator
