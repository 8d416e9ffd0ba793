#include "device/DeviceReads.h"

#include "device/ZELTOctrl.h"

namespace zelto {

DeviceRead<DeviceStatus> readDeviceStatus(UsbDeviceInterface& device, StatusRequest request) {
    DeviceStatus::Bytes bytes{};
    const IOReturn result = TKVR21_GetDeviceStatus(device, bytes.data(), bytes.size(),
                                                   static_cast<std::uint16_t>(request));
    return {result, decodeDeviceStatus(bytes)};
}

DeviceRead<TimeStatus> readTimeStatus(UsbDeviceInterface& device) {
    TimeStatus::Bytes bytes{};
    const IOReturn result = TKVR21_ZELTO_GetTimeStatus(device, bytes.data(), bytes.size(), false);
    return {result, decodeTimeStatus(bytes)};
}

DeviceRead<AreaInfoTable> readAreaInfos(UsbDeviceInterface& device) {
    DeviceRead<AreaInfoTable> read;
    read.result = TKVR21_GetAreaInfos(device, read.record.bytes().data(), AreaInfoTable::Size);
    return read;
}

bool readShowRemainingTime(UsbDeviceInterface& device) {
    std::uint8_t byte = 0;
    const IOReturn result =
        TKVR21_ZELTO_ReadHintData(device, HintAddress::ShowRemainingTime, &byte, sizeof byte, 0);
    return result == kIOReturnSuccess && (byte & HintBits::ShowRemainingTime) != 0;
}

} // namespace zelto
