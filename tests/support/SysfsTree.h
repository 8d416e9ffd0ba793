#pragma once

#include "tests/support/TemporaryFolder.h"

#include <string>
#include <vector>

namespace zelto::test {

/// A sysfs that the tests write themselves, laid out as the kernel lays out its own.
class SysfsTree {
public:
    [[nodiscard]] const std::filesystem::path& path() const { return m_folder.path(); }
    [[nodiscard]] const TemporaryFolder& folder() const { return m_folder; }

    /// A device's folder below "devices", with the link to its subsystem.
    void addDevice(const std::string& place, const std::string& subsystem) const {
        m_folder.write("devices/" + place + "/uevent", "");
        m_folder.link("devices/" + place + "/subsystem", "/nowhere/" + subsystem);
    }
    void set(const std::string& place, const std::string& attribute,
             const std::string& value) const {
        m_folder.write("devices/" + place + "/" + attribute, value + "\n");
    }

    void addUsbDevice(const std::string& place, unsigned bus, unsigned number,
                      const std::string& vendor, const std::string& product,
                      const std::string& serial) const {
        addDevice(place, "usb");
        set(place, "busnum", std::to_string(bus));
        set(place, "devnum", std::to_string(number));
        set(place, "idVendor", vendor);
        set(place, "idProduct", product);
        if (!serial.empty()) {
            set(place, "serial", serial);
        }
        m_folder.link("bus/usb/devices/" + std::filesystem::path(place).filename().string(),
                      (m_folder.path() / "devices" / place).string());
    }

    /// The storage unit `lun` of a USB device, with its disk. Returns the disk's place.
    std::string addDisk(const std::string& usbPlace, unsigned lun, const std::string& name,
                        const std::string& model, unsigned long sectors,
                        const std::string& number = "8:16") const {
        const auto interface =
            usbPlace + "/" + std::filesystem::path(usbPlace).filename().string() + ":1.0";
        const auto unit = interface + "/host0/target0:0:0/0:0:0:" + std::to_string(lun);
        for (const auto& [place, subsystem] : {std::pair{interface, "usb"},
                                               {interface + "/host0", "scsi"},
                                               {interface + "/host0/target0:0:0", "scsi"},
                                               {unit, "scsi"}}) {
            if (!std::filesystem::exists(m_folder / ("devices/" + place + "/uevent"))) {
                addDevice(place, subsystem);
            }
        }
        set(unit, "vendor", "KESTRIN ");
        set(unit, "model", model);
        auto disk = unit + "/block/" + name;
        addDevice(disk, "block");
        m_folder.link("devices/" + disk + "/device", "../../../0:0:0:" + std::to_string(lun));
        set(disk, "size", std::to_string(sectors));
        addNumber(disk, number);
        return disk;
    }

    void addPartition(const std::string& disk, const std::string& name, unsigned number,
                      const std::string& deviceNumber = "8:17") const {
        addDevice(disk + "/" + name, "block");
        set(disk + "/" + name, "partition", std::to_string(number));
        addNumber(disk + "/" + name, deviceNumber);
        set(disk + "/" + name, "size", "100");
    }

    /// A mapping that stands on disks, partitions or other mappings. Returns its place.
    std::string addMapping(const std::string& name, const std::string& number,
                           const std::string& mapping,
                           const std::vector<std::string>& standsOn) const {
        auto place = "virtual/block/" + name;
        addDevice(place, "block");
        set(place, "size", "100");
        set(place, "dm/name", mapping);
        addNumber(place, number);
        for (const auto& below : standsOn) {
            const std::filesystem::path devices("devices");
            m_folder.link((devices / below / "holders" / name).string(),
                          (m_folder.path() / devices / place).string());
            const auto slaves = devices / place / "slaves";
            m_folder.link((slaves / std::filesystem::path(below).filename()).string(),
                          (m_folder.path() / "devices" / below).string());
        }
        return place;
    }

    void removeMapping(const std::string& name) const {
        namespace fs = std::filesystem;
        std::vector<fs::path> gone{m_folder / ("devices/virtual/block/" + name),
                                   m_folder / ("class/block/" + name)};
        for (const auto& entry : fs::recursive_directory_iterator(m_folder / "devices")) {
            if (entry.path().filename() == name &&
                entry.path().parent_path().filename() == "holders") {
                gone.push_back(entry.path());
            }
        }
        for (const auto& path : gone) {
            fs::remove_all(path);
        }
    }

private:
    void addNumber(const std::string& place, const std::string& number) const {
        set(place, "dev", number);
        const auto target = (m_folder.path() / "devices" / place).string();
        m_folder.link("class/block/" + std::filesystem::path(place).filename().string(), target);
        // Tests that do not tell numbers apart give the same one to several.
        if (!std::filesystem::is_symlink(m_folder / ("dev/block/" + number))) {
            m_folder.link("dev/block/" + number, target);
        }
    }

    TemporaryFolder m_folder;
};

} // namespace zelto::test
