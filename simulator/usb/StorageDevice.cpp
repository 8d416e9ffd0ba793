#include "simulator/usb/StorageDevice.h"

#include "simulator/usb/UsbDescriptors.h"

#include <algorithm>
#include <utility>

namespace zelto::simulator {

namespace {

using Bytes = std::vector<std::uint8_t>;

namespace Request {
constexpr std::uint8_t GetStatus = 0;
constexpr std::uint8_t ClearFeature = 1;
constexpr std::uint8_t SetFeature = 3;
constexpr std::uint8_t SetAddress = 5;
constexpr std::uint8_t GetDescriptor = 6;
constexpr std::uint8_t GetConfiguration = 8;
constexpr std::uint8_t SetConfiguration = 9;
constexpr std::uint8_t GetInterface = 10;
constexpr std::uint8_t SetInterface = 11;
constexpr std::uint8_t GetMaximumUnit = 0xFE;
constexpr std::uint8_t BulkOnlyReset = 0xFF;
} // namespace Request

/// bmRequestType (USB 2.0, 9.3.1).
namespace RequestType {
constexpr std::uint8_t ToHost = 0x80;
constexpr std::uint8_t KindMask = 0x60;
constexpr std::uint8_t Standard = 0x00;
constexpr std::uint8_t Class = 0x20;
constexpr std::uint8_t Vendor = 0x40;
constexpr std::uint8_t Device = 0x00;
constexpr std::uint8_t Interface = 0x01;
constexpr std::uint8_t Endpoint = 0x02;
} // namespace RequestType

constexpr std::uint16_t TheInterface = 0;

bool isToHost(const SetupPacket& setup) {
    return (setup.bmRequestType & RequestType::ToHost) != 0;
}

/// The answer of a request without data stage.
std::optional<Bytes> done(bool isAccepted) {
    return isAccepted ? std::optional(Bytes{}) : std::nullopt;
}

std::optional<BulkEndpoint> bulkEndpointAt(std::uint16_t address) {
    if (address == UsbDescriptor::BulkInAddress) {
        return BulkEndpoint::In;
    }
    if (address == UsbDescriptor::BulkOutAddress) {
        return BulkEndpoint::Out;
    }
    return std::nullopt;
}

bool isControlEndpoint(std::uint16_t address) {
    return (address & ~RequestType::ToHost) == 0;
}

std::vector<ScsiUnit> makeUnits(const std::string& serial, UnitStorage& storage) {
    constexpr std::size_t Count = DriveModel::UnitCount;
    std::vector<ScsiUnit> units;
    for (std::size_t number = 0; number < Count; ++number) {
        units.emplace_back(ScsiUnit::Kind::Disk, UnitIdentity{number, serial}, Count, storage);
    }
    units.emplace_back(ScsiUnit::Kind::Absent, UnitIdentity{Count, serial}, Count, storage);
    return units;
}

} // namespace

StorageDevice::StorageDevice(std::string serial, VendorControl control, UnitStorage& storage)
    : m_serial(std::move(serial)),
      m_control(std::move(control)),
      m_units(makeUnits(m_serial, storage)),
      m_transport(m_units) {}

void StorageDevice::powerUp() {
    m_configuration = 0;
    m_transport.configure();
    for (ScsiUnit& unit : m_units) {
        unit.powerUp();
    }
}

void StorageDevice::noticeMedia() {
    for (ScsiUnit& unit : m_units) {
        unit.noticeMedium();
    }
}

TransferResult StorageDevice::control(const SetupPacket& setup, std::span<const std::uint8_t> sent,
                                      std::span<std::uint8_t> buffer) {
    const std::size_t expected = isToHost(setup) ? 0 : setup.wLength;
    if (sent.size() != expected) {
        return {TransferStatus::Stalled, 0};
    }
    const std::uint8_t kind = setup.bmRequestType & RequestType::KindMask;
    if (kind == RequestType::Vendor) {
        return vendorRequest(setup, sent, buffer);
    }
    std::optional<Bytes> reply;
    if (kind == RequestType::Standard) {
        reply = standardRequest(setup);
    } else if (kind == RequestType::Class) {
        reply = classRequest(setup);
    }
    if (!reply) {
        return {TransferStatus::Stalled, 0};
    }
    const std::size_t size = std::min({reply->size(), buffer.size(), std::size_t{setup.wLength}});
    std::copy_n(reply->begin(), size, buffer.begin());
    return {TransferStatus::Complete, isToHost(setup) ? size : sent.size()};
}

TransferResult StorageDevice::vendorRequest(const SetupPacket& setup,
                                            std::span<const std::uint8_t> sent,
                                            std::span<std::uint8_t> buffer) {
    const std::optional<ControlReply> reply = m_control(setup, sent);
    // A request may have locked or opened the drive; an exchange of media has to be noticed even
    // when the next request undoes it.
    noticeMedia();
    if (!reply) {
        return {TransferStatus::Waiting, 0};
    }
    if (reply->stalled) {
        return {TransferStatus::Stalled, 0};
    }
    if (!isToHost(setup)) {
        return {TransferStatus::Complete, sent.size()};
    }
    const std::size_t size =
        std::min({reply->data.size(), buffer.size(), std::size_t{setup.wLength}});
    std::copy_n(reply->data.begin(), size, buffer.begin());
    return {TransferStatus::Complete, size};
}

std::optional<Bytes> StorageDevice::classRequest(const SetupPacket& setup) {
    constexpr std::uint8_t ToInterface = RequestType::Class | RequestType::Interface;
    if (!isConfigured() || setup.wValue != 0 || setup.wIndex != TheInterface) {
        return std::nullopt;
    }
    if (setup.bmRequestType == (ToInterface | RequestType::ToHost) &&
        setup.bRequest == Request::GetMaximumUnit && setup.wLength == 1) {
        return Bytes{DriveModel::UnitCount - 1};
    }
    if (setup.bmRequestType == ToInterface && setup.bRequest == Request::BulkOnlyReset &&
        setup.wLength == 0) {
        m_transport.reset();
        return Bytes{};
    }
    return std::nullopt;
}

std::optional<Bytes> StorageDevice::standardRequest(const SetupPacket& setup) {
    constexpr std::uint8_t FromDevice = RequestType::ToHost | RequestType::Device;
    constexpr std::uint8_t FromInterface = RequestType::ToHost | RequestType::Interface;
    if (isToHost(setup)) {
        if (setup.bRequest == Request::GetStatus) {
            return getStatus(setup);
        }
        if (setup.bRequest == Request::GetDescriptor && setup.bmRequestType == FromDevice) {
            return usbDescriptor(setup.wValue, setup.wIndex, m_serial);
        }
        if (setup.bRequest == Request::GetConfiguration && setup.bmRequestType == FromDevice) {
            return Bytes{m_configuration};
        }
        if (setup.bRequest == Request::GetInterface && setup.bmRequestType == FromInterface &&
            isConfigured() && setup.wIndex == TheInterface) {
            return Bytes{0};
        }
        return std::nullopt;
    }
    switch (setup.bRequest) {
    case Request::ClearFeature:
    case Request::SetFeature:
        return done(changeFeature(setup));
    case Request::SetAddress:
        // The bus's business: whoever carries it knows which device it means.
        return done(setup.bmRequestType == RequestType::Device && setup.wValue <= 127);
    case Request::SetConfiguration:
        return done(setConfiguration(setup));
    case Request::SetInterface:
        return done(setInterface(setup));
    default:
        return std::nullopt;
    }
}

std::optional<Bytes> StorageDevice::getStatus(const SetupPacket& setup) const {
    const std::uint8_t recipient = setup.bmRequestType & ~RequestType::ToHost;
    if (setup.wValue != 0) {
        return std::nullopt;
    }
    if (recipient == RequestType::Device && setup.wIndex == 0) {
        return Bytes{0, 0}; // powered by the bus, wakes nobody
    }
    if (recipient == RequestType::Interface && isConfigured() && setup.wIndex == TheInterface) {
        return Bytes{0, 0};
    }
    if (recipient != RequestType::Endpoint) {
        return std::nullopt;
    }
    if (isControlEndpoint(setup.wIndex)) {
        return Bytes{0, 0};
    }
    const std::optional<BulkEndpoint> endpoint = bulkEndpointAt(setup.wIndex);
    if (!endpoint || !isConfigured()) {
        return std::nullopt;
    }
    return Bytes{static_cast<std::uint8_t>(m_transport.isHalted(*endpoint) ? 1 : 0), 0};
}

bool StorageDevice::changeFeature(const SetupPacket& setup) {
    constexpr std::uint16_t EndpointHalt = 0;
    if (setup.bmRequestType != RequestType::Endpoint || setup.wValue != EndpointHalt) {
        return false; // no remote wake-up, no test modes
    }
    if (isControlEndpoint(setup.wIndex)) {
        return true; // halts by itself and recovers with the next request
    }
    const std::optional<BulkEndpoint> endpoint = bulkEndpointAt(setup.wIndex);
    if (!endpoint || !isConfigured()) {
        return false;
    }
    if (setup.bRequest == Request::SetFeature) {
        m_transport.halt(*endpoint);
    } else {
        m_transport.clearHalt(*endpoint);
    }
    return true;
}

bool StorageDevice::setConfiguration(const SetupPacket& setup) {
    if (setup.bmRequestType != RequestType::Device ||
        setup.wValue > UsbDescriptor::ConfigurationValue) {
        return false;
    }
    m_configuration = static_cast<std::uint8_t>(setup.wValue);
    m_transport.configure();
    return true;
}

bool StorageDevice::setInterface(const SetupPacket& setup) {
    if (setup.bmRequestType != RequestType::Interface || !isConfigured() || setup.wValue != 0 ||
        setup.wIndex != TheInterface) {
        return false;
    }
    m_transport.configure();
    return true;
}

bool StorageDevice::hasBulkEndpoint(BulkEndpoint direction, std::uint8_t endpoint) const {
    const int address = direction == BulkEndpoint::In ? endpoint | RequestType::ToHost : endpoint;
    return isConfigured() && bulkEndpointAt(static_cast<std::uint16_t>(address)) == direction;
}

TransferResult StorageDevice::bulkOut(std::uint8_t endpoint, std::span<const std::uint8_t> data) {
    if (!hasBulkEndpoint(BulkEndpoint::Out, endpoint)) {
        return {TransferStatus::NoResponse, 0};
    }
    return m_transport.out(data);
}

TransferResult StorageDevice::bulkIn(std::uint8_t endpoint, std::span<std::uint8_t> buffer) {
    if (!hasBulkEndpoint(BulkEndpoint::In, endpoint)) {
        return {TransferStatus::NoResponse, 0};
    }
    return m_transport.in(buffer);
}

} // namespace zelto::simulator
