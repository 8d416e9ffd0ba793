#include "platform/linux/LinuxUsbDevice.h"

#include "platform/linux/ControlTransfer.h"
#include "platform/linux/SysfsEntry.h"

#include <QEventLoop>
#include <QTimer>

#include <fcntl.h>
#include <libusb.h>
#include <linux/usbdevice_fs.h>
#include <sys/file.h>
#include <sys/ioctl.h>

#include <cerrno>
#include <cstdint>
#include <utility>

namespace zelto::linux_platform {

using namespace std::chrono_literals;

namespace {

/// Never 0, which means for ever.
constexpr unsigned ControlTimeoutMilliseconds = 5000;

bool isRefusal(int error) {
    return error == EACCES || error == EPERM;
}

} // namespace

LinuxUsbDevice::LinuxUsbDevice(UsbAnnouncement announcement,
                               std::shared_ptr<const UsbContext> context, const Waiting& waiting,
                               OpenPatience patience, DeparturePatience departurePatience)
    : m_announcement(std::move(announcement)),
      m_context(std::move(context)),
      m_waiting(waiting),
      m_patience(patience),
      m_departurePatience(std::move(departurePatience)) {}

LinuxUsbDevice::~LinuxUsbDevice() {
    // libusb does not close a descriptor that it has been given; m_node does, after this.
    if (m_handle != nullptr) {
        libusb_close(m_handle);
        *m_announcement.isTaken = false;
    }
}

IOReturn LinuxUsbDevice::USBDeviceOpen() {
    if (m_handle != nullptr) {
        return kIOReturnSuccess;
    }
    if (m_context->get() == nullptr) {
        return kIOReturnIOError;
    }
    const bool wasTaken = std::exchange(*m_announcement.isTaken, true);
    for (const auto step :
         {&LinuxUsbDevice::openNode, &LinuxUsbDevice::lockNode, &LinuxUsbDevice::wrapNode}) {
        if (const auto result = (this->*step)(); result != kIOReturnSuccess) {
            m_node = FileDescriptor();
            *m_announcement.isTaken = wasTaken;
            return result;
        }
    }
    return kIOReturnSuccess;
}

IOReturn LinuxUsbDevice::openNode() {
    for (unsigned attempt = 1;; ++attempt) {
        m_node = FileDescriptor(::open(m_announcement.node.c_str(), O_RDWR | O_CLOEXEC));
        if (m_node.isOpen()) {
            return kIOReturnSuccess;
        }
        const int error = errno;
        // The node of a device that has just arrived can be there before its permissions.
        if (!isRefusal(error) || attempt >= m_patience.attempts) {
            return resultOfOpen(error, m_announcement.accessRule());
        }
        QEventLoop loop;
        QTimer::singleShot(m_patience.pause, &loop, &QEventLoop::quit);
        m_waiting.run(loop);
    }
}

/// Two programs on one drive would answer for each other: the status that one reads wipes what the
/// drive had to say to the other. The kernel gives the lock back however the program ends.
IOReturn LinuxUsbDevice::lockNode() {
    if (::flock(m_node.get(), LOCK_EX | LOCK_NB) == 0) {
        return kIOReturnSuccess;
    }
    const bool isHeld = errno == EWOULDBLOCK;
    return hasLeft() ? kIOReturnNoDevice : isHeld ? kIOReturnExclusiveAccess : kIOReturnIOError;
}

IOReturn LinuxUsbDevice::wrapNode() {
    const int status =
        libusb_wrap_sys_device(m_context->get(), std::intptr_t{m_node.get()}, &m_handle);
    if (status != LIBUSB_SUCCESS) {
        m_handle = nullptr;
        return hasLeft() ? kIOReturnNoDevice : resultOfTransfer(status);
    }
    libusb_device_descriptor descriptor{};
    libusb_get_device_descriptor(libusb_get_device(m_handle), &descriptor);
    if (descriptor.idVendor != identity().idVendor ||
        descriptor.idProduct != identity().idProduct) {
        // The device has left and another one has been given its number meanwhile.
        libusb_close(std::exchange(m_handle, nullptr));
        return kIOReturnNoDevice;
    }
    m_announcement.identity.bcdDevice = descriptor.bcdDevice;
    m_announcement.identity.iSerialNumber = descriptor.iSerialNumber;
    return kIOReturnSuccess;
}

IOReturn LinuxUsbDevice::DeviceRequest(IOUSBDevRequest& request) {
    request.wLenDone = 0;
    if (m_handle == nullptr) {
        return kIOReturnNotOpen;
    }
    if (request.wLength > LongestDataStage || (request.wLength > 0 && request.pData == nullptr)) {
        return kIOReturnBadArgument;
    }
    const int status =
        controlTransfer(m_context->get(), m_handle, request, ControlTimeoutMilliseconds);
    if (status >= 0) {
        request.wLenDone = static_cast<std::uint32_t>(status);
    }
    const auto result = resultOfTransfer(status);
    // A transfer that an unplug has broken can end as a protocol error just as well.
    return result == kIOReturnIOError && leavesSoon() ? kIOReturnNoDevice : result;
}

bool LinuxUsbDevice::hasLeft() const {
    usbdevfs_connectinfo info{};
    const bool isCutOff = ::ioctl(m_node.get(), USBDEVFS_CONNECTINFO, &info) < 0 && errno == ENODEV;
    return isCutOff ||
           SysfsEntry(m_announcement.syspath).usbLocation().value_or(0) != m_announcement.location;
}

bool LinuxUsbDevice::leavesSoon() const {
    const auto& patience = m_departurePatience;
    for (auto waited = 0ms; !hasLeft(); waited += patience.pause) {
        if (waited >= patience.limit) {
            return false;
        }
        patience.sleep(patience.pause);
    }
    return true;
}

} // namespace zelto::linux_platform
