#include "tests/model/DriveBench.h"

#include <gtest/gtest.h>
#include <limits>

namespace zelto::test {
namespace {

using namespace simulator;
using enum SecurityState;

Bench unlockedDrive() {
    Bench bench;
    EXPECT_TRUE(bench.setUpOnePassword() && bench.send(authenticate(1, First)));
    return bench;
}

std::uint32_t elapsed(Bench& bench) {
    const Bytes time = bench.read(getTime());
    return static_cast<std::uint32_t>(time.at(18) << 24 | time.at(19) << 16 | time.at(20) << 8 |
                                      time.at(21));
}

std::uint8_t timeFlags(Bench& bench) {
    return bench.read(getTime()).at(0);
}

// --- Auto clear --------------------------------------------------------------------------------

TEST(AutoClear, IsStillOpenOneSecondBeforeThePeriodEnds) {
    Bench bench = unlockedDrive();
    ASSERT_TRUE(bench.send(setErasePeriod(100)));
    bench.pass(99s);
    EXPECT_EQ(bench.state(), StateUnlocking);
    EXPECT_EQ(timeFlags(bench) & 0x80, 0);
    EXPECT_EQ(elapsed(bench), 99U);
}

TEST(AutoClear, LosesTheKeyInTheSecondInWhichThePeriodEnds) {
    Bench bench = unlockedDrive();
    ASSERT_TRUE(bench.send(setErasePeriod(100)));
    bench.pass(100s);
    EXPECT_EQ(bench.securityByte(), 0x05);
    EXPECT_EQ(timeFlags(bench) & 0x80, 0x80);
    EXPECT_FALSE(bench.drive.remembered().key);
    EXPECT_FALSE(bench.drive.medium(0, bench.now));
    bench.pass(1000s);
    EXPECT_EQ(elapsed(bench), 100U);
}

TEST(AutoClear, OfOneSecondErasesTheKeyOneSecondFromNow) {
    Bench bench = unlockedDrive();
    ASSERT_TRUE(bench.send(setErasePeriod(1)) && bench.send(logout()));
    EXPECT_EQ(bench.state(), StateLocked);
    bench.pass(1s);
    EXPECT_EQ(bench.state(), StateFullLock);
}

TEST(AutoClear, CountsOnWhileTheDriveHasNoPower) {
    Bench bench = unlockedDrive();
    ASSERT_TRUE(bench.send(setErasePeriod(100)));
    bench.pass(40s);
    bench.unplug();
    bench.pass(59s);
    bench.drive.powerUp(bench.now);
    EXPECT_EQ(bench.state(), StateLocked);
    EXPECT_EQ(elapsed(bench), 99U);
    bench.unplug();
    bench.pass(1s);
    bench.drive.powerUp(bench.now);
    EXPECT_EQ(bench.state(), StateFullLock);
}

TEST(AutoClear, IsNotStoppedByALogIn) {
    Bench bench = unlockedDrive();
    ASSERT_TRUE(bench.send(setErasePeriod(100)) && bench.send(logout()));
    bench.pass(60s);
    ASSERT_TRUE(bench.send(authenticate(1, First)));
    EXPECT_EQ(elapsed(bench), 60U);
    bench.pass(40s);
    EXPECT_EQ(bench.state(), StateFullLock);
}

TEST(AutoClear, StartsAnewWhenThePeriodIsSet) {
    Bench bench = unlockedDrive();
    ASSERT_TRUE(bench.send(setErasePeriod(100)));
    bench.pass(99s);
    ASSERT_TRUE(bench.send(setErasePeriod(100)));
    bench.pass(99s);
    EXPECT_EQ(bench.state(), StateUnlocking);
    bench.pass(1s);
    EXPECT_EQ(bench.state(), StateFullLock);
}

TEST(AutoClear, OfZeroIsOff) {
    Bench bench = unlockedDrive();
    ASSERT_TRUE(bench.send(setErasePeriod(100)) && bench.send(setErasePeriod(0)));
    bench.pass(24h * 365 * 50);
    EXPECT_EQ(bench.state(), StateUnlocking);
    EXPECT_EQ(elapsed(bench), 0U);
}

TEST(AutoClear, TakesItsPeriodFromValueAndIndex) {
    Bench bench = unlockedDrive();
    ASSERT_TRUE(bench.send(output(0xBC, 0x5180, 0x0001, {})));
    bench.pass(24h - 1s);
    EXPECT_EQ(bench.state(), StateUnlocking);
    bench.pass(1s);
    EXPECT_EQ(bench.state(), StateFullLock);
}

TEST(AutoClear, OfTheLongestPeriodDoesNotWrapAround) {
    Bench bench = unlockedDrive();
    const std::uint32_t longest = std::numeric_limits<std::uint32_t>::max();
    ASSERT_TRUE(bench.send(setErasePeriod(longest)));
    bench.pass(std::chrono::seconds{longest} - 1s);
    EXPECT_EQ(bench.state(), StateUnlocking);
    EXPECT_EQ(elapsed(bench), longest - 1);
    bench.pass(1s);
    EXPECT_EQ(bench.state(), StateFullLock);
}

TEST(AutoClear, SetInSetupCountsFromThereAndNotFromTheReconnect) {
    Bench bench;
    ASSERT_TRUE(bench.send(setSecureAreas()) && bench.send(setAutomaticKey()) &&
                bench.send(setFirst(First)) && bench.send(setErasePeriod(60)));
    bench.pass(30s);
    ASSERT_TRUE(bench.finishSetup());
    EXPECT_EQ(bench.state(), StateLocked);
    EXPECT_EQ(elapsed(bench), 30U);
    bench.pass(30s);
    EXPECT_EQ(bench.state(), StateFullLock);
}

TEST(AutoClear, RunsOnADriveWhoseClockWasNeverSet) {
    Bench bench = unlockedDrive();
    ASSERT_TRUE(bench.send(setErasePeriod(100)));
    bench.replug();
    EXPECT_EQ(timeFlags(bench), 0x40);
    EXPECT_EQ(bench.state(), StateLocked);
}

// --- Idle lock ---------------------------------------------------------------------------------

TEST(IdleLock, LocksInTheSecondInWhichThePeriodEnds) {
    Bench bench = unlockedDrive();
    ASSERT_TRUE(bench.send(setIdleLock(60)));
    bench.pass(59s);
    EXPECT_EQ(bench.state(), StateUnlocking);
    bench.pass(1s);
    EXPECT_EQ(bench.state(), StateLocked);
    EXPECT_FALSE(bench.drive.medium(0, bench.now));
}

TEST(IdleLock, IsNotKeptAwayByStatusAndTimeReads) {
    Bench bench = unlockedDrive();
    ASSERT_TRUE(bench.send(setIdleLock(60)));
    for (int second = 0; second < 60; ++second) {
        EXPECT_EQ(bench.state(), StateUnlocking);
        EXPECT_TRUE(bench.send(getTime()));
        bench.pass(1s);
    }
    EXPECT_EQ(bench.state(), StateLocked);
}

TEST(IdleLock, IsKeptAwayByAnyOtherCommandEvenARefusedOne) {
    Bench bench = unlockedDrive();
    ASSERT_TRUE(bench.send(setIdleLock(60)));
    for (const Sent& sent :
         {readHint(0, 1), getAreas(), authenticate(1, First), input(0xB2, 0, 0, 1), setClock()}) {
        bench.pass(59s);
        bench.send(sent);
        EXPECT_EQ(bench.state(), StateUnlocking);
    }
    bench.pass(60s);
    EXPECT_EQ(bench.state(), StateLocked);
}

TEST(IdleLock, IsKeptAwayByStorageAccess) {
    Bench bench = unlockedDrive();
    ASSERT_TRUE(bench.send(setIdleLock(60)));
    for (int round = 0; round < 10; ++round) {
        bench.pass(59s);
        bench.drive.storageUsed(bench.now);
        EXPECT_EQ(bench.state(), StateUnlocking);
    }
    bench.pass(60s);
    bench.drive.storageUsed(bench.now);
    EXPECT_EQ(bench.state(), StateLocked);
}

TEST(IdleLock, CountsFromTheLogIn) {
    Bench bench = unlockedDrive();
    ASSERT_TRUE(bench.send(setIdleLock(60)) && bench.send(logout()));
    bench.pass(1000s);
    ASSERT_TRUE(bench.send(authenticate(1, First)));
    bench.pass(59s);
    EXPECT_EQ(bench.state(), StateUnlocking);
}

TEST(IdleLock, OfZeroIsOff) {
    Bench bench = unlockedDrive();
    ASSERT_TRUE(bench.send(setIdleLock(60)) && bench.send(setIdleLock(0)));
    bench.pass(24h * 365);
    EXPECT_EQ(bench.state(), StateUnlocking);
}

TEST(IdleLock, DoesNotConcernAHalfFinishedLogIn) {
    Bench bench;
    ASSERT_TRUE(bench.send(setIdleLock(60)) && bench.setUpTwoPasswords(3) &&
                bench.send(authenticate(1, First)));
    bench.pass(1h);
    EXPECT_EQ(bench.state(), StatePasswordPending);
}

// --- The clock ---------------------------------------------------------------------------------

TEST(Clock, ShowsTheTimeThatWasSetAndGoesOn) {
    Bench bench;
    ASSERT_TRUE(bench.send(setClock())); // 2026-03-04 05:06:07
    bench.pass(54min);
    const Bytes time = bench.read(getTime());
    EXPECT_EQ(Bytes(time.begin(), time.begin() + 9), (Bytes{0, 0, 0x07, 0xEA, 3, 4, 6, 0, 7}));
}

TEST(Clock, GoesOnWithoutPowerAcrossTheEndOfAYear) {
    Bench bench;
    ASSERT_TRUE(bench.send(output(0xBB, 0, 0, {0x07, 0xEA, 12, 31, 23, 59, 59})));
    bench.unplug();
    bench.pass(1s);
    bench.drive.powerUp(bench.now);
    const Bytes time = bench.read(getTime());
    EXPECT_EQ(Bytes(time.begin(), time.begin() + 9), (Bytes{0, 0, 0x07, 0xEB, 1, 1, 0, 0, 0}));
}

TEST(Clock, MayBeSetToAnyTimeWithoutTouchingTheAutoClear) {
    Bench bench = unlockedDrive();
    ASSERT_TRUE(bench.send(setErasePeriod(100)));
    bench.pass(10s);
    ASSERT_TRUE(bench.send(output(0xBB, 0, 0, {0x27, 0x0F, 12, 31, 23, 59, 59})));
    EXPECT_EQ(elapsed(bench), 10U);
    EXPECT_EQ(bench.state(), StateUnlocking);
}

TEST(LostClock, WithoutAPeriodIsOnlyShown) {
    Bench bench = unlockedDrive();
    ASSERT_TRUE(bench.send(setClock()));
    bench.drive.loseClock();
    EXPECT_EQ(timeFlags(bench), 0x40);
    EXPECT_EQ(bench.state(), StateUnlocking);
}

TEST(LostClock, WithARunningPeriodLocksFullyButKeepsTheKey) {
    Bench bench = unlockedDrive();
    ASSERT_TRUE(bench.send(setClock()) && bench.send(setErasePeriod(100)));
    bench.pass(40s);
    ASSERT_TRUE(bench.send(getTime()));
    bench.drive.loseClock();
    EXPECT_EQ(bench.securityByte(), 0x85);
    EXPECT_EQ(timeFlags(bench), 0x40);
    EXPECT_TRUE(bench.drive.remembered().key);
    EXPECT_FALSE(bench.drive.medium(0, bench.now));
    bench.replug();
    EXPECT_EQ(bench.state(), StateFullLock);
}

TEST(LostClock, SetAgainLeadsBackToTheLockedState) {
    Bench bench = unlockedDrive();
    ASSERT_TRUE(bench.send(setClock()) && bench.send(setErasePeriod(100)));
    bench.pass(40s);
    EXPECT_EQ(bench.state(), StateUnlocking);
    bench.drive.loseClock();
    // The count stands still meanwhile: the drive could not count.
    bench.pass(1000h);
    EXPECT_EQ(elapsed(bench), 40U);
    ASSERT_TRUE(bench.send(setClock()));
    EXPECT_EQ(bench.state(), StateLocked);
    EXPECT_EQ(timeFlags(bench), 0x00);
    bench.pass(59s);
    EXPECT_EQ(bench.state(), StateLocked);
    bench.pass(1s);
    EXPECT_EQ(bench.state(), StateFullLock);
}

TEST(LostClock, AfterThePeriodRanOutChangesNothing) {
    Bench bench = unlockedDrive();
    ASSERT_TRUE(bench.send(setClock()) && bench.send(setErasePeriod(10)));
    bench.pass(10s);
    ASSERT_EQ(bench.state(), StateFullLock);
    bench.drive.loseClock();
    ASSERT_TRUE(bench.send(setClock()));
    EXPECT_EQ(bench.state(), StateFullLock);
    EXPECT_EQ(timeFlags(bench), 0x80);
}

// --- Time that misbehaves ----------------------------------------------------------------------

TEST(TimeRunningBackwards, CountsAsStandingStill) {
    Bench bench = unlockedDrive();
    ASSERT_TRUE(bench.send(setClock()) && bench.send(setErasePeriod(100)) &&
                bench.send(setIdleLock(60)));
    bench.pass(50s);
    EXPECT_EQ(elapsed(bench), 50U);
    const Bytes before = bench.read(getTime());
    bench.now -= 40s;
    EXPECT_EQ(bench.read(getTime()), before);
    EXPECT_EQ(bench.state(), StateUnlocking);
    bench.now += 39s;
    EXPECT_EQ(bench.read(getTime()), before);
    bench.now += 2s;
    EXPECT_EQ(elapsed(bench), 51U);
}

TEST(TimeRunningBackwards, WhileUnpluggedRefundsNothing) {
    Bench bench = unlockedDrive();
    ASSERT_TRUE(bench.send(setErasePeriod(100)));
    bench.pass(99s);
    bench.unplug();
    bench.now = Start - 24h * 365;
    bench.drive.powerUp(bench.now);
    EXPECT_EQ(elapsed(bench), 99U);
}

TEST(Time, BeyondAllReasonDoesNotOverflow) {
    Bench bench = unlockedDrive();
    ASSERT_TRUE(bench.send(setClock()) && bench.send(setErasePeriod(100)) &&
                bench.send(setIdleLock(100)));
    bench.now = Moment::min();
    EXPECT_EQ(bench.state(), StateUnlocking);
    bench.now = Moment::max();
    EXPECT_EQ(bench.state(), StateFullLock);
    EXPECT_EQ(bench.read(getTime()).size(), 28U);
    bench.unplug();
}

} // namespace
} // namespace zelto::test
