#pragma once

#include "platform/Desktop.h"
#include "platform/Platform.h"
#include "simulator/computer/DriveOnBus.h"
#include "simulator/computer/VirtualApplication.h"
#include "simulator/computer/VirtualClock.h"
#include "simulator/computer/VirtualDiskTool.h"
#include "simulator/computer/VirtualDisks.h"
#include "simulator/computer/VirtualFiles.h"
#include "simulator/computer/VirtualMountTable.h"
#include "simulator/computer/VirtualRegistry.h"
#include "simulator/computer/VirtualUsbBus.h"

namespace zelto::simulator {

/// A whole computer in one process: USB ports, disks, desktop, files, clock and run loop. Behind
/// the platform seam it is everything that a real one is; the program can't tell the difference.
/// Nothing happens by itself: time passes when `advance` lets it.
///
/// The parts are open to whoever plays the world. One thread.
class VirtualComputer {
public:
    explicit VirtualComputer(std::chrono::sys_seconds start = VirtualClock::SomeMorning);
    VirtualComputer(const VirtualComputer&) = delete;
    VirtualComputer& operator=(const VirtualComputer&) = delete;
    ~VirtualComputer();

    /// The seam as a program gets it; alerts are shown by whoever shows the windows.
    [[nodiscard]] Platform platform(Alerts& alerts);

    /// The physical verbs.
    void plug(const VirtualUsbBus::Device& device) { usb.plug(device); }
    void unplug(const VirtualUsbBus::Device& device) { usb.unplug(device); }
    void replug(const VirtualUsbBus::Device& device) { usb.replug(device); }

    /// Lets seconds pass one by one, the run loop awake: every timer fires in each second that it
    /// is due, and events arrive. Ends early when the program stops its loop.
    void advance(std::chrono::seconds duration);
    /// Lets time pass in one go, as while the computer is suspended: timers fire once, late.
    void skip(std::chrono::seconds duration);
    /// Delivers what waits, without time passing.
    void settle();
    /// The program's process has ended; a new one may be started on this computer.
    void endProcess();

    EventLog log;
    VirtualClock clock;
    VirtualApplication application{clock, log};
    VirtualUsbBus usb{clock, application, log};
    VirtualDisks disks{usb};
    VirtualRegistry registry{usb, disks};
    VirtualMountTable mounts{disks};
    VirtualDiskTool diskTool{disks, mounts, log};
    VirtualFiles files{mounts, log};
    /// A bare session, until somebody puts another one here.
    std::shared_ptr<Desktop> desktop = std::make_shared<Desktop>();
};

} // namespace zelto::simulator
