// What a command of the utility costs over the control transfer that it is: the same request, sent
// by the utility's own way (its record decoded or encoded and wiped, its buffers wiped) and by
// libusb's synchronous call on a second handle of the same drive. The kernel below libusb is
// umockdev's: each of a transfer's ioctls goes to another thread and back, which takes about as
// long as a drive of high speed takes to answer, and a virtual drive answers. So the ratio is that
// of a real computer, roughly; what the utility adds by itself is the difference.

#include "device/DeviceReads.h"
#include "device/DeviceWrites.h"
#include "device/VendorRequest.h"
#include "platform/linux/LinuxUsb.h"
#include "tests/platform/UsbBed.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <libusb.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <ctime>
#include <memory>
#include <stdexcept>
#include <vector>

namespace zelto::test {
namespace {

using namespace linux_platform;

constexpr unsigned Limit = 5000;

/// One drive, opened twice: by the utility's way and by libusb alone.
class OpenedTwice {
public:
    OpenedTwice() {
        m_bed.plug(1);
        if (!m_usb.IOMasterPort()) {
            throw std::runtime_error("no USB");
        }
        const auto arrivals = m_usb.IOServiceAddMatchingNotification(
            m_usb.IONotificationPortCreate(), UsbEvent::FirstMatch, {0x07f7, 0x0135},
            [](IOObject) {});
        utility = m_usb.IOIteratorNext(arrivals)->IOCreatePlugInInterfaceForService();
        m_node = FileDescriptor(::open("/dev/bus/usb/250/001", O_RDWR | O_CLOEXEC));
        if (utility->USBDeviceOpen() != kIOReturnSuccess ||
            libusb_wrap_sys_device(m_context.get(), m_node.get(), &raw) != LIBUSB_SUCCESS) {
            throw std::runtime_error("the drive cannot be opened");
        }
    }
    OpenedTwice(const OpenedTwice&) = delete;
    OpenedTwice& operator=(const OpenedTwice&) = delete;
    ~OpenedTwice() { libusb_close(raw); }

private:
    UsbBed m_bed;
    Waiting m_waiting;
    LinuxUsb m_usb{m_waiting};
    UsbContext m_context;
    FileDescriptor m_node;

public:
    std::unique_ptr<UsbDeviceInterface> utility;
    libusb_device_handle* raw = nullptr;
};

/// What one kind of request has taken, in microseconds a time: until it was answered, and of this
/// thread's processor.
class Costs {
public:
    template <typename Request>
    void measure(const Request& request) {
        const auto started = std::chrono::steady_clock::now();
        const auto before = processorMicroseconds();
        request();
        m_processor.push_back(processorMicroseconds() - before);
        const std::chrono::duration<double, std::micro> taken =
            std::chrono::steady_clock::now() - started;
        m_elapsed.push_back(taken.count());
    }

    [[nodiscard]] double elapsed() const { return median(m_elapsed); }
    [[nodiscard]] double processor() const { return median(m_processor); }

private:
    static double processorMicroseconds() {
        timespec now{};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
        return static_cast<double>(now.tv_sec) * 1e6 + static_cast<double>(now.tv_nsec) / 1e3;
    }
    static double median(std::vector<double> values) {
        const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
        std::nth_element(values.begin(), middle, values.end());
        return *middle;
    }

    std::vector<double> m_elapsed;
    std::vector<double> m_processor;
};

/// Both in turns, each first in every second one.
template <typename Command, typename Transfer>
void compare(benchmark::State& state, const Command& command, const Transfer& transfer) {
    Costs commands;
    Costs transfers;
    bool isCommandFirst = false;
    for ([[maybe_unused]] auto turn : state) {
        if (isCommandFirst) {
            commands.measure(command);
        }
        transfers.measure(transfer);
        if (!isCommandFirst) {
            commands.measure(command);
        }
        isCommandFirst = !isCommandFirst;
    }
    state.counters["command us"] = commands.elapsed();
    state.counters["transfer us"] = transfers.elapsed();
    state.counters["ratio (goal 1.05)"] = commands.elapsed() / transfers.elapsed();
    state.counters["processor ratio"] = commands.processor() / transfers.processor();
}

void readsStatus(benchmark::State& state) {
    const OpenedTwice drive;
    std::array<std::uint8_t, DeviceStatus::Size> record{};
    compare(
        state,
        [&] {
            if (readDeviceStatus(*drive.utility, StatusRequest::Plain).failed()) {
                state.SkipWithError("The command has failed");
            }
        },
        [&] {
            if (libusb_control_transfer(drive.raw, VendorRequest::ToHost,
                                        VendorRequest::GetDeviceStatus, 0, 0, record.data(),
                                        record.size(), Limit) != int{record.size()}) {
                state.SkipWithError("The transfer has failed");
            }
        });
}

void setsClock(benchmark::State& state) {
    const OpenedTwice drive;
    std::array<std::uint8_t, 7> record{0x07, 0xEA, 1, 2, 3, 4, 5};
    const std::chrono::sys_seconds now{std::chrono::sys_days{std::chrono::year(2026) / 1 / 2} +
                                       std::chrono::hours(3)};
    compare(
        state,
        [&] {
            if (writeCurrentTime(*drive.utility, now) != kIOReturnSuccess) {
                state.SkipWithError("The command has failed");
            }
        },
        [&] {
            if (libusb_control_transfer(drive.raw, VendorRequest::ToDevice,
                                        VendorRequest::SetCurrentTime, 0, 0, record.data(),
                                        record.size(), Limit) != int{record.size()}) {
                state.SkipWithError("The transfer has failed");
            }
        });
}

BENCHMARK(readsStatus)->Unit(benchmark::kMicrosecond)->MinTime(2);
BENCHMARK(setsClock)->Unit(benchmark::kMicrosecond)->MinTime(2);

} // namespace
} // namespace zelto::test

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
