// The walk that finds a drive's volumes, on a sysfs that is written for it: how it grows with the
// USB devices of the computer, and with everything else that sysfs holds. The drive is found last,
// opened, as the utility asks for it.

#include "device/IORegistry.h"
#include "platform/linux/LinuxRegistry.h"
#include "tests/support/SysfsTree.h"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace zelto::test {
namespace {

constexpr auto Serial = "ZD0123456789ABCD";
/// As many as one bus carries.
constexpr unsigned DevicesOfBus = 127;

/// Devices that are no drives, each with one interface, on as many buses as they need.
void addUsbDevices(const SysfsTree& tree, unsigned count) {
    for (unsigned index = 0; index < count; ++index) {
        const auto bus = index / DevicesOfBus + 1;
        const auto number = index % DevicesOfBus + 1;
        const auto name = std::to_string(bus) + "-1." + std::to_string(number);
        auto place = "pci0000:00/0000:00:14.0/usb" + std::to_string(bus) + "/" + name;
        tree.addUsbDevice(place, bus, number, "046d", "c31c", "");
        tree.addDevice(place.append("/").append(name).append(":1.0"), "usb");
    }
}

/// Disks and other devices that hang on no USB.
void addOtherEntries(const SysfsTree& tree, unsigned count) {
    for (unsigned index = 0; index < count; ++index) {
        const auto name = std::to_string(index);
        if (index % 2 == 0) {
            tree.addMapping("loop" + name, "7:" + name, "loop" + name, {});
        } else {
            tree.addDevice("platform/device" + name, "platform");
        }
    }
}

/// The arguments: USB devices beside the drive, other entries.
void findVolumes(benchmark::State& state) {
    const auto devices = static_cast<unsigned>(state.range(0));
    const SysfsTree tree;
    addUsbDevices(tree, devices);
    addOtherEntries(tree, static_cast<unsigned>(state.range(1)));
    constexpr std::uint32_t DriveBus = 200;
    const std::string place = "pci0000:00/0000:00:15.0/usb200/200-1";
    tree.addUsbDevice(place, DriveBus, 2, "07f7", "0135", Serial);
    tree.addPartition(tree.addDisk(place, 0, "sdb", "ZELTO DISK1", 2048), "sdb1", 1);

    linux_platform::LinuxRegistry registry(tree.path());
    const ScanTarget target{0x07f7, 0x0135, Serial, 0, DriveBus << 16U | 2U};
    for ([[maybe_unused]] auto turn : state) {
        std::vector<std::string> names;
        if (!IORegistry::Scan_ZELTOusb(registry, target, names) || names.size() != 2) {
            state.SkipWithError("The drive's volumes have not been found");
        }
    }
    state.counters["for each device"] = benchmark::Counter(
        devices, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

BENCHMARK(findVolumes)
    ->ArgNames({"USB devices", "others"})
    ->ArgsProduct({{10, 100, 1000}, {0}})
    ->ArgsProduct({{100}, {100, 1000, 10000}})
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace zelto::test
