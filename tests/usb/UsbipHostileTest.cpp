#include "tests/usb/UsbipTest.h"

#include <random>

namespace zelto::test {
namespace {

using namespace simulator;
using UsbipHostile = UsbipTest;

TEST_F(UsbipHostile, NonsenseEndsTheSession) {
    for (const Bytes& packet :
         {submitPacket({.direction = 2, .endpoint = 1}),
          submitPacket({.direction = 0xFFFFFFFF, .endpoint = 1}), submitPacket({.endpoint = 16}),
          submitPacket({.endpoint = 0x80000001}),
          submitPacket({.direction = 1, .endpoint = 1, .length = 0x80000000}),
          submitPacket({.endpoint = 2, .length = 0xFFFFFFFF}),
          submitPacket({.direction = 1, .endpoint = 1, .length = 512, .packets = 1}),
          submitPacket({.direction = 1, .endpoint = 1, .length = 512, .packets = 0x7FFFFFFF}),
          submitPacket({.endpoint = 1, .deviceId = 0x00010003}), Bytes(48), Bytes(48, 0xFF)}) {
        UsbipSession other(exported, UsbipSession::Start::Imported);
        feed(other, packet);
        EXPECT_TRUE(other.isOver());
        EXPECT_FALSE(other.complaint().empty());
        EXPECT_TRUE(other.toSend().empty());
    }
}

TEST_F(UsbipHostile, AnswersAreNoCommands) {
    put(submitReply(1, 0, 0));
    EXPECT_TRUE(session.isOver());
}

TEST_F(UsbipHostile, OperationsThatMakeNoSenseEndTheSession) {
    for (const Bytes& packet : {operationPacket(0x8005, 0x0110), operationPacket(0x0005),
                                operationPacket(0x8004), operationPacket(0x0000), Bytes(8, 0xFF)}) {
        UsbipSession other(exported, UsbipSession::Start::Operations);
        feed(other, packet);
        EXPECT_TRUE(other.isOver());
        EXPECT_TRUE(other.toSend().empty());
    }
}

TEST_F(UsbipHostile, ImportOfANameWithoutAnEndIsRefused) {
    UsbipSession other(exported, UsbipSession::Start::Operations);
    feed(other, importPacket(std::string(32, 'A')));
    EXPECT_EQ(drain(other).size(), 8U);
}

TEST_F(UsbipHostile, NotIsochronousMayBeSaidEitherWay) {
    EXPECT_EQ(
        exchange(
            submitPacket(
                {.sequence = 1, .direction = 1, .endpoint = 0, .length = 1, .packets = 0xFFFFFFFF},
                {0x80, 8, 0, 0, 0, 0, 1, 0}))
            .size(),
        49U);
}

TEST_F(UsbipHostile, TooLongATransferToTheHostIsRefused) {
    EXPECT_EQ(exchange(submitIn(1, 0x7FFFFFFF)), submitReply(1, WireStatus::TooLong, 0));
    EXPECT_EQ(exchange(submitControl(2, {0x80, 8, 0, 0, 0, 0, 1, 0})).size(), 49U);
}

TEST_F(UsbipHostile, TooLongATransferFromTheHostIsSkippedAndTheStreamFollowed) {
    const std::uint32_t length = UsbipSession::MaximumTransfer + 1;
    EXPECT_EQ(
        exchange(submitPacket({.sequence = 1, .direction = 0, .endpoint = 2, .length = length})),
        submitReply(1, WireStatus::TooLong, 0));
    put(Bytes(length, 0xAA));
    EXPECT_TRUE(take().empty());
    EXPECT_EQ(exchange(submitControl(2, {0x80, 8, 0, 0, 0, 0, 1, 0})).size(), 49U);
}

TEST_F(UsbipHostile, ControlTransferWhoseLengthsDisagreeIsRefused) {
    // The set-up packet says 34 bytes, the transfer has 4; and the other way round.
    EXPECT_EQ(exchange(submitPacket({.sequence = 1, .direction = 0, .endpoint = 0, .length = 4},
                                    {0x40, 0xB3, 0, 0, 0, 0, 34, 0}, Bytes(4))),
              submitReply(1, WireStatus::Stalled, 0));
    const Bytes longer = exchange(submitPacket(
        {.sequence = 2, .direction = 1, .endpoint = 0, .length = 4}, {0x80, 6, 0, 1, 0, 0, 18, 0}));
    EXPECT_EQ(longer.size(), 48U + 4);
    EXPECT_TRUE(firmware.seen.empty());
}

TEST_F(UsbipHostile, ControlTransferWhoseDirectionsDisagreeIsRefused) {
    const Bytes answer =
        exchange(submitPacket({.sequence = 1, .direction = 0, .endpoint = 0, .length = 18},
                              {0x80, 6, 0, 1, 0, 0, 18, 0}, Bytes(18)));
    EXPECT_EQ(answer, submitReply(1, WireStatus::Stalled, 0));
}

TEST_F(UsbipHostile, HugeControlTransferTakesNoMoreThanThereCanBe) {
    EXPECT_EQ(exchange(submitPacket({.sequence = 1,
                                     .direction = 1,
                                     .endpoint = 0,
                                     .length = UsbipSession::MaximumTransfer},
                                    {0x80, 6, 0, 1, 0, 0, 0xFF, 0xFF}))
                  .size(),
              48U + 18);
}

TEST_F(UsbipHostile, FloodOfWaitingTransfersEndsTheSession) {
    for (std::uint32_t sequence = 0; sequence <= UsbipSession::MaximumWaiting; ++sequence) {
        EXPECT_FALSE(session.isOver());
        put(submitIn(sequence, UsbipSession::MaximumTransfer));
    }
    EXPECT_TRUE(session.isOver());
}

TEST_F(UsbipHostile, FloodOfWaitingDataEndsTheSession) {
    put(submitOut(0, commandWrapper(1, 512, 0x80, 0, {0x28, 0, 0, 0, 0, 0, 0, 0, 1, 0})));
    std::uint32_t sequence = 1;
    for (; sequence < 100 && !session.isOver(); ++sequence) {
        put(submitOut(sequence, Bytes(UsbipSession::MaximumTransfer)));
    }
    EXPECT_TRUE(session.isOver());
    EXPECT_EQ(sequence, 4U);
}

TEST_F(UsbipHostile, FloodOfRequestsWithoutAnswerEndsTheSession) {
    firmware.answer.reset();
    for (std::uint32_t sequence = 0; sequence <= UsbipSession::MaximumWaiting; ++sequence) {
        put(submitControl(sequence, {0xC0, 0xC0, 0, 0, 0, 0, 36, 0}));
    }
    EXPECT_TRUE(session.isOver());
}

/// Packets that are right in most of their fields, so that they get deep into the device.
class RandomPackets {
public:
    explicit RandomPackets(std::uint32_t seed) : m_random(seed) {}

    Bytes next() {
        switch (below(8)) {
        case 0:
            return noise(below(80));
        case 1:
            ++m_sequence;
            return unlinkPacket(m_sequence, m_sequence - below(10));
        case 2:
        case 3:
            return submitControl(m_sequence++, setup(), {});
        case 4:
            return submitIn(m_sequence++, below(3) == 0 ? below(5000) : 512 * below(5));
        case 5:
            return submitOut(m_sequence++, noise(below(1200)));
        default:
            return submitOut(m_sequence++, wrapper());
        }
    }

private:
    std::uint32_t below(std::uint32_t limit) {
        return static_cast<std::uint32_t>(m_random() % limit);
    }
    std::uint8_t byte() { return static_cast<std::uint8_t>(below(256)); }
    Bytes noise(std::size_t size) {
        Bytes bytes(size);
        std::ranges::generate(bytes, [this] { return byte(); });
        return bytes;
    }
    Bytes setup() {
        Bytes bytes = noise(8);
        if (below(2) == 0) {
            bytes = {0x02, 1, 0, 0, static_cast<std::uint8_t>(below(2) == 0 ? 0x81 : 0x02),
                     0,    0, 0};
        } else if (below(2) == 0) {
            bytes = {0x21, 0xFF, 0, 0, 0, 0, 0, 0};
        }
        if ((bytes[0] & 0x80) == 0) {
            bytes[6] = 0;
            bytes[7] = 0;
        }
        return bytes;
    }
    Bytes wrapper() {
        static const Bytes Operations{0x00, 0x03, 0x08, 0x0A, 0x12, 0x1A, 0x1B, 0x1E,
                                      0x23, 0x25, 0x28, 0x2A, 0x2F, 0x35, 0x5A, 0x88,
                                      0x8A, 0x8F, 0x91, 0x9E, 0xA0, 0xA8, 0xAA, 0xAF};
        Bytes command(1 + below(16));
        command[0] = below(8) == 0 ? byte() : Operations[below(24)];
        for (std::size_t index = 1; index < command.size(); ++index) {
            command[index] = below(3) == 0 ? byte() : below(5) == 0 ? 1 : 0;
        }
        return commandWrapper(
            byte(), below(4) == 0 ? static_cast<std::uint32_t>(m_random()) : 512 * below(5),
            below(2) == 0 ? 0x80 : 0, static_cast<std::uint8_t>(below(6)), command);
    }

    std::mt19937 m_random;
    std::uint32_t m_sequence = 1;
};

class UsbipRandom : public UsbipTest, public ::testing::WithParamInterface<std::uint32_t> {};

TEST_P(UsbipRandom, NothingBreaksIt) {
    RandomPackets packets(GetParam());
    std::uint64_t answered = 0;
    for (int round = 0; round < 40; ++round) {
        UsbipSession other(exported, UsbipSession::Start::Imported);
        (void)control({0x00, 9, 1, 0, 0});
        for (int packet = 0; packet < 500 && !other.isOver(); ++packet) {
            feed(other, packets.next());
            answered += drain(other).size();
            if (packet % 50 == 49) {
                storage.insert(0, Sectors);
            }
            if (packet % 100 == 99) {
                storage.remove(0);
            }
        }
    }
    EXPECT_GT(answered, 0U);
    // And it still works.
    (void)control({0x00, 9, 1, 0, 0});
    (void)bulkOnlyReset();
    EXPECT_EQ(out(commandWrapper(1, 36, 0x80, 0, {0x12, 0, 0, 0, 36, 0})).status,
              TransferStatus::Complete);
    EXPECT_EQ(this->in(36).length, 36U);
}

INSTANTIATE_TEST_SUITE_P(Seeds, UsbipRandom, ::testing::Range(1U, 17U));

} // namespace
} // namespace zelto::test
