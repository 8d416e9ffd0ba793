#include "platform/linux/LinuxUsb.h"
#include "device/DeviceStatus.h"
#include "tests/platform/UsbBed.h"

#include <QCoreApplication>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <libusb.h>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace zelto::test {
namespace {

using namespace linux_platform;

constexpr UsbMatching Zelto{0x07f7, 0x0135};

class UsbTest : public ::testing::Test {
protected:
    /// Registers for arrivals and takes those that are there. The callback drains and counts.
    std::size_t listenForArrivals() {
        EXPECT_TRUE(usb.IOMasterPort());
        port = usb.IONotificationPortCreate();
        EXPECT_NE(port, 0U);
        added = usb.IOServiceAddMatchingNotification(port, UsbEvent::FirstMatch, Zelto,
                                                     [this](IOObject) {
                                                         ++callbacks;
                                                         drain();
                                                     });
        removed = usb.IOServiceAddMatchingNotification(port, UsbEvent::Terminate, Zelto,
                                                       [this](IOObject iterator) {
                                                           while (usb.IOIteratorNext(iterator)) {
                                                               ++removals;
                                                           }
                                                       });
        EXPECT_EQ(usb.IOIteratorNext(removed), nullptr);
        drain();
        return services.size();
    }
    void drain() {
        while (auto service = usb.IOIteratorNext(added)) {
            if (opensArrivals) {
                opened.push_back(service->IOCreatePlugInInterfaceForService());
                EXPECT_EQ(opened.back()->USBDeviceOpen(), kIOReturnSuccess);
            }
            services.push_back(std::move(service));
        }
    }
    static void processEvents() {
        for (int round = 0; round < 5; ++round) {
            QCoreApplication::processEvents();
        }
    }
    std::unique_ptr<UsbDeviceInterface> openFirst() {
        auto device = services.at(0)->IOCreatePlugInInterfaceForService();
        EXPECT_EQ(device->USBDeviceOpen(), kIOReturnSuccess);
        return device;
    }
    static IOReturn readStatus(UsbDeviceInterface& device, std::array<std::uint8_t, 36>& data) {
        IOUSBDevRequest request{0xC0, 0xC0, 0, 0, 36, data.data(), 0};
        return device.DeviceRequest(request);
    }

    UsbBed bed;
    Waiting waiting;
    LinuxUsb usb{waiting,
                 {1, std::chrono::milliseconds(0)},
                 {.sleep = [this](std::chrono::milliseconds duration) {
                     slept += duration;
                     if (slept >= departure) {
                         bed.failure = ENODEV;
                     }
                 }}};
    /// How long broken transfers have been pondered, and when in that time the drive leaves.
    std::chrono::milliseconds slept{0};
    std::chrono::milliseconds departure = std::chrono::milliseconds::max();
    IOObject port = 0;
    IOObject added = 0;
    IOObject removed = 0;
    std::vector<std::unique_ptr<UsbService>> services;
    std::vector<std::unique_ptr<UsbDeviceInterface>> opened;
    /// Drives are opened as they arrive, as discovery does.
    bool opensArrivals = false;
    int callbacks = 0;
    int removals = 0;
};

TEST_F(UsbTest, WithoutDevicesIsAnEmptyList) {
    EXPECT_EQ(listenForArrivals(), 0U);
}

TEST_F(UsbTest, ListsTheDrivesThatAreThereAndNoOthers) {
    bed.plug(2);
    bed.plug(3, "0136");
    bed.plug(4);
    EXPECT_EQ(listenForArrivals(), 2U);
    processEvents();
    EXPECT_EQ(services.size(), 2U);
}

TEST_F(UsbTest, ReportsAnArrivalOnceHoweverOftenItIsAnnounced) {
    listenForArrivals();
    const auto syspath = bed.plug(2);
    bed.announce(syspath, "add");
    bed.announce(syspath, "bind");
    bed.announce(syspath, "change");
    processEvents();
    EXPECT_EQ(services.size(), 1U);
}

TEST_F(UsbTest, ReportsADriveThatLeavesAndOneThatComesBack) {
    const auto syspath = bed.plug(2);
    EXPECT_EQ(listenForArrivals(), 1U);
    bed.unplug(syspath);
    processEvents();
    EXPECT_EQ(removals, 1);
    bed.plug(2);
    processEvents();
    EXPECT_EQ(services.size(), 2U);
}

TEST_F(UsbTest, OffersADriveAgainThatCouldNotBeOpenedYetUntilItIsOpen) {
    const auto syspath = bed.plug(2);
    listenForArrivals();
    ASSERT_EQ(::rename(bed.nodeFile(2).c_str(), (bed.nodeFile(2) + "-late").c_str()), 0);
    EXPECT_NE(services.at(0)->IOCreatePlugInInterfaceForService()->USBDeviceOpen(),
              kIOReturnSuccess);
    ASSERT_EQ(::rename((bed.nodeFile(2) + "-late").c_str(), bed.nodeFile(2).c_str()), 0);
    for (const auto* action : {"bind", "change", "add"}) {
        services.clear();
        bed.announce(syspath, action);
        processEvents();
        ASSERT_EQ(services.size(), 1U) << action;
    }
    const auto device = openFirst();
    for (const auto* action : {"bind", "change", "add", "unbind"}) {
        bed.announce(syspath, action);
    }
    processEvents();
    EXPECT_EQ(services.size(), 1U) << "it is open now";
}

TEST_F(UsbTest, OffersADriveWhoseAttributesCouldNotBeReadAtFirst) {
    const auto syspath = bed.plug(2);
    bed.set(syspath, "idVendor", "");
    EXPECT_EQ(listenForArrivals(), 0U);
    bed.set(syspath, "idVendor", "07f7\n");
    bed.announce(syspath, "bind");
    processEvents();
    EXPECT_EQ(services.size(), 1U);
}

TEST_F(UsbTest, TakesAReplugForOneArrivalHoweverLateItIsToldOfIt) {
    opensArrivals = true;
    const auto syspath = bed.plug(2);
    EXPECT_EQ(listenForArrivals(), 1U);
    // Out and in again: another node in the same place, listed before the events are read.
    bed.unplug(syspath);
    bed.plug(3, "0135", "250-2");
    (void)usb.IOServiceAddMatchingNotification(port, UsbEvent::Terminate, Zelto, [](IOObject) {});
    processEvents();
    EXPECT_EQ(services.size(), 2U);
    EXPECT_EQ(removals, 1);
}

TEST_F(UsbTest, IgnoresTheRemovalOfAStayThatIsOver) {
    const auto syspath = bed.plug(2);
    listenForArrivals();
    bed.unplug(syspath);
    bed.plug(3, "0135", "250-2");
    processEvents();
    const auto arrivals = services.size();
    bed.announceRemovalOf(2, syspath);
    bed.announce(syspath, "add");
    processEvents();
    EXPECT_EQ(removals, 1);
    EXPECT_EQ(services.size(), arrivals + 1) << "offered again, as nobody has opened it";
}

TEST_F(UsbTest, FallsSilentOnceThePortIsDestroyed) {
    listenForArrivals();
    usb.IONotificationPortDestroy(port);
    usb.IOObjectRelease(added);
    usb.IOObjectRelease(removed);
    bed.plug(2);
    processEvents();
    EXPECT_EQ(callbacks, 0);
    EXPECT_EQ(usb.IOIteratorNext(added), nullptr);
}

TEST_F(UsbTest, OpensADriveAndCarriesItsRequests) {
    bed.plug(2);
    listenForArrivals();
    const auto device = openFirst();
    EXPECT_EQ(device->GetDeviceVendor(), 0x07f7);
    EXPECT_EQ(device->GetDeviceProduct(), 0x0135);
    EXPECT_EQ(device->GetDeviceReleaseNumber(), 0x0100);
    EXPECT_EQ(device->USBGetSerialNumberStringIndex(), 3);

    std::array<std::uint8_t, 128> serial{};
    IOUSBDevRequest request{0x80, 6, 0x0303, 0x0409, 128, serial.data(), 0};
    EXPECT_EQ(device->DeviceRequest(request), kIOReturnSuccess);
    EXPECT_EQ(request.wLenDone, 10U);
    EXPECT_EQ(serial[0], 10);
    EXPECT_EQ(serial[2], 'Z');
    EXPECT_EQ(serial[10], 0) << "the rest stays as it was";
}

TEST_F(UsbTest, NamesThePortThatADriveIsIn) {
    const auto syspath = bed.plug(2);
    listenForArrivals();
    const auto drive = services.front()->IOCreatePlugInInterfaceForService();
    EXPECT_FALSE(drive->GetPortName().empty());
    EXPECT_TRUE(syspath.ends_with("/" + drive->GetPortName())) << drive->GetPortName();
}

TEST_F(UsbTest, TellsAStallATimeOutAnOverrunAndABrokenTransferApart) {
    bed.plug(2);
    listenForArrivals();
    const auto device = openFirst();
    std::array<std::uint8_t, 36> data{};
    for (const auto& [status, result] : {std::pair{-EPIPE, kIOUSBPipeStalled},
                                         {-EOVERFLOW, kIOReturnOverrun},
                                         {-EPROTO, kIOReturnIOError},
                                         {-ENODEV, kIOReturnNoDevice},
                                         {-ESHUTDOWN, kIOReturnNoDevice}}) {
        bed.transferStatus = status;
        EXPECT_EQ(readStatus(*device, data), result) << status;
    }
}

TEST_F(UsbTest, TakesABrokenTransferForAPulledPlugWhenTheDriveLeavesWithinHalfASecond) {
    bed.plug(2);
    listenForArrivals();
    const auto device = openFirst();
    bed.transferStatus = -EPROTO;
    departure = std::chrono::milliseconds(250);
    std::array<std::uint8_t, 36> data{};
    EXPECT_EQ(readStatus(*device, data), kIOReturnNoDevice);
    EXPECT_LT(slept, std::chrono::milliseconds(300)) << "not a moment longer than needed";
}

TEST_F(UsbTest, TakesABrokenTransferForAPulledPlugWhenItsPlaceIsEmptyOrAnothers) {
    const auto syspath = bed.plug(2);
    listenForArrivals();
    const auto device = openFirst();
    bed.transferStatus = -EPROTO;
    std::array<std::uint8_t, 36> data{};
    bed.set(syspath, "devnum", "3\n");
    EXPECT_EQ(readStatus(*device, data), kIOReturnNoDevice);
    EXPECT_EQ(slept, std::chrono::milliseconds(0));
}

TEST_F(UsbTest, WaitsHalfASecondAndNoLongerForADriveThatStays) {
    bed.plug(2);
    listenForArrivals();
    const auto device = openFirst();
    bed.transferStatus = -EPROTO;
    std::array<std::uint8_t, 36> data{};
    EXPECT_EQ(readStatus(*device, data), kIOReturnIOError);
    EXPECT_EQ(slept, std::chrono::milliseconds(500));
}

TEST_F(UsbTest, WaitsForNothingAfterAnAnswerOrAStall) {
    bed.plug(2);
    listenForArrivals();
    const auto device = openFirst();
    std::array<std::uint8_t, 36> data{};
    EXPECT_EQ(readStatus(*device, data), kIOReturnSuccess);
    bed.transferStatus = -EPIPE;
    EXPECT_EQ(readStatus(*device, data), kIOUSBPipeStalled);
    EXPECT_EQ(slept, std::chrono::milliseconds(0));
}

TEST_F(UsbTest, SaysNoDeviceForADriveThatHasLeft) {
    const auto syspath = bed.plug(2);
    listenForArrivals();
    const auto device = openFirst();
    bed.unplug(syspath);
    std::array<std::uint8_t, 36> data{};
    EXPECT_EQ(readStatus(*device, data), kIOReturnNoDevice);
    auto late = services.at(0)->IOCreatePlugInInterfaceForService();
    EXPECT_EQ(late->USBDeviceOpen(), kIOReturnNoDevice);
}

TEST_F(UsbTest, OpensADriveForItselfAlone) {
    bed.plug(2);
    listenForArrivals();
    std::array<std::uint8_t, 36> data{};
    auto second = services.at(0)->IOCreatePlugInInterfaceForService();
    {
        const auto first = openFirst();
        EXPECT_EQ(second->USBDeviceOpen(), kIOReturnExclusiveAccess);
        EXPECT_EQ(readStatus(*second, data), kIOReturnNotOpen);
        EXPECT_EQ(readStatus(*first, data), kIOReturnSuccess);
        EXPECT_EQ(first->USBDeviceOpen(), kIOReturnSuccess) << "it is open already";
    }
    EXPECT_EQ(second->USBDeviceOpen(), kIOReturnSuccess);
    EXPECT_EQ(readStatus(*second, data), kIOReturnSuccess);
}

TEST_F(UsbTest, LetsADriveGoHoweverTheOtherProcessEnds) {
    bed.plug(2);
    listenForArrivals();
    const auto device = services.at(0)->IOCreatePlugInInterfaceForService();
    int ready[2];
    ASSERT_EQ(::pipe(ready), 0);
    const auto other = ::fork();
    if (other == 0) {
        const int node = ::open(bed.nodeFile(2).c_str(), O_RDWR);
        const char locked = ::flock(node, LOCK_EX | LOCK_NB) == 0 ? 'y' : 'n';
        (void)!::write(ready[1], &locked, 1);
        ::pause();
    }
    char locked = 0;
    ASSERT_EQ(::read(ready[0], &locked, 1), 1);
    EXPECT_EQ(locked, 'y');
    EXPECT_EQ(device->USBDeviceOpen(), kIOReturnExclusiveAccess);
    ::kill(other, SIGKILL);
    ::waitpid(other, nullptr, 0);
    EXPECT_EQ(device->USBDeviceOpen(), kIOReturnSuccess);
    ::close(ready[0]);
    ::close(ready[1]);
}

TEST_F(UsbTest, RefusesRequestsThatNoTransferCanCarry) {
    bed.plug(2);
    listenForArrivals();
    auto closed = services.at(0)->IOCreatePlugInInterfaceForService();
    std::vector<std::uint8_t> data(5000);
    IOUSBDevRequest request{0xC0, 0xC0, 0, 0, 36, data.data(), 0};
    EXPECT_EQ(closed->DeviceRequest(request), kIOReturnNotOpen);
    const auto device = openFirst();
    request.wLength = 4097;
    EXPECT_EQ(device->DeviceRequest(request), kIOReturnBadArgument);
    request = {0xC0, 0xC0, 0, 0, 36, nullptr, 0};
    EXPECT_EQ(device->DeviceRequest(request), kIOReturnBadArgument);
}

TEST_F(UsbTest, TellsAMissingRuleFromAMissingDrive) {
    bed.plug(2);
    listenForArrivals();
    ASSERT_EQ(::chmod(bed.nodeFile(2).c_str(), 0), 0);
    auto device = services.at(0)->IOCreatePlugInInterfaceForService();
    if (::getuid() != 0) {
        EXPECT_EQ(device->USBDeviceOpen(), kIOReturnNotPrivileged);
        return;
    }
    // Nothing is closed to root, so a child opens it as nobody.
    const auto child = ::fork();
    if (child == 0) {
        const bool changed = ::setgid(65534) == 0 && ::setuid(65534) == 0;
        ::_exit(changed && device->USBDeviceOpen() == kIOReturnNotPrivileged ? 0 : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
}

TEST(UsbResults, FollowTheTable) {
    EXPECT_EQ(resultOfTransfer(36), kIOReturnSuccess);
    EXPECT_EQ(resultOfTransfer(LIBUSB_ERROR_TIMEOUT), kIOReturnTimeout);
    EXPECT_EQ(resultOfTransfer(LIBUSB_ERROR_OTHER), kIOReturnIOError);
    EXPECT_EQ(resultOfOpen(ENOENT, AccessRule::Missing), kIOReturnNoDevice);
    EXPECT_EQ(resultOfOpen(EACCES, AccessRule::Missing), kIOReturnNotPrivileged);
    EXPECT_EQ(resultOfOpen(EACCES, AccessRule::Present), kIOReturnNotPermitted);
    EXPECT_EQ(resultOfOpen(EPERM, AccessRule::Present), kIOReturnNotPermitted);
    EXPECT_EQ(resultOfOpen(EIO, AccessRule::Present), kIOReturnIOError);
}

} // namespace
} // namespace zelto::test
