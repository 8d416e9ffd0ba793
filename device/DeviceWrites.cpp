#include "device/DeviceWrites.h"

#include "device/TimeStatus.h"
#include "device/ZELTOctrl.h"
#include "digest/Wipe.h"

namespace zelto {

IOReturn writeAuthPayload(UsbDeviceInterface& device, const AuthPayload& payload) {
    const Wiped<AuthPayload::Bytes> bytes{encodeAuthPayload(payload)};
    return TKVR21_Authenticate(device, bytes->data(), 0);
}

IOReturn writeAuthInfo(UsbDeviceInterface& device, const AuthInfo& info, AuthInfoUse use) {
    const Wiped<AuthInfo::Bytes> bytes{encodeAuthInfo(info)};
    return TKVR21_SetAuthInfo(device, static_cast<std::uint16_t>(info.size()), bytes->data(),
                              use == AuthInfoUse::FirstSetup, false);
}

IOReturn writeFirstPassword(UsbDeviceInterface& device, const PasswordDigest& first) {
    const Wiped<AuthInfo> info{{.kind = AuthInfo::Set, .slot1 = first}};
    return writeAuthInfo(device, *info, AuthInfoUse::FirstSetup);
}

IOReturn writeBothPasswords(UsbDeviceInterface& device, const PasswordDigest& first,
                            const PasswordDigest& second, std::uint8_t numberOfTrials) {
    const Wiped<AuthInfo> alone{
        {.kind = AuthInfo::Set, .numberOfTrials = numberOfTrials, .slot1 = second}};
    if (const IOReturn result = writeAuthInfo(device, *alone, AuthInfoUse::FirstSetup);
        result != kIOReturnSuccess) {
        return result;
    }
    const Wiped<AuthInfo> both{{.kind = AuthInfo::SetBoth, .slot1 = first, .slot2 = second}};
    return writeAuthInfo(device, *both, AuthInfoUse::FirstSetup);
}

IOReturn writeEncryptionInfo(UsbDeviceInterface& device, const EncryptionInfo& info) {
    const Wiped<EncryptionInfo::Bytes> bytes{encodeEncryptionInfo(info)};
    return TKVR21_SetEncryptionInfo(device, bytes->data(), EncryptionInfo::Size, true, false);
}

IOReturn writeAreaInfos(UsbDeviceInterface& device, std::span<const std::uint8_t> entries) {
    return TKVR21_SetAreaInfos(device, entries.data(), static_cast<std::uint32_t>(entries.size()),
                               false);
}

IOReturn writeCurrentTime(UsbDeviceInterface& device, std::chrono::sys_seconds now) {
    const CurrentTime::Bytes bytes = encodeCurrentTime(clockAt(now));
    return TKVR21_ZELTO_SetCurrentTime(device, bytes.data(), bytes.size());
}

IOReturn writePeriods(UsbDeviceInterface& device, const Periods& periods) {
    const IOReturn result = TKVR21_ZELTO_SetErasePeriod(device, periods.autoClearSeconds);
    return result != kIOReturnSuccess
               ? result
               : TKVR21_ZELTO_SetIdleLockPeriod(device, periods.idleLockSeconds);
}

IOReturn writeShowRemainingTime(UsbDeviceInterface& device, bool show) {
    const std::uint8_t byte = show ? HintBits::ShowRemainingTime : 0;
    return TKVR21_ZELTO_WriteHintData(device, HintAddress::ShowRemainingTime, &byte, sizeof byte,
                                      true);
}

} // namespace zelto
