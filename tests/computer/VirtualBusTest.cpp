#include "device/VendorRequest.h"
#include "device/ZELTOctrl.h"
#include "simulator/computer/VirtualComputer.h"
#include "tests/support/FaultyDevice.h"
#include "tests/support/OtherUsbDevices.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

namespace zelto::test {
namespace {

using namespace simulator;
using std::chrono::seconds;
using testing::ElementsAre;

constexpr UsbMatching Zelto{.idVendor = UsbIdentity::Vendor, .idProduct = UsbIdentity::Product};

class VirtualBusTest : public testing::Test {
protected:
    /// Registers as the program does, draining the iterator whenever it is called.
    void listen() {
        ASSERT_TRUE(m_computer.usb.IOMasterPort());
        const IOObject port = m_computer.usb.IONotificationPortCreate();
        const auto take = [this](IOObject iterator) {
            while (const auto service = m_computer.usb.IOIteratorNext(iterator)) {
                if (auto handle = service->IOCreatePlugInInterfaceForService()) {
                    EXPECT_EQ(handle->USBDeviceOpen(), kIOReturnSuccess);
                    m_handles.push_back(std::move(handle));
                }
            }
        };
        const auto drop = [this](IOObject iterator) {
            while (m_computer.usb.IOIteratorNext(iterator)) {
                ++m_removals;
            }
        };
        take(m_computer.usb.IOServiceAddMatchingNotification(port, UsbEvent::FirstMatch, Zelto,
                                                             take));
        drop(m_computer.usb.IOServiceAddMatchingNotification(port, UsbEvent::Terminate, Zelto,
                                                             drop));
        m_port = port;
    }

    std::string readSerial(UsbDeviceInterface& handle) {
        std::array<std::uint8_t, 128> buffer{};
        IOUSBDevRequest request;
        request.bmRequestType = 0x80;
        request.bRequest = 6;
        request.wValue =
            static_cast<std::uint16_t>(0x0300U | handle.USBGetSerialNumberStringIndex());
        request.wIndex = 0x0409;
        request.wLength = buffer.size();
        request.pData = buffer.data();
        EXPECT_EQ(handle.DeviceRequest(request), kIOReturnSuccess);
        std::string serial;
        for (std::size_t i = 2; i < request.wLenDone; i += 2) {
            serial += static_cast<char>(buffer[i]);
        }
        return serial;
    }

    IOReturn readStatus(UsbDeviceInterface& handle) {
        std::array<std::uint8_t, 36> status{};
        return TKVR21_GetDeviceStatus(handle, status.data(), status.size(), 0);
    }

    VirtualComputer m_computer;
    std::vector<std::unique_ptr<UsbDeviceInterface>> m_handles;
    int m_removals = 0;
    IOObject m_port = 0;
    static constexpr std::uint64_t DriveSectors = 262144;
    std::shared_ptr<DriveOnBus> m_drive = makeDrive("ZD0000000000A1", DriveSectors);
};

TEST_F(VirtualBusTest, ListsTheDrivesThatArePresentInOrderOfArrivalAndNothingElse) {
    m_computer.plug(std::make_shared<UsbMouse>());
    m_computer.plug(m_drive);
    m_computer.plug(std::make_shared<ForeignDisk>(DriveSectors));
    m_computer.plug(makeDrive("ZD0000000000B2", DriveSectors));
    listen();
    ASSERT_EQ(m_handles.size(), 2U);
    EXPECT_EQ(readSerial(*m_handles[0]), "ZD0000000000A1");
    EXPECT_EQ(readSerial(*m_handles[1]), "ZD0000000000B2");
}

TEST_F(VirtualBusTest, ReportsArrivalAndRemovalFromTheRunLoopOnly) {
    listen();
    m_computer.plug(m_drive);
    EXPECT_TRUE(m_handles.empty());
    m_computer.settle();
    EXPECT_EQ(m_handles.size(), 1U);
    m_computer.unplug(m_drive);
    EXPECT_EQ(m_removals, 0);
    m_computer.settle();
    EXPECT_EQ(m_removals, 1);
}

TEST_F(VirtualBusTest, LeavesTheOldHandleDeadForEverAfterAReplug) {
    m_computer.plug(m_drive);
    listen();
    m_computer.replug(m_drive);
    m_computer.settle();
    ASSERT_EQ(m_handles.size(), 2U);
    EXPECT_EQ(readStatus(*m_handles[0]), kIOReturnNoDevice);
    EXPECT_EQ(readStatus(*m_handles[1]), kIOReturnSuccess);
    EXPECT_EQ(m_handles[0]->USBDeviceOpen(), kIOReturnNoDevice);
}

TEST_F(VirtualBusTest, StallsWhatTheDriveRefuses) {
    m_computer.plug(m_drive);
    listen();
    IOUSBDevRequest request;
    request.bmRequestType = VendorRequest::ToDevice;
    request.bRequest = 0x01;
    EXPECT_EQ(m_handles[0]->DeviceRequest(request), kIOUSBPipeStalled);
}

TEST_F(VirtualBusTest, BringsADriveBackUnderTheSameSerialAfterAReconnect) {
    m_computer.plug(m_drive);
    listen();
    m_computer.usb.setReconnectDelay(seconds(3));
    ASSERT_EQ(TKVR21_Reconnect(*m_handles[0], 1, 1), kIOReturnSuccess);
    EXPECT_EQ(readStatus(*m_handles[0]), kIOReturnNoDevice);
    m_computer.advance(seconds(2));
    EXPECT_EQ(m_handles.size(), 1U);
    m_computer.advance(seconds(1));
    ASSERT_EQ(m_handles.size(), 2U);
    EXPECT_EQ(readSerial(*m_handles[1]), "ZD0000000000A1");
    EXPECT_EQ(m_removals, 1);
}

TEST_F(VirtualBusTest, KeepsADriveAwayThatIsPulledWhileItReconnects) {
    m_computer.plug(m_drive);
    listen();
    ASSERT_EQ(TKVR21_Reconnect(*m_handles[0], 1, 1), kIOReturnSuccess);
    m_computer.unplug(m_drive);
    m_computer.advance(seconds(10));
    EXPECT_FALSE(m_computer.usb.isPlugged(m_drive));
}

TEST_F(VirtualBusTest, RefusesToOpenADriveThatNobodyMayOpen) {
    m_drive->describe().openResult = kIOReturnNotPrivileged;
    m_computer.plug(m_drive);
    const IOObject iterator = m_computer.usb.IOServiceAddMatchingNotification(
        0, UsbEvent::FirstMatch, Zelto, [](IOObject) {});
    const auto handle =
        m_computer.usb.IOIteratorNext(iterator)->IOCreatePlugInInterfaceForService();
    EXPECT_EQ(handle->USBDeviceOpen(), kIOReturnNotPrivileged);
    EXPECT_EQ(readStatus(*handle), kIOReturnNotOpen);
}

TEST_F(VirtualBusTest, OpensADriveForOneHandleAlone) {
    m_computer.plug(m_drive);
    listen();
    const auto second = m_computer.usb.makeHandle(m_computer.usb.attachments().front());
    EXPECT_EQ(second->USBDeviceOpen(), kIOReturnExclusiveAccess);
    EXPECT_EQ(readStatus(*second), kIOReturnNotOpen);
    EXPECT_EQ(readStatus(*m_handles[0]), kIOReturnSuccess);
    m_handles.clear();
    EXPECT_EQ(second->USBDeviceOpen(), kIOReturnSuccess);
}

TEST_F(VirtualBusTest, DeliversNothingOnceThePortIsDestroyed) {
    listen();
    m_computer.usb.IONotificationPortDestroy(m_port);
    m_computer.plug(m_drive);
    m_computer.settle();
    EXPECT_TRUE(m_handles.empty());
}

TEST_F(VirtualBusTest, NotesEveryCommandWithItsNameItsBytesAndItsResult) {
    m_computer.plug(m_drive);
    listen();
    m_computer.log.clear();
    ASSERT_EQ(TKVR21_ZELTO_SetErasePeriod(*m_handles[0], 86400), kIOReturnSuccess);
    std::array<std::uint8_t, 34> payload{1};
    EXPECT_EQ(TKVR21_Authenticate(*m_handles[0], payload.data(), 0), kIOUSBPipeStalled);
    EXPECT_THAT(m_computer.log.texts(LogLine::Kind::Command),
                ElementsAre("TKVR21_ZELTO_SetErasePeriod", "TKVR21_Authenticate"));
    EXPECT_EQ(m_computer.log.lines()[0].setup.wValue, 0x5180);
    EXPECT_EQ(m_computer.log.lines()[0].setup.wIndex, 0x0001);
    EXPECT_EQ(m_computer.log.lines()[1].data.size(), 34U);
    EXPECT_EQ(m_computer.log.lines()[1].result, kIOUSBPipeStalled);
    EXPECT_EQ(m_computer.log.lines()[1].serial, "ZD0000000000A1");
}

TEST_F(VirtualBusTest, NotesARequestThatFailsBeforeItReachesTheDrive) {
    const auto plan = std::make_shared<FaultPlan>();
    m_computer.usb.addHandleLayer([plan](std::unique_ptr<UsbDeviceInterface> handle) {
        return std::make_unique<FaultyDevice>(std::move(handle), plan);
    });
    m_computer.plug(m_drive);
    listen();
    m_computer.log.clear();
    plan->failWhen([](const IOUSBDevRequest&) { return true; },
                   {.kind = Fault::Kind::FailsBefore, .result = kIOReturnTimeout});
    EXPECT_EQ(readStatus(*m_handles[0]), kIOReturnTimeout);
    ASSERT_THAT(m_computer.log.texts(LogLine::Kind::Command),
                ElementsAre("TKVR21_GetDeviceStatus"));
    EXPECT_EQ(m_computer.log.lines()[0].result, kIOReturnTimeout);
    EXPECT_EQ(m_computer.log.lines()[0].setup.bRequest, VendorRequest::GetDeviceStatus);
}

TEST_F(VirtualBusTest, NotesARequestToADriveThatIsGone) {
    m_computer.plug(m_drive);
    listen();
    m_computer.unplug(m_drive);
    m_computer.log.clear();
    EXPECT_EQ(readStatus(*m_handles[0]), kIOReturnNoDevice);
    EXPECT_EQ(m_computer.log.count("TKVR21_GetDeviceStatus"), 1U);
}

TEST_F(VirtualBusTest, NotesTheReadingOfASerialNumberApartFromTheCommands) {
    m_computer.plug(m_drive);
    listen();
    m_computer.log.clear();
    EXPECT_EQ(readSerial(*m_handles[0]), "ZD0000000000A1");
    EXPECT_EQ(m_computer.log.texts(LogLine::Kind::StandardRequest).size(), 1U);
    EXPECT_TRUE(m_computer.log.texts(LogLine::Kind::Command).empty());
    EXPECT_TRUE(m_computer.log.story().empty());
}

/// A layer that says its name to every request.
class NamedLayer : public ForwardingDevice {
public:
    NamedLayer(std::unique_ptr<UsbDeviceInterface> device, std::string& heard, char name)
        : ForwardingDevice(std::move(device)), m_heard(heard), m_name(name) {}
    [[nodiscard]] IOReturn DeviceRequest(IOUSBDevRequest& request) override {
        m_heard += m_name;
        return ForwardingDevice::DeviceRequest(request);
    }

private:
    std::string& m_heard;
    char m_name;
};

TEST_F(VirtualBusTest, PutsEveryLayerAroundAHandleTheLatestOutermost) {
    std::string heard;
    for (const char name : {'a', 'b', 'c'}) {
        m_computer.usb.addHandleLayer([&heard, name](std::unique_ptr<UsbDeviceInterface> handle) {
            return std::make_unique<NamedLayer>(std::move(handle), heard, name);
        });
    }
    m_computer.plug(m_drive);
    listen();
    EXPECT_EQ(readStatus(*m_handles[0]), kIOReturnSuccess);
    EXPECT_EQ(heard, "cba");
    EXPECT_EQ(m_handles[0]->GetDeviceVendor(), UsbIdentity::Vendor);
    EXPECT_EQ(m_handles[0]->GetDeviceProduct(), UsbIdentity::Product);
    EXPECT_EQ(m_handles[0]->GetDeviceReleaseNumber(), 0x0100);
    EXPECT_EQ(m_handles[0]->USBGetSerialNumberStringIndex(), 3);
}

} // namespace
} // namespace zelto::test
