#include "tests/usb/UsbipTest.h"

namespace zelto::test {
namespace {

using namespace simulator;
using ::testing::ElementsAreArray;

/// Where the fourth block of the commands begins in the medium.
constexpr std::ptrdiff_t Block4 = std::ptrdiff_t{4} * 512;

class UsbipOperations : public UsbTest {
protected:
    Bytes exchange(const Bytes& bytes) {
        feed(session, bytes);
        return drain(session);
    }
    FakeExport exported{device};
    UsbipSession session{exported, UsbipSession::Start::Operations};
};

/// The device in a list or an import's answer, 312 bytes.
Bytes listedDevice() {
    Bytes bytes(312);
    const std::string path = "/zelto/virtual-drive/1-1";
    std::ranges::copy(path, bytes.begin());
    bytes[256] = '1';
    bytes[257] = '-';
    bytes[258] = '1';
    const Bytes rest{0,    0,    0,    1,    0,    0,    0, 2, 0, 0, 0, 3,
                     0x07, 0xF7, 0x01, 0x35, 0x01, 0x00, 0, 0, 0, 0, 1, 1};
    std::ranges::copy(rest, bytes.begin() + 288);
    return bytes;
}

TEST_F(UsbipOperations, ListTheDevice) {
    Bytes expected{0x01, 0x11, 0x00, 0x05, 0, 0, 0, 0, 0, 0, 0, 1};
    append(expected, listedDevice());
    append(expected, {0x08, 0x06, 0x50, 0x00});
    EXPECT_EQ(exchange(operationPacket(0x8005)), expected);
    EXPECT_TRUE(session.isOver());
}

TEST_F(UsbipOperations, ListNothingWhileTheDriveIsUnplugged) {
    exported.isPlugged = false;
    EXPECT_THAT(exchange(operationPacket(0x8005)),
                ElementsAreArray({0x01, 0x11, 0x00, 0x05, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST_F(UsbipOperations, ImportTheDevice) {
    Bytes expected{0x01, 0x11, 0x00, 0x03, 0, 0, 0, 0};
    append(expected, listedDevice());
    EXPECT_EQ(exchange(importPacket("1-1")), expected);
    EXPECT_TRUE(session.isImported());
    EXPECT_FALSE(session.isOver());
    EXPECT_EQ(exchange(submitControl(9, {0x80, 8, 0, 0, 0, 0, 1, 0})).size(), 49U);
}

TEST_F(UsbipOperations, ImportNothingUnderAnotherName) {
    EXPECT_THAT(exchange(importPacket("1-2")),
                ElementsAreArray({0x01, 0x11, 0x00, 0x03, 0, 0, 0, 4}));
    EXPECT_FALSE(session.isImported());
    EXPECT_TRUE(session.isOver());
}

TEST_F(UsbipOperations, ImportNothingWhileTheDriveIsUnplugged) {
    exported.isPlugged = false;
    EXPECT_EQ(exchange(importPacket("1-1"))[7], 4);
}

TEST_F(UsbipOperations, ImportNothingThatAnotherComputerHas) {
    exported.taken = true;
    EXPECT_EQ(exchange(importPacket("1-1"))[7], 2);
    EXPECT_FALSE(session.isImported());
}

TEST_F(UsbipOperations, MayArriveByteByByte) {
    Bytes answer;
    for (const std::uint8_t byte : importPacket("1-1")) {
        append(answer, exchange({byte}));
    }
    EXPECT_EQ(answer.size(), 320U);
}

using UsbipTransfers = UsbipTest;

TEST_F(UsbipTransfers, ControlTransferTowardsTheHost) {
    Bytes expected = submitReply(7, 0, 8);
    append(expected, {18, 1, 0x00, 0x02, 0, 0, 0, 64});
    EXPECT_EQ(exchange(submitControl(7, {0x80, 6, 0x00, 0x01, 0, 0, 8, 0})), expected);
}

TEST_F(UsbipTransfers, ControlTransferTowardsTheDevice) {
    EXPECT_EQ(exchange(submitControl(8, {0x40, 0xB3, 0x02, 0x01, 0x34, 0x12, 3, 0}, {1, 2, 3})),
              submitReply(8, 0, 3));
    ASSERT_EQ(firmware.seen.size(), 1U);
    EXPECT_EQ(firmware.seen[0].setup.wValue, 0x0102);
    EXPECT_EQ(firmware.seen[0].setup.wIndex, 0x1234);
    EXPECT_THAT(firmware.seen[0].sent, ElementsAreArray({1, 2, 3}));
}

TEST_F(UsbipTransfers, RefusedControlTransferStalls) {
    firmware.answer->stalled = true;
    EXPECT_EQ(exchange(submitControl(8, {0xC0, 0xC0, 0, 0, 0, 0, 36, 0})),
              submitReply(8, WireStatus::Stalled, 0));
}

TEST_F(UsbipTransfers, WholeCommandInOneBatchIsAnsweredInOneBatch) {
    const Bytes data = pattern(1024, 3);
    std::ranges::copy(data, storage.contents(0).begin() + Block4);
    Bytes batch = submitOut(1, commandWrapper(5, 1024, 0x80, 0, ReadTwo));
    append(batch, submitIn(2, 1024));
    append(batch, submitIn(3, 13));
    Bytes expected = submitReply(1, 0, 31);
    append(expected, submitReply(2, 0, 1024));
    append(expected, data);
    append(expected, submitReply(3, 0, 13));
    append(expected, {'U', 'S', 'B', 'S', 5, 0, 0, 0, 0, 0, 0, 0, 0});
    EXPECT_EQ(exchange(batch), expected);
}

TEST_F(UsbipTransfers, TransfersToTheHostMayBeThereBeforeTheCommand) {
    put(submitIn(1, 1024));
    put(submitIn(2, 13));
    EXPECT_TRUE(take().empty());
    const Bytes answer = exchange(submitOut(3, commandWrapper(5, 1024, 0x80, 0, ReadTwo)));
    EXPECT_EQ(get32(answer, 4), 3U);
    EXPECT_EQ(get32(answer, 48 + 4), 1U);
    EXPECT_EQ(get32(answer, 48 + 48 + 1024 + 4), 2U);
}

TEST_F(UsbipTransfers, CommandsMayFollowEachOtherWithoutWaiting) {
    Bytes batch;
    for (std::uint32_t command = 0; command < 10; ++command) {
        append(batch, submitOut(2 * command, commandWrapper(command, 0, 0, 0, Ready)));
    }
    for (std::uint32_t command = 0; command < 10; ++command) {
        append(batch, submitIn(2 * command + 1, 13));
    }
    EXPECT_EQ(exchange(batch).size(), 20U * 48 + 10 * 13);
}

TEST_F(UsbipTransfers, WriteMayArriveByteByByte) {
    const Bytes data = pattern(1024, 8);
    Bytes batch = submitOut(1, commandWrapper(5, 1024, 0, 0, WriteTwo));
    append(batch, submitOut(2, data));
    append(batch, submitIn(3, 13));
    Bytes answer;
    for (const std::uint8_t byte : batch) {
        append(answer, exchange({byte}));
    }
    EXPECT_EQ(answer.size(), 3U * 48 + 13);
    EXPECT_TRUE(std::equal(data.begin(), data.end(), storage.contents(0).begin() + Block4));
}

TEST_F(UsbipTransfers, StallInTheMiddleTellsWhatMoved) {
    put(submitOut(1, commandWrapper(5, 2048, 0x80, 0, ReadTwo)));
    (void)take();
    const Bytes answer = exchange(submitIn(2, 2048));
    EXPECT_EQ(Bytes(answer.begin(), answer.begin() + 48),
              submitReply(2, WireStatus::Stalled, 1024));
    EXPECT_EQ(answer.size(), 48U + 1024);
}

TEST_F(UsbipTransfers, TooSmallATransferOverflows) {
    put(submitOut(1, commandWrapper(5, 1024, 0x80, 0, ReadTwo)));
    (void)take();
    EXPECT_EQ(exchange(submitIn(2, 100)), submitReply(2, WireStatus::Overflow, 0));
}

TEST_F(UsbipTransfers, UnknownEndpointsDoNotRespond) {
    for (const std::uint32_t endpoint : {2U, 3U, 15U}) {
        EXPECT_EQ(exchange(submitPacket(
                      {.sequence = 4, .direction = 1, .endpoint = endpoint, .length = 64})),
                  submitReply(4, WireStatus::NoResponse, 0));
    }
    EXPECT_EQ(exchange(submitPacket({.sequence = 5, .direction = 0, .endpoint = 1, .length = 4},
                                    Bytes(8), Bytes(4))),
              submitReply(5, WireStatus::NoResponse, 0));
}

TEST_F(UsbipTransfers, UnknownEndpointsAreAnsweredWhileAnotherWaits) {
    put(submitIn(1, 13));
    EXPECT_EQ(exchange(submitPacket({.sequence = 2, .direction = 1, .endpoint = 3, .length = 64})),
              submitReply(2, WireStatus::NoResponse, 0));
}

TEST_F(UsbipTransfers, EndpointsOfADeviceThatIsNotConfiguredDoNotRespond) {
    put(submitIn(1, 13));
    EXPECT_TRUE(take().empty());
    Bytes expected = submitReply(2, 0, 0);
    append(expected, submitReply(1, WireStatus::NoResponse, 0));
    EXPECT_EQ(exchange(submitControl(2, {0x00, 9, 0, 0, 0, 0, 0, 0})), expected);
}

TEST_F(UsbipTransfers, ClearingAHaltLetsTheStatusThrough) {
    put(submitOut(1, commandWrapper(5, 64, 0x80, 0, Ready)));
    EXPECT_EQ(take().size(), 48U);
    EXPECT_EQ(exchange(submitIn(2, 64)), submitReply(2, WireStatus::Stalled, 0));
    (void)exchange(submitControl(3, {0x02, 1, 0, 0, 0x81, 0, 0, 0}));
    EXPECT_EQ(exchange(submitIn(4, 13)).size(), 48U + 13);
}

TEST_F(UsbipTransfers, WaitingTransferCanBeTakenBack) {
    put(submitIn(1, 13));
    EXPECT_EQ(exchange(unlinkPacket(2, 1)), unlinkReply(2, WireStatus::Unlinked));
    EXPECT_EQ(exchange(unlinkPacket(3, 1)), unlinkReply(3, 0));
    // It does not come back to life.
    EXPECT_EQ(exchange(submitOut(4, commandWrapper(5, 0, 0, 0, Ready))), submitReply(4, 0, 31));
}

TEST_F(UsbipTransfers, WaitingTransferFromTheHostCanBeTakenBack) {
    put(submitOut(1, commandWrapper(5, 1024, 0x80, 0, ReadTwo)));
    put(submitOut(2, commandWrapper(6, 0, 0, 0, Ready)));
    EXPECT_EQ(take().size(), 48U);
    EXPECT_EQ(exchange(unlinkPacket(3, 2)), unlinkReply(3, WireStatus::Unlinked));
}

TEST_F(UsbipTransfers, TakingBackWhatWasAnsweredIsNoError) {
    (void)exchange(submitControl(1, {0x80, 8, 0, 0, 0, 0, 1, 0}));
    EXPECT_EQ(exchange(unlinkPacket(2, 1)), unlinkReply(2, 0));
    EXPECT_EQ(exchange(unlinkPacket(3, 0x12345678)), unlinkReply(3, 0));
}

TEST_F(UsbipTransfers, RequestWithoutAnAnswerHangsUntilItIsTakenBack) {
    firmware.answer.reset();
    EXPECT_TRUE(exchange(submitControl(1, {0xC0, 0xC0, 0, 0, 0, 0, 36, 0})).empty());
    firmware.answer = ControlReply{};
    EXPECT_EQ(exchange(submitControl(2, {0xC0, 0xC0, 0, 0, 0, 0, 36, 0})), submitReply(2, 0, 0));
    EXPECT_EQ(firmware.seen.size(), 2U);
    EXPECT_EQ(exchange(unlinkPacket(3, 1)), unlinkReply(3, WireStatus::Unlinked));
}

TEST_F(UsbipTransfers, NothingIsTakenOnceTheDriveLeaves) {
    firmware.effect = [this] { exported.leaving = true; };
    Bytes batch = submitControl(1, {0x40, 0xC1, 1, 0, 1, 0, 0, 0});
    append(batch, submitControl(2, {0xC0, 0xC0, 0, 0, 0, 0, 36, 0}));
    EXPECT_EQ(exchange(batch), submitReply(1, 0, 0));
    EXPECT_EQ(firmware.seen.size(), 1U);
    EXPECT_TRUE(session.isOver());
}

TEST_F(UsbipTransfers, LargestTransferGoesThrough) {
    storage.insert(0, UsbipSession::MaximumTransfer / 512);
    put(submitOut(1, commandWrapper(1, 0, 0, 0, Ready))); // tells of the medium
    put(submitIn(2, 13));
    (void)take();
    const Bytes data = pattern(UsbipSession::MaximumTransfer, 1);
    const Bytes write{0x2A, 0, 0, 0, 0, 0, 0, 0x20, 0, 0};
    Bytes batch = submitOut(3, commandWrapper(2, 4 << 20, 0, 0, write));
    append(batch, submitOut(4, data));
    append(batch, submitIn(5, 13));
    EXPECT_EQ(exchange(batch).size(), 3U * 48 + 13);
    const Bytes read{0x28, 0, 0, 0, 0, 0, 0, 0x20, 0, 0};
    put(submitOut(6, commandWrapper(3, 4 << 20, 0x80, 0, read)));
    (void)take();
    const Bytes answer = exchange(submitIn(7, 4 << 20));
    EXPECT_EQ(Bytes(answer.begin() + 48, answer.end()), data);
}

TEST_F(UsbipTransfers, HostThatDoesNotTakeItsAnswersIsNotAskedForMore) {
    storage.insert(0, UsbipSession::MaximumTransfer / 512);
    put(submitOut(1, commandWrapper(1, 0, 0, 0, Ready)));
    put(submitIn(2, 13));
    (void)take();
    const Bytes read{0x28, 0, 0, 0, 0, 0, 0, 0x20, 0, 0};
    Bytes batch;
    for (std::uint32_t command = 0; command < 3; ++command) {
        append(batch, submitOut(10 * command, commandWrapper(command, 4 << 20, 0x80, 0, read)));
        append(batch, submitIn(10 * command + 1, 4 << 20));
        append(batch, submitIn(10 * command + 2, 13));
    }
    put(batch);
    EXPECT_LE(session.toSend().size(), UsbipSession::MaximumTransfer + (std::size_t{1} << 20));
    EXPECT_EQ(take().size(),
              std::size_t{3} * (3 * 48 + 13) + std::size_t{3} * UsbipSession::MaximumTransfer);
}

} // namespace
} // namespace zelto::test
