#include "simulator/computer/VirtualComputer.h"

namespace zelto::simulator {

VirtualComputer::VirtualComputer(std::chrono::sys_seconds start) : clock(log, start) {
    disks.setListeners([this](VirtualDisk& disk) { mounts.diskAppeared(disk); },
                       [this](const VirtualDisk& disk) { mounts.diskVanished(disk); });
    usb.setListener([this] { disks.lookAgain(); });
    clock.setListener([this] { disks.lookAgain(); });
}

VirtualComputer::~VirtualComputer() = default;

Platform VirtualComputer::platform(Alerts& alerts) {
    return {.usb = usb,
            .registry = registry,
            .mounts = mounts,
            .disks = diskTool,
            .computer = files,
            .clock = clock,
            .alerts = alerts,
            .application = application,
            .desktop = *desktop};
}

void VirtualComputer::advance(std::chrono::seconds duration) {
    for (auto left = duration; left.count() > 0 && !application.isStopped();
         left -= std::chrono::seconds(1)) {
        skip(std::chrono::seconds(1));
    }
}

void VirtualComputer::skip(std::chrono::seconds duration) {
    clock.pass(duration);
    settle();
    application.fireDueTimers();
    settle();
}

void VirtualComputer::settle() {
    static_cast<void>(application.runUntilIdle());
}

void VirtualComputer::endProcess() {
    application.endProcess();
    usb.endProcess();
}

} // namespace zelto::simulator
