#include "simulator/usb/ControlFaults.h"
#include "tests/usb/UsbTest.h"

namespace zelto::test {
namespace {

using namespace simulator;
using ::testing::ElementsAre;

using ControlEndpoint = UsbTest;

TEST_F(ControlEndpoint, ReportsItsConfiguration) {
    EXPECT_EQ(control({0x80, 8, 0, 0, 1}).length, 1U);
    EXPECT_THAT(reply, ElementsAre(1));
    EXPECT_EQ(control({0x00, 9, 0, 0, 0}), Done);
    (void)control({0x80, 8, 0, 0, 1});
    EXPECT_THAT(reply, ElementsAre(0));
}

TEST_F(ControlEndpoint, RefusesAConfigurationThatThereIsNot) {
    EXPECT_EQ(control({0x00, 9, 2, 0, 0}), Stall);
    EXPECT_EQ(device.configuration(), 1);
}

TEST_F(ControlEndpoint, ReportsDeviceInterfaceAndEndpointStatus) {
    for (const SetupPacket& setup :
         {SetupPacket{0x80, 0, 0, 0, 2}, SetupPacket{0x81, 0, 0, 0, 2},
          SetupPacket{0x82, 0, 0, 0x00, 2}, SetupPacket{0x82, 0, 0, 0x80, 2},
          SetupPacket{0x82, 0, 0, 0x81, 2}, SetupPacket{0x82, 0, 0, 0x02, 2}}) {
        EXPECT_EQ(control(setup).length, 2U);
        EXPECT_THAT(reply, ElementsAre(0, 0));
    }
}

TEST_F(ControlEndpoint, RefusesTheStatusOfWhatThereIsNot) {
    EXPECT_EQ(control({0x81, 0, 0, 1, 2}), Stall);
    EXPECT_EQ(control({0x82, 0, 0, 0x82, 2}), Stall);
    EXPECT_EQ(control({0x82, 0, 0, 0x01, 2}), Stall);
    EXPECT_EQ(control({0x83, 0, 0, 0, 2}), Stall);
    EXPECT_EQ(control({0x80, 0, 1, 0, 2}), Stall);
}

TEST_F(ControlEndpoint, HaltsAndFreesEndpoints) {
    EXPECT_EQ(control({0x02, 3, 0, 0x81, 0}), Done);
    (void)control({0x82, 0, 0, 0x81, 2});
    EXPECT_THAT(reply, ElementsAre(1, 0));
    EXPECT_EQ(in(13), Stall);
    EXPECT_EQ(clearHalt(0x81), Done);
    EXPECT_EQ(in(13), Held);

    EXPECT_EQ(control({0x02, 3, 0, 0x02, 0}), Done);
    EXPECT_EQ(out(commandWrapper(1, 0, 0, 0, {0, 0, 0, 0, 0, 0})), Stall);
    EXPECT_EQ(clearHalt(0x02), Done);
}

TEST_F(ControlEndpoint, RefusesOtherFeatures) {
    EXPECT_EQ(control({0x00, 3, 1, 0, 0}), Stall);      // remote wake-up
    EXPECT_EQ(control({0x00, 3, 2, 0x0100, 0}), Stall); // test mode
    EXPECT_EQ(control({0x02, 3, 1, 0x81, 0}), Stall);
    EXPECT_EQ(control({0x02, 3, 0, 0x83, 0}), Stall);
}

TEST_F(ControlEndpoint, FreesTheEndpointsWhenItIsConfiguredAnew) {
    EXPECT_EQ(control({0x02, 3, 0, 0x81, 0}), Done);
    EXPECT_EQ(control({0x00, 9, 1, 0, 0}), Done);
    EXPECT_EQ(in(13), Held);
    EXPECT_EQ(control({0x02, 3, 0, 0x81, 0}), Done);
    EXPECT_EQ(control({0x01, 11, 0, 0, 0}), Done);
    EXPECT_EQ(in(13), Held);
}

TEST_F(ControlEndpoint, HasOneInterfaceWithOneSetting) {
    EXPECT_EQ(control({0x81, 10, 0, 0, 1}).length, 1U);
    EXPECT_THAT(reply, ElementsAre(0));
    EXPECT_EQ(control({0x81, 10, 0, 1, 1}), Stall);
    EXPECT_EQ(control({0x01, 11, 1, 0, 0}), Stall);
    EXPECT_EQ(control({0x01, 11, 0, 1, 0}), Stall);
}

TEST_F(ControlEndpoint, LeavesTheAddressToTheBus) {
    EXPECT_EQ(control({0x00, 5, 7, 0, 0}), Done);
    EXPECT_EQ(control({0x00, 5, 128, 0, 0}), Stall);
}

TEST_F(ControlEndpoint, TellsTheHighestUnitNumber) {
    EXPECT_EQ(control({0xA1, 0xFE, 0, 0, 1}).length, 1U);
    EXPECT_THAT(reply, ElementsAre(3));
    EXPECT_EQ(control({0xA1, 0xFE, 0, 1, 1}), Stall);
    EXPECT_EQ(control({0xA1, 0xFE, 1, 0, 1}), Stall);
    EXPECT_EQ(control({0x21, 0xFE, 0, 0, 0}), Stall);
}

TEST_F(ControlEndpoint, RefusesABulkOnlyResetThatIsNotOne) {
    EXPECT_EQ(bulkOnlyReset(), Done);
    EXPECT_EQ(control({0x21, 0xFF, 0, 1, 0}), Stall);
    EXPECT_EQ(control({0x21, 0xFF, 1, 0, 0}), Stall);
    EXPECT_EQ(control({0xA1, 0xFF, 0, 0, 1}), Stall);
}

TEST_F(ControlEndpoint, StallsEverythingElse) {
    for (unsigned type : {0x00U, 0x01U, 0x02U, 0x03U, 0x21U, 0x22U, 0x60U}) {
        for (unsigned request : {2U, 4U, 7U, 12U, 13U, 0x50U, 0xC0U}) {
            for (unsigned direction : {0x00U, 0x80U}) {
                const SetupPacket setup{static_cast<std::uint8_t>(type | direction),
                                        static_cast<std::uint8_t>(request), 0, 0, 0};
                EXPECT_EQ(control(setup), Stall) << type << ' ' << request;
            }
        }
    }
}

TEST_F(ControlEndpoint, HasNoInterfaceBeforeItIsConfigured) {
    device.powerUp();
    EXPECT_EQ(control({0xA1, 0xFE, 0, 0, 1}), Stall);
    EXPECT_EQ(control({0x81, 0, 0, 0, 2}), Stall);
    EXPECT_EQ(control({0x82, 0, 0, 0x81, 2}), Stall);
    EXPECT_EQ(control({0x01, 11, 0, 0, 0}), Stall);
    EXPECT_EQ(in(13), (TransferResult{TransferStatus::NoResponse, 0}));
    EXPECT_EQ(out({}), (TransferResult{TransferStatus::NoResponse, 0}));
}

TEST_F(ControlEndpoint, HandsVendorRequestsToTheFirmware) {
    firmware.answer->data = {1, 2, 3};
    EXPECT_EQ(control({0xC0, 0xC0, 1, 2, 36}).length, 3U);
    EXPECT_THAT(reply, ElementsAre(1, 2, 3));
    EXPECT_EQ(control({0x40, 0xB3, 0, 0, 2}, {8, 9}),
              (TransferResult{TransferStatus::Complete, 2}));
    ASSERT_EQ(firmware.seen.size(), 2U);
    EXPECT_EQ(firmware.seen[0].setup.bRequest, 0xC0);
    EXPECT_EQ(firmware.seen[0].setup.wIndex, 2);
    EXPECT_THAT(firmware.seen[1].sent, ElementsAre(8, 9));
}

TEST_F(ControlEndpoint, SendsNoMoreThanAskedForWhateverTheFirmwareSays) {
    firmware.answer->data = Bytes(500);
    EXPECT_EQ(control({0xC0, 0xC0, 0, 0, 36}).length, 36U);
}

TEST_F(ControlEndpoint, StallsWhatTheFirmwareRefuses) {
    firmware.answer->stalled = true;
    EXPECT_EQ(control({0xC0, 0xC0, 0, 0, 36}), Stall);
}

TEST_F(ControlEndpoint, RefusesADataStageOfAnotherLengthThanTheSetupSays) {
    EXPECT_EQ(control({0x40, 0xB3, 0, 0, 34}, Bytes(33)), Stall);
    EXPECT_EQ(control({0x40, 0xB3, 0, 0, 0}, Bytes(1)), Stall);
    EXPECT_TRUE(firmware.seen.empty());
}

TEST_F(ControlEndpoint, NoticesMediaThatARequestTookAndBroughtBack) {
    EXPECT_EQ(out(commandWrapper(1, 0, 0, 0, {0, 0, 0, 0, 0, 0})).status, TransferStatus::Complete);
    expectStatus(1, 0, 0);
    firmware.effect = [this] { storage.remove(0); };
    (void)control({0x40, 0xB4, 0, 0, 0});
    firmware.effect = [this] { storage.insert(0, Sectors); };
    (void)control({0x40, 0xB3, 0, 0, 0});
    EXPECT_EQ(out(commandWrapper(2, 0, 0, 0, {0, 0, 0, 0, 0, 0})).status, TransferStatus::Complete);
    expectStatus(2, 0, 1);
}

class Faults : public ::testing::Test {
protected:
    std::optional<ControlReply> ask() { return faults.request({0xC0, 0xC0, 0, 0, 8}, {}); }

    Faults() { firmware.answer->data = Bytes(8); }
    FakeControl firmware;
    ControlFaults faults{
        [this](const auto& setup, auto sent) { return firmware.request(setup, sent); }};
};

TEST_F(Faults, HitTheRequestCountedAndNoOther) {
    faults.failRequest(3, FaultKind::FailsBefore);
    EXPECT_FALSE(ask()->stalled);
    EXPECT_FALSE(ask()->stalled);
    EXPECT_TRUE(ask()->stalled);
    EXPECT_FALSE(ask()->stalled);
    EXPECT_EQ(firmware.seen.size(), 3U);
}

TEST_F(Faults, CountOnlyRequestsOfTheirCodeTowardsTheDrive) {
    const auto logIn = [this] { return faults.request({0x40, 0xB3, 0, 0, 0}, {}); };
    faults.failRequest(2, FaultKind::FailsBefore, 0xB3);
    EXPECT_FALSE(ask()->stalled);
    EXPECT_FALSE(logIn()->stalled);
    EXPECT_FALSE(faults.request({0xC0, 0xB3, 0, 0, 8}, {})->stalled);
    EXPECT_FALSE(ask()->stalled);
    EXPECT_TRUE(logIn()->stalled);
    EXPECT_FALSE(logIn()->stalled);
}

TEST_F(Faults, CanBeTakenBack) {
    faults.failRequest(1, FaultKind::FailsBefore);
    faults.failRequest(0, FaultKind::FailsBefore);
    EXPECT_FALSE(ask()->stalled);
}

TEST_F(Faults, LoseTheAnswerOfARequestThatWasObeyed) {
    faults.failRequest(1, FaultKind::FailsAfter);
    EXPECT_TRUE(ask()->stalled);
    EXPECT_EQ(firmware.seen.size(), 1U);
}

TEST_F(Faults, KeepSilentBeforeAndAfterTheEffect) {
    faults.failRequest(1, FaultKind::SilentBefore);
    EXPECT_FALSE(ask());
    EXPECT_EQ(firmware.seen.size(), 0U);
    faults.failRequest(1, FaultKind::SilentAfter);
    EXPECT_FALSE(ask());
    EXPECT_EQ(firmware.seen.size(), 1U);
    EXPECT_FALSE(faults.takeVanished());
}

TEST_F(Faults, AnswerShort) {
    faults.failRequest(1, FaultKind::AnswersShort);
    EXPECT_EQ(ask()->data.size(), 4U);
}

TEST_F(Faults, MakeTheDriveVanishOnce) {
    faults.failRequest(1, FaultKind::VanishesBefore);
    EXPECT_FALSE(ask());
    EXPECT_TRUE(faults.takeVanished());
    EXPECT_FALSE(faults.takeVanished());
    EXPECT_EQ(firmware.seen.size(), 0U);
    faults.failRequest(1, FaultKind::VanishesAfter);
    EXPECT_FALSE(ask());
    EXPECT_EQ(firmware.seen.size(), 1U);
}

TEST(FaultNames, AreKnown) {
    EXPECT_EQ(faultNamed("stall"), FaultKind::FailsBefore);
    EXPECT_EQ(faultNamed("lost"), FaultKind::FailsAfter);
    EXPECT_EQ(faultNamed("silent"), FaultKind::SilentBefore);
    EXPECT_EQ(faultNamed("silent-after"), FaultKind::SilentAfter);
    EXPECT_EQ(faultNamed("short"), FaultKind::AnswersShort);
    EXPECT_EQ(faultNamed("vanish"), FaultKind::VanishesBefore);
    EXPECT_EQ(faultNamed("vanish-after"), FaultKind::VanishesAfter);
    EXPECT_EQ(faultNamed("otherwise"), std::nullopt);
}

} // namespace
} // namespace zelto::test
