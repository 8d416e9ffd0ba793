#include "simulator/usbip/UsbipWire.h"

#include "device/Record.h"
#include "device/ZELTOctrl.h"
#include "simulator/usb/UsbDescriptors.h"

#include <algorithm>

namespace zelto::simulator {

namespace {

using record::Field;

namespace OperationField {
constexpr Field Version{0, 2};
constexpr Field Code{2, 2};
constexpr Field Status{4, 4};
static_assert(record::covers(std::array{Version, Code, Status}, Usbip::OperationHeaderSize));
} // namespace OperationField

namespace DeviceField {
constexpr Field Path{0, 256};
constexpr Field BusId{256, 32};
constexpr Field BusNumber{288, 4};
constexpr Field DeviceNumber{292, 4};
constexpr Field Speed{296, 4};
constexpr Field Vendor{300, 2};
constexpr Field Product{302, 2};
constexpr Field Release{304, 2};
constexpr Field Class{306, 1};
constexpr Field Subclass{307, 1};
constexpr Field Protocol{308, 1};
constexpr Field Configuration{309, 1};
constexpr Field ConfigurationCount{310, 1};
constexpr Field InterfaceCount{311, 1};
static_assert(record::covers(std::array{Path, BusId, BusNumber, DeviceNumber, Speed, Vendor,
                                        Product, Release, Class, Subclass, Protocol, Configuration,
                                        ConfigurationCount, InterfaceCount},
                             Usbip::DeviceSize));
} // namespace DeviceField

namespace CommandField {
constexpr Field Code{0, 4};
constexpr Field Sequence{4, 4};
constexpr Field DeviceId{8, 4};
constexpr Field Direction{12, 4};
constexpr Field Endpoint{16, 4};
// Submit
constexpr Field TransferFlags{20, 4};
constexpr Field Length{24, 4};
constexpr Field StartFrame{28, 4};
constexpr Field PacketCount{32, 4};
constexpr Field Interval{36, 4};
constexpr Field Setup{40, 8};
static_assert(record::covers(std::array{Code, Sequence, DeviceId, Direction, Endpoint,
                                        TransferFlags, Length, StartFrame, PacketCount, Interval,
                                        Setup},
                             Usbip::CommandSize));
// Unlink
constexpr Field UnlinkSequence{20, 4};
// Replies
constexpr Field Status{20, 4};
constexpr Field ActualLength{24, 4};
} // namespace CommandField

void putText(std::span<std::uint8_t> bytes, Field field, std::string_view text) {
    const auto target = record::bytes(bytes, field);
    std::ranges::copy(text.substr(0, target.size() - 1), target.begin());
}

std::array<std::uint8_t, Usbip::DeviceSize> encodeDevice(const UsbipDevice& device) {
    constexpr std::uint32_t HighSpeed = 3;
    std::array<std::uint8_t, Usbip::DeviceSize> bytes{};
    putText(bytes, DeviceField::Path, "/zelto/virtual-drive/" + device.busId);
    putText(bytes, DeviceField::BusId, device.busId);
    record::put(bytes, DeviceField::BusNumber, device.busNumber);
    record::put(bytes, DeviceField::DeviceNumber, device.deviceNumber);
    record::put(bytes, DeviceField::Speed, HighSpeed);
    record::put(bytes, DeviceField::Vendor, UsbIdentity::Vendor);
    record::put(bytes, DeviceField::Product, UsbIdentity::Product);
    record::put(bytes, DeviceField::Release, UsbDescriptor::Release);
    record::put(bytes, DeviceField::Configuration, device.configuration);
    record::put(bytes, DeviceField::ConfigurationCount, 1);
    record::put(bytes, DeviceField::InterfaceCount, 1);
    return bytes;
}

std::vector<std::uint8_t> encodeOperation(std::uint16_t code, UsbipOperationStatus status) {
    std::vector<std::uint8_t> bytes(Usbip::OperationHeaderSize);
    record::put(bytes, OperationField::Version, Usbip::Version);
    record::put(bytes, OperationField::Code, code);
    record::put(bytes, OperationField::Status, static_cast<std::uint32_t>(status));
    return bytes;
}

/// The setup packet travels as it does on a bus: low byte first.
SetupPacket decodeSetup(std::span<const std::uint8_t> bytes) {
    const auto little16 = [&](std::size_t offset) {
        return static_cast<std::uint16_t>(bytes[offset] | bytes[offset + 1] << 8);
    };
    return {bytes[0], bytes[1], little16(2), little16(4), little16(6)};
}

std::array<std::uint8_t, Usbip::CommandSize> encodeReply(std::uint32_t code, std::uint32_t sequence,
                                                         UsbipStatus status) {
    std::array<std::uint8_t, Usbip::CommandSize> bytes{};
    record::put(bytes, CommandField::Code, code);
    record::put(bytes, CommandField::Sequence, sequence);
    record::put(bytes, CommandField::Status, static_cast<std::uint32_t>(status));
    return bytes;
}

} // namespace

UsbipOperation decodeOperation(std::span<const std::uint8_t, Usbip::OperationHeaderSize> bytes) {
    return {record::get<std::uint16_t>(bytes, OperationField::Version),
            record::get<std::uint16_t>(bytes, OperationField::Code),
            record::get<std::uint32_t>(bytes, OperationField::Status)};
}

std::string decodeBusId(std::span<const std::uint8_t, Usbip::BusIdSize> bytes) {
    return {bytes.begin(), std::ranges::find(bytes, 0)};
}

std::vector<std::uint8_t> encodeDeviceList(const std::optional<UsbipDevice>& device) {
    std::vector<std::uint8_t> bytes =
        encodeOperation(Usbip::ReplyDeviceList, UsbipOperationStatus::Ok);
    bytes.resize(bytes.size() + 4);
    if (device) {
        record::put(bytes, {Usbip::OperationHeaderSize, 4}, 1);
        const auto encoded = encodeDevice(*device);
        bytes.insert(bytes.end(), encoded.begin(), encoded.end());
        bytes.insert(bytes.end(), {UsbDescriptor::MassStorageClass, UsbDescriptor::TransparentScsi,
                                   UsbDescriptor::BulkOnly, 0});
    }
    return bytes;
}

std::vector<std::uint8_t> encodeImportReply(UsbipOperationStatus status,
                                            const UsbipDevice& device) {
    std::vector<std::uint8_t> bytes = encodeOperation(Usbip::ReplyImport, status);
    if (status == UsbipOperationStatus::Ok) {
        const auto encoded = encodeDevice(device);
        bytes.insert(bytes.end(), encoded.begin(), encoded.end());
    }
    return bytes;
}

std::optional<UsbipCommand> decodeCommand(std::span<const std::uint8_t, Usbip::CommandSize> bytes) {
    constexpr std::uint32_t HighestEndpoint = 15;
    constexpr std::uint32_t Negative = 0x80000000;
    constexpr std::uint32_t NotIsochronous = 0xFFFFFFFF;
    const auto direction = record::get<std::uint32_t>(bytes, CommandField::Direction);
    const auto endpoint = record::get<std::uint32_t>(bytes, CommandField::Endpoint);
    UsbipCommand command;
    command.code = record::get<std::uint32_t>(bytes, CommandField::Code);
    command.sequence = record::get<std::uint32_t>(bytes, CommandField::Sequence);
    command.deviceId = record::get<std::uint32_t>(bytes, CommandField::DeviceId);
    if (command.code == Usbip::Unlink) {
        command.unlinkSequence = record::get<std::uint32_t>(bytes, CommandField::UnlinkSequence);
        return command;
    }
    const auto packetCount = record::get<std::uint32_t>(bytes, CommandField::PacketCount);
    command.length = record::get<std::uint32_t>(bytes, CommandField::Length);
    if (command.code != Usbip::Submit || direction > 1 || endpoint > HighestEndpoint ||
        (command.length & Negative) != 0 || (packetCount != 0 && packetCount != NotIsochronous)) {
        return std::nullopt;
    }
    command.direction = static_cast<UsbipDirection>(direction);
    command.endpoint = static_cast<std::uint8_t>(endpoint);
    command.setup = decodeSetup(record::bytes(bytes, CommandField::Setup));
    return command;
}

std::array<std::uint8_t, Usbip::CommandSize>
encodeSubmitReply(std::uint32_t sequence, UsbipStatus status, std::uint32_t actualLength) {
    auto bytes = encodeReply(Usbip::SubmitReply, sequence, status);
    record::put(bytes, CommandField::ActualLength, actualLength);
    return bytes;
}

std::array<std::uint8_t, Usbip::CommandSize> encodeUnlinkReply(std::uint32_t sequence,
                                                               UsbipStatus status) {
    return encodeReply(Usbip::UnlinkReply, sequence, status);
}

} // namespace zelto::simulator
