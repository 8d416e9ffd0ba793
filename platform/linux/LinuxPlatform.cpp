#include "platform/linux/LinuxPlatform.h"

#include "platform/linux/SpokenChanges.h"

#include <utility>

namespace zelto::linux_platform {

LinuxPlatform::LinuxPlatform(Alerts& alerts, WorkInProgress showWork)
    : m_alerts(alerts),
      m_waiting(std::move(showWork)),
      m_usb(m_waiting),
      m_disks([] { return QDBusConnection::systemBus(); }, m_waiting, m_mounts),
      m_computer(m_waiting),
      m_clock(m_waiting),
      m_desktop([] { return QDBusConnection::systemBus(); },
                [] { return QDBusConnection::sessionBus(); }, m_waiting) {
    tellChangesInWords();
}

Platform LinuxPlatform::platform() {
    return {m_usb,   m_registry, m_mounts,      m_disks,  m_computer,
            m_clock, m_alerts,   m_application, m_desktop};
}

} // namespace zelto::linux_platform
