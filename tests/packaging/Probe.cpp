// Stands for the program in a bundle: writes what it finds itself to be into the file that the
// environment names, and ends. Links nothing but the C and C++ libraries, so that it starts
// wherever the starter does.

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

namespace fs = std::filesystem;

int main(int argc, char**) {
    const char* const report = std::getenv("PROBE_REPORT");
    if (report == nullptr) {
        return 1;
    }
    std::ofstream out(report);
    out << "arguments " << argc - 1 << '\n'
        << "program " << fs::read_symlink("/proc/self/exe").string() << '\n'
        << "folder " << fs::current_path().string() << '\n';
    for (const auto& descriptor : fs::directory_iterator("/proc/self/fd")) {
        std::error_code error;
        out << "open " << fs::read_symlink(descriptor, error).string() << '\n';
    }
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);) {
        if (const auto path = line.find('/'); path != std::string::npos) {
            out << "mapped " << line.substr(path) << '\n';
        }
    }
    if (std::getenv("PROBE_WAITS") != nullptr) {
        out.close();
        std::cin.get();
    }
    return 0;
}
