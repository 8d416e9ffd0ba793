#pragma once

#include "simulator/scsi/ScsiUnit.h"
#include "simulator/usb/BulkOnlyTransport.h"
#include "simulator/usb/UsbTransfer.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace zelto::simulator {

/// The drive as a USB device at a bus: its control endpoint, and the bulk endpoints with the
/// storage units behind them. Whatever carries the bus offers it transfers one after the other;
/// a transfer that has to wait is offered again. Not for use by two threads.
class StorageDevice {
public:
    /// Refers to `storage` for as long as it lives. `serial` is ASCII.
    StorageDevice(std::string serial, VendorControl control, UnitStorage& storage);

    /// Plugging in: not configured, endpoints not halted, units as they come out of power-up.
    void powerUp();

    /// Tells the units to look for media; for after anything but a transfer that can change them.
    void noticeMedia();

    /// A transfer on endpoint 0. `sent` is the data stage towards the device; one towards the host
    /// goes into `buffer`, of which no more than wLength bytes are used.
    [[nodiscard]] TransferResult control(const SetupPacket& setup,
                                         std::span<const std::uint8_t> sent,
                                         std::span<std::uint8_t> buffer);
    /// Whether a bulk endpoint has this number, and answers: the device is configured.
    [[nodiscard]] bool hasBulkEndpoint(BulkEndpoint direction, std::uint8_t endpoint) const;
    /// A transfer on the bulk endpoint with this number (without direction).
    [[nodiscard]] TransferResult bulkOut(std::uint8_t endpoint, std::span<const std::uint8_t> data);
    [[nodiscard]] TransferResult bulkIn(std::uint8_t endpoint, std::span<std::uint8_t> buffer);

    /// bConfigurationValue in force; 0 while the host has not configured the device.
    [[nodiscard]] std::uint8_t configuration() const { return m_configuration; }

private:
    [[nodiscard]] TransferResult vendorRequest(const SetupPacket& setup,
                                               std::span<const std::uint8_t> sent,
                                               std::span<std::uint8_t> buffer);
    [[nodiscard]] std::optional<std::vector<std::uint8_t>> classRequest(const SetupPacket& setup);
    [[nodiscard]] std::optional<std::vector<std::uint8_t>>
    standardRequest(const SetupPacket& setup);
    [[nodiscard]] std::optional<std::vector<std::uint8_t>>
    getStatus(const SetupPacket& setup) const;
    [[nodiscard]] bool changeFeature(const SetupPacket& setup);
    [[nodiscard]] bool setConfiguration(const SetupPacket& setup);
    [[nodiscard]] bool setInterface(const SetupPacket& setup);
    [[nodiscard]] bool isConfigured() const { return m_configuration != 0; }

    std::string m_serial;
    VendorControl m_control;
    std::vector<ScsiUnit> m_units;
    BulkOnlyTransport m_transport;
    std::uint8_t m_configuration = 0;
};

} // namespace zelto::simulator
