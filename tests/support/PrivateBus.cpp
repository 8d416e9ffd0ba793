#include "tests/support/PrivateBus.h"

#include <stdexcept>

namespace zelto::test {

PrivateBus::PrivateBus() {
    m_folder.write("bus.conf",
                   "<busconfig><type>custom</type><listen>unix:dir=" + m_folder.path().string() +
                       "</listen><policy context=\"default\"><allow send_destination=\"*\"/>"
                       "<allow receive_sender=\"*\"/><allow own=\"*\"/></policy></busconfig>");
    m_daemon.start("dbus-daemon",
                   {"--nofork", "--nopidfile", "--print-address=1",
                    "--config-file=" + QString::fromStdString((m_folder / "bus.conf").string())});
    while (!m_address.endsWith('\n')) {
        if (!m_daemon.waitForReadyRead()) {
            throw std::runtime_error("no dbus-daemon: " +
                                     m_daemon.readAllStandardError().toStdString());
        }
        m_address += QString::fromUtf8(m_daemon.readAllStandardOutput());
    }
    m_address = m_address.trimmed();
}

PrivateBus::~PrivateBus() {
    for (const auto& name : m_connections) {
        QDBusConnection::disconnectFromBus(name);
    }
    m_daemon.terminate();
    m_daemon.waitForFinished();
}

QDBusConnection PrivateBus::connection(const QString& name) {
    m_connections.append(name);
    return QDBusConnection::connectToBus(m_address, name);
}

} // namespace zelto::test
