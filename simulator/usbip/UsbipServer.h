#pragma once

#include "simulator/usbip/EventLoop.h"
#include "simulator/usbip/UsbipSession.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace zelto::simulator {

/// A connected pair of stream sockets, large enough for a whole transfer to lie in them; nothing,
/// and errno, when the system has none left.
[[nodiscard]] std::optional<std::pair<FileDescriptor, FileDescriptor>> makeSocketPair();

/// Serves one device to other computers over TCP, and to this one's kernel over a socket pair. One
/// computer at a time has the device; the others may look. Runs in the event loop.
class UsbipServer {
public:
    using Log = std::function<void(const std::string& line)>;
    /// Connections at a time. When one more comes, the oldest that has not imported the device
    /// goes.
    static constexpr std::size_t MaximumConnections = 16;

    /// Refers to `loop` and `exported` for as long as it lives. `carriedOut` is called after
    /// transfers, when the sockets have been served: the place to look whether the drive leaves.
    UsbipServer(EventLoop& loop, UsbipExport& exported, EventLoop::Handler carriedOut, Log log);
    ~UsbipServer();
    UsbipServer(const UsbipServer&) = delete;
    UsbipServer& operator=(const UsbipServer&) = delete;

    /// Listens on "127.0.0.1:3240", "[::1]:3240" and the like; port 0 takes any that is free.
    /// False, and why in `error`, when that is not possible.
    [[nodiscard]] bool listen(const std::string& address, std::string& error);
    /// The port listened on; 0 when there is none.
    [[nodiscard]] std::uint16_t port() const { return m_port; }

    /// Serves a connection whose other end has the device from the start.
    void adopt(FileDescriptor socket);

    /// Whether a computer has the device.
    [[nodiscard]] bool hasImporter() const;
    /// The device leaves the bus: whoever has it loses the connection.
    void dropImporter();

private:
    struct Connection {
        FileDescriptor socket;
        UsbipSession session;
        EventLoop::Interest interest = EventLoop::Interest::Read;
    };

    void accept();
    void add(FileDescriptor socket, UsbipSession::Start start);
    void makeRoom();
    void serve(Connection& connection);
    [[nodiscard]] static bool receive(Connection& connection);
    [[nodiscard]] static bool send(Connection& connection);
    void adjustInterest(Connection& connection);
    void close(Connection& connection);

    EventLoop& m_loop;
    UsbipExport& m_export;
    EventLoop::Handler m_carriedOut;
    Log m_log;
    FileDescriptor m_listener;
    std::uint16_t m_port = 0;
    /// In the order of their coming.
    std::vector<std::unique_ptr<Connection>> m_connections;
};

} // namespace zelto::simulator
