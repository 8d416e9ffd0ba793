#include "simulator/virtual-drive/Console.h"
#include "simulator/virtual-drive/DriveHost.h"
#include "simulator/virtual-drive/Options.h"

#include <array>
#include <chrono>
#include <csignal>
#include <ctime>
#include <fstream>
#include <iostream>
#include <random>
#include <sys/signalfd.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace zelto::simulator {
namespace {

Moment wallClock() {
    // Seconds are all that the drive knows, and time() gets them without reading a clock: each
    // command asks several times.
    return Moment{std::chrono::seconds{std::time(nullptr)}};
}

std::string timeStamp() {
    const std::time_t now = std::chrono::system_clock::to_time_t(wallClock());
    std::tm parts{};
    ::gmtime_r(&now, &parts);
    std::array<char, 32> text{};
    return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%SZ", &parts)};
}

Manufactured manufacture(const Options& options) {
    std::random_device random;
    Manufactured made;
    made.serial = options.serial.value_or(std::string(Options::DefaultSerial));
    made.totalSectors = options.sectors.value_or(Options::DefaultSectors);
    made.keySeed = std::uint64_t{random()} << 32 | random();
    return made;
}

/// Whether the drive that was found is the one that was asked for.
bool isAsAsked(const Manufactured& made, const Options& options, std::string& error) {
    if (options.serial && *options.serial != made.serial) {
        error = "the drive there has the serial number " + made.serial;
        return false;
    }
    if (options.sectors && *options.sectors != made.totalSectors) {
        error = "the drive there has " + std::to_string(made.totalSectors) + " sectors";
        return false;
    }
    return true;
}

std::unique_ptr<VirtualDrive> takeDrive(const Options& options, std::string& error) {
    if (!options.drive) {
        return std::make_unique<VirtualDrive>(manufacture(options));
    }
    std::error_code ignored;
    const bool isThere = std::filesystem::exists(*options.drive / "drive.state", ignored);
    auto drive = isThere ? VirtualDrive::open(*options.drive, error)
                         : VirtualDrive::create(*options.drive, manufacture(options), error);
    if (drive && isThere && !isAsAsked(drive->model().manufactured(), options, error)) {
        return nullptr;
    }
    return drive;
}

/// The signals that end the program come as bytes through a descriptor, between transfers.
FileDescriptor takeEndingSignals() {
    sigset_t signals{};
    sigemptyset(&signals);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        sigaddset(&signals, signal);
    }
    ::sigprocmask(SIG_BLOCK, &signals, nullptr);
    ::signal(SIGPIPE, SIG_IGN);
    return FileDescriptor(::signalfd(-1, &signals, SFD_CLOEXEC));
}

int complain(const std::string& error) {
    std::cerr << "zelto-virtual-drive: " << error << '\n';
    return 1;
}

/// Everything is connected; the drive is plugged in and served until somebody ends it.
int serve(const Options& options, EventLoop& loop, DriveHost& host) {
    std::string error;
    Console console(loop, host, [&loop] { loop.stop(); });
    if (options.address && !host.listen(*options.address, error)) {
        return complain(*options.address + ": " + error);
    }
    if (options.attaches && !host.attachToKernel(VhciPort::Folder, error)) {
        return complain(error);
    }
    const FileDescriptor signals = takeEndingSignals();
    loop.watch(signals.get(), EventLoop::Interest::Read, [&loop] { loop.stop(); });
    if (!options.isUnplugged && !host.plug()) {
        return complain("the drive can't be plugged in");
    }
    console.use(STDIN_FILENO, STDOUT_FILENO);
    loop.run();
    loop.forget(signals.get());
    return 0;
}

int run(const Options& options) {
    std::string error;
    std::unique_ptr<VirtualDrive> drive = takeDrive(options, error);
    if (!drive) {
        return complain(error);
    }
    std::ofstream logFile;
    if (options.log) {
        logFile.open(*options.log, std::ios::app);
        if (!logFile) {
            return complain(options.log->string() + " can't be written");
        }
    }
    EventLoop loop;
    if (std::thread::hardware_concurrency() > 1) {
        // The next transfer of a command comes within this time. On a single processor nobody
        // could make it while the drive is awake.
        loop.stayAwakeFor(EventLoop::Milliseconds{2});
    }
    DriveHost host(loop, std::move(drive), &wallClock, [&logFile](const std::string& line) {
        if (logFile.is_open()) {
            // Line by line, so that whoever follows the file sees a request when it was answered.
            logFile << timeStamp() << ' ' << line << std::endl;
        }
    });
    return serve(options, loop, host);
}

} // namespace
} // namespace zelto::simulator

int main(int argumentCount, char** arguments) {
    using namespace zelto::simulator;
    const std::vector<std::string_view> words(arguments + 1, arguments + argumentCount);
    std::string error;
    const std::optional<Options> options = parseOptions(words, error);
    if (!options) {
        std::cerr << "zelto-virtual-drive: " << error << '\n' << helpText();
        return 2;
    }
    if (options->wantsHelp) {
        std::cout << helpText();
        return 0;
    }
    if (options->wantsVersion) {
        std::cout << "zelto-virtual-drive " << ZELTO_VERSION << '\n';
        return 0;
    }
    return run(*options);
}
