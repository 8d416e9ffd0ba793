// zelto-virtual-drive with everybody at it at once: who types at its console, computers that look,
// take the drive and leave, and the kernel. Every line is answered by one, the log keeps the
// password to itself, and the drive doesn't open without it.

#include "simulator/virtual-drive/Console.h"
#include "simulator/virtual-drive/DriveHost.h"
#include "tests/fuzz/DescribedFolder.h"
#include "tests/fuzz/LockedDrive.h"
#include "tests/support/Bytes.h"

#include <arpa/inet.h>
#include <array>
#include <netinet/in.h>
#include <string>
#include <sys/socket.h>

namespace zelto::test {
namespace {

void send(const FileDescriptor& socket, std::span<const std::uint8_t> bytes) {
    (void)::send(socket.get(), bytes.data(), bytes.size(), MSG_DONTWAIT | MSG_NOSIGNAL);
}

std::string receive(const FileDescriptor& socket) {
    std::string received;
    std::array<char, 4096> piece{};
    for (ssize_t size = 1; size > 0;) {
        size = ::recv(socket.get(), piece.data(), piece.size(), MSG_DONTWAIT);
        received.append(piece.data(), size > 0 ? static_cast<std::size_t>(size) : 0U);
    }
    return received;
}

FileDescriptor connectTo(std::uint16_t port) {
    FileDescriptor socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    // Its end leaves nothing behind in the kernel: there are thousands a second.
    const linger none{1, 0};
    ::setsockopt(socket.get(), SOL_SOCKET, SO_LINGER, &none, sizeof none);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    (void)::connect(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address);
    return socket;
}

class Desk {
public:
    Desk(Input& input, std::span<const std::uint8_t> said) : m_input(input), m_said(said) {
        auto drive = makeLockedDrive();
        drive->unplug(Now);
        m_host = std::make_unique<DriveHost>(
            m_loop, std::move(drive), [this] { return now(); },
            [this](const std::string& line) { checkLog(line); });
        m_console = std::make_unique<Console>(m_loop, *m_host, [] {});
        auto ends = makeSocketPair();
        require(ends.has_value(), "there is a console");
        m_typed = std::move(ends->first);
        m_terminal = std::move(ends->second);
        m_console->use(m_terminal.get(), m_terminal.get());
        const std::uint8_t shape = m_input.takeByte();
        std::string error;
        constexpr std::array Nowhere{"nowhere", "localhost:0", "192.0.2.1:0", "[x]:1"};
        require(!m_host->listen(Nowhere.at(shape >> 4U & 3U), error) && !error.empty(),
                "an address that is none is refused");
        require(m_host->listen("127.0.0.1:0", error), "there is a port");
        if ((shape & 1U) != 0) {
            constexpr std::array<std::string_view, 4> Controllers{"free", "full", "none", "none"};
            const auto name = Controllers.at(shape >> 2U & 3U);
            require(m_host->attachToKernel(m_controllers.path() / name, error) == (name != "none"),
                    "there is a controller or there is none");
        }
        if ((shape & 2U) != 0) {
            require(m_host->plug(), "it can be plugged in");
        }
    }

    void serve() {
        while (!m_input.isEmpty()) {
            happen();
            for (int round = 0; round < 3; ++round) {
                m_loop.runOnce(EventLoop::Milliseconds{0});
            }
            require(isPasswordIn(m_said) ||
                        m_host->describe().find(" state=StateUnlocking") == std::string::npos,
                    "a locked drive does not open without its password");
            checkAnswers();
        }
    }

private:
    void happen() {
        switch (m_input.takeByte() % 6) {
        case 0:
            return type(m_input.takeBytes(m_input.takeByte()));
        case 1:
            return comeOrGo();
        case 2:
            if (!m_computers.empty()) {
                const FileDescriptor& computer = someComputer();
                send(computer, m_input.takeBytes(m_input.takeByte()));
            }
            return;
        case 3:
            if (!m_computers.empty()) {
                (void)receive(someComputer());
            }
            return;
        case 4:
            m_time += EventLoop::Milliseconds{10 * m_input.takeByte()};
            return;
        default:
            adopt();
        }
    }

    void type(std::span<const std::uint8_t> text) {
        for (const std::uint8_t byte : text) {
            m_lineLength = byte == '\n' ? 0 : m_lineLength + 1;
            m_hasLongLine |= m_lineLength >= Console::MaximumLine;
            m_lines += byte == '\n' ? 1U : 0U;
        }
        send(m_typed, text);
    }

    void comeOrGo() {
        constexpr std::size_t Most = 20;
        if (m_computers.size() < Most) {
            m_computers.push_back(connectTo(m_host->port()));
        } else {
            m_computers.erase(m_computers.begin() + m_input.takeByte() % std::ptrdiff_t{Most});
        }
    }

    void adopt() {
        auto ends = makeSocketPair();
        if (ends && m_host->isPlugged()) {
            m_host->adopt(std::move(ends->first));
            m_computers.push_back(std::move(ends->second));
        }
    }

    [[nodiscard]] const FileDescriptor& someComputer() {
        return m_computers[m_input.takeByte() % m_computers.size()];
    }

    void checkAnswers() {
        m_answers += receive(m_typed);
        std::size_t end = m_answers.find('\n');
        for (; end != std::string::npos; end = m_answers.find('\n')) {
            require(m_answers.starts_with("ok") || m_answers.starts_with("error "),
                    "an answer says how it went");
            m_answers.erase(0, end + 1);
            ++m_answered;
        }
        require(m_answered <= m_lines && (m_hasLongLine || m_answered == m_lines),
                "every line has an answer");
    }

    void checkLog(const std::string& line) {
        static const std::string Password = toHex(digest(First));
        require(line.find(Password) == std::string::npos, "the log keeps the password to itself");
        require(line.find('\n') == std::string::npos, "a line is a line");
    }

    [[nodiscard]] Moment now() const {
        return Now + std::chrono::duration_cast<std::chrono::seconds>(m_time.time_since_epoch());
    }

    Input& m_input;
    std::span<const std::uint8_t> m_said;
    EventLoop::Clock::time_point m_time{};
    EventLoop m_loop{[this] { return m_time; }};
    /// The kernel's, as it would look with a free port and without.
    const DescribedFolder m_controllers{
        "free/status=hs  0001 004 000 00000000 000000 0-0\nfree/attach=\nfree/detach=\n"
        "full/status=hs  0001 006 000 00000000 000000 1-1\nfull/attach=\n"};
    FileDescriptor m_typed;
    FileDescriptor m_terminal;
    std::vector<FileDescriptor> m_computers;
    std::unique_ptr<DriveHost> m_host;
    std::unique_ptr<Console> m_console;
    std::string m_answers;
    std::size_t m_lines = 0;
    std::size_t m_answered = 0;
    std::size_t m_lineLength = 0;
    bool m_hasLongLine = false;
};

} // namespace
} // namespace zelto::test

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zelto::test;
    Input input(data, size);
    Desk(input, {data, size}).serve();
    return 0;
}
