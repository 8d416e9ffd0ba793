#include "simulator/usb/UsbDescriptors.h"

#include "device/ZELTOctrl.h"
#include "simulator/drive/DriveNames.h"

namespace zelto::simulator {

namespace {

using Bytes = std::vector<std::uint8_t>;

enum class Speed : std::uint8_t { Full, High };

namespace Type {
constexpr std::uint8_t Device = 1;
constexpr std::uint8_t Configuration = 2;
constexpr std::uint8_t String = 3;
constexpr std::uint8_t Interface = 4;
constexpr std::uint8_t Endpoint = 5;
constexpr std::uint8_t DeviceQualifier = 6;
constexpr std::uint8_t OtherSpeedConfiguration = 7;
} // namespace Type

namespace StringIndex {
constexpr std::uint8_t Languages = 0;
constexpr std::uint8_t Manufacturer = 1;
constexpr std::uint8_t Product = 2;
constexpr std::uint8_t SerialNumber = 3;
} // namespace StringIndex

constexpr std::uint16_t Usb2 = 0x0200;
constexpr std::uint8_t ControlPacketSize = 64;
constexpr std::uint16_t English = 0x0409;

constexpr std::uint8_t low(std::uint16_t value) {
    return static_cast<std::uint8_t>(value & 0xFF);
}
constexpr std::uint8_t high(std::uint16_t value) {
    return static_cast<std::uint8_t>(value >> 8);
}

Bytes deviceDescriptor() {
    return {18,
            Type::Device,
            low(Usb2),
            high(Usb2),
            0, // class, subclass and protocol are the interface's
            0,
            0,
            ControlPacketSize,
            low(UsbIdentity::Vendor),
            high(UsbIdentity::Vendor),
            low(UsbIdentity::Product),
            high(UsbIdentity::Product),
            low(UsbDescriptor::Release),
            high(UsbDescriptor::Release),
            StringIndex::Manufacturer,
            StringIndex::Product,
            StringIndex::SerialNumber,
            1};
}

/// The device as it would be at the other speed (9.6.2).
Bytes deviceQualifier() {
    return {10, Type::DeviceQualifier, low(Usb2), high(Usb2), 0, 0, 0, ControlPacketSize, 1, 0};
}

void appendEndpoint(Bytes& bytes, std::uint8_t address, Speed speed) {
    constexpr std::uint8_t Bulk = 2;
    const std::uint16_t packetSize = speed == Speed::High ? 512 : 64;
    const Bytes endpoint{7, Type::Endpoint, address, Bulk, low(packetSize), high(packetSize), 0};
    bytes.insert(bytes.end(), endpoint.begin(), endpoint.end());
}

/// The configuration with its interface and endpoints, 32 bytes.
Bytes configurationDescriptor(std::uint8_t type, Speed speed) {
    constexpr std::uint8_t BusPowered = 0x80;
    constexpr std::uint8_t TwoHundredMilliamperes = 100;
    Bytes bytes{9,
                type,
                32,
                0,
                1,
                UsbDescriptor::ConfigurationValue,
                0,
                BusPowered,
                TwoHundredMilliamperes,
                9,
                Type::Interface,
                0, // number
                0, // alternate setting
                2, // endpoints
                UsbDescriptor::MassStorageClass,
                UsbDescriptor::TransparentScsi,
                UsbDescriptor::BulkOnly,
                0};
    appendEndpoint(bytes, UsbDescriptor::BulkInAddress, speed);
    appendEndpoint(bytes, UsbDescriptor::BulkOutAddress, speed);
    return bytes;
}

std::optional<Bytes> stringDescriptor(std::uint8_t index, std::uint16_t language,
                                      std::string_view serial) {
    if (index == StringIndex::Languages) {
        return Bytes{4, Type::String, low(English), high(English)};
    }
    if (language != English) {
        return std::nullopt;
    }
    switch (index) {
    case StringIndex::Manufacturer:
        return usbStringDescriptor(DriveName::Vendor);
    case StringIndex::Product:
        return usbStringDescriptor(DriveName::Product);
    case StringIndex::SerialNumber:
        return usbStringDescriptor(serial);
    default:
        return std::nullopt;
    }
}

} // namespace

std::vector<std::uint8_t> usbStringDescriptor(std::string_view text) {
    constexpr std::size_t MaximumUnits = 126;
    text = text.substr(0, MaximumUnits);
    Bytes bytes{static_cast<std::uint8_t>(2 + 2 * text.size()), Type::String};
    for (const char character : text) {
        bytes.push_back(static_cast<std::uint8_t>(character));
        bytes.push_back(0);
    }
    return bytes;
}

std::optional<std::vector<std::uint8_t>> usbDescriptor(std::uint16_t value, std::uint16_t language,
                                                       std::string_view serial) {
    const std::uint8_t index = low(value);
    if (high(value) == Type::String) {
        return stringDescriptor(index, language, serial);
    }
    if (index != 0) {
        return std::nullopt;
    }
    switch (high(value)) {
    case Type::Device:
        return deviceDescriptor();
    case Type::Configuration:
        return configurationDescriptor(Type::Configuration, Speed::High);
    case Type::DeviceQualifier:
        return deviceQualifier();
    case Type::OtherSpeedConfiguration:
        return configurationDescriptor(Type::OtherSpeedConfiguration, Speed::Full);
    default:
        return std::nullopt;
    }
}

} // namespace zelto::simulator
