#pragma once

#include "simulator/drive/DriveModel.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

/// The packets of the USB/IP protocol, version 1.1.1 (Linux, Documentation/usb/usbip_protocol):
/// everything big-endian but the setup packet. Pure, and the decoders trust nothing.
namespace zelto::simulator {

namespace Usbip {
inline constexpr std::uint16_t Version = 0x0111;
inline constexpr std::uint16_t Port = 3240;

// Operations: before a device is imported.
inline constexpr std::uint16_t RequestDeviceList = 0x8005;
inline constexpr std::uint16_t ReplyDeviceList = 0x0005;
inline constexpr std::uint16_t RequestImport = 0x8003;
inline constexpr std::uint16_t ReplyImport = 0x0003;

// Commands: after it.
inline constexpr std::uint32_t Submit = 1;
inline constexpr std::uint32_t Unlink = 2;
inline constexpr std::uint32_t SubmitReply = 3;
inline constexpr std::uint32_t UnlinkReply = 4;

inline constexpr std::size_t OperationHeaderSize = 8;
inline constexpr std::size_t BusIdSize = 32;
inline constexpr std::size_t DeviceSize = 312;
inline constexpr std::size_t InterfaceSize = 4;
inline constexpr std::size_t CommandSize = 48;
} // namespace Usbip

/// The status of an operation's reply.
enum class UsbipOperationStatus : std::uint32_t {
    Ok = 0,
    NotAvailable = 1,
    DeviceBusy = 2,
    NoDevice = 4
};

/// The status of a transfer's reply: the negative error numbers of Linux, whatever runs this.
enum class UsbipStatus : std::int32_t {
    Ok = 0,
    Stalled = -32,    // EPIPE
    NoResponse = -71, // EPROTO
    Overflow = -75,   // EOVERFLOW
    TooLong = -90,    // EMSGSIZE
    Unlinked = -104,  // ECONNRESET
};

/// The device as other computers see it in the list.
struct UsbipDevice {
    /// Its name in the list, at most 31 characters.
    std::string busId = "1-1";
    std::uint32_t busNumber = 1;
    std::uint32_t deviceNumber = 2;
    std::uint8_t configuration = 0;

    /// The number that the commands of an importer carry.
    [[nodiscard]] std::uint32_t deviceId() const { return busNumber << 16 | deviceNumber; }
};

struct UsbipOperation {
    std::uint16_t version = 0;
    std::uint16_t code = 0;
    std::uint32_t status = 0;
};
[[nodiscard]] UsbipOperation
    decodeOperation(std::span<const std::uint8_t, Usbip::OperationHeaderSize>);
/// The name asked for in an import request, up to its first zero byte.
[[nodiscard]] std::string decodeBusId(std::span<const std::uint8_t, Usbip::BusIdSize>);

/// OP_REP_DEVLIST: no device, or the one with its one interface.
[[nodiscard]] std::vector<std::uint8_t> encodeDeviceList(const std::optional<UsbipDevice>& device);
/// OP_REP_IMPORT; the device only with status Ok.
[[nodiscard]] std::vector<std::uint8_t> encodeImportReply(UsbipOperationStatus status,
                                                          const UsbipDevice& device);

enum class UsbipDirection : std::uint8_t { Out = 0, In = 1 };

/// USBIP_CMD_SUBMIT or USBIP_CMD_UNLINK.
struct UsbipCommand {
    std::uint32_t code = 0;
    std::uint32_t sequence = 0;
    std::uint32_t deviceId = 0;
    UsbipDirection direction = UsbipDirection::Out;
    std::uint8_t endpoint = 0;
    /// Submit: length of the data stage.
    std::uint32_t length = 0;
    /// Submit on endpoint 0.
    SetupPacket setup;
    /// Unlink: the submit that it takes back.
    std::uint32_t unlinkSequence = 0;
};
/// Nothing for a packet after which the stream cannot be followed: an unknown code or direction, an
/// endpoint number above 15, a negative length, or isochronous packets (whose descriptors would
/// follow the data; the device has no such endpoint).
[[nodiscard]] std::optional<UsbipCommand>
    decodeCommand(std::span<const std::uint8_t, Usbip::CommandSize>);

/// The header of USBIP_RET_SUBMIT; data towards the host follows it.
[[nodiscard]] std::array<std::uint8_t, Usbip::CommandSize>
encodeSubmitReply(std::uint32_t sequence, UsbipStatus status, std::uint32_t actualLength);
[[nodiscard]] std::array<std::uint8_t, Usbip::CommandSize> encodeUnlinkReply(std::uint32_t sequence,
                                                                             UsbipStatus status);

} // namespace zelto::simulator
