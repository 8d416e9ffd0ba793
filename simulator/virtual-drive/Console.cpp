#include "simulator/virtual-drive/Console.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <optional>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace zelto::simulator {

namespace {

std::vector<std::string_view> wordsOf(std::string_view line) {
    constexpr std::string_view Blank = " \t\r";
    std::vector<std::string_view> words;
    while (true) {
        const std::size_t begin = line.find_first_not_of(Blank);
        if (begin == std::string_view::npos) {
            return words;
        }
        line.remove_prefix(begin);
        const std::size_t end = std::min(line.find_first_of(Blank), line.size());
        words.push_back(line.substr(0, end));
        line.remove_prefix(end);
    }
}

std::optional<std::uint32_t> numberIn(std::string_view word) {
    std::uint32_t value = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    const bool isWhole = error == std::errc{} && end == word.data() + word.size();
    return isWhole ? std::optional(value) : std::nullopt;
}

std::optional<std::uint8_t> requestCodeIn(std::string_view word) {
    std::uint8_t value = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value, 16);
    const bool isWhole = error == std::errc{} && end == word.data() + word.size();
    return isWhole ? std::optional(value) : std::nullopt;
}

using Words = std::span<const std::string_view>;

std::string done(bool isDone, std::string_view otherwise) {
    return isDone ? "ok" : "error " + std::string(otherwise);
}

std::string plug(DriveHost& host, Words /*words*/) {
    return done(host.plug(), "the drive is plugged in");
}

std::string unplug(DriveHost& host, Words /*words*/) {
    return done(host.unplug(), "the drive is not plugged in");
}

std::string replug(DriveHost& host, Words /*words*/) {
    host.replug();
    return "ok";
}

std::string advance(DriveHost& host, Words words) {
    const auto seconds = numberIn(words[0]);
    if (!seconds) {
        return "error advance needs a number of seconds";
    }
    host.advance(std::chrono::seconds(*seconds));
    return "ok";
}

std::string loseClock(DriveHost& host, Words /*words*/) {
    host.loseClock();
    return "ok";
}

std::string notReady(DriveHost& host, Words words) {
    const auto reads = numberIn(words[0]);
    if (!reads) {
        return "error not-ready needs a number";
    }
    host.setNotReadyReads(*reads);
    return "ok";
}

std::string fail(DriveHost& host, Words words) {
    const auto count = numberIn(words[0]);
    const auto fault = words.size() == 1 ? ControlFault::Refused : controlFaultNamed(words[1]);
    const auto code = words.size() == 3 ? requestCodeIn(words[2]) : std::nullopt;
    if (!count || !fault || code.has_value() != (words.size() == 3)) {
        return "error fail needs a number, stall, lost, silent, silent-after, short, vanish or "
               "vanish-after, and a request's code in hexadecimal";
    }
    host.failRequest(*count, *fault, code);
    return "ok";
}

std::string state(DriveHost& host, Words /*words*/) {
    return "ok " + host.describe();
}

std::string help(DriveHost& /*host*/, Words /*words*/) {
    return "ok plug, unplug, replug, advance SECONDS, lose-clock, not-ready N, fail K [HOW "
           "[CODE]], "
           "state, help, quit";
}

struct Verb {
    std::string_view name;
    std::size_t fewest = 0;
    std::size_t most = 0;
    std::string (*carryOut)(DriveHost&, Words) = nullptr;
};

constexpr std::array Verbs{
    Verb{"plug", 0, 0, &plug},
    Verb{"unplug", 0, 0, &unplug},
    Verb{"replug", 0, 0, &replug},
    Verb{"advance", 1, 1, &advance},
    Verb{"lose-clock", 0, 0, &loseClock},
    Verb{"not-ready", 1, 1, &notReady},
    Verb{"fail", 1, 3, &fail},
    Verb{"state", 0, 0, &state},
    Verb{"help", 0, 0, &help},
};

} // namespace

std::string carryOutVerb(DriveHost& host, std::string_view line,
                         const std::function<void()>& quit) {
    const std::vector<std::string_view> words = wordsOf(line);
    if (words.empty()) {
        return "error a verb is needed; help lists them";
    }
    if (words[0] == "quit" && words.size() == 1) {
        quit();
        return "ok";
    }
    const auto verb = std::ranges::find(Verbs, words[0], &Verb::name);
    if (verb == Verbs.end()) {
        return "error unknown verb; help lists them";
    }
    const Words arguments = Words(words).subspan(1);
    if (arguments.size() < verb->fewest || arguments.size() > verb->most) {
        return "error wrong number of words; help lists the verbs";
    }
    return verb->carryOut(host, arguments);
}

Console::Console(EventLoop& loop, DriveHost& host, std::function<void()> quit)
    : m_loop(loop), m_host(host), m_quit(std::move(quit)) {}

Console::~Console() {
    for (const Client& client : m_clients) {
        m_loop.forget(client.input);
    }
    if (m_listener.isOpen()) {
        m_loop.forget(m_listener.get());
        ::unlink(m_path.c_str());
    }
}

void Console::use(int input, int output) {
    Client& client = m_clients.emplace_back();
    client.input = input;
    client.output = output;
    watch(client);
}

bool Console::listen(const std::filesystem::path& path, std::string& error) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.native().size() >= sizeof address.sun_path) {
        error = "the path of a local socket has to be shorter";
        return false;
    }
    path.native().copy(address.sun_path, sizeof address.sun_path - 1);
    const auto* const general = reinterpret_cast<const sockaddr*>(&address);
    const FileDescriptor probe(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    if (::connect(probe.get(), general, sizeof address) == 0) {
        error = "another program serves this socket";
        return false;
    }
    std::error_code ignored;
    if (errno == ECONNREFUSED && std::filesystem::is_socket(path, ignored)) {
        ::unlink(path.c_str()); // left behind by a program that was killed
    }
    FileDescriptor listener(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    const mode_t mask = ::umask(0077);
    const bool isBound = ::bind(listener.get(), general, sizeof address) == 0;
    ::umask(mask);
    if (!isBound || ::listen(listener.get(), MaximumClients) != 0) {
        error = std::strerror(errno);
        return false;
    }
    m_listener = std::move(listener);
    m_path = path;
    m_loop.watch(m_listener.get(), EventLoop::Interest::Read, [this] { accept(); });
    return true;
}

void Console::accept() {
    FileDescriptor socket(
        ::accept4(m_listener.get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (!socket.isOpen() || m_clients.size() >= MaximumClients) {
        return;
    }
    Client& client = m_clients.emplace_back();
    client.input = socket.get();
    client.output = socket.get();
    client.socket = std::move(socket);
    watch(client);
}

void Console::watch(Client& client) {
    const bool isWatched = m_loop.watch(client.input, EventLoop::Interest::Read, [this, &client] {
        if (!readFrom(client)) {
            drop(client);
        }
    });
    if (!isWatched) {
        // A plain file: everything that will ever come is there.
        while (readFrom(client)) {
        }
        drop(client);
    }
}

bool Console::readFrom(Client& client) {
    std::array<char, MaximumLine> piece{};
    const ssize_t size = ::read(client.input, piece.data(), piece.size());
    if (size < 0) {
        return errno == EAGAIN || errno == EINTR;
    }
    if (size == 0) {
        return false;
    }
    client.line.append(piece.data(), static_cast<std::size_t>(size));
    return answerLines(client);
}

bool Console::answerLines(Client& client) {
    for (std::size_t end = client.line.find('\n'); end != std::string::npos;
         end = client.line.find('\n')) {
        const std::string answer =
            carryOutVerb(m_host, std::string_view(client.line).substr(0, end), m_quit) + '\n';
        client.line.erase(0, end + 1);
        // Answers are short: a reader that does not even take one is not waited for.
        if (::write(client.output, answer.data(), answer.size()) !=
            static_cast<ssize_t>(answer.size())) {
            return false;
        }
    }
    return client.line.size() <= MaximumLine;
}

void Console::drop(Client& client) {
    m_loop.forget(client.input);
    m_clients.remove_if([&](const Client& candidate) { return &candidate == &client; });
}

} // namespace zelto::simulator
