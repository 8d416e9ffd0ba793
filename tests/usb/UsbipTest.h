#pragma once

#include "simulator/usbip/UsbipSession.h"
#include "tests/usb/UsbTest.h"

namespace zelto::test {

using namespace simulator;

/// A place for the device that a test rules.
class FakeExport final : public UsbipExport {
public:
    explicit FakeExport(StorageDevice& device) : m_device(device) {}

    bool isPlugged = true;
    bool taken = false;
    bool leaving = false;

    [[nodiscard]] std::optional<UsbipDevice> offered() const override {
        return isPlugged ? std::optional(UsbipDevice{}) : std::nullopt;
    }
    [[nodiscard]] bool isTaken() const override { return taken; }
    [[nodiscard]] StorageDevice& device() override { return m_device; }
    [[nodiscard]] bool isLeaving() const override { return leaving; }

private:
    StorageDevice& m_device;
};

inline void append(Bytes& bytes, const Bytes& more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
}
inline void append32(Bytes& bytes, std::uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8) {
        bytes.push_back(static_cast<std::uint8_t>(value >> shift & 0xFF));
    }
}
inline std::uint32_t get32(const Bytes& bytes, std::size_t offset) {
    return static_cast<std::uint32_t>(bytes.at(offset)) << 24 |
           static_cast<std::uint32_t>(bytes.at(offset + 1)) << 16 |
           static_cast<std::uint32_t>(bytes.at(offset + 2)) << 8 | bytes.at(offset + 3);
}

/// The device's number as the first device of the first bus but the host itself.
inline constexpr std::uint32_t DeviceId = 0x00010002;

struct SubmitFields {
    std::uint32_t sequence = 1;
    std::uint32_t direction = 0;
    std::uint32_t endpoint = 0;
    std::uint32_t length = 0;
    std::uint32_t packets = 0;
    std::uint32_t deviceId = DeviceId;
};

inline Bytes submitPacket(const SubmitFields& fields, const Bytes& setup = Bytes(8),
                          const Bytes& data = {}) {
    Bytes bytes;
    for (const std::uint32_t value : {1U, fields.sequence, fields.deviceId, fields.direction,
                                      fields.endpoint, 0U, fields.length, 0U, fields.packets, 0U}) {
        append32(bytes, value);
    }
    append(bytes, setup);
    append(bytes, data);
    return bytes;
}
inline Bytes submitIn(std::uint32_t sequence, std::uint32_t length) {
    return submitPacket({.sequence = sequence, .direction = 1, .endpoint = 1, .length = length});
}
inline Bytes submitOut(std::uint32_t sequence, const Bytes& data) {
    return submitPacket({.sequence = sequence,
                         .direction = 0,
                         .endpoint = 2,
                         .length = static_cast<std::uint32_t>(data.size())},
                        Bytes(8), data);
}
/// `setup` as its eight bytes on the bus.
inline Bytes submitControl(std::uint32_t sequence, const Bytes& setup, const Bytes& data = {}) {
    return submitPacket({.sequence = sequence,
                         .direction = (setup.at(0) & 0x80) != 0 ? 1U : 0U,
                         .endpoint = 0,
                         .length = static_cast<std::uint32_t>(setup.at(6) | setup.at(7) << 8)},
                        setup, data);
}
inline Bytes unlinkPacket(std::uint32_t sequence, std::uint32_t unlinked) {
    Bytes bytes;
    for (const std::uint32_t value : {2U, sequence, DeviceId, 0U, 0U, unlinked}) {
        append32(bytes, value);
    }
    bytes.resize(48);
    return bytes;
}
/// The header of an answer to a submit.
inline Bytes submitReply(std::uint32_t sequence, std::uint32_t status, std::uint32_t length) {
    Bytes bytes;
    for (const std::uint32_t value : {3U, sequence, 0U, 0U, 0U, status, length}) {
        append32(bytes, value);
    }
    bytes.resize(48);
    return bytes;
}
inline Bytes unlinkReply(std::uint32_t sequence, std::uint32_t status) {
    Bytes bytes;
    for (const std::uint32_t value : {4U, sequence, 0U, 0U, 0U, status}) {
        append32(bytes, value);
    }
    bytes.resize(48);
    return bytes;
}

namespace WireStatus {
inline constexpr std::uint32_t Stalled = 0xFFFFFFE0;
inline constexpr std::uint32_t NoResponse = 0xFFFFFFB9;
inline constexpr std::uint32_t Overflow = 0xFFFFFFB5;
inline constexpr std::uint32_t TooLong = 0xFFFFFFA6;
inline constexpr std::uint32_t Unlinked = 0xFFFFFF98;
} // namespace WireStatus

inline Bytes operationPacket(std::uint16_t code, std::uint16_t version = 0x0111) {
    return {static_cast<std::uint8_t>(version >> 8),
            static_cast<std::uint8_t>(version & 0xFF),
            static_cast<std::uint8_t>(code >> 8),
            static_cast<std::uint8_t>(code & 0xFF),
            0,
            0,
            0,
            0};
}
inline Bytes importPacket(std::string_view busId) {
    Bytes bytes = operationPacket(0x8003);
    bytes.insert(bytes.end(), busId.begin(), busId.end());
    bytes.resize(40);
    return bytes;
}

/// Gives bytes to a session as a socket would.
inline void feed(UsbipSession& session, std::span<const std::uint8_t> bytes) {
    while (!bytes.empty() && session.wantsInput()) {
        const auto space = session.receiveSpace();
        ASSERT_FALSE(space.empty());
        const std::size_t size = std::min(space.size(), bytes.size());
        std::ranges::copy(bytes.first(size), space.begin());
        session.received(size);
        bytes = bytes.subspan(size);
    }
}
/// Takes everything that the session has to send.
inline Bytes drain(UsbipSession& session) {
    Bytes bytes;
    while (!session.toSend().empty()) {
        const auto piece = session.toSend();
        bytes.insert(bytes.end(), piece.begin(), piece.end());
        session.sent(piece.size());
    }
    return bytes;
}

/// A drive as in UsbTest, imported by the kernel at the other end of a session.
class UsbipTest : public UsbTest {
protected:
    void SetUp() override {
        UsbTest::SetUp();
        (void)device.bulkOut(BulkOut, commandWrapper(0, 0, 0, 0, {0x00, 0, 0, 0, 0, 0}));
        (void)in(13);
    }
    void put(const Bytes& bytes) { feed(session, bytes); }
    Bytes take() { return drain(session); }
    Bytes exchange(const Bytes& bytes) {
        put(bytes);
        return take();
    }

    FakeExport exported{device};
    UsbipSession session{exported, UsbipSession::Start::Imported};
};

} // namespace zelto::test
