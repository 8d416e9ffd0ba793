#include "simulator/usbip/VhciPort.h"

#include "platform/linux/FileDescriptor.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <sstream>
#include <unistd.h>
#include <utility>

namespace zelto::simulator {

namespace {

/// One write(2), as sysfs wants it; 0 or the errno.
int writeAttribute(const std::filesystem::path& path, const std::string& text) {
    const linux_platform::FileDescriptor file(::open(path.c_str(), O_WRONLY | O_CLOEXEC));
    return file.isOpen() && ::write(file.get(), text.data(), text.size()) >= 0 ? 0 : errno;
}

} // namespace

std::optional<std::uint32_t> findFreeVhciPort(std::string_view status) {
    constexpr int Free = 4;
    std::istringstream lines{std::string(status)};
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string hub;
        std::uint32_t port = 0;
        int state = 0;
        // The heading does not begin with a hub's kind, and "ss" is for faster devices.
        if (words >> hub >> port >> state && hub == "hs" && state == Free) {
            return port;
        }
    }
    return std::nullopt;
}

VhciPort::~VhciPort() {
    detach();
}

std::optional<std::uint32_t> VhciPort::findFreePort() const {
    // The first controller's file is "status", the others' "status.1" and so on; all of them are
    // in the first one's folder, and port numbers count through.
    constexpr int MostControllers = 128;
    for (int controller = 0; controller < MostControllers; ++controller) {
        const std::string name =
            controller == 0 ? "status" : "status." + std::to_string(controller);
        std::ifstream file(m_folder / name);
        if (!file) {
            break;
        }
        std::ostringstream text;
        text << file.rdbuf();
        if (const auto port = findFreeVhciPort(text.str())) {
            return port;
        }
    }
    return std::nullopt;
}

bool VhciPort::isThere(std::string& error) const {
    std::error_code ignored;
    if (std::filesystem::exists(m_folder / "attach", ignored)) {
        return true;
    }
    error = "no virtual host controller (is the module vhci_hcd loaded?)";
    return false;
}

bool VhciPort::attach(int socket, const UsbipDevice& device, std::string& error) {
    constexpr int HighSpeed = 3;
    detach();
    if (!isThere(error)) {
        return false;
    }
    const std::optional<std::uint32_t> port = findFreePort();
    if (!port) {
        error = "no free port at the virtual host controller";
        return false;
    }
    std::ostringstream line;
    line << *port << ' ' << socket << ' ' << device.deviceId() << ' ' << HighSpeed;
    if (const int number = writeAttribute(m_folder / "attach", line.str()); number != 0) {
        error =
            std::string("the virtual host controller refuses the device: ") + std::strerror(number);
        return false;
    }
    m_port = port;
    return true;
}

void VhciPort::detach() {
    if (const auto port = std::exchange(m_port, std::nullopt)) {
        // Refused when the port is already free: the kernel noticed the closed connection first.
        writeAttribute(m_folder / "detach", std::to_string(*port));
    }
}

} // namespace zelto::simulator
