#include "platform/linux/DetachedStart.h"

#include "platform/linux/TextFile.h"

#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <string>
#include <string_view>
#include <vector>

namespace zelto::linux_platform {

namespace {

/// These may name folders on the volume that the new program must leave alone.
constexpr std::array<std::string_view, 5> LibraryPaths{
    "LD_LIBRARY_PATH=", "LD_PRELOAD=", "QT_PLUGIN_PATH=", "QT_QPA_PLATFORM_PLUGIN_PATH=", "PWD="};

std::vector<char*> environmentWithoutLibraryPaths() {
    std::vector<char*> environment;
    for (char** variable = environ; variable != nullptr && *variable != nullptr; ++variable) {
        const std::string_view text(*variable);
        if (std::ranges::none_of(LibraryPaths,
                                 [&](std::string_view name) { return text.starts_with(name); })) {
            environment.push_back(*variable);
        }
    }
    environment.push_back(nullptr);
    return environment;
}

/// What the child does between its birth and the program's start.
class ChildSetUp {
public:
    ChildSetUp() {
        constexpr int FirstOfTheRest = 3;
        posix_spawn_file_actions_init(&m_actions);
        posix_spawn_file_actions_addchdir_np(&m_actions, "/");
        posix_spawn_file_actions_addopen(&m_actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&m_actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addopen(&m_actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addclosefrom_np(&m_actions, FirstOfTheRest);
        posix_spawnattr_init(&m_attributes);
        sigset_t none;
        sigset_t all;
        sigemptyset(&none);
        sigfillset(&all);
        posix_spawnattr_setsigmask(&m_attributes, &none);
        posix_spawnattr_setsigdefault(&m_attributes, &all);
        posix_spawnattr_setflags(&m_attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK |
                                                    POSIX_SPAWN_SETSIGDEF);
    }
    ChildSetUp(const ChildSetUp&) = delete;
    ChildSetUp& operator=(const ChildSetUp&) = delete;
    ~ChildSetUp() {
        posix_spawn_file_actions_destroy(&m_actions);
        posix_spawnattr_destroy(&m_attributes);
    }

    [[nodiscard]] const posix_spawn_file_actions_t* actions() const { return &m_actions; }
    [[nodiscard]] const posix_spawnattr_t* attributes() const { return &m_attributes; }

private:
    posix_spawn_file_actions_t m_actions{};
    posix_spawnattr_t m_attributes{};
};

/// 0 or what the system said.
int spawn(std::vector<std::string> command) {
    const ChildSetUp setUp;
    std::vector<char*> arguments;
    arguments.reserve(command.size() + 1);
    for (auto& argument : command) {
        arguments.push_back(argument.data());
    }
    arguments.push_back(nullptr);
    const auto environment = environmentWithoutLibraryPaths();
    pid_t child = 0;
    // The child is not waited for: this process ends before it does, and the system takes over.
    return ::posix_spawn(&child, arguments[0], setUp.actions(), setUp.attributes(),
                         arguments.data(), environment.data());
}

bool isScript(const std::filesystem::path& program) {
    constexpr std::string_view Beginning = "#!";
    return readTextFile(program, Beginning.size()) == Beginning;
}

} // namespace

bool startDetached(const std::filesystem::path& program) {
    const int result = spawn({program.string()});
    // On a volume that is mounted without execute permission a script still starts by its shell.
    return result == 0 ||
           (result == EACCES && isScript(program) && spawn({"/bin/sh", program.string()}) == 0);
}

} // namespace zelto::linux_platform
