#pragma once

#include "simulator/usbip/EventLoop.h"
#include "simulator/virtual-drive/DriveHost.h"

#include <functional>
#include <string>
#include <string_view>

namespace zelto::simulator {

/// Carries out the verb on one line and gives the answer's line, without its end: "ok", with or
/// without more behind it, or "error" and why. Calls `quit` for the verb of that name.
[[nodiscard]] std::string carryOutVerb(DriveHost& host, std::string_view line,
                                       const std::function<void()>& quit);

/// Takes verbs from a descriptor, line by line, and writes the answers to another; both are the
/// caller's. When the input ends, nothing happens: the drive stays plugged.
class Console {
public:
    /// Bytes of a line; after a longer one nothing more is taken.
    static constexpr std::size_t MaximumLine = 256;

    /// Refers to `loop` and `host` for as long as it lives.
    Console(EventLoop& loop, DriveHost& host, std::function<void()> quit);
    ~Console();
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;

    void use(int input, int output);

private:
    /// False at the end of the input, or when no more is to be taken from it.
    [[nodiscard]] bool read();
    [[nodiscard]] bool answerLines();

    EventLoop& m_loop;
    DriveHost& m_host;
    std::function<void()> m_quit;
    int m_input = -1;
    int m_output = -1;
    std::string m_line;
};

} // namespace zelto::simulator
