#include "simulator/scsi/ScsiUnit.h"

#include "device/Record.h"

#include <algorithm>
#include <utility>

namespace zelto::simulator {

namespace {

namespace Operation {
constexpr std::uint8_t TestUnitReady = 0x00;
constexpr std::uint8_t RequestSense = 0x03;
constexpr std::uint8_t Read6 = 0x08;
constexpr std::uint8_t Write6 = 0x0A;
constexpr std::uint8_t Inquiry = 0x12;
constexpr std::uint8_t ModeSense6 = 0x1A;
constexpr std::uint8_t StartStopUnit = 0x1B;
constexpr std::uint8_t SendDiagnostic = 0x1D;
constexpr std::uint8_t PreventAllow = 0x1E;
constexpr std::uint8_t ReadFormatCapacities = 0x23;
constexpr std::uint8_t ReadCapacity10 = 0x25;
constexpr std::uint8_t Read10 = 0x28;
constexpr std::uint8_t Write10 = 0x2A;
constexpr std::uint8_t Verify10 = 0x2F;
constexpr std::uint8_t SynchronizeCache10 = 0x35;
constexpr std::uint8_t ModeSense10 = 0x5A;
constexpr std::uint8_t Read16 = 0x88;
constexpr std::uint8_t Write16 = 0x8A;
constexpr std::uint8_t Verify16 = 0x8F;
constexpr std::uint8_t SynchronizeCache16 = 0x91;
constexpr std::uint8_t ServiceActionIn16 = 0x9E;
constexpr std::uint8_t ReportLuns = 0xA0;
constexpr std::uint8_t Read12 = 0xA8;
constexpr std::uint8_t Write12 = 0xAA;
constexpr std::uint8_t Verify12 = 0xAF;
} // namespace Operation

/// Length of a command by the group code in its operation code (SPC-4, 4.2.5.1); 0 for the groups
/// of which the unit knows no command.
constexpr std::size_t commandLength(std::uint8_t operation) {
    constexpr std::array<std::uint8_t, 8> ByGroup{6, 10, 10, 0, 16, 12, 0, 0};
    return ByGroup[operation >> 5];
}

/// Sectors that are compared with the medium in one go.
constexpr std::size_t ComparedAtOnce = 128;

} // namespace

std::span<const ScsiUnit::Row> ScsiUnit::rows() {
    static constexpr std::array Rows{
        Row{Operation::TestUnitReady, Needs::Medium, &ScsiUnit::testUnitReady},
        Row{Operation::RequestSense, Needs::Nothing, &ScsiUnit::requestSense},
        Row{Operation::Read6, Needs::Medium, &ScsiUnit::readSectors},
        Row{Operation::Write6, Needs::Medium, &ScsiUnit::writeSectors},
        Row{Operation::Inquiry, Needs::Nothing, &ScsiUnit::inquiry},
        Row{Operation::ModeSense6, Needs::Nothing, &ScsiUnit::modeSense},
        Row{Operation::StartStopUnit, Needs::Nothing, &ScsiUnit::startStopUnit},
        Row{Operation::SendDiagnostic, Needs::Nothing, &ScsiUnit::sendDiagnostic},
        Row{Operation::PreventAllow, Needs::Nothing, &ScsiUnit::preventAllow},
        Row{Operation::ReadFormatCapacities, Needs::Nothing, &ScsiUnit::readFormatCapacities},
        Row{Operation::ReadCapacity10, Needs::Medium, &ScsiUnit::readCapacity10},
        Row{Operation::Read10, Needs::Medium, &ScsiUnit::readSectors},
        Row{Operation::Write10, Needs::Medium, &ScsiUnit::writeSectors},
        Row{Operation::Verify10, Needs::Medium, &ScsiUnit::verify},
        Row{Operation::SynchronizeCache10, Needs::Medium, &ScsiUnit::synchronizeCache},
        Row{Operation::ModeSense10, Needs::Nothing, &ScsiUnit::modeSense},
        Row{Operation::Read16, Needs::Medium, &ScsiUnit::readSectors},
        Row{Operation::Write16, Needs::Medium, &ScsiUnit::writeSectors},
        Row{Operation::Verify16, Needs::Medium, &ScsiUnit::verify},
        Row{Operation::SynchronizeCache16, Needs::Medium, &ScsiUnit::synchronizeCache},
        Row{Operation::ServiceActionIn16, Needs::Medium, &ScsiUnit::serviceActionIn16},
        Row{Operation::ReportLuns, Needs::Nothing, &ScsiUnit::reportLuns},
        Row{Operation::Read12, Needs::Medium, &ScsiUnit::readSectors},
        Row{Operation::Write12, Needs::Medium, &ScsiUnit::writeSectors},
        Row{Operation::Verify12, Needs::Medium, &ScsiUnit::verify},
    };
    return Rows;
}

ScsiUnit::ScsiUnit(Kind kind, UnitIdentity identity, std::size_t unitCount, UnitStorage& storage)
    : m_kind(kind), m_identity(std::move(identity)), m_unitCount(unitCount), m_storage(storage) {}

void ScsiUnit::powerUp() {
    m_medium.reset();
    m_isEjected = false;
    m_preventsRemoval = false;
    m_sense = {};
    m_transfer = Transfer::None;
    m_hasFailed = false;
    noticeMedium();
    // Said instead of "a medium appeared": a host that hears it looks at everything anew.
    m_attention = ScsiSense::PowerOnOccurred;
}

void ScsiUnit::noticeMedium() {
    if (m_kind == Kind::Absent) {
        return;
    }
    const std::optional<UnitMedium> medium = m_storage.medium(m_identity.number);
    if (medium == m_medium) {
        return;
    }
    m_medium = medium;
    // Whatever was ejected is gone; what the drive brings now is new.
    m_isEjected = false;
    if (medium && m_attention != ScsiSense::PowerOnOccurred) {
        m_attention = ScsiSense::MediumMayHaveChanged;
    }
}

std::optional<UnitMedium> ScsiUnit::presentMedium() {
    return m_isEjected ? std::nullopt : m_medium;
}

DataPlan ScsiUnit::begin(std::span<const std::uint8_t> command) {
    m_transfer = Transfer::None;
    m_hasFailed = false;
    m_partialSize = 0;
    m_writeThrough = WriteThrough::No;
    if (command.empty()) {
        return fail(ScsiSense::InvalidFieldInCommand);
    }
    if (m_kind == Kind::Absent) {
        return beginOnAbsentUnit(command);
    }
    noticeMedium();
    const std::uint8_t operation = command[0];
    const bool isToldInAnyCondition = operation == Operation::Inquiry ||
                                      operation == Operation::ReportLuns ||
                                      operation == Operation::RequestSense;
    if (operation != Operation::RequestSense) {
        m_sense = {};
    }
    if (m_attention && !isToldInAnyCondition) {
        return fail(*std::exchange(m_attention, std::nullopt));
    }
    return dispatch(command);
}

DataPlan ScsiUnit::dispatch(Command command) {
    constexpr std::uint8_t AutoContingentAllegiance = 0x04;
    const auto row = std::ranges::find(rows(), command[0], &Row::operation);
    if (row == rows().end()) {
        return fail(ScsiSense::InvalidOperationCode);
    }
    const std::size_t length = commandLength(command[0]);
    if (command.size() < length || (command[length - 1] & AutoContingentAllegiance) != 0) {
        return fail(ScsiSense::InvalidFieldInCommand);
    }
    if (row->needs == Needs::Medium && !presentMedium()) {
        return fail(ScsiSense::MediumNotPresent);
    }
    return (this->*row->handler)(command.first(length));
}

DataPlan ScsiUnit::beginOnAbsentUnit(Command command) {
    if (command.size() >= commandLength(command[0])) {
        switch (command[0]) {
        case Operation::Inquiry:
            return reply(absentUnitInquiry(), record::get(command, {3, 2}));
        case Operation::ReportLuns:
            return reportLuns(command);
        case Operation::RequestSense:
            m_sense = {ScsiSense::UnitNotSupported, {}};
            return requestSense(command);
        default:
            break;
        }
    }
    return fail(ScsiSense::UnitNotSupported);
}

DataPlan ScsiUnit::fail(const Sense& sense, std::optional<std::uint64_t> information) {
    m_sense = {sense, information};
    m_hasFailed = true;
    m_transfer = Transfer::None;
    return {};
}

DataPlan ScsiUnit::reply(std::vector<std::uint8_t> bytes, std::uint64_t allocationLength) {
    m_reply = std::move(bytes);
    m_reply.resize(std::min<std::uint64_t>(m_reply.size(), allocationLength));
    m_replied = 0;
    if (m_reply.empty()) {
        return {};
    }
    m_transfer = Transfer::Reply;
    return {DataDirection::ToHost, m_reply.size()};
}

DataPlan ScsiUnit::startTransfer(Transfer transfer, Range range) {
    if (!fits(range)) {
        return fail(ScsiSense::BlockAddressOutOfRange, range.first);
    }
    if (range.count == 0) {
        return {};
    }
    m_transfer = transfer;
    m_mediumIdentity = m_medium->identity;
    m_nextSector = range.first;
    m_sectorsLeft = range.count;
    return {transfer == Transfer::ReadMedium ? DataDirection::ToHost : DataDirection::FromHost,
            range.count * SectorSize};
}

ScsiUnit::Range ScsiUnit::rangeOf(Command command) {
    switch (command.size()) {
    case 6: {
        const auto count = record::get(command, {4, 1});
        return {record::get(command, {1, 3}) & 0x1FFFFF, count == 0 ? 256 : count};
    }
    case 10:
        return {record::get(command, {2, 4}), record::get(command, {7, 2})};
    case 12:
        return {record::get(command, {2, 4}), record::get(command, {6, 4})};
    default:
        return {record::get(command, {2, 8}), record::get(command, {10, 4})};
    }
}

bool ScsiUnit::fits(const Range& range) const {
    const std::uint64_t sectors = m_medium ? m_medium->sectorCount : 0;
    return range.first <= sectors && range.count <= sectors - range.first;
}

bool ScsiUnit::mediumIsStillThere() {
    return presentMedium() && m_medium->identity == m_mediumIdentity;
}

void ScsiUnit::failTransfer(const Sense& sense) {
    noticeMedium();
    if (mediumIsStillThere()) {
        fail(sense, m_nextSector);
    } else {
        fail(ScsiSense::MediumNotPresent);
    }
}

std::size_t ScsiUnit::read(std::span<std::uint8_t> buffer) {
    if (m_transfer == Transfer::Reply) {
        return readReply(buffer);
    }
    return m_transfer == Transfer::ReadMedium ? readMedium(buffer) : 0;
}

std::size_t ScsiUnit::readReply(std::span<std::uint8_t> buffer) {
    const std::size_t size = std::min(buffer.size(), m_reply.size() - m_replied);
    std::copy_n(m_reply.begin() + static_cast<std::ptrdiff_t>(m_replied), size, buffer.begin());
    m_replied += size;
    return size;
}

std::size_t ScsiUnit::readMedium(std::span<std::uint8_t> buffer) {
    const std::uint64_t count = std::min<std::uint64_t>(buffer.size() / SectorSize, m_sectorsLeft);
    const auto size = static_cast<std::size_t>(count * SectorSize);
    if (size == 0) {
        return 0;
    }
    if (!mediumIsStillThere()) {
        fail(ScsiSense::MediumNotPresent);
        return 0;
    }
    if (!m_storage.read(m_identity.number, m_nextSector, buffer.first(size))) {
        failTransfer(ScsiSense::UnrecoveredReadError);
        return 0;
    }
    m_nextSector += count;
    m_sectorsLeft -= count;
    return size;
}

bool ScsiUnit::write(std::span<const std::uint8_t> data) {
    if (m_partialSize > 0) {
        const std::size_t missing = std::min(m_partialSector.size() - m_partialSize, data.size());
        std::copy_n(data.begin(), missing,
                    m_partialSector.begin() + static_cast<std::ptrdiff_t>(m_partialSize));
        m_partialSize += missing;
        data = data.subspan(missing);
        if (m_partialSize < m_partialSector.size()) {
            return true;
        }
        m_partialSize = 0;
        if (!takeSectors(m_partialSector)) {
            return false;
        }
    }
    const std::size_t whole = data.size() - data.size() % m_partialSector.size();
    if (whole > 0 && !takeSectors(data.first(whole))) {
        return false;
    }
    std::ranges::copy(data.subspan(whole), m_partialSector.begin());
    m_partialSize = data.size() - whole;
    return true;
}

bool ScsiUnit::takeSectors(std::span<const std::uint8_t> sectors) {
    const std::uint64_t count = sectors.size() / SectorSize;
    const bool takesData =
        m_transfer == Transfer::WriteMedium || m_transfer == Transfer::CompareMedium;
    if (!takesData || count > m_sectorsLeft) {
        return false;
    }
    if (!mediumIsStillThere()) {
        fail(ScsiSense::MediumNotPresent);
        return false;
    }
    if (m_transfer == Transfer::CompareMedium) {
        return compareSectors(sectors);
    }
    if (!m_storage.write(m_identity.number, m_nextSector, sectors)) {
        failTransfer(ScsiSense::WriteError);
        return false;
    }
    m_nextSector += count;
    m_sectorsLeft -= count;
    return true;
}

bool ScsiUnit::compareSectors(std::span<const std::uint8_t> sectors) {
    constexpr std::size_t PieceSize = ComparedAtOnce * SectorSize;
    std::vector<std::uint8_t> onMedium(std::min(sectors.size(), PieceSize));
    while (!sectors.empty()) {
        const auto piece = sectors.first(std::min(sectors.size(), PieceSize));
        const auto there = std::span(onMedium).first(piece.size());
        if (!m_storage.read(m_identity.number, m_nextSector, there)) {
            failTransfer(ScsiSense::UnrecoveredReadError);
            return false;
        }
        if (!std::ranges::equal(piece, there)) {
            fail(ScsiSense::MiscompareDuringVerify, m_nextSector);
            return false;
        }
        const std::size_t count = piece.size() / SectorSize;
        m_nextSector += count;
        m_sectorsLeft -= count;
        sectors = sectors.subspan(piece.size());
    }
    return true;
}

bool ScsiUnit::end() {
    if (!m_hasFailed && m_writeThrough == WriteThrough::Yes &&
        !m_storage.flush(m_identity.number)) {
        fail(ScsiSense::WriteError);
    }
    m_writeThrough = WriteThrough::No;
    m_transfer = Transfer::None;
    return !m_hasFailed;
}

} // namespace zelto::simulator
