#include "app/AppDelegate.h"

#include "device/IORegistry.h"

namespace zelto {

AppDelegate::AppDelegate(const Platform& platform)
    : m_platform(platform),
      m_gate(platform.application),
      m_discovery{platform.usb, Drives, [this](UsbEvent event, const std::function<void()>& run) {
                      m_gate.deliver(event == UsbEvent::FirstMatch ? EventGate::Event::Arrival
                                                                   : EventGate::Event::Removal,
                                     [this, run] {
                                         run();
                                         UpdateAccessHint();
                                     });
                  }} {
    connectSessionWindows();
    connectSettingsWindows();
}

AppDelegate::~AppDelegate() {
    // The process may live on (tests, the demo); its events must not reach a controller that is
    // gone.
    releaseNotifications();
    g_BsdNameList.clear();
}

} // namespace zelto
