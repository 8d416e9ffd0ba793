#include "simulator/drive/DriveState.h"

#include "digest/SHA256.h"
#include "tests/model/DriveBench.h"

#include <gtest/gtest.h>
#include <string>

namespace zelto::test {
namespace {

using namespace simulator;

/// A drive that remembers something of every kind.
SavedDrive fullDrive() {
    Bench bench;
    EXPECT_TRUE(bench.send(writeHint(0, Bytes(4096, 0x5A))) && bench.send(setClock()) &&
                bench.setUpTwoPasswords(9) && bench.send(authenticate(1, First)) &&
                bench.send(authenticate(0, Second)) && bench.send(setErasePeriod(86400)) &&
                bench.send(setIdleLock(300)) && bench.send(logout()) &&
                bench.send(authenticate(1, First)));
    EXPECT_FALSE(bench.send(authenticate(0, Wrong)));
    SavedDrive drive{bench.drive.manufactured(), bench.drive.remembered()};
    Bench other;
    EXPECT_TRUE(other.send(setSecureAreas()) && other.send(setAutomaticKey()) &&
                other.send(setSecond(Second, 4)) && other.send(setBoth(First, Second)) &&
                other.send(reconnect()));
    drive.remembered.setupToCome = other.drive.remembered().setupToCome;
    drive.remembered.autoClearHeldAt = 17;
    drive.remembered.autoClearExpired = true;
    drive.remembered.resetAtPowerUp = true;
    return drive;
}

std::string errorOf(std::string_view text) {
    SavedDrive drive;
    std::string error;
    EXPECT_FALSE(decodeDriveState(text, drive, error));
    EXPECT_EQ(drive, SavedDrive{});
    return error;
}

std::string hexSum(const std::string& text) {
    std::array<std::uint8_t, 32> sum{};
    SHA256 digest;
    digest.Init();
    digest.Input(reinterpret_cast<const std::uint8_t*>(text.data()),
                 static_cast<std::uint32_t>(text.size()));
    digest.Get(sum.data());
    std::string hex;
    for (const std::uint8_t byte : sum) {
        hex += "0123456789abcdef"[byte >> 4];
        hex += "0123456789abcdef"[byte & 15];
    }
    return hex;
}

/// The text with a line taken for another, under a check sum that fits: hostile, not damaged.
std::string forged(const std::string& line, const std::string& replacement) {
    std::string text = encodeDriveState(fullDrive());
    text.resize(text.rfind("sum "));
    const std::size_t at = text.find(line);
    EXPECT_NE(at, std::string::npos) << line << "in\n" << text.substr(0, 400);
    if (at != std::string::npos) {
        text.replace(at, line.size(), replacement);
    }
    return text + "sum " + hexSum(text) + "\n";
}

TEST(DriveState, ComesBackAsItWasSaved) {
    SavedDrive drive;
    std::string error;
    const SavedDrive full = fullDrive();
    ASSERT_TRUE(decodeDriveState(encodeDriveState(full), drive, error)) << error;
    EXPECT_EQ(drive, full);
}

TEST(DriveState, OfANewDriveComesBackAsItWasSaved) {
    const Bench bench;
    const SavedDrive fresh{bench.drive.manufactured(), bench.drive.remembered()};
    SavedDrive drive;
    std::string error;
    ASSERT_TRUE(decodeDriveState(encodeDriveState(fresh), drive, error)) << error;
    EXPECT_EQ(drive, fresh);
}

TEST(DriveState, CutShortAnywhereIsNotRead) {
    const std::string text = encodeDriveState(fullDrive());
    for (std::size_t size = 0; size < text.size(); ++size) {
        EXPECT_FALSE(errorOf(std::string_view(text).substr(0, size)).empty()) << size;
    }
}

TEST(DriveState, WithAnyByteDamagedIsNotRead) {
    const Bench bench;
    const std::string text =
        encodeDriveState({bench.drive.manufactured(), bench.drive.remembered()});
    for (std::size_t index = 0; index < text.size(); ++index) {
        for (const char damage : {'\0', '\n', ' ', '7', '\xFF'}) {
            std::string damaged = text;
            damaged[index] = damage;
            if (damaged != text) {
                EXPECT_FALSE(errorOf(damaged).empty()) << index;
            }
        }
    }
}

TEST(DriveState, SaysWhatIsWrong) {
    EXPECT_EQ(errorOf(""), "it is not the state of a drive");
    EXPECT_EQ(errorOf("hello\nsum 00\n"), "it is not the state of a drive");
    EXPECT_EQ(errorOf("ZELTO DISK state 2\n"), "it was written by another version of this program");
    EXPECT_EQ(errorOf("ZELTO DISK state 1\nserial A\n"),
              "it is damaged: its check sum doesn't fit");
    EXPECT_EQ(errorOf(forged("idle-lock 300\n", "idle-lok 300\n")),
              "it can't be understood, line 18");
    EXPECT_EQ(errorOf(forged("serial ZD0123456789ABCD\n", "serial \x01\n")),
              "a serial number has 1 to 126 printable ASCII characters and no blanks");
}

TEST(DriveState, ThatNoDriveCanHaveIsNotReadThoughItsSumFits) {
    const std::string area = "area 40 c1 0 40960\n";
    const std::vector<std::pair<std::string, std::string>> forgeries{
        {"sectors 131072\n", "sectors 0\n"},
        {"sectors 131072\n", "sectors -1\n"},
        {"sectors 131072\n", "sectors 99999999999999999999999\n"},
        {"sectors 131072\n", "sectors 4294967297\n"},
        {"sectors 131072\n", "sectors 131072 \n"},
        {"sectors 131072\n", "sectors 131072\nsectors 131072\n"},
        {"sectors 131072\n", "sectors 1000\n"},
        {"sectors 131072\n", ""},
        {area, ""},
        {area, "area 40 c1 1 40960\n"},
        {area, "area 40 1c1 0 40960\n"},
        {area, "area 00 41 0 40960\n"},
        {area, area + area},
        {"first-password 1111", "first-password 11"},
        {"first-password 1111", "first-password xx11"},
        {"first-password 1111", "second-password 1111"},
        {"idle-lock 300\n", "idle-lock 65536\n"},
        {"idle-lock 300\n", "idle-lock\n"},
        {"idle-lock 300\n", "idle-lock 300 300\n"},
        {"idle-lock 300\n", "\n"},
        {"hint 0fe0 ", "hint 1000 "},
        {"hint 0fe0 ", "hint 0fe1 "},
        {"hint 0fe0 ", "hint fffffffffffffffffff "},
        {"latest 1767225600\n", "latest 9223372036854775807\n"},
        {"key automatic ", "key stolen "},
        {"to-come-area 40 c1 0 40960\n", ""},
    };
    for (const auto& [line, replacement] : forgeries) {
        EXPECT_FALSE(errorOf(forged(line, replacement)).empty()) << line << " -> " << replacement;
    }
}

} // namespace
} // namespace zelto::test
