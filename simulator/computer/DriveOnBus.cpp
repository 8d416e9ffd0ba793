#include "simulator/computer/DriveOnBus.h"

#include "device/VendorRequest.h"
#include "device/ZELTOctrl.h"
#include "simulator/drive/DriveNames.h"

#include <algorithm>
#include <functional>

namespace zelto::simulator {

DriveOnBus::DriveOnBus(std::unique_ptr<VirtualDrive> drive) : m_drive(std::move(drive)) {
    m_description.idVendor = UsbIdentity::Vendor;
    m_description.idProduct = UsbIdentity::Product;
    m_description.product = DriveName::Product;
    m_description.serial = m_drive->serial();
}

IOReturn DriveOnBus::control(IOUSBDevRequest& request, Moment now) {
    const SetupPacket setup{.bmRequestType = request.bmRequestType,
                            .bRequest = request.bRequest,
                            .wValue = request.wValue,
                            .wIndex = request.wIndex,
                            .wLength = request.wLength};
    const bool toHost = (request.bmRequestType & 0x80U) != 0;
    const std::span<const std::uint8_t> sent =
        toHost || request.pData == nullptr
            ? std::span<const std::uint8_t>()
            : std::span<const std::uint8_t>(request.pData, request.wLength);
    const ControlReply reply = m_drive->control(setup, sent, now);
    if (reply.stalled) {
        return kIOUSBPipeStalled;
    }
    if (!toHost) {
        request.wLenDone = request.wLength;
        return kIOReturnSuccess;
    }
    if (reply.data.size() > request.wLength) {
        return kIOReturnOverrun;
    }
    std::ranges::copy(reply.data, request.pData);
    request.wLenDone = static_cast<std::uint32_t>(reply.data.size());
    return kIOReturnSuccess;
}

std::string DriveOnBus::unitName(std::size_t unit) const {
    return std::string(DriveName::Vendor) + " " + unitProduct(unit);
}

std::shared_ptr<DriveOnBus> makeDrive(const std::string& serial, std::uint64_t totalSectors) {
    Manufactured manufactured;
    manufactured.serial = serial;
    manufactured.totalSectors = totalSectors;
    manufactured.keySeed = std::hash<std::string>()(serial);
    return std::make_shared<DriveOnBus>(std::make_unique<VirtualDrive>(std::move(manufactured)));
}

} // namespace zelto::simulator
