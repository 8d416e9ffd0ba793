#include "platform/linux/LinuxApplication.h"

#include <QCoreApplication>
#include <QTimer>

#include <utility>

namespace zelto::linux_platform {

void LinuxApplication::scheduledTimer(std::chrono::seconds interval,
                                      std::function<void()> handler) {
    auto* timer = new QTimer(&m_context);
    // A coarse timer may be up to 5 % late: the clocks on screen would skip a second now and then.
    timer->setTimerType(Qt::PreciseTimer);
    QObject::connect(timer, &QTimer::timeout, &m_context, std::move(handler));
    timer->start(interval);
}

void LinuxApplication::performLater(std::function<void()> task) {
    QMetaObject::invokeMethod(&m_context, std::move(task), Qt::QueuedConnection);
}

void LinuxApplication::stop() {
    // Queued, because exit() before the run loop has started is forgotten, and a relocating
    // program ends before that.
    QMetaObject::invokeMethod(
        &m_context, [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
}

} // namespace zelto::linux_platform
