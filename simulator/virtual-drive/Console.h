#pragma once

#include "simulator/usbip/EventLoop.h"
#include "simulator/virtual-drive/DriveHost.h"

#include <filesystem>
#include <functional>
#include <list>
#include <memory>
#include <string>
#include <string_view>

namespace zelto::simulator {

/// Carries out the verb on one line and gives the answer's line, without its end: "ok", with or
/// without more behind it, or "error" and why. Calls `quit` for the verb of that name.
[[nodiscard]] std::string carryOutVerb(DriveHost& host, std::string_view line,
                                       const std::function<void()>& quit);

/// Takes verbs from standard input and from a local socket, line by line.
class Console {
public:
    /// Clients of the socket at a time, and bytes of a line; more is turned away.
    static constexpr std::size_t MaximumClients = 8;
    static constexpr std::size_t MaximumLine = 256;

    /// Refers to `loop` and `host` for as long as it lives.
    Console(EventLoop& loop, DriveHost& host, std::function<void()> quit);
    ~Console();
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;

    /// Reads verbs from one descriptor and writes the answers to another, both of the caller. When
    /// the input ends, nothing happens: the drive stays plugged.
    void use(int input, int output);
    /// Listens on a local socket that only this user can open. A socket that nobody serves any more
    /// is replaced. False, and why in `error`, when that is not possible.
    [[nodiscard]] bool listen(const std::filesystem::path& path, std::string& error);

private:
    struct Client {
        /// Open for a connection; not for descriptors of the caller.
        FileDescriptor socket;
        int input = -1;
        int output = -1;
        std::string line;
    };

    void accept();
    void watch(Client& client);
    /// False at the end of the input, or when the client is to be dropped.
    [[nodiscard]] bool readFrom(Client& client);
    [[nodiscard]] bool answerLines(Client& client);
    void drop(Client& client);

    EventLoop& m_loop;
    DriveHost& m_host;
    std::function<void()> m_quit;
    FileDescriptor m_listener;
    std::filesystem::path m_path;
    std::list<Client> m_clients;
};

} // namespace zelto::simulator
