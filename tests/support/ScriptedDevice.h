#pragma once

#include "platform/UsbDevice.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace zelto::test {

/// A USB device that answers from a script and remembers what it was asked. Without a script it
/// obeys everything and sends nothing.
class ScriptedDevice : public UsbDeviceInterface {
public:
    /// One control transfer as the device saw it.
    struct Transfer {
        std::uint8_t bmRequestType = 0;
        std::uint8_t bRequest = 0;
        std::uint16_t wValue = 0;
        std::uint16_t wIndex = 0;
        std::uint16_t wLength = 0;
        /// Whether the caller had a data stage buffer.
        bool hasBuffer = false;
        /// The data stage towards the device.
        std::vector<std::uint8_t> sent{};

        /// The eight bytes on the wire (USB 2.0, 9.3).
        [[nodiscard]] std::vector<std::uint8_t> setupPacket() const {
            const auto low = [](std::uint16_t value) { return std::uint8_t(value & 0xFF); };
            const auto high = [](std::uint16_t value) { return std::uint8_t(value >> 8); };
            return {bmRequestType, bRequest,     low(wValue),  high(wValue),
                    low(wIndex),   high(wIndex), low(wLength), high(wLength)};
        }
    };

    struct Answer {
        IOReturn result = kIOReturnSuccess;
        /// The data stage towards the host; what does not fit is not sent.
        std::vector<std::uint8_t> data{};
    };

    // The device's nature, set before it is used.
    std::uint16_t vendor = 0x07F7;
    std::uint16_t product = 0x0135;
    std::uint16_t release = 0x0100;
    std::uint8_t serialNumberIndex = 3;
    std::uint32_t location = nextLocation();
    std::string port = "1-1";
    IOReturn openResult = kIOReturnSuccess;
    /// Answers to the next transfers, in order.
    std::deque<Answer> script;

    // What happened to it.
    int timesOpened = 0;
    std::vector<Transfer> transfers;
    /// Goes with the device: a weak pointer to it tells whether the interface is still there.
    std::shared_ptr<const bool> presence = std::make_shared<const bool>(true);

    [[nodiscard]] std::uint16_t GetDeviceVendor() const override { return vendor; }
    [[nodiscard]] std::uint16_t GetDeviceProduct() const override { return product; }
    [[nodiscard]] std::uint16_t GetDeviceReleaseNumber() const override { return release; }
    [[nodiscard]] std::uint32_t GetLocationID() const override { return location; }
    [[nodiscard]] std::string GetPortName() const override { return port; }
    [[nodiscard]] IOReturn USBDeviceOpen() override {
        ++timesOpened;
        return openResult;
    }
    [[nodiscard]] std::uint8_t USBGetSerialNumberStringIndex() const override {
        return serialNumberIndex;
    }

    [[nodiscard]] IOReturn DeviceRequest(IOUSBDevRequest& request) override {
        const bool toHost = (request.bmRequestType & 0x80) != 0;
        Transfer transfer{.bmRequestType = request.bmRequestType,
                          .bRequest = request.bRequest,
                          .wValue = request.wValue,
                          .wIndex = request.wIndex,
                          .wLength = request.wLength,
                          .hasBuffer = request.pData != nullptr,
                          .sent = {}};
        if (!toHost && transfer.hasBuffer) {
            transfer.sent.assign(request.pData, request.pData + request.wLength);
        }
        transfers.push_back(transfer);
        const Answer answer = takeAnswer();
        if (toHost && transfer.hasBuffer) {
            const auto moved = std::min<std::size_t>(answer.data.size(), request.wLength);
            std::copy_n(answer.data.begin(), moved, request.pData);
            request.wLenDone = static_cast<std::uint32_t>(moved);
        }
        return answer.result;
    }

private:
    static std::uint32_t nextLocation() {
        static std::uint32_t latest = 0;
        return ++latest;
    }

    Answer takeAnswer() {
        if (script.empty()) {
            return {};
        }
        Answer answer = script.front();
        script.pop_front();
        return answer;
    }
};

} // namespace zelto::test
