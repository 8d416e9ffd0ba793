#include "simulator/usbip/UsbipSession.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace zelto::simulator {

namespace {

constexpr std::size_t LargestControl = 0xFFFF;
/// Small packets that may collect beside one that is as large as can be.
constexpr std::size_t Slack = 0x40000;
constexpr std::size_t InputCapacity = Usbip::CommandSize + UsbipSession::MaximumTransfer + Slack;
constexpr std::size_t OutputCapacity = Usbip::CommandSize + UsbipSession::MaximumTransfer + Slack;

UsbipStatus wireStatus(TransferStatus status) {
    switch (status) {
    case TransferStatus::Complete:
        return UsbipStatus::Ok;
    case TransferStatus::Stalled:
        return UsbipStatus::Stalled;
    case TransferStatus::Overflow:
        return UsbipStatus::Overflow;
    case TransferStatus::Waiting:
    case TransferStatus::NoResponse:
        break;
    }
    return UsbipStatus::NoResponse;
}

} // namespace

// The buffers are not cleared: their pages are only taken from the system when they are used.
UsbipSession::UsbipSession(UsbipExport& exported, Start start)
    : m_export(exported),
      m_isImported(start == Start::Imported),
      m_input(std::make_unique_for_overwrite<std::uint8_t[]>(InputCapacity)),
      m_output(std::make_unique_for_overwrite<std::uint8_t[]>(OutputCapacity)) {
    if (m_isImported) {
        m_deviceId = exported.offered().value_or(UsbipDevice{}).deviceId();
    }
}

// Bytes in

std::span<std::uint8_t> UsbipSession::receiveSpace() {
    if (m_inputBegin == m_inputEnd) {
        m_inputBegin = 0;
        m_inputEnd = 0;
    } else if (InputCapacity - m_inputBegin < Usbip::CommandSize + MaximumTransfer) {
        // The packet under way might not fit behind what is already done.
        std::memmove(m_input.get(), m_input.get() + m_inputBegin, m_inputEnd - m_inputBegin);
        m_inputEnd -= std::exchange(m_inputBegin, 0);
    }
    return {m_input.get() + m_inputEnd, InputCapacity - m_inputEnd};
}

void UsbipSession::received(std::size_t size) {
    m_inputEnd += size;
    process();
}

std::span<const std::uint8_t> UsbipSession::unread() const {
    return {m_input.get() + m_inputBegin, m_inputEnd - m_inputBegin};
}

void UsbipSession::consume(std::size_t size) {
    m_inputBegin += size;
}

void UsbipSession::giveUp(std::string_view complaint) {
    m_complaint = complaint;
    m_isOver = true;
}

// Bytes out

std::span<const std::uint8_t> UsbipSession::toSend() const {
    return {m_output.get() + m_outputBegin, m_outputEnd - m_outputBegin};
}

void UsbipSession::sent(std::size_t size) {
    m_outputBegin += size;
    if (m_outputBegin == m_outputEnd) {
        m_outputBegin = 0;
        m_outputEnd = 0;
        process();
    }
}

bool UsbipSession::hasRoom(std::size_t length) const {
    return OutputCapacity - m_outputEnd >= Usbip::CommandSize + length;
}

bool UsbipSession::wantsInput() const {
    return !m_isOver && hasRoom(LargestControl);
}

std::span<std::uint8_t> UsbipSession::dataSpace(std::size_t length) {
    return {m_output.get() + m_outputEnd + Usbip::CommandSize, length};
}

void UsbipSession::answer(std::uint32_t sequence, UsbipDirection direction,
                          const TransferResult& result) {
    append(encodeSubmitReply(sequence, wireStatus(result.status),
                             static_cast<std::uint32_t>(result.length)));
    if (direction == UsbipDirection::In) {
        m_outputEnd += result.length; // already in its place: dataSpace
    }
}

void UsbipSession::refuse(std::uint32_t sequence, UsbipStatus status) {
    append(encodeSubmitReply(sequence, status, 0));
}

void UsbipSession::append(std::span<const std::uint8_t> bytes) {
    std::ranges::copy(bytes, m_output.get() + m_outputEnd);
    m_outputEnd += bytes.size();
}

// Packets

void UsbipSession::process() {
    serveWaiting();
    while (wantsInput()) {
        if (m_toSkip > 0) {
            const std::size_t skipped = std::min<std::uint64_t>(m_toSkip, unread().size());
            consume(skipped);
            m_toSkip -= skipped;
        }
        const Step step = m_toSkip > 0   ? Step::NeedsMore
                          : m_isImported ? takeCommand()
                                         : takeOperation();
        if (step == Step::NeedsMore) {
            return;
        }
        if (m_isImported && m_export.isLeaving()) {
            m_isOver = true;
        }
    }
}

UsbipSession::Step UsbipSession::takeOperation() {
    if (unread().size() < Usbip::OperationHeaderSize) {
        return Step::NeedsMore;
    }
    const UsbipOperation operation = decodeOperation(unread().first<Usbip::OperationHeaderSize>());
    if (operation.version != Usbip::Version) {
        giveUp("another version of the protocol");
        return Step::Done;
    }
    switch (operation.code) {
    case Usbip::RequestDeviceList:
        consume(Usbip::OperationHeaderSize);
        append(encodeDeviceList(m_export.offered()));
        m_isOver = true;
        return Step::Done;
    case Usbip::RequestImport:
        return takeImport();
    default:
        giveUp("an unknown operation");
        return Step::Done;
    }
}

UsbipSession::Step UsbipSession::takeImport() {
    constexpr std::size_t Size = Usbip::OperationHeaderSize + Usbip::BusIdSize;
    if (unread().size() < Size) {
        return Step::NeedsMore;
    }
    const std::string busId =
        decodeBusId(unread().subspan<Usbip::OperationHeaderSize, Usbip::BusIdSize>());
    consume(Size);
    const std::optional<UsbipDevice> device = m_export.offered();
    UsbipOperationStatus status = UsbipOperationStatus::Ok;
    if (!device || device->busId != busId) {
        status = UsbipOperationStatus::NoDevice;
    } else if (m_export.isTaken()) {
        status = UsbipOperationStatus::DeviceBusy;
    }
    append(encodeImportReply(status, device.value_or(UsbipDevice{})));
    m_isImported = status == UsbipOperationStatus::Ok;
    m_isOver = !m_isImported;
    if (m_isImported) {
        m_deviceId = device->deviceId();
    }
    return Step::Done;
}

UsbipSession::Step UsbipSession::takeCommand() {
    if (unread().size() < Usbip::CommandSize) {
        return Step::NeedsMore;
    }
    const std::optional<UsbipCommand> command = decodeCommand(unread().first<Usbip::CommandSize>());
    if (!command || command->deviceId != m_deviceId) {
        giveUp("a packet that makes no sense");
        return Step::Done;
    }
    if (command->code == Usbip::Unlink) {
        consume(Usbip::CommandSize);
        unlink(*command);
        return Step::Done;
    }
    const std::size_t sent = command->direction == UsbipDirection::Out ? command->length : 0;
    if (command->length > MaximumTransfer) {
        consume(Usbip::CommandSize);
        m_toSkip = sent;
        refuse(command->sequence, UsbipStatus::TooLong);
        return Step::Done;
    }
    if (unread().size() < Usbip::CommandSize + sent) {
        return Step::NeedsMore;
    }
    submit(*command, unread().subspan(Usbip::CommandSize, sent));
    consume(Usbip::CommandSize + sent);
    return Step::Done;
}

// Transfers

void UsbipSession::submit(const UsbipCommand& command, std::span<const std::uint8_t> data) {
    if (command.endpoint == 0) {
        submitControl(command, data);
    } else if (command.direction == UsbipDirection::In) {
        submitIn(command);
    } else {
        submitOut(command, data);
    }
    serveWaiting();
}

void UsbipSession::submitControl(const UsbipCommand& command, std::span<const std::uint8_t> data) {
    const std::size_t room = command.direction == UsbipDirection::In
                                 ? std::min<std::size_t>(command.length, LargestControl)
                                 : 0;
    const TransferResult result = m_export.device().control(command.setup, data, dataSpace(room));
    if (result.status != TransferStatus::Waiting) {
        answer(command.sequence, command.direction, result);
    } else if (m_unanswered.size() < MaximumWaiting) {
        m_unanswered.push_back(command.sequence);
    } else {
        giveUp("too many transfers without an answer");
    }
}

void UsbipSession::submitIn(const UsbipCommand& command) {
    if (!m_export.device().hasBulkEndpoint(BulkEndpoint::In, command.endpoint)) {
        refuse(command.sequence, UsbipStatus::NoResponse);
        return;
    }
    if (m_waitingIn.size() >= MaximumWaiting) {
        giveUp("too many transfers at once");
        return;
    }
    m_waitingIn.push_back({command.sequence, command.endpoint, command.length});
}

void UsbipSession::submitOut(const UsbipCommand& command, std::span<const std::uint8_t> data) {
    if (!m_export.device().hasBulkEndpoint(BulkEndpoint::Out, command.endpoint)) {
        refuse(command.sequence, UsbipStatus::NoResponse);
        return;
    }
    if (m_waitingOut.empty()) {
        const TransferResult result = m_export.device().bulkOut(command.endpoint, data);
        if (result.status != TransferStatus::Waiting) {
            answer(command.sequence, UsbipDirection::Out, result);
            return;
        }
    }
    if (m_waitingOut.size() >= MaximumWaiting ||
        m_waitingBytes + data.size() > MaximumWaitingBytes) {
        giveUp("too much data at once");
        return;
    }
    m_waitingOut.push_back({command.sequence, command.endpoint, {data.begin(), data.end()}});
    m_waitingBytes += data.size();
}

void UsbipSession::serveWaiting() {
    // What one endpoint takes can be what the other waited for.
    while (!m_isOver && (serveFirstIn() || serveFirstOut())) {
    }
}

bool UsbipSession::serveFirstIn() {
    if (m_waitingIn.empty() || !hasRoom(m_waitingIn.front().length)) {
        return false;
    }
    const WaitingIn transfer = m_waitingIn.front();
    const TransferResult result =
        m_export.device().bulkIn(transfer.endpoint, dataSpace(transfer.length));
    if (result.status == TransferStatus::Waiting) {
        return false;
    }
    m_waitingIn.pop_front();
    answer(transfer.sequence, UsbipDirection::In, result);
    return true;
}

bool UsbipSession::serveFirstOut() {
    if (m_waitingOut.empty() || !hasRoom(0)) {
        return false;
    }
    const WaitingOut& transfer = m_waitingOut.front();
    const TransferResult result = m_export.device().bulkOut(transfer.endpoint, transfer.data);
    if (result.status == TransferStatus::Waiting) {
        return false;
    }
    answer(transfer.sequence, UsbipDirection::Out, result);
    m_waitingBytes -= transfer.data.size();
    m_waitingOut.pop_front();
    return true;
}

void UsbipSession::unlink(const UsbipCommand& command) {
    // A transfer that is no longer waiting was answered: nothing to take back, status 0.
    append(encodeUnlinkReply(command.sequence, takeBack(command.unlinkSequence)
                                                   ? UsbipStatus::Unlinked
                                                   : UsbipStatus::Ok));
    serveWaiting();
}

bool UsbipSession::takeBack(std::uint32_t sequence) {
    if (std::erase(m_unanswered, sequence) > 0) {
        return true;
    }
    const auto hasSequence = [&](const auto& transfer) { return transfer.sequence == sequence; };
    if (std::erase_if(m_waitingIn, hasSequence) > 0) {
        return true;
    }
    const auto out = std::ranges::find_if(m_waitingOut, hasSequence);
    if (out == m_waitingOut.end()) {
        return false;
    }
    m_waitingBytes -= out->data.size();
    m_waitingOut.erase(out);
    return true;
}

} // namespace zelto::simulator
