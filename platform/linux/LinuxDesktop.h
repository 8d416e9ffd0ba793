#pragma once

#include "platform/Desktop.h"
#include "platform/linux/Waiting.h"

#include <QDBusConnection>
#include <QMetaObject>

#include <functional>

namespace zelto::linux_platform {

/// The desktop session: logind's inhibitors on the system bus, the program's name on the session
/// bus, and the toolkit's session management.
class LinuxDesktop final : public Desktop {
public:
    using Bus = std::function<QDBusConnection()>;

    /// The buses are connected to when they are first used.
    LinuxDesktop(Bus systemBus, Bus sessionBus, const Waiting& waiting);
    ~LinuxDesktop() override;

    [[nodiscard]] Hold keepAwake(const std::string& why) override;
    void takePlace(const std::function<void()>& giveWay) override;
    void giveWayToNewStart() override;
    [[nodiscard]] bool openDocument(const std::filesystem::path& file) override;
    /// X11 tells it at any time; Wayland only to the toolkit, which keeps it to itself.
    [[nodiscard]] std::optional<bool> isCapsLockOn() const override;
    void setSessionEndHandler(const std::function<bool()>& mayEnd) override;

private:
    void waitForEndOf(const QString& connectionName);

    Bus m_systemBus;
    Bus m_sessionBus;
    const Waiting& m_waiting;
    QMetaObject::Connection m_nameLost;
    QMetaObject::Connection m_sessionEnd;
};

} // namespace zelto::linux_platform
