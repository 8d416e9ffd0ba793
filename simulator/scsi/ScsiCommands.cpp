// The storage unit's commands, in the order of their declaration. Each has its whole command
// block, and a medium where its row in the table asks for one.

#include "device/Record.h"
#include "simulator/scsi/ScsiUnit.h"

#include <algorithm>

namespace zelto::simulator {

namespace {

/// Protection information is not offered: RDPROTECT, WRPROTECT or VRPROTECT have to be 0.
bool asksForProtection(std::span<const std::uint8_t> command) {
    return command.size() > 6 && (command[1] & 0xE0) != 0;
}

bool asksForUnitAccess(std::span<const std::uint8_t> command) {
    constexpr std::uint8_t ForceUnitAccess = 0x08;
    return command.size() > 6 && (command[1] & ForceUnitAccess) != 0;
}

} // namespace

DataPlan ScsiUnit::testUnitReady(Command /*command*/) {
    return {};
}

DataPlan ScsiUnit::requestSense(Command command) {
    constexpr std::uint8_t DescriptorFormat = 0x01;
    SenseData data = m_sense;
    if (data.sense == Sense{} && m_attention) {
        data = {*m_attention, {}};
        m_attention.reset();
    }
    m_sense = {};
    return reply((command[1] & DescriptorFormat) != 0 ? encodeDescriptorSense(data)
                                                      : encodeFixedSense(data),
                 command[4]);
}

DataPlan ScsiUnit::inquiry(Command command) {
    constexpr std::uint8_t VitalProductData = 0x01;
    constexpr std::uint8_t CommandSupportData = 0x02;
    const auto allocationLength = record::get(command, {3, 2});
    if ((command[1] & CommandSupportData) != 0) {
        return fail(ScsiSense::InvalidFieldInCommand);
    }
    if ((command[1] & VitalProductData) != 0) {
        const auto page = vitalProductData(command[2], m_identity);
        return page ? reply(*page, allocationLength) : fail(ScsiSense::InvalidFieldInCommand);
    }
    if (command[2] != 0) {
        return fail(ScsiSense::InvalidFieldInCommand);
    }
    return reply(standardInquiry(m_identity), allocationLength);
}

DataPlan ScsiUnit::modeSense(Command command) {
    const bool isShort = command.size() == 6;
    const auto values = static_cast<ModeValues>(command[2] >> 6);
    if (values == ModeValues::Saved) {
        return fail(ScsiSense::SavingNotSupported);
    }
    const auto pages = modePages(command[2] & 0x3F, command[3], values);
    if (!pages) {
        return fail(ScsiSense::InvalidFieldInCommand);
    }
    // Device-specific parameter (SBC-3, 6.5.1): not write-protected, and DPO and FUA may be set. No
    // block descriptors: a host reads the capacity with its command.
    constexpr std::uint8_t DpoAndFuaSupported = 0x10;
    const std::size_t headerSize = isShort ? 4 : 8;
    std::vector<std::uint8_t> bytes(headerSize);
    bytes[isShort ? 2 : 3] = DpoAndFuaSupported;
    bytes.insert(bytes.end(), pages->begin(), pages->end());
    if (isShort) {
        record::put(bytes, {0, 1}, bytes.size() - 1);
        return reply(bytes, command[4]);
    }
    record::put(bytes, {0, 2}, bytes.size() - 2);
    return reply(bytes, record::get(command, {7, 2}));
}

DataPlan ScsiUnit::startStopUnit(Command command) {
    constexpr std::uint8_t Start = 0x01;
    constexpr std::uint8_t LoadOrEject = 0x02;
    constexpr std::uint8_t PowerCondition = 0xF0;
    const bool starts = (command[4] & Start) != 0;
    if ((command[4] & PowerCondition) != 0) {
        return fail(ScsiSense::InvalidFieldInCommand);
    }
    if ((command[4] & LoadOrEject) == 0) {
        // Nothing spins; but a host that stops the unit means to keep what it wrote.
        if (!presentMedium()) {
            return starts ? fail(ScsiSense::MediumNotPresent) : DataPlan{};
        }
        return m_storage.flush(m_identity.number) ? DataPlan{} : fail(ScsiSense::WriteError);
    }
    if (starts) {
        if (!m_medium) {
            return fail(ScsiSense::MediumNotPresent);
        }
        // The same medium as before, and the host did it: nothing to announce. Had it been
        // exchanged meanwhile, it would not be ejected any more.
        m_isEjected = false;
        return {};
    }
    if (m_preventsRemoval) {
        return fail(ScsiSense::MediumRemovalPrevented);
    }
    if (presentMedium() && !m_storage.flush(m_identity.number)) {
        return fail(ScsiSense::WriteError);
    }
    m_isEjected = m_medium.has_value();
    return {};
}

DataPlan ScsiUnit::sendDiagnostic(Command command) {
    constexpr std::uint8_t SelfTest = 0x04;
    const bool isDefaultSelfTest = (command[1] & 0xF4) == SelfTest;
    if (!isDefaultSelfTest || record::get(command, {3, 2}) != 0) {
        return fail(ScsiSense::InvalidFieldInCommand);
    }
    return {};
}

DataPlan ScsiUnit::preventAllow(Command command) {
    constexpr std::uint8_t Prevent = 0x03;
    if ((command[4] & Prevent) > 1) {
        return fail(ScsiSense::InvalidFieldInCommand);
    }
    m_preventsRemoval = (command[4] & Prevent) == 1;
    return {};
}

DataPlan ScsiUnit::readFormatCapacities(Command command) {
    const std::optional<UnitMedium> medium = presentMedium();
    return reply(formatCapacities(medium ? std::optional(medium->sectorCount) : std::nullopt),
                 record::get(command, {7, 2}));
}

DataPlan ScsiUnit::readCapacity10(Command command) {
    constexpr std::uint8_t PartialMedium = 0x01;
    const bool isPartial = (command[8] & PartialMedium) != 0;
    if (!isPartial && record::get(command, {2, 4}) != 0) {
        return fail(ScsiSense::InvalidFieldInCommand);
    }
    constexpr std::uint64_t WholeAnswer = 8;
    return reply(capacity10(m_medium->sectorCount), WholeAnswer);
}

DataPlan ScsiUnit::serviceActionIn16(Command command) {
    constexpr std::uint8_t ReadCapacity16 = 0x10;
    if ((command[1] & 0x1F) != ReadCapacity16) {
        return fail(ScsiSense::InvalidFieldInCommand);
    }
    return reply(capacity16(m_medium->sectorCount), record::get(command, {10, 4}));
}

DataPlan ScsiUnit::readSectors(Command command) {
    if (asksForProtection(command)) {
        return fail(ScsiSense::InvalidFieldInCommand);
    }
    const Range range = rangeOf(command);
    // Past the cache the host wants what a power failure would leave, so that has to be the latest.
    if (asksForUnitAccess(command) && range.count > 0 && fits(range) &&
        !m_storage.flush(m_identity.number)) {
        return fail(ScsiSense::WriteError);
    }
    return startTransfer(Transfer::ReadMedium, range);
}

DataPlan ScsiUnit::writeSectors(Command command) {
    if (asksForProtection(command)) {
        return fail(ScsiSense::InvalidFieldInCommand);
    }
    const DataPlan plan = startTransfer(Transfer::WriteMedium, rangeOf(command));
    if (plan.direction != DataDirection::None && asksForUnitAccess(command)) {
        m_writeThrough = WriteThrough::Yes;
    }
    return plan;
}

DataPlan ScsiUnit::verify(Command command) {
    const int byteCheck = command[1] >> 1 & 0x03;
    if (asksForProtection(command) || byteCheck > 1) {
        return fail(ScsiSense::InvalidFieldInCommand);
    }
    const Range range = rangeOf(command);
    if (byteCheck == 1) {
        return startTransfer(Transfer::CompareMedium, range);
    }
    // Without data to compare there is nothing to do: a file's sectors are checked when read.
    return fits(range) ? DataPlan{} : fail(ScsiSense::BlockAddressOutOfRange, range.first);
}

DataPlan ScsiUnit::synchronizeCache(Command command) {
    const Range range = rangeOf(command);
    if (!fits(range)) {
        return fail(ScsiSense::BlockAddressOutOfRange, range.first);
    }
    return m_storage.flush(m_identity.number) ? DataPlan{} : fail(ScsiSense::WriteError);
}

DataPlan ScsiUnit::reportLuns(Command command) {
    constexpr std::uint8_t WellKnownUnitsOnly = 0x01;
    constexpr std::uint8_t AllUnits = 0x02;
    constexpr std::uint64_t LeastAllocation = 16;
    const auto allocationLength = record::get(command, {6, 4});
    if (command[2] > AllUnits || allocationLength < LeastAllocation) {
        return fail(ScsiSense::InvalidFieldInCommand);
    }
    return reply(unitList(command[2] == WellKnownUnitsOnly ? 0 : m_unitCount), allocationLength);
}

} // namespace zelto::simulator
