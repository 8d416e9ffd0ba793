// Starts a program, waits until the display has got the first frame of its first window, ends the
// program with SIGTERM, and prints how many milliseconds that took and how many KiB of memory the
// program had then (PSS: what is shared counts in parts).
//
// usage: first_frame PROGRAM [ARGUMENT...]
//
// The program is any, as it is shipped: all that is known of it is seen from the display and the
// kernel. A window that is mapped but not painted yet is an empty frame, so what counts is the
// first drawing in it.

#include "platform/linux/FileDescriptor.h"

#include <poll.h>
#include <sched.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/damage.h>
#include <xcb/xcb.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

namespace {

using zelto::linux_platform::FileDescriptor;
using Clock = std::chrono::steady_clock;

/// Also for a program that runs fifty times as slowly, counting its instructions.
constexpr std::chrono::seconds Patience{120};

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};
struct Disconnect {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};

/// All that is drawn in the windows of one display.
class Display {
public:
    Display() : m_connection(xcb_connect(nullptr, nullptr)) {
        if (xcb_connection_has_error(m_connection.get()) != 0) {
            throw std::runtime_error("no display");
        }
        const auto* damage = xcb_get_extension_data(m_connection.get(), &xcb_damage_id);
        if (damage == nullptr || damage->present == 0) {
            throw std::runtime_error("the display does not tell of what is drawn");
        }
        m_drawn = damage->first_event + XCB_DAMAGE_NOTIFY;
        const std::unique_ptr<xcb_damage_query_version_reply_t, Free> version(
            xcb_damage_query_version_reply(
                m_connection.get(), xcb_damage_query_version(m_connection.get(), 1, 1), nullptr));
        const auto root = xcb_setup_roots_iterator(xcb_get_setup(m_connection.get())).data->root;
        const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        const std::unique_ptr<xcb_generic_error_t, Free> error(xcb_request_check(
            m_connection.get(), xcb_change_window_attributes_checked(m_connection.get(), root,
                                                                     XCB_CW_EVENT_MASK, &mask)));
        if (error != nullptr) {
            throw std::runtime_error("the display does not tell of its windows");
        }
    }

    [[nodiscard]] int descriptor() const { return xcb_get_file_descriptor(m_connection.get()); }

    /// Takes what the display has told; whether something has been drawn.
    [[nodiscard]] bool hasDrawn() {
        while (const auto event = std::unique_ptr<xcb_generic_event_t, Free>(
                   xcb_poll_for_event(m_connection.get()))) {
            const int type = event->response_type & 0x7F;
            if (type == XCB_CREATE_NOTIFY) {
                listen(reinterpret_cast<const xcb_create_notify_event_t&>(*event));
            }
            if (type == m_drawn) {
                return true;
            }
        }
        return false;
    }

private:
    /// From its making on, or its first drawing could be missed. Toolkits make windows that are
    /// never shown; nothing is drawn in them.
    void listen(const xcb_create_notify_event_t& made) {
        xcb_damage_create(m_connection.get(), xcb_generate_id(m_connection.get()), made.window,
                          XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);
        xcb_flush(m_connection.get());
    }

    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    int m_drawn = 0;
};

/// In a namespace of its own this process may look at its children's memory, also where a child
/// lets nobody of its user do so.
void enterOwnNamespace() {
    const auto user = std::to_string(::geteuid());
    const auto group = std::to_string(::getegid());
    if (::unshare(CLONE_NEWUSER) != 0) {
        throw std::runtime_error("no user namespace");
    }
    std::ofstream("/proc/self/setgroups") << "deny";
    std::ofstream("/proc/self/uid_map") << user << ' ' << user << " 1";
    std::ofstream("/proc/self/gid_map") << group << ' ' << group << " 1";
}

class Child {
public:
    explicit Child(char** arguments) : m_pid(::fork()) {
        if (m_pid == 0) {
            ::execvp(*arguments, arguments);
            std::perror(*arguments);
            ::_exit(127);
        }
        m_life = FileDescriptor(static_cast<int>(::syscall(SYS_pidfd_open, m_pid, 0)));
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;
    ~Child() {
        // What has been stopped hears of its end when it goes on.
        ::kill(m_pid, SIGTERM);
        ::kill(m_pid, SIGCONT);
        ::waitpid(m_pid, nullptr, 0);
    }

    /// Readable once the program has ended.
    [[nodiscard]] int descriptor() const { return m_life.get(); }
    void stop() const { ::kill(m_pid, SIGSTOP); }
    [[nodiscard]] long memoryKibibytes() const {
        std::ifstream smaps("/proc/" + std::to_string(m_pid) + "/smaps_rollup");
        for (std::string word; smaps >> word;) {
            long amount = 0;
            if (word == "Pss:" && smaps >> amount) {
                return amount;
            }
        }
        throw std::runtime_error("the program's memory cannot be read");
    }

private:
    pid_t m_pid;
    FileDescriptor m_life;
};

void waitForFirstFrame(Display& display, const Child& child) {
    const auto deadline = Clock::now() + Patience;
    while (!display.hasDrawn()) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
        std::array<pollfd, 2> awaited{pollfd{display.descriptor(), POLLIN, 0},
                                      pollfd{child.descriptor(), POLLIN, 0}};
        if (left.count() <= 0 ||
            ::poll(awaited.data(), awaited.size(), static_cast<int>(left.count())) == 0) {
            throw std::runtime_error("the program shows no window");
        }
        if (awaited[1].revents != 0) {
            throw std::runtime_error("the program has ended without a window");
        }
    }
}

void measure(char** arguments) {
    if (::geteuid() != 0) {
        enterOwnNamespace();
    }
    Display display;
    const auto started = Clock::now();
    const Child child(arguments);
    waitForFirstFrame(display, child);
    const std::chrono::duration<double, std::milli> taken = Clock::now() - started;
    child.stop();
    std::printf("%.1f %ld\n", taken.count(), child.memoryKibibytes());
}

} // namespace

int main(int argc, char* argv[]) {
    if (argc < 2) {
        std::fputs("usage: first_frame PROGRAM [ARGUMENT...]\n", stderr);
        return 2;
    }
    try {
        measure(argv + 1);
        return 0;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "first_frame: %s: %s\n", argv[1], failure.what());
        return 1;
    }
}
