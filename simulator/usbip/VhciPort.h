#pragma once

#include "simulator/usbip/UsbipWire.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace zelto::simulator {

/// The first port for high-speed devices that is free in the text of a `status` file of the
/// kernel's virtual host controller; nothing when all are taken or the text makes no sense.
[[nodiscard]] std::optional<std::uint32_t> findFreeVhciPort(std::string_view status);

/// A port of the kernel's virtual host controller (vhci_hcd) on this computer, to which a device
/// can be attached without any client: the kernel takes one end of a socket pair as its
/// connection. Needs the module loaded, and root.
class VhciPort {
public:
    static constexpr std::string_view Folder = "/sys/devices/platform/vhci_hcd.0";

    /// `folder` is the controller's in sysfs; tests bring their own.
    explicit VhciPort(std::filesystem::path folder = Folder) : m_folder(std::move(folder)) {}
    VhciPort(const VhciPort&) = delete;
    VhciPort& operator=(const VhciPort&) = delete;
    ~VhciPort();

    /// Whether there is a controller; what to do about it in `error` when there is none.
    [[nodiscard]] bool isThere(std::string& error) const;
    /// Plugs `device` into a free port, the kernel talking to it through `socket`, which it keeps
    /// for itself: the caller closes its own descriptor. False, and why in `error`, when the
    /// controller is missing, has no free port or refuses.
    [[nodiscard]] bool attach(int socket, const UsbipDevice& device, std::string& error);
    /// Makes the port free again, also when the computer let go of the device by itself.
    void detach();

    [[nodiscard]] std::optional<std::uint32_t> port() const { return m_port; }

private:
    [[nodiscard]] std::optional<std::uint32_t> findFreePort() const;

    std::filesystem::path m_folder;
    std::optional<std::uint32_t> m_port;
};

} // namespace zelto::simulator
