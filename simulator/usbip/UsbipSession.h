#pragma once

#include "simulator/usb/StorageDevice.h"
#include "simulator/usbip/UsbipWire.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace zelto::simulator {

/// The place where the device is plugged in, or not, as a session sees it.
class UsbipExport {
public:
    UsbipExport() = default;
    UsbipExport(const UsbipExport&) = delete;
    UsbipExport& operator=(const UsbipExport&) = delete;
    virtual ~UsbipExport() = default;

    /// The device on offer; nothing while it is unplugged.
    [[nodiscard]] virtual std::optional<UsbipDevice> offered() const = 0;
    /// True while another computer has the device.
    [[nodiscard]] virtual bool isTaken() const = 0;
    /// The device itself, for the one session that imported it.
    [[nodiscard]] virtual StorageDevice& device() = 0;
    /// The device is on its way off the bus: it takes no more transfers.
    [[nodiscard]] virtual bool isLeaving() const = 0;
};

/// One computer's conversation with the server, without the socket: bytes go in, bytes come out.
///
/// Transfers are carried out as they arrive, data going straight from the received bytes to the
/// device and from the device to the bytes to send; what the device holds off waits, in order, and
/// can be taken back. Whatever comes in, memory stays within twice MaximumTransfer and what may
/// wait; a stream that cannot be followed ends the session.
class UsbipSession {
public:
    enum class Start : std::uint8_t {
        /// A client that has yet to ask for the device.
        Operations,
        /// The kernel's own end of a socket pair: the device is already its.
        Imported,
    };

    /// Longest transfer that is served; longer ones are answered with an error.
    static constexpr std::size_t MaximumTransfer = std::size_t{4} << 20;
    /// Transfers, and bytes of transfers from the host, that may wait for the device.
    static constexpr std::size_t MaximumWaiting = 1024;
    static constexpr std::size_t MaximumWaitingBytes = std::size_t{8} << 20;

    /// Refers to `exported` for as long as it lives.
    UsbipSession(UsbipExport& exported, Start start);

    /// Where to put received bytes; never empty while wantsInput.
    [[nodiscard]] std::span<std::uint8_t> receiveSpace();
    /// `size` bytes were put there. Carries out everything that is complete.
    void received(std::size_t size);
    /// What is to be sent.
    [[nodiscard]] std::span<const std::uint8_t> toSend() const;
    /// `size` of these bytes were sent. Carries out what had no room before.
    void sent(std::size_t size);

    /// False while answers have to be sent before anything more is taken.
    [[nodiscard]] bool wantsInput() const;
    /// The connection is to be closed once everything is sent.
    [[nodiscard]] bool isOver() const { return m_isOver; }
    /// Why, when the other side broke the rules; empty else.
    [[nodiscard]] std::string_view complaint() const { return m_complaint; }
    [[nodiscard]] bool isImported() const { return m_isImported; }

private:
    struct WaitingIn {
        std::uint32_t sequence = 0;
        std::uint8_t endpoint = 0;
        std::size_t length = 0;
    };
    struct WaitingOut {
        std::uint32_t sequence = 0;
        std::uint8_t endpoint = 0;
        std::vector<std::uint8_t> data;
    };
    enum class Step : std::uint8_t { Done, NeedsMore };

    [[nodiscard]] std::span<const std::uint8_t> unread() const;
    void consume(std::size_t size);
    void giveUp(std::string_view complaint);

    void process();
    [[nodiscard]] Step takeOperation();
    [[nodiscard]] Step takeImport();
    [[nodiscard]] Step takeCommand();
    void submit(const UsbipCommand& command, std::span<const std::uint8_t> data);
    void submitControl(const UsbipCommand& command, std::span<const std::uint8_t> data);
    void submitIn(const UsbipCommand& command);
    void submitOut(const UsbipCommand& command, std::span<const std::uint8_t> data);
    void unlink(const UsbipCommand& command);
    [[nodiscard]] bool takeBack(std::uint32_t sequence);

    void serveWaiting();
    [[nodiscard]] bool serveFirstIn();
    [[nodiscard]] bool serveFirstOut();

    /// Room for a header and `length` bytes behind the answers so far.
    [[nodiscard]] bool hasRoom(std::size_t length) const;
    /// Where the data of the next answer goes.
    [[nodiscard]] std::span<std::uint8_t> dataSpace(std::size_t length);
    void answer(std::uint32_t sequence, UsbipDirection direction, const TransferResult& result);
    void refuse(std::uint32_t sequence, UsbipStatus status);
    void append(std::span<const std::uint8_t> bytes);

    UsbipExport& m_export;
    bool m_isImported = false;
    bool m_isOver = false;
    std::string_view m_complaint;
    std::uint32_t m_deviceId = 0;

    std::unique_ptr<std::uint8_t[]> m_input;
    std::size_t m_inputBegin = 0;
    std::size_t m_inputEnd = 0;
    /// Bytes of a refused transfer that are still to come.
    std::uint64_t m_toSkip = 0;

    std::unique_ptr<std::uint8_t[]> m_output;
    std::size_t m_outputBegin = 0;
    std::size_t m_outputEnd = 0;

    std::deque<WaitingIn> m_waitingIn;
    std::deque<WaitingOut> m_waitingOut;
    std::size_t m_waitingBytes = 0;
    /// Control transfers that the device never answers.
    std::deque<std::uint32_t> m_unanswered;
};

} // namespace zelto::simulator
