#pragma once

#include "simulator/drive/UnitStorage.h"
#include "simulator/usb/UsbTransfer.h"

#include <algorithm>
#include <array>
#include <functional>
#include <vector>

namespace zelto::test {

using namespace simulator;
using Bytes = std::vector<std::uint8_t>;

/// Media in memory that a test puts in and takes out.
class FakeStorage final : public UnitStorage {
public:
    static constexpr std::size_t Units = 4;

    void insert(std::size_t unit, std::uint64_t sectors) {
        m_media.at(unit) = {{sectors, ++m_lastIdentity}, Bytes(sectors * SectorSize)};
    }
    /// A medium that only claims its size.
    void insertHuge(std::size_t unit, std::uint64_t sectors) {
        m_media.at(unit) = {{sectors, ++m_lastIdentity}, {}};
    }
    void remove(std::size_t unit) { m_media.at(unit) = {}; }
    Bytes& contents(std::size_t unit) { return m_media.at(unit).bytes; }

    bool failsReads = false;
    bool failsWrites = false;
    bool failsFlush = false;
    int flushes = 0;

    [[nodiscard]] std::optional<UnitMedium> medium(std::size_t unit) override {
        const Slot& slot = m_media.at(unit);
        return slot.medium.sectorCount > 0 ? std::optional(slot.medium) : std::nullopt;
    }
    [[nodiscard]] bool read(std::size_t unit, std::uint64_t sector,
                            std::span<std::uint8_t> bytes) override {
        const auto there = piece(unit, sector, bytes.size());
        if (failsReads || there.size() != bytes.size()) {
            return false;
        }
        std::ranges::copy(there, bytes.begin());
        return true;
    }
    [[nodiscard]] bool write(std::size_t unit, std::uint64_t sector,
                             std::span<const std::uint8_t> bytes) override {
        const auto there = piece(unit, sector, bytes.size());
        if (failsWrites || there.size() != bytes.size()) {
            return false;
        }
        std::ranges::copy(bytes, there.begin());
        return true;
    }
    [[nodiscard]] bool flush(std::size_t /*unit*/) override {
        ++flushes;
        return !failsFlush;
    }

private:
    struct Slot {
        UnitMedium medium;
        Bytes bytes;
    };

    std::span<std::uint8_t> piece(std::size_t unit, std::uint64_t sector, std::size_t size) {
        Bytes& bytes = m_media.at(unit).bytes;
        const std::uint64_t offset = sector * SectorSize;
        if (size % SectorSize != 0 || offset > bytes.size() || size > bytes.size() - offset) {
            return {};
        }
        return std::span(bytes).subspan(static_cast<std::size_t>(offset), size);
    }

    std::array<Slot, Units> m_media;
    std::uint64_t m_lastIdentity = 0;
};

/// Firmware that keeps what it is sent and answers what a test says.
class FakeControl final {
public:
    struct Seen {
        SetupPacket setup;
        Bytes sent;
    };
    std::vector<Seen> seen;
    std::optional<ControlReply> answer = ControlReply{};
    std::function<void()> effect = [] {};

    [[nodiscard]] std::optional<ControlReply> request(const SetupPacket& setup,
                                                      std::span<const std::uint8_t> sent) {
        seen.push_back({setup, {sent.begin(), sent.end()}});
        effect();
        return answer;
    }
};

/// Bytes that tell one sector from another.
inline Bytes pattern(std::size_t size, unsigned seed) {
    Bytes bytes(size);
    for (std::size_t index = 0; index < size; ++index) {
        bytes[index] = static_cast<std::uint8_t>((index * 7 + index / 512 * 31 + seed) & 0xFF);
    }
    return bytes;
}

} // namespace zelto::test
