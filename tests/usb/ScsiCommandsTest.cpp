#include "tests/usb/ScsiTest.h"

namespace zelto::test {
namespace {

using namespace simulator;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

using ScsiCommands = ScsiTest;

TEST_F(ScsiCommands, InquiryTellsVendorProductAndRevision) {
    const Outcome outcome = run({0x12, 0, 0, 0, 36, 0});
    EXPECT_TRUE(outcome.isGood);
    EXPECT_THAT(outcome.data,
                ElementsAre(0x00, 0x80, 0x06, 0x02, 0x45, 0x00, 0x00, 0x00, //
                            'K', 'E', 'S', 'T', 'R', 'I', 'N', ' ',         //
                            'Z', 'E', 'L', 'T', 'O', ' ', 'D', 'I',         //
                            'S', 'K', '2', ' ', ' ', ' ', ' ', ' ', '0', '1', '0', '0'));
}

TEST_F(ScsiCommands, InquiryIsCutToTheAllocationLength) {
    EXPECT_EQ(run({0x12, 0, 0, 0, 5, 0}).data.size(), 5U);
    EXPECT_EQ(run({0x12, 0, 0, 0, 35, 0}).data.size(), 35U);
    EXPECT_EQ(run({0x12, 0, 0, 0, 75, 0}).data.size(), 74U);
    EXPECT_EQ(run({0x12, 0, 0, 0xFF, 0xFF, 0}).data.size(), 74U);
}

TEST_F(ScsiCommands, InquiryNamesTheStandards) {
    const Bytes data = run({0x12, 0, 0, 0, 255, 0}).data;
    ASSERT_EQ(data.size(), 74U);
    EXPECT_THAT(std::span(data).subspan(36, 30),
                ElementsAre(0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, //
                            0x04, 0x60, 0x04, 0xC0, 0x17, 0x30, 0x00, 0x00));
}

TEST_F(ScsiCommands, InquiryWithAllocationLengthZeroSucceedsWithoutData) {
    const Outcome outcome = run({0x12, 0, 0, 0, 0, 0});
    EXPECT_TRUE(outcome.isGood);
    EXPECT_TRUE(outcome.data.empty());
}

TEST_F(ScsiCommands, InquiryOfAPageWithoutTheVitalDataBitIsRefused) {
    expectRefused({0x12, 0, 0x80, 0, 36, 0}, InvalidField);
}

TEST_F(ScsiCommands, InquiryForCommandSupportDataIsRefused) {
    expectRefused({0x12, 2, 0, 0, 36, 0}, InvalidField);
}

TEST_F(ScsiCommands, VitalDataListsItsPages) {
    EXPECT_THAT(run({0x12, 1, 0x00, 0, 255, 0}).data,
                ElementsAre(0x00, 0x00, 0x00, 0x05, 0x00, 0x80, 0x83, 0xB0, 0xB1));
}

TEST_F(ScsiCommands, EveryListedVitalDataPageIsThere) {
    for (const std::uint8_t page : Bytes{0x00, 0x80, 0x83, 0xB0, 0xB1}) {
        const Outcome outcome = run({0x12, 1, page, 0, 255, 0});
        ASSERT_TRUE(outcome.isGood) << int{page};
        EXPECT_EQ(outcome.data[1], page);
        EXPECT_EQ(outcome.data.size(), 4U + outcome.data[3]);
    }
}

TEST_F(ScsiCommands, UnknownVitalDataPageIsRefused) {
    expectRefused({0x12, 1, 0xB2, 0, 255, 0}, InvalidField);
    expectRefused({0x12, 1, 0x01, 0, 255, 0}, InvalidField);
}

TEST_F(ScsiCommands, UnitSerialNumberIsTheDrives) {
    EXPECT_THAT(run({0x12, 1, 0x80, 0, 255, 0}).data,
                ElementsAre(0x00, 0x80, 0x00, 0x10, 'Z', 'D', '0', '1', '2', '3', '4', '5', '6',
                            '7', '8', '9', 'A', 'B', 'C', 'D'));
}

TEST_F(ScsiCommands, DeviceIdentificationNamesVendorUnitAndSerial) {
    const Bytes data = run({0x12, 1, 0x83, 0, 255, 0}).data;
    ASSERT_EQ(data.size(), 48U);
    EXPECT_THAT(std::span(data).first(8),
                ElementsAre(0x00, 0x83, 0x00, 0x2C, 0x02, 0x01, 0x00, 0x28));
    EXPECT_EQ(std::string(data.begin() + 8, data.end()),
              "KESTRIN ZELTO DISK2     ZD0123456789ABCD");
}

TEST_F(ScsiCommands, BlockCharacteristicsSayThatNothingRotates) {
    const Bytes data = run({0x12, 1, 0xB1, 0, 255, 0}).data;
    ASSERT_EQ(data.size(), 64U);
    EXPECT_THAT(std::span(data).first(6), ElementsAre(0x00, 0xB1, 0x00, 0x3C, 0x00, 0x01));
}

TEST_F(ScsiCommands, ReadCapacityTellsLastSectorAndSectorSize) {
    EXPECT_THAT(run(ReadCapacity10).data, ElementsAre(0, 0, 0, 63, 0, 0, 0x02, 0x00));
}

TEST_F(ScsiCommands, ReadCapacityOfAMediumTooLargeForItAnswersAllOnes) {
    storage.insertHuge(UnitNumber, 0x100000001);
    (void)run(TestUnitReady);
    EXPECT_THAT(run(ReadCapacity10).data, ElementsAre(0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0x02, 0x00));
}

TEST_F(ScsiCommands, ReadCapacityWithAnAddressNeedsThePartialBit) {
    expectRefused({0x25, 0, 0, 0, 0, 1, 0, 0, 0, 0}, InvalidField);
    expectGood({0x25, 0, 0, 0, 0, 1, 0, 0, 1, 0});
}

TEST_F(ScsiCommands, LongReadCapacityTellsASectorThatNeeds64Bits) {
    storage.insertHuge(UnitNumber, 0x123456789A);
    (void)run(TestUnitReady);
    const Bytes data = run({0x9E, 0x10, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 32, 0, 0}).data;
    ASSERT_EQ(data.size(), 32U);
    EXPECT_THAT(std::span(data).first(12),
                ElementsAre(0, 0, 0, 0x12, 0x34, 0x56, 0x78, 0x99, 0, 0, 0x02, 0x00));
    EXPECT_THAT(std::span(data).subspan(12), ::testing::Each(0));
}

TEST_F(ScsiCommands, LongReadCapacityIsCutToTheAllocationLength) {
    EXPECT_EQ(run({0x9E, 0x10, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 12, 0, 0}).data.size(), 12U);
}

TEST_F(ScsiCommands, OtherServiceActionsAreRefused) {
    expectRefused({0x9E, 0x11, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 32, 0, 0}, InvalidField);
}

TEST_F(ScsiCommands, ShortModeSenseOfAllPagesGivesCachingAndControl) {
    EXPECT_THAT(run({0x1A, 0, 0x3F, 0, 192, 0}).data,
                ElementsAreArray({0x23, 0x00, 0x10, 0x00,                   //
                                  0x08, 0x12, 0x04, 0,    0, 0, 0, 0, 0, 0, //
                                  0,    0,    0,    0,    0, 0, 0, 0, 0, 0, //
                                  0x0A, 0x0A, 0,    0,    0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST_F(ScsiCommands, LongModeSenseHasTheLongHeader) {
    const Bytes data = run({0x5A, 0, 0x08, 0, 0, 0, 0, 0, 192, 0}).data;
    ASSERT_EQ(data.size(), 28U);
    EXPECT_THAT(std::span(data).first(11),
                ElementsAre(0, 26, 0, 0x10, 0, 0, 0, 0, 0x08, 0x12, 0x04));
}

TEST_F(ScsiCommands, ModeSenseIsCutToTheAllocationLengthButTellsTheWhole) {
    EXPECT_THAT(run({0x1A, 0, 0x3F, 0, 4, 0}).data, ElementsAre(0x23, 0, 0x10, 0));
}

TEST_F(ScsiCommands, ModeSenseSaysThatTheCacheCanBePassedBy) {
    constexpr std::uint8_t DpoAndFua = 0x10;
    EXPECT_EQ(run({0x1A, 0, 0x08, 0, 192, 0}).data.at(2), DpoAndFua);
    EXPECT_EQ(run({0x5A, 0, 0x3F, 0, 0, 0, 0, 0, 192, 0}).data.at(3), DpoAndFua);
    // And so it can: DPO, FUA, both.
    for (const std::uint8_t bits : Bytes{0x10, 0x08, 0x18}) {
        expectGood({0x28, bits, 0, 0, 0, 0, 0, 0, 0, 0});
        EXPECT_EQ(run({0x28, bits, 0, 0, 0, 0, 0, 0, 1, 0}).data.size(), 512U);
        EXPECT_TRUE(run({0x2A, bits, 0, 0, 0, 0, 0, 0, 1, 0}, Bytes(512)).isGood);
    }
}

TEST_F(ScsiCommands, NothingInTheModePagesCanBeChanged) {
    const Bytes data = run({0x1A, 0, 0x48, 0, 192, 0}).data;
    ASSERT_EQ(data.size(), 24U);
    EXPECT_THAT(std::span(data).subspan(6), ::testing::Each(0));
}

TEST_F(ScsiCommands, SavedModePagesAreRefused) {
    expectRefused({0x1A, 0, 0xFF, 0, 192, 0}, {0x05, 0x39, 0x00});
}

TEST_F(ScsiCommands, UnknownModePageOrSubpageIsRefused) {
    expectRefused({0x1A, 0, 0x1C, 0, 192, 0}, InvalidField);
    expectRefused({0x1A, 0, 0x08, 1, 192, 0}, InvalidField);
    expectGood({0x1A, 0, 0x3F, 0xFF, 192, 0});
}

TEST_F(ScsiCommands, ReportLunsListsTheFourUnits) {
    EXPECT_THAT(run({0xA0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0}).data,
                ElementsAreArray({0, 0, 0, 32, 0, 0, 0, 0, //
                                  0, 0, 0, 0,  0, 0, 0, 0, //
                                  0, 1, 0, 0,  0, 0, 0, 0, //
                                  0, 2, 0, 0,  0, 0, 0, 0, //
                                  0, 3, 0, 0,  0, 0, 0, 0}));
}

TEST_F(ScsiCommands, ReportLunsKnowsNoWellKnownUnits) {
    EXPECT_THAT(run({0xA0, 0, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0}).data,
                ElementsAre(0, 0, 0, 0, 0, 0, 0, 0));
}

TEST_F(ScsiCommands, ReportLunsNeedsRoomForOneUnit) {
    expectRefused({0xA0, 0, 0, 0, 0, 0, 0, 0, 0, 15, 0, 0}, InvalidField);
    EXPECT_EQ(run({0xA0, 0, 0, 0, 0, 0, 0, 0, 0, 16, 0, 0}).data.size(), 16U);
}

TEST_F(ScsiCommands, ReportLunsOfAnUnknownSelectionIsRefused) {
    expectRefused({0xA0, 0, 3, 0, 0, 0, 0, 0, 1, 0, 0, 0}, InvalidField);
}

TEST_F(ScsiCommands, FormatCapacitiesDescribeTheMedium) {
    EXPECT_THAT(run({0x23, 0, 0, 0, 0, 0, 0, 0, 252, 0}).data,
                ElementsAre(0, 0, 0, 8, 0, 0, 0, 64, 0x02, 0, 0x02, 0x00));
}

TEST_F(ScsiCommands, FormatCapacitiesSayThatThereIsNoMedium) {
    storage.remove(UnitNumber);
    EXPECT_THAT(run({0x23, 0, 0, 0, 0, 0, 0, 0, 252, 0}).data,
                ElementsAre(0, 0, 0, 8, 0, 0, 0, 0, 0x03, 0, 0x02, 0x00));
}

TEST_F(ScsiCommands, RequestSenseWithoutACauseSaysSo) {
    EXPECT_THAT(run(RequestSense).data,
                ElementsAre(0x70, 0, 0x00, 0, 0, 0, 0, 10, 0, 0, 0, 0, 0x00, 0x00, 0, 0, 0, 0));
}

TEST_F(ScsiCommands, RequestSenseTellsWhyTheLastCommandFailedAndForgetsIt) {
    expectRefused({0xFF, 0, 0, 0, 0, 0}, InvalidCommand);
    EXPECT_THAT(run(RequestSense).data,
                ElementsAre(0x70, 0, 0x05, 0, 0, 0, 0, 10, 0, 0, 0, 0, 0x20, 0x00, 0, 0, 0, 0));
    EXPECT_EQ(run(RequestSense).data[2], 0x00);
}

TEST_F(ScsiCommands, RequestSenseNamesTheSectorOutOfRange) {
    expectRefused({0x28, 0, 0, 0, 0, 64, 0, 0, 1, 0}, OutOfRange);
    EXPECT_THAT(run(RequestSense).data,
                ElementsAre(0xF0, 0, 0x05, 0, 0, 0, 64, 10, 0, 0, 0, 0, 0x21, 0x00, 0, 0, 0, 0));
}

TEST_F(ScsiCommands, RequestSenseInDescriptorFormat) {
    expectRefused({0x28, 0, 0, 0, 0, 64, 0, 0, 1, 0}, OutOfRange);
    EXPECT_THAT(run({0x03, 1, 0, 0, 252, 0}).data,
                ElementsAre(0x72, 0x05, 0x21, 0x00, 0, 0, 0, 12, 0x00, 0x0A, 0x80, 0, 0, 0, 0, 0, 0,
                            0, 0, 64));
    expectRefused({0xFF, 0, 0, 0, 0, 0}, InvalidCommand);
    EXPECT_THAT(run({0x03, 1, 0, 0, 252, 0}).data, ElementsAre(0x72, 0x05, 0x20, 0x00, 0, 0, 0, 0));
}

TEST_F(ScsiCommands, FixedSenseLeavesOutASectorThatDoesNotFit) {
    const Bytes bytes = encodeFixedSense({OutOfRange, 0x100000000});
    EXPECT_EQ(bytes[0], 0x70);
    EXPECT_THAT(std::span(bytes).subspan(3, 4), ElementsAre(0, 0, 0, 0));
}

TEST_F(ScsiCommands, RequestSenseIsCutToTheAllocationLength) {
    expectRefused({0xFF, 0, 0, 0, 0, 0}, InvalidCommand);
    EXPECT_THAT(run({0x03, 0, 0, 0, 4, 0}).data, ElementsAre(0x70, 0, 0x05, 0));
}

TEST_F(ScsiCommands, ASuccessfulCommandClearsTheSense) {
    expectRefused({0xFF, 0, 0, 0, 0, 0}, InvalidCommand);
    expectGood(TestUnitReady);
    EXPECT_EQ(run(RequestSense).data[2], 0x00);
}

TEST_F(ScsiCommands, SelfTestPassesAndOtherDiagnosticsAreRefused) {
    expectGood({0x1D, 0x04, 0, 0, 0, 0});
    expectRefused({0x1D, 0x00, 0, 0, 0, 0}, InvalidField);
    expectRefused({0x1D, 0x24, 0, 0, 0, 0}, InvalidField);
    expectRefused({0x1D, 0x04, 0, 0, 1, 0}, InvalidField);
}

TEST_F(ScsiCommands, WhatIsNotOfferedIsUnknown) {
    // FORMAT UNIT, MODE SELECT, RESERVE, WRITE SAME, UNMAP, PERSISTENT RESERVE, ATA PASS-THROUGH
    for (const std::uint8_t operation : Bytes{0x04, 0x15, 0x16, 0x41, 0x42, 0x5F, 0x93, 0x85}) {
        Bytes command(16);
        command[0] = operation;
        expectRefused(command, InvalidCommand);
    }
}

TEST_F(ScsiCommands, EveryOperationCodeIsAnsweredWithSense) {
    for (unsigned operation = 0; operation < 256; ++operation) {
        for (const std::size_t size : {1U, 6U, 10U, 12U, 16U}) {
            Bytes command(size);
            command[0] = static_cast<std::uint8_t>(operation);
            (void)unit.begin(command);
            if (!unit.end()) {
                EXPECT_NE(unit.sense().sense, Sense{}) << operation;
            }
        }
    }
}

class TruncatedCommand : public ScsiTest, public ::testing::WithParamInterface<Bytes> {};

TEST_P(TruncatedCommand, IsRefusedAtEveryLength) {
    const Bytes whole = GetParam();
    for (std::size_t size = 1; size < whole.size(); ++size) {
        expectRefused(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)),
                      InvalidField);
    }
}

TEST_P(TruncatedCommand, WhenWholeIsRefusedWithTheUnsupportedControlBit) {
    Bytes command = GetParam();
    command.back() = 0x04;
    expectRefused(command, InvalidField);
}

TEST_P(TruncatedCommand, WhenWholeMayHaveMoreBytesBehindIt) {
    Bytes command = GetParam();
    command.resize(16);
    (void)unit.begin(command);
    EXPECT_NE(unit.sense().sense, InvalidField);
}

INSTANTIATE_TEST_SUITE_P(
    Commands, TruncatedCommand,
    ::testing::Values(
        TestUnitReady, RequestSense, ReadCapacity10, Eject, //
        Bytes{0x08, 0, 0, 0, 1, 0}, Bytes{0x0A, 0, 0, 0, 1, 0}, Bytes{0x12, 0, 0, 0, 36, 0},
        Bytes{0x1A, 0, 0x3F, 0, 192, 0}, Bytes{0x1D, 4, 0, 0, 0, 0}, Bytes{0x1E, 0, 0, 0, 0, 0},
        Bytes{0x23, 0, 0, 0, 0, 0, 0, 0, 12, 0}, Bytes{0x28, 0, 0, 0, 0, 0, 0, 0, 1, 0},
        Bytes{0x2A, 0, 0, 0, 0, 0, 0, 0, 1, 0}, Bytes{0x2F, 0, 0, 0, 0, 0, 0, 0, 1, 0},
        Bytes{0x35, 0, 0, 0, 0, 0, 0, 0, 1, 0}, Bytes{0x5A, 0, 0x3F, 0, 0, 0, 0, 0, 192, 0},
        Bytes{0xA0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0}, Bytes{0xA8, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0},
        Bytes{0xAA, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0}, Bytes{0xAF, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0},
        Bytes{0x88, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0},
        Bytes{0x8A, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0},
        Bytes{0x8F, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0},
        Bytes{0x91, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0},
        Bytes{0x9E, 0x10, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 32, 0, 0}));

class AbsentUnit : public ScsiTest {
protected:
    AbsentUnit() { storage.insert(0, 8); }
    ScsiUnit absent{ScsiUnit::Kind::Absent, {4, "ZD0123456789ABCD"}, 4, storage};

    Outcome runThere(const Bytes& command) {
        const DataPlan plan = absent.begin(command);
        Outcome outcome;
        outcome.data.resize(plan.length);
        outcome.data.resize(absent.read(outcome.data));
        outcome.isGood = absent.end();
        outcome.sense = absent.sense();
        return outcome;
    }
};

TEST_F(AbsentUnit, SaysInItsInquiryThatItCanNotBe) {
    const Outcome outcome = runThere({0x12, 0, 0, 0, 36, 0});
    EXPECT_TRUE(outcome.isGood);
    EXPECT_EQ(outcome.data[0], 0x7F);
    EXPECT_EQ(outcome.data.size(), 36U);
}

TEST_F(AbsentUnit, StillListsTheUnitsThatThereAre) {
    EXPECT_EQ(runThere({0xA0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0}).data.size(), 40U);
}

TEST_F(AbsentUnit, RefusesEverythingElse) {
    const Outcome outcome = runThere(TestUnitReady);
    EXPECT_FALSE(outcome.isGood);
    EXPECT_EQ(outcome.sense.sense, (Sense{0x05, 0x25, 0x00}));
    EXPECT_EQ(runThere(RequestSense).data[12], 0x25);
}

} // namespace
} // namespace zelto::test
