#pragma once

#include "tests/support/TemporaryFolder.h"

#include <QDBusConnection>
#include <QProcess>
#include <QStringList>

namespace zelto::test {

/// A message bus that nobody but this program knows.
class PrivateBus {
public:
    PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;
    ~PrivateBus();

    /// A new connection; the same name gives the same connection again.
    [[nodiscard]] QDBusConnection connection(const QString& name);
    [[nodiscard]] const QString& address() const { return m_address; }
    /// Takes everybody off the bus at once.
    void breakDown() { m_daemon.kill(); }

private:
    TemporaryFolder m_folder;
    QProcess m_daemon;
    QString m_address;
    QStringList m_connections;
};

} // namespace zelto::test
