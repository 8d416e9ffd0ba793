#include "tests/model/DriveBench.h"

#include <gtest/gtest.h>

namespace zelto::test {
namespace {

using namespace simulator;
using enum SecurityState;

constexpr Sense WrongPassword{5, 0x74, 0x40};
constexpr Sense NonsenseInData{5, 0x26, 0x00};
constexpr Sense OutOfOrder{5, 0x2C, 0x00};

/// Number of units that show a medium.
std::size_t mediaShown(Bench& bench) {
    std::size_t shown = 0;
    for (std::size_t unit = 0; unit < DriveModel::UnitCount; ++unit) {
        shown += bench.drive.medium(unit, bench.now) ? 1U : 0U;
    }
    return shown;
}

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
    // 30 bytes follow; one entry; 131072 sectors; a free area of all sectors.
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

TEST(NewDrive, OfAnySizeShowsAllItsSectors) {
    for (const std::uint64_t sectors : {SmallDrive, 1024 * MegaByte, std::uint64_t{1} << 32}) {
        Bench bench(sectors);
        EXPECT_EQ(bench.drive.medium(0, bench.now)->sectorCount, sectors);
        EXPECT_TRUE(bench.send(setAreas({area(0x40, 0xC1, 0, sectors - ToolArea),
                                         area(0, 0x41, sectors - ToolArea, ToolArea)})));
        EXPECT_FALSE(bench.send(setAreas({area(0x40, 0xC1, 0, sectors - ToolArea),
                                          area(0, 0x41, sectors - ToolArea, ToolArea + 1)})));
    }
}

// --- First-time set-up -------------------------------------------------------------------------

TEST(Setup, WithOnePasswordTakesEffectAtTheReconnect) {
    Bench bench;
    ASSERT_TRUE(bench.send(setSecureAreas()));
    ASSERT_TRUE(bench.send(setAutomaticKey()));
    ASSERT_TRUE(bench.send(setFirst(First)));
    EXPECT_EQ(bench.securityByte(), 0x00);
    EXPECT_EQ(bench.drive.medium(0, bench.now)->sectorCount, SmallDrive);
    ASSERT_TRUE(bench.finishSetup());
    EXPECT_EQ(bench.securityByte(), 0x82);
    EXPECT_FALSE(bench.drive.medium(0, bench.now));
    EXPECT_EQ(bench.drive.medium(1, bench.now)->firstSector, SecureSectors);
    EXPECT_EQ(bench.drive.medium(2, bench.now),
              (Medium{.firstSector = SmallDrive - ToolArea, .sectorCount = ToolArea}));
    EXPECT_FALSE(bench.drive.medium(3, bench.now));
}

TEST(Setup, WithTwoPasswordsShowsItInTheSecurityByte) {
    Bench bench;
    ASSERT_TRUE(bench.setUpTwoPasswords(5));
    EXPECT_EQ(bench.securityByte(), 0xC2);
    EXPECT_EQ(bench.drive.remembered().trialsAllowed, 5);
}

TEST(Setup, WithAKeyByHandClearsTheAutomaticBitAndKeepsTheBytes) {
    Bench bench;
    ASSERT_TRUE(bench.send(setSecureAreas()) && bench.send(setKeyByHand({0x0A, 0x1B})) &&
                bench.send(setFirst(First)) && bench.finishSetup());
    EXPECT_EQ(bench.securityByte(), 0x02);
    MediumKey expected{0x0A, 0x1B};
    EXPECT_EQ(bench.drive.remembered().key, expected);
}

TEST(Setup, WithoutASecureAreaNeedsNoKeyAndStaysOpen) {
    Bench bench;
    ASSERT_TRUE(bench.send(setNormalAreas()) && bench.send(setErasePeriod(0)) &&
                bench.send(setIdleLock(0)) && bench.finishSetup());
    EXPECT_EQ(bench.securityByte(), 0x00);
    EXPECT_EQ(bench.drive.medium(0, bench.now),
              (Medium{.firstSector = 0, .sectorCount = NormalSectors}));
    EXPECT_EQ(bench.drive.medium(1, bench.now),
              (Medium{.firstSector = NormalSectors, .sectorCount = ToolArea}));
    EXPECT_EQ(mediaShown(bench), 2U);
}

TEST(Setup, AnswersTheAreasAsTheyWereSent) {
    Bench bench;
    ASSERT_TRUE(bench.setUpOnePassword());
    Bytes expected{0x00, 0x46, 0x00, 0x03, 0, 0, 0, 0, 0, 0x02, 0, 0};
    append(expected, setSecureAreas().data);
    EXPECT_EQ(bench.read(getAreas()), expected);
}

TEST(Setup, KeepsTheHintByteAndThePeriodsSentWithIt) {
    Bench bench;
    ASSERT_TRUE(bench.send(setErasePeriod(172800)) && bench.send(setIdleLock(300)) &&
                bench.send(writeHint(4095, {1})) && bench.setUpOnePassword());
    EXPECT_EQ(bench.read(readHint(4095, 1)), Bytes{1});
    const Bytes time = bench.read(getTime());
    EXPECT_EQ(Bytes(time.begin() + 22, time.end()), (Bytes{0x00, 0x02, 0xA3, 0x00, 0x01, 0x2C}));
}

TEST(Setup, BrokenOffAtAnyPointLeavesTheOldAreasInForce) {
    const std::vector<Sent> flow{setSecureAreas(),       setAutomaticKey(),  setSecond(Second, 3),
                                 setBoth(First, Second), setErasePeriod(60), setIdleLock(60),
                                 writeHint(4095, {1})};
    for (std::size_t sent = 0; sent <= flow.size(); ++sent) {
        Bench bench;
        for (std::size_t index = 0; index < sent; ++index) {
            ASSERT_TRUE(bench.send(flow[index]));
        }
        bench.replug();
        EXPECT_EQ(bench.securityByte(), 0x00) << sent;
        EXPECT_EQ(bench.drive.medium(0, bench.now)->sectorCount, SmallDrive) << sent;
        EXPECT_FALSE(bench.drive.remembered().key) << sent;
        // Nothing of it is left to be completed by the next one.
        EXPECT_TRUE(bench.send(reconnect())) << sent;
        bench.replug();
        EXPECT_EQ(bench.drive.medium(0, bench.now)->sectorCount, SmallDrive) << sent;
    }
}

TEST(Setup, IsInForceWhenThePlugIsPulledAfterTheReconnectWasAccepted) {
    Bench bench;
    ASSERT_TRUE(bench.send(setSecureAreas()) && bench.send(setAutomaticKey()) &&
                bench.send(setFirst(First)) && bench.send(reconnect()));
    bench.unplug();
    bench.pass(24h);
    bench.drive.powerUp(bench.now);
    EXPECT_EQ(bench.state(), StateLocked);
    EXPECT_FALSE(bench.drive.takeReconnect());
}

TEST(Setup, OfASecureAreaWithoutKeyOrPasswordIsNotSealed) {
    for (const bool hasKey : {false, true}) {
        for (const bool hasSecondOnly : {false, true}) {
            Bench bench;
            ASSERT_TRUE(bench.send(setSecureAreas()));
            EXPECT_TRUE(!hasKey || bench.send(setAutomaticKey()));
            EXPECT_TRUE(!hasSecondOnly || bench.send(setSecond(Second, 3)));
            EXPECT_FALSE(bench.send(reconnect()));
            EXPECT_EQ(bench.sense(), OutOfOrder);
            EXPECT_FALSE(bench.drive.takeReconnect());
        }
    }
}

TEST(Setup, MayBeSentAgainAfterAFailure) {
    Bench bench;
    ASSERT_TRUE(bench.send(setSecureAreas()) && bench.send(setAutomaticKey()) &&
                bench.send(setSecond(Second, 3)));
    ASSERT_TRUE(bench.setUpOnePassword());
    EXPECT_EQ(bench.securityByte(), 0x82);
    ASSERT_TRUE(bench.send(authenticate(1, First)));
    EXPECT_EQ(bench.state(), StateUnlocking);
}

TEST(Setup, ByTheSameDriveNeverDrawsTheSameKeyTwice) {
    Bench bench;
    ASSERT_TRUE(bench.setUpOnePassword());
    const auto key = bench.drive.remembered().key;
    ASSERT_TRUE(bench.send(clearEncryption()) && bench.send(resetAreas()));
    bench.replug();
    ASSERT_TRUE(bench.setUpOnePassword());
    EXPECT_NE(bench.drive.remembered().key, key);
}

TEST(Setup, RefusesAreasThatCanNotBe) {
    const std::uint64_t all = SmallDrive;
    const std::vector<Sent> nonsense{
        setAreas({area(0, 0x41, 1, 100)}),                          // not from sector 0
        setAreas({area(0, 0x41, 0, 100), area(0, 0x41, 101, 100)}), // a gap
        setAreas({area(0, 0x41, 0, 100), area(0, 0x41, 99, 100)}),  // an overlap
        setAreas({area(0, 0x41, 0, 0)}),                            // empty
        setAreas({area(0, 0x41, 0, all + 1)}),                      // too large
        setAreas({area(0, 0x41, 0, all), area(0, 0x41, all, 1)}),   // too large together
        setAreas({area(0, 0x41, 0, ~std::uint64_t{0})}),            // all ones
        setAreas({area(0, 0x41, 0, 100), area(0, 0x41, 100, ~std::uint64_t{0} - 50)}), // wraps
        setAreas({area(0x40, 0xC1, 0, 100), area(0x40, 0xC1, 100, 100)}),              // two secure
        setAreas({area(0x20, 0x41, 0, 100)}), // an unknown kind
        setAreas({area(0x40, 0x41, 0, 100)}), // kind and flags differ
        setAreas({area(0x00, 0xC1, 0, 100)}),
        setAreas({area(0x00, 0x40, 0, 100)}), // not in use
    };
    for (std::size_t index = 0; index < nonsense.size(); ++index) {
        Bench bench;
        EXPECT_FALSE(bench.send(nonsense[index])) << index;
        EXPECT_EQ(bench.sense(), NonsenseInData) << index;
        EXPECT_TRUE(bench.finishSetup()) << index;
        EXPECT_EQ(bench.drive.medium(0, bench.now)->sectorCount, SmallDrive) << index;
    }
}

TEST(Setup, RefusesRecordsThatAreNone) {
    const auto damaged = [](Sent sent, std::size_t at, std::uint8_t value) {
        sent.data.at(at) = value;
        return sent;
    };
    const std::vector<Sent> nonsense{
        damaged(setAutomaticKey(), 0, 'X'),
        damaged(setAutomaticKey(), 4, 0x01),
        damaged(setAutomaticKey(), 5, 0x81),
        damaged(setAutomaticKey(), 6, 1),
        damaged(setAutomaticKey(), 71, 1),
        damaged(setFirst(First), 0, 0x03),
        damaged(setFirst(First), 0, 0x00),
        damaged(setFirst(First), 1, 1),
        damaged(setFirst(First), 2, 0),
        damaged(setFirst(First), 3, 1),
        damaged(setFirst(First), 7, 1),
        damaged(setFirst(First), 0, 0x0F),
        damaged(changeBoth(1, 2, 3), 0, 0x0B),
        damaged(setClock(), 0, 0x00),
        damaged(setClock(), 2, 13),
        damaged(setClock(), 2, 0),
        damaged(setClock(), 3, 32),
        damaged(setClock(), 4, 24),
        damaged(setClock(), 5, 60),
        damaged(setClock(), 6, 60),
        output(0xBB, 0, 0, {0x07, 0xEA, 2, 29, 0, 0, 0}), // no leap year
    };
    for (std::size_t index = 0; index < nonsense.size(); ++index) {
        Bench bench;
        EXPECT_FALSE(bench.send(nonsense[index])) << index;
        EXPECT_EQ(bench.sense(), NonsenseInData) << index;
    }
}

// --- Log-in and log-out ------------------------------------------------------------------------

TEST(LogIn, WithOnePasswordUnlocksInOneStep) {
    Bench bench;
    ASSERT_TRUE(bench.setUpOnePassword());
    EXPECT_EQ(mediaShown(bench), 2U);
    ASSERT_TRUE(bench.send(authenticate(1, First)));
    EXPECT_EQ(bench.securityByte(), 0x84);
    const auto medium = bench.drive.medium(0, bench.now);
    ASSERT_TRUE(medium);
    EXPECT_TRUE(medium->secure);
    EXPECT_EQ(medium->sectorCount, SecureSectors);
    EXPECT_TRUE(medium->key);
}

TEST(LogIn, WithTwoPasswordsGoesThroughBothSteps) {
    Bench bench;
    ASSERT_TRUE(bench.setUpTwoPasswords(5));
    ASSERT_TRUE(bench.send(authenticate(1, First)));
    EXPECT_EQ(bench.securityByte(), 0xC3);
    EXPECT_FALSE(bench.drive.medium(0, bench.now));
    ASSERT_TRUE(bench.send(authenticate(0, Second)));
    EXPECT_EQ(bench.securityByte(), 0xC4);
    EXPECT_TRUE(bench.drive.medium(0, bench.now)->secure);
}

TEST(LogIn, WithAWrongPasswordLeavesTheDriveLocked) {
    Bench bench;
    ASSERT_TRUE(bench.setUpOnePassword());
    for (int trial = 0; trial < 300; ++trial) {
        EXPECT_FALSE(bench.send(authenticate(1, Wrong)));
        EXPECT_EQ(bench.sense(), WrongPassword);
        EXPECT_EQ(bench.state(), StateLocked);
    }
    EXPECT_TRUE(bench.send(authenticate(1, First)));
}

TEST(LogIn, InterruptedBetweenTheStepsStartsAnew) {
    Bench bench;
    ASSERT_TRUE(bench.setUpTwoPasswords(5) && bench.send(authenticate(1, First)));
    bench.replug();
    EXPECT_EQ(bench.state(), StateLocked);
}

TEST(LogIn, LastsUntilThePlugIsPulled) {
    Bench bench;
    ASSERT_TRUE(bench.setUpOnePassword() && bench.send(authenticate(1, First)));
    bench.pass(1000h);
    EXPECT_EQ(bench.state(), StateUnlocking);
    bench.replug();
    EXPECT_EQ(bench.state(), StateLocked);
    EXPECT_FALSE(bench.drive.medium(0, bench.now));
}

TEST(LogIn, WithAPayloadOfAnotherShapeIsRefused) {
    Bench bench;
    ASSERT_TRUE(bench.setUpOnePassword());
    EXPECT_FALSE(bench.send(authenticate(0, First)));
    EXPECT_EQ(bench.sense(), NonsenseInData);
    EXPECT_EQ(bench.state(), StateLocked);
}

TEST(LogOut, LocksAndHidesTheSecureArea) {
    Bench bench;
    ASSERT_TRUE(bench.setUpOnePassword() && bench.send(authenticate(1, First)));
    ASSERT_TRUE(bench.send(logout()));
    EXPECT_EQ(bench.state(), StateLocked);
    EXPECT_FALSE(bench.drive.medium(0, bench.now));
    EXPECT_EQ(mediaShown(bench), 2U);
}

TEST(SecondPassword, WrongForTheSetNumberOfTimesLosesTheKey) {
    for (const std::uint8_t trials : {std::uint8_t{1}, std::uint8_t{3}, std::uint8_t{99}}) {
        Bench bench;
        ASSERT_TRUE(bench.setUpTwoPasswords(trials) && bench.send(authenticate(1, First)));
        for (int trial = 1; trial <= trials; ++trial) {
            EXPECT_EQ(bench.state(), StatePasswordPending);
            EXPECT_FALSE(bench.send(authenticate(0, Wrong)));
            EXPECT_EQ(bench.sense(), WrongPassword);
        }
        EXPECT_EQ(bench.state(), StateFullLock);
        EXPECT_FALSE(bench.drive.remembered().key);
        bench.replug();
        EXPECT_EQ(bench.state(), StateFullLock);
    }
}

TEST(SecondPassword, TriesAreNotRefundedByPullingThePlug) {
    Bench bench;
    ASSERT_TRUE(bench.setUpTwoPasswords(3));
    for (int trial = 0; trial < 3; ++trial) {
        ASSERT_TRUE(bench.send(authenticate(1, First)));
        EXPECT_FALSE(bench.send(authenticate(0, Wrong)));
        bench.replug();
    }
    EXPECT_EQ(bench.state(), StateFullLock);
}

TEST(SecondPassword, TriesAreNotRefundedByTheFirstPasswordOrALogOut) {
    Bench bench;
    ASSERT_TRUE(bench.setUpTwoPasswords(2) && bench.send(authenticate(1, First)));
    EXPECT_FALSE(bench.send(authenticate(0, Wrong)));
    ASSERT_TRUE(bench.send(logout()) && bench.send(authenticate(1, First)));
    EXPECT_FALSE(bench.send(authenticate(0, Wrong)));
    EXPECT_EQ(bench.state(), StateFullLock);
}

TEST(SecondPassword, CorrectGivesAllTriesBack) {
    Bench bench;
    ASSERT_TRUE(bench.setUpTwoPasswords(2));
    for (int round = 0; round < 5; ++round) {
        ASSERT_TRUE(bench.send(authenticate(1, First)));
        EXPECT_FALSE(bench.send(authenticate(0, Wrong)));
        ASSERT_TRUE(bench.send(authenticate(0, Second)));
        ASSERT_TRUE(bench.send(logout()));
    }
}

TEST(SecondPassword, CountedButNeverComparedStillLosesTheKeyAtTheLimit) {
    Bench bench;
    ASSERT_TRUE(bench.setUpTwoPasswords(3));
    Remembered cutShort = bench.drive.remembered();
    cutShort.wrongSecondPasswords = 3;
    DriveModel drive(bench.drive.manufactured(), cutShort);
    drive.powerUp(bench.now);
    EXPECT_EQ(drive.state(bench.now), StateFullLock);
    EXPECT_FALSE(drive.remembered().key);
}

// --- Changes of a drive that is set up ---------------------------------------------------------

TEST(PasswordChange, OfTheOnlyPasswordAsksForTheCurrentOne) {
    Bench bench;
    ASSERT_TRUE(bench.setUpOnePassword() && bench.send(authenticate(1, First)));
    EXPECT_FALSE(bench.send(changeFirst(0x33, Wrong)));
    EXPECT_EQ(bench.sense(), WrongPassword);
    ASSERT_TRUE(bench.send(changeFirst(0x33, First)));
    ASSERT_TRUE(bench.send(logout()));
    EXPECT_FALSE(bench.send(authenticate(1, First)));
    EXPECT_TRUE(bench.send(authenticate(1, 0x33)));
}

TEST(PasswordChange, OfBothPasswordsTakesTwoRecords) {
    Bench bench;
    ASSERT_TRUE(bench.setUpTwoPasswords(2) && bench.send(authenticate(1, First)) &&
                bench.send(authenticate(0, Second)));
    ASSERT_TRUE(bench.send(changeSecond(0x44, Second, 7)));
    ASSERT_TRUE(bench.send(changeBoth(0x33, First, 0x44)));
    EXPECT_EQ(bench.drive.remembered().trialsAllowed, 7);
    ASSERT_TRUE(bench.send(logout()));
    ASSERT_TRUE(bench.send(authenticate(1, 0x33)));
    EXPECT_FALSE(bench.send(authenticate(0, Second)));
    EXPECT_TRUE(bench.send(authenticate(0, 0x44)));
}

TEST(PasswordChange, WithAWrongFirstPasswordKeepsTheSecondThatWasChangedBefore) {
    Bench bench;
    ASSERT_TRUE(bench.setUpTwoPasswords(2) && bench.send(authenticate(1, First)) &&
                bench.send(authenticate(0, Second)));
    ASSERT_TRUE(bench.send(changeSecond(0x44, Second, 7)));
    EXPECT_FALSE(bench.send(changeBoth(0x33, Wrong, 0x44)));
    EXPECT_EQ(bench.sense(), WrongPassword);
    bench.replug();
    ASSERT_TRUE(bench.send(authenticate(1, First)));
    EXPECT_TRUE(bench.send(authenticate(0, 0x44)));
}

TEST(PasswordChange, WithTheWrongPasswordCostsNoTries) {
    Bench bench;
    ASSERT_TRUE(bench.setUpTwoPasswords(2) && bench.send(authenticate(1, First)) &&
                bench.send(authenticate(0, Second)));
    for (int trial = 0; trial < 5; ++trial) {
        EXPECT_FALSE(bench.send(changeSecond(0x44, Wrong, 7)));
    }
    EXPECT_EQ(bench.state(), StateUnlocking);
    EXPECT_EQ(bench.drive.remembered().wrongSecondPasswords, 0);
}

TEST(PasswordChange, CanNotGiveADriveASecondPassword) {
    Bench bench;
    ASSERT_TRUE(bench.setUpOnePassword() && bench.send(authenticate(1, First)));
    EXPECT_FALSE(bench.send(changeSecond(0x44, 0, 7)));
    EXPECT_EQ(bench.sense(), WrongPassword);
    EXPECT_FALSE(bench.send(changeBoth(0x33, First, 0x44)));
    EXPECT_EQ(bench.sense(), OutOfOrder);
    bench.replug();
    EXPECT_EQ(bench.securityByte(), 0x82);
    EXPECT_TRUE(bench.send(authenticate(1, First)));
}

TEST(PasswordChange, InterruptedAtAnyPointLeavesADriveThatOpens) {
    for (std::size_t sent = 0; sent <= 2; ++sent) {
        Bench bench;
        ASSERT_TRUE(bench.setUpTwoPasswords(2) && bench.send(authenticate(1, First)) &&
                    bench.send(authenticate(0, Second)));
        EXPECT_TRUE(sent < 1 || bench.send(changeSecond(0x44, Second, 7)));
        EXPECT_TRUE(sent < 2 || bench.send(changeBoth(0x33, First, 0x44)));
        bench.replug();
        EXPECT_TRUE(bench.send(authenticate(1, sent < 2 ? First : 0x33))) << sent;
        EXPECT_TRUE(bench.send(authenticate(0, sent < 1 ? Second : 0x44))) << sent;
    }
}

// --- Clearing ----------------------------------------------------------------------------------

TEST(ClearEncryption, LosesKeyAndPasswordsAndLetsTheResetThrough) {
    Bench bench;
    ASSERT_TRUE(bench.setUpTwoPasswords(2));
    EXPECT_FALSE(bench.send(resetAreas()));
    EXPECT_EQ(bench.sense(), (Sense{5, 0x74, 0x00}));
    ASSERT_TRUE(bench.send(clearEncryption()));
    EXPECT_EQ(bench.securityByte(), 0x05);
    EXPECT_FALSE(bench.drive.remembered().firstPassword);
    EXPECT_FALSE(bench.drive.remembered().secondPassword);
    EXPECT_TRUE(bench.send(resetAreas()));
}

TEST(ClearEncryption, NeedsItsFourLetters) {
    Bench bench;
    ASSERT_TRUE(bench.setUpOnePassword());
    EXPECT_FALSE(bench.send(output(0xB0, 2, 0, {'T', 'K', 'C', 'X'})));
    EXPECT_EQ(bench.sense(), NonsenseInData);
    EXPECT_TRUE(bench.drive.remembered().key);
}

TEST(Reset, BringsBackTheOneEntryAtOnceAndTheBlankMediumAtPowerUp) {
    Bench bench;
    ASSERT_TRUE(bench.setUpOnePassword() && bench.send(clearEncryption()));
    ASSERT_TRUE(bench.send(resetAreas()));
    EXPECT_EQ(bench.read(getAreas()).size(), 32U);
    EXPECT_EQ(bench.state(), StateNoPassword);
    EXPECT_EQ(mediaShown(bench), 0U);
    EXPECT_TRUE(bench.drive.remembered().resetAtPowerUp);
    bench.replug();
    EXPECT_EQ(bench.drive.medium(0, bench.now),
              (Medium{.firstSector = 0, .sectorCount = SmallDrive}));
    EXPECT_FALSE(bench.drive.remembered().resetAtPowerUp);
}

TEST(Reset, OfADriveThatClearedItselfLeavesNothingToClear) {
    Bench bench;
    ASSERT_TRUE(bench.setUpOnePassword() && bench.send(authenticate(1, First)) &&
                bench.send(setErasePeriod(60)) && bench.send(setIdleLock(60)));
    bench.pass(60s);
    ASSERT_EQ(bench.state(), StateFullLock);
    ASSERT_TRUE(bench.send(resetAreas()));
    Bytes expected(28);
    expected[0] = 0x40;
    EXPECT_EQ(bench.read(getTime()), expected);
    EXPECT_FALSE(bench.drive.remembered().firstPassword);
}

TEST(Reset, BreaksOffASetupThatWasBeingSent) {
    Bench bench;
    ASSERT_TRUE(bench.send(setSecureAreas()) && bench.send(setAutomaticKey()) &&
                bench.send(setFirst(First)) && bench.send(resetAreas()));
    ASSERT_TRUE(bench.finishSetup());
    EXPECT_EQ(bench.state(), StateNoPassword);
}

TEST(Reset, FollowedByASetupWithoutUnpluggingIsInForceAtTheReconnect) {
    Bench bench;
    ASSERT_TRUE(bench.setUpOnePassword() && bench.send(clearEncryption()) &&
                bench.send(resetAreas()) && bench.setUpTwoPasswords(3));
    EXPECT_EQ(bench.securityByte(), 0xC2);
    EXPECT_EQ(mediaShown(bench), 2U);
}

// --- Hint data ---------------------------------------------------------------------------------

TEST(HintData, KeepsEveryByteWhereItWasWritten) {
    Bench bench;
    ASSERT_TRUE(bench.send(writeHint(0, {1, 2, 3})) && bench.send(writeHint(4095, {0x03})));
    EXPECT_EQ(bench.read(readHint(0, 4)), (Bytes{1, 2, 3, 0}));
    EXPECT_EQ(bench.read(readHint(4094, 2)), (Bytes{0, 3}));
    bench.replug();
    EXPECT_EQ(bench.read(readHint(4095, 1)), Bytes{3});
}

TEST(HintData, IsNotWrittenBeyondItsEnd) {
    Bench bench;
    EXPECT_TRUE(bench.send(writeHint(0, Bytes(4096, 0x55))));
    for (const auto& [address, size] : {std::pair{4095, 2}, {1, 4096}, {4096, 1}, {65535, 1}}) {
        EXPECT_FALSE(bench.send(writeHint(static_cast<std::uint16_t>(address),
                                          Bytes(static_cast<std::size_t>(size), 0xAA))));
        EXPECT_EQ(bench.sense(), (Sense{5, 0x24, 0x00}));
    }
    EXPECT_EQ(bench.read(readHint(0, 4096)), Bytes(4096, 0x55));
}

} // namespace
} // namespace zelto::test
