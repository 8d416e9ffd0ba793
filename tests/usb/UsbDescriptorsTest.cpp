#include "simulator/usb/UsbDescriptors.h"
#include "tests/usb/UsbTest.h"

namespace zelto::test {
namespace {

using namespace simulator;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

class UsbDescriptors : public UsbTest {
protected:
    Bytes descriptor(std::uint16_t value, std::uint16_t index = 0, std::uint16_t length = 255) {
        EXPECT_EQ(control({0x80, 6, value, index, length}).status, TransferStatus::Complete);
        return reply;
    }
    void expectNone(std::uint16_t value, std::uint16_t index = 0) {
        EXPECT_EQ(control({0x80, 6, value, index, 255}), Stall);
    }
};

TEST_F(UsbDescriptors, TheDevice) {
    EXPECT_THAT(descriptor(0x0100), ElementsAre(18, 1, 0x00, 0x02, 0, 0, 0, 64, 0xF7, 0x07, 0x35,
                                                0x01, 0x00, 0x01, 1, 2, 3, 1));
}

TEST_F(UsbDescriptors, TheConfigurationWithItsInterfaceAndEndpoints) {
    EXPECT_THAT(descriptor(0x0200),
                ElementsAreArray({9, 2, 32,   0,    1,    1,    0,    0x80, 100, //
                                  9, 4, 0,    0,    2,    0x08, 0x06, 0x50, 0,   //
                                  7, 5, 0x81, 0x02, 0x00, 0x02, 0,               //
                                  7, 5, 0x02, 0x02, 0x00, 0x02, 0}));
}

TEST_F(UsbDescriptors, TheQualifier) {
    EXPECT_THAT(descriptor(0x0600), ElementsAre(10, 6, 0x00, 0x02, 0, 0, 0, 64, 1, 0));
}

TEST_F(UsbDescriptors, TheConfigurationAtTheOtherSpeedHasSmallPackets) {
    EXPECT_THAT(descriptor(0x0700),
                ElementsAreArray({9, 7, 32,   0,    1,    1,    0,    0x80, 100, //
                                  9, 4, 0,    0,    2,    0x08, 0x06, 0x50, 0,   //
                                  7, 5, 0x81, 0x02, 0x40, 0x00, 0,               //
                                  7, 5, 0x02, 0x02, 0x40, 0x00, 0}));
}

TEST_F(UsbDescriptors, TheLanguages) {
    EXPECT_THAT(descriptor(0x0300), ElementsAre(4, 3, 0x09, 0x04));
}

TEST_F(UsbDescriptors, TheStrings) {
    EXPECT_THAT(descriptor(0x0301, 0x0409),
                ElementsAre(16, 3, 'K', 0, 'E', 0, 'S', 0, 'T', 0, 'R', 0, 'I', 0, 'N', 0));
    EXPECT_THAT(descriptor(0x0302, 0x0409), ElementsAre(22, 3, 'Z', 0, 'E', 0, 'L', 0, 'T', 0, 'O',
                                                        0, ' ', 0, 'D', 0, 'I', 0, 'S', 0, 'K', 0));
    EXPECT_THAT(descriptor(0x0303, 0x0409),
                ElementsAre(34, 3, 'Z', 0, 'D', 0, '0', 0, '1', 0, '2', 0, '3', 0, '4', 0, '5', 0,
                            '6', 0, '7', 0, '8', 0, '9', 0, 'A', 0, 'B', 0, 'C', 0, 'D', 0));
}

TEST_F(UsbDescriptors, AreCutToTheLengthAskedFor) {
    EXPECT_EQ(descriptor(0x0100, 0, 8).size(), 8U);
    EXPECT_EQ(descriptor(0x0200, 0, 9).size(), 9U);
    EXPECT_EQ(descriptor(0x0100, 0, 0).size(), 0U);
}

TEST_F(UsbDescriptors, ThatThereAreNotStall) {
    expectNone(0x0101);         // second device
    expectNone(0x0201);         // second configuration
    expectNone(0x0304, 0x0409); // fourth string
    expectNone(0x0301, 0x0407); // another language
    expectNone(0x0F00);         // BOS: not a USB 2.1 device
    expectNone(0x0400);         // an interface on its own
    expectNone(0x0000);
    expectNone(0xFFFF);
}

TEST_F(UsbDescriptors, OfASerialNumberTooLongForOneByteAreCut) {
    const auto bytes = usbDescriptor(0x0303, 0x0409, std::string(300, 'A'));
    ASSERT_TRUE(bytes);
    EXPECT_EQ(bytes->size(), 254U);
    EXPECT_EQ(bytes->front(), 254);
}

} // namespace
} // namespace zelto::test
