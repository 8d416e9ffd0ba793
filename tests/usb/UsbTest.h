#pragma once

#include "simulator/usb/StorageDevice.h"
#include "tests/usb/FakeDrive.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zelto::test {

using namespace simulator;

inline constexpr std::uint8_t BulkIn = 1;
inline constexpr std::uint8_t BulkOut = 2;

// Commands: test unit ready; two blocks from the fourth, read and written.
inline const Bytes Ready{0x00, 0, 0, 0, 0, 0};
inline const Bytes ReadTwo{0x28, 0, 0, 0, 0, 4, 0, 0, 2, 0};
inline const Bytes WriteTwo{0x2A, 0, 0, 0, 0, 4, 0, 0, 2, 0};

/// A command block wrapper, byte by byte.
inline Bytes commandWrapper(std::uint32_t tag, std::uint32_t length, std::uint8_t flags,
                            std::uint8_t unit, const Bytes& command) {
    const auto byteOf = [](std::uint32_t value, int index) {
        return static_cast<std::uint8_t>(value >> (8 * index) & 0xFF);
    };
    Bytes bytes{'U', 'S', 'B', 'C'};
    for (const std::uint32_t value : {tag, length}) {
        for (int index = 0; index < 4; ++index) {
            bytes.push_back(byteOf(value, index));
        }
    }
    bytes.insert(bytes.end(), {flags, unit, static_cast<std::uint8_t>(command.size())});
    bytes.insert(bytes.end(), command.begin(), command.end());
    bytes.resize(31);
    return bytes;
}

/// A drive on a bus, configured, its first unit with a medium of 64 sectors and ready.
class UsbTest : public ::testing::Test {
protected:
    static constexpr std::uint64_t Sectors = 64;
    static constexpr std::size_t Sector = 512;

    void SetUp() override {
        storage.insert(0, Sectors);
        device.powerUp();
        ASSERT_EQ(control({0x00, 9, 1, 0, 0}).status, TransferStatus::Complete);
        (void)device.bulkOut(BulkOut, commandWrapper(0, 0, 0, 0, {0x00, 0, 0, 0, 0, 0}));
        (void)in(13);
    }

    TransferResult control(const SetupPacket& setup, const Bytes& sent = {}) {
        reply.assign(setup.wLength, 0xEE);
        const TransferResult result = device.control(setup, sent, reply);
        reply.resize((setup.bmRequestType & 0x80) != 0 ? result.length : 0);
        return result;
    }
    TransferResult out(const Bytes& data) { return device.bulkOut(BulkOut, data); }
    TransferResult in(std::size_t size) {
        received.assign(size, 0xEE);
        const TransferResult result = device.bulkIn(BulkIn, received);
        received.resize(result.length);
        return result;
    }
    TransferResult clearHalt(std::uint8_t address) { return control({0x02, 1, 0, address, 0}); }
    TransferResult bulkOnlyReset() { return control({0x21, 0xFF, 0, 0, 0}); }

    /// The status wrapper of the command under way has these bytes behind its signature.
    void expectStatus(std::uint32_t tag, std::uint32_t residue, std::uint8_t status) {
        ASSERT_EQ(in(13), (TransferResult{TransferStatus::Complete, 13}));
        const auto byteOf = [](std::uint32_t value, int index) {
            return static_cast<std::uint8_t>(value >> (8 * index) & 0xFF);
        };
        Bytes expected{'U', 'S', 'B', 'S'};
        for (const std::uint32_t value : {tag, residue}) {
            for (int index = 0; index < 4; ++index) {
                expected.push_back(byteOf(value, index));
            }
        }
        expected.push_back(status);
        EXPECT_EQ(received, expected);
    }

    FakeStorage storage;
    FakeControl firmware;
    StorageDevice device{
        "ZD0123456789ABCD",
        [this](const auto& setup, auto sent) { return firmware.request(setup, sent); }, storage};
    Bytes reply;
    Bytes received;
};

inline constexpr TransferResult Stall{TransferStatus::Stalled, 0};
inline constexpr TransferResult Done{TransferStatus::Complete, 0};
inline constexpr TransferResult Held{TransferStatus::Waiting, 0};

} // namespace zelto::test
