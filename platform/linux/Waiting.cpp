#include "platform/linux/Waiting.h"

#include <QEventLoop>

#include <utility>

namespace zelto::linux_platform {

Waiting::Waiting(WorkInProgress showWork) : m_showWork(std::move(showWork)) {}

std::shared_ptr<void> Waiting::showWork() const {
    auto shown = m_shown.lock();
    if (!shown && m_showWork) {
        shown = m_showWork();
        m_shown = shown;
    }
    return shown;
}

void Waiting::run(QEventLoop& loop) const {
    const auto shown = showWork();
    loop.exec(m_showWork ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
}

} // namespace zelto::linux_platform
