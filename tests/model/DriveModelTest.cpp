#include "tests/model/DriveBench.h"

#include <gtest/gtest.h>

namespace zelto::simulator::test {
namespace {

using enum SecurityState;

// --- A new drive -------------------------------------------------------------------------------

TEST(NewDrive, HasNoPasswordAndOneBlankMediumOfAllSectors) {
    Bench bench;
    EXPECT_EQ(bench.securityByte(), 0x00);
    EXPECT_EQ(bench.drive.medium(0, bench.now),
              (Medium{.firstSector = 0, .sectorCount = SmallDrive}));
    for (const std::size_t unit : {1U, 2U, 3U, 4U, 99U}) {
        EXPECT_FALSE(bench.drive.medium(unit, bench.now)) << unit;
    }
}

TEST(NewDrive, AnswersOneEntryWithAnAllOnesSectorCount) {
    Bench bench;
    const Bytes expected{0x00, 0x1E, 0x00, 0x01, 0,    0,    0,    0,    0,    0x02, 0,
                         0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,
                         0,    0,    0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF};
    EXPECT_EQ(bench.read(getAreas()), expected);
}

TEST(NewDrive, SaysThatItsClockWasNeverSet) {
    Bench bench;
    Bytes expected(28);
    expected[0] = 0x40;
    EXPECT_EQ(bench.read(getTime()), expected);
}

TEST(NewDrive, HasHintDataOfZeros) {
    Bench bench;
    EXPECT_EQ(bench.read(readHint(0, 4096)), Bytes(4096));
}

// --- First-time set-up -------------------------------------------------------------------------

TEST(Setup, WithOnePasswordTakesEffectAtTheReconnect) {
    Bench bench;
    ASSERT_TRUE(bench.send(setSecureAreas()));
    ASSERT_TRUE(bench.send(setAutomaticKey()));
    ASSERT_TRUE(bench.send(setFirst(First)));
    EXPECT_EQ(bench.state(), StateNoPassword);
    EXPECT_EQ(bench.drive.medium(0, bench.now)->sectorCount, SmallDrive);
    ASSERT_TRUE(bench.finishSetup());
    EXPECT_EQ(bench.securityByte(), 0x82);
    EXPECT_FALSE(bench.drive.medium(0, bench.now));
    EXPECT_EQ(bench.drive.medium(1, bench.now)->firstSector, SecureSectors);
    EXPECT_EQ(bench.drive.medium(2, bench.now),
              (Medium{.firstSector = SmallDrive - ToolArea, .sectorCount = ToolArea}));
}

TEST(LogIn, WithTwoPasswordsGoesThroughBothSteps) {
    Bench bench;
    ASSERT_TRUE(bench.setUpTwoPasswords(5));
    EXPECT_EQ(bench.securityByte(), 0xC2);
    ASSERT_TRUE(bench.send(authenticate(1, First)));
    EXPECT_EQ(bench.securityByte(), 0xC3);
    ASSERT_TRUE(bench.send(authenticate(0, Second)));
    EXPECT_EQ(bench.securityByte(), 0xC4);
    EXPECT_TRUE(bench.drive.medium(0, bench.now)->secure);
}

} // namespace
} // namespace zelto::simulator::test
