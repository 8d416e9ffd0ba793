#include "simulator/usbip/UsbipServer.h"

#include "simulator/drive/Words.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <utility>

namespace zelto::simulator {

namespace {

/// A whole transfer of the storage driver and more, so that neither side waits in the middle of it.
constexpr int SocketBuffer = 1 << 20;

void setOption(int socket, int level, int option, int value) {
    // Without effect the socket still works, only slower.
    ::setsockopt(socket, level, option, &value, sizeof value);
}

void prepareSocket(int socket) {
    setOption(socket, SOL_SOCKET, SO_SNDBUF, SocketBuffer);
    setOption(socket, SOL_SOCKET, SO_RCVBUF, SocketBuffer);
    setOption(socket, IPPROTO_TCP, TCP_NODELAY, 1);
    setOption(socket, SOL_SOCKET, SO_KEEPALIVE, 1);
}

struct FreeAddress {
    void operator()(addrinfo* address) const { ::freeaddrinfo(address); }
};
using Address = std::unique_ptr<addrinfo, FreeAddress>;

Address resolve(const std::string& text, std::string& error) {
    const std::size_t colon = text.rfind(':');
    // getaddrinfo would cut a port that is too large.
    if (colon == std::string::npos || colon == 0 ||
        !numberIn<std::uint16_t>(std::string_view(text).substr(colon + 1))) {
        error = "an address looks like 127.0.0.1:3240";
        return nullptr;
    }
    std::string host = text.substr(0, colon);
    if (host.front() == '[' && host.back() == ']') {
        host = host.substr(1, host.size() - 2);
    }
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM;
    hints.ai_flags = AI_NUMERICHOST | AI_NUMERICSERV | AI_PASSIVE;
    addrinfo* found = nullptr;
    const int result = ::getaddrinfo(host.c_str(), text.c_str() + colon + 1, &hints, &found);
    if (result != 0) {
        error = ::gai_strerror(result);
        return nullptr;
    }
    return Address(found);
}

std::uint16_t portOf(int socket) {
    // The port stands at the same place in the addresses of both families.
    sockaddr_in6 address{};
    socklen_t size = sizeof address;
    const int result = ::getsockname(socket, reinterpret_cast<sockaddr*>(&address), &size);
    return result == 0 ? ntohs(address.sin6_port) : 0;
}

} // namespace

std::optional<std::pair<FileDescriptor, FileDescriptor>> makeSocketPair() {
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        return std::nullopt;
    }
    for (const int end : ends) {
        setOption(end, SOL_SOCKET, SO_SNDBUF, SocketBuffer);
        setOption(end, SOL_SOCKET, SO_RCVBUF, SocketBuffer);
    }
    return std::pair(FileDescriptor(ends[0]), FileDescriptor(ends[1]));
}

UsbipServer::UsbipServer(EventLoop& loop, UsbipExport& exported, EventLoop::Handler carriedOut,
                         Log log)
    : m_loop(loop),
      m_export(exported),
      m_carriedOut(std::move(carriedOut)),
      m_log(std::move(log)) {}

UsbipServer::~UsbipServer() {
    for (const auto& connection : m_connections) {
        m_loop.forget(connection->socket.get());
    }
    m_loop.forget(m_listener.get());
}

bool UsbipServer::listen(const std::string& address, std::string& error) {
    const Address resolved = resolve(address, error);
    if (!resolved) {
        return false;
    }
    FileDescriptor socket(
        ::socket(resolved->ai_family, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    setOption(socket.get(), SOL_SOCKET, SO_REUSEADDR, 1);
    if (::bind(socket.get(), resolved->ai_addr, resolved->ai_addrlen) != 0 ||
        ::listen(socket.get(), SOMAXCONN) != 0) {
        error = std::strerror(errno);
        return false;
    }
    m_port = portOf(socket.get());
    m_listener = std::move(socket);
    m_loop.watch(m_listener.get(), EventLoop::Interest::Read, [this] { accept(); });
    return true;
}

void UsbipServer::accept() {
    FileDescriptor socket(::accept4(m_listener.get(), nullptr, nullptr, SOCK_CLOEXEC));
    if (socket.isOpen()) {
        prepareSocket(socket.get());
        add(std::move(socket), UsbipSession::Start::Operations);
    }
}

void UsbipServer::adopt(FileDescriptor socket) {
    add(std::move(socket), UsbipSession::Start::Imported);
}

void UsbipServer::add(FileDescriptor socket, UsbipSession::Start start) {
    makeRoom();
    m_connections.push_back(
        std::make_unique<Connection>(Connection{std::move(socket), UsbipSession(m_export, start)}));
    Connection& connection = *m_connections.back();
    m_loop.watch(connection.socket.get(), connection.interest,
                 [this, &connection] { serve(connection); });
}

void UsbipServer::makeRoom() {
    if (m_connections.size() < MaximumConnections) {
        return;
    }
    const auto oldest = std::ranges::find_if(
        m_connections, [](const auto& connection) { return !connection->session.isImported(); });
    if (oldest != m_connections.end()) {
        close(**oldest);
    }
}

bool UsbipServer::hasImporter() const {
    return std::ranges::any_of(
        m_connections, [](const auto& connection) { return connection->session.isImported(); });
}

void UsbipServer::dropImporter() {
    const auto importer = std::ranges::find_if(
        m_connections, [](const auto& connection) { return connection->session.isImported(); });
    if (importer != m_connections.end()) {
        close(**importer);
    }
}

void UsbipServer::serve(Connection& connection) {
    const bool isConnected = send(connection) && receive(connection) && send(connection);
    const UsbipSession& session = connection.session;
    const bool isFinished = session.isOver() && session.toSend().empty();
    if (session.isImported() && m_export.isLeaving()) {
        // The last answer is on its way; closing now could overtake it. The drive's owner drops
        // the connection when the drive is off the bus.
        m_loop.forget(connection.socket.get());
    } else if (!isConnected || isFinished) {
        if (!session.complaint().empty()) {
            m_log("connection dropped: " + std::string(session.complaint()));
        }
        close(connection);
    } else {
        adjustInterest(connection);
    }
    m_carriedOut();
}

bool UsbipServer::receive(Connection& connection) {
    UsbipSession& session = connection.session;
    if (!session.wantsInput()) {
        return true;
    }
    const std::span<std::uint8_t> space = session.receiveSpace();
    const ssize_t size = ::recv(connection.socket.get(), space.data(), space.size(), MSG_DONTWAIT);
    if (size > 0) {
        session.received(static_cast<std::size_t>(size));
        return true;
    }
    return size < 0 && (errno == EAGAIN || errno == EINTR);
}

bool UsbipServer::send(Connection& connection) {
    UsbipSession& session = connection.session;
    while (!session.toSend().empty()) {
        const std::span<const std::uint8_t> bytes = session.toSend();
        const ssize_t size = ::send(connection.socket.get(), bytes.data(), bytes.size(),
                                    MSG_DONTWAIT | MSG_NOSIGNAL);
        if (size < 0) {
            return errno == EAGAIN || errno == EINTR;
        }
        session.sent(static_cast<std::size_t>(size));
    }
    return true;
}

void UsbipServer::adjustInterest(Connection& connection) {
    const bool hasMoreToSend = !connection.session.toSend().empty();
    EventLoop::Interest interest = EventLoop::Interest::Read;
    if (hasMoreToSend) {
        interest = connection.session.wantsInput() ? EventLoop::Interest::ReadAndWrite
                                                   : EventLoop::Interest::Write;
    }
    if (interest != connection.interest) {
        connection.interest = interest;
        m_loop.setInterest(connection.socket.get(), interest);
    }
}

void UsbipServer::close(Connection& connection) {
    m_loop.forget(connection.socket.get());
    std::erase_if(m_connections,
                  [&](const auto& candidate) { return candidate.get() == &connection; });
}

} // namespace zelto::simulator
