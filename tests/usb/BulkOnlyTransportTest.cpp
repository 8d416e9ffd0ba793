#include "tests/usb/UsbTest.h"

namespace zelto::test {
namespace {

using namespace simulator;
using ::testing::ElementsAre;

constexpr std::uint8_t ToHost = 0x80;
constexpr std::uint8_t ToDevice = 0x00;

constexpr TransferResult complete(std::size_t length) {
    return {TransferStatus::Complete, length};
}
constexpr TransferResult stalledAfter(std::size_t length) {
    return {TransferStatus::Stalled, length};
}

class BulkOnly : public UsbTest {
protected:
    void SetUp() override {
        UsbTest::SetUp();
        (void)out(commandWrapper(0, 0, 0, 0, Ready));
        (void)in(13);
        data = pattern(2 * Sector, 6);
    }
    void send(const Bytes& wrapper) { EXPECT_EQ(out(wrapper), complete(31)); }

    Bytes data;
};

TEST_F(BulkOnly, StatusIsTheGivenBytes) {
    send(commandWrapper(0x44332211, 0, 0, 0, Ready));
    EXPECT_EQ(in(13), complete(13));
    EXPECT_THAT(received,
                ElementsAre(0x55, 0x53, 0x42, 0x53, 0x11, 0x22, 0x33, 0x44, 0, 0, 0, 0, 0));
}

TEST_F(BulkOnly, TransfersWaitForTheirTurn) {
    EXPECT_EQ(in(512), Held); // no command yet
    send(commandWrapper(1, 1024, ToHost, 0, ReadTwo));
    EXPECT_EQ(out(commandWrapper(2, 0, 0, 0, Ready)), Held);
    EXPECT_EQ(in(1024), complete(1024));
    EXPECT_EQ(out(commandWrapper(2, 0, 0, 0, Ready)), Held);
    expectStatus(1, 0, 0);
    EXPECT_EQ(in(13), Held);
    send(commandWrapper(3, 1024, ToDevice, 0, WriteTwo));
    EXPECT_EQ(in(13), Held);
}

TEST_F(BulkOnly, ReadMayBeTakenInPieces) {
    std::ranges::copy(data, storage.contents(0).begin() + 4 * Sector);
    send(commandWrapper(1, 1024, ToHost, 0, ReadTwo));
    EXPECT_EQ(in(512), complete(512));
    EXPECT_EQ(received, Bytes(data.begin(), data.begin() + 512));
    EXPECT_EQ(in(512), complete(512));
    EXPECT_EQ(received, Bytes(data.begin() + 512, data.end()));
    expectStatus(1, 0, 0);
}

TEST_F(BulkOnly, WriteMayBeSentInPieces) {
    send(commandWrapper(1, 1024, ToDevice, 0, WriteTwo));
    EXPECT_EQ(out(Bytes(data.begin(), data.begin() + 100)), complete(100));
    EXPECT_EQ(out({}), complete(0));
    EXPECT_EQ(out(Bytes(data.begin() + 100, data.end())), complete(924));
    expectStatus(1, 0, 0);
    EXPECT_TRUE(std::equal(data.begin(), data.end(), storage.contents(0).begin() + 4 * Sector));
}

// The thirteen cases: what the host expects (Hn, Hi, Ho) against what the unit does (Dn, Di, Do).

TEST_F(BulkOnly, Case1NeitherMovesData) {
    send(commandWrapper(1, 0, ToDevice, 0, Ready));
    expectStatus(1, 0, 0);
    send(commandWrapper(2, 0, ToHost, 0, Ready));
    expectStatus(2, 0, 0);
}

TEST_F(BulkOnly, Case2HostExpectsNothingButTheUnitSends) {
    send(commandWrapper(2, 0, ToHost, 0, ReadTwo));
    expectStatus(2, 0, 2);
}

TEST_F(BulkOnly, Case3HostExpectsNothingButTheUnitReceives) {
    send(commandWrapper(3, 0, ToDevice, 0, WriteTwo));
    expectStatus(3, 0, 2);
}

TEST_F(BulkOnly, Case4HostReadsButTheUnitSendsNothing) {
    send(commandWrapper(4, 64, ToHost, 0, Ready));
    EXPECT_EQ(in(64), Stall);
    EXPECT_EQ(in(64), Stall);
    EXPECT_EQ(clearHalt(0x81), Done);
    expectStatus(4, 64, 0);
}

TEST_F(BulkOnly, Case4WithACommandThatFails) {
    send(commandWrapper(4, 512, ToHost, 0, {0x28, 0, 0, 0, 0, 64, 0, 0, 1, 0}));
    EXPECT_EQ(in(512), Stall);
    EXPECT_EQ(clearHalt(0x81), Done);
    expectStatus(4, 512, 1);
}

TEST_F(BulkOnly, Case5HostReadsMoreThanTheUnitSendsInAShortPacket) {
    send(commandWrapper(5, 192, ToHost, 0, {0x12, 0, 0, 0, 192, 0}));
    EXPECT_EQ(in(192), complete(74));
    EXPECT_EQ(in(13), Stall);
    EXPECT_EQ(clearHalt(0x81), Done);
    expectStatus(5, 192 - 74, 0);
}

TEST_F(BulkOnly, Case5HostReadsMoreThanTheUnitSendsInWholePackets) {
    send(commandWrapper(5, 2048, ToHost, 0, ReadTwo));
    EXPECT_EQ(in(2048), stalledAfter(1024));
    EXPECT_EQ(clearHalt(0x81), Done);
    expectStatus(5, 1024, 0);
}

TEST_F(BulkOnly, Case5InTransfersThatEndWithTheData) {
    send(commandWrapper(5, 2048, ToHost, 0, ReadTwo));
    EXPECT_EQ(in(1024), complete(1024));
    EXPECT_EQ(in(1024), Stall);
    EXPECT_EQ(clearHalt(0x81), Done);
    expectStatus(5, 1024, 0);
}

TEST_F(BulkOnly, Case6HostReadsWhatTheUnitSends) {
    std::ranges::copy(data, storage.contents(0).begin() + 4 * Sector);
    send(commandWrapper(6, 1024, ToHost, 0, ReadTwo));
    EXPECT_EQ(in(1024), complete(1024));
    EXPECT_EQ(received, data);
    expectStatus(6, 0, 0);
}

TEST_F(BulkOnly, Case7HostReadsLessThanTheUnitSends) {
    send(commandWrapper(7, 512, ToHost, 0, ReadTwo));
    EXPECT_EQ(in(512), Stall);
    EXPECT_EQ(clearHalt(0x81), Done);
    expectStatus(7, 512, 2);
}

TEST_F(BulkOnly, Case8HostReadsButTheUnitReceives) {
    send(commandWrapper(8, 1024, ToHost, 0, WriteTwo));
    EXPECT_EQ(in(1024), Stall);
    EXPECT_EQ(clearHalt(0x81), Done);
    expectStatus(8, 1024, 2);
    EXPECT_EQ(storage.contents(0), Bytes(Sectors * Sector));
}

TEST_F(BulkOnly, Case9HostWritesButTheUnitReceivesNothing) {
    send(commandWrapper(9, 64, ToDevice, 0, Ready));
    EXPECT_EQ(out(Bytes(64)), Stall);
    EXPECT_EQ(clearHalt(0x02), Done);
    expectStatus(9, 64, 0);
}

TEST_F(BulkOnly, Case9WithACommandThatFails) {
    send(commandWrapper(9, 512, ToDevice, 0, {0x2A, 0, 0, 0, 0, 64, 0, 0, 1, 0}));
    EXPECT_EQ(out(Bytes(512)), Stall);
    EXPECT_EQ(clearHalt(0x02), Done);
    expectStatus(9, 512, 1);
}

TEST_F(BulkOnly, Case10HostWritesButTheUnitSends) {
    send(commandWrapper(10, 1024, ToDevice, 0, ReadTwo));
    EXPECT_EQ(out(Bytes(1024)), Stall);
    EXPECT_EQ(clearHalt(0x02), Done);
    expectStatus(10, 1024, 2);
}

TEST_F(BulkOnly, Case11HostWritesMoreThanTheUnitReceives) {
    send(commandWrapper(11, 2048, ToDevice, 0, WriteTwo));
    EXPECT_EQ(out(data), complete(1024));
    EXPECT_EQ(out(Bytes(1024)), Stall);
    EXPECT_EQ(clearHalt(0x02), Done);
    expectStatus(11, 1024, 0);
}

TEST_F(BulkOnly, Case11InOneTransfer) {
    data.resize(2048);
    send(commandWrapper(11, 2048, ToDevice, 0, WriteTwo));
    EXPECT_EQ(out(data), stalledAfter(1024));
    EXPECT_EQ(clearHalt(0x02), Done);
    expectStatus(11, 1024, 0);
}

TEST_F(BulkOnly, Case12HostWritesWhatTheUnitReceives) {
    send(commandWrapper(12, 1024, ToDevice, 0, WriteTwo));
    EXPECT_EQ(out(data), complete(1024));
    expectStatus(12, 0, 0);
    EXPECT_TRUE(std::equal(data.begin(), data.end(), storage.contents(0).begin() + 4 * Sector));
}

TEST_F(BulkOnly, Case13HostWritesLessThanTheUnitReceives) {
    send(commandWrapper(13, 512, ToDevice, 0, WriteTwo));
    EXPECT_EQ(out(Bytes(512, 0xAA)), Stall);
    EXPECT_EQ(clearHalt(0x02), Done);
    expectStatus(13, 512, 2);
    EXPECT_EQ(storage.contents(0), Bytes(Sectors * Sector));
}

TEST_F(BulkOnly, HostThatSendsMoreThanItAnnouncedIsStopped) {
    data.resize(1536);
    send(commandWrapper(1, 1024, ToDevice, 0, WriteTwo));
    EXPECT_EQ(out(data), stalledAfter(1024));
    expectStatus(1, 0, 0);
}

TEST_F(BulkOnly, HostThatLeavesNoRoomForAPacketLosesIt) {
    send(commandWrapper(1, 1024, ToHost, 0, ReadTwo));
    EXPECT_EQ(in(700), (TransferResult{TransferStatus::Overflow, 0}));
    EXPECT_EQ(in(0), (TransferResult{TransferStatus::Overflow, 0}));
    EXPECT_EQ(in(1024), complete(1024));
    EXPECT_EQ(in(12), (TransferResult{TransferStatus::Overflow, 0}));
    expectStatus(1, 0, 0);
}

TEST_F(BulkOnly, ReadThatFailsInTheMiddleTellsWhatIsMissing) {
    send(commandWrapper(1, 1024, ToHost, 0, ReadTwo));
    EXPECT_EQ(in(512), complete(512));
    storage.failsReads = true;
    EXPECT_EQ(in(512), Stall);
    EXPECT_EQ(clearHalt(0x81), Done);
    expectStatus(1, 512, 1);
}

TEST_F(BulkOnly, WriteThatFailsInTheMiddleRefusesTheRest) {
    send(commandWrapper(1, 1024, ToDevice, 0, WriteTwo));
    EXPECT_EQ(out(Bytes(512)), complete(512));
    storage.failsWrites = true;
    EXPECT_EQ(out(Bytes(256)), complete(256));
    EXPECT_EQ(out(Bytes(256)), complete(256));
    expectStatus(1, 512, 1);
}

TEST_F(BulkOnly, WriteThatFailsWithDataToComeHaltsTheEndpoint) {
    storage.failsWrites = true;
    send(commandWrapper(1, 1024, ToDevice, 0, WriteTwo));
    EXPECT_EQ(out(Bytes(512)), complete(512));
    EXPECT_EQ(out(Bytes(512)), Stall);
    EXPECT_EQ(clearHalt(0x02), Done);
    expectStatus(1, 1024, 1);
}

TEST_F(BulkOnly, UnitWithoutAMediumFailsItsCommands) {
    send(commandWrapper(1, 0, 0, 2, Ready));
    expectStatus(1, 0, 1); // power-up
    send(commandWrapper(2, 0, 0, 2, Ready));
    expectStatus(2, 0, 1);
    send(commandWrapper(3, 18, ToHost, 2, {0x03, 0, 0, 0, 18, 0}));
    EXPECT_EQ(in(18), complete(18));
    EXPECT_EQ(received[2], 0x02);
    EXPECT_EQ(received[12], 0x3A);
    expectStatus(3, 0, 0);
}

TEST_F(BulkOnly, UnitNumbersBeyondTheLastAreAnsweredAsAbsent) {
    for (const std::uint8_t unit : Bytes{4, 15}) {
        send(commandWrapper(1, 36, ToHost, unit, {0x12, 0, 0, 0, 36, 0}));
        EXPECT_EQ(in(36), complete(36));
        EXPECT_EQ(received[0], 0x7F);
        expectStatus(1, 0, 0);
    }
}

class InvalidWrapper : public BulkOnly, public ::testing::WithParamInterface<Bytes> {};

TEST_P(InvalidWrapper, HaltsBothEndpointsUntilAReset) {
    (void)out(GetParam());
    EXPECT_EQ(in(13), Stall);
    EXPECT_EQ(out(commandWrapper(1, 0, 0, 0, Ready)), Stall);
    EXPECT_EQ(clearHalt(0x81), Done);
    EXPECT_EQ(clearHalt(0x02), Done);
    EXPECT_EQ(in(13), Stall);
    EXPECT_EQ(out(commandWrapper(1, 0, 0, 0, Ready)), Stall);

    EXPECT_EQ(bulkOnlyReset(), Done);
    EXPECT_EQ(in(13), Stall); // a reset frees no endpoint
    EXPECT_EQ(clearHalt(0x81), Done);
    EXPECT_EQ(clearHalt(0x02), Done);
    send(commandWrapper(2, 0, 0, 0, Ready));
    expectStatus(2, 0, 0);
}

Bytes with(Bytes wrapper, std::size_t offset, std::uint8_t value) {
    wrapper.at(offset) = value;
    return wrapper;
}
Bytes withSize(Bytes wrapper, std::size_t size) {
    wrapper.resize(size);
    return wrapper;
}
const Bytes Good = commandWrapper(1, 0, 0, 0, Ready);

INSTANTIATE_TEST_SUITE_P(Wrappers, InvalidWrapper,
                         ::testing::Values(Bytes{}, withSize(Good, 30), withSize(Good, 32),
                                           withSize(Good, 512), with(Good, 0, 'V'),
                                           with(Good, 3, 'S'), with(Good, 12, 0x01),
                                           with(Good, 13, 0x10), with(Good, 14, 0),
                                           with(Good, 14, 17), with(Good, 14, 0x86)));

TEST_F(BulkOnly, ResetEndsTheCommandUnderWay) {
    send(commandWrapper(1, 1024, ToHost, 0, ReadTwo));
    EXPECT_EQ(in(512), complete(512));
    EXPECT_EQ(bulkOnlyReset(), Done);
    send(commandWrapper(2, 0, 0, 0, Ready));
    expectStatus(2, 0, 0);
}

TEST_F(BulkOnly, HugeLengthsAreOnlyNumbers) {
    send(commandWrapper(1, 0xFFFFFFFF, ToHost, 0, ReadTwo));
    EXPECT_EQ(in(4096), stalledAfter(1024));
    EXPECT_EQ(clearHalt(0x81), Done);
    expectStatus(1, 0xFFFFFFFF - 1024, 0);
    send(commandWrapper(2, 0xFFFFFFFF, ToDevice, 0, WriteTwo));
    EXPECT_EQ(out(Bytes(4096)), stalledAfter(1024));
    EXPECT_EQ(clearHalt(0x02), Done);
    expectStatus(2, 0xFFFFFFFF - 1024, 0);
}

} // namespace
} // namespace zelto::test
