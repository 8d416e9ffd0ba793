#pragma once

#include "simulator/computer/PluggableDevice.h"
#include "simulator/drive/SectorStore.h"

namespace zelto::simulator {

/// What else hangs on a computer's bus, to prove that the program leaves it alone.
class UsbMouse : public PluggableDevice {
public:
    UsbMouse();

    [[nodiscard]] const UsbDescription& description() const override { return m_description; }
    void powerUp(Moment) override {}
    void powerOff(Moment) override {}
    [[nodiscard]] IOReturn control(IOUSBDevRequest& request, Moment now) override;
    [[nodiscard]] std::string unitName(std::size_t) const override { return {}; }
    [[nodiscard]] std::optional<MediumInfo> medium(std::size_t, Moment) override {
        return std::nullopt;
    }
    [[nodiscard]] bool read(std::size_t, std::uint64_t, std::span<std::uint8_t>, Moment) override {
        return false;
    }
    [[nodiscard]] bool write(std::size_t, std::uint64_t, std::span<const std::uint8_t>,
                             Moment) override {
        return false;
    }
    [[nodiscard]] int requestsSeen() const { return m_requestsSeen; }

protected:
    UsbDescription m_description;

private:
    int m_requestsSeen = 0;
};

/// A disk of another maker, with a FAT volume on it.
class ForeignDisk : public UsbMouse {
public:
    explicit ForeignDisk(std::uint64_t sectorCount, const std::string& label = "HOLIDAYS");

    [[nodiscard]] std::size_t unitCount() const override { return 1; }
    [[nodiscard]] std::string unitName(std::size_t) const override { return "GENERIC FLASH DISK"; }
    [[nodiscard]] std::optional<MediumInfo> medium(std::size_t unit, Moment now) override;
    [[nodiscard]] bool read(std::size_t unit, std::uint64_t firstSector,
                            std::span<std::uint8_t> into, Moment now) override;
    [[nodiscard]] bool write(std::size_t unit, std::uint64_t firstSector,
                             std::span<const std::uint8_t> from, Moment now) override;
    /// Whether anything was written to it since it was made.
    [[nodiscard]] bool wasWritten() const { return m_wasWritten; }

private:
    MemorySectorStore m_store;
    bool m_wasWritten = false;
};

} // namespace zelto::simulator
