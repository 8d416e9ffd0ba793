#pragma once

#include "platform/Platform.h"
#include "platform/linux/LinuxApplication.h"
#include "platform/linux/LinuxClock.h"
#include "platform/linux/LinuxComputer.h"
#include "platform/linux/LinuxDesktop.h"
#include "platform/linux/LinuxDiskTool.h"
#include "platform/linux/LinuxMountTable.h"
#include "platform/linux/LinuxRegistry.h"
#include "platform/linux/LinuxUsb.h"
#include "platform/linux/Waiting.h"

namespace zelto::linux_platform {

/// The real computer behind the seam. Made by `main` after the application object, and kept until
/// after the controller.
class LinuxPlatform {
public:
    /// `showWork` is what the windows do while a pause, the disk tool or a copy keeps the user
    /// waiting.
    explicit LinuxPlatform(Alerts& alerts, WorkInProgress showWork = {});

    [[nodiscard]] Platform platform();

private:
    Alerts& m_alerts;
    Waiting m_waiting;
    LinuxUsb m_usb;
    LinuxRegistry m_registry;
    LinuxMountTable m_mounts;
    LinuxDiskTool m_disks;
    LinuxComputer m_computer;
    LinuxClock m_clock;
    LinuxApplication m_application;
    LinuxDesktop m_desktop;
};

} // namespace zelto::linux_platform
