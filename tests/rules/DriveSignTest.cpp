#include "session/DriveSign.h"

#include "tests/support/QtPrinting.h"
#include "tests/support/ScriptedDevice.h"

#include <gtest/gtest.h>

#include <deque>

namespace zelto::test {
namespace {

/// Drives with these serial numbers, in the ports 1-1, 1-2 and so on.
class DriveSignTest : public ::testing::Test {
protected:
    void attach(std::initializer_list<std::string> serials) {
        for (const std::string& serial : serials) {
            const std::size_t index = drives.DevCnt++;
            ScriptedDevice& device = m_devices.emplace_back();
            device.port = "1-" + std::to_string(index + 1);
            drives.UsbIntf.at(index) = &device;
            drives.UsbSerial.at(index) = serial;
        }
    }
    [[nodiscard]] DriveSign sign(std::size_t index) const { return driveSign(drives, index); }

    AttachedDrives drives;

private:
    std::deque<ScriptedDevice> m_devices;
};

TEST_F(DriveSignTest, IsTheSerialNumberWhereNoOtherDriveHasIt) {
    attach({"ZD-A", "ZD-B"});
    EXPECT_EQ(sign(0), (DriveSign{.serial = QStringLiteral("ZD-A"), .port = {}}));
    EXPECT_EQ(sign(1), (DriveSign{.serial = QStringLiteral("ZD-B"), .port = {}}));
}

TEST_F(DriveSignTest, NamesThePortOfDrivesWithOneSerialNumberAndOfNoOthers) {
    attach({"ZD-A", "ZD-B", "ZD-A"});
    EXPECT_EQ(sign(0).port, u"1-1");
    EXPECT_EQ(sign(1).port, u"");
    EXPECT_EQ(sign(2).port, u"1-3");
}

TEST_F(DriveSignTest, NamesThePortOfADriveWithoutASerialNumberEvenIfThereIsOne) {
    attach({"", "ZD-B", " "});
    EXPECT_EQ(sign(0), (DriveSign{.serial = {}, .port = QStringLiteral("1-1")}));
    EXPECT_EQ(sign(2), (DriveSign{.serial = {}, .port = QStringLiteral("1-3")}));
}

TEST_F(DriveSignTest, TakesSerialNumbersForOneThatLookTheSame) {
    attach({"ZD-\xC1", "ZD-\xC2"});
    EXPECT_EQ(sign(0).serial, sign(1).serial);
    EXPECT_EQ(sign(0).port, u"1-1");
}

TEST_F(DriveSignTest, ShowsWhatNobodySeesAndIsNoLongerThanALine) {
    attach({"a\nb\x1b", std::string(1000, 'x')});
    EXPECT_EQ(sign(0).serial, u"a[U+000A]b[U+001B]");
    EXPECT_EQ(sign(1).serial.size(), 41);
}

} // namespace
} // namespace zelto::test
