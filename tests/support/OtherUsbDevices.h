#pragma once

#include "simulator/computer/PluggableDevice.h"
#include "simulator/drive/SectorStore.h"

namespace zelto::test {

using namespace simulator;

/// What else hangs on a computer's bus, to prove that the program leaves it alone.
class UsbMouse : public PluggableDevice {
public:
    UsbMouse();

    [[nodiscard]] const UsbDescription& description() const override { return m_description; }
    void powerUp(Moment) override {}
    void powerOff(Moment) override {}
    [[nodiscard]] IOReturn control(IOUSBDevRequest& request, Moment now) override;

protected:
    UsbDescription m_description;
};

/// A disk of another maker, with a volume on it.
class ForeignDisk : public UsbMouse {
public:
    explicit ForeignDisk(std::uint64_t sectorCount, const std::string& label = "HOLIDAYS");

    [[nodiscard]] std::size_t unitCount() const override { return 1; }
    [[nodiscard]] std::string unitName(std::size_t) const override { return "GENERIC FLASH DISK"; }
    [[nodiscard]] std::unique_ptr<UnitStorage> makeUnits(const std::function<Moment()>&) override;
    /// Of the volume that is on it now; empty when none is.
    [[nodiscard]] std::string volumeLabel();

private:
    MemorySectorStore m_store;
};

} // namespace zelto::test
