#include "tests/system/driver/ZeltoTestDriver.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QMetaObject>
#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace zelto::test {

QObject* TestDriverPlugin::create(const QString& key, const QString& specification) {
    return key == QLatin1String("zeltotestdriver") ? new TestDriver(specification) : nullptr;
}

TestDriver::TestDriver(const QString& socketFolder) : m_socketFolder(socketFolder) {
    // Plug-ins are made before the application is; there is nothing to drive until its loop runs.
    QMetaObject::invokeMethod(this, &TestDriver::listen, Qt::QueuedConnection);
}

void TestDriver::listen() {
    QDir().mkpath(m_socketFolder);
    const QByteArray path = QFile::encodeName(
        QStringLiteral("%1/%2").arg(m_socketFolder).arg(QCoreApplication::applicationPid()));
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (static_cast<std::size_t>(path.size()) >= sizeof address.sun_path) {
        qFatal("zeltotestdriver: the socket's path is too long");
    }
    std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    ::unlink(path.constData());

    m_listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (::bind(m_listener, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        ::listen(m_listener, 1) != 0) {
        qFatal("zeltotestdriver: %s", std::strerror(errno));
    }
    auto* notifier = new QSocketNotifier(m_listener, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &TestDriver::accept);
}

void TestDriver::accept() {
    const int connection = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
    if (connection < 0) {
        return;
    }
    m_received.clear();
    auto* notifier = new QSocketNotifier(connection, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier, connection] {
        receive(connection);
        if (m_received.isNull()) {
            notifier->setEnabled(false);
            notifier->deleteLater();
            ::close(connection);
        }
    });
}

/// Leaves m_received null when the other side has gone.
void TestDriver::receive(int connection) {
    std::array<char, 4096> chunk{};
    const ssize_t count = ::read(connection, chunk.data(), chunk.size());
    if (count <= 0) {
        m_received = QByteArray();
        return;
    }
    m_received.append(chunk.data(), static_cast<qsizetype>(count));
    for (qsizetype end = m_received.indexOf('\n'); end >= 0; end = m_received.indexOf('\n')) {
        const QJsonObject request = QJsonDocument::fromJson(m_received.left(end)).object();
        m_received.remove(0, end + 1);
        const QByteArray reply =
            QJsonDocument(answer(request)).toJson(QJsonDocument::Compact) + '\n';
        if (::send(connection, reply.constData(), static_cast<std::size_t>(reply.size()),
                   MSG_NOSIGNAL) != reply.size()) {
            m_received = QByteArray();
            return;
        }
    }
    if (m_received.isNull()) {
        m_received = QByteArray("");
    }
}

} // namespace zelto::test
