#include "device/Discovery.h"

#include "tests/support/Bytes.h"
#include "tests/support/ScriptedDevice.h"
#include "tests/support/ScriptedUsb.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zelto::test {
namespace {

/// A string descriptor as an honest drive sends it: ASCII as UTF-16, least significant byte first.
std::vector<std::uint8_t> descriptorOf(std::string_view text) {
    std::vector<std::uint8_t> bytes{static_cast<std::uint8_t>(2 + 2 * text.size()), 3};
    for (const char letter : text) {
        bytes.push_back(static_cast<std::uint8_t>(letter));
        bytes.push_back(0);
    }
    return bytes;
}

std::unique_ptr<ScriptedDevice> driveOf(std::string_view serial) {
    auto drive = std::make_unique<ScriptedDevice>();
    drive->script.push_back({.result = kIOReturnSuccess, .data = descriptorOf(serial)});
    return drive;
}

class Discovery : public testing::Test {
protected:
    void TearDown() override {
        releaseNotifications();
        static_cast<void>(std::signal(SIGINT, SIG_DFL));
    }

    int setUpNotifications() { return SetupMatchingNotification(0x07F7, 0x0135, context); }

    /// Plugs a drive in; it is taken at set-up, or with the next delivery.
    ScriptedDevice* plug(std::string_view serial) {
        auto drive = driveOf(serial);
        auto* const plugged = drive.get();
        usb.plug(std::move(drive));
        return plugged;
    }

    void plugAndDeliver(std::string_view serial) {
        static_cast<void>(plug(serial));
        usb.deliverArrivals();
    }

    ScriptedUsb usb;
    AttachedDrives drives;
    std::vector<UsbEvent> delivered;
    DiscoveryContext context{usb, drives,
                             [this](UsbEvent event, const std::function<void()>& handler) {
                                 delivered.push_back(event);
                                 handler();
                             }};
};

// --- Set-up ------------------------------------------------------------------------------------

TEST_F(Discovery, RegistersForArrivalsAndRemovalsAndDrainsBoth) {
    EXPECT_EQ(setUpNotifications(), 0);
    EXPECT_EQ(usb.calls, (std::vector<std::string>{"IOMasterPort", "IONotificationPortCreate",
                                                   "FirstMatch on port 1", "drained 2",
                                                   "Terminate on port 1", "drained 3"}));
    EXPECT_EQ(gNotifyPort, 1U);
    EXPECT_EQ(gUsbAddedIter, 2U);
    EXPECT_EQ(gUsbRemovedIter, 3U);
}

TEST_F(Discovery, LooksForTheVendorAndProductThatItIsGiven) {
    EXPECT_EQ(SetupMatchingNotification(0x11112222, 0x33334444, context), 0);
    ASSERT_EQ(usb.matchings.size(), 2U);
    for (const UsbMatching& matching : usb.matchings) {
        EXPECT_EQ(matching.idVendor, 0x11112222U);
        EXPECT_EQ(matching.idProduct, 0x33334444U);
    }
}

TEST_F(Discovery, NothingArmsTheRawDeviceSlots) {
    EXPECT_EQ(setUpNotifications(), 0);
    EXPECT_EQ(gRawAddedIter, 0U);
    EXPECT_EQ(gRawRemovedIter, 0U);
}

TEST_F(Discovery, WithoutAUsbServiceSetUpFailsAndRegistersNothing) {
    usb.hasMasterPort = false;
    static_cast<void>(plug("SERIAL"));
    EXPECT_EQ(setUpNotifications(), -1);
    EXPECT_EQ(usb.calls, std::vector<std::string>{"IOMasterPort"});
    EXPECT_EQ(drives.DevCnt, 0);
}

TEST_F(Discovery, WithoutAPortTheDrivesThatAreThereAreListed) {
    usb.hasPort = false;
    static_cast<void>(plug("SERIAL"));
    EXPECT_EQ(setUpNotifications(), 0);
    EXPECT_EQ(drives.DevCnt, 1);
}

TEST_F(Discovery, FailedRegistrationsAreNotAFailure) {
    usb.registrationsWork = false;
    EXPECT_EQ(setUpNotifications(), 0);
    EXPECT_EQ(drives.DevCnt, 0);
}

TEST_F(Discovery, DrivesPresentAtSetUpAreTakenDirectlyAndEventsAreDelivered) {
    static_cast<void>(plug("FIRST"));
    EXPECT_EQ(setUpNotifications(), 0);
    EXPECT_TRUE(delivered.empty());
    plugAndDeliver("SECOND");
    usb.deliverRemovals(1);
    EXPECT_EQ(delivered, (std::vector<UsbEvent>{UsbEvent::FirstMatch, UsbEvent::Terminate}));
}

TEST_F(Discovery, AnEventHeldBackHappensWhenItsHandlerRuns) {
    std::vector<std::function<void()>> heldBack;
    context.deliver = [&heldBack](UsbEvent, std::function<void()> handler) {
        heldBack.push_back(std::move(handler));
    };
    EXPECT_EQ(setUpNotifications(), 0);
    plugAndDeliver("SERIAL");
    EXPECT_EQ(drives.DevCnt, 0);
    ASSERT_EQ(heldBack.size(), 1U);
    heldBack[0]();
    EXPECT_EQ(drives.DevCnt, 1);
}

// --- Arrival -----------------------------------------------------------------------------------

TEST_F(Discovery, TwoDrivesAtStartAreListedInTheOrderReported) {
    const auto* const first = plug("FIRST");
    auto* const second = plug("SECOND");
    second->product = 0x0136;
    EXPECT_EQ(setUpNotifications(), 0);
    EXPECT_EQ(drives.DevCnt, 2);
    EXPECT_EQ(drives.UsbIntf[0], first);
    EXPECT_EQ(drives.UsbIntf[1], second);
    EXPECT_EQ(drives.UsbSerial[0], "FIRST");
    EXPECT_EQ(drives.UsbSerial[1], "SECOND");
    EXPECT_EQ(drives.FoundPid[0], 0x0135);
    EXPECT_EQ(drives.FoundPid[1], 0x0136);
    EXPECT_EQ(drives.CurrentUsbIntf, nullptr);
}

TEST_F(Discovery, EachDriveIsOpenedOnceAndAskedForItsSerialNumberOnly) {
    const auto* const drive = plug("SERIAL");
    EXPECT_EQ(setUpNotifications(), 0);
    EXPECT_EQ(drive->timesOpened, 1);
    ASSERT_EQ(drive->transfers.size(), 1U);
    EXPECT_EQ(toHex(drive->transfers[0].setupPacket()), "8006030309048000");
}

TEST_F(Discovery, ANinthDriveIsNotListedButStaysOpen) {
    for (int count = 0; count < 8; ++count) {
        static_cast<void>(plug("DRIVE" + std::to_string(count)));
    }
    const std::weak_ptr<const bool> ninth = plug("NINTH")->presence;
    EXPECT_EQ(setUpNotifications(), 0);
    EXPECT_EQ(drives.DevCnt, 8);
    EXPECT_EQ(drives.UsbSerial[7], "DRIVE7");
    EXPECT_FALSE(ninth.expired());
}

TEST_F(Discovery, ANinthDriveThatIsAwaitedBecomesCurrent) {
    for (int count = 0; count < 8; ++count) {
        static_cast<void>(plug("DRIVE" + std::to_string(count)));
    }
    EXPECT_EQ(setUpNotifications(), 0);
    drives.SelectedZeltoIndex = 2;
    drives.WaitReconnectZelto = true;
    const auto* const ninth = plug("DRIVE2");
    usb.deliverArrivals();
    EXPECT_EQ(drives.DevCnt, 8);
    EXPECT_EQ(drives.CurrentUsbIntf, ninth);
    EXPECT_FALSE(drives.WaitReconnectZelto);
}

TEST_F(Discovery, ADrivePluggedInAgainIsListedASecondTime) {
    auto* const dead = plug("SERIAL");
    EXPECT_EQ(setUpNotifications(), 0);
    drives.CurrentUsbIntf = dead;
    usb.deliverRemovals(1);
    plugAndDeliver("SERIAL");
    EXPECT_EQ(drives.DevCnt, 2);
    EXPECT_EQ(drives.UsbSerial[0], "SERIAL");
    EXPECT_EQ(drives.UsbSerial[1], "SERIAL");
    EXPECT_EQ(drives.CurrentUsbIntf, dead);
}

TEST_F(Discovery, TheAwaitedDriveBecomesCurrentWhenItReturns) {
    drives.CurrentUsbIntf = plug("SERIAL");
    EXPECT_EQ(setUpNotifications(), 0);
    drives.WaitReconnectZelto = true;
    const auto* const returned = plug("SERIAL");
    usb.deliverArrivals();
    EXPECT_EQ(drives.CurrentUsbIntf, returned);
    EXPECT_FALSE(drives.WaitReconnectZelto);
    EXPECT_EQ(drives.DevCnt, 2);
}

TEST_F(Discovery, AnotherDriveArrivingMeanwhileIsOnlyListed) {
    auto* const chosen = plug("SERIAL");
    EXPECT_EQ(setUpNotifications(), 0);
    drives.CurrentUsbIntf = chosen;
    drives.WaitReconnectZelto = true;
    plugAndDeliver("SERIAL2");
    plugAndDeliver("serial");
    EXPECT_EQ(drives.DevCnt, 3);
    EXPECT_EQ(drives.CurrentUsbIntf, chosen);
    EXPECT_TRUE(drives.WaitReconnectZelto);
}

TEST_F(Discovery, OnlyTheFirstOfTwoReturningDrivesIsTaken) {
    drives.CurrentUsbIntf = plug("SERIAL");
    EXPECT_EQ(setUpNotifications(), 0);
    drives.WaitReconnectZelto = true;
    const auto* const first = plug("SERIAL");
    static_cast<void>(plug("SERIAL"));
    usb.deliverArrivals();
    EXPECT_EQ(drives.CurrentUsbIntf, first);
}

TEST_F(Discovery, AServiceWithoutAnInterfaceIsPassedOver) {
    usb.plug(nullptr);
    static_cast<void>(plug("SERIAL"));
    EXPECT_EQ(setUpNotifications(), 0);
    EXPECT_EQ(drives.DevCnt, 1);
    EXPECT_EQ(drives.UsbSerial[0], "SERIAL");
    EXPECT_EQ(usb.undrained(), 0U);
}

TEST_F(Discovery, ADriveThatCannotBeOpenedIsReleasedAndPassedOver) {
    auto* const refused = plug("REFUSED");
    refused->openResult = kIOReturnIOError;
    const std::weak_ptr<const bool> presence = refused->presence;
    static_cast<void>(plug("SERIAL"));
    EXPECT_EQ(setUpNotifications(), 0);
    EXPECT_TRUE(presence.expired());
    EXPECT_EQ(drives.DevCnt, 1);
    EXPECT_EQ(drives.UsbSerial[0], "SERIAL");
    EXPECT_EQ(drives.refusedAccess(), AttachedDrives::Access::Granted);
}

TEST_F(Discovery, KeepsTheReasonWhyPermissionWasRefused) {
    EXPECT_EQ(setUpNotifications(), 0);
    plug("REFUSED")->openResult = kIOReturnNotPrivileged;
    usb.deliverArrivals();
    EXPECT_EQ(drives.refusedAccess(), AttachedDrives::Access::RuleMissing);
    plug("REFUSED")->openResult = kIOReturnNotPermitted;
    usb.deliverArrivals();
    EXPECT_EQ(drives.refusedAccess(), AttachedDrives::Access::OtherSession);
    plug("REFUSED")->openResult = kIOReturnExclusiveAccess;
    usb.deliverArrivals();
    EXPECT_EQ(drives.refusedAccess(), AttachedDrives::Access::InUse);
    plug("REFUSED")->openResult = kIOReturnNoDevice;
    usb.deliverArrivals();
    EXPECT_EQ(drives.refusedAccess(), AttachedDrives::Access::InUse);
    EXPECT_EQ(drives.DevCnt, 0);
}

TEST_F(Discovery, ARefusalIsForgottenOnceTheDriveHasLeft) {
    EXPECT_EQ(setUpNotifications(), 0);
    auto* const first = plug("FIRST");
    auto* const second = plug("SECOND");
    first->openResult = kIOReturnNotPrivileged;
    second->openResult = kIOReturnNotPermitted;
    usb.deliverArrivals();
    usb.deliverRemovals(1);
    EXPECT_EQ(drives.refusedAccess(), AttachedDrives::Access::OtherSession) << "another has left";
    usb.deliverRemovalOf(second->location);
    EXPECT_EQ(drives.refusedAccess(), AttachedDrives::Access::RuleMissing) << "the first is there";
    usb.deliverRemovalOf(first->location);
    EXPECT_EQ(drives.refusedAccess(), AttachedDrives::Access::Granted);
}

TEST_F(Discovery, ARefusalIsForgottenOnceTheDriveOpensAtItsSecondChance) {
    EXPECT_EQ(setUpNotifications(), 0);
    auto* const refused = plug("SERIAL");
    refused->openResult = kIOReturnNotPrivileged;
    usb.deliverArrivals();
    auto again = driveOf("SERIAL");
    again->location = refused->location;
    usb.plug(std::move(again));
    usb.deliverArrivals();
    EXPECT_EQ(drives.refusedAccess(), AttachedDrives::Access::Granted);
    EXPECT_EQ(drives.DevCnt, 1);
}

TEST_F(Discovery, ADriveThatIsRefusedAgainIsKeptOnceForItsLatestReason) {
    EXPECT_EQ(setUpNotifications(), 0);
    auto* const refused = plug("SERIAL");
    refused->openResult = kIOReturnNotPrivileged;
    usb.deliverArrivals();
    auto again = driveOf("SERIAL");
    again->location = refused->location;
    again->openResult = kIOReturnExclusiveAccess;
    usb.plug(std::move(again));
    usb.deliverArrivals();
    ASSERT_EQ(drives.Refused.size(), 1U);
    EXPECT_EQ(drives.refusedAccess(), AttachedDrives::Access::InUse);
}

TEST_F(Discovery, RefusedDrivesAreTriedAgainOnRequest) {
    EXPECT_EQ(setUpNotifications(), 0);
    auto* const freed = plug("FREED");
    auto* const gone = plug("GONE");
    auto* const kept = plug("KEPT");
    for (auto* const drive : {freed, gone, kept}) {
        drive->openResult = kIOReturnExclusiveAccess;
    }
    usb.deliverArrivals();
    freed->openResult = kIOReturnSuccess;
    gone->openResult = kIOReturnNoDevice;
    TryRefusedDrivesAgain(drives);
    EXPECT_EQ(drives.DevCnt, 1);
    EXPECT_EQ(drives.UsbSerial[0], "FREED");
    ASSERT_EQ(drives.Refused.size(), 1U);
    EXPECT_EQ(drives.Refused[0].device.get(), kept);
}

TEST_F(Discovery, RemovalsAreDrainedAndLeaveTheListsAlone) {
    const auto* const drive = plug("SERIAL");
    EXPECT_EQ(setUpNotifications(), 0);
    usb.deliverRemovals(3);
    EXPECT_EQ(usb.undrained(), 0U);
    EXPECT_EQ(drives.DevCnt, 1);
    EXPECT_EQ(drives.UsbIntf[0], drive);
    EXPECT_EQ(drives.UsbSerial[0], "SERIAL");
}

// --- Serial numbers ----------------------------------------------------------------------------

TEST_F(Discovery, ADriveWhoseSerialNumberCannotBeReadHasAnEmptyOne) {
    auto drive = std::make_unique<ScriptedDevice>();
    drive->script.push_back({.result = kIOUSBPipeStalled, .data = {}});
    usb.plug(std::move(drive));
    EXPECT_EQ(setUpNotifications(), 0);
    EXPECT_EQ(drives.DevCnt, 1);
    EXPECT_EQ(drives.UsbSerial[0], "");
}

TEST_F(Discovery, AShortAnswerGivesTheLettersThatCame) {
    auto drive = std::make_unique<ScriptedDevice>();
    // Claims twelve letters and sends three.
    drive->script.push_back({.data = {26, 3, 'A', 0, 'B', 0, 'C', 0}});
    usb.plug(std::move(drive));
    EXPECT_EQ(setUpNotifications(), 0);
    EXPECT_EQ(drives.UsbSerial[0], "ABC");
}

TEST(SerialNumberRequest, IsAStandardRequestForAStringInEnglish) {
    ScriptedDevice device;
    device.script.push_back({.result = kIOReturnTimeout, .data = {2, 3}});
    std::array<std::uint8_t, 4> buffer{9, 9, 9, 9};
    EXPECT_EQ(USB_GetSerialNumberString(device, 0xAB, buffer.data(), 4), kIOReturnTimeout);
    ASSERT_EQ(device.transfers.size(), 1U);
    EXPECT_EQ(toHex(device.transfers[0].setupPacket()), "8006ab0309040400");
    EXPECT_EQ(buffer, (std::array<std::uint8_t, 4>{2, 3, 9, 9}));
}

StringDescriptor filledDescriptor(std::uint8_t claimedLength) {
    StringDescriptor descriptor;
    descriptor.fill('x');
    descriptor[0] = claimedLength;
    return descriptor;
}

TEST(SerialNumber, ALengthOf26GivesTwelveLetters) {
    StringDescriptor descriptor{};
    std::ranges::copy(descriptorOf("ZD0123456789"), descriptor.begin());
    ASSERT_EQ(descriptor[0], 26);
    EXPECT_EQ(decodeSerialNumber(descriptor), "ZD0123456789");
}

TEST(SerialNumber, KeepsTheLowByteOfEachCodeUnit) {
    StringDescriptor descriptor{8, 3, 'A', 0x12, 'B', 0xFF, 0xE9, 0x00};
    EXPECT_EQ(decodeSerialNumber(descriptor), "AB\xE9");
}

TEST(SerialNumber, EndsAtTheFirstZero) {
    StringDescriptor descriptor{10, 3, 'A', 0, 0, 1, 'B', 0, 'C', 0};
    EXPECT_EQ(decodeSerialNumber(descriptor), "A");
}

TEST(SerialNumber, AnyClaimedLengthStaysWithinTheBuffers) {
    for (unsigned claimed = 0; claimed < 256; ++claimed) {
        // A letter begins at each even offset from 2 that the claim still covers.
        const unsigned letters = claimed < 3 ? 0 : (claimed - 1) / 2;
        EXPECT_EQ(decodeSerialNumber(filledDescriptor(static_cast<std::uint8_t>(claimed))),
                  std::string(std::min(letters, 63U), 'x'))
            << "bLength " << claimed;
    }
}

} // namespace
} // namespace zelto::test
