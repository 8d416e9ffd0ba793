#include "simulator/usb/BulkOnlyTransport.h"

#include <algorithm>

namespace zelto::simulator {

namespace {

constexpr std::uint32_t CommandSignature = 0x43425355;
constexpr std::uint32_t StatusSignature = 0x53425355;

// USB carries integers with the low byte first, unlike everything else on this drive.
std::uint32_t getLittle32(std::span<const std::uint8_t> bytes, std::size_t offset) {
    std::uint32_t value = 0;
    for (std::size_t index = 4; index > 0; --index) {
        value = value << 8 | bytes[offset + index - 1];
    }
    return value;
}

void putLittle32(std::span<std::uint8_t> bytes, std::size_t offset, std::uint32_t value) {
    for (std::size_t index = 0; index < 4; ++index) {
        bytes[offset + index] = static_cast<std::uint8_t>(value >> (8 * index) & 0xFF);
    }
}

} // namespace

std::optional<CommandWrapper> decodeCommandWrapper(std::span<const std::uint8_t> data) {
    constexpr std::uint8_t ToHost = 0x80;
    constexpr std::uint8_t HighestUnit = 0x0F;
    if (data.size() != CommandWrapper::Size || getLittle32(data, 0) != CommandSignature) {
        return std::nullopt;
    }
    CommandWrapper wrapper;
    wrapper.tag = getLittle32(data, 4);
    wrapper.transferLength = getLittle32(data, 8);
    wrapper.isToHost = (data[12] & ToHost) != 0;
    wrapper.unit = data[13];
    wrapper.commandLength = data[14];
    std::ranges::copy(data.subspan(15, 16), wrapper.command.begin());
    const bool isMeaningful = (data[12] & ~ToHost) == 0 && wrapper.unit <= HighestUnit &&
                              wrapper.commandLength >= 1 &&
                              wrapper.commandLength <= wrapper.command.size();
    return isMeaningful ? std::optional(wrapper) : std::nullopt;
}

std::array<std::uint8_t, 13> encodeStatusWrapper(std::uint32_t tag, std::uint32_t residue,
                                                 CommandStatus status) {
    std::array<std::uint8_t, 13> bytes{};
    putLittle32(bytes, 0, StatusSignature);
    putLittle32(bytes, 4, tag);
    putLittle32(bytes, 8, residue);
    bytes[12] = static_cast<std::uint8_t>(status);
    return bytes;
}

DataAgreement agreeOnData(const CommandWrapper& wrapper, const DataPlan& plan) {
    if (plan.direction == DataDirection::None) {
        return {}; // cases 1, 4 and 9
    }
    const DataDirection hostDirection =
        wrapper.isToHost ? DataDirection::ToHost : DataDirection::FromHost;
    if (plan.direction != hostDirection || plan.length > wrapper.transferLength) {
        return {DataDirection::None, true}; // cases 2, 3, 7, 8, 10 and 13
    }
    return {plan.direction, false}; // cases 5, 6, 11 and 12
}

BulkOnlyTransport::BulkOnlyTransport(std::vector<ScsiUnit>& units) : m_units(units) {}

void BulkOnlyTransport::configure() {
    reset();
    m_inHalted = false;
    m_outHalted = false;
}

void BulkOnlyTransport::reset() {
    m_phase = Phase::Command;
    m_needsReset = false;
}

bool BulkOnlyTransport::isHalted(BulkEndpoint endpoint) const {
    return endpoint == BulkEndpoint::In ? m_inHalted : m_outHalted;
}

void BulkOnlyTransport::halt(BulkEndpoint endpoint) {
    (endpoint == BulkEndpoint::In ? m_inHalted : m_outHalted) = true;
}

void BulkOnlyTransport::clearHalt(BulkEndpoint endpoint) {
    if (!m_needsReset) {
        (endpoint == BulkEndpoint::In ? m_inHalted : m_outHalted) = false;
    }
}

ScsiUnit& BulkOnlyTransport::unitFor(std::uint8_t number) {
    return m_units[std::min<std::size_t>(number, m_units.size() - 1)];
}

TransferResult BulkOnlyTransport::out(std::span<const std::uint8_t> data) {
    if (m_outHalted) {
        return {TransferStatus::Stalled, 0};
    }
    if (m_phase == Phase::Command) {
        return takeCommand(data);
    }
    return m_phase == Phase::DataOut ? takeData(data) : TransferResult{TransferStatus::Waiting, 0};
}

TransferResult BulkOnlyTransport::in(std::span<std::uint8_t> buffer) {
    if (m_inHalted) {
        return {TransferStatus::Stalled, 0};
    }
    if (m_phase == Phase::DataIn) {
        return sendData(buffer);
    }
    return m_phase == Phase::Status ? sendStatus(buffer)
                                    : TransferResult{TransferStatus::Waiting, 0};
}

TransferResult BulkOnlyTransport::takeCommand(std::span<const std::uint8_t> data) {
    const std::optional<CommandWrapper> wrapper = decodeCommandWrapper(data);
    if (!wrapper) {
        m_needsReset = true;
        m_inHalted = true;
        m_outHalted = true;
        return {TransferStatus::Complete, data.size()};
    }
    m_wrapper = *wrapper;
    m_hostLeft = wrapper->transferLength;
    m_residue = wrapper->transferLength;
    ScsiUnit& unit = unitFor(wrapper->unit);
    const DataPlan plan = unit.begin(std::span(wrapper->command).first(wrapper->commandLength));
    const DataAgreement agreement = agreeOnData(*wrapper, plan);
    m_unitLeft = plan.length;
    if (agreement.isPhaseError) {
        refuseRest();
        finishCommand(CommandStatus::PhaseError);
    } else if (agreement.direction == DataDirection::None) {
        refuseRest();
        finishCommand(unit.end() ? CommandStatus::Passed : CommandStatus::Failed);
    } else {
        m_phase = wrapper->isToHost ? Phase::DataIn : Phase::DataOut;
    }
    return {TransferStatus::Complete, data.size()};
}

TransferResult BulkOnlyTransport::takeData(std::span<const std::uint8_t> data) {
    ScsiUnit& unit = unitFor(m_wrapper.unit);
    const auto size = static_cast<std::size_t>(std::min<std::uint64_t>(data.size(), m_unitLeft));
    const bool isGood = unit.write(data.first(size));
    m_unitLeft -= size;
    m_hostLeft -= static_cast<std::uint32_t>(size);
    if (isGood) {
        m_residue -= static_cast<std::uint32_t>(size);
        if (m_unitLeft > 0) {
            return {TransferStatus::Complete, size};
        }
    } else {
        // A sector that was not written does not count, nor what had come of it before.
        const std::uint32_t written = m_wrapper.transferLength - m_residue;
        m_residue += written % static_cast<std::uint32_t>(SectorSize);
    }
    refuseRest();
    finishCommand(unit.end() ? CommandStatus::Passed : CommandStatus::Failed);
    return {size < data.size() ? TransferStatus::Stalled : TransferStatus::Complete, size};
}

TransferResult BulkOnlyTransport::sendData(std::span<std::uint8_t> buffer) {
    // A packet is sent whole: a host that leaves no room for the last one loses it.
    if (m_unitLeft > buffer.size() && (buffer.empty() || buffer.size() % PacketSize != 0)) {
        return {TransferStatus::Overflow, 0};
    }
    ScsiUnit& unit = unitFor(m_wrapper.unit);
    const auto wanted =
        static_cast<std::size_t>(std::min<std::uint64_t>(buffer.size(), m_unitLeft));
    const std::size_t size = unit.read(buffer.first(wanted));
    m_unitLeft -= size;
    m_hostLeft -= static_cast<std::uint32_t>(size);
    m_residue -= static_cast<std::uint32_t>(size);
    if (size == wanted && m_unitLeft > 0) {
        return {TransferStatus::Complete, size};
    }
    refuseRest();
    finishCommand(unit.end() ? CommandStatus::Passed : CommandStatus::Failed);
    // Whole packets do not end a transfer that wants more; the stall behind them does.
    const bool endsByStall = size < buffer.size() && size % PacketSize == 0;
    return {endsByStall ? TransferStatus::Stalled : TransferStatus::Complete, size};
}

TransferResult BulkOnlyTransport::sendStatus(std::span<std::uint8_t> buffer) {
    const auto bytes = encodeStatusWrapper(m_wrapper.tag, m_residue, m_status);
    if (buffer.size() < bytes.size()) {
        return {TransferStatus::Overflow, 0};
    }
    std::ranges::copy(bytes, buffer.begin());
    m_phase = Phase::Command;
    return {TransferStatus::Complete, bytes.size()};
}

void BulkOnlyTransport::finishCommand(CommandStatus status) {
    m_status = status;
    m_phase = Phase::Status;
}

void BulkOnlyTransport::refuseRest() {
    if (m_hostLeft > 0) {
        halt(m_wrapper.isToHost ? BulkEndpoint::In : BulkEndpoint::Out);
    }
}

} // namespace zelto::simulator
