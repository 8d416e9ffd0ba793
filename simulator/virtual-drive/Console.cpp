#include "simulator/virtual-drive/Console.h"

#include "simulator/drive/Words.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <unistd.h>
#include <utility>
#include <vector>

namespace zelto::simulator {

namespace {

using Words = std::span<const std::string_view>;

std::string done(bool isDone, std::string_view otherwise) {
    return isDone ? "ok" : "error " + std::string(otherwise);
}

std::string advance(DriveHost& host, Words words) {
    const auto seconds = numberIn<std::uint32_t>(words[0]);
    if (seconds) {
        host.advance(std::chrono::seconds(*seconds));
    }
    return done(seconds.has_value(), "advance needs a number of seconds");
}

std::string notReady(DriveHost& host, Words words) {
    const auto reads = numberIn<std::uint32_t>(words[0]);
    if (reads) {
        host.setNotReadyReads(*reads);
    }
    return done(reads.has_value(), "not-ready needs a number");
}

std::string fail(DriveHost& host, Words words) {
    const auto count = numberIn<std::uint32_t>(words[0]);
    const auto fault = words.size() == 1 ? FaultKind::FailsBefore : faultNamed(words[1]);
    const auto code = words.size() == 3 ? numberIn<std::uint8_t>(words[2], 16) : std::nullopt;
    if (!count || !fault || code.has_value() != (words.size() == 3)) {
        return "error fail needs a number, stall, lost, silent, silent-after, short, vanish or "
               "vanish-after, and a request's code in hexadecimal";
    }
    host.failRequest(*count, *fault, code);
    return "ok";
}

struct Verb {
    std::string_view name;
    std::size_t fewest = 0;
    std::size_t most = 0;
    std::string (*carryOut)(DriveHost&, Words) = nullptr;
};

constexpr std::array Verbs{
    Verb{"plug", 0, 0,
         [](DriveHost& host, Words) { return done(host.plug(), "the drive is plugged in"); }},
    Verb{"unplug", 0, 0,
         [](DriveHost& host, Words) { return done(host.unplug(), "the drive is not plugged in"); }},
    Verb{"replug", 0, 0,
         [](DriveHost& host, Words) {
             host.replug();
             return std::string("ok");
         }},
    Verb{"advance", 1, 1, &advance},
    Verb{"lose-clock", 0, 0,
         [](DriveHost& host, Words) {
             host.loseClock();
             return std::string("ok");
         }},
    Verb{"not-ready", 1, 1, &notReady},
    Verb{"fail", 1, 3, &fail},
    Verb{"state", 0, 0, [](DriveHost& host, Words) { return "ok " + host.describe(); }},
    Verb{"help", 0, 0,
         [](DriveHost&, Words) {
             return std::string("ok plug, unplug, replug, advance SECONDS, lose-clock, "
                                "not-ready N, fail K [HOW [CODE]], state, help, quit");
         }},
};

} // namespace

std::string carryOutVerb(DriveHost& host, std::string_view line,
                         const std::function<void()>& quit) {
    std::vector<std::string_view> words = wordsOf(line);
    std::erase(words, std::string_view());
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
    m_loop.forget(m_input);
}

void Console::use(int input, int output) {
    m_input = input;
    m_output = output;
    const bool isWatched = m_loop.watch(m_input, EventLoop::Interest::Read, [this] {
        if (!read()) {
            m_loop.forget(m_input);
        }
    });
    if (!isWatched) {
        // A plain file: everything that will ever come is there.
        while (read()) {
        }
    }
}

bool Console::read() {
    std::array<char, MaximumLine> piece{};
    const ssize_t size = ::read(m_input, piece.data(), piece.size());
    if (size < 0) {
        return errno == EAGAIN || errno == EINTR;
    }
    m_line.append(piece.data(), static_cast<std::size_t>(size));
    return size > 0 && answerLines();
}

bool Console::answerLines() {
    for (std::size_t end = m_line.find('\n'); end != std::string::npos; end = m_line.find('\n')) {
        const std::string answer =
            carryOutVerb(m_host, std::string_view(m_line).substr(0, end), m_quit) + '\n';
        m_line.erase(0, end + 1);
        // Answers are short: a reader that does not even take one is not waited for.
        if (::write(m_output, answer.data(), answer.size()) !=
            static_cast<ssize_t>(answer.size())) {
            return false;
        }
    }
    return m_line.size() <= MaximumLine;
}

} // namespace zelto::simulator
