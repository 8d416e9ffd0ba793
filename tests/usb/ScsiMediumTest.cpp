#include "tests/usb/ScsiTest.h"

namespace zelto::test {
namespace {

using namespace simulator;
using ScsiMedium = ScsiTest;

TEST_F(ScsiMedium, IsReadyOnceItsArrivalWasAnnounced) {
    expectGood(TestUnitReady);
}

TEST_F(ScsiMedium, PowerOnIsAnnouncedOnce) {
    unit.powerUp();
    expectRefused(TestUnitReady, PowerOn);
    expectGood(TestUnitReady);
}

TEST_F(ScsiMedium, PowerOnIsAnnouncedEvenWithoutAMedium) {
    storage.remove(UnitNumber);
    unit.powerUp();
    expectRefused(TestUnitReady, PowerOn);
    expectRefused(TestUnitReady, NoMedium);
}

TEST_F(ScsiMedium, InquiryNeitherTellsNorClearsTheAttention) {
    unit.powerUp();
    expectGood({0x12, 0, 0, 0, 36, 0});
    expectGood({0xA0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0});
    expectRefused(TestUnitReady, PowerOn);
}

TEST_F(ScsiMedium, RequestSenseTellsAndClearsTheAttention) {
    unit.powerUp();
    const Bytes data = run(RequestSense).data;
    EXPECT_EQ(data[2], 0x06);
    EXPECT_EQ(data[12], 0x29);
    expectGood(TestUnitReady);
}

TEST_F(ScsiMedium, ThatVanishedIsReportedAbsentByEveryCommandThatNeedsIt) {
    storage.remove(UnitNumber);
    for (const Bytes& command :
         {TestUnitReady, ReadCapacity10, Bytes{0x08, 0, 0, 0, 1, 0}, Bytes{0x0A, 0, 0, 0, 1, 0},
          Bytes{0x28, 0, 0, 0, 0, 0, 0, 0, 1, 0}, Bytes{0x2A, 0, 0, 0, 0, 0, 0, 0, 1, 0},
          Bytes{0x2F, 0, 0, 0, 0, 0, 0, 0, 1, 0}, Bytes{0x35, 0, 0, 0, 0, 0, 0, 0, 0, 0},
          Bytes{0xA8, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0},
          Bytes{0xAA, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0},
          Bytes{0xAF, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0},
          Bytes{0x88, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0},
          Bytes{0x8A, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0},
          Bytes{0x8F, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0},
          Bytes{0x91, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0},
          Bytes{0x9E, 0x10, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 32, 0, 0},
          Bytes{0x1B, 0, 0, 0, 0x01, 0}, Load}) {
        expectRefused(command, NoMedium);
    }
}

TEST_F(ScsiMedium, IsNotNeededByCommandsAboutTheUnit) {
    storage.remove(UnitNumber);
    expectGood({0x12, 0, 0, 0, 36, 0});
    expectGood({0x1A, 0, 0x3F, 0, 192, 0});
    expectGood({0x1E, 0, 0, 0, 1, 0});
    expectGood({0x1E, 0, 0, 0, 0, 0});
    expectGood(Eject);
    expectGood({0x1B, 0, 0, 0, 0x00, 0});
}

TEST_F(ScsiMedium, ThatAppearsIsAnnouncedOnce) {
    storage.remove(UnitNumber);
    expectRefused(TestUnitReady, NoMedium);
    storage.insert(UnitNumber, 32);
    expectRefused(TestUnitReady, MediumChanged);
    expectGood(TestUnitReady);
    EXPECT_EQ(run(ReadCapacity10).data[3], 31);
}

TEST_F(ScsiMedium, ExchangedBetweenTwoCommandsIsAnnounced) {
    storage.insert(UnitNumber, Sectors);
    expectRefused({0x28, 0, 0, 0, 0, 0, 0, 0, 1, 0}, MediumChanged);
}

TEST_F(ScsiMedium, ThatWentAndCameBackIsAnnouncedWhenItWasNoticed) {
    storage.remove(UnitNumber);
    unit.noticeMedium();
    storage.insert(UnitNumber, Sectors);
    expectRefused(TestUnitReady, MediumChanged);
}

TEST_F(ScsiMedium, EjectedIsAbsentAndItsContentsAreSafe) {
    storage.flushes = 0;
    expectGood(Eject);
    EXPECT_EQ(storage.flushes, 1);
    expectRefused(TestUnitReady, NoMedium);
    expectRefused({0x28, 0, 0, 0, 0, 0, 0, 0, 1, 0}, NoMedium);
}

TEST_F(ScsiMedium, EjectedStaysEjected) {
    expectGood(Eject);
    unit.noticeMedium();
    expectRefused(TestUnitReady, NoMedium);
    expectRefused({0x1B, 0, 0, 0, 0x01, 0}, NoMedium);
    expectRefused(TestUnitReady, NoMedium);
    expectGood(Eject);
}

TEST_F(ScsiMedium, EjectedComesBackWithALoadCommand) {
    expectGood(Eject);
    expectGood(Load);
    expectGood(TestUnitReady);
}

TEST_F(ScsiMedium, ExchangedWhileEjectedIsAnnouncedThoughTheHostLoadsIt) {
    expectGood(Eject);
    storage.insert(UnitNumber, Sectors);
    expectRefused(Load, MediumChanged);
    expectGood(Load);
    expectGood(TestUnitReady);
}

TEST_F(ScsiMedium, EjectedComesBackWithTheDrivesState) {
    expectGood(Eject);
    storage.remove(UnitNumber);
    expectRefused(TestUnitReady, NoMedium);
    storage.insert(UnitNumber, Sectors);
    expectRefused(TestUnitReady, MediumChanged);
    expectGood(TestUnitReady);
}

TEST_F(ScsiMedium, EjectedComesBackWithPlugging) {
    expectGood(Eject);
    unit.powerUp();
    expectRefused(TestUnitReady, PowerOn);
    expectGood(TestUnitReady);
}

TEST_F(ScsiMedium, LoadingWhatIsLoadedChangesNothing) {
    expectGood(Load);
    expectGood(TestUnitReady);
}

TEST_F(ScsiMedium, CanNotBeEjectedWhileRemovalIsPrevented) {
    expectGood({0x1E, 0, 0, 0, 1, 0});
    expectRefused(Eject, {0x05, 0x53, 0x02});
    expectGood(TestUnitReady);
    expectGood({0x1E, 0, 0, 0, 0, 0});
    expectGood(Eject);
}

TEST_F(ScsiMedium, PreventionEndsWithPlugging) {
    expectGood({0x1E, 0, 0, 0, 1, 0});
    unit.powerUp();
    (void)run(TestUnitReady);
    expectGood(Eject);
}

TEST_F(ScsiMedium, OtherKindsOfPreventionAreRefused) {
    expectRefused({0x1E, 0, 0, 0, 2, 0}, InvalidField);
    expectRefused({0x1E, 0, 0, 0, 3, 0}, InvalidField);
}

TEST_F(ScsiMedium, PowerConditionsAreRefused) {
    expectRefused({0x1B, 0, 0, 0, 0x10, 0}, InvalidField);
}

TEST_F(ScsiMedium, StoppingTheUnitKeepsWhatWasWritten) {
    storage.flushes = 0;
    expectGood({0x1B, 0, 0, 0, 0x00, 0});
    EXPECT_EQ(storage.flushes, 1);
    expectGood(TestUnitReady);
}

TEST_F(ScsiMedium, ThatCanNotBeFlushedIsNotEjected) {
    storage.failsFlush = true;
    expectRefused(Eject, {0x03, 0x0C, 0x00});
    expectGood(TestUnitReady);
}

} // namespace
} // namespace zelto::test
