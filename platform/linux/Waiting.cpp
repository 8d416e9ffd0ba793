#include "platform/linux/Waiting.h"

#include <QEventLoop>

#include <utility>

namespace zelto::linux_platform {

Waiting::Waiting(WorkInProgress showWork) : m_showWork(std::move(showWork)) {}

std::shared_ptr<void> Waiting::showWork() const {
    return m_showWork ? m_showWork() : nullptr;
}

void Waiting::run(QEventLoop& loop) const {
    const auto shown = showWork();
    loop.exec(m_showWork ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
}

} // namespace zelto::linux_platform
