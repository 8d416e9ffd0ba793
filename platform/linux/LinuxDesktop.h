#pragma once

#include "platform/Desktop.h"
#include "platform/linux/Notifications.h"
#include "platform/linux/SessionPlace.h"
#include "platform/linux/Waiting.h"

#include <QDBusConnection>
#include <QMetaObject>

#include <functional>

namespace zelto::linux_platform {

/// The desktop session: logind's inhibitors on the system bus; the session manager's, the program's
/// place and its notices on the session bus; and the toolkit's session management.
class LinuxDesktop final : public Desktop {
public:
    using Bus = std::function<QDBusConnection()>;

    /// The buses are connected to when they are first used.
    LinuxDesktop(Bus systemBus, const Bus& sessionBus, const Waiting& waiting);
    ~LinuxDesktop() override;

    [[nodiscard]] Hold keepAwake(const std::string& why) override;
    [[nodiscard]] bool takePlace(const LaterStart& later) override;
    void giveWayToNewStart() override;
    void bringOtherForward() override;
    void leaveNotice(const Notice& notice) override;
    [[nodiscard]] bool openDocument(const std::filesystem::path& file) override;
    /// X11 tells it at any time; Wayland only to the toolkit, which keeps it to itself.
    [[nodiscard]] std::optional<bool> isCapsLockOn() const override;
    void setSessionEndHandler(const std::function<bool()>& mayEnd) override;

private:
    [[nodiscard]] Hold holdOffShutdown(const std::string& why) const;
    [[nodiscard]] Hold holdOffLogOut(const std::string& why) const;

    Bus m_systemBus;
    Bus m_sessionBus;
    Notifications m_notifications;
    // Goes before them: while notices are shown nobody is to bring this program forward.
    SessionPlace m_place;
    QMetaObject::Connection m_sessionEnd;
};

} // namespace zelto::linux_platform
