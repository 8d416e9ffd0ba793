#pragma once

#include "simulator/computer/PluggableDevice.h"
#include "simulator/drive/DriveUnits.h"

#include <memory>

namespace zelto::simulator {

/// A virtual drive with the plug that fits the virtual computer.
class DriveOnBus : public PluggableDevice {
public:
    explicit DriveOnBus(std::unique_ptr<VirtualDrive> drive);

    [[nodiscard]] VirtualDrive& drive() { return *m_drive; }
    /// What the drive tells about itself; may be changed while it is unplugged.
    [[nodiscard]] UsbDescription& describe() { return m_description; }

    [[nodiscard]] const UsbDescription& description() const override { return m_description; }
    void powerUp(Moment now) override { m_drive->plug(now); }
    void powerOff(Moment now) override { m_drive->unplug(now); }
    [[nodiscard]] IOReturn control(IOUSBDevRequest& request, Moment now) override;
    [[nodiscard]] bool takeReconnect() override { return m_drive->takeReconnect(); }
    [[nodiscard]] std::size_t unitCount() const override { return VirtualDrive::UnitCount; }
    [[nodiscard]] std::string unitName(std::size_t unit) const override;
    [[nodiscard]] std::unique_ptr<UnitStorage>
    makeUnits(const std::function<Moment()>& clock) override {
        return std::make_unique<DriveUnits>(*m_drive, clock);
    }

private:
    std::unique_ptr<VirtualDrive> m_drive;
    UsbDescription m_description;
};

/// A new drive of that many sectors.
[[nodiscard]] std::shared_ptr<DriveOnBus> makeDrive(const std::string& serial,
                                                    std::uint64_t totalSectors);

} // namespace zelto::simulator
