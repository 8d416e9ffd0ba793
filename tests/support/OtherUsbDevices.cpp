#include "tests/support/OtherUsbDevices.h"

#include "simulator/computer/VirtualVolume.h"

namespace zelto::test {

namespace {

/// One unit whose medium is always in it.
class FixedUnit : public UnitStorage {
public:
    explicit FixedUnit(SectorStore& store) : m_store(store) {}
    [[nodiscard]] std::optional<UnitMedium> medium(std::size_t unit) override {
        return unit == 0 ? std::optional(UnitMedium{m_store.sectorCount(), 1}) : std::nullopt;
    }
    [[nodiscard]] bool read(std::size_t, std::uint64_t firstSector,
                            std::span<std::uint8_t> sectors) override {
        return m_store.read(firstSector, sectors);
    }
    [[nodiscard]] bool write(std::size_t, std::uint64_t firstSector,
                             std::span<const std::uint8_t> sectors) override {
        return m_store.write(firstSector, sectors);
    }
    [[nodiscard]] bool flush(std::size_t) override { return true; }

private:
    SectorStore& m_store;
};

} // namespace

UsbMouse::UsbMouse() {
    m_description.idVendor = 0x1209;
    m_description.idProduct = 0x0001;
    m_description.iSerialNumber = 0;
    m_description.product = "Mouse";
}

IOReturn UsbMouse::control(IOUSBDevRequest& /*request*/, Moment /*now*/) {
    return kIOUSBPipeStalled;
}

ForeignDisk::ForeignDisk(std::uint64_t sectorCount, const std::string& label)
    : m_store(sectorCount) {
    m_description.idProduct = 0x0002;
    m_description.iSerialNumber = 1;
    m_description.product = "Flash Disk";
    m_description.serial = "F0000001";
    static_cast<void>(VirtualVolume::format(m_store, label));
}

std::unique_ptr<UnitStorage> ForeignDisk::makeUnits(const std::function<Moment()>& /*clock*/) {
    return std::make_unique<FixedUnit>(m_store);
}

std::string ForeignDisk::volumeLabel() {
    const auto volume = VirtualVolume::mount(m_store);
    return volume == nullptr ? std::string() : volume->label();
}

} // namespace zelto::test
