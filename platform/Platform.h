#pragma once

namespace zelto {

class Alerts;
class Application;
class Clock;
class Computer;
class Desktop;
class DiskTool;
class MountTable;
class Registry;
class UsbNotifications;

/// Everything outside the program, as the controller sees it. Filled by `main`; the utility never
/// knows whether a real computer or a virtual one stands behind it. All of it is used from the
/// main thread only and outlives the controller.
struct Platform {
    UsbNotifications& usb;
    Registry& registry;
    MountTable& mounts;
    DiskTool& disks;
    Computer& computer;
    Clock& clock;
    Alerts& alerts;
    Application& application;
    Desktop& desktop;
};

} // namespace zelto
