#include "session/DriveSign.h"

#include "session/ForeignText.h"

namespace zelto {
namespace {

/// Without a place to break it, a longer one would not fit a small screen in large letters.
constexpr std::size_t LongestSign = 40;

QString serialShown(const AttachedDrives& drives, std::size_t index) {
    return foreignText(drives.UsbSerial.at(index), LongestSign).trimmed();
}

} // namespace

DriveSign driveSign(const AttachedDrives& drives, std::size_t index) {
    DriveSign sign{.serial = serialShown(drives, index), .port = {}};
    // By what is seen: two serial numbers that differ in what nobody can read look the same.
    std::size_t alike = 0;
    for (std::size_t other = 0; other < drives.DevCnt; ++other) {
        alike += serialShown(drives, other) == sign.serial ? 1 : 0;
    }
    if (alike > 1 || sign.serial.isEmpty()) {
        sign.port = foreignText(drives.UsbIntf.at(index)->GetPortName(), LongestSign);
    }
    return sign;
}

} // namespace zelto
