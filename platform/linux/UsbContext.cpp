#include "platform/linux/UsbContext.h"

#include <libusb.h>

namespace zelto::linux_platform {

UsbContext::UsbContext() {
#if LIBUSB_API_VERSION >= 0x0100010A
    const libusb_init_option withoutDiscovery{LIBUSB_OPTION_NO_DEVICE_DISCOVERY, {}};
    const int status = libusb_init_context(&m_context, &withoutDiscovery, 1);
#else
    libusb_set_option(nullptr, LIBUSB_OPTION_NO_DEVICE_DISCOVERY);
    const int status = libusb_init(&m_context);
#endif
    if (status != LIBUSB_SUCCESS) {
        m_context = nullptr;
    }
}

UsbContext::~UsbContext() {
    if (m_context != nullptr) {
        libusb_exit(m_context);
    }
}

} // namespace zelto::linux_platform
