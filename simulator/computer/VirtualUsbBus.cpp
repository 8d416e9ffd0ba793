#include "simulator/computer/VirtualUsbBus.h"

#include "simulator/computer/ForwardingDevice.h"
#include "simulator/usb/UsbDescriptors.h"

#include <algorithm>

namespace zelto::simulator {

namespace {

constexpr std::uint8_t StandardToHost = 0x80;
constexpr std::uint8_t VendorToDevice = 0x40;
constexpr std::uint8_t GetDescriptor = 6;
constexpr std::uint8_t StringDescriptor = 3;

class Handle : public UsbDeviceInterface {
public:
    Handle(VirtualUsbBus& bus, std::shared_ptr<Attachment> attachment)
        : m_bus(bus),
          m_attachment(std::move(attachment)),
          m_description(m_attachment->device->description()) {}
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() override {
        if (isOpen()) {
            m_attachment->owner = nullptr;
        }
    }

    [[nodiscard]] std::uint16_t GetDeviceVendor() const override { return m_description.idVendor; }
    [[nodiscard]] std::uint16_t GetDeviceProduct() const override {
        return m_description.idProduct;
    }
    [[nodiscard]] std::uint16_t GetDeviceReleaseNumber() const override {
        return m_description.bcdDevice;
    }
    [[nodiscard]] std::uint32_t GetLocationID() const override { return m_attachment->location; }
    [[nodiscard]] std::string GetPortName() const override {
        return "1-" + std::to_string(m_attachment->location);
    }
    [[nodiscard]] IOReturn USBDeviceOpen() override {
        if (!m_attachment->isAttached) {
            return kIOReturnNoDevice;
        }
        if (m_attachment->owner != nullptr && m_attachment->owner != this) {
            return kIOReturnExclusiveAccess;
        }
        if (m_description.openResult == kIOReturnSuccess) {
            m_attachment->owner = this;
        }
        return m_description.openResult;
    }
    [[nodiscard]] std::uint8_t USBGetSerialNumberStringIndex() const override {
        return m_description.iSerialNumber;
    }
    [[nodiscard]] IOReturn DeviceRequest(IOUSBDevRequest& request) override {
        return isOpen() ? m_bus.request(*m_attachment, request) : kIOReturnNotOpen;
    }

private:
    [[nodiscard]] bool isOpen() const { return m_attachment->owner == this; }

    VirtualUsbBus& m_bus;
    std::shared_ptr<Attachment> m_attachment;
    UsbDescription m_description;
};

/// The outermost layer of every handle that the program gets: notes each request and how it ended
/// for the program, whether or not a drive has heard it.
class LoggedDevice : public ForwardingDevice {
public:
    LoggedDevice(std::unique_ptr<UsbDeviceInterface> device, EventLog& log, std::string serial)
        : ForwardingDevice(std::move(device)), m_log(log), m_serial(std::move(serial)) {}

    [[nodiscard]] IOReturn DeviceRequest(IOUSBDevRequest& request) override {
        const bool isVendor = (request.bmRequestType & VendorToDevice) != 0;
        const bool isToHost = (request.bmRequestType & StandardToHost) != 0;
        LogLine line{.kind = isVendor ? LogLine::Kind::Command : LogLine::Kind::StandardRequest,
                     .text = isVendor ? commandName(request) : "standard request",
                     .serial = m_serial};
        if (!isToHost && request.pData != nullptr) {
            line.data.assign(request.pData, request.pData + request.wLength);
        }
        line.result = ForwardingDevice::DeviceRequest(request);
        if (isToHost && line.result == kIOReturnSuccess && request.pData != nullptr) {
            line.data.assign(request.pData, request.pData + request.wLenDone);
        }
        line.setup = request;
        line.setup.pData = nullptr;
        m_log.note(line);
        return line.result;
    }

private:
    EventLog& m_log;
    std::string m_serial;
};

class Service : public UsbService {
public:
    Service(VirtualUsbBus& bus, std::shared_ptr<Attachment> attachment)
        : m_bus(bus), m_attachment(std::move(attachment)) {}

    [[nodiscard]] std::uint32_t GetLocationID() const override { return m_attachment->location; }
    [[nodiscard]] std::unique_ptr<UsbDeviceInterface> IOCreatePlugInInterfaceForService() override {
        return m_attachment->isAttached ? m_bus.makeHandle(m_attachment) : nullptr;
    }

private:
    VirtualUsbBus& m_bus;
    std::shared_ptr<Attachment> m_attachment;
};

bool matches(const UsbMatching& matching, const UsbDescription& description) {
    return matching.idVendor == description.idVendor && matching.idProduct == description.idProduct;
}

} // namespace

void VirtualUsbBus::notifyChanged() const {
    if (m_changed) {
        m_changed();
    }
}

void VirtualUsbBus::plug(const Device& device) {
    if (isPlugged(device)) {
        return;
    }
    device->powerUp(m_clock.worldTime());
    const auto attachment = std::make_shared<Attachment>(Attachment{
        .device = device, .location = ++m_lastLocation, .units = device->makeUnits([this] {
            return m_clock.worldTime();
        })});
    m_attachments.push_back(attachment);
    notifyChanged();
    announce(UsbEvent::FirstMatch, attachment);
}

void VirtualUsbBus::unplug(const Device& device) {
    m_comingBack.erase(device);
    const auto found = std::ranges::find(m_attachments, device,
                                         [](const auto& attachment) { return attachment->device; });
    if (found == m_attachments.end()) {
        return;
    }
    const std::shared_ptr<Attachment> attachment = *found;
    attachment->isAttached = false;
    m_attachments.erase(found);
    device->powerOff(m_clock.worldTime());
    notifyChanged();
    announce(UsbEvent::Terminate, attachment);
}

void VirtualUsbBus::replug(const Device& device) {
    unplug(device);
    plug(device);
}

bool VirtualUsbBus::isPlugged(const Device& device) const {
    return std::ranges::any_of(
        m_attachments, [&](const auto& attachment) { return attachment->device == device; });
}

void VirtualUsbBus::endProcess() {
    m_iterators.clear();
    m_port = 0;
}

bool VirtualUsbBus::delivers(const Iterator& iterator) const {
    return !iterator.isReleased && iterator.port != 0 && iterator.port == m_port;
}

void VirtualUsbBus::announce(UsbEvent event, const std::shared_ptr<Attachment>& attachment) {
    for (auto& [id, iterator] : m_iterators) {
        if (iterator.event != event || !delivers(iterator) ||
            !matches(iterator.matching, attachment->device->description())) {
            continue;
        }
        iterator.pending.push_back(attachment);
        if (iterator.isArmed) {
            iterator.isArmed = false;
            m_application.performLater([this, object = id] { callOut(object); });
        }
    }
}

void VirtualUsbBus::callOut(IOObject id) {
    const auto found = m_iterators.find(id);
    if (found != m_iterators.end() && delivers(found->second)) {
        const Callback callback = found->second.callback;
        callback(id);
    }
}

IOObject VirtualUsbBus::IONotificationPortCreate() {
    m_port = m_hasService ? ++m_lastObject : 0;
    return m_port;
}

void VirtualUsbBus::IONotificationPortDestroy(IOObject port) noexcept {
    m_port = port == m_port ? 0 : m_port;
}

IOObject VirtualUsbBus::IOServiceAddMatchingNotification(IOObject port, UsbEvent event,
                                                         const UsbMatching& matching,
                                                         Callback callback) {
    if (!m_hasService) {
        return 0;
    }
    Iterator iterator;
    iterator.port = port;
    iterator.event = event;
    iterator.matching = matching;
    iterator.callback = std::move(callback);
    for (const auto& attachment : m_attachments) {
        if (event == UsbEvent::FirstMatch && matches(matching, attachment->device->description())) {
            iterator.pending.push_back(attachment);
        }
    }
    m_iterators.emplace(++m_lastObject, std::move(iterator));
    return m_lastObject;
}

std::unique_ptr<UsbService> VirtualUsbBus::IOIteratorNext(IOObject id) {
    const auto found = m_iterators.find(id);
    if (found == m_iterators.end() || found->second.isReleased) {
        return nullptr;
    }
    Iterator& iterator = found->second;
    if (iterator.pending.empty()) {
        iterator.isArmed = true;
        return nullptr;
    }
    const std::shared_ptr<Attachment> attachment = iterator.pending.front();
    iterator.pending.pop_front();
    return std::make_unique<Service>(*this, attachment);
}

void VirtualUsbBus::IOObjectRelease(IOObject id) noexcept {
    // Only marked: the map's memory must not be touched from a signal handler.
    const auto found = m_iterators.find(id);
    if (found != m_iterators.end()) {
        found->second.isReleased = true;
    }
}

std::unique_ptr<UsbDeviceInterface>
VirtualUsbBus::makeHandle(const std::shared_ptr<Attachment>& attachment) {
    std::unique_ptr<UsbDeviceInterface> handle = std::make_unique<Handle>(*this, attachment);
    for (const HandleLayer& layer : m_handleLayers) {
        handle = layer(std::move(handle));
    }
    return std::make_unique<LoggedDevice>(std::move(handle), m_log,
                                          attachment->device->description().serial);
}

IOReturn VirtualUsbBus::standardRequest(const Attachment& attachment, IOUSBDevRequest& request) {
    const UsbDescription& description = attachment.device->description();
    const bool asksForSerial =
        request.bRequest == GetDescriptor && description.iSerialNumber != 0 &&
        request.wValue == (StringDescriptor << 8U | description.iSerialNumber);
    if (!asksForSerial) {
        return kIOUSBPipeStalled;
    }
    const std::vector<std::uint8_t> descriptor = usbStringDescriptor(description.serial);
    const std::size_t length = std::min<std::size_t>(descriptor.size(), request.wLength);
    std::copy_n(descriptor.begin(), length, request.pData);
    request.wLenDone = static_cast<std::uint32_t>(length);
    return kIOReturnSuccess;
}

IOReturn VirtualUsbBus::request(Attachment& attachment, IOUSBDevRequest& request) {
    if (request.wLength > 0 && request.pData == nullptr) {
        return kIOReturnBadArgument;
    }
    if (request.bmRequestType == StandardToHost) {
        return attachment.isAttached ? standardRequest(attachment, request) : kIOReturnNoDevice;
    }
    if (!attachment.isAttached) {
        return kIOReturnNoDevice;
    }
    const Device device = attachment.device;
    const IOReturn result = device->control(request, m_clock.worldTime());
    notifyChanged();
    if (device->takeReconnect()) {
        reconnect(device);
    }
    return result;
}

void VirtualUsbBus::reconnect(const Device& device) {
    unplug(device);
    if (m_reconnectDelay) {
        m_comingBack.insert(device);
        m_clock.after(*m_reconnectDelay, [this, device] {
            if (m_comingBack.erase(device) > 0) {
                plug(device);
            }
        });
    }
}

} // namespace zelto::simulator
