#include "simulator/computer/OtherUsbDevices.h"

#include "simulator/fat/FatLayout.h"

namespace zelto::simulator {

UsbMouse::UsbMouse() {
    m_description.idVendor = 0x1209;
    m_description.idProduct = 0x0001;
    m_description.iSerialNumber = 0;
    m_description.product = "Mouse";
}

IOReturn UsbMouse::control(IOUSBDevRequest& request, Moment now) {
    static_cast<void>(request);
    static_cast<void>(now);
    ++m_requestsSeen;
    return kIOUSBPipeStalled;
}

namespace {

class StoreDevice : public BlockDevice {
public:
    explicit StoreDevice(SectorStore& store) : m_store(store) {}
    [[nodiscard]] std::uint64_t sectorCount() const override { return m_store.sectorCount(); }
    [[nodiscard]] bool read(std::uint64_t firstSector, std::span<std::uint8_t> into) override {
        return m_store.read(firstSector, into);
    }
    [[nodiscard]] bool write(std::uint64_t firstSector,
                             std::span<const std::uint8_t> from) override {
        return m_store.write(firstSector, from);
    }

private:
    SectorStore& m_store;
};

} // namespace

ForeignDisk::ForeignDisk(std::uint64_t sectorCount, const std::string& label)
    : m_store(sectorCount) {
    m_description.idProduct = 0x0002;
    m_description.iSerialNumber = 1;
    m_description.product = "Flash Disk";
    m_description.serial = "F0000001";
    StoreDevice device(m_store);
    static_cast<void>(formatFat(device, label, 0, {}));
}

std::optional<MediumInfo> ForeignDisk::medium(std::size_t unit, Moment now) {
    static_cast<void>(now);
    return unit == 0 ? std::optional(MediumInfo{.sectorCount = m_store.sectorCount()})
                     : std::nullopt;
}

bool ForeignDisk::read(std::size_t unit, std::uint64_t firstSector, std::span<std::uint8_t> into,
                       Moment now) {
    static_cast<void>(now);
    return unit == 0 && m_store.read(firstSector, into);
}

bool ForeignDisk::write(std::size_t unit, std::uint64_t firstSector,
                        std::span<const std::uint8_t> from, Moment now) {
    static_cast<void>(now);
    m_wasWritten = true;
    return unit == 0 && m_store.write(firstSector, from);
}

} // namespace zelto::simulator
