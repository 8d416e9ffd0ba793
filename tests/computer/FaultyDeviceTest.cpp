#include "tests/support/FaultyDevice.h"

#include <gtest/gtest.h>

#include <array>

namespace zelto::test {
namespace {

using namespace simulator;

/// Answers every read with bytes counted from 1 and keeps how often it was asked.
class CountingDevice : public UsbDeviceInterface {
public:
    explicit CountingDevice(int& requests) : m_requests(requests) {}
    [[nodiscard]] std::uint16_t GetDeviceVendor() const override { return 0x07F7; }
    [[nodiscard]] std::uint16_t GetDeviceProduct() const override { return 0x0135; }
    [[nodiscard]] std::uint16_t GetDeviceReleaseNumber() const override { return 0x0102; }
    [[nodiscard]] std::uint32_t GetLocationID() const override { return 9; }
    [[nodiscard]] std::string GetPortName() const override { return "1-9"; }
    [[nodiscard]] IOReturn USBDeviceOpen() override { return kIOReturnSuccess; }
    [[nodiscard]] std::uint8_t USBGetSerialNumberStringIndex() const override { return 7; }
    [[nodiscard]] IOReturn DeviceRequest(IOUSBDevRequest& request) override {
        ++m_requests;
        for (std::uint8_t i = 0; (request.bmRequestType & 0x80U) != 0 && i < request.wLength; ++i) {
            request.pData[i] = static_cast<std::uint8_t>(i + 1);
        }
        request.wLenDone = request.wLength;
        return kIOReturnSuccess;
    }

private:
    int& m_requests;
};

class FaultyDeviceTest : public testing::Test {
protected:
    IOReturn read() {
        m_buffer.fill(0xEE);
        m_request = {};
        m_request.bmRequestType = 0xC0;
        m_request.wLength = static_cast<std::uint16_t>(m_buffer.size());
        m_request.pData = m_buffer.data();
        return m_device.DeviceRequest(m_request);
    }

    int m_requests = 0;
    std::array<std::uint8_t, 4> m_buffer{};
    IOUSBDevRequest m_request;
    std::shared_ptr<FaultPlan> m_plan = std::make_shared<FaultPlan>();
    FaultyDevice m_device{std::make_unique<CountingDevice>(m_requests), m_plan};
};

using Bytes4 = std::array<std::uint8_t, 4>;

TEST_F(FaultyDeviceTest, PassesEverythingOnWithoutAPlan) {
    EXPECT_EQ(m_device.GetDeviceVendor(), 0x07F7);
    EXPECT_EQ(m_device.GetDeviceProduct(), 0x0135);
    EXPECT_EQ(m_device.GetDeviceReleaseNumber(), 0x0102);
    EXPECT_EQ(m_device.GetLocationID(), 9U);
    EXPECT_EQ(m_device.GetPortName(), "1-9");
    EXPECT_EQ(m_device.USBDeviceOpen(), kIOReturnSuccess);
    EXPECT_EQ(m_device.USBGetSerialNumberStringIndex(), 7);
    EXPECT_EQ(read(), kIOReturnSuccess);
    EXPECT_EQ(m_buffer, (Bytes4{1, 2, 3, 4}));
    EXPECT_EQ(m_plan->transfers(), 1U);
    EXPECT_FALSE(m_plan->hasStruck());
}

TEST_F(FaultyDeviceTest, FailsTheChosenTransferOnlyAndBeforeTheDeviceSeesIt) {
    m_plan->failTransfer(1, {.kind = Fault::Kind::FailsBefore, .result = kIOReturnIOError});
    EXPECT_EQ(read(), kIOReturnSuccess);
    EXPECT_EQ(read(), kIOReturnIOError);
    EXPECT_EQ(m_buffer, (Bytes4{0xEE, 0xEE, 0xEE, 0xEE}));
    EXPECT_EQ(m_requests, 1);
    EXPECT_TRUE(m_plan->hasStruck());
    EXPECT_EQ(read(), kIOReturnSuccess);
}

TEST_F(FaultyDeviceTest, LosesTheAnswerOfATransferThatTheDeviceObeyed) {
    m_plan->failTransfer(0, {.kind = Fault::Kind::FailsAfter, .result = kIOReturnTimeout});
    EXPECT_EQ(read(), kIOReturnTimeout);
    EXPECT_EQ(m_requests, 1);
    EXPECT_EQ(m_buffer, (Bytes4{0xEE, 0xEE, 0xEE, 0xEE}));
}

TEST_F(FaultyDeviceTest, CutsAnAnswerShortAndLeavesTheRestAsItWas) {
    m_plan->failTransfer(0, {.kind = Fault::Kind::AnswersShort, .length = 2});
    EXPECT_EQ(read(), kIOReturnSuccess);
    EXPECT_EQ(m_buffer, (Bytes4{1, 2, 0xEE, 0xEE}));
    EXPECT_EQ(m_request.wLenDone, 2U);
}

TEST_F(FaultyDeviceTest, IsGoneForEverOnceItHasVanished) {
    m_plan->failTransfer(0, {.kind = Fault::Kind::VanishesAfter});
    EXPECT_EQ(read(), kIOReturnNoDevice);
    EXPECT_EQ(m_requests, 1);
    m_plan->clear();
    EXPECT_EQ(read(), kIOReturnNoDevice);
    EXPECT_EQ(m_device.USBDeviceOpen(), kIOReturnNoDevice);
    EXPECT_EQ(m_requests, 1);
}

TEST_F(FaultyDeviceTest, VanishesBeforeTheDeviceObeys) {
    m_plan->failTransfer(0, {.kind = Fault::Kind::VanishesBefore});
    EXPECT_EQ(read(), kIOReturnNoDevice);
    EXPECT_EQ(m_requests, 0);
}

TEST_F(FaultyDeviceTest, FailsWhatACallerDescribes) {
    m_plan->failWhen([](const IOUSBDevRequest& request) { return request.wLength == 4; }, {});
    EXPECT_EQ(read(), kIOUSBPipeStalled);
    EXPECT_EQ(read(), kIOUSBPipeStalled);
}

} // namespace
} // namespace zelto::test
