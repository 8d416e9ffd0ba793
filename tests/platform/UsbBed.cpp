#include "tests/platform/UsbBed.h"

#include <linux/usbdevice_fs.h>
#include <sys/ioctl.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <span>
#include <stdexcept>
#include <utility>

namespace zelto::test {

namespace {

constexpr std::size_t SetupLength = 8;
const simulator::Moment Now{std::chrono::seconds(1'800'000'000)};

/// Device, configuration and interface descriptors, as the node's file holds them.
std::string descriptors(const char* product) {
    const std::string swapped = std::string(product + 2) + std::string(product, 2);
    return "12010002000000"
           "40"
           "F707" +
           swapped +
           "0001"
           "01"
           "02"
           "03"
           "01"
           "0902120001010080FA"
           "090400000008065000";
}

std::string nodeOf(unsigned number) {
    char node[64];
    std::snprintf(node, sizeof node, "/dev/bus/usb/250/%03u", number);
    return node;
}

std::string describe(unsigned number, const char* product, const std::string& place) {
    char text[1024];
    std::snprintf(text, sizeof text,
                  "P: /devices/zelto/usb250/%s\n"
                  "N: bus/usb/250/%03u=%s\n"
                  "E: DEVTYPE=usb_device\nE: SUBSYSTEM=usb\n"
                  "E: BUSNUM=250\nE: DEVNUM=%03u\nE: DEVNAME=/dev/bus/usb/250/%03u\n"
                  "E: MAJOR=189\nE: MINOR=%u\n"
                  "A: busnum=250\\n\nA: devnum=%u\\n\n"
                  "A: idVendor=07f7\\n\nA: idProduct=%s\\n\nA: bcdDevice=0100\\n\n",
                  place.c_str(), number, descriptors(product).c_str(), number, number,
                  32000 + number, number, product);
    return text;
}

std::uint16_t littleEndian(const std::uint8_t* bytes) {
    return static_cast<std::uint16_t>(bytes[0] | bytes[1] << 8U);
}

} // namespace

UsbBed::UsbBed()
    : m_bed(umockdev_testbed_new()), m_handler(umockdev_ioctl_base_new()), m_drive([] {
          simulator::Manufactured made;
          made.totalSectors = 1'000'000;
          return made;
      }()) {
    m_drive.powerUp(Now);
    g_signal_connect(m_handler, "handle-ioctl", G_CALLBACK(&UsbBed::handle), this);
}

UsbBed::~UsbBed() {
    g_object_unref(m_bed);
    g_object_unref(m_handler);
    if (m_finished != nullptr) {
        umockdev_ioctl_data_unref(m_finished);
    }
}

std::string UsbBed::plug(unsigned number, const char* product, std::string place) {
    if (place.empty()) {
        place = "250-" + std::to_string(number);
    }
    // The bed remembers the handler of a node when its device leaves.
    if (const auto node = nodeOf(number); m_nodes.insert(node).second) {
        umockdev_testbed_attach_ioctl(m_bed, node.c_str(), m_handler, nullptr);
    }
    GError* error = nullptr;
    umockdev_testbed_add_from_string(m_bed, describe(number, product, place).c_str(), &error);
    if (error != nullptr) {
        throw std::runtime_error(error->message);
    }
    failure = 0;
    auto syspath = "/sys/devices/zelto/usb250/" + place;
    announce(syspath, "add");
    return syspath;
}

void UsbBed::unplug(const std::string& syspath) {
    failure = ENODEV;
    // Its attributes are gone by the time that the event is read.
    announce(syspath, "remove");
    umockdev_testbed_remove_device(m_bed, syspath.c_str());
}

void UsbBed::set(const std::string& syspath, const char* attribute, const char* value) {
    umockdev_testbed_set_attribute(m_bed, syspath.c_str(), attribute, value);
}

void UsbBed::announceRemovalOf(unsigned number, const std::string& syspath) {
    char* now = umockdev_testbed_get_property(m_bed, syspath.c_str(), "DEVNAME");
    umockdev_testbed_set_property(m_bed, syspath.c_str(), "DEVNAME", nodeOf(number).c_str());
    announce(syspath, "remove");
    umockdev_testbed_set_property(m_bed, syspath.c_str(), "DEVNAME", now);
    g_free(now);
}

void UsbBed::announce(const std::string& syspath, const char* action) {
    umockdev_testbed_uevent(m_bed, syspath.c_str(), action);
}

std::string UsbBed::nodeFile(unsigned number) const {
    char* root = umockdev_testbed_get_root_dir(m_bed);
    char path[512];
    std::snprintf(path, sizeof path, "%s/dev/bus/usb/250/%03u", root, number);
    g_free(root);
    return path;
}

gboolean UsbBed::handle(UMockdevIoctlBase*, UMockdevIoctlClient* client, gpointer bed) {
    static_cast<UsbBed*>(bed)->answer(client);
    return TRUE;
}

void UsbBed::answer(UMockdevIoctlClient* client) {
    const std::lock_guard lock(m_mutex);
    auto* argument = umockdev_ioctl_client_get_arg(client);
    const auto request = umockdev_ioctl_client_get_request(client);
    if (failure != 0) {
        umockdev_ioctl_client_complete(client, -1, failure);
        return;
    }
    switch (request) {
    case USBDEVFS_GET_CAPABILITIES: {
        std::uint32_t none = 0;
        auto* data = umockdev_ioctl_data_resolve(argument, 0, sizeof none, nullptr);
        umockdev_ioctl_data_update(data, 0, reinterpret_cast<guint8*>(&none), sizeof none);
        umockdev_ioctl_data_unref(data);
        break;
    }
    case USBDEVFS_CONNECTINFO: {
        usbdevfs_connectinfo info{2, 0};
        auto* data = umockdev_ioctl_data_resolve(argument, 0, sizeof info, nullptr);
        umockdev_ioctl_data_update(data, 0, reinterpret_cast<guint8*>(&info), sizeof info);
        umockdev_ioctl_data_unref(data);
        break;
    }
    case USBDEVFS_CONTROL: // the configuration, which libusb asks for once
        umockdev_ioctl_client_complete(client, 1, 0);
        return;
    case USBDEVFS_GET_SPEED:
        umockdev_ioctl_client_complete(client, 3, 0);
        return;
    case USBDEVFS_SUBMITURB:
        submit(argument);
        break;
    case USBDEVFS_REAPURBNDELAY:
        if (!reap(argument)) {
            umockdev_ioctl_client_complete(client, -1, EAGAIN);
            return;
        }
        break;
    default:
        umockdev_ioctl_client_complete(client, -1, EINVAL);
        return;
    }
    umockdev_ioctl_client_complete(client, 0, 0);
}

void UsbBed::submit(UMockdevIoctlData* argument) {
    auto* data = umockdev_ioctl_data_resolve(argument, 0, sizeof(usbdevfs_urb), nullptr);
    auto* urb = reinterpret_cast<usbdevfs_urb*>(data->data);
    auto* buffer = umockdev_ioctl_data_resolve(data, offsetof(usbdevfs_urb, buffer),
                                               static_cast<gsize>(urb->buffer_length), nullptr);
    auto* bytes = buffer->data;
    const simulator::SetupPacket setup{bytes[0], bytes[1], littleEndian(bytes + 2),
                                       littleEndian(bytes + 4), littleEndian(bytes + 6)};
    const bool towardsHost = (setup.bmRequestType & 0x80U) != 0;
    const auto reply = control(
        setup, towardsHost ? std::span<const std::uint8_t>()
                           : std::span<const std::uint8_t>(bytes + SetupLength, setup.wLength));
    std::ranges::copy(reply.data, bytes + SetupLength);
    urb->status = transferStatus != 0 ? transferStatus.load() : reply.stalled ? -EPIPE : 0;
    urb->actual_length = static_cast<int>(towardsHost ? reply.data.size() : setup.wLength);
    umockdev_ioctl_data_unref(buffer);
    m_finished = data;
}

bool UsbBed::reap(UMockdevIoctlData* argument) {
    if (m_finished == nullptr) {
        return false;
    }
    auto* pointer = umockdev_ioctl_data_resolve(argument, 0, sizeof(void*), nullptr);
    umockdev_ioctl_data_set_ptr(pointer, 0, m_finished);
    umockdev_ioctl_data_unref(pointer);
    umockdev_ioctl_data_unref(std::exchange(m_finished, nullptr));
    return true;
}

simulator::ControlReply UsbBed::control(const simulator::SetupPacket& setup,
                                        std::span<const std::uint8_t> sent) {
    constexpr std::uint8_t VendorToDevice = 0x40;
    constexpr std::uint8_t VendorToHost = 0xC0;
    if (setup.bmRequestType == VendorToDevice || setup.bmRequestType == VendorToHost) {
        return m_drive.control(setup, sent, Now);
    }
    // The only standard request that the utility sends asks for the serial number's string.
    return {false, {10, 3, 'Z', 0, 'D', 0, '0', 0, '1', 0}};
}

} // namespace zelto::test
