#pragma once

#include "platform/Application.h"

#include <QObject>

namespace zelto::linux_platform {

/// Qt's application object and run loop. Timers and tasks end with this object.
class LinuxApplication final : public Application {
public:
    void scheduledTimer(std::chrono::seconds interval, std::function<void()> handler) override;
    void performLater(std::function<void()> task) override;
    void stop() override;

private:
    QObject m_context;
};

} // namespace zelto::linux_platform
