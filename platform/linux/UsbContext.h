#pragma once

struct libusb_context;

namespace zelto::linux_platform {

/// libusb without its device discovery: no thread, no netlink, no list of devices of its own. The
/// nodes come from udev, and libusb only wraps what has been opened.
class UsbContext {
public:
    UsbContext();
    UsbContext(const UsbContext&) = delete;
    UsbContext& operator=(const UsbContext&) = delete;
    ~UsbContext();

    /// Null when libusb could not be set up.
    [[nodiscard]] libusb_context* get() const { return m_context; }

private:
    libusb_context* m_context = nullptr;
};

} // namespace zelto::linux_platform
