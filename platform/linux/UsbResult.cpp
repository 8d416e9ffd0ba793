#include "platform/linux/UsbResult.h"

#include <libusb.h>

#include <cerrno>

namespace zelto::linux_platform {

IOReturn resultOfTransfer(int libusbStatus) {
    if (libusbStatus >= 0) {
        return kIOReturnSuccess;
    }
    switch (libusbStatus) {
    case LIBUSB_ERROR_NO_DEVICE:
        return kIOReturnNoDevice;
    case LIBUSB_ERROR_PIPE:
        return kIOUSBPipeStalled;
    case LIBUSB_ERROR_TIMEOUT:
        return kIOReturnTimeout;
    case LIBUSB_ERROR_ACCESS:
        return kIOReturnNotPermitted;
    case LIBUSB_ERROR_OVERFLOW:
        return kIOReturnOverrun;
    case LIBUSB_ERROR_INVALID_PARAM:
        return kIOReturnBadArgument;
    default:
        return kIOReturnIOError;
    }
}

IOReturn resultOfOpen(int error, AccessRule rule) {
    switch (error) {
    case ENOENT:
    case ENODEV:
    case ENXIO:
        return kIOReturnNoDevice;
    case EACCES:
    case EPERM:
        return rule == AccessRule::Missing ? kIOReturnNotPrivileged : kIOReturnNotPermitted;
    default:
        return kIOReturnIOError;
    }
}

} // namespace zelto::linux_platform
