#pragma once

#include "device/VendorRequest.h"
#include "simulator/drive/DriveModel.h"
#include "simulator/drive/SenseCodes.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <initializer_list>
#include <vector>

/// What the tests of the drive are written with: requests in the bytes of the wire, typed by hand,
/// and a drive on the bench with a clock that the test moves.
namespace zelto::test {

using namespace simulator;
using namespace std::chrono_literals;
using Bytes = std::vector<std::uint8_t>;

/// The bench's clock starts here; nothing depends on the date.
inline constexpr Moment Start = std::chrono::sys_days{std::chrono::year{2026} / 1 / 1};

inline constexpr std::uint64_t MegaByte = 2048; // in sectors
inline constexpr std::uint64_t SmallDrive = 64 * MegaByte;
inline constexpr std::uint64_t ToolArea = 40960;
inline constexpr std::uint64_t SecureSectors = 20 * MegaByte;
inline constexpr std::uint64_t NormalSectors = 24 * MegaByte;

/// A vendor request with its data stage.
struct Sent {
    SetupPacket setup;
    Bytes data = {};
};

/// A digest that stands for a password: the drive never sees more of it.
inline Bytes digest(std::uint8_t password) {
    return Bytes(32, password);
}

inline void append(Bytes& bytes, const Bytes& more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
}

inline Sent output(std::uint8_t request, std::uint16_t value, std::uint16_t index, Bytes data) {
    const auto length = static_cast<std::uint16_t>(data.size());
    return {{0x40, request, value, index, length}, std::move(data)};
}

inline Sent input(std::uint8_t request, std::uint16_t value, std::uint16_t index,
                  std::uint16_t length) {
    return {{0xC0, request, value, index, length}};
}

inline Bytes area(std::uint8_t type, std::uint8_t flags, std::uint64_t first, std::uint64_t count) {
    Bytes bytes{type, flags, 0, 0};
    for (const std::uint64_t number : {first, count}) {
        for (int shift = 56; shift >= 0; shift -= 8) {
            bytes.push_back(static_cast<std::uint8_t>(number >> shift));
        }
    }
    return bytes;
}

inline Sent getStatus() {
    return input(0xC0, 0, 0, 36);
}
inline Sent getTime() {
    return input(0xBA, 0, 0, 28);
}
inline Sent getAreas() {
    return input(0xC2, 0, 0, 256);
}
inline Sent setAreas(std::initializer_list<Bytes> areas) {
    Bytes data;
    for (const Bytes& entry : areas) {
        append(data, entry);
    }
    return output(0xC4, 0, 0, std::move(data));
}
/// Disk1 secure, Disk2 normal, the tool area: what first-time set-up sends.
inline Sent setSecureAreas() {
    return setAreas({area(0x40, 0xC1, 0, SecureSectors),
                     area(0x00, 0x41, SecureSectors, SmallDrive - SecureSectors - ToolArea),
                     area(0x00, 0x41, SmallDrive - ToolArea, ToolArea)});
}
inline Sent setNormalAreas() {
    return setAreas(
        {area(0x00, 0x41, 0, NormalSectors), area(0x00, 0x41, NormalSectors, ToolArea)});
}
inline Sent resetAreas() {
    return output(0xC5, 3, 0, {});
}
inline Sent reconnect() {
    return output(0xC1, 1, 1, {});
}

inline Sent authenticate(std::uint8_t stepFlag, std::uint8_t password) {
    Bytes data{stepFlag, 0};
    append(data, digest(password));
    return output(0xB3, 0, 0, std::move(data));
}
inline Sent logout() {
    return output(0xB4, 0, 0, {});
}

inline Sent setAutomaticKey() {
    Bytes data(72);
    std::ranges::copy(Bytes{'T', 'K', 'E', 'R', 0x03, 0x80}, data.begin());
    return output(0xB0, 2, 0, std::move(data));
}
inline Sent setKeyByHand(const Bytes& key) {
    Bytes data(72);
    std::ranges::copy(Bytes{'T', 'K', 'E', 'R', 0x03, 0x00}, data.begin());
    std::ranges::copy(key, data.begin() + 8);
    return output(0xB0, 2, 0, std::move(data));
}
inline Sent clearEncryption() {
    return output(0xB0, 2, 0, {0x54, 0x4B, 0x43, 0x4C});
}

inline Sent passwords(std::uint8_t kind, std::uint16_t value, std::uint8_t trials,
                      std::initializer_list<std::uint8_t> slots) {
    Bytes data{kind, 0, 1, 0, trials, 0, 0, 0};
    for (const std::uint8_t slot : slots) {
        append(data, slot == 0 ? Bytes(32) : digest(slot));
    }
    return output(0xB1, value, 0, std::move(data));
}
inline Sent setFirst(std::uint8_t first) {
    return passwords(0x02, 2, 0, {first, 0});
}
inline Sent setSecond(std::uint8_t second, std::uint8_t trials) {
    return passwords(0x02, 2, trials, {second, 0});
}
inline Sent setBoth(std::uint8_t first, std::uint8_t second) {
    return passwords(0x0B, 2, 0, {first, second});
}
inline Sent changeFirst(std::uint8_t next, std::uint8_t current) {
    return passwords(0x06, 0, 0, {next, current});
}
inline Sent changeSecond(std::uint8_t next, std::uint8_t current, std::uint8_t trials) {
    return passwords(0x06, 0, trials, {next, current});
}
inline Sent changeBoth(std::uint8_t nextFirst, std::uint8_t currentFirst, std::uint8_t nextSecond) {
    return passwords(0x0F, 0, 0, {nextFirst, currentFirst, nextSecond});
}

inline Sent setErasePeriod(std::uint32_t seconds) {
    return output(0xBC, static_cast<std::uint16_t>(seconds & 0xFFFF),
                  static_cast<std::uint16_t>(seconds >> 16), {});
}
inline Sent setIdleLock(std::uint16_t seconds) {
    return output(0xBD, seconds, 0, {});
}
/// 2026-03-04 05:06:07.
inline Sent setClock() {
    return output(0xBB, 0, 0, {0x07, 0xEA, 3, 4, 5, 6, 7});
}
inline Sent readHint(std::uint16_t address, std::uint16_t length) {
    return input(0xB6, 0, address, length);
}
inline Sent writeHint(std::uint16_t address, Bytes data) {
    return output(0xB7, 1, address, std::move(data));
}

inline constexpr std::uint8_t First = 0x11;
inline constexpr std::uint8_t Second = 0x22;
inline constexpr std::uint8_t Wrong = 0x99;

/// A drive, and the clock over the bench.
struct Bench {
    explicit Bench(std::uint64_t sectors = SmallDrive)
        : drive(Manufactured{.totalSectors = sectors, .keySeed = 7}) {
        drive.powerUp(now);
    }

    /// Whether the drive accepted the request.
    bool send(const Sent& sent) { return !drive.control(sent.setup, sent.data, now).stalled; }

    /// The data of an accepted read; nothing when it is refused.
    Bytes read(const Sent& sent) { return drive.control(sent.setup, sent.data, now).data; }

    /// The sense bytes of a status read.
    Sense sense() {
        const Bytes status = read(getStatus());
        return status.size() == 36 ? Sense{status[13], status[14], status[15]} : Sense{};
    }
    std::uint8_t securityByte() { return read(getStatus()).at(33); }
    SecurityState state() { return static_cast<SecurityState>(securityByte() & 0x07); }

    void pass(std::chrono::seconds time) { now += time; }
    void unplug() { drive.powerOff(now); }
    void replug() {
        drive.powerOff(now);
        drive.powerUp(now);
    }

    bool setUpOnePassword() {
        return send(setSecureAreas()) && send(setAutomaticKey()) && send(setFirst(First)) &&
               finishSetup();
    }
    bool setUpTwoPasswords(std::uint8_t trials) {
        return send(setSecureAreas()) && send(setAutomaticKey()) &&
               send(setSecond(Second, trials)) && send(setBoth(First, Second)) && finishSetup();
    }
    bool finishSetup() {
        if (!send(reconnect()) || !drive.takeReconnect()) {
            return false;
        }
        replug();
        return true;
    }

    Moment now = Start;
    DriveModel drive;
};

} // namespace zelto::test
